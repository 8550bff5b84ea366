"""What a scenario has left of each step, and the faults that a judge finds."""

import csv
import json
import sys
from collections.abc import Callable
from datetime import datetime
from pathlib import Path

import iw_dump


def unix_time(record: dict) -> float:
    return datetime.fromisoformat(record["timestamp"].replace("Z", "+00:00")).timestamp()


class Faults:
    """Collects what is wrong and prints each at once."""

    def __init__(self) -> None:
        self.count = 0

    def expect(self, holds: bool, fault: str) -> bool:
        if not holds:
            self.count += 1
            print(f"FAULT: {fault}")
        return holds

    def ended_well(self, step: "Step") -> bool:
        return self.expect(step.status == 0, f"{step.name}: exit status {step.status}: {step.message}")


def judge(main: Callable[[Path, Faults], None]) -> None:
    """Runs a judge with the results folder that the command line names; exit status 1 when there is a fault."""
    faults = Faults()
    main(Path(sys.argv[1]), faults)
    print(f"{faults.count} faults")
    sys.exit(faults.count > 0)


class Step:
    """One observed run of the program."""

    def __init__(self, results: Path, name: str) -> None:
        self.name, self.folder = name, results / name
        self.begun, self.ended = (float(self.text(mark)) for mark in ("begun", "ended"))
        self.status = int(self.text("status"))
        self.message = self._last_word()
        self.listed = iw_dump.parse(self.text("iw.txt"))
        self.entries = iw_dump.sightings(self.listed)

    def __str__(self) -> str:
        return f"{self.name}: {self.status} after {self.ended - self.begun:.1f} s: {self.message}"

    def _last_word(self) -> str:
        """Of the program or script: what its desktop session says when it is taken down comes after it."""
        lines = self.text("stderr").strip().splitlines() or [""]
        return next((line for line in reversed(lines) if line.startswith("failed: ")), lines[-1])

    def text(self, name: str) -> str:
        return (self.folder / name).read_text(encoding="utf-8", errors="replace")

    def document(self, name: str):
        return json.loads(self.text(name))

    def rows(self, name: str) -> list[dict[str, str]]:
        """Of a table in CSV."""
        return list(csv.DictReader(self.text(name).splitlines()))

    def numbers(self, name: str) -> list[dict[str, float]]:
        """Of a table that has nothing else."""
        return [{column: float(value) for column, value in row.items()} for row in self.rows(name)]
