#!/usr/bin/python3 -u
"""full_disk.py PROGRAM RESULTS SSID [ARGUMENT...]

Has PROGRAM's window store its settings and export the list on a disk of its own that is first empty, then full, then
read-only, then as it was. RESULTS keeps the log. Ends with 77 where this user may not mount a disk."""

import contextlib
import ctypes
import os
import pathlib
import subprocess
import sys

from accessible import Failure, Program, check, run, wait_for
from main_window import MainWindow, first_scan

# Rights of its own, in a namespace that ends with the script; files and buses know the user as before.
UNSHARE = ["unshare", "--user", "--map-current-user", "--keep-caps", "--mount"]
READ_ONLY, REMOUNT = 1, 32  # of mount(2)


def mount(folder, flags=0):
    library = ctypes.CDLL(None, use_errno=True)
    if library.mount(b"disk", os.fsencode(folder), b"tmpfs", flags, b"size=128k,mode=777") != 0:
        raise Failure(f"no disk at {folder}: {os.strerror(ctypes.get_errno())}")


PAGE = 4096  # what a small file takes


class Disk:
    """A small one, which is the settings' too."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        mount(folder)
        self.ballast = self.folder / "ballast"
        self.settings, self.list = self.folder / "aerolith/aerolith.conf", self.folder / "list.csv"

    def fill(self, room=0):
        """Leaves room for that many small files."""
        with open(self.ballast, "wb", buffering=0) as ballast:
            with contextlib.suppress(OSError):
                while True:
                    ballast.write(bytes(PAGE))
            ballast.truncate(ballast.tell() - room * PAGE)

    def files(self):
        return self.settings.read_bytes(), self.list.read_bytes()


def refuse(what, program, window, disk, seconds):
    """Neither is written, both files are as they were, and scanning goes on."""
    before = disk.files()
    told = len(program.log())
    window.set(scanInterval=seconds)
    check(f"{what}, the settings", disk.settings.read_bytes(), before[0])
    window.save("Export network list", disk.list)
    check(f"{what}, the files", disk.files(), before)
    check(f"{what}, the refusal is told", program.log()[told:].count(f"Cannot write {disk.list}: "), 1)
    names = {p.name for p in disk.folder.rglob("*") if p.is_file()} - {"QtProject.conf"}  # the file dialog's own
    check(f"{what}, nothing else is left", sorted(names), ["aerolith.conf", "ballast", "list.csv"])
    scans = program.log().count("Network scan completed")
    wait_for("the next scan", lambda: program.log().count("Network scan completed") > scans)


def main(path, results, ssid, *arguments):
    disk = Disk(os.environ["XDG_CONFIG_HOME"])
    with Program(path, *arguments, log=results / "log") as program:
        window = MainWindow(program)
        first_scan(window)
        window.set(scanInterval=5)
        window.save("Export network list", disk.list)
        wait_for("both files", lambda: b"scanInterval=5\n" in disk.files()[0] and ssid.encode() in disk.files()[1])
        for room in (1, 2):
            disk.fill(room)
            before = disk.settings.read_bytes()
            window.set(scanInterval=6)
            check(f"with room for {room}, the settings", disk.settings.read_bytes(), before)
        disk.fill()
        refuse("full", program, window, disk, 6)
        mount(disk.folder, REMOUNT | READ_ONLY)
        refuse("read-only", program, window, disk, 7)
        refusals = program.log().count(f"Cannot write the settings file {disk.settings}: ")
        check("the settings' refusal is told once", refusals, 1)
        mount(disk.folder, REMOUNT)
        disk.ballast.unlink()
        disk.list.unlink()
        window.set(scanInterval=8)
        window.save("Export network list", disk.list)
        wait_for("both files anew", lambda: b"scanInterval=8\n" in disk.files()[0] and ssid.encode() in disk.files()[1])


if "DISK" not in os.environ:
    if subprocess.run([*UNSHARE, "true"], check=False).returncode != 0:
        sys.exit(77)
    os.execvp(UNSHARE[0], [*UNSHARE, "env", "DISK=", *sys.argv])
run(main)
