#!/usr/bin/python3
"""wayland.py PROGRAM RESULTS SSID [ARGUMENT...]

Drives PROGRAM's main window on Wayland, where no program can press keys or move the pointer for another: what
assistive technology can do alone. RESULTS keeps the log and the exported files."""

from accessible import Program, check, run, wait_for
from main_window import MainWindow, export, first_scan, read_details, settings
from popover import Popover
from status_notifier import StatusNotifier


def popover(window, notifier):
    """The bar begins long after the program. The icon's presses come over the bus; the popover is a window of its own
    here."""
    notifier.begin_host()
    check("the icon's words", notifier.item("ToolTip")[2], "WiFi")
    menu = Popover(window.application)
    notifier.press()
    wait_for("the popover's rows", lambda: menu.rows())
    check("its rows", len(menu.rows()), window.count())
    joined = menu.rows()[0].name
    check("the joined network is the first", joined.endswith(", joined"), True)
    notifier.press()
    menu.closed()
    notifier.press()
    wait_for("the popover again", lambda: menu.window)
    menu.window.find("push button", "Open App").press()
    print("ok: the icon opens and closes the popover")


def main(path, results, ssid, *arguments):
    notifier = StatusNotifier()
    with Program(path, *arguments, log=results / "log") as program:
        window = MainWindow(program)
        first_scan(window)
        read_details(window, ssid)
        export(window, ssid, results)
        settings(window)
        popover(window, notifier)


run(main)
