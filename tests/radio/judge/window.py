"""Judges what scenarios/window.sh has left."""

from pathlib import Path

from iw_dump import Entry
from plans import WINDOW
from steps import Faults, Step, judge

# A row of the details pane: what iw's entry says it should be.
PANE = {
    "SSID": lambda entry: entry.ssid_text,
    "BSSID": lambda entry: entry.bssid,
    "Current RSSI": lambda entry: f"{round(entry.signal)} dBm",
    "Channel": lambda entry: f"{entry.channel}",
    "Channel Width": lambda entry: f"{entry.width} MHz",
    "Band": lambda entry: entry.band,
    "Security": lambda entry: entry.security,
    "Beacon Interval": lambda entry: f"{entry.beacon_interval}",
    "PHY Modes": lambda entry: ", ".join(entry.phy_modes),
}

# The same for a column of the exported list.
COLUMNS = {
    "SSID": lambda entry: entry.ssid_text,
    "RSSI (dBm)": lambda entry: f"{round(entry.signal)}",
    "Channel": lambda entry: f"{entry.channel}",
    "Band": lambda entry: entry.band,
    "Security": lambda entry: entry.security,
}


def compare(what: str, shown: dict, expected: dict, entry: Entry, faults: Faults) -> None:
    for field, expectation in expected.items():
        faults.expect(shown.get(field) == expectation(entry),
                      f"{what}: {field} is {shown.get(field)!r}, iw says {expectation(entry)!r}")


def main(results: Path, faults: Faults) -> None:
    step = Step(results, "window")
    print(step.text("stdout"), end="")
    if faults.ended_well(step):
        compare("the pane", step.document("details.json"), PANE, step.entries[WINDOW.bssid_of("chosen")], faults)
        rows = step.rows("list.csv")
        made = {address for address, _, _ in WINDOW.every_access_point()}
        faults.expect({row["BSSID"] for row in rows} == made, f"exported: {rows}")
        for row in rows:
            compare(row["SSID"], row, COLUMNS, step.entries[row["BSSID"]], faults)


if __name__ == "__main__":
    judge(main)
