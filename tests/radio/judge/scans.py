"""The scans that the kernel made while a scenario ran, whoever asked for them, as `iw event -t` told."""

import functools
import re
from pathlib import Path

import iw_dump

TOLERANCE = 0.1  # seconds between the clocks of events and of iw's list
LONGEST = 20  # seconds: what a scan is taken to have lasted that was under way when the program started
LATENESS = 2  # seconds, at most, that the program takes any other scan to have begun before it did


class Scan:
    """Times are Unix times."""

    def __init__(self, started: float, finished: float, dump: Path, booted: float) -> None:
        self.started, self.finished = started, finished
        self._dump, self._booted = dump, booted

    @functools.cached_property
    def listed(self) -> list[iw_dump.Entry]:
        return iw_dump.parse(self._dump.read_text(encoding="utf-8", errors="replace"))

    @functools.cached_property
    def entries(self) -> dict[str, iw_dump.Entry]:
        """By address, what counts of iw's list at the end of the scan."""
        return iw_dump.sightings(self.listed, self.started - self._booted - TOLERANCE)

    def heard(self, bssid: str) -> float | None:
        """When the access point was last heard, by that list; None where it is not in it."""
        entry = self.entries.get(bssid)
        return entry and self._booted + entry.heard

    def was_silent(self, bssid: str) -> bool | None:
        """Whether the access point was not heard in this scan; None where iw cannot tell: the kernel has dropped it,
        or heard it again before iw could ask."""
        heard = self.heard(bssid)
        return None if heard is None or heard > self.finished else heard < self.started - TOLERANCE

    def may_count(self, bssid: str, in_first_cycle: bool) -> bool:
        """Whether the access point was heard so lately that a cycle which began within this scan takes it for heard."""
        heard = self.heard(bssid)
        return heard is not None and heard > self.started - (LONGEST if in_first_cycle else LATENESS)


class Scans:
    def __init__(self, results: Path) -> None:
        time_of_day, uptime = map(float, (results / "clock").read_text().split())
        self.booted = time_of_day - uptime
        self._scans: list[Scan] = []
        started = 0.0
        events = (results / "scans.txt").read_text()
        for time, event in re.findall(r"^([\d.]+):.*scan (started|finished)", events, re.M):
            if event == "started":
                started = float(time)
            else:
                dump = results / "scans" / f"{len(self._scans) + 1}.txt"
                self._scans.append(Scan(started, float(time), dump, self.booted))

    def listed_between(self, begun: float, ended: float) -> list[iw_dump.Entry]:
        """All that iw listed at the end of the scans in this time."""
        return [entry for scan in self._scans if begun <= scan.finished <= ended for entry in scan.listed]

    def first_ending_after(self, time: float) -> Scan:
        return next(scan for scan in self._scans if scan.finished >= time)

    def last_ended_before(self, time: float) -> Scan:
        return next(scan for scan in reversed(self._scans) if scan.finished <= time)
