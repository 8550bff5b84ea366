"""Judges what scenarios/desktop.sh has left."""

from pathlib import Path

from steps import Faults, Step, judge

DELAY = 5.0  # seconds from the grant to the first scan
SLACK = 10.0  # what an emulated machine may be late; without the word of the grant none would be asked for at all


def judge_grant(results: Path, faults: Faults) -> None:
    """A profile of the bus has a line for each message: its kind, its time, ..., its member last."""
    lines = [line.split("\t") for line in (results / "requests.txt").read_text().splitlines()]
    granted = float((results / "granted").read_text())
    told = [float(line[1]) for line in lines if line[-1] == "Changed" and float(line[1]) >= granted]
    asked = [float(line[1]) for line in lines if line[-1] == "RequestScan"]
    early = [time for time in asked if time < granted]
    faults.expect(not early, f"{len(early)} scans were asked for without permission")
    if faults.expect(bool(told and asked), f"{len(told)} words of permissions, {len(asked)} scans asked for"):
        delay = min(asked) - min(told)
        print(f"the first scan was asked for {delay:.2f} s after the grant")
        faults.expect(DELAY <= delay <= DELAY + SLACK, f"instead of {DELAY} s")


def main(results: Path, faults: Faults) -> None:
    step = Step(results, "desktop")
    print(step.text("stdout"), end="")
    if faults.ended_well(step):
        judge_grant(results, faults)
    told = step.text("log") + step.text("stdout") + step.text("stderr")
    faults.expect("horse" not in told, "the password was told")


if __name__ == "__main__":
    judge(main)
