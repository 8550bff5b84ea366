# shellcheck shell=bash
# Aerolith beside the graphical tools that list networks on Debian, each started cold among 60 and among 500 made-up
# access points. Sourced in the guest; judged on the host by peers.py.

start_screen() {
    mkdir -p /run/root /run/screen /tmp/.X11-unix
    export DISPLAY=:9 HOME=/run/root
    Xvfb :9 -screen 0 1280x900x24 -nolisten tcp -fbdir /run/screen 2>/run/Xvfb.log &
    wait_for 60 xdotool getmouselocation
    openbox --sm-disable 2>/run/openbox.log &
    wait_for 60 xdotool get_desktop
    trayer >/dev/null 2>&1 &
}

PEER=(/usr/bin/python3 -B "$(dirname "$SCENARIO")/peer.py")

# peer NAME SIZE: what it takes, in /out/NAME-SIZE.json. All run as root: one that scans by itself has to.
peer() {
    local out=/out/$1-$2
    mkdir /sys/fs/cgroup/program
    timeout -k 5 600 dbus-run-session -- "${PEER[@]}" "$1" "$out.json" /run/screen/Xvfb_screen0 >"$out.log" 2>&1
    echo 1 >/sys/fs/cgroup/program/cgroup.kill
    wait_for 30 rmdir /sys/fs/cgroup/program
    station_is_managed
    say "$1 among $2: $(tail -n 1 "$out.log")"
}

# keep_services_apart: their time is that of whoever asks them to scan.
keep_services_apart() {
    local pid
    mkdir /sys/fs/cgroup/services
    for pid in $(pidof NetworkManager wpa_supplicant dbus-daemon); do
        echo "$pid" >/sys/fs/cgroup/services/cgroup.procs
    done
}

export PROGRAM SUPPLICANT_SOCKETS=/run/wpa_supplicant
start_radios
start_network_manager
keep_services_apart
iw event -t >/run/scans.log &
start_screen
for size in $CROWD; do
    [ -z "${MEDIUM:-}" ] || kill "$MEDIUM"
    start_medium "/out/plan/crowd-$size"
    for name in $("${PEER[@]}"); do peer "$name" "$size"; done
done
network_manager_lives
