#!/usr/bin/python3 -u
"""main_window.py PROGRAM RESULTS SSID [ARGUMENT...]

Drives PROGRAM's main window through its accessibility tree: selects the access point SSID, reads its details, hides and
shows it, filters, sorts, exports both files to the folder RESULTS, reads the interface's properties and changes the
settings. It knows nothing of the air around: what the window says in one place is compared with what it says in another
and with the files. RESULTS/details.json keeps what the pane said."""

import contextlib
import csv
import functools
import json
import os
import pathlib
import re

from accessible import PATIENCE, Announcements, Failure, Program, check, click, key, run, wait_for

PANE_ROWS = {
    "SSID": "SSID", "BSSID": "BSSID", "Channel": "Channel", "Band": "Band", "Security": "Security",
    "Current RSSI": "RSSI (dBm)", "Country": "Country",
}
SETTINGS = {"scanInterval": ("Scan Interval", "s"), "historyLimit": ("History Points", "")}


class MainWindow:
    """What stays for the window's life is looked for once: a walk through the tree takes seconds on a slow machine."""

    def __init__(self, program):
        self.application = program.application()
        self.frame = self.application.find("frame")

    @functools.cached_property
    def list(self):
        return self.frame.find("list", "Networks")

    @functools.cached_property
    def header(self):
        return next(e for e in self.frame.all("label") if re.fullmatch(r"\d+ Networks", e.name))

    @functools.cached_property
    def pane(self):
        return self.frame.find(name="Network details")

    def rows(self):
        """The SSIDs as the rows name them; isolates keep a name's direction to itself."""
        return [row.name.split("\u2069")[0].strip("\u2068") for row in self.list.children]

    def count(self):
        return int(self.header.name.split()[0])

    def row(self, ssid):
        return self.list.children[self.rows().index(ssid)]

    def select(self, ssid):
        self.row(ssid).act("Toggle")
        self.shows(ssid)

    def shows(self, ssid):
        """Waits until the window is about this access point."""
        wait_for(f"the window about {ssid!r}", lambda: self.frame.name == ssid)

    def details(self):
        return {row.name: row.text for row in self.pane.all("text", showing=False) if row.name}

    def menu_on(self, ssid, entry):
        """The row's context menu, by the keyboard."""
        click(self.row(ssid))
        self.shows(ssid)
        # An open menu is kept out of the tree: what is read out of it are the entries that the focus comes to.
        focus = Announcements("focused")
        key("Menu", "Down")
        focus.expect("menu item", entry)
        key("Return")

    @contextlib.contextmanager
    def dialog(self, button):
        self.frame.find("push button", button).press()
        yield self.application.find("dialog")
        self.application.gone("dialog")

    def save(self, button, path):
        replaces = path.exists()
        with self.dialog(button) as dialog:
            dialog.find("text", "File name:").text = str(path)
            dialog.find("push button", "Save").press()
            if replaces:
                self.application.find("push button", "Yes").press()

    def saved(self, button, path):
        """The rows of the file."""
        self.save(button, path)
        wait_for(path, path.exists)
        with path.open(encoding="utf-8", newline="") as file:
            return list(csv.reader(file))

    def set(self, **settings):
        """By the names of the settings file."""
        with self.dialog("Settings") as dialog:
            for name, value in settings.items():
                label, unit = SETTINGS[name]
                dialog.find("slider", label).value = value
                dialog.find("label", f"{value}{unit}")
            dialog.find("push button", "Save").press()


def first_scan(window):
    wait_for("a first scan", lambda: window.count() > 0)
    check("rows beside the count", len(window.list.children), window.count())
    check("the pane without a selection", len(window.frame.all("label", "Select a network to view details")), 1)


def read_details(window, ssid):
    window.select(ssid)
    details = window.details()
    check("the title", window.frame.name, ssid)
    rssi = int(details["Current RSSI"].removesuffix(" dBm"))
    noise = int(details["Noise Level"].removesuffix(" dBm"))
    check("SNR", details["SNR"], f"{rssi - noise} dB")
    if f"channel {details['Channel']}" not in window.row(ssid).name:
        raise Failure(f"the row says {window.row(ssid).name!r}, the pane channel {details['Channel']}")
    chart = next(e for e in window.pane.walk() if e.name.startswith("Signal History") and e.description)
    for part in (ssid, details["Current RSSI"], " sample"):
        if part not in chart.description:
            raise Failure(f"the chart's description lacks {part!r}: {chart.description!r}")
    print(f"ok: the chart: {chart.description!r}")
    return details


def hide_and_show(window, ssid):
    listed = window.count()
    window.menu_on(ssid, "Hide Network")
    check("a hidden row stays while hidden ones are listed", ssid in window.rows(), True)
    window.frame.find("check box", "All Networks").press()
    window.frame.find("check box", "Hiding Hidden")
    wait_for("one row fewer", lambda: window.count() == listed - 1 and ssid not in window.rows())
    window.frame.find("label", "Select a network to view details")
    window.frame.find("check box", "Hiding Hidden").press()
    wait_for("the row again", lambda: ssid in window.rows())
    window.shows(ssid)
    window.menu_on(ssid, "Show Network")


def sort(window):
    by_signal = window.rows()
    joined = by_signal[:1] if window.list.children[0].name.endswith(", joined") else []
    by_name = joined + sorted(by_signal[len(joined):], key=str.casefold)
    menu = window.frame.find("combo box")

    def choose(steps, order):
        menu.act("ShowMenu")
        wait_for("the menu", lambda: menu.children[0].showing)
        key("Home", *["Down"] * steps, "Return")
        with contextlib.suppress(Failure):
            return wait_for(f"the order {order}", lambda: window.rows() == order, PATIENCE / 12)

    def choose_until_seen(steps, order):
        """A scan that ends before the rows are read has put the list into its own order again."""
        wait_for(f"the order {order}, not {window.rows()}", lambda: choose(steps, order))

    choose_until_seen(1, by_name)
    check("the order's name", (menu.name, menu.description), ("Network Name", "Network Name"))
    choose_until_seen(0, by_signal)
    print(f"ok: by signal {by_signal}, by name {by_name}")


def export(window, ssid, results):
    rows = window.saved("Export network list", results / "list.csv")
    check("the exported rows", [row[0] for row in rows[1:]], window.rows())
    details = window.details()
    record = dict(zip(rows[0], next(row for row in rows[1:] if row[1] == details["BSSID"])))
    for label, column in PANE_ROWS.items():
        if label in details:
            check(f"{label} in the file", record[column], details[label].removesuffix(" dBm"))
    rows = window.saved("Export network data", results / "details.csv")
    check("the exported access point", ssid in [cell for row in rows for cell in row], True)


def compare_with_scenario(details, path):
    """What the radio was told to report, where it is a simulated one."""
    cycles = json.loads(pathlib.Path(path).read_text(encoding="utf-8"))["cycles"]
    heard = next(n for n in cycles[0]["networks"] if n["bssid"] == details["BSSID"])
    check("the SSID on the air", details["SSID"], heard["ssid"])
    check("the channel on the air", details["Channel"], str(heard["channel"]["number"]))
    check("the beacon interval on the air", details["Beacon Interval"], str(heard.get("beaconInterval", 100)))
    levels = [f"{n['rssi']} dBm" for cycle in cycles for n in cycle["networks"] if n["bssid"] == heard["bssid"]]
    check("the signal on the air", details["Current RSSI"] in levels, True)


def interface_texts(dialog):
    texts = [e.name for e in dialog.all("label")] + [e.text for e in dialog.all("text")]
    for label in ("Interface", "Hardware Address", "Transmit Power", "Supported Channels"):
        if label not in texts:
            raise Failure(f"the interface dialog lacks {label}: {texts}")
    return texts


def interface(window):
    with window.dialog("Wi-Fi interface information") as dialog:
        # Its rows are made anew when a reading changes, which may be while they are read.
        print(f"ok: the interface: {wait_for('all rows', lambda: interface_texts(dialog))}")
        key("Return")


def settings(window):
    window.set(scanInterval=15, historyLimit=35)
    lines = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "aerolith/aerolith.conf").read_text().splitlines()
    for line in ("scanInterval=15", "historyLimit=35"):
        check(f"{line} is stored", line in lines, True)


def clear_and_refresh(window):
    window.frame.find("push button", "Clear network list").press()
    wait_for("an empty list", lambda: window.count() == 0)
    window.frame.find("label", "Scanning for networks.\nPlease wait...")
    wait_for("the list again", lambda: window.count() > 0)


def main(path, results, ssid, *arguments):
    with Program(path, *arguments, log=results / "log") as program:
        window = MainWindow(program)
        first_scan(window)
        details = read_details(window, ssid)
        (results / "details.json").write_text(json.dumps(details))
        if "--simulate" in arguments:
            compare_with_scenario(details, arguments[arguments.index("--simulate") + 1])
        hide_and_show(window, ssid)
        sort(window)
        export(window, ssid, results)
        interface(window)
        settings(window)
        clear_and_refresh(window)
        key("ctrl+q")
        check("the status that Quit ends with", program.process.wait(PATIENCE), 0)


if __name__ == "__main__":
    run(main)
