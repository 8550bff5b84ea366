"""The access points of each scenario.

Run with a scenario's name and a folder, writes there what the guest needs to make them. To add an access point, add a
line; to add a radio (another channel or width), add a Radio.
"""

import sys
from pathlib import Path

from access_points import AccessPoint, Plan, Radio

PASSWORD = "correct horse"
PSK = f"wpa_passphrase={PASSWORD}"
EAP = "ieee8021x=1;eap_server=1;eap_user_file=/out/plan/eap.users"

SCAN = Plan((
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
))

# Few, so that each is quick to answer.
JOIN = Plan((
    Radio("hw_mode=g;ieee80211n=1", 1, 20, "b g n", (
        AccessPoint(b"wpa2", f"wpa=2;wpa_key_mgmt=WPA-PSK;rsn_pairwise=CCMP;{PSK}"),
        AccessPoint(b"wpa wpa2", f"wpa=3;wpa_key_mgmt=WPA-PSK;wpa_pairwise=TKIP CCMP;rsn_pairwise=CCMP;{PSK}"),
        AccessPoint(b"wpa3", f"wpa=2;wpa_key_mgmt=SAE;rsn_pairwise=CCMP;ieee80211w=2;{PSK}"),
        AccessPoint(b"wpa2 wpa3", f"wpa=2;wpa_key_mgmt=WPA-PSK SAE;rsn_pairwise=CCMP;ieee80211w=1;{PSK}"),
        AccessPoint(b"owe", "wpa=2;wpa_key_mgmt=OWE;rsn_pairwise=CCMP;ieee80211w=2"),
        AccessPoint(b"open"),
        AccessPoint(b"wep", 'auth_algs=1;wep_default_key=0;wep_key0="abcde"'),
        AccessPoint(b"eap", f"wpa=2;wpa_key_mgmt=WPA-EAP;rsn_pairwise=CCMP;{EAP}"),
    )),
    Radio("hw_mode=g;ieee80211n=1", 6, 20, "b g n", (
        AccessPoint(bytes.fromhex("68696464656e20fffe"),
                    f"ignore_broadcast_ssid=1;wpa=2;wpa_key_mgmt=WPA-PSK;rsn_pairwise=CCMP;{PSK}", hidden=True),
    ), role="hidden"),
    Radio("hw_mode=g;ieee80211n=1", 11, 20, "b g n", (
        AccessPoint(b"leaving", f"wpa=2;wpa_key_mgmt=WPA-PSK;rsn_pairwise=CCMP;{PSK}"),
    ), role="leaving"),
))

WINDOW = Plan((
    Radio("hw_mode=a;ieee80211n=1;ieee80211ac=1;ht_capab=[HT40+];vht_oper_chwidth=1;vht_oper_centr_freq_seg0_idx=42",
          36, 80, "a n ac", (
              AccessPoint(b"Home & <b>Garden</b>", f"wpa=2;wpa_key_mgmt=WPA-PSK;rsn_pairwise=CCMP;{PSK}"),
          ), rx_rssi=-70, role="chosen"),
    Radio("hw_mode=g;ieee80211n=1", 6, 20, "b g n", (AccessPoint(b"Library"),), rx_rssi=-82),
    Radio("hw_mode=g;ieee80211n=1", 11, 20, "b g n", (
        AccessPoint(b"Workshop", f"wpa=2;wpa_key_mgmt=SAE;rsn_pairwise=CCMP;ieee80211w=2;{PSK}"),
    ), rx_rssi=-55),
))

PLANS = {"scan": SCAN, "join": JOIN, "window": WINDOW, "desktop": JOIN}


def main(scenario: str, folder: Path) -> None:
    PLANS[scenario].write(folder)
    with (folder / "plan.sh").open("a") as plan:
        plan.write(f"PASSWORD='{PASSWORD}'\n")
    (folder / "eap.users").write_text('* PEAP\n"alice" MSCHAPV2 "wonderland" [2]\n')


if __name__ == "__main__":
    main(sys.argv[1], Path(sys.argv[2]))
