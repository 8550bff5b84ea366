"""The way to every view of the program, in every language."""

import contextlib
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

from accessible import key, pointer, wait_for
from gi.repository import Atspi
from popover import Popover, tray

TRANSLATIONS = pathlib.Path(__file__).resolve().parents[2] / "translations"


def words(language):
    """What the program calls its parts in a language, by their English names."""
    if language == "ar_XB":
        sys.path.insert(0, str(TRANSLATIONS))
        from pseudo import pseudo

        return pseudo
    translated = {}
    if language:
        for message in ElementTree.parse(TRANSLATIONS / f"{language}.ts").getroot().iter("message"):
            translated[message.findtext("source")] = message.findtext("translation")
    return lambda text: translated.get(text, text)


class Views:
    """In a neighbourhood whose third network has a password: that of survey.json, or the built-in one, where any other
    would do as well."""

    def __init__(self, application, language=None, built_in=False):
        self.built_in = built_in
        self.application = application
        self.popover = Popover(application)
        self.words = words(language)
        self.frame = application.find("frame")
        self.list = self.named("list", "Networks")

    def named(self, role, name):
        return self.application.find(role, self.words(name))

    def opened(self):
        return wait_for("a dialog", self.popover.dialogs)[0]

    def close(self, dialog):
        wait_for("the keyboard in the dialog", lambda: dialog.has(Atspi.StateType.ACTIVE))
        key("Escape")
        wait_for("no dialog", lambda: not self.popover.dialogs())

    @contextlib.contextmanager
    def dialog(self, open_it):
        open_it()
        dialog = self.opened()
        yield dialog
        self.close(dialog)

    def from_button(self, name):
        return self.dialog(lambda: self.named("push button", name).press())

    def about(self):
        """By the keys that lead to the menu bar, open its first menu and choose the first entry."""
        return self.dialog(lambda: key("Alt_L", "Down", "Return"))

    def from_icon(self):
        """The popover, with the pointer on a row, and by keys on: the first shows where they are, two go down to the
        third row."""
        self.popover.open()
        pointer(*wait_for("its second row", lambda: self.popover.rows()[1].centre()))
        yield "popover", self.popover.window
        key("Down", "Down", "Down", "Return")
        dialog = self.opened()
        yield "password", dialog
        if not self.built_in:
            self.named("push button", "Connect").press()
            self.application.gone("dialog", dialog.name)
            dialog = self.opened()
            yield "failure", dialog
        self.close(dialog)

    @contextlib.contextmanager
    def large_window(self):
        """As large as the screen has room for, and the pane scrolled to its end where that is not enough."""
        told = subprocess.check_output(["xdotool", "getactivewindow", "getwindowgeometry", "--shell"], text=True)
        window, width, height = (re.search(rf"{name}=(\d+)", told)[1] for name in ("WINDOW", "WIDTH", "HEIGHT"))
        subprocess.run(["xdotool", "windowsize", "--sync", window, "100%", "95%"], check=True)
        place = self.application.find("chart").centre()
        pointer(*place, "click", "--repeat", 20, 5)
        yield
        pointer(*place, "click", "--repeat", 20, 4)
        subprocess.run(["xdotool", "windowsize", "--sync", window, width, height], check=True)

    def all(self):
        """One after the other: its name and where it is in the tree, while it is open."""
        wait_for("a first scan", lambda: self.list.children)
        yield "backdrop", self.frame
        with tray():
            yield from self.from_icon()
        key("Home", "Down")
        yield "main", self.frame
        with self.large_window():
            yield "details", self.frame
        for name, button in (
            ("settings", "Settings"),
            ("interface", "Wi-Fi interface information"),
            ("save", "Export network list"),
        ):
            with self.from_button(button) as dialog:
                yield name, dialog
        with self.about() as dialog:
            yield "about", dialog
        self.application.find("chart").focus()
        key("Left", "Left", "Left", "Left")
        yield "chart", self.frame
