"""Judges what scenarios/faults.sh has left."""

import json
import re
from itertools import pairwise
from pathlib import Path

from plans import FAULTS, FAULT_WORDS
from settings import PASSWORD
from steps import Faults, Step, judge, unix_time

RESPONSIVE = 20.0  # seconds in which a window on an emulated machine answers; one that waits for a service takes 25
DAY = 86400.0  # seconds
STOPPED = "stall"  # the fault that stops the programs themselves


class Fault:
    """When one began, was ending, mended and recovered from (seconds since boot), and what the programs said."""

    def __init__(self, name: str, marks: dict[str, list[float]], logs: dict[str, list[str]]) -> None:
        self.name, self._marks, self._logs = name, marks, logs

    def time(self, stage: str) -> float:
        return self._marks[stage][0]

    def said(self, program: str, since: str, until: str) -> list[str]:
        place = 1 + list(self._logs).index(program)
        return self._logs[program][int(self._marks[since][place]):int(self._marks[until][place])]


def read_faults(results: Path, logs: dict[str, list[str]]) -> list[Fault]:
    marks: dict[str, dict[str, list[float]]] = {}
    for line in (results / "marks.txt").read_text().splitlines():
        time, name, stage, *said = line.split()
        marks.setdefault(name, {})[stage] = [float(time), *map(float, said)]
    return [Fault(name, stages, logs) for name, stages in marks.items()]


def judge_log(fault: Fault, program: str, faults: Faults) -> None:
    lines = fault.said(program, "begun", "mended")
    if pattern := FAULT_WORDS.get(fault.name):
        told = any(re.search(pattern, line) for line in lines)
        faults.expect(told, f"{fault.name}: {program} does not tell: {lines}")
    if (fault.name, program) == ("bus", "window"):
        # Permission is taken away and given again, as soon as there is a bus.
        permission = [line.split()[2].strip(".") for line in lines if line.startswith("Location access ")]
        faults.expect(permission[-2:] == ["denied", "granted"], f"bus: {program} knows of its permission {permission}")
    lines = fault.said(program, "mended", "recovered")
    begun = next((at for at, line in enumerate(lines) if line.startswith("Starting network scan")), len(lines))
    end = next((line for line in lines[begun:] if line.startswith(("Found ", "Scan failed", "No WiFi"))), None)
    faults.expect(end is not None and end.startswith("Found "),
                  f"{fault.name}: {program}'s next cycle ends with {end!r}: {lines}")


def judge_pulse(fault: Fault, pulse: list[dict], faults: Faults) -> None:
    since = fault.time("mended" if fault.name == STOPPED else "begun")
    # An answer that was asked for while the program was stopped is none of its own.
    during = [beat for beat in pulse
              if since <= beat["time"] - beat["seconds"] and beat["time"] <= fault.time("recovered")]
    slowest = max((beat["seconds"] for beat in during), default=None)
    least = min((beat["networks"] for beat in during), default=0)
    print(f"{fault.name}: {fault.time('ending') - fault.time('begun'):.0f} s, a scan "
          f"{fault.time('recovered') - fault.time('mended'):.0f} s after it was mended; the window answered "
          f"{len(during)} times, in {slowest} s at most, and listed {least:.0f} networks or more")
    faults.expect(slowest is not None and slowest <= RESPONSIVE, f"{fault.name}: the window has not answered in time")
    faults.expect(least >= len(list(FAULTS.every_access_point())), f"{fault.name}: the window has lost networks")


def judge_cycles(lines: list[str], faults: Faults) -> None:
    """Every cycle lists whatever the one before listed, and the last one hears all that there is."""
    cycles: dict[int, dict[str, bool]] = {}
    for line in lines:
        record = json.loads(line)
        cycles.setdefault(record["cycle"], {})[record["bssid"]] = record["heard"]
    for (_, before), (number, after) in pairwise(cycles.items()):
        faults.expect(not before.keys() - after.keys(), f"cycle {number} has lost {before.keys() - after.keys()}")
    listed = list(cycles.values())[-1]
    silent = [address for address, _, _ in FAULTS.every_access_point() if not listed.get(address)]
    faults.expect(not silent, f"in the end {silent} are not heard")
    print(f"{len(cycles)} cycles, {len(listed)} access points in the last")


def judge_join(step: Step, faults: Faults) -> None:
    print(f"{step}; then {step.text('device.txt')!r}")
    faults.expect(step.status == 1 and "NetworkManager" in step.message, f"join: {step.message!r} does not say why")
    faults.expect(not step.text("profiles.txt"), "join: a profile was left behind")
    faults.expect(PASSWORD not in step.text("stdout") + step.text("stderr"), "join: the password was told")


def judge_history(step: Step, faults: Faults) -> None:
    """Six cycles, four seconds apart; the clock is a day ahead at the third and the fourth."""
    history = step.document("details.json")["signalHistory"]
    gaps = [round(after - before, 1) for before, after in pairwise(map(unix_time, history))]
    print(f"clock: the samples are {gaps} s apart, by the clock")
    jumps = [round(gap / DAY) for gap in gaps]
    whole = [jump for jump in jumps if jump] == [1, -1]
    faults.expect(whole and all(0 < gap - jump * DAY < 25 for gap, jump in zip(gaps, jumps)),
                  f"clock: the history is {history}")


def main(results: Path, faults: Faults) -> None:
    watch, window = (Step(results, name) for name in ("watch", "window"))
    for step in (watch, window):
        faults.ended_well(step)
    pulse = window.numbers("pulse.csv")
    logs = {"watch": watch.text("stderr").splitlines(), "window": window.text("log").splitlines()}
    for fault in read_faults(results, logs):
        for program in logs:
            judge_log(fault, program, faults)
        judge_pulse(fault, pulse, faults)
        if fault.name == "join":
            judge_join(Step(results, "join"), faults)
        if fault.name == "clock":
            judge_history(Step(results, "history"), faults)
        if fault.name == "crowd":
            found = [line for line in fault.said("watch", "begun", "mended") if line.startswith("Found ")]
            faults.expect(found, "crowd: the watch has finished no scan")
            print(f"crowd: at most {max((int(line.split()[1]) for line in found), default=0)} in one scan")
    for program, lines in logs.items():
        # Access points that are on the air have not all gone just because no scan took place.
        faults.expect("Found 0 networks" not in lines, f"{program} has taken a scan that failed for an empty air")
    judge_cycles(watch.text("stdout").splitlines(), faults)


if __name__ == "__main__":
    judge(main)
