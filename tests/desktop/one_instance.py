#!/usr/bin/python3 -u
"""one_instance.py PROGRAM RESULTS

Starts PROGRAM several times in one desktop session that has no tray: at the same moment, behind a closed and behind a
minimised window, while the first does not answer, and where there is no session bus. RESULTS keeps the logs."""

import contextlib
import itertools
import os
import signal
import subprocess

from accessible import PATIENCE, Program, check, click, key, run, wait_for

from gi.repository import Atspi

NAME = "org.aerolith.Aerolith"
TOLD = "aerolith: running already; its window has been brought to the front\n"


def active_frame(application):
    frame = application.find("frame")
    wait_for(f"{frame!r} to be active", lambda: frame.has(Atspi.StateType.ACTIVE))
    return frame


def start_again(start, where):
    program = start()
    check(f"{where}, a second start ends", program.process.wait(PATIENCE), 0)
    check(f"{where}, it says why", program.log(), TOLD)


def start_at_once(start):
    programs = [start() for _ in range(4)]
    wait_for("one to remain", lambda: sum(p.process.poll() is None for p in programs) == 1)
    first = next(p for p in programs if p.process.poll() is None)
    check("of four that start at once the others end",
          [(p.process.returncode, p.log()) for p in programs if p is not first], [(0, TOLD)] * 3)
    return first


def bring_back(start, first):
    application = first.application()
    frame = active_frame(application)
    frame.find("check box", "All Networks").press()
    frame.find("check box", "Hiding Hidden")

    # The pointer's click gives the window the focus before the key comes.
    click(frame.find("list", "Networks"))
    key("alt+F4")
    application.gone("frame")
    start_again(start, "behind a closed window")
    frame = active_frame(application)
    check("it is the window as it was", bool(frame.all("check box", "Hiding Hidden")), True)

    other = active_frame(start("--simulate").application())
    check("a simulated run has a window of its own", len(other.all("list")), 1)
    start_again(start, "behind another window")
    active_frame(application)

    window = subprocess.check_output(["xdotool", "getactivewindow"], text=True).strip()
    subprocess.run(["xdotool", "windowminimize", "--sync", window], check=True)
    start_again(start, "behind a minimised window")
    active_frame(application)


def ask_over_the_bus(first):
    """What a launcher may ask, with values of wrong types too."""
    for method, arguments in {"Activate": ["{'desktop-startup-id': <42>, 'activation-token': <''>}"],
                              "Open": ["['file:///etc/passwd']", "{}"],
                              "ActivateAction": ["none", "[<1>]", "{}"]}.items():
        answer = subprocess.check_output(
            ["gdbus", "call", "--session", "--dest", NAME, "--object-path", "/" + NAME.replace(".", "/"),
             "--method", f"org.freedesktop.Application.{method}", *arguments], text=True)
        check(f"{method} is answered", answer, "()\n")
    check("it still runs", first.process.poll(), None)


def start_beside_one_that_hangs(start, first):
    first.process.send_signal(signal.SIGSTOP)
    try:
        program = start()
        active_frame(program.application())
    finally:
        first.process.send_signal(signal.SIGCONT)
    check("where the first hangs the second says so", program.log().count("but does not answer: "), 1)


def start_without_a_bus(start):
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nonexistent"
    program = start()
    windows = ["xdotool", "search", "--all", "--onlyvisible", "--pid", str(program.process.pid), "--name", "."]
    found = wait_for("a window", lambda: subprocess.run(windows, capture_output=True, text=True).stdout.split())
    check("where there is no bus it says so",
          program.log().count("Cannot tell whether Aerolith is running already: "), 1)
    subprocess.run(["xdotool", "windowactivate", "--sync", found[0]], check=True)
    key("alt+F4")
    check("a window that nothing would bring back ends the program", program.process.wait(PATIENCE), 0)


def main(path, results):
    # The machine's own Wi-Fi is left alone.
    os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=/nonexistent"
    with contextlib.ExitStack() as stack:
        numbers = itertools.count(1)

        def start(*arguments):
            return stack.enter_context(Program(path, *arguments, log=results / f"{next(numbers)}.log"))

        first = start_at_once(start)
        bring_back(start, first)
        ask_over_the_bus(first)
        start_beside_one_that_hangs(start, first)
        start_without_a_bus(start)


run(main)
