# shellcheck shell=bash
# One fault after the other while the window and `aerolith-scan --watch` go on scanning: every one in AEROLITH_FAULTS.
# Sourced in the guest; judged on the host by judge/faults.py.

LOGS=(/out/watch/stderr /run/observed/window/log)

# mark NAME STAGE: keeps the time since boot and how much the programs have said, in /out/marks.txt.
mark() {
    local uptime
    read -r uptime _ </proc/uptime
    mapfile -t SAID < <(for log in "${LOGS[@]}"; do wc -l <"$log"; done)
    echo "$uptime $1 $2 ${SAID[*]}" >>/out/marks.txt
    say "$1: $2"
}

# has_said PROGRAM PATTERN: whether the program of that number has, since the last mark.
has_said() { tail -n +$((SAID[$1] + 1)) "${LOGS[$1]}" | grep -qE "$2"; }
both_have_said() { has_said 0 "$1" && has_said 1 "$1"; }

# has_scanned PROGRAM: whether it has begun a scan since the last mark and come to its end.
has_scanned() {
    tail -n +$((SAID[$1] + 1)) "${LOGS[$1]}" |
        awk '/^Starting/ {begun = 1} begun && /^(Found|Scan failed)/ {ended = 1} END {exit !ended}'
}
both_have_scanned() { has_scanned 0 && has_scanned 1; }

# fault NAME: break_NAME, which lasts until both programs have said its words where it has some, then mend_NAME.
fault() {
    mark "$1" begun
    "break_$1"
    [ -z "${FAULT_WORDS[$1]:-}" ] || wait_for 150 both_have_said "${FAULT_WORDS[$1]}"
    mark "$1" ending
    "mend_$1"
    mark "$1" mended
    wait_for 120 both_have_scanned
    mark "$1" recovered
}

scan_has_begun() { [ "$(grep -c 'scan started' /out/events.txt)" -gt "$1" ]; }
await_scan() { wait_for 60 scan_has_begun "$(grep -c 'scan started' /out/events.txt)"; }

stop_service() { pidof "$1" | xargs -r kill "-$2"; }

break_manager() { await_scan && stop_service NetworkManager KILL; }
mend_manager() { run_network_manager; }

# Nobody gives the station an address: the attempt would last for a minute.
break_join() {
    observe_command join 120 /run/radio-probe join "$JOINED_SSID" <<<"$PASSWORD" &
    JOIN=$!
    wait_for 90 station_state_is_at_least 50 && stop_service NetworkManager KILL
    wait "$JOIN"
}
mend_join() {
    run_network_manager
    stored_profiles >/out/join/profiles.txt
    nmcli -g GENERAL.STATE,GENERAL.CONNECTION device show wlan0 >/out/join/device.txt
}

# NetworkManager would have the bus start another one before anybody has noticed.
break_supplicant() {
    rm -f /usr/share/dbus-1/system-services/fi.w1.wpa_supplicant1.service
    busctl --quiet call org.freedesktop.DBus /org/freedesktop/DBus org.freedesktop.DBus ReloadConfig
    await_scan && stop_service wpa_supplicant KILL
}
mend_supplicant() { start_supplicant && station_is_managed; }

break_radio() { await_scan && "$BED/guest/hwsim.py" remove 0; }
mend_radio() { "$BED/guest/hwsim.py" add && station_is_managed; }

break_bus() {
    kill -KILL "$(cat /run/dbus/pid)"
    rm /run/dbus/system_bus_socket /run/dbus/pid
}
mend_bus() {
    for service in NetworkManager wpa_supplicant polkitd; do stop_service "$service" KILL 2>/dev/null; done
    start_bus
    start_supplicant
    run_network_manager
    permit no
    wait_for 60 has_said 1 'access denied'
    permit yes
}

break_hang() { stop_service NetworkManager STOP; }
mend_hang() { stop_service NetworkManager CONT; }

break_endless() { stop_service wpa_supplicant STOP; }
mend_endless() { stop_service wpa_supplicant CONT; }

# The medium takes the place of the air: nothing else is heard.
break_crowd() {
    start_medium "/out/plan/crowd-$CROWD"
    wait_for 240 crowd_is_listed
}
# An emulated machine that is short of time misses some in every scan.
crowd_is_listed() {
    [ "$(tail -n "$CROWD" /out/watch/stdout | grep -c '"bssid":"0a:10:')" -ge $((CROWD * 95 / 100)) ]
}
mend_crowd() { kill "$MEDIUM"; }

# A day forth after two of six cycles, and back after two more: one scan alone may miss the access point.
break_clock() {
    observe_command history 120 /run/aerolith-scan --cycles 6 --interval 4 --format json \
        --details "${BSSIDS%% *}" details.json &
    HISTORY=$!
    wait_for 60 history_has 2
    set_clock 86400
    wait_for 60 history_has 4
}
history_has() { [ "$(grep -c '^Found' /out/history/stderr)" -ge "$1" ]; }
set_clock() { date -s "@$(($(date +%s) + $1))" >/dev/null; }
mend_clock() { set_clock -86400 && wait "$HISTORY"; }

stop_programs() { kill "-$1" "$(pidof aerolith-scan)" "$(pidof program)"; }
break_stall() { stop_programs STOP && sleep 65; }
mend_stall() { stop_programs CONT; }

modprobe cfg80211 bss_entries_limit=4000
start_radios
start_access_points
start_network_manager
permit yes
install -m 755 "$(dirname "$PROGRAM")"/{aerolith-scan,radio-probe} /run
iw event -t >/out/events.txt &
observe_command watch 3600 /run/aerolith-scan --watch --interval 5 &
WATCH=$!
drive window 3600 faults.py &
WINDOW=$!
wait_for 300 test -e /run/observed/window/ready || give_up "the window has not scanned"
for name in $AEROLITH_FAULTS; do fault "$name"; done
touch /run/observed/window/enough
kill -INT "$(pidof aerolith-scan)"
wait "$WATCH" "$WINDOW"
