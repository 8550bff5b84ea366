# shellcheck shell=bash
# Aerolith beside the graphical tools that list networks on Debian, each started cold among 60 and among 500 made-up
# access points. Sourced in the guest; judged on the host by peers.py.

# crowd SIZE: that many access points are on the air from now on, and the kernel has forgotten any others.
crowd() {
    [ -z "${MEDIUM:-}" ] || kill "$MEDIUM"
    start_medium "/out/plan/crowd-$1"
}

start_screen() {
    mkdir -p /run/root /run/screen /tmp/.X11-unix
    export DISPLAY=:9 HOME=/run/root
    Xvfb :9 -screen 0 1280x900x24 -nolisten tcp -fbdir /run/screen 2>/run/Xvfb.log &
    wait_for 60 xdotool getmouselocation
    openbox --sm-disable 2>/run/openbox.log &
    wait_for 60 xdotool get_desktop
    trayer >/dev/null 2>&1 &
}

# peer SIZE NAME COMMAND...: what it takes, in /out/NAME-SIZE.json. All run as root: one that scans by itself has to.
peer() {
    local size=$1 name=$2
    shift 2
    mkdir /sys/fs/cgroup/program
    timeout -k 5 600 dbus-run-session -- /usr/bin/python3 -B "$(dirname "$SCENARIO")/peer.py" "$name" "/out/$name-$size.json" \
        /run/screen/Xvfb_screen0 "$@" >"/out/$name-$size.log" 2>&1
    echo 1 >/sys/fs/cgroup/program/cgroup.kill
    wait_for 30 rmdir /sys/fs/cgroup/program
    say "$name among $size: $(tail -n 1 "/out/$name-$size.log")"
}

# keep_services_apart: their time is that of whoever asks them to scan.
keep_services_apart() {
    local pid
    mkdir /sys/fs/cgroup/services
    for pid in $(pidof NetworkManager wpa_supplicant dbus-daemon); do
        echo "$pid" >/sys/fs/cgroup/services/cgroup.procs
    done
}

SUPPLICANT_SOCKETS=/run/wpa_supplicant
start_radios
start_network_manager
keep_services_apart
iw event -t >/run/scans.log &
start_screen
for size in $CROWD; do
    crowd "$size"
    peer "$size" aerolith "$PROGRAM"
    peer "$size" linssid linssid
    peer "$size" wpa_gui wpa_gui -i wlan0 -p "$SUPPLICANT_SOCKETS"
done
network_manager_lives
