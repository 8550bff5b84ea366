"""Compares the program's list, field by field, with the kernel's own as iw prints it."""

import json
from dataclasses import dataclass

from iw_dump import Entry

NOISE = -90  # dBm; the program's constant

# Field of a record: what iw's entry says it should be.
FIELDS = {
    "ssid": lambda entry: entry.ssid_text,
    "ssidBytes": lambda entry: entry.ssid.hex(),
    "rssi": lambda entry: round(entry.signal),
    "noise": lambda entry: NOISE,
    "channel": lambda entry: entry.channel,
    "channelWidth": lambda entry: entry.width,
    "channelBand": lambda entry: entry.band,
    "security": lambda entry: entry.security,
    "countryCode": lambda entry: entry.country,
    "beaconInterval": lambda entry: entry.beacon_interval,
    "isIBSS": lambda entry: "IBSS" in entry.capabilities,
    "phyModes": lambda entry: entry.phy_modes,
    "isCurrentNetwork": lambda entry: entry.associated,
}

ABSENT = "(absent)"


@dataclass(frozen=True)
class Difference:
    bssid: str
    name: str
    field: str
    ours: object
    theirs: object
    reason: str | None = None  # why both may be right; None: a fault

    def __str__(self) -> str:
        verdict = f"explained: {self.reason}" if self.reason else "FAULT"
        shown = (json.dumps(value, ensure_ascii=True) for value in (self.ours, self.theirs))
        return " | ".join((self.bssid, json.dumps(self.name), self.field, *shown, verdict))


def compare_record(record: dict, entry: Entry) -> list[Difference]:
    return [Difference(entry.bssid, entry.ssid_text, name, record.get(name, ABSENT), expected(entry))
            for name, expected in FIELDS.items() if record.get(name, ABSENT) != expected(entry)]


def missing_record(entry: Entry, heard: float, since: float) -> Difference:
    """An access point that iw lists and the program does not."""
    reason = None
    if not entry.is_named:
        reason = "a hidden or nameless access point makes no record"
    elif heard < since:
        reason = "the kernel still lists it, but it was not heard in the program's scans"
    return Difference(entry.bssid, entry.ssid_text, "(record)", ABSENT, f"heard {heard - since:+.1f} s", reason)


def compare(records: list[dict], entries: dict[str, Entry], booted: float, since: float) -> list[Difference]:
    """`booted` is when the machine was, `since` when the first scan behind the records began (both Unix times)."""
    by_address = {record["bssid"]: record for record in records}
    differences = [Difference(bssid, record["ssid"], "(record)", "listed", ABSENT)
                   for bssid, record in by_address.items() if bssid not in entries]
    if len(by_address) != len(records):
        differences.append(Difference("", "", "(list)", "an address listed twice", ""))
    for bssid, entry in entries.items():
        if bssid in by_address:
            differences += compare_record(by_address[bssid], entry)
        else:
            differences.append(missing_record(entry, booted + entry.heard, since))
    return differences


def print_table(records: list[dict], entries: dict[str, Entry], differences: list[Difference]) -> None:
    """One line an access point, then every difference in full."""
    print("bssid | ssid | iw's view | verdict")
    listed = {record["bssid"] for record in records}
    for bssid, entry in sorted(entries.items()):
        faults = sum(1 for d in differences if d.bssid == bssid and not d.reason)
        verdict = f"{faults} faults" if faults else "same" if bssid in listed else "no record, as it should be"
        view = (f"{entry.signal:.0f} dBm, channel {entry.channel}, {entry.width} MHz, {entry.security}, "
                f"{' '.join(entry.phy_modes)}, {entry.country or '-'}, {entry.beacon_interval}")
        print(f"{bssid} | {json.dumps(entry.ssid_text)} | {view} | {verdict}")
    print("bssid | ssid | field | aerolith | iw | verdict")
    for difference in differences:
        print(difference)
