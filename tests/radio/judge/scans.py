"""The scans that the kernel made while a scenario ran, whoever asked for them, as `iw event -t` told."""

import re
from pathlib import Path

import iw_dump


class Scan:
    """Times are Unix times."""

    def __init__(self, started: float, finished: float, dump: Path, booted: float) -> None:
        self.started, self.finished = started, finished
        self._dump, self._booted = dump, booted
        self._heard: dict[str, float] | None = None

    def heard(self, bssid: str) -> float | None:
        """When the access point was last heard, by iw's list at the end of the scan; None where it is not listed."""
        if self._heard is None:
            entries = iw_dump.newest_of_each(iw_dump.parse(self._dump.read_text(encoding="utf-8", errors="replace")))
            self._heard = {address: self._booted + entry.heard for address, entry in entries.items()}
        return self._heard.get(bssid)


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

    def first_ending_after(self, time: float) -> Scan:
        return next(scan for scan in self._scans if scan.finished >= time)

    def last_ended_before(self, time: float) -> Scan:
        return next(scan for scan in reversed(self._scans) if scan.finished <= time)
