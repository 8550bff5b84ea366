"""The program's icon in an X11 tray, and the popover that it opens."""

import contextlib
import os
import subprocess

from gi.repository import Atspi

from accessible import PATIENCE, Failure, click_at, wait_for

BAR = 24  # the height of the tray
ICON = (int(os.environ.get("DESKTOP_SCREEN", "1280x900").split("x")[0]) - 12, 12)
NAME = "Aerolith"
CONNECT = "Connect to \u2068{}\u2069, "
JOINED = "\u2068{}\u2069, joined"


@contextlib.contextmanager
def tray():
    """In the upper right corner, as high as an icon."""
    command = ["trayer", "--edge", "top", "--align", "right", "--widthtype", "request", "--height", str(BAR)]
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
        try:
            yield
        finally:
            process.terminate()


class Popover:
    def __init__(self, application):
        self.application = application

    @property
    def window(self):
        return next(iter(self.application.all("dialog", NAME)), None)

    def is_under_icon(self):
        box = self.window.accessible.get_extents(Atspi.CoordType.SCREEN)
        return abs(box.y - BAR) <= 2 and box.x <= ICON[0] < box.x + box.width

    def dialogs(self):
        """Those beside the popover itself."""
        return [d for d in self.application.children if d.role in ("dialog", "alert") and d.showing and d.name != NAME]

    def rows(self):
        window = self.window
        lists = window.all("list") if window else []
        return [row for rows in lists for row in rows.children if row.fits(showing=True)]

    def row(self, prefix):
        return next((row for row in self.rows() if row.name.startswith(prefix)), None)

    def press_icon(self):
        """Whether the popover opens, or else a dialog stands in its way."""
        click_at(*ICON)
        with contextlib.suppress(Failure):
            wait_for("a window", lambda: self.window or self.dialogs(), PATIENCE / 12)
        return self.window is not None

    def open(self):
        """Pressed again until it opens: the icon comes a moment after its tray."""
        wait_for("the popover", lambda: self.window or self.press_icon())
        wait_for("the popover's rows", self.rows)

    def closed(self):
        wait_for("no popover", lambda: not self.window)

    def ask_to_connect(self, ssid):
        """By the lock at the row's end, which is part of its button. Returns whether a password will be asked for."""
        row = wait_for(f"a row for {ssid}", lambda: self.row(CONNECT.format(ssid)))
        asks = not row.name.endswith(", Open")
        box = row.accessible.get_extents(Atspi.CoordType.SCREEN)
        click_at(box.x + box.width - 18, box.y + box.height // 2)
        return asks

    def answer(self, ssid, password):
        dialog = self.application.find("dialog", f"Connect to \u2068{ssid}\u2069")
        self.closed()
        dialog.find(name="Network password").text = password
        dialog.find("push button", "Connect").press()

    def connect(self, ssid, password):
        """Opens it, asks to join and waits for the outcome: what the failure's dialog says, or nothing."""
        self.open()
        if self.ask_to_connect(ssid):
            self.answer(ssid, password)
        return wait_for(f"the outcome of joining {ssid}", lambda: self.outcome(ssid))[0]

    def outcome(self, ssid):
        if self.application.all("dialog", "Connection Failed"):
            return [self.failure()]
        return None if self.dialogs() else self.joined_outcome(ssid)

    def failure(self):
        """What the dialog about a failed join says; closes it."""
        alert = self.application.find("dialog", "Connection Failed")
        told = alert.description
        alert.find("push button", "OK").press()
        wait_for("no dialog", lambda: not self.dialogs())
        return told

    def joined_outcome(self, ssid):
        """Joined where the list says so; it does at the next scan."""
        return [None] if (self.window or self.press_icon()) and self.row(JOINED.format(ssid)) else None
