#!/usr/bin/python3
"""status_item.py PROGRAM RESULTS SSID PASSWORD [ARGUMENT...]

Drives PROGRAM's icon in an X11 tray that begins after the program: closes the main window and brings it back, opens the
popover under the icon by a click, and joins the network SSID, first with a wrong password, then an open one. RESULTS
keeps the log."""

import ctypes

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


def pointer_is_free():
    """Whether another program could take the pointer for itself, as a menu or the desktop's question does."""
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    display = ctypes.c_void_p(x11.XOpenDisplay(None))
    x11.XDefaultRootWindow.restype = ctypes.c_ulong
    root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
    nothing = ctypes.c_ulong(0)
    refusal = x11.XGrabPointer(display, root, 0, 0, 1, 1, nothing, nothing, nothing)
    x11.XCloseDisplay(display)
    return not refusal


def join_from_open_popover(popover, ssid):
    popover.open()
    check("an open popover has the pointer", pointer_is_free(), False)
    popover.ask_to_connect(ssid)
    wait_for("a free pointer while it looks for the network", pointer_is_free)
    wait_for("the joined row", lambda: popover.joined_outcome(ssid))
    check("the popover has the pointer again", pointer_is_free(), False)


def main(path, results, ssid, password, *arguments):
    with Program(path, *arguments, log=results / "log") as program:
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
            join_from_open_popover(popover, "100%s café")


run(main)
