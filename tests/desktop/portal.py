#!/usr/bin/python3
"""portal.py PROGRAM RESULTS [ARGUMENT...]

Exports the list of PROGRAM where the desktop's portal, not the program, asks the user for a file: a portal of this
script's own, whose user takes RESULTS/chosen.csv. RESULTS keeps the file and the log."""

import csv
import os

from accessible import Program, check, run, wait_for
from bus_service import BusService
from gi.repository import GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
INTERFACES = """<node>
  <interface name="org.freedesktop.portal.FileChooser">
    <method name="SaveFile">
      <arg direction="in" type="s"/><arg direction="in" type="s"/><arg direction="in" type="a{sv}"/>
      <arg direction="out" type="o"/>
    </method>
    <property name="version" type="u" access="read"/>
  </interface>
</node>"""


class Portal:
    def __init__(self, answer):
        self.answer = answer
        self.asked = []
        self.service = BusService(NAME, PATH, INTERFACES, self.save_file, {"version": GLib.Variant("u", 3)})

    def save_file(self, bus, sender, _method, arguments):
        _parent, _title, options = arguments
        self.asked.append(options)
        request = f"{PATH}/request/{sender[1:].replace('.', '_')}/{options['handle_token']}"
        results = {"uris": GLib.Variant("as", [self.answer.as_uri()])}

        def respond(*_):
            bus.emit_signal(None, request, "org.freedesktop.portal.Request", "Response",
                            GLib.Variant("(ua{sv})", (0, results)))

        # Not before the program listens, which it does once it has the answer to its call: a user takes longer.
        source = GLib.timeout_source_new(1000)
        source.set_callback(respond)
        source.attach(GLib.MainContext.get_thread_default())
        return GLib.Variant("(o)", (request,))


def main(path, results, *arguments):
    chosen = results / "chosen.csv"
    portal = Portal(chosen)
    os.environ["QT_QPA_PLATFORMTHEME"] = "xdgdesktopportal"
    with Program(path, *arguments, log=results / "log") as program:
        application = program.application()
        rows = wait_for("the rows", lambda: application.find("list", "Networks").children)
        application.find("push button", "Export network list").press()
        wait_for("the file", chosen.exists)
        check("the portal was asked once", len(portal.asked), 1)
        check("the name that was suggested", portal.asked[0]["current_name"], "wifi_networks.csv")
        with open(chosen, encoding="utf-8", newline="") as file:
            check("the exported rows", len(list(csv.reader(file))), len(rows) + 1)
        check("no dialog of the program's own", application.all("dialog"), [])


run(main)
