#!/usr/bin/python3
"""wayland.py PROGRAM SSID RESULTS [ARGUMENT...]

Drives PROGRAM's main window on Wayland, where no program can press keys or move the pointer for another: what
assistive technology can do alone. RESULTS keeps the log and the exported files."""

import os
import shutil

from accessible import Program, check, run
from main_window import MainWindow, export, first_scan, read_details, settings


def main(path, ssid, results, *arguments):
    check("the window system", os.environ["QT_QPA_PLATFORM"], "wayland")
    shutil.rmtree(results, ignore_errors=True)
    os.makedirs(results)
    with Program(path, *arguments, log=f"{results}/log") as program:
        window = MainWindow(program)
        first_scan(window)
        read_details(window, ssid)
        export(window, ssid, results)
        settings(window)
    check("the status that it ends with", program.process.returncode, 0)


if __name__ == "__main__":
    run(main)
