#!/usr/bin/python3 -u
"""soak.py PROGRAM RESULTS SCANNER SECONDS [ARGUMENT...]

Leaves PROGRAM's window, with an access point selected, and `SCANNER --watch` running side by side for SECONDS, both
at a scan every 5 seconds. RESULTS keeps their logs and, in window.csv and scanner.csv, what each of them held every
half minute."""

import csv
import os
import pathlib
import re
import time

from accessible import Program, run, store_settings, wait_for
from main_window import MainWindow

INTERVAL = 5  # seconds from scan to scan
PERIOD = 30  # seconds from sample to sample
COLUMNS = ("seconds", "resident", "anonymous", "descriptors", "threads", "processor", "cycles", "yardstick")


def yardstick():
    """Seconds of processor time that one piece of work takes now: an emulated processor is as fast as its host has time
    for it, and what a program takes of it can only be compared with what something else takes at the same time."""
    begun = time.process_time()
    for number in range(20_000):
        hash(number)
    return time.process_time() - begun


def mean_yardstick(until):
    """Of every second until then."""
    measured = [yardstick()]
    while (left := until - time.monotonic()) > 0:
        time.sleep(min(left, 1))
        measured.append(yardstick())
    return sum(measured) / len(measured)


class Sampler:
    """Follows one program by what the kernel tells of its process, and its scans by its log."""

    def __init__(self, program, path):
        self.process = pathlib.Path(f"/proc/{program.process.pid}")
        self.log = open(program.log_path, encoding="utf-8")
        self.table = csv.writer(open(path, "w", encoding="utf-8", buffering=1))
        self.table.writerow(COLUMNS)
        self.cycles = 0

    def sample(self, seconds, work):
        memory = (self.process / "smaps_rollup").read_text()
        resident, anonymous = (int(re.search(rf"^{name}: *(\d+) kB", memory, re.M)[1]) for name in ("Rss", "Anonymous"))
        # After the name, which may hold anything, in parentheses: user and system time are fields 14 and 15.
        ticks = sum(map(int, (self.process / "stat").read_text().rpartition(")")[2].split()[11:13]))
        self.cycles += sum(line.startswith("Found ") for line in self.log)
        counts = (len(os.listdir(self.process / name)) for name in ("fd", "task"))
        self.table.writerow((seconds, resident, anonymous, *counts, ticks / os.sysconf("SC_CLK_TCK"),
                             self.cycles, round(work, 5)))


def main(path, results, scanner, seconds, *arguments):
    store_settings(scanInterval=INTERVAL)
    with (Program(path, *arguments, log=results / "window.log") as window,
          Program(scanner, "--watch", *arguments, log=results / "scanner.log") as scan):
        shown = MainWindow(window)
        wait_for("a first scan", lambda: shown.list.children)
        shown.list.children[0].act("Toggle")
        samplers = [Sampler(window, results / "window.csv"), Sampler(scan, results / "scanner.csv")]
        begun = time.monotonic()
        for end in range(PERIOD, int(seconds) + 1, PERIOD):
            work = mean_yardstick(begun + end)
            for sampler in samplers:
                sampler.sample(end, work)


run(main)
