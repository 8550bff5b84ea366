"""What an access point of the bed is, and the hostapd configuration that makes it.

The fields after `settings` say what the access point is to look like; a judge can check both the kernel's view and
the program's against them.
"""

from dataclasses import dataclass
from pathlib import Path

COUNTRY = "PA"  # allows every channel of both bands without radar detection


@dataclass(frozen=True)
class AccessPoint:
    ssid: bytes
    settings: str = ""  # hostapd's, separated by semicolons
    security: str = "None"
    hidden: bool = False


@dataclass(frozen=True)
class Radio:
    settings: str
    channel: int
    width: int  # MHz
    phy_modes: str  # letters after "802.11"
    access_points: tuple[AccessPoint, ...]
    rx_rssi: int = -60  # what the simulated air makes of this radio's transmit power of 0 dBm
    country: str | None = None
    beacon_interval: int = 100
    role: str | None = None  # the scenario's name for the radio


def bssid(radio_number: int, place: int) -> str:
    """The address of a radio's access point; radios count from 1, access points from 0."""
    return f"02:00:00:00:{radio_number:02x}:{place:02x}"


@dataclass(frozen=True)
class Plan:
    radios: tuple[Radio, ...]

    def every_access_point(self):
        """Yields (bssid, radio, access point)."""
        for number, radio in enumerate(self.radios, 1):
            for place, access_point in enumerate(radio.access_points):
                yield bssid(number, place), radio, access_point

    def radio_of_role(self, role: str) -> tuple[int, Radio]:
        return next((number, radio) for number, radio in enumerate(self.radios, 1) if radio.role == role)

    def write(self, folder: Path) -> None:
        """One hostapd configuration a radio (wlan1.conf, ...), and plan.sh: what the guest's scripts need to know."""
        for number, radio in enumerate(self.radios, 1):
            (folder / f"wlan{number}.conf").write_text(configuration(number, radio))
        (folder / "plan.sh").write_text(self._for_guest())

    def _for_guest(self) -> str:
        rssi = " ".join(f"[{number}]={radio.rx_rssi}" for number, radio in enumerate(self.radios, 1))
        bssids = " ".join(address for address, _, made in self.every_access_point() if not made.hidden)
        lines = [f"RADIOS={len(self.radios)}", f"RX_RSSI=({rssi})", f"COUNTRY={COUNTRY}", f"BSSIDS='{bssids}'"]
        for number, radio in enumerate(self.radios, 1):
            if radio.role:
                lines += [f"{radio.role.upper()}_INTERFACE=wlan{number}",
                          f"{radio.role.upper()}_SSID={for_shell(radio.access_points[0].ssid)}"]
        return "\n".join(lines) + "\n"


def for_shell(name: bytes) -> str:
    return "$'" + "".join(f"\\x{byte:02x}" for byte in name) + "'"


def configuration(number: int, radio: Radio) -> str:
    lines = [f"interface=wlan{number}", "driver=nl80211", "ctrl_interface=/run/hostapd",
             f"channel={radio.channel}", f"beacon_int={radio.beacon_interval}", *radio.settings.split(";")]
    for place, access_point in enumerate(radio.access_points):
        if place > 0:
            lines += [f"bss=wlan{number}b{place}", f"bssid={bssid(number, place)}"]
        lines += [f"ssid2={access_point.ssid.hex()}", *access_point.settings.split(";")]
    return "\n".join(lines) + "\n"
