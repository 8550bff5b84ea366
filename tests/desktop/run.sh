#!/bin/bash
# run.sh x11|wayland COMMAND ARGUMENT...: runs a command in a desktop session of its own, with a display, a session bus,
# the accessibility bus, a window manager and empty settings; none of it is left behind. DESKTOP_SCREEN is the screen's
# size.
set -euo pipefail

if [ -z "${DESKTOP_SESSION_HOME:-}" ]; then
    DESKTOP_SESSION_HOME=$(mktemp -d)
    trap 'rm -rf "$DESKTOP_SESSION_HOME"' EXIT
    # Before the session bus begins: what it starts, the accessibility bus above all, has its files there too.
    export DESKTOP_SESSION_HOME XDG_CONFIG_HOME=$DESKTOP_SESSION_HOME/config
    export XDG_CACHE_HOME=$DESKTOP_SESSION_HOME/cache XDG_RUNTIME_DIR=$DESKTOP_SESSION_HOME/run
    mkdir -m 700 "$XDG_CONFIG_HOME" "$XDG_CACHE_HOME" "$XDG_RUNTIME_DIR"
    dbus-run-session -- "$0" "$@"
    exit
fi
trap 'kill $(jobs -p) 2>/dev/null || true' EXIT
unset QT_QPA_PLATFORM WAYLAND_DISPLAY
desktop=$1
shift
case $desktop in
    x11)
        # The server itself finds a display that is free; looking for one first is a race between two sessions.
        mkfifo "$DESKTOP_SESSION_HOME/display"
        Xvfb -displayfd 3 -screen 0 "${DESKTOP_SCREEN:-1280x900}x24" -nolisten tcp 3>"$DESKTOP_SESSION_HOME/display" &
        read -r number <"$DESKTOP_SESSION_HOME/display"
        export DISPLAY=:$number
        openbox --sm-disable &
        until xdotool get_desktop >/dev/null 2>&1; do sleep 0.1; done
        ;;
    wayland)
        unset DISPLAY
        export WAYLAND_DISPLAY=desktop QT_QPA_PLATFORM=wayland
        weston --backend=headless-backend.so --use-pixman --width=1280 --height=900 --idle-time=0 \
            --socket="$WAYLAND_DISPLAY" >"$DESKTOP_SESSION_HOME/weston.log" 2>&1 &
        until [ -S "$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY" ]; do sleep 0.1; done
        ;;
esac
"$@"
