"""The access points of each scenario.

Run with a scenario's name and a folder, writes there what the guest needs to make them. To add an access point, add a
line; to add a radio (another channel or width), add a Radio.
"""

import sys
from pathlib import Path

import crowd
from access_points import AccessPoint, Plan, Radio
from every_kind import SCAN
from settings import EAP, MAY_PROTECT, MIXED, PASSWORD, PROTECTED, PSK, WPA2

# Few, so that each is quick to answer.
JOIN = Plan((
    Radio("hw_mode=g;ieee80211n=1", 1, 20, "b g n", (
        AccessPoint(b"wpa2", f"{WPA2}WPA-PSK;{PSK}"),
        AccessPoint(b"wpa wpa2", f"{MIXED}WPA-PSK;{PSK}"),
        AccessPoint(b"wpa3", f"{PROTECTED}SAE;{PSK}"),
        AccessPoint(b"wpa2 wpa3", f"{MAY_PROTECT}WPA-PSK SAE;{PSK}"),
        AccessPoint(b"owe", f"{PROTECTED}OWE"),
        AccessPoint(b"open"),
        AccessPoint(b"wep", 'auth_algs=1;wep_default_key=0;wep_key0="abcde"'),
        AccessPoint(b"eap", f"{WPA2}WPA-EAP;{EAP}"),
    )),
    Radio("hw_mode=g;ieee80211n=1", 6, 20, "b g n", (
        AccessPoint(bytes.fromhex("68696464656e20fffe"),
                    f"ignore_broadcast_ssid=1;{WPA2}WPA-PSK;{PSK}", hidden=True),
    ), role="hidden"),
    Radio("hw_mode=g;ieee80211n=1", 11, 20, "b g n", (
        AccessPoint(b"leaving", f"{WPA2}WPA-PSK;{PSK}"),
    ), role="leaving"),
))

WINDOW = Plan((
    Radio("hw_mode=a;ieee80211n=1;ieee80211ac=1;ht_capab=[HT40+];vht_oper_chwidth=1;vht_oper_centr_freq_seg0_idx=42",
          36, 80, "a n ac", (
              AccessPoint(b"Home & <b>Garden</b>", f"{WPA2}WPA-PSK;{PSK}"),
          ), rx_rssi=-70, role="chosen"),
    Radio("hw_mode=g;ieee80211n=1", 6, 20, "b g n", (AccessPoint(b"Library"),), rx_rssi=-82),
    Radio("hw_mode=g;ieee80211n=1", 11, 20, "b g n", (
        AccessPoint(b"Workshop", f"{PROTECTED}SAE;{PSK}"),
    ), rx_rssi=-55),
))


def plain(channel: int, names: tuple[str, ...], settings: str = "", **more) -> Radio:
    mode, letters = ("a", "a n") if channel > 14 else ("g", "b g n")
    return Radio(f"hw_mode={mode};ieee80211n=1", channel, 20, letters,
                 tuple(AccessPoint(f"{channel} {name}".encode(), settings) for name in names), **more)


# Several radios, so that some can be away at any time, and several access points each.
SOAK = Plan(tuple(plain(channel, ("Library", "Workshop", "Café", "Office", "Guests"), rx_rssi=-40 - channel // 4)
                  for channel in (1, 6, 11, 36, 48, 149)))

FAULTS = Plan((
    plain(1, ("Library",), f"{WPA2}WPA-PSK;{PSK}", role="joined"),
    plain(6, ("Workshop", "Café")),
    plain(36, ("Office", "Guests"), rx_rssi=-80),
))

# Fault: an expression for the line that the log has to have while it lasts, or at its end.
FAULT_WORDS = {
    "manager": "^Scan failed: .*NetworkManager is not running",
    "supplicant": "^Scan failed: The Wi-Fi interface wlan0 is not available",
    "radio": "^No WiFi interface found",
    "bus": "^Scan failed: .*NetworkManager is not running",
    "hang": "^Scan failed: NetworkManager does not answer",
    "endless": "^Scan failed: The Wi-Fi scan did not end in time",
}

PLANS = {"scan": SCAN, "join": JOIN, "window": WINDOW, "desktop": JOIN, "crowd": Plan((), country="GT"), "soak": SOAK,
         "faults": FAULTS, "peers": Plan((), country="GT")}
CROWDS = {"crowd": (crowd.COUNT,), "faults": (crowd.COUNT,), "peers": (60, 500)}


def main(scenario: str, folder: Path) -> None:
    sizes = CROWDS.get(scenario, ())
    for size in sizes:
        crowd.make(folder / f"crowd-{size}", size)
    words = " ".join(f"[{fault}]='{words}'" for fault, words in FAULT_WORDS.items())
    PLANS[scenario].write(folder, f"PASSWORD='{PASSWORD}'", f"CROWD='{' '.join(map(str, sizes))}'",
                          f"declare -A FAULT_WORDS=({words})")
    (folder / "eap.users").write_text('* PEAP\n"alice" MSCHAPV2 "wonderland" [2]\n')


if __name__ == "__main__":
    main(sys.argv[1], Path(sys.argv[2]))
