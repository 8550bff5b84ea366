#!/usr/bin/python3 -u
"""faults.py PROGRAM RESULTS [ARGUMENT...]

Leaves PROGRAM's window scanning every 5 seconds until there is a file RESULTS/enough, and asks it all the time how many
networks it lists: RESULTS/pulse.csv has the time since boot of every answer, how long it took and what it was."""

import csv
import time

from accessible import Program, run, store_settings, wait_for
from main_window import MainWindow


def main(path, results, *arguments):
    store_settings(scanInterval=5)
    with (Program(path, *arguments, log=results / "log") as program,
          open(results / "pulse.csv", "w", encoding="utf-8", buffering=1) as pulse):
        window = MainWindow(program)
        wait_for("a first scan", window.count)
        (results / "ready").touch()
        table = csv.writer(pulse)
        table.writerow(("time", "seconds", "networks"))
        while not (results / "enough").exists():
            asked = time.monotonic()
            networks = window.count()
            answered = time.monotonic()
            table.writerow((round(answered, 2), round(answered - asked, 2), networks))
            time.sleep(0.5)


run(main)
