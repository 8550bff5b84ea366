"""Every kind of access point that hostapd and the simulated radios can make, and some that only their bytes can."""

from access_points import AccessPoint, Plan, Radio
from elements import country, eht, he, rsn, vht
from settings import EAP, MAY_PROTECT, MIXED, PROTECTED, PSK, ROAMING, WPA, WPA2

HT = "ieee80211n=1"
ABOVE = HT + ";ht_capab=[HT40+]"  # where the second half of 40 MHz lies
BELOW = HT + ";ht_capab=[HT40-]"
AC, AX = "ieee80211ac=1", "ieee80211ax=1"

TWIN = "02:00:00:00:f0:00"

# First, as hostapd gives up 40 MHz where it hears other access points in them. It has no 802.11ax that wide here.
WIDE_24 = Radio(f"hw_mode=g;{ABOVE}", 1, 40, "b g n", (
    AccessPoint(b"n 40 MHz", f"{WPA2}WPA-PSK;{PSK}", "WPA2, Personal"),
    AccessPoint(b"ax 40 MHz, 2.4 GHz", elements=he(), phy_modes="b g n ax"),
))


def centred(width_code: int, channel: int, *names: str) -> str:
    return ";".join(f"{name}_oper_chwidth={width_code};{name}_oper_centr_freq_seg0_idx={channel}" for name in names)


MODES_5 = (
    Radio("hw_mode=a;country_code=GT;ieee80211d=1", 140, 20, "a", (AccessPoint(b"a only"),), country="GT"),
    Radio(f"hw_mode=a;{HT}", 165, 20, "a n", (AccessPoint(b"slow beacons"),), beacon_interval=1000),
    Radio(f"hw_mode=a;{HT}", 112, 20, "a n", (AccessPoint(b"quick beacons"),), beacon_interval=50),
    Radio(f"hw_mode=a;{BELOW}", 64, 40, "a n", (AccessPoint(b"n 40 MHz below"),)),
    Radio(f"hw_mode=a;{HT};{AC}", 116, 20, "a n ac", (AccessPoint(b"ac 20 MHz"),)),
    Radio(f"hw_mode=a;{ABOVE};{AC}", 132, 40, "a n ac", (AccessPoint(b"ac 40 MHz"),)),
    Radio(f"hw_mode=a;{ABOVE};{AC};{centred(1, 42, 'vht')}", 36, 80, "a n ac", (AccessPoint(b"ac 80 MHz"),)),
    Radio(f"hw_mode=a;{ABOVE};{AC};vht_capab=[VHT160];{centred(2, 114, 'vht')}", 100, 160, "a n ac",
          (AccessPoint(b"ac 160 MHz"),)),
    Radio(f"hw_mode=a;{ABOVE};{AC};vht_capab=[VHT160-80PLUS80];{centred(3, 42, 'vht')};"
          "vht_oper_centr_freq_seg1_idx=155", 36, 160, "a n ac", (AccessPoint(b"ac 80+80 MHz"),)),
    Radio(f"hw_mode=a;{HT};{AC};{AX}", 48, 20, "a n ac ax", (AccessPoint(b"ax 20 MHz"),)),
    Radio(f"hw_mode=a;{BELOW};{AC};{AX};{centred(1, 58, 'vht', 'he')}", 64, 80, "a n ac ax", (
        AccessPoint(b"ax 80 MHz"),
        AccessPoint(b"be 80 MHz", elements=eht(2, 58)),
        AccessPoint(b"be 320 MHz", elements=eht(4, 58, 63), width=0),
        AccessPoint(b"be, width left out", elements=eht(None)),
    )),
    Radio(f"hw_mode=a;{ABOVE};{AC};{AX};vht_capab=[VHT160];{centred(2, 114, 'vht', 'he')}", 100, 160, "a n ac ax",
          (AccessPoint(b"ax 160 MHz"),)),
    # The widths as they were told before 802.11-2016, and 160 MHz as it has been since.
    Radio(f"hw_mode=a;{ABOVE}", 149, 40, "a n", (
        AccessPoint(b"n 40 MHz above"),
        AccessPoint(b"ac, width of n", elements=vht(0, 0, 0), phy_modes="a n ac"),
        AccessPoint(b"ac 160 MHz of old", elements=vht(2, 163, 0), width=160, phy_modes="a n ac"),
        AccessPoint(b"ac 80+80 MHz of old", elements=vht(3, 155, 42), width=160, phy_modes="a n ac"),
        AccessPoint(b"ac 160 MHz of now", elements=vht(1, 155, 163), width=160, phy_modes="a n ac"),
        AccessPoint(b"Germany", elements=country(b"DE"), country="DE"),
        AccessPoint(b"Japan, out of doors", elements=country(b"JP", b"O"), country="JP"),
        AccessPoint(b"no country", elements=country(b"00")),
    ), rx_rssi=-66),
)

SAE_6 = f"{PROTECTED}SAE;sae_pwe=1;{PSK}"
MODES_6 = (
    Radio(f"hw_mode=a;{AX};op_class=131", 5, 20, "ax", (
        AccessPoint(b"6 GHz, 20 MHz", SAE_6, "Personal, WPA3"),
        AccessPoint(b"6 GHz, owe", f"{PROTECTED}OWE;sae_pwe=1"),
    ), rx_rssi=-58),
    Radio(f"hw_mode=a;{AX};op_class=132;{centred(0, 35, 'he')}", 33, 40, "ax",
          (AccessPoint(b"6 GHz, 40 MHz", SAE_6, "Personal, WPA3"),)),
    Radio(f"hw_mode=a;{AX};op_class=133;{centred(1, 103, 'he')}", 101, 80, "ax",
          (AccessPoint(b"6 GHz, 80 MHz", SAE_6, "Personal, WPA3"),)),
    Radio(f"hw_mode=a;{AX};op_class=134;{centred(2, 47, 'he')}", 37, 160, "ax",
          (AccessPoint(b"6 GHz, 160 MHz", SAE_6, "Personal, WPA3"),)),
)

MODES_24 = (
    Radio("hw_mode=b", 13, 20, "b", (AccessPoint(b"b only"),), rx_rssi=-100),
    Radio("hw_mode=g;supported_rates=60 90 120 180 240 360 480 540;basic_rates=60 120 240", 4, 20, "g",
          (AccessPoint(b"g only"),)),
    Radio(f"hw_mode=g;{HT};{AX}", 12, 20, "b g n ax", (
        AccessPoint(b"ax 20 MHz, 2.4 GHz"),
        AccessPoint(b"be 20 MHz, 2.4 GHz", elements=eht(0, 12)),
    )),
)

WEP = "wep_default_key=0;wep_key0="
NO_RSN = Radio("hw_mode=g", 10, 20, "b g", (
    AccessPoint(b"open"),
    AccessPoint(b"wep, open", f'auth_algs=1;{WEP}"abcde"', "WEP"),
    AccessPoint(b"wep, shared", f'auth_algs=2;{WEP}"abcdefghijklm"', "WEP"),
    AccessPoint(b"wep, both", f'auth_algs=3;{WEP}"abcde"', "WEP"),
    AccessPoint(b"wpa", f"{WPA}WPA-PSK;{PSK}", "WPA, Personal"),
    AccessPoint(b"wpa psk and eap", f"{WPA}WPA-PSK WPA-EAP;{PSK};{EAP}", "WPA, Enterprise, Personal"),
    AccessPoint(b"wpa eap", f"{WPA}WPA-EAP;{EAP}", "Enterprise"),
    AccessPoint(b"no length", "ignore_broadcast_ssid=1", hidden=True),
    AccessPoint(b"zero bytes", "ignore_broadcast_ssid=2", hidden=True),
    AccessPoint(b"Unknown", hidden=True),
    AccessPoint(b"unknown"),
    AccessPoint(b"Unknown "),
), rx_rssi=-72)

PERSONAL = Radio(f"hw_mode=g;{HT}", 11, 20, "b g n", (
    AccessPoint(b"wpa2", f"{WPA2}WPA-PSK;{PSK}", "WPA2, Personal"),
    AccessPoint(b"wpa2 sha256", f"{PROTECTED}WPA-PSK-SHA256;{PSK}", "WPA2, Personal"),
    AccessPoint(b"wpa2 ft", f"{WPA2}FT-PSK;{PSK};{ROAMING}", "WPA2, Personal"),
    AccessPoint(b"wpa2 of all", f"{MAY_PROTECT}WPA-PSK WPA-PSK-SHA256 FT-PSK;{PSK};{ROAMING}", "WPA2, Personal"),
    AccessPoint(b"wpa wpa2", f"{MIXED}WPA-PSK;{PSK}", "WPA, WPA Mixed, WPA2, Personal"),
    AccessPoint(b"wpa3", f"{PROTECTED}SAE;{PSK}", "Personal, WPA3"),
    AccessPoint(b"wpa3 h2e", f"{PROTECTED}SAE;sae_pwe=1;{PSK}", "Personal, WPA3"),
    AccessPoint(b"wpa3 ft", f"{PROTECTED}SAE FT-SAE;{PSK};{ROAMING}", "Personal, WPA3"),
    AccessPoint(b"wpa2 wpa3", f"{MAY_PROTECT}WPA-PSK SAE;{PSK}", "WPA2, Personal, WPA3"),
    AccessPoint(b"owe", f"{PROTECTED}OWE"),
    AccessPoint(b"owe, open side", 'owe_transition_bssid=02:00:00:00:01:00;owe_transition_ssid="n 40 MHz"'),
    AccessPoint(b"dpp", f"{PROTECTED}DPP"),
    AccessPoint(b"wps", f"{WPA2}WPA-PSK;{PSK};wps_state=2;eap_server=1", "WPA2, Personal"),
), rx_rssi=-85)

ENTERPRISE = Radio(f"hw_mode=a;{HT}", 161, 20, "a n", (
    AccessPoint(b"eap", f"{WPA2}WPA-EAP;{EAP}", "Enterprise"),
    AccessPoint(b"eap wpa wpa2", f"{MIXED}WPA-EAP;{EAP}", "Enterprise"),
    AccessPoint(b"eap and psk", f"{WPA2}WPA-EAP WPA-PSK;{EAP};{PSK}", "WPA2, Enterprise, Personal"),
    AccessPoint(b"eap, frames protected", f"{PROTECTED}WPA-EAP-SHA256;{EAP}", "Enterprise"),
    AccessPoint(b"eap of two generations", f"{MAY_PROTECT}WPA-EAP WPA-EAP-SHA256;{EAP}", "Enterprise"),
    AccessPoint(b"eap ft", f"{WPA2}FT-EAP;{EAP};{ROAMING}", "Enterprise"),
    AccessPoint(b"eap suite b", f"ieee80211w=2;wpa=2;rsn_pairwise=GCMP;group_mgmt_cipher=BIP-GMAC-128;"
                f"wpa_key_mgmt=WPA-EAP-SUITE-B;{EAP}", "Enterprise"),
    AccessPoint(b"eap 192", f"ieee80211w=2;wpa=2;rsn_pairwise=GCMP-256;group_mgmt_cipher=BIP-GMAC-256;"
                f"wpa_key_mgmt=WPA-EAP-SUITE-B-192;{EAP}", "Enterprise"),
    AccessPoint(b"eap fils", f"{PROTECTED}FILS-SHA256 FILS-SHA384;{EAP}", "Enterprise"),
    AccessPoint(b"hotspot", f"{WPA2}WPA-EAP;{EAP};interworking=1;internet=1;access_network_type=2;hs20=1",
                "Enterprise"),
), rx_rssi=-79)

NAMES = Radio(f"hw_mode=a;{HT}", 44, 20, "a n", tuple(map(AccessPoint, (
    "\U0001f4f6 Caf\u00e9 \u2615".encode(),
    bytes.fromhex("fffe80c328a0"),  # no UTF-8
    b"Caf\xe9",  # Latin-1
    b"123456789ABCDEFGHIJKLMNOPQRSTUVW",
    bytes(range(0xe0, 0x100)),
    b"Say \"hi\", 'ok' \\ done",
    b"line1\nline2\r\tt",
    b"a\0b",
    b"\0ends\0",
    b" padded ",
    b" ",
    b"<b>&lt;</b><img src=x>",
    "\u05e9\u05dc\u05d5\u05dd \u202eabc".encode(),  # right to left, and an override
    "\ufeffmarked".encode(),
    b'=1+1,"x',
    b"open",  # as another one is called
))), rx_rssi=-77)

# One frame for four access points.
CARRYING = Radio(f"hw_mode=g;{HT}", 8, 20, "b g n", (
    AccessPoint(b"carrying"),
    AccessPoint(b"carried", carried=(0x0401, b"")),
    AccessPoint(b"carried wpa2", carried=(0x0411, rsn([2])), security="WPA2, Personal"),
    AccessPoint("getragen \u2615".encode(), carried=(0x0401, b"")),
), rx_rssi=-63)

# One address on two channels.
TWINS = (
    Radio("hw_mode=g", 3, 20, "b g", (AccessPoint(b"twin"),), address=TWIN, rx_rssi=-74),
    Radio(f"hw_mode=a;{HT}", 124, 20, "a n", (AccessPoint(b"twin", f"{WPA2}WPA-PSK;{PSK}", "WPA2, Personal"),),
          address=TWIN, rx_rssi=-64),
)

CHANGING = (
    Radio(f"hw_mode=g;{HT}", 6, 20, "b g n", (AccessPoint(b"moving"),), rx_rssi=-68, becomes=Radio(
        f"hw_mode=a;{HT}", 157, 20, "a n", (AccessPoint(b"moving"),), rx_rssi=-68)),
    Radio(f"hw_mode=g;{HT}", 7, 20, "b g n", (AccessPoint(b"securing", "wpa=0"),), rx_rssi=-69, becomes=Radio(
        f"hw_mode=g;{HT}", 7, 20, "b g n", (
            AccessPoint(b"securing", f"{WPA2}WPA-PSK;{PSK}", "WPA2, Personal"),), rx_rssi=-69)),
)

AD_HOC = (
    Radio("", 2, 20, "b g n", (AccessPoint(b"adhoc"),), cell="2417 HT20", rx_rssi=-62),
    Radio("key d:0:abcde", 9, 20, "b g", (AccessPoint(b"adhoc-wep", security="WEP"),), cell="2452", rx_rssi=-67),
    Radio("", 128, 20, "a", (AccessPoint(b"adhoc-slow"),), cell="5640", beacon_interval=400, rx_rssi=-71),
)

SCAN = Plan((
    WIDE_24, *MODES_5, *MODES_6, *MODES_24,
    NO_RSN, PERSONAL, ENTERPRISE, NAMES, CARRYING, *TWINS, *CHANGING, *AD_HOC,
    Radio(f"hw_mode=a;{HT}", 153, 20, "a n", (AccessPoint(b"leaving"),), role="leaving"),
    Radio(f"hw_mode=a;{HT}", 56, 20, "a n", (AccessPoint(b"joined"), AccessPoint(b"open")), role="joined"),
    Radio(f"hw_mode=g;{HT}", 5, 20, "b g n", (
        AccessPoint(b"asked by name", "ignore_broadcast_ssid=1", hidden=True),), role="hidden"),
), country="GT")
