#!/usr/bin/python3
"""status_item.py PROGRAM SSID PASSWORD RESULTS [ARGUMENT...]

Drives PROGRAM's icon in an X11 tray that begins after the program: closes the main window and brings it back, opens the
popover under the icon by a click, and joins the network SSID, first with a wrong password. RESULTS keeps the log."""

import os

from accessible import Program, check, click, key, run, wait_for
from popover import Popover, tray


def hide_and_bring_back(application, popover):
    frame = application.find("frame")
    frame.find("list", "Networks").children[-1].act("Toggle")
    selected = frame.find("text", "BSSID").text
    # The tray may have taken the focus.
    click(frame)
    key("alt+F4")
    application.gone("frame")
    popover.open()
    popover.window.find("push button", "Open App").press()
    wait_for("the selection", lambda: application.find("frame").find("text", "BSSID").text == selected)
    popover.closed()
    print("ok: the main window closes and comes back as it was")


def main(path, ssid, password, results, *arguments):
    os.makedirs(results, exist_ok=True)
    with Program(path, *arguments, log=f"{results}/log") as program:
        application = program.application()
        wait_for("a first scan", lambda: application.all("list item"))
        popover = Popover(application)
        with tray():
            popover.open()
            check("the popover is under its icon", popover.is_under_icon(), True)
            key("Escape")
            popover.closed()
            print("ok: the icon opens the popover, Escape closes it")
            hide_and_bring_back(application, popover)
            told = popover.connect(ssid, password[::-1])
            check("a wrong password fails with words", bool(told), True)
            check("the right one joins", popover.connect(ssid, password), None)
    print("ok: ended")


if __name__ == "__main__":
    run(main)
