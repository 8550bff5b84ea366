"""What an access point of the bed is, and the hostapd configuration that makes it.

The fields after `settings` say what the access point is to look like; a judge can check both the kernel's view and
the program's against them.
"""

from dataclasses import dataclass, replace
from pathlib import Path

import elements

COUNTRY = "PA"  # allows every channel of 2.4 and 5 GHz without radar detection


@dataclass(frozen=True)
class AccessPoint:
    ssid: bytes
    settings: str = ""  # hostapd's, separated by semicolons
    security: str = "None"
    hidden: bool = False
    elements: bytes = b""  # what its frames have besides
    carried: tuple[int, bytes] | None = None  # has no frames: capability and elements in those of its radio's first
    width: int | None = None  # these: unlike its radio
    phy_modes: str | None = None
    country: str | None = None


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
    address: str | None = None  # instead of its own
    cell: str | None = None  # frequency and width of an ad hoc network; its settings are iw's then
    becomes: "Radio | None" = None  # what it is changed into while the scenario runs


def bssid_of(radio_number: int, place: int) -> str:
    """The address of a radio's access point; radios count from 1, access points from 0."""
    return f"02:00:00:00:{radio_number:02x}:{place:02x}"


@dataclass(frozen=True)
class Plan:
    radios: tuple[Radio, ...]
    country: str = COUNTRY

    def every_access_point(self):
        """Yields (bssid, radio, access point)."""
        for number, radio in enumerate(self.radios, 1):
            for place, access_point in enumerate(radio.access_points):
                yield radio.address or bssid_of(number, place), radio, access_point

    def bssid_of(self, role: str) -> str:
        """Of the first access point of the radio of that role."""
        return next(bssid_of(number, 0) for number, radio in enumerate(self.radios, 1) if radio.role == role)

    def changed(self) -> "Plan":
        return replace(self, radios=tuple(radio.becomes or radio for radio in self.radios))

    def write(self, folder: Path, *besides: str) -> None:
        """One hostapd configuration a radio (wlan1.conf, ...), or the arguments that make its ad hoc network
        (wlan1.cell); what changes it to the other state and back (wlan1.changed, wlan1.made); and plan.sh: what the
        guest's scripts need to know, with the lines that are given besides."""
        for number, radio in enumerate(self.radios, 1):
            if radio.cell is not None:
                (folder / f"wlan{number}.cell").write_text(
                    f"{radio.access_points[0].ssid.decode()} {radio.cell} fixed-freq {bssid_of(number, 0)} "
                    f"beacon-interval {radio.beacon_interval} {radio.settings}\n")
                continue
            (folder / f"wlan{number}.conf").write_text(configuration(number, radio))
            if radio.becomes:
                (folder / f"wlan{number}.changed").write_text("\n".join(state(radio.becomes)) + "\n")
                (folder / f"wlan{number}.made").write_text("\n".join(state(radio)) + "\n")
        (folder / "plan.sh").write_text("\n".join([*self._for_guest(), *besides]) + "\n")

    def _for_guest(self) -> list[str]:
        rssi = " ".join(f"[{number}]={radio.rx_rssi}" for number, radio in enumerate(self.radios, 1))
        addresses = " ".join(f"[{number}]={radio.address}" for number, radio in enumerate(self.radios, 1)
                             if radio.address)
        bssids = {address: None for address, _, made in self.every_access_point() if not made.hidden}
        lines = [f"RADIOS={len(self.radios)}", f"RX_RSSI=({rssi})", f"ADDRESSES=({addresses})",
                 f"COUNTRY={self.country}", f"BSSIDS='{' '.join(bssids)}'"]
        for number, radio in enumerate(self.radios, 1):
            if radio.role:
                lines += [f"{radio.role.upper()}_INTERFACE=wlan{number}",
                          f"{radio.role.upper()}_SSID={for_shell(radio.access_points[0].ssid)}"]
        return lines


def for_shell(name: bytes) -> str:
    return "$'" + "".join(f"\\x{byte:02x}" for byte in name) + "'"


def state(radio: Radio) -> list[str]:
    """What makes the radio and its first access point, as hostapd is told of it at its start or while it runs."""
    return [f"channel={radio.channel}", f"beacon_int={radio.beacon_interval}", *split(radio.settings),
            *split(radio.access_points[0].settings)]


def split(settings: str) -> list[str]:
    return settings.split(";") if settings else []


def configuration(number: int, radio: Radio) -> str:
    lines = [f"interface=wlan{number}", "driver=nl80211", "ctrl_interface=/run/hostapd", *state(radio)]
    carried = [(made.ssid, *made.carried) for made in radio.access_points if made.carried]
    for place, access_point in enumerate(radio.access_points):
        if access_point.carried:
            continue
        if place > 0:
            lines += [f"bss=wlan{number}b{place}", f"bssid={bssid_of(number, place)}", *split(access_point.settings)]
        lines.append(f"ssid2={access_point.ssid.hex()}")
        besides = access_point.elements + (elements.multiple_bssid(carried) if carried and place == 0 else b"")
        if besides:
            lines.append(f"vendor_elements={besides.hex()}")
    return "\n".join(lines) + "\n"
