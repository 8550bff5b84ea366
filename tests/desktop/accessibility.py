#!/usr/bin/python3
"""accessibility.py PROGRAM RESULTS ARGUMENT...

Walks the accessibility tree of every view of PROGRAM: each control has a name, the keyboard reaches each control of the
window, the end of a scan is told. Then again in the pseudo-language: every text that is not verbatim is translated.
RESULTS keeps the log."""

import os
import re

from accessible import Announcements, Element, Failure, Program, check, click, key, run, wait_for
from gi.repository import Atspi
from views import Views

CONTROLS = {
    "chart", "check box", "combo box", "dialog", "frame", "list", "list item", "menu item", "password text",
    "progress bar", "push button", "slider", "text",
}
NOT_SAID = {"unknown", "invalid"}
# Of the rows that show an access point or the interface as a report has them.
VERBATIM = {
    "Aerolith", "Current RSSI", "Noise Level", "SNR", "SSID", "BSSID", "Channel", "Band", "Channel Width", "Security",
    "Country", "Beacon Interval", "Network Type", "PHY Modes", "Interface", "Hardware Address", "IP Address",
    "Connected Network", "Transmit Power", "Supported Channels",
}
NETWORKS = ("Home & <b>Garden</b>", "100%s café", "Workshop", "Canal Boat")
WINDOW_BY_TAB = {
    "Networks", "Export network list", "Clear network list", "Signal Strength", "Signal History", "Export network data",
    "Refresh network data", "Hide sidebar", "Settings", "Wi-Fi interface information", "All Networks",
}


def labels_of(element):
    relations = element.accessible.get_relation_set()
    labelled = [r for r in relations if r.get_relation_type() == Atspi.RelationType.LABELLED_BY]
    return [Element(r.get_target(i)).name for r in labelled for i in range(r.get_n_targets())]


def nameless(view):
    for element in view.walk(showing=True):
        if element.role in NOT_SAID:
            yield f"role {element.role} of {element.name!r}"
        elif element.role in CONTROLS and not element.name and not any(labels_of(element)):
            yield f"{element.role} in {view!r}"


def untranslated(view):
    """Names and descriptions with a word of English: the pseudo-language has no vowel without an accent."""
    for element in view.walk(showing=True):
        for text in (element.name, element.description):
            for name in NETWORKS:
                text = text.replace(name, "")
            if text not in VERBATIM and re.search(r"[a-z]*[aeiou][a-z]+", text):
                yield text


def judge(views, faults_of, left_out=()):
    faults = []
    for name, view in views.all():
        if name in left_out:
            continue
        found = list(faults_of(view))
        print(f"{name}: {len(list(view.walk(showing=True)))} objects, {len(found)} faults")
        faults += [f"{name}: {fault}" for fault in found]
    check(faults_of.__name__, faults, [])


def focused(frame):
    """A list's current item says that it has the focus also while the list has not."""
    found = [e for e in frame.walk(showing=True) if e.has(Atspi.StateType.FOCUSED) and e.role in CONTROLS]
    return next((e for e in found if e.role != "list item"), found[0] if found else None)


def tab_through(frame):
    """The keyboard reaches everything in the window, and comes back to where it was."""
    click(next(e for e in frame.all("label") if e.name.endswith("Networks")))
    reached = []
    for _ in range(2 * len(WINDOW_BY_TAB)):
        key("Tab")
        element = focused(frame)
        reached.append(element.name.split(",")[0] if element else None)
    missed = WINDOW_BY_TAB - set(reached) - {"Networks"}
    if missed or not any(name and name.strip("\u2068\u2069") in NETWORKS for name in reached):
        raise Failure(f"the Tab key does not reach {missed}, but {reached}")
    print(f"ok: the Tab key goes through {reached[: len(WINDOW_BY_TAB)]}")


def open_by_keys(views):
    """The button that opens a sheet, what is in it, and back to the button."""
    for _ in WINDOW_BY_TAB:
        if focused(views.frame).name == "Settings":
            break
        key("Tab")
    with views.dialog(lambda: key("space")) as dialog:
        reached = set()
        for _ in range(5):
            key("Tab")
            reached.add(focused(dialog).name)
        check("the keys reach in the settings", reached,
              {"Scan Interval", "History Points", "Start at login", "Cancel", "Save"})
    wait_for("the focus on the button again", lambda: focused(views.frame).name == "Settings")


def walk_in_english(path, results, *arguments):
    announcements = Announcements("showing")
    with Program(path, *arguments, log=results / "log") as program:
        views = Views(program.application())
        announcements.expect("notification", "Scan finished: 4 networks")
        judge(views, nameless, left_out={"save"})
        tab_through(views.frame)
        open_by_keys(views)
        views.named("push button", "Refresh network data").press()
        announcements.expect("notification", "Scan finished: 4 networks")


def walk_in_pseudo_language(path, results, *arguments):
    os.environ.update(LANG="ar_XB.UTF-8", LANGUAGE="", LC_ALL="")
    with Program(path, *arguments, log=results / "log-pseudo") as program:
        # Where the time is told in words, and the system's own dialog, the words are others'.
        judge(Views(program.application(), "ar_XB"), untranslated, left_out={"save"})


def main(*arguments):
    walk_in_english(*arguments)
    walk_in_pseudo_language(*arguments)


run(main)
