#!/bin/bash
# install.sh PACKAGE: installs the package in a system of its own, runs both programs from there, and removes it again.
set -euo pipefail
trap 'echo "Failed: $BASH_COMMAND" >&2' ERR

window_of_process() {
    timeout 60 xdotool search --sync --all --onlyvisible --pid "$1" --class '^Aerolith$' >/dev/null
}

# In a desktop session: the window comes up, once by command and once by the session bus, and goes with the program.
if [ "${2:-}" = in-session ]; then
    "$1/usr/bin/aerolith" --simulate &
    window_of_process $!
    kill $!
    wait $!

    dbus-update-activation-environment DISPLAY XAUTHORITY
    gdbus call --session --timeout 60 --dest org.aerolith.Aerolith --object-path /org/aerolith/Aerolith \
        --method org.freedesktop.Application.Activate '@a{sv} {}'
    pid=$(pgrep --full "^$1/usr/bin/aerolith\$")
    window_of_process "$pid"
    kill "$pid"
    timeout 60 tail --pid "$pid" --follow /dev/null
    exit
fi

system=$(mktemp -d)
trap 'rm -rf "$system"' EXIT
mkdir -p "$system"/var/lib/dpkg/{info,updates}
touch "$system/var/lib/dpkg/status"
dpkg_there() {
    # The libraries are this machine's.
    fakeroot dpkg --root="$system" --log=/dev/null --force-not-root --force-bad-path --force-depends "$@"
}

dpkg_there --install "$1"
XDG_CONFIG_HOME=$system/var/config "$system/usr/bin/aerolith-scan" --simulate --cycles 1 --list "$system/var/air.csv"
grep -q '^"Willow Cottage",' "$system/var/air.csv"

# To the session bus that system's root is here. The machine's own Wi-Fi is left alone.
sed -i "s,^Exec=,&$system," "$system/usr/share/dbus-1/services/org.aerolith.Aerolith.service"
XDG_DATA_DIRS=$system/usr/share:/usr/share DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent \
    "$(dirname "$0")/../desktop/run.sh" x11 "$0" "$system" in-session
dpkg_there --purge aerolith

left=$(find "$system" -path "$system/var" -prune -o -type f -print)
[ -z "$left" ] || {
    echo "Left behind: $left" >&2
    exit 1
}
