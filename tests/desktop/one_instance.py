#!/usr/bin/python3 -u
"""one_instance.py PROGRAM RESULTS

Starts PROGRAM several times in one desktop session that has no tray: at the same moment, behind a closed and behind a
minimised window, while the first does not answer, and where there is no session bus. RESULTS keeps the logs."""

import contextlib
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


class Starts:
    """Every start of the program, with its log."""

    def __init__(self, path, results, stack):
        self.path, self.results, self.stack = path, results, stack
        self.count = 0

    def start(self, *arguments):
        self.count += 1
        return self.stack.enter_context(Program(self.path, *arguments, log=f"{self.results}/{self.count}.log"))

    def again(self, what):
        program = self.start()
        check(f"{what}, a second start ends", program.process.wait(PATIENCE), 0)
        check(f"{what}, it says why", program.log(), TOLD)


def start_at_once(starts):
    programs = [starts.start() for _ in range(4)]
    wait_for("one to remain", lambda: sum(p.process.poll() is None for p in programs) == 1)
    first = next(p for p in programs if p.process.poll() is None)
    check("of four that start at once the others end",
          [(p.process.returncode, p.log()) for p in programs if p is not first], [(0, TOLD)] * 3)
    return first


def bring_back(starts, first):
    application = first.application()
    frame = active_frame(application)
    frame.find("check box", "All Networks").press()
    frame.find("check box", "Hiding Hidden")

    # The pointer's click gives the window the focus before the key comes.
    click(frame.find("list", "Networks"))
    key("alt+F4")
    application.gone("frame")
    starts.again("behind a closed window")
    frame = active_frame(application)
    check("it is the window as it was", bool(frame.all("check box", "Hiding Hidden")), True)

    other = active_frame(starts.start("--simulate").application())
    check("a simulated run has a window of its own", len(other.all("list")), 1)
    starts.again("behind another window")
    active_frame(application)

    window = subprocess.check_output(["xdotool", "getactivewindow"], text=True).strip()
    subprocess.run(["xdotool", "windowminimize", "--sync", window], check=True)
    starts.again("behind a minimised window")
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


def start_beside_one_that_hangs(starts, first):
    first.process.send_signal(signal.SIGSTOP)
    try:
        program = starts.start()
        active_frame(program.application())
    finally:
        first.process.send_signal(signal.SIGCONT)
    check("where the first hangs the second says so", program.log().count("but does not answer: "), 1)


def start_without_a_bus(starts):
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nonexistent"
    program = starts.start()
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
        starts = Starts(path, results, stack)
        first = start_at_once(starts)
        bring_back(starts, first)
        ask_over_the_bus(first)
        start_beside_one_that_hangs(starts, first)
        start_without_a_bus(starts)


run(main)
