#!/bin/bash
# install.sh PACKAGE: installs the package in a system of its own, runs both programs from there, and removes it again.
set -euo pipefail
trap 'echo "Failed: $BASH_COMMAND" >&2' ERR

if [ "${2:-}" = window ]; then
    # In a desktop session: the window comes up, and goes when the program is asked to end.
    "$1/usr/bin/aerolith" --simulate &
    timeout 60 xdotool search --sync --onlyvisible --class '^Aerolith$' >/dev/null
    kill $!
    wait $!
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
XDG_DATA_DIRS=$system/usr/share:/usr/share "$(dirname "$0")/../desktop/run.sh" "$0" "$system" window
dpkg_there --purge aerolith

left=$(find "$system" -path "$system/var" -prune -o -type f -print)
[ -z "$left" ] || {
    echo "Left behind: $left" >&2
    exit 1
}
