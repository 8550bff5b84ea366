"""Judges what scenarios/scan.sh has left: run with the results folder; exit status 1 when there is a fault."""

import re
import sys
from datetime import datetime
from pathlib import Path

import iw_dump
from access_points import bssid as bssid_of
from compare import NOISE, compare, print_table
from plans import SCAN
from scans import Scans
from steps import Faults, Step

MISSED = -100  # dBm; a sample of a cycle in which the access point was not heard
TOLERANCE = 0.1  # seconds between the clocks of events and of iw's list

# Step: exit status, and what its message has to speak of.
REFUSALS = {
    "no-interface": (3, r"interface"),
    "no-manager": (1, r"NetworkManager"),
    "denied": (1, r"permi|allow|authori[sz]"),
    "unanswered": (1, r"permi|allow|authori[sz]"),
    "radio-off": (1, r"radio"),
}


def unix_time(stamped: dict) -> float:
    return datetime.fromisoformat(stamped["timestamp"].replace("Z", "+00:00")).timestamp()


def judge_refusals(results: Path, faults: Faults) -> None:
    messages = {}
    for name, (status, pattern) in REFUSALS.items():
        step = Step(results, name)
        print(f"{name}: {step.status}: {step.message}")
        faults.expect(step.status == status, f"{name}: exit status {step.status} instead of {status}")
        faults.expect(bool(re.search(pattern, step.message, re.I)), f"{name}: the message does not say why")
        messages[name] = step.message
    causes = {messages[name] for name in ("no-interface", "no-manager", "denied", "radio-off")}
    faults.expect(len(causes) == 4, "two different causes have the same message")


def judge_making(entries: dict[str, iw_dump.Entry], faults: Faults) -> None:
    """Whether every access point is on the air as the table has it: the bed itself, not the program."""
    for bssid, radio, made in SCAN.every_access_point():
        if not faults.expect(bssid in entries, f"{bssid} {made.ssid!r} is not on the air"):
            continue
        entry = entries[bssid]
        modes = [f"802.11{mode}" for mode in radio.phy_modes.split()]
        wanted = (radio.channel, radio.width, made.security, modes, radio.country, radio.beacon_interval)
        found = (entry.channel, entry.width, entry.security, entry.phy_modes, entry.country, entry.beacon_interval)
        faults.expect(found == wanted, f"{bssid} {made.ssid!r} is on the air as {found}, made as {wanted}")
        faults.expect(made.hidden or entry.ssid == made.ssid, f"{bssid}: {entry.ssid!r} for {made.ssid!r}")


def judge_list(step: Step, scans: Scans, faults: Faults) -> list[dict]:
    """The list of one step against iw's; returns its records."""
    print(f"--- {step.name}")
    if not faults.expect(step.status == 0, f"{step.name}: exit status {step.status}: {step.message}"):
        return []
    records = step.document("list.json")["networks"]
    differences = compare(records, step.entries, scans.booted, scans.first_ending_after(step.begun).started)
    print_table(records, step.entries, differences)
    unexplained = sum(1 for difference in differences if not difference.reason)
    print(f"{step.name}: {len(records)} records, {len(differences) - unexplained} explained and "
          f"{unexplained} unexplained differences")
    faults.count += unexplained
    for record in records:
        faults.expect(step.begun <= unix_time(record) <= step.ended, f"{record['bssid']}: {record['timestamp']}")
    return records


def judge_details(step: Step, records: list[dict], scans: Scans, faults: Faults) -> None:
    """Each access point's details: the list's record, with a history that fits it and the kernel's scans."""
    leaving, _ = SCAN.radio_of_role("leaving")
    checked = samples = 0
    for record in records:
        bssid = record["bssid"]
        if not faults.expect((step.folder / f"{bssid}.json").exists(), f"{bssid}: no details"):
            continue
        details = step.document(f"{bssid}.json")
        differing = [key for key in record if details.get(key) != record[key]]
        faults.expect(not differing, f"{bssid}: list and details differ in {differing}")
        faults.expect(details["snr"] == record["rssi"] - NOISE, f"{bssid}: snr {details['snr']}")

        history = details["signalHistory"]
        signals = [sample["rssi"] for sample in history]
        faults.expect({sample["noise"] for sample in history} == {NOISE}, f"{bssid}: noise in {history}")
        heard = [sample for sample in history if sample["rssi"] != MISSED]
        faults.expect({sample["rssi"] for sample in heard} == {record["rssi"]}, f"{bssid}: history {signals}")
        faults.expect(bool(heard) and heard[-1]["timestamp"] == record["timestamp"], f"{bssid}: last heard when?")
        if bssid == bssid_of(leaving, 0):
            gone = signals.index(MISSED) if MISSED in signals else len(signals)
            faults.expect(0 < gone < len(signals) and set(signals[gone:]) == {MISSED},
                          f"{bssid} was switched off between two cycles, its history is {signals}")
        checked += judge_samples(bssid, history, scans, faults)
        samples += len(history)
    print(f"{checked} of {samples} samples checked against the kernel's scans")
    faults.expect(checked > samples / 2, "too few samples could be checked")


def judge_samples(bssid: str, history: list[dict], scans: Scans, faults: Faults) -> int:
    """A sample is a sighting if, and only if, iw too says that the cycle's scan has heard the access point. An
    emulated machine that is short of time does miss some. Returns how many samples iw could tell of."""
    checked = 0
    for sample in history:
        scan = scans.last_ended_before(unix_time(sample))
        heard = scan.heard(bssid)
        if heard is None or heard > scan.finished:
            continue  # the kernel has dropped it, or heard it again before iw could ask
        checked += 1
        missed = sample["rssi"] == MISSED
        faults.expect(missed == (heard < scan.started - TOLERANCE),
                      f"{bssid}: {sample}, but iw says heard {heard - scan.started:+.2f} s from the scan's start")
        if missed:
            print(f"note: {bssid} was not heard at {sample['timestamp']}, says iw too")
    return checked


def judge_survey(results: Path, scans: Scans, faults: Faults) -> None:
    step = Step(results, "survey")
    records = judge_list(step, scans, faults)
    judge_making(step.entries, faults)
    listed = {record["bssid"] for record in records}
    named = {bssid for bssid, _, made in SCAN.every_access_point() if not made.hidden}
    faults.expect(listed == named, f"listed and made access points differ: {sorted(listed ^ named)}")
    judge_details(step, records, scans, faults)


def judge_joined(results: Path, scans: Scans, faults: Faults) -> None:
    step = Step(results, "joined")
    records = judge_list(step, scans, faults)
    number, _ = SCAN.radio_of_role("joined")
    current = [record["bssid"] for record in records if record["isCurrentNetwork"]]
    faults.expect(current == [bssid_of(number, 0)], f"marked as current: {current}")
    started = scans.first_ending_after(step.begun).started
    for record in records:
        entry = step.entries.get(record["bssid"])
        stale = entry is not None and scans.booted + entry.heard < started - TOLERANCE
        faults.expect(not stale, f"{record['bssid']} was not heard in this scan, yet it is listed")


def main(results: Path) -> int:
    faults = Faults()
    judge_refusals(results, faults)
    scans = Scans(results)
    judge_survey(results, scans, faults)
    judge_joined(results, scans, faults)
    print(f"{faults.count} faults")
    return 1 if faults.count else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1])))
