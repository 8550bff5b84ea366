"""The way to every view of the program, in every language."""

import contextlib
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

from accessible import key, wait_for
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
    """The scenario is survey.json."""

    def __init__(self, application, language=None):
        self.application = application
        self.popover = Popover(application)
        self.words = words(language)
        self.frame = application.find("frame")

    def named(self, role, name):
        return self.application.find(role, self.words(name))

    @contextlib.contextmanager
    def dialog(self, opened):
        opened()
        dialog = wait_for("a dialog", self.popover.dialogs)[0]
        yield dialog
        wait_for("the keyboard in the dialog", lambda: dialog.has(Atspi.StateType.ACTIVE))
        key("Escape")
        wait_for("no dialog", lambda: not self.popover.dialogs())

    def from_button(self, name):
        return self.dialog(lambda: self.named("push button", name).press())

    def about(self):
        """By the keys that lead to the menu bar, open its first menu and choose the first entry."""
        return self.dialog(lambda: key("Alt_L", "Down", "Return"))

    def join_with_wrong_password(self):
        """From the open popover, by keys: the first shows where they are, two go down to the third row."""
        key("Down", "Down", "Down", "Return")
        dialog = wait_for("a dialog", self.popover.dialogs)[0]
        yield "password", dialog
        self.named("push button", "Connect").press()
        with self.dialog(lambda: self.application.gone("dialog", dialog.name)) as failure:
            yield "failure", failure

    def all(self):
        """One after the other: its name and where it is in the tree, while it is open."""
        wait_for("a first scan", lambda: self.named("list", "Networks").children)
        yield "backdrop", self.frame
        self.named("list", "Networks").children[0].act("Toggle")
        yield "main", self.frame
        for name, button in (
            ("settings", "Settings"),
            ("interface", "Wi-Fi interface information"),
            ("save", "Export network list"),
        ):
            with self.from_button(button) as dialog:
                yield name, dialog
        with self.about() as dialog:
            yield "about", dialog
        with tray():
            self.popover.open()
            yield "popover", self.popover.window
            yield from self.join_with_wrong_password()
