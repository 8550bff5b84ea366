"""A program as assistive technology meets it: found, read and driven through its accessibility tree alone."""

import contextlib
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = float(os.environ.get("DESKTOP_PATIENCE", "60"))  # seconds; only a failure waits for all of it

WINDOWS = ("frame", "dialog", "alert")
LEAVES = ("list item", "label", "push button", "check box")

# A press is answered when what it does is done: a radio may take its time to switch.
Atspi.set_timeout(int(PATIENCE * 1000), int(PATIENCE * 1000))


class Failure(Exception):
    """What was looked for and not met, with what was there instead."""


def wait_for(what, condition, seconds=PATIENCE):
    """The first true value of condition(); its own failures count as false, for the tree changes while it is read."""
    deadline = time.monotonic() + seconds
    last = None
    while time.monotonic() < deadline:
        try:
            value = condition()
            if value:
                return value
            last = value
        except (GLib.Error, Failure) as error:
            last = error
        time.sleep(0.05)
    raise Failure(f"waited in vain for {what}; last: {last!r}")


def check(what, actual, expected):
    if actual != expected:
        raise Failure(f"{what}: {actual!r} instead of {expected!r}")
    print(f"ok: {what}: {actual!r}")


class Element:
    """One object of the tree. Reads are live: nothing is remembered between them."""

    def __init__(self, accessible):
        self.accessible = accessible

    def __repr__(self):
        with contextlib.suppress(GLib.Error):
            return f"<{self.role} {self.name!r}>"
        return "<gone>"

    @property
    def name(self):
        return self.accessible.get_name()

    @property
    def description(self):
        return self.accessible.get_description()

    @property
    def role(self):
        return self.accessible.get_role_name()

    def has(self, state):
        return self.accessible.get_state_set().contains(state)

    @property
    def showing(self):
        return self.has(Atspi.StateType.SHOWING)

    @property
    def children(self):
        count = self.accessible.get_child_count()
        found = (self.accessible.get_child_at_index(i) for i in range(count))
        return [Element(child) for child in found if child is not None]

    def walk(self, showing=False):
        """This element and all below it, in tree order; without what doesn't show, if asked for. Objects that vanish
        meanwhile are left out."""
        with contextlib.suppress(GLib.Error):
            if showing and not self.showing and self.role != "application":
                return
            yield self
            if self.role in LEAVES:
                return
            for child in self.children:
                yield from child.walk(showing)

    def fits(self, role=None, name=None, showing=False):
        with contextlib.suppress(GLib.Error):
            return role in (None, self.role) and name in (None, self.name) and (self.showing or not showing)
        return False

    def all(self, role=None, name=None, showing=True):
        return [element for element in self.walk(showing) if element.fits(role, name)]

    def find(self, role=None, name=None):
        """The one such element that shows, as soon as there is one."""
        found = wait_for(f"a {role or 'thing'} {name!r} in {self!r}", lambda: self.all(role, name))
        if len(found) > 1:
            raise Failure(f"{len(found)} of {role} {name!r}: {found}")
        return found[0]

    def gone(self, role=None, name=None):
        wait_for(f"no {role or 'thing'} {name!r} in {self!r}", lambda: not self.all(role, name))

    def act(self, *actions):
        """Does the first of these actions that the element offers."""
        offered = [self.accessible.get_action_name(i) for i in range(self.accessible.get_n_actions())]
        for action in actions:
            if action in offered:
                if not self.accessible.do_action(offered.index(action)):
                    raise Failure(f"{self!r} refused {action}")
                return
        raise Failure(f"{self!r} offers {offered}, none of {actions}")

    def press(self):
        self.act("Press", "Toggle", "press", "click")

    def focus(self):
        self.accessible.grab_focus()
        wait_for(f"focus on {self!r}", lambda: self.has(Atspi.StateType.FOCUSED))

    @property
    def value(self):
        return self.accessible.get_current_value()

    @value.setter
    def value(self, number):
        self.accessible.set_current_value(number)

    @property
    def text(self):
        return Atspi.Text.get_text(self.accessible, 0, Atspi.Text.get_character_count(self.accessible))

    @text.setter
    def text(self, content):
        Atspi.EditableText.set_text_contents(self.accessible, content)

    def centre(self):
        box = self.accessible.get_extents(Atspi.CoordType.SCREEN)
        return box.x + box.width // 2, box.y + box.height // 2


class Application(Element):
    def all(self, role=None, name=None, showing=True):
        """Windows are looked for among its children alone: to read the whole tree takes seconds on a slow machine."""
        if role not in WINDOWS:
            return super().all(role, name, showing)
        return [window for window in self.children if window.fits(role, name, showing)]


def key(*names):
    """Presses keys one after the other, by their X names, with whatever has the keyboard focus."""
    subprocess.run(["xdotool", "key", "--delay", "200", *names], check=True)


class Announcements:
    """What is told of objects that come into a state, as their roles and names at that moment."""

    def __init__(self, state):
        self.told = []
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register(f"object:state-changed:{state}")

    def hear(self, event):
        # What has shown may be gone by now.
        with contextlib.suppress(GLib.Error):
            if event.detail1 and event.source:
                event.source.clear_cache()
                self.told.append((event.source.get_role_name(), event.source.get_name()))

    def expect(self, role, name):
        """Not before what has been expected last."""

        def heard():
            while GLib.MainContext.default().iteration(False):
                pass
            return (role, name) in self.told

        wait_for(f"{role} {name!r} to be told of", heard)
        print(f"ok: told of {role} {name!r}")
        self.told = []


def pointer(x, y, *what):
    """Moves it, and does what xdotool calls so there."""
    subprocess.run(["xdotool", "mousemove", *map(str, (x, y, *what))], check=True)


def click_at(x, y):
    pointer(x, y, "click", 1)


def click(element):
    """The pointer's first button in the middle of an element."""
    click_at(*element.centre())


def store_settings(**values):
    """What a program that is started afterwards finds as the user's settings."""
    path = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "aerolith", "aerolith.conf")
    path.parent.mkdir()
    path.write_text("[General]\n" + "".join(f"{key}={value}\n" for key, value in values.items()))


class Program:
    """The built program, running on the display of this session until the end of the with block."""

    def __init__(self, path, *arguments, log):
        self.command = [path, *arguments]
        self.log_path = log

    def __enter__(self):
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        with open(self.log_path, "wb") as log:
            self.process = subprocess.Popen(self.command, env=environment, stdout=log, stderr=subprocess.STDOUT)
        return self

    def __exit__(self, failed, *_):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGTERM)
            with contextlib.suppress(subprocess.TimeoutExpired):
                self.process.wait(PATIENCE)
        if self.process.poll() is None:
            self.process.kill()
            raise Failure("the program did not end when asked to")
        # Also where a sanitizer has found something.
        if self.process.returncode != 0 and failed is None:
            raise Failure(f"the program ended with {self.process.returncode}: {self.log()[-4000:]}")

    def application(self):
        """The program's own root in the tree."""

        def found():
            if self.process.poll() is not None:
                raise SystemExit(f"the program ended with {self.process.returncode}: {self.log()}")
            desktop = Element(Atspi.get_desktop(0))
            return next((a for a in desktop.children if a.accessible.get_process_id() == self.process.pid), None)

        application = wait_for("the program in the accessibility tree", found)
        # What an object is stays; anything else may change.
        application.accessible.set_cache_mask(Atspi.Cache.ROLE)
        return Application(application.accessible)

    def log(self):
        return pathlib.Path(self.log_path).read_text(encoding="utf-8")


def run(main):
    """Runs a script's main with the command line's arguments: a program, the folder of its results, which is emptied
    before, and what else there is. A failure is its last word and its exit status."""
    path, results, *arguments = sys.argv[1:]
    results = pathlib.Path(results).absolute()
    shutil.rmtree(results, ignore_errors=True)
    results.mkdir(parents=True, exist_ok=True)
    try:
        main(path, results, *arguments)
    except Failure as failure:
        sys.exit(f"failed: {failure}")
    print("ok: ended")
