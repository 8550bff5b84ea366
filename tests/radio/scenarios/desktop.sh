# shellcheck shell=bash
# The program as a user meets it: the window while access is missing and once it is granted, networks joined from the
# popover, the radio switched there. Sourced in the guest; judged on the host by judge/desktop.py.

# watch_requests: keeps the calls for a scan and polkit's word that permissions have changed, each with its time of day.
watch_requests() {
    dbus-monitor --system --profile \
        "type=method_call,interface=org.freedesktop.NetworkManager.Device.Wireless,member=RequestScan" \
        "type=signal,interface=org.freedesktop.PolicyKit1.Authority,member=Changed" >/out/requests.txt 2>/dev/null &
}

window_has_said_so() { [ -e /run/observed/desktop/refused ]; }

start_radios
start_access_points
serve_addresses
start_network_manager
watch_requests
permit no
drive desktop 840 joining.py "$PASSWORD" wpa2 'wpa wpa2' wpa3 owe open &
wait_for 300 window_has_said_so
date +%s.%N >/out/granted
permit yes
wait $!
network_manager_lives
