"""Reads what `iw dev X scan dump -u` prints: a second, independent opinion on the bytes the kernel holds."""

import re
import sys
from dataclasses import dataclass, field
from pathlib import Path

from heard import Heard

# iw 5.19 knows these by their numbers only.
HE_OPERATION, EHT_OPERATION, EHT_CAPABILITIES = (f"Unknown Extension ID ({number})" for number in (36, 106, 108))


@dataclass
class Entry(Heard):
    """One entry of the kernel's list."""

    associated: bool = False
    signal: float = 0.0  # dBm
    heard: float = 0.0  # when it was last heard, in seconds since boot
    sections: dict[str, list[str]] = field(default_factory=dict)  # title to the lines below it

    def read_sections(self) -> None:
        """Takes the facts out of the sections, once all their lines are there."""
        self.ht, self.vht, self.he = (f"{mode} capabilities" in self.sections for mode in ("HT", "VHT", "HE"))
        self.eht = EHT_CAPABILITIES in self.sections
        self.rsn, self.wpa = self._suites("RSN"), self._suites("WPA")
        self.ht_wide = (self._text("HT operation", "secondary channel offset") in ("above", "below")
                        and self._text("HT operation", "STA channel width") == "any")
        self.vht_operation = (self._number("VHT operation", "channel width"),
                              self._number("VHT operation", "center freq segment 2"))
        self._read_he_operation(self._unread(HE_OPERATION))
        eht = self._unread(EHT_OPERATION)
        if eht and eht[0] & 1:  # a parameter byte, four of rates, then the width where the first says so
            self.eht_width = eht[5] & 7

    def _read_he_operation(self, body: bytes) -> None:
        """Three bytes of parameters, one of colour, two of rates; then what the parameters announce."""
        parameters = int.from_bytes(body[:3], "little")
        at = 6
        if parameters & 1 << 14:
            if "VHT operation" not in self.sections:
                self.vht_operation = (body[at], body[at + 2])
            at += 3
        at += bool(parameters & 1 << 15)
        if parameters & 1 << 17:
            self.ghz6_width = body[at + 1] & 3

    def _unread(self, title: str) -> bytes:
        """The bytes of an element that iw does not know."""
        return bytes.fromhex(self.sections.get(title, [""])[0])

    def _text(self, section: str, name: str) -> str | None:
        for line in self.sections.get(section, []):
            key, _, value = line.lstrip("* ").partition(":")
            if key == name:
                return value.strip()
        return None

    def _number(self, section: str, name: str) -> int:
        return int((self._text(section, name) or "0").split()[0])

    def _suites(self, section: str) -> set[str] | None:
        """The families among a security element's authentication suites; FT and the hash make no difference."""
        if section not in self.sections:
            return None
        text = (self._text(section, "Authentication suites") or "").replace("IEEE 802.1X", "802.1X")
        parts = {part for suite in text.split() for part in suite.split("/")}
        if "FILS" in parts:
            parts.add("802.1X")  # a faster way to the same end
        return parts & {"PSK", "SAE", "802.1X", "OWE"}


def unescape(text: str) -> bytes:
    """The bytes of a name as iw prints it: what is not printable, and outer blanks, stand as \\xNN."""
    pieces = re.split(r"\\x([0-9a-f]{2})", text)
    return b"".join(bytes.fromhex(piece) if place % 2 else piece.encode("latin-1")
                    for place, piece in enumerate(pieces))


def read_line(entry: Entry, line: str) -> None:
    """Takes in one line of the first level, without its tabulator."""
    title, _, rest = line.partition(":")
    value = rest.strip()
    if title == "freq":
        entry.frequency = int(float(value))
    elif title == "beacon interval":
        entry.beacon_interval = int(value.split()[0])
    elif title == "capability":
        entry.privacy, entry.ibss = "Privacy" in value.split(), "IBSS" in value.split()
    elif title == "signal":
        entry.signal = float(value.split()[0])
    elif title == "last seen" and value.endswith("[boottime]"):
        entry.heard = float(value.split("s ")[0])
    elif title == "SSID":
        entry.ssid = unescape(rest.removeprefix(" "))
    elif title == "Country":
        entry.country = value[:2]
    elif title in ("Supported rates", "Extended supported rates"):
        entry.rates |= {float(rate.rstrip("*")) for rate in value.split() if re.fullmatch(r"[\d.]+\*?", rate)}
    else:
        while title in entry.sections:
            title += " (again)"  # of several alike the first counts
        entry.sections[title] = [value]


def parse(text: str) -> list[Entry]:
    """Every entry of the dump, in its order."""
    entries: list[Entry] = []
    for line in text.split("\n"):
        if start := re.match(r"BSS ([0-9a-f:]{17})\(on \w+\)(.*)", line):
            entries.append(Entry(start[1], associated="associated" in start[2] or "joined" in start[2]))
        elif line.startswith("\t\t") and entries and entries[-1].sections:
            list(entries[-1].sections.values())[-1].append(line.strip())
        elif line.startswith("\t") and entries:
            read_line(entries[-1], line[1:])
    for entry in entries:
        entry.read_sections()
    return entries


def sightings(entries: list[Entry], since: float = 0.0) -> dict[str, Entry]:
    """By address, of what was heard since then (in seconds since boot): an access point has two entries where it has
    been heard with and without its name, or on two channels. The one with a name counts, else the newest."""
    found: dict[str, Entry] = {}
    for entry in sorted(entries, key=lambda e: (e.heard >= since, bool(e.ssid.strip(b"\0")), e.heard)):
        found[entry.bssid] = entry
    return found


def facts(entry: Entry) -> str:
    """What the program is to make of an entry, as one line of a table. A name of zeros alone is none."""
    name = entry.ssid if entry.ssid.strip(b"\0") else b""
    return "\t".join(map(str, (
        entry.bssid, name.hex(), int(entry.signal), entry.channel, entry.width, entry.security, entry.country or "",
        entry.beacon_interval, "ad hoc" if entry.ibss else "", ", ".join(entry.phy_modes))))


if __name__ == "__main__":
    dump = Path(sys.argv[1])
    print(f"# tests/radio/judge/iw_dump.py {dump}")
    print(*sorted(map(facts, parse(dump.read_text(encoding="utf-8")))), sep="\n")
