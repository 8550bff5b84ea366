#!/usr/bin/python3 -u
"""joining.py PROGRAM RESULTS PASSWORD SSID...

Drives PROGRAM on live access points, as a user who begins without the permission to scan: waits for it (RESULTS/refused
is made when the window says that it is missing), then joins each SSID from the popover, the first one with a wrong
password before, and switches the radio. What NetworkManager says meanwhile is NetworkManager's own client's word."""

import subprocess

from accessible import Program, check, key, run, wait_for
from popover import JOINED, Popover, tray

REFUSED = "Location access is required\nto scan for networks.\n\nPlease enable it\nin System Settings."
TRIES = 3  # an access point at times loses a handshake, which is no fault of the station


def network_manager(*arguments):
    return subprocess.run(["nmcli", "--terse", *arguments], check=True, capture_output=True, text=True).stdout


def profiles():
    """The names of the stored Wi-Fi networks."""
    listed = network_manager("--fields", "NAME,TYPE", "connection", "show").splitlines()
    return sorted(line.removesuffix(":802-11-wireless") for line in listed if line.endswith(":802-11-wireless"))


def in_use(state):
    """The names of the Wi-Fi networks whose connection is in that state."""
    listed = network_manager("--fields", "NAME,TYPE,STATE", "connection", "show", "--active").splitlines()
    end = f":802-11-wireless:{state}"
    return [line.removesuffix(end) for line in listed if line.endswith(end)]


def begin(application, results):
    application.find("label", REFUSED)
    print("ok: the window says that access is missing")
    (results / "refused").touch()
    wait_for("the first rows", lambda: application.all("list item"))
    check("the words about access are gone", application.all("label", REFUSED), [])


def refuse_wrong_password(popover, ssid, password):
    told = popover.connect(ssid, password[::-1])
    print(f"ok: the wrong password: {told!r}")
    check("the failure names the password", "password" in (told or ""), True)
    wait_for("no profile after the failure", lambda: not profiles())


def join(application, popover, ssid, password):
    for _ in range(TRIES):
        told = popover.connect(ssid, password)
        # The row is marked as soon as the radio has joined; an address may still be missing.
        wait_for("NetworkManager to be done", lambda: not in_use("activating"))
        if told is None and in_use("activated") == [ssid]:
            break
        told = told or popover.failure()
        print(f"note: {ssid}: {told!r}")
        popover.open()
    check(f"joining {ssid}", told, None)
    first = popover.rows()[0].name
    check("the popover's first row", first.startswith(JOINED.format(ssid)), True)
    main_list = application.find("frame").find("list", "Networks")
    wait_for("the main window's first row", lambda: main_list.children[0].name.endswith(", joined"))


def switch_radio(application, popover):
    for state, flip in (("disabled", "off"), ("enabled", "on")):
        popover.open()
        popover.window.find("check box", "Wi-Fi").press()
        wait_for(f"the radio {flip}", lambda: network_manager("radio", "wifi").strip() == state)
        key("Escape")
        popover.closed()
    wait_for("the rows again", lambda: application.find("frame").all("list item"))
    print("ok: the radio goes off and on")


def main(path, results, password, *ssids):
    with Program(path, log=results / "log") as program, tray():
        application = program.application()
        begin(application, results)
        popover = Popover(application)
        refuse_wrong_password(popover, ssids[0], password)
        for ssid in ssids:
            join(application, popover, ssid, password)
        check("the stored networks", profiles(), sorted(ssids))
        key("Escape")
        popover.closed()
        switch_radio(application, popover)


run(main)
