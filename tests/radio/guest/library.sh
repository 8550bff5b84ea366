# shellcheck shell=bash
# What scenarios are written with. Sourced in the guest, as root. Every wait is bounded.

USER_ID=2100 # of the unprivileged user "tester"

say() { echo "guest: $* [$(cut -d' ' -f1 /proc/uptime) s]"; }

# finish: hands out the services' logs and powers off.
finish() {
    cp /run/*.log /out/ 2>/dev/null
    sync
    poweroff -f
}

# give_up REASON...: ends the guest without its last word, which fails the run.
give_up() {
    say "gives up: $*"
    finish
}

# wait_for SECONDS COMMAND...: until COMMAND succeeds; says so and fails when it has not in time.
wait_for() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$deadline" ] || { say "waited in vain for: $*"; return 1; }
        sleep 0.2
    done
}

mount_system_folders() {
    mount -t tmpfs tmpfs /run
    mkdir -p /run/dbus /run/lock /run/observed /dev/pts /dev/shm
    mount -t devpts devpts /dev/pts
    mount -t tmpfs tmpfs /dev/shm
    mount -t debugfs debugfs /sys/kernel/debug
    mount -t cgroup2 cgroup2 /sys/fs/cgroup
    ln -sfn /proc/self/fd /dev/fd
    # Empty folders of our own over those that only root may read on the host.
    mkdir -p /etc/polkit-1/rules.d /etc/NetworkManager/system-connections /var/lib/NetworkManager /lib/modules
    mount -t tmpfs tmpfs /etc/polkit-1/rules.d
    mount -t tmpfs -o mode=700 tmpfs /etc/NetworkManager/system-connections
    mount -t tmpfs -o mode=700 tmpfs /var/lib/NetworkManager
    ln -sfn "$MODULES" "/lib/modules/$(uname -r)"
}

start_system_services() {
    /lib/systemd/systemd-udevd --daemon # without it NetworkManager leaves devices unmanaged
    ip link set lo up
    start_bus
}

start_bus() {
    dbus-daemon --system --fork
    /usr/lib/polkit-1/polkitd --no-debug >>/run/polkitd.log 2>&1 &
    wait_for 90 busctl --system status org.freedesktop.PolicyKit1
}

add_user() {
    echo "tester:x:$USER_ID:$USER_ID::/run/home:/bin/bash" >>/etc/passwd
    echo "tester:x:$USER_ID:" >>/etc/group
    install -d -o $USER_ID -g $USER_ID /run/home "/run/user/$USER_ID"
    install -m 755 "$PROGRAM" /run/program # the build tree may be closed to other users
}

as_user() {
    env -i PATH="$PATH" LC_ALL=C.UTF-8 HOME=/run/home USER=tester XDG_RUNTIME_DIR="/run/user/$USER_ID" \
        setpriv --reuid=$USER_ID --regid=$USER_ID --clear-groups "$@"
}

# observe NAME SECONDS ARGUMENT...: runs the program as the unprivileged user, in a folder of its own. What it leaves
# there ends up in /out/NAME, with its standard output, standard error, exit status (124: not done within SECONDS) and
# times.
observe() { observe_command "$1" "$2" /run/program "${@:3}"; }

# drive NAME SECONDS SCRIPT ARGUMENT...: the same with one of the scripts that drive a window through its accessibility
# tree, in a desktop session of its own; the program and the folder come before the arguments.
drive() {
    if [ ! -e /run/desktop ]; then
        cp -r "$BED/../desktop" /run/desktop
        chmod -R a+rX /run/desktop # like the program's folder
        mkdir -p -m 1777 /tmp/.X11-unix
    fi
    observe_command "$1" "$2" env DESKTOP_PATIENCE=240 /run/desktop/run.sh x11 "/run/desktop/$3" /run/program . "${@:4}"
}

observe_command() {
    local name=$1 seconds=$2 folder=/run/observed/$1 out=/out/$1
    shift 2
    install -d -o $USER_ID -g $USER_ID "$folder"
    mkdir -p "$out"
    date +%s.%N >"$out/begun"
    (cd "$folder" && as_user timeout -k 5 "$seconds" "$@") >"$out/stdout" 2>"$out/stderr"
    echo $? >"$out/status"
    date +%s.%N >"$out/ended"
    iw dev wlan0 scan dump -u >"$out/iw.txt" 2>/dev/null
    cp -r "$folder/." "$out/"
    say "$name: status $(cat "$out/status"): $(tail -n 1 "$out/stderr")"
}

# start_radios: one simulated radio for the station (wlan0) and one for each of the plan's. The latter go into a
# network namespace, so that NetworkManager sees a single Wi-Fi device.
start_radios() {
    local phy
    modprobe mac80211_hwsim radios=$((RADIOS + 1)) || give_up "no simulated radios"
    for module in ccm cmac gcm arc4; do modprobe -q "$module"; done
    udevadm trigger --subsystem-match=net --subsystem-match=rfkill --subsystem-match=ieee80211
    udevadm settle -t 30
    ip netns add radios
    ip -n radios link set lo up
    for phy in $(seq "$RADIOS"); do iw phy "phy$phy" set netns name radios; done
    say "$RADIOS radios"
    iw reg set "$COUNTRY"
    wait_for 90 sh -c "iw reg get | grep -q 'country $COUNTRY'"
}

among_radios() { ip netns exec radios "$@"; }

hostapd_asks() { among_radios hostapd_cli -p /run/hostapd -i "$@"; }

access_point_runs() { hostapd_asks "$1" status | grep -q '^state=ENABLED'; }

# set_signals: each radio's strength, which the kernel takes as an unsigned number only.
set_signals() {
    local number
    for number in $(seq "$RADIOS"); do
        printf %u "${RX_RSSI[$number]}" >"/sys/kernel/debug/ieee80211/phy$number/hwsim/rx_rssi"
    done
}

# start_medium FILE: what the station hears, from now on and as long as $MEDIUM runs, is what FILE makes up.
start_medium() {
    "$(dirname "$PROGRAM")/radio-medium" "$1" >/run/medium.log 2>&1 &
    MEDIUM=$!
    wait_for 90 grep -q ready /run/medium.log || give_up "no medium: $(cat /run/medium.log)"
}

# start_access_points: every one of the plan, each radio at its signal strength and with its address. An access point is
# a machine of its own, which does not wait for the station's programs: hostapd goes before them. Otherwise stations ask
# again before they are answered, and OWE, which makes a new key for each request, never ends.
start_access_points() {
    local number file files
    set_signals
    for number in "${!ADDRESSES[@]}"; do among_radios ip link set "wlan$number" address "${ADDRESSES[$number]}"; done
    # In the order of their numbers: hostapd listens to its neighbours before it uses 40 MHz.
    mapfile -t files < <(printf '%s\n' /out/plan/wlan*.conf | sort -V)
    among_radios chrt --fifo 50 hostapd -B -f /run/hostapd.log "${files[@]}" ||
        give_up "hostapd has failed: $(tail -n 5 /run/hostapd.log)"
    say "hostapd has started"
    for file in "${files[@]}"; do
        file=${file##*/}
        wait_for 90 access_point_runs "${file%.conf}" || give_up "${file%.conf} has no access point"
    done
    for file in /out/plan/*.cell; do [ ! -e "$file" ] || start_cell "$file"; done
}

# start_cell FILE: the ad hoc network of a radio of the plan.
start_cell() {
    local interface=${1##*/} arguments
    interface=${interface%.cell}
    read -ra arguments <"$1"
    among_radios iw dev "$interface" set type ibss
    among_radios ip link set "$interface" up
    among_radios iw dev "$interface" ibss join "${arguments[@]}" || give_up "$interface has no ad hoc network"
}

# change_access_points STATE: those that the plan has another state of become it.
change_access_points() {
    local file interface key value
    for file in /out/plan/*."$1"; do
        interface=${file##*/} interface=${interface%.*}
        hostapd_asks "$interface" disable >/dev/null
        while IFS='=' read -r key value; do
            hostapd_asks "$interface" set "$key" "$value" | grep -q OK || say "$interface refuses $key=$value"
        done <"$file"
        hostapd_asks "$interface" enable >/dev/null
    done
    for file in /out/plan/*."$1"; do
        interface=${file##*/}
        wait_for 30 access_point_runs "${interface%.*}"
    done
    say "access points changed: $1"
}

# capture_air SECONDS: what passes meanwhile, in /out/air.pcap.
capture_air() {
    ip link set hwsim0 up
    python3 "$BED/guest/capture.py" "$1" /run/air.pcap
    ip link set hwsim0 down
    cp /run/air.pcap /out/
    say "captured $(stat -c %s /run/air.pcap) bytes"
}

# serve_addresses: a DHCP server behind every access point, each with a network of its own.
serve_addresses() {
    local interface number=0 file
    for interface in $(among_radios iw dev | awk '$1 == "Interface" {print $2}'); do
        number=$((number + 1)) file=/run/udhcpd.$interface
        among_radios ip address add "10.0.$number.1/24" dev "$interface"
        printf '%s\n' "interface $interface" "start 10.0.$number.10" "end 10.0.$number.20" \
            "option subnet 255.255.255.0" "lease_file $file.leases" "pidfile $file.pid" >"$file.conf"
        touch "$file.leases"
        among_radios busybox udhcpd -a 100 "$file.conf"
    done
}

switch_off_access_point() { hostapd_asks "$1" disable >/dev/null; }

station_state_is_at_least() { [ "$(nmcli -g GENERAL.STATE device show wlan0 | cut -d' ' -f1)" -ge "$1" ]; }

# start_network_manager: it manages wlan0 alone and keeps no profile.
start_network_manager() {
    cat >/run/NetworkManager.conf <<'CONFIGURATION'
[main]
plugins=keyfile
no-auto-default=*
dns=none
[keyfile]
unmanaged-devices=interface-name:*,except:interface-name:wlan0
[device]
wifi.scan-rand-mac-address=no
CONFIGURATION
    start_supplicant
    run_network_manager
}

# With a socket for other programs too where SUPPLICANT_SOCKETS names a folder for it.
start_supplicant() {
    wpa_supplicant -u ${SUPPLICANT_SOCKETS:+-O "$SUPPLICANT_SOCKETS"} -B -s -f /run/wpa_supplicant.log
}

run_network_manager() {
    NetworkManager --debug --config /run/NetworkManager.conf >>/run/NetworkManager.log 2>&1 &
    NETWORK_MANAGER=$!
    station_is_managed
}

station_is_managed() { wait_for 90 station_state_is_at_least 30 || give_up "NetworkManager does not manage wlan0"; }

# network_manager_lives: gives up where it does not; nothing that we ask of it may end it.
network_manager_lives() { kill -0 "$NETWORK_MANAGER" 2>/dev/null || give_up "NetworkManager has died"; }

VOLATILE_PROFILES=/run/NetworkManager/system-connections
# stored_profiles: the text of each, those that go with their connection among them.
stored_profiles() {
    find $VOLATILE_PROFILES /etc/NetworkManager/system-connections -name '*.nmconnection' -exec cat {} +
}

permission_is() { as_user nmcli -t general permissions | grep -q "$1:$2"; }

# permit yes|no|auth [yes|no]: what polkit answers when tester asks NetworkManager for a scan, and for anything else (the
# same unless given); "auth" is polkit's own default for a user without a login session.
permit() {
    local rules=/etc/polkit-1/rules.d/40-tester.rules others=${2:-$1}
    if [ "$1" = auth ]; then
        rm -f "$rules"
    else
        echo "polkit.addRule(function(action, subject) {
            if (subject.user == 'tester' && action.id.indexOf('org.freedesktop.NetworkManager.') == 0)
                return /wifi.scan$/.test(action.id) ? polkit.Result.${1^^} : polkit.Result.${others^^};
        });" >"$rules"
    fi
    wait_for 90 permission_is wifi.scan "$1" && wait_for 90 permission_is network-control "$others" ||
        give_up "the permissions are not '$*'"
}

# watch_scans: keeps the kernel's scan events, with their times, in /out/scans.txt, and what iw lists at the end of the
# n-th scan in /out/scans/n.txt; /out/clock has the time of day beside the time since boot that iw tells.
watch_scans() {
    local uptime
    mkdir /out/scans
    read -r uptime _ </proc/uptime # no other process between the two readings: it could take a second to start
    echo "$EPOCHREALTIME $uptime" >/out/clock
    iw event -t | while read -r event; do
        echo "$event" >>/out/scans.txt
        case $event in *'scan finished'*) iw dev wlan0 scan dump -u >"/out/scans/$(scans_ended).txt" ;; esac
    done &
}

scans_ended() { grep -c 'scan finished' /out/scans.txt; }
scans_have_ended() { [ "$(scans_ended)" -ge "$1" ]; }
