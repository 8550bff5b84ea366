"""Judges what scenarios/soak.sh has left."""

import json
import statistics
from pathlib import Path

from steps import Faults, Step, judge

SETTLED = 300  # seconds until everything that is made once has been made
MEMORY = 0.02  # of the level at that time
# Means of a third of an hour's cycles. The processor that they are measured on is an emulated one that others slow
# down; the yardstick takes out most of that, and on a host that gets less busy more than that. A cost that grows with
# every cycle would double in less time, in seconds as in yardsticks.
PROCESSOR = 0.15
INTERVAL = 5  # seconds from scan to scan


class Stretch:
    """Some consecutive samples."""

    def __init__(self, samples: list[dict]) -> None:
        self.samples = samples

    def all(self, column: str) -> list[float]:
        return [sample[column] for sample in self.samples]

    def gained(self, column: str) -> float:
        return self.samples[-1][column] - self.samples[0][column]

    def seconds_per_cycle(self) -> float:
        return self.gained("processor") / self.gained("cycles")

    def yardsticks_per_cycle(self) -> float:
        """As many as fit into the time that one cycle takes."""
        return self.seconds_per_cycle() / statistics.mean(self.all("yardstick"))


def judge_program(name: str, samples: list[dict], faults: Faults) -> None:
    duration = samples[-1]["seconds"]
    settled = [sample for sample in samples if sample["seconds"] >= min(SETTLED, duration / 4)]
    third = len(settled) // 3
    first, last, whole = Stretch(settled[:third]), Stretch(settled[-third:]), Stretch(settled)

    level = statistics.median(whole.all("resident")[:5])
    least, most = min(whole.all("resident")), max(whole.all("resident"))
    print(f"{name}: resident {level / 1024:.1f} MiB when settled, then {least / level - 1:+.2%} to "
          f"{most / level - 1:+.2%}; anonymous {whole.all('anonymous')[0] / 1024:.1f} MiB, "
          f"at the end {whole.gained('anonymous'):+.0f} KiB")
    faults.expect(most <= level * (1 + MEMORY) and least >= level * (1 - MEMORY), f"{name}: memory leaves its level")

    # A scan opens some and closes them: what there is between two scans is what may not grow.
    for column in ("descriptors", "threads"):
        before, after = min(first.all(column)), min(last.all(column))
        print(f"{name}: {column} {before:.0f} in the first third, {after:.0f} in the last "
              f"(most: {max(whole.all(column)):.0f})")
        faults.expect(after <= before, f"{name}: {column} grow")

    growth = last.seconds_per_cycle() / first.seconds_per_cycle() - 1
    growth_by_yardstick = last.yardsticks_per_cycle() / first.yardsticks_per_cycle() - 1
    print(f"{name}: {whole.gained('cycles'):.0f} cycles in {whole.gained('seconds'):.0f} s, "
          f"{1000 * whole.seconds_per_cycle():.0f} ms of the emulated processor each; from the first third to the last "
          f"{growth:+.1%}, by the yardstick {growth_by_yardstick:+.1%}")
    faults.expect(min(growth, growth_by_yardstick) <= PROCESSOR, f"{name}: a cycle takes more and more")
    faults.expect(whole.gained("cycles") >= whole.gained("seconds") / INTERVAL / 2, f"{name}: cycles are missing")


def judge_coming_and_going(lines: list[str], faults: Faults) -> None:
    """Of each access point, how often it was heard again after a cycle in which it was not, by the scanner's lines."""
    returns: dict[str, int] = {}
    heard: dict[str, bool] = {}
    for line in lines:
        if line.startswith("{"):
            record = json.loads(line)
            bssid = record["bssid"]
            returns[bssid] = returns.get(bssid, 0) + (record["heard"] and not heard.get(bssid, True))
            heard[bssid] = record["heard"]
    print(f"{len(returns)} access points came back {sum(returns.values())} times")
    faults.expect(bool(returns) and min(returns.values()) > 0, f"some never left: {returns}")


def main(results: Path, faults: Faults) -> None:
    step = Step(results, "soak")
    if faults.ended_well(step):
        for name in ("window", "scanner"):
            judge_program(name, step.numbers(f"{name}.csv"), faults)
        judge_coming_and_going(step.text("scanner.log").splitlines(), faults)


if __name__ == "__main__":
    judge(main)
