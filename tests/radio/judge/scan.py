"""Judges what scenarios/scan.sh has left."""

import json
import re
from pathlib import Path

import air
import iw_dump
from access_points import Radio, bssid_of
from compare import (NOISE, OF_FRAMES, OF_RECEIVER, Opinion, Rule, compare_lists, print_differences, print_list,
                     print_opinions)
from every_kind import SCAN
from scans import TOLERANCE, Scans
from steps import Faults, Step, judge, unix_time

MISSED = -100  # dBm; a sample of a cycle in which the access point was not heard
NO_COUNTRY = "00"

OF_ANY = (
    Rule("countryCode", lambda ours, theirs, _: ours is None and theirs == NO_COUNTRY,
         "a country element whose code is no two letters names no country"),
)
OF_TSHARK = OF_ANY + (
    Rule("channelWidth", lambda ours, theirs, heard: heard.eht, "tshark does not decode the EHT operation element"),
)

# Step: exit status, and what its message has to speak of.
REFUSALS = {
    "no-interface": (3, r"interface"),
    "no-manager": (1, r"NetworkManager"),
    "denied": (1, r"permi|allow|authori[sz]"),
    "unanswered": (1, r"permi|allow|authori[sz]"),
    "radio-off": (1, r"radio"),
}


def judge_refusals(results: Path, faults: Faults) -> None:
    messages = {}
    for name, (status, pattern) in REFUSALS.items():
        step = Step(results, name)
        print(step)
        faults.expect(step.status == status, f"{name}: exit status {step.status} instead of {status}")
        faults.expect(bool(re.search(pattern, step.message, re.I)), f"{name}: the message does not say why")
        messages[name] = step.message
    causes = {messages[name] for name in ("no-interface", "no-manager", "denied", "radio-off")}
    faults.expect(len(causes) == 4, "two different causes have the same message")


def judge_making(entries: list[iw_dump.Entry], faults: Faults) -> None:
    """Whether every access point is on the air as the table has it: the bed itself, not the program."""
    for bssid, radio, made in SCAN.changed().every_access_point():
        found = [entry for entry in entries if (entry.bssid, entry.channel) == (bssid, radio.channel)]
        entry = max(found, key=lambda entry: (entry.ssid == made.ssid, entry.heard), default=None)
        if not faults.expect(entry is not None, f"{bssid} {made.ssid!r} is not on the air"):
            continue
        width = radio.width if made.width is None else made.width
        modes = [f"802.11{mode}" for mode in (made.phy_modes or radio.phy_modes).split()]
        wanted = (width, made.security, modes, radio.beacon_interval, radio.cell is not None)
        seen = (entry.width, entry.security, entry.phy_modes, entry.beacon_interval, entry.ibss)
        faults.expect(seen == wanted, f"{bssid} {made.ssid!r} is on the air as {seen}, made as {wanted}")
        country = made.country or radio.country
        faults.expect(entry.country in (country, NO_COUNTRY), f"{bssid}: country {entry.country}, made as {country}")
        faults.expect(made.hidden or entry.ssid == made.ssid, f"{bssid}: {entry.ssid!r} for {made.ssid!r}")


def judge_list(step: Step, scans: Scans, opinion: Opinion, faults: Faults) -> tuple[list[dict], dict]:
    """The list of one step against iw's; returns its records, and iw's entries by address."""
    print(f"--- {step.name}")
    if not faults.ended_well(step):
        return [], {}
    records = step.document("list.json")["networks"]
    since = scans.first_ending_after(step.begun).started - scans.booted
    listed = scans.listed_between(step.begun, step.ended) + step.listed
    told = {record["bssid"]: scans.last_ended_before(unix_time(record)).finished - scans.booted for record in records}
    # Of one address on two channels the newest counts; by the time that iw is asked, that may be the other again.
    entries = iw_dump.sightings(listed, since - TOLERANCE) | iw_dump.sightings(
        [entry for entry in listed if entry.heard < told.get(entry.bssid, 0) + TOLERANCE], since - TOLERANCE)
    print_list(records, entries, compare_lists(opinion, records, entries, since))
    for record in records:
        faults.expect(step.begun <= unix_time(record) <= step.ended, f"{record['bssid']}: {record['timestamp']}")
    return records, entries


def judge_details(step: Step, records: list[dict], scans: Scans, faults: Faults) -> None:
    """Each access point's details: the list's record, with a history that fits it and the kernel's scans."""
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
        last = (heard[-1]["timestamp"], heard[-1]["rssi"]) if heard else None
        faults.expect(last == (record["timestamp"], record["rssi"]), f"{bssid}: last heard when?")
        if bssid == SCAN.bssid_of("leaving"):
            gone = signals.index(MISSED) if MISSED in signals else len(signals)
            faults.expect(0 < gone < len(signals) and set(signals[gone:]) == {MISSED},
                          f"{bssid} was switched off between two cycles, its history is {signals}")
        checked += judge_samples(bssid, history, scans, faults)
        samples += len(history)
    print(f"{checked} of {samples} samples checked against the kernel's scans")
    faults.expect(checked > samples / 2, "too few samples could be checked")


def judge_samples(bssid: str, history: list[dict], scans: Scans, faults: Faults) -> int:
    """A sample has the signal that iw lists for the cycle's scan if, and only if, iw too says that this scan has heard
    the access point; one heard so shortly before that a cycle which began within the scan may count it is passed over.
    An emulated machine that is short of time does miss some. Returns how many samples iw could tell of."""
    checked = 0
    for sample in history:
        scan = scans.last_ended_before(unix_time(sample))
        silent = scan.was_silent(bssid)
        if silent is None or (silent and sample["rssi"] != MISSED and scan.may_count(bssid, sample is history[0])):
            continue
        checked += 1
        expected = MISSED if silent else round(scan.entries[bssid].signal)
        faults.expect(sample["rssi"] == expected, f"{bssid}: {sample}, but iw says {expected} dBm")
        if silent:
            print(f"note: {bssid} was not heard at {sample['timestamp']}, says iw too")
    return checked


def judge_survey(results: Path, scans: Scans, opinions: list[Opinion], faults: Faults) -> None:
    step = Step(results, "survey")
    records, entries = judge_list(step, scans, opinions[0], faults)
    judge_making(scans.listed_between(step.begun, step.ended) + step.listed, faults)
    listed = {record["bssid"] for record in records}
    named = {bssid for bssid, _, made in SCAN.every_access_point() if not made.hidden}
    faults.expect(listed == named, f"listed and made access points differ: {sorted(listed ^ named)}")
    judge_details(step, records, scans, faults)
    judge_frames(results, records, entries, opinions)


def judge_frames(results: Path, records: list[dict], entries: dict, opinions: list[Opinion]) -> None:
    """The same records against the frames that were on the air just then."""
    frames = air.decode(results / "air.pcap")
    if frames is None:
        print("tshark is not installed, and is not asked")
        return
    opinions.append(Opinion("tshark", OF_TSHARK))
    differences, missing = [], []
    for record in records:
        entry = entries.get(record["bssid"])
        frame = entry and frames.get((entry.bssid, entry.frequency))
        if frame and frame.is_named:
            differences += opinions[-1].compare(record, frame, OF_FRAMES)
        else:
            missing.append(record["ssid"])
    print(f"--- {len(records) - len(missing)} records against tshark; without a frame of their own in the capture: "
          f"{json.dumps(missing)}")
    print_differences(differences)


def judge_watch(results: Path, scans: Scans, opinion: Opinion, faults: Faults) -> None:
    """Every cycle's readings against what iw listed at the end of that cycle's scan, while access points change."""
    step = Step(results, "watch")
    print(f"--- {step.name}")
    lines = [json.loads(line) for line in step.text("stdout").splitlines()]
    faults.expect({line["cycle"] for line in lines} == set(range(1, 7)), f"{step.name}: not six cycles")
    scan_of = {line["cycle"]: scans.last_ended_before(unix_time(line)) for line in lines if line["heard"]}
    told: dict[str, dict] = {}
    differences, early = [], []
    for line in lines:
        bssid, scan = line["bssid"], scan_of[line["cycle"]]
        silent = scan.was_silent(bssid)
        if silent is False and not scan.entries[bssid].is_named:
            silent = True  # it is asked by name in some scans only
        if silent and line["heard"] and scan.may_count(bssid, line["cycle"] == 1):
            early.append(f"{bssid} in cycle {line['cycle']}")
        else:
            faults.expect(silent in (None, not line["heard"]), f"{bssid} in cycle {line['cycle']}: iw says otherwise")
        if line["heard"] and silent is False:
            differences += opinion.compare(line, scan.entries[bssid], OF_FRAMES | OF_RECEIVER)
        elif not line["heard"]:
            changed = [reading for reading in OF_FRAMES if line[reading] != told[bssid][reading]]
            faults.expect(not changed, f"{bssid} in cycle {line['cycle']}: not heard, yet changed: {changed}")
        told[bssid] = line
    print(f"{len(lines)} lines; of them heard before a scan that the cycle began within: {early}")
    print_differences(differences)
    faults.expect(SCAN.bssid_of("hidden") in told, f"{step.name}: a hidden one was asked by name, yet not told of")
    for number, radio in enumerate(SCAN.radios, 1):
        if radio.becomes:
            judge_change(bssid_of(number, 0), radio, lines, faults)


def judge_change(bssid: str, radio: Radio, lines: list[dict], faults: Faults) -> None:
    """The first cycle has the access point as the survey had left it, the last one as it was made."""
    readings = [(line["channel"], line["security"]) for line in lines if line["bssid"] == bssid]
    states = [(state.channel, state.access_points[0].security) for state in (radio.becomes, radio)]
    print(f"{bssid}: {readings}")
    faults.expect(readings[:1] + readings[-1:] == states, f"{bssid} went from {states[0]} to {states[1]}: {readings}")


def judge_joined(results: Path, scans: Scans, opinion: Opinion, faults: Faults) -> None:
    step = Step(results, "joined")
    records, _ = judge_list(step, scans, opinion, faults)
    current = [record["bssid"] for record in records if record["isCurrentNetwork"]]
    faults.expect(current == [SCAN.bssid_of("joined")], f"marked as current: {current}")
    started = scans.first_ending_after(step.begun).started
    for record in records:
        entry = step.entries.get(record["bssid"])
        stale = entry is not None and scans.booted + entry.heard < started - TOLERANCE
        faults.expect(not stale, f"{record['bssid']} was not heard in this scan, yet it is listed")


def main(results: Path, faults: Faults) -> None:
    judge_refusals(results, faults)
    scans = Scans(results)
    opinions = [Opinion("iw", OF_ANY)]
    judge_survey(results, scans, opinions, faults)
    judge_watch(results, scans, opinions[0], faults)
    judge_joined(results, scans, opinions[0], faults)
    print_opinions(opinions, faults)


if __name__ == "__main__":
    judge(main)
