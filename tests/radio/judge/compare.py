"""Compares the program's records, reading by reading, with what another decoder says of the same access points."""

import json
from collections import Counter
from collections.abc import Callable
from dataclasses import dataclass, field

from heard import Heard
from steps import Faults

NOISE = -90  # dBm; the program's constant
ABSENT = "(absent)"

# Reading of a record: what the decoded frame says it should be.
OF_FRAMES = {
    "ssid": lambda heard: heard.ssid_text,
    "ssidBytes": lambda heard: heard.ssid.hex(),
    "channel": lambda heard: heard.channel,
    "channelWidth": lambda heard: heard.width,
    "channelBand": lambda heard: heard.band,
    "security": lambda heard: heard.security,
    "countryCode": lambda heard: heard.country,
    "beaconInterval": lambda heard: heard.beacon_interval,
    "isIBSS": lambda heard: heard.ibss,
    "phyModes": lambda heard: heard.phy_modes,
}
# And what only the receiver knows.
OF_RECEIVER = {
    "rssi": lambda heard: round(heard.signal),
    "noise": lambda heard: NOISE,
    "isCurrentNetwork": lambda heard: heard.associated,
}


@dataclass(frozen=True)
class Rule:
    """A difference in which both may be right, or the other decoder is known to be wrong."""

    reading: str
    applies: Callable[[object, object, Heard], bool]  # ours, theirs, what they have decoded
    reason: str


@dataclass(frozen=True)
class Difference:
    bssid: str
    name: str
    reading: str
    ours: object
    theirs: object
    reason: str | None = None  # why both may be right; None: a fault

    def __str__(self) -> str:
        verdict = f"explained: {self.reason}" if self.reason else "FAULT"
        shown = (json.dumps(value, ensure_ascii=True) for value in (self.ours, self.theirs))
        return " | ".join((self.bssid, json.dumps(self.name), self.reading, *shown, verdict))


@dataclass
class Opinion:
    """Everything that was compared with one decoder's words."""

    decoder: str
    rules: tuple[Rule, ...] = ()
    compared: Counter = field(default_factory=Counter)  # by reading
    explained: Counter = field(default_factory=Counter)
    unexplained: Counter = field(default_factory=Counter)
    reasons: Counter = field(default_factory=Counter)

    def compare(self, record: dict, heard: Heard, readings: dict) -> list[Difference]:
        """The differences of one record."""
        found = []
        for reading, expected in readings.items():
            self.compared[reading] += 1
            ours, theirs = record.get(reading), expected(heard)
            if ours == theirs:
                continue
            reason = next((rule.reason for rule in self.rules
                           if rule.reading == reading and rule.applies(ours, theirs, heard)), None)
            found.append(self.note(Difference(heard.bssid, heard.ssid_text, reading, ours, theirs, reason)))
        return found

    def note(self, difference: Difference) -> Difference:
        (self.explained if difference.reason else self.unexplained)[difference.reading] += 1
        if difference.reason:
            self.reasons[difference.reason] += 1
        return difference

    def rows(self) -> list[str]:
        return [f"{reading} | {self.decoder} | {compared} | "
                f"{compared - self.explained[reading] - self.unexplained[reading]} | "
                f"{self.explained[reading]} | {self.unexplained[reading]}"
                for reading, compared in self.compared.items()]


def compare_lists(opinion: Opinion, records: list[dict], entries: dict[str, Heard], since: float) -> list[Difference]:
    """A whole list with the kernel's, as iw prints it; `since` is when the first scan behind the records began, in
    seconds since boot."""
    by_address = {record["bssid"]: record for record in records}
    opinion.compared["(record)"] += len(by_address.keys() | entries.keys())
    differences = [opinion.note(Difference(bssid, record["ssid"], "(record)", "listed", ABSENT))
                   for bssid, record in by_address.items() if bssid not in entries]
    if len(by_address) != len(records):
        differences.append(opinion.note(Difference("", "", "(record)", "an address listed twice", "")))
    for bssid, entry in entries.items():
        if bssid in by_address:
            differences += opinion.compare(by_address[bssid], entry, OF_FRAMES | OF_RECEIVER)
        else:
            differences.append(opinion.note(missing_record(entry, since)))
    return differences


def missing_record(entry: Heard, since: float) -> Difference:
    """An access point that iw lists and the program does not."""
    reason = None
    if not entry.is_named:
        reason = "a hidden or nameless access point makes no record"
    elif entry.heard < since:
        reason = "the kernel still lists it, but it was not heard in the program's scans"
    return Difference(entry.bssid, entry.ssid_text, "(record)", ABSENT, f"heard {entry.heard - since:+.1f} s", reason)


def print_list(records: list[dict], entries: dict[str, Heard], differences: list[Difference]) -> None:
    """One line an access point, then every difference in full."""
    print("bssid | ssid | iw's view | verdict")
    listed = {record["bssid"] for record in records}
    for bssid, entry in sorted(entries.items()):
        faults = sum(1 for d in differences if d.bssid == bssid and not d.reason)
        verdict = f"{faults} faults" if faults else "same" if bssid in listed else "no record, as it should be"
        view = (f"{entry.signal:.0f} dBm, channel {entry.channel}, {entry.width} MHz, {entry.security}, "
                f"{' '.join(entry.phy_modes)}, {entry.country or '-'}, {entry.beacon_interval}")
        print(f"{bssid} | {json.dumps(entry.ssid_text)} | {view} | {verdict}")
    print_differences(differences)


def print_differences(differences: list[Difference]) -> None:
    if differences:
        print("bssid | ssid | reading | aerolith | other | verdict")
    for difference in differences:
        print(difference)


def print_opinions(opinions: list[Opinion], faults: Faults) -> None:
    """One line a reading and decoder, then why they differ where both may be right; where they may not is a fault."""
    print("reading | decoder | compared | equal | explained | unexplained")
    for opinion in opinions:
        print("\n".join(opinion.rows()))
    for opinion in opinions:
        for reason, times in opinion.reasons.items():
            print(f"explained, {opinion.decoder}, {times} times: {reason}")
    faults.count += sum(sum(opinion.unexplained.values()) for opinion in opinions)
