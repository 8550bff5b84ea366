"""Reads what `iw dev X scan dump` prints: a second, independent opinion on the bytes the kernel holds."""

import re
from dataclasses import dataclass, field

DSSS_RATES = {1.0, 2.0, 5.5, 11.0}
OFDM_RATES = {6.0, 9.0, 12.0, 18.0, 24.0, 36.0, 48.0, 54.0}


@dataclass
class Entry:
    """One entry of the kernel's list; the properties are what the program is expected to say of it."""

    bssid: str
    associated: bool
    frequency: int = 0  # MHz
    beacon_interval: int = 0
    capabilities: set[str] = field(default_factory=set)
    signal: float = 0.0  # dBm
    heard: float = 0.0  # when it was last heard, in seconds since boot
    ssid: bytes = b""
    country: str | None = None
    rates: set[float] = field(default_factory=set)  # Mbit/s
    sections: dict[str, list[str]] = field(default_factory=dict)  # title to the lines below it

    @property
    def is_named(self) -> bool:
        return bool(self.ssid.strip(b"\0")) and self.ssid != b"Unknown"

    @property
    def ssid_text(self) -> str:
        return self.ssid.decode("utf-8", "replace")

    @property
    def channel(self) -> int:
        if self.frequency == 2484:
            return 14
        return (self.frequency - (2407 if self.frequency < 3000 else 5000)) // 5

    @property
    def band(self) -> str:
        if 1 <= self.channel <= 14:
            return "2.4 GHz"
        return "5 GHz" if 36 <= self.channel <= 177 else "Unknown"

    @property
    def width(self) -> int:
        """MHz, from the VHT operation element where it says more than 40, else from the HT operation element."""
        code = self._number("VHT operation", "channel width")
        second = self._number("VHT operation", "center freq segment 2")
        if code == 1:
            return 80 if second == 0 else 160  # a second segment: 160 MHz, or two separate halves of it
        if code in (2, 3):
            return 160
        offset = self._text("HT operation", "secondary channel offset")
        any_width = self._text("HT operation", "STA channel width") == "any"
        return 40 if offset in ("above", "below") and any_width else 20

    @property
    def security(self) -> str:
        rsn, wpa = self._suites("RSN"), self._suites("WPA")
        names = {
            "WEP": "Privacy" in self.capabilities and "RSN" not in self.sections and "WPA" not in self.sections,
            "WPA": "PSK" in wpa,
            "WPA Mixed": "PSK" in wpa and "PSK" in rsn,
            "WPA2": "PSK" in rsn,
            "Enterprise": "802.1X" in rsn | wpa,
            "Personal": bool({"PSK", "SAE"} & (rsn | wpa)),
            "WPA3": "SAE" in rsn,
        }
        return ", ".join(name for name, holds in names.items() if holds) or "None"

    @property
    def phy_modes(self) -> list[str]:
        low_band = self.frequency < 3000
        modes = {
            "a": not low_band and bool(self.rates & OFDM_RATES),
            "b": low_band and bool(self.rates & DSSS_RATES),
            "g": low_band and bool(self.rates & OFDM_RATES),
            "n": "HT capabilities" in self.sections,
            "ac": "VHT capabilities" in self.sections,
            "ax": "HE capabilities" in self.sections,
        }
        return [f"802.11{mode}" for mode, holds in modes.items() if holds]

    def _text(self, section: str, name: str) -> str | None:
        for line in self.sections.get(section, []):
            key, _, value = line.lstrip("* ").partition(":")
            if key == name:
                return value.strip()
        return None

    def _number(self, section: str, name: str) -> int:
        return int((self._text(section, name) or "0").split()[0])

    def _suites(self, section: str) -> set[str]:
        """The families among a security element's authentication suites; FT and the hash make no difference."""
        text = (self._text(section, "Authentication suites") or "").replace("IEEE 802.1X", "802.1X")
        parts = {part for suite in text.split() for part in suite.split("/")}
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
        entry.capabilities = set(value.split())
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
        entry.sections[title] = [value]


def parse(text: str) -> list[Entry]:
    """Every entry of the dump, in its order."""
    entries: list[Entry] = []
    for line in text.split("\n"):
        if start := re.match(r"BSS ([0-9a-f:]{17})\(on \w+\)(.*)", line):
            entries.append(Entry(start[1], "associated" in start[2]))
        elif line.startswith("\t\t") and entries and entries[-1].sections:
            list(entries[-1].sections.values())[-1].append(line.strip())
        elif line.startswith("\t") and entries:
            read_line(entries[-1], line[1:])
    return entries


def newest_of_each(entries: list[Entry]) -> dict[str, Entry]:
    """By address. An access point has two entries where it has been heard with and without its name."""
    newest: dict[str, Entry] = {}
    for entry in sorted(entries, key=lambda e: e.heard):
        newest[entry.bssid] = entry
    return newest
