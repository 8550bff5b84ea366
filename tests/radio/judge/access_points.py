"""The access points of the bed: what each is, and the hostapd configuration that makes it.

Run with a folder, writes there one hostapd configuration a radio (wlan1.conf, ...) and plan.sh, what the guest's
scripts need to know. To add an access point, add a line to RADIOS; to add a radio (another channel or width), add a
Radio. The fields after `settings` say what the access point is to look like; the judge checks both the kernel's view
and the program's against them.
"""

import sys
from dataclasses import dataclass
from pathlib import Path

COUNTRY = "PA"  # allows every channel of both bands without radar detection

PSK = "wpa_passphrase=correct horse"
EAP = "ieee8021x=1;eap_server=1;eap_user_file=/out/plan/eap.users"


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


RADIOS = (
    Radio("hw_mode=b", 13, 20, "b", (AccessPoint(b"b only"),), rx_rssi=-100),
    Radio("hw_mode=g", 10, 20, "b g", (
        AccessPoint(b"open"),
        AccessPoint(b"wep", 'auth_algs=3;wep_default_key=0;wep_key0="abcde"', "WEP"),
        AccessPoint(b"wpa", f"wpa=1;wpa_key_mgmt=WPA-PSK;wpa_pairwise=TKIP;{PSK}", "WPA, Personal"),
        AccessPoint(b"eap wpa", f"wpa=1;wpa_key_mgmt=WPA-EAP;wpa_pairwise=TKIP;{EAP}", "Enterprise"),
        AccessPoint(b"no length", "ignore_broadcast_ssid=1", hidden=True),
        AccessPoint(b"zero bytes", "ignore_broadcast_ssid=2", hidden=True),
        AccessPoint(b"Unknown", hidden=True),
        AccessPoint(b"unknown"),
    ), rx_rssi=-72),
    Radio("hw_mode=g;ieee80211n=1;ht_capab=[HT40+]", 1, 40, "b g n", (
        AccessPoint(b"n 40 MHz", f"wpa=2;wpa_key_mgmt=WPA-PSK;rsn_pairwise=CCMP;{PSK}", "WPA2, Personal"),
    )),
    Radio("hw_mode=g;ieee80211n=1", 11, 20, "b g n", (
        AccessPoint(b"wpa2 sha256", f"wpa=2;wpa_key_mgmt=WPA-PSK-SHA256;rsn_pairwise=CCMP;ieee80211w=2;{PSK}",
                    "WPA2, Personal"),
        AccessPoint(b"wpa wpa2", f"wpa=3;wpa_key_mgmt=WPA-PSK;wpa_pairwise=TKIP CCMP;rsn_pairwise=CCMP;{PSK}",
                    "WPA, WPA Mixed, WPA2, Personal"),
        AccessPoint(b"wpa3", f"wpa=2;wpa_key_mgmt=SAE;rsn_pairwise=CCMP;ieee80211w=2;{PSK}", "Personal, WPA3"),
        AccessPoint(b"wpa2 wpa3", f"wpa=2;wpa_key_mgmt=WPA-PSK SAE;rsn_pairwise=CCMP;ieee80211w=1;{PSK}",
                    "WPA2, Personal, WPA3"),
        AccessPoint(b"owe", "wpa=2;wpa_key_mgmt=OWE;rsn_pairwise=CCMP;ieee80211w=2"),
        AccessPoint(b"eap wpa2", f"wpa=2;wpa_key_mgmt=WPA-EAP;rsn_pairwise=CCMP;{EAP}", "Enterprise"),
        AccessPoint(b"eap wpa wpa2", f"wpa=3;wpa_key_mgmt=WPA-EAP;wpa_pairwise=TKIP;rsn_pairwise=CCMP;{EAP}",
                    "Enterprise"),
        AccessPoint(b"eap and psk", f"wpa=2;wpa_key_mgmt=WPA-EAP WPA-PSK;rsn_pairwise=CCMP;{EAP};{PSK}",
                    "WPA2, Enterprise, Personal"),
    ), rx_rssi=-85),
    Radio("hw_mode=g;ieee80211n=1;ieee80211ax=1", 12, 20, "b g n ax", (AccessPoint(b"ax 2.4 GHz"),)),
    Radio("hw_mode=a;country_code=PA;ieee80211d=1", 100, 20, "a", (AccessPoint(b"a only"),), country="PA"),
    Radio("hw_mode=a;ieee80211n=1;ht_capab=[HT40+]", 44, 40, "a n", (
        AccessPoint("\U0001f4f6 Caf\u00e9 \u2615".encode()),
        AccessPoint(bytes.fromhex("fffe80c328a0")),
        AccessPoint(b"123456789ABCDEFGHIJKLMNOPQRSTUVW"),
        AccessPoint(b"Say \"hi\", 'ok' \\ done"),
        AccessPoint(b"line1\nline2\r\tt"),
        AccessPoint(b"a\0b"),
        AccessPoint(b" padded "),
        AccessPoint(b"<b>&lt;</b>"),
    ), rx_rssi=-77),
    Radio("hw_mode=a;ieee80211n=1;ieee80211ac=1", 116, 20, "a n ac", (AccessPoint(b"ac 20 MHz"),)),
    Radio("hw_mode=a;ieee80211n=1;ieee80211ac=1;ht_capab=[HT40+];vht_oper_chwidth=1;vht_oper_centr_freq_seg0_idx=42",
          36, 80, "a n ac", (AccessPoint(b"ac 80 MHz"),)),
    Radio("hw_mode=a;ieee80211n=1;ieee80211ac=1;ht_capab=[HT40+];vht_capab=[VHT160];vht_oper_chwidth=2;"
          "vht_oper_centr_freq_seg0_idx=50", 36, 160, "a n ac", (AccessPoint(b"ac 160 MHz"),)),
    Radio("hw_mode=a;ieee80211n=1;ieee80211ac=1;ieee80211ax=1;ht_capab=[HT40+];vht_oper_chwidth=1;"
          "vht_oper_centr_freq_seg0_idx=155;he_oper_chwidth=1;he_oper_centr_freq_seg0_idx=155",
          149, 80, "a n ac ax", (AccessPoint(b"ax 80 MHz"),)),
    Radio("hw_mode=a;ieee80211n=1", 165, 20, "a n", (AccessPoint(b"slow beacons"),), beacon_interval=300),
    Radio("hw_mode=a;ieee80211n=1", 161, 20, "a n", (AccessPoint(b"leaving"),), role="leaving"),
    Radio("hw_mode=a;ieee80211n=1", 157, 20, "a n", (AccessPoint(b"joined"), AccessPoint(b"open")), role="joined"),
)


def bssid(radio_number: int, place: int) -> str:
    """The address of a radio's access point; radios count from 1, access points from 0."""
    return f"02:00:00:00:{radio_number:02x}:{place:02x}"


def every_access_point():
    """Yields (bssid, radio, access point)."""
    for number, radio in enumerate(RADIOS, 1):
        for place, access_point in enumerate(radio.access_points):
            yield bssid(number, place), radio, access_point


def radio_of_role(role: str) -> tuple[int, Radio]:
    return next((number, radio) for number, radio in enumerate(RADIOS, 1) if radio.role == role)


def configuration(number: int, radio: Radio) -> str:
    lines = [f"interface=wlan{number}", "driver=nl80211", "ctrl_interface=/run/hostapd",
             f"channel={radio.channel}", f"beacon_int={radio.beacon_interval}", *radio.settings.split(";")]
    for place, access_point in enumerate(radio.access_points):
        if place > 0:
            lines += [f"bss=wlan{number}b{place}", f"bssid={bssid(number, place)}"]
        lines += [f"ssid2={access_point.ssid.hex()}", *access_point.settings.split(";")]
    return "\n".join(lines) + "\n"


def guest_plan() -> str:
    rssi = " ".join(f"[{number}]={radio.rx_rssi}" for number, radio in enumerate(RADIOS, 1))
    bssids = " ".join(address for address, _, access_point in every_access_point() if not access_point.hidden)
    leaving, _ = radio_of_role("leaving")
    _, joined = radio_of_role("joined")
    return (f"RADIOS={len(RADIOS)}\nRX_RSSI=({rssi})\nCOUNTRY={COUNTRY}\nBSSIDS='{bssids}'\n"
            f"LEAVING_INTERFACE=wlan{leaving}\nJOINED_SSID='{joined.access_points[0].ssid.decode()}'\n")


def main(folder: Path) -> None:
    for number, radio in enumerate(RADIOS, 1):
        (folder / f"wlan{number}.conf").write_text(configuration(number, radio))
    (folder / "plan.sh").write_text(guest_plan())
    (folder / "eap.users").write_text('* PEAP\n"alice" MSCHAPV2 "wonderland" [2]\n')


if __name__ == "__main__":
    main(Path(sys.argv[1]))
