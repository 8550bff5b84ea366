# shellcheck shell=bash
# The list and the details against the kernel's own, and every way in which a scan may be refused.
# Sourced in the guest; judged on the host by judge/scan.py.

observe no-interface 120

start_radios
start_access_points
watch_scans
observe no-manager 120

start_network_manager
permit no
observe denied 120
permit auth
observe unanswered 120

permit yes
details=()
for bssid in $BSSIDS; do details+=(--details "$bssid" "$bssid.json"); done
ended=$(scans_ended)
observe survey 240 --cycles 5 --interval 5 --format json --list list.json "${details[@]}" &
# The first scan to end may be one of NetworkManager's own; with the second, the first cycle has had its scan.
if wait_for 180 scans_have_ended $((ended + 2)); then
    switch_off_access_point "$LEAVING_INTERFACE"
    change_access_points changed
fi
wait $!
capture_air 3

cycle_is_told() { grep -q "\"cycle\":$1," /out/watch/stdout; }
scan_by_name() { iw dev wlan0 scan trigger ssid "$HIDDEN_SSID" ""; }
observe watch 300 --watch --cycles 6 --interval 5 &
wait_for 120 cycle_is_told 1 && change_access_points made
# Somebody else asks for a hidden name, and for any: the kernel then lists its access point with and without its name.
for cycle in 2 3 4; do wait_for 120 cycle_is_told $cycle && wait_for 60 scan_by_name; done
wait $!
network_manager_lives

nmcli connection add type wifi con-name joined ifname wlan0 ssid "$JOINED_SSID" \
    ipv4.method disabled ipv6.method disabled >/dev/null
nmcli --wait 90 connection up joined
observe joined 120 --cycles 1 --format json --list list.json
nmcli connection delete joined >/dev/null

nmcli radio wifi off
wait_for 90 sh -c 'rfkill list | grep -q "Soft blocked: yes"'
observe radio-off 120
