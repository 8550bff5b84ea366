#!/bin/bash
# run.sh COMMAND ARGUMENT...: runs a command in a desktop session of its own, with a display, a session bus, the
# accessibility bus, a window manager and empty settings; none of it is left behind.
set -euo pipefail

if [ -z "${DESKTOP_SESSION_HOME:-}" ]; then
    DESKTOP_SESSION_HOME=$(mktemp -d)
    trap 'rm -rf "$DESKTOP_SESSION_HOME"' EXIT
    # Before the session bus begins: what it starts, the accessibility bus above all, has its files there too.
    export DESKTOP_SESSION_HOME XDG_CONFIG_HOME=$DESKTOP_SESSION_HOME/config
    export XDG_CACHE_HOME=$DESKTOP_SESSION_HOME/cache XDG_RUNTIME_DIR=$DESKTOP_SESSION_HOME/run
    mkdir -m 700 "$XDG_CONFIG_HOME" "$XDG_CACHE_HOME" "$XDG_RUNTIME_DIR"
    dbus-run-session -- xvfb-run --auto-servernum --server-args='-screen 0 1280x900x24' "$0" "$@"
    exit
fi
unset QT_QPA_PLATFORM WAYLAND_DISPLAY
openbox --sm-disable &
until xdotool get_desktop >/dev/null 2>&1; do sleep 0.1; done
exec "$@"
