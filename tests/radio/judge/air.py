"""What tshark reads in the frames that were captured on the air: a third decoder, which knows nothing of the kernel's
list. Where it is not installed it is not asked."""

import shutil
import subprocess
from pathlib import Path

from heard import Heard

RSN, WPA = 0x000FAC, 0x0050F2  # organisations
# Families of key management by suite number: the WPA element's two are among the RSN element's.
SUITES = {"PSK": {2, 4, 6, 19, 20}, "SAE": {8, 9, 24, 25}, "OWE": {18},
          "802.1X": {1, 3, 5, 11, 12, 13, 14, 15, 16, 17, 22, 23}}
HE_CAPABILITIES, EHT_CAPABILITIES = "35", "108"

FIELDS = {
    "bssid": "wlan.bssid",
    "frequency": "radiotap.channel.freq",
    "interval": "wlan.fixed.beacon",
    "privacy": "wlan.fixed.capabilities.privacy",
    "ibss": "wlan.fixed.capabilities.ibss",
    "ssid": "wlan.ssid",
    "country": "wlan.country_info.code",
    "rates": "wlan.supported_rates",
    "more_rates": "wlan.extended_supported_rates",
    "rsn": "wlan.rsn.version",
    "rsn_suites": "wlan.rsn.akms",
    "wpa": "wlan.wfa.ie.wpa.version",
    "wpa_suites": "wlan.wfa.ie.wpa.akms",
    "ht": "wlan.ht.capabilities",
    "ht_second": "wlan.ht.info.secchanoffset",
    "ht_width": "wlan.ht.info.chanwidth",
    "vht": "wlan.vht.capabilities",
    "vht_width": "wlan.vht.op.channelwidth",
    "vht_segment1": "wlan.vht.op.channelcenter1",
    "extensions": "wlan.ext_tag.number",
    "ghz6_width": "wlan.ext_tag.he_operation.6ghz.control.channel_width",
    "carried": "wlan.multiple_bssid",
}


def numbers(text: str) -> list[int]:
    return [int(number, 0) for number in text.split(",") if number]


def families(element: str, suites: str, organisation: int) -> set[str] | None:
    if not element:
        return None
    known = {suite & 0xFF for suite in numbers(suites) if suite >> 8 == organisation}
    return {family for family, members in SUITES.items() if members & known}


def is_set(flag: str) -> bool:
    return flag in ("1", "True")


def heard(row: dict[str, str]) -> Heard:
    rates = {(rate & 0x7F) / 2 for rate in numbers(row["rates"]) + numbers(row["more_rates"])}
    return Heard(
        row["bssid"], int(row["frequency"]), int(row["interval"], 0), is_set(row["privacy"]), is_set(row["ibss"]),
        bytes.fromhex(row["ssid"].split(",")[0].replace("<MISSING>", "")), row["country"].split(",")[0] or None, rates,
        families(row["rsn"], row["rsn_suites"], RSN), families(row["wpa"], row["wpa_suites"], WPA),
        bool(row["ht"]), bool(row["vht"]), HE_CAPABILITIES in row["extensions"].split(","),
        EHT_CAPABILITIES in row["extensions"].split(","),
        row["ht_second"] in ("0x01", "0x03") and is_set(row["ht_width"]),
        (first(row["vht_width"]), first(row["vht_segment1"])),
        first(row["ghz6_width"]) if row["ghz6_width"] else None)


def first(text: str) -> int:
    return (numbers(text) or [0])[0]


def rows(capture: Path) -> list[dict[str, str]]:
    command = ["tshark", "-n", "-r", str(capture), "-T", "fields", "-E", "separator=/t", "-E", "occurrence=a"]
    for name in FIELDS.values():
        command += ["-e", name]
    output = subprocess.run(command, check=True, capture_output=True, text=True, timeout=120).stdout
    return [dict(zip(FIELDS, line.split("\t"))) for line in output.splitlines()]


def decode(capture: Path) -> dict[tuple[str, int], Heard] | None:
    """By address and frequency; None where there is no tshark."""
    if not shutil.which("tshark"):
        return None
    found: dict[tuple[str, int], Heard] = {}
    for row in rows(capture):
        if row["carried"]:
            continue  # tshark counts what stands in the profiles of a Multiple BSSID element to the frame itself
        frame = heard(row)
        if frame.is_named or (frame.bssid, frame.frequency) not in found:
            found[frame.bssid, frame.frequency] = frame
    return found
