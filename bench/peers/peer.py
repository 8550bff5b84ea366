#!/usr/bin/python3
"""peer.py NAME RESULT SCREEN: starts one graphical program cold, waits until the first row of its list is on the
screen (the file SCREEN, an Xvfb frame buffer), lets it scan for a minute and writes to RESULT what that took. Runs as
root. Nothing asks the program itself, so that nothing but its own work is measured. Without arguments, prints the names
of the programs."""

import json
import os
import re
import shutil
import socket
import struct
import subprocess
import sys
import threading
import time
from dataclasses import dataclass
from pathlib import Path

MINUTE = 60
PATIENCE = 240  # seconds until a program has a window, or a list
INTERVAL = 10  # seconds between scans of those that have to be asked for each
GROUPS = Path("/sys/fs/cgroup")
DARK, LEAST_DARK = 120, 40  # a pixel of text, and how many of them are a row


@dataclass
class Peer:
    """How it is started, and where things are in its window, in pixels from the window's corner."""

    command: str  # with the environment's variables
    window: str  # the title of the window with the list
    row: tuple[int, int, int, int]  # the place of the first row's name: left, top, width, height; empty without one
    opener: tuple[str, int, int] | None = None  # a window and the button in it that opens the list or starts the scans
    again: tuple[int, int] | None = None  # the button that asks for the next scan
    scans_itself: bool = False  # its scans are refused while others scan on the same interface


PEERS = {
    "aerolith": Peer("$PROGRAM", "Aerolith", (44, 114, 150, 40)),
    "linssid": Peer("linssid", "LinSSID", (111, 145, 98, 60), ("LinSSID", 221, 61), scans_itself=True),
    "wpa_gui": Peer("wpa_gui -i wlan0 -p $SUPPLICANT_SOCKETS", "Scan results", (12, 35, 100, 40), ("wpa_gui", 264, 332),
                    (315, 220)),
}


class Group:
    """A control group: what all processes in it have used, those that have ended among them."""

    def __init__(self, name):
        self.folder = GROUPS / name
        self.folder.mkdir(exist_ok=True)

    def enter(self):
        (self.folder / "cgroup.procs").write_text("0")

    def cpu(self):
        """Seconds, user and system."""
        return int(re.search(r"usage_usec (\d+)", (self.folder / "cpu.stat").read_text())[1]) / 1e6

    def pids(self):
        return [int(pid) for pid in (self.folder / "cgroup.procs").read_text().split()]

    def memory(self):
        """Proportional set size in MiB."""
        sizes = (Path(f"/proc/{pid}/smaps_rollup").read_text() for pid in self.pids())
        return sum(int(re.search(r"^Pss: +(\d+) kB", size, re.MULTILINE)[1]) for size in sizes) / 1024


class Forks:
    """What the kernel's process connector (linux/cn_proc.h) tells of processes that begin."""

    CONNECTOR, PROCESSES, LISTEN, FORK, DONE = 11, 1, 1, 1, 3
    HEADER, CONNECTED, EVENT = "=IHHII", "=IIIIHH", "=IIQIIII"

    def __init__(self):
        self.socket = socket.socket(socket.AF_NETLINK, socket.SOCK_DGRAM, self.CONNECTOR)
        self.socket.setsockopt(socket.SOL_SOCKET, 33, 8 << 20)  # SO_RCVBUFFORCE
        self.socket.bind((0, self.PROCESSES))
        body = struct.pack(self.CONNECTED, self.PROCESSES, 1, 0, 0, 4, 0) + struct.pack("=I", self.LISTEN)
        self.socket.send(struct.pack(self.HEADER, 16 + len(body), self.DONE, 0, 0, 0) + body)
        self.socket.setblocking(False)

    def messages(self):
        while True:
            try:
                yield self.socket.recv(4096)
            except BlockingIOError:
                return

    def descended(self, pid):
        """How many processes have begun that descend from this one."""
        family, count = {pid}, 0
        at = struct.calcsize(self.HEADER) + struct.calcsize(self.CONNECTED)
        for message in self.messages():
            what, _, _, _, parent, thread, process = struct.unpack_from(self.EVENT, message, at)
            if what == self.FORK and thread == process and parent in family:
                family.add(process)
                count += 1
        return count


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True, check=False).stdout


def wait_for(what, condition):
    deadline = time.monotonic() + PATIENCE
    while time.monotonic() < deadline:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    sys.exit(f"waited in vain for {what}")


def shown(title):
    return xdotool("search", "--onlyvisible", "--name", f"^{title}$").split()


def window(title):
    return wait_for(title, lambda: shown(title))[-1]


def click(where, x, y):
    xdotool("mousemove", "--window", where, x, y, "click", 1)


def corner(where):
    """On the screen. The geometry that xdotool tells counts a frame twice; the pointer is where it says."""
    place = xdotool("mousemove", "--window", where, 0, 0, "getmouselocation", "--shell")
    return tuple(int(re.search(rf"{axis}=(\d+)", place)[1]) for axis in "XY")


class Screen:
    """The X server's frame buffer, a file in the form of xwd, with four bytes a pixel."""

    def __init__(self, file):
        self.file = file
        with open(file, "rb") as content:
            header = struct.unpack(">25I", content.read(100))
        self.at, self.line = header[0] + 12 * header[19], header[12]

    def has_text(self, left, top, width, height):
        dark = 0
        with open(self.file, "rb") as content:
            for y in range(top, top + height):
                content.seek(self.at + y * self.line + 4 * left)
                dark += sum(green < DARK for green in content.read(4 * width)[1::4])
        return dark >= LEAST_DARK


def scans():
    return Path("/run/scans.log").read_text().count("scan finished")


def show_list(peer, screen):
    """Returns as soon as the list has a row."""
    if peer.opener:
        title, x, y = peer.opener
        click(window(title), x, y)
    x, y = corner(window(peer.window))
    left, top, width, height = peer.row
    wait_for("a row", lambda: screen.has_text(x + left, y + top, width, height))


def ask_again(peer, until):
    """Presses for the next scan at its interval."""
    where = window(peer.window)
    while time.monotonic() < until:
        click(where, *peer.again)
        time.sleep(INTERVAL)


def manage(managed):
    """Has NetworkManager, and wpa_supplicant with it, use the interface, or leave it alone."""
    subprocess.run(["nmcli", "device", "set", "wlan0", "managed", "yes" if managed else "no"], check=True)
    if not managed:
        subprocess.run(["ip", "link", "set", "wlan0", "up"], check=True)


def measure(peer, result, screen):
    group, services, forks = Group("program"), Group("services"), Forks()
    os.sync()
    Path("/proc/sys/vm/drop_caches").write_text("3")
    begun = time.monotonic()
    process = subprocess.Popen(os.path.expandvars(peer.command).split(), preexec_fn=group.enter)
    try:
        show_list(peer, Screen(screen))
        first_list = time.monotonic() - begun
    finally:
        shutil.copy(screen, result.with_suffix(".xwd"))
    time.sleep(INTERVAL)
    before = group.cpu(), services.cpu(), scans()
    if peer.again:
        threading.Thread(target=ask_again, args=(peer, time.monotonic() + MINUTE), daemon=True).start()
    time.sleep(MINUTE)
    after = group.cpu(), services.cpu(), scans()
    cpu, services_cpu, ended = (b - a for a, b in zip(before, after))
    return {"first_list": first_list, "cpu": cpu, "services_cpu": services_cpu, "scans": ended,
            "memory": group.memory(), "processes": forks.descended(process.pid)}


def main(name, result, screen):
    result, peer = Path(result), PEERS[name]
    manage(not peer.scans_itself)
    try:
        measured = measure(peer, result, screen)
    finally:
        manage(True)
    print(measured, flush=True)
    result.write_text(json.dumps(measured))


if __name__ == "__main__":
    main(*sys.argv[1:]) if sys.argv[1:] else print(*PEERS)
