"""What a scenario has left of each step, and the faults that a judge finds."""

import json
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

    def verdict(self) -> int:
        """The judge's last word and exit status."""
        print(f"{self.count} faults")
        return 1 if self.count else 0


class Step:
    """One observed run of the program."""

    def __init__(self, results: Path, name: str) -> None:
        self.name, self.folder = name, results / name
        self.begun, self.ended = (float(self.text(mark)) for mark in ("begun", "ended"))
        self.status = int(self.text("status"))
        self.message = self._last_word()
        self.listed = iw_dump.parse(self.text("iw.txt"))
        self.entries = iw_dump.sightings(self.listed)

    def _last_word(self) -> str:
        """Of the program or script: what its desktop session says when it is taken down comes after it."""
        lines = self.text("stderr").strip().splitlines() or [""]
        return next((line for line in reversed(lines) if line.startswith("failed: ")), lines[-1])

    def text(self, name: str) -> str:
        return (self.folder / name).read_text(encoding="utf-8", errors="replace")

    def document(self, name: str):
        return json.loads(self.text(name))
