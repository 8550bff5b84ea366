#!/usr/bin/python3
"""status_item.py PROGRAM SSID PASSWORD RESULTS [ARGUMENT...]

Drives PROGRAM's icon in an X11 tray that begins after the program: closes the main window and brings it back, opens the
popover under the icon by a click, and joins the network SSID, first with a wrong password. RESULTS keeps the log."""

import contextlib
import os
import subprocess
import sys
import time

from accessible import Element, Failure, Focus, Program, click, key, wait_for

from gi.repository import Atspi

ICON = (1280 - 12, 12)
CONNECT = "Connect to \u2068{}\u2069, "


@contextlib.contextmanager
def tray():
    """In the upper right corner, as high as an icon."""
    command = ["trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", "24"]
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
        try:
            yield
        finally:
            process.terminate()


def click_at(x, y):
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)


def window_of(element):
    """The outermost element above it below the application's own."""
    above = element.accessible.get_parent()
    while above is not None and above.get_role() != Atspi.Role.APPLICATION:
        element, above = Element(above), above.get_parent()
    return element


class Popover:
    """What the icon opens. Like a menu it is met by the focus that comes into it: Qt keeps popups out of the tree."""

    def __init__(self, application):
        self.application = application
        self.window = None

    def row(self, prefix):
        rows = self.window.all("list item") if self.window else []
        return next((e for e in rows if e.name.startswith(prefix)), None)

    def open(self):
        """Pressed again until it opens: the icon comes a moment after its tray."""
        focus = Focus()

        def opened():
            if not self.row("Connect to"):
                click_at(*ICON)
                time.sleep(1)
                self.window = next((w for w in map(window_of, focus.heard()) if w.role != "frame"), None)
            return self.row("Connect to")

        wait_for("the popover", opened)

    def closed(self):
        wait_for("no popover", lambda: not self.row("Connect to"))

    def connect(self, ssid):
        """By the lock at the row's end, which is part of its button."""
        row = wait_for(f"a row for {ssid}", lambda: self.row(CONNECT.format(ssid)))
        box = row.accessible.get_extents(Atspi.CoordType.SCREEN)
        click_at(box.x + box.width - 18, box.y + box.height // 2)

    def answer(self, ssid, password):
        dialog = self.application.find("dialog", f"Connect to \u2068{ssid}\u2069")
        self.closed()
        dialog.find(name="Network password").text = password
        dialog.find("push button", "Connect").press()


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


def join(application, popover, ssid, password):
    popover.open()
    popover.connect(ssid)
    popover.answer(ssid, password[::-1])
    alert = application.find("dialog", "Connection Failed")
    print(f"ok: a wrong password fails: {alert.description!r}")
    alert.find("push button", "OK").press()
    application.gone("dialog")

    popover.open()
    popover.connect(ssid)
    popover.answer(ssid, password)
    application.gone("dialog")
    popover.open()
    wait_for("the joined row", lambda: popover.row(f"\u2068{ssid}\u2069, joined"))
    print("ok: the right one joins")


def main(path, ssid, password, results, *arguments):
    os.makedirs(results, exist_ok=True)
    with Program(path, *arguments, log=f"{results}/log") as program:
        application = program.application()
        wait_for("a first scan", lambda: application.all("list item"))
        popover = Popover(application)
        with tray():
            popover.open()
            key("Escape")
            popover.closed()
            print("ok: the icon opens the popover, Escape closes it")
            hide_and_bring_back(application, popover)
            join(application, popover, ssid, password)
    print("ok: ended")


if __name__ == "__main__":
    try:
        main(*sys.argv[1:])
    except Failure as failure:
        sys.exit(f"failed: {failure}")
