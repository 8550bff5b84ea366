# shellcheck shell=bash
# Joining networks of the kinds that desktop.sh leaves out, every way in which it may fail, and what is left behind.
# Sourced in the guest; judged on the host by judge/join.py.

station_is_settled() { [[ $(nmcli -g GENERAL.STATE device show wlan0) =~ ^(20|30|100)\  ]]; }
no_profile_is_volatile() { ! compgen -G "$VOLATILE_PROFILES/*.nmconnection"; }

# join NAME SSID: an attempt to join with the password from standard input, and what it has left behind in /out/NAME:
# what the machine is joined to, and every stored profile.
join() {
    wait_for 60 station_is_settled
    observe "$1" 120 join "$2"
    wait_for 10 no_profile_is_volatile # one that has failed goes a moment after its attempt
    network_manager_lives
    iw dev wlan0 link >"/out/$1/link.txt"
    stored_profiles >"/out/$1/profiles.txt"
}

forget() {
    nmcli -g UUID,TYPE connection show | sed -n 's/:802-11-wireless$//p' | xargs -r nmcli connection delete >/dev/null
}

lost_handshakes() { grep -c 'msg 4/4 in invalid state' /run/hostapd.log; }

# join_and_forget NAME SSID: the same, and nothing stays of it. The access point at times takes the last answer of a
# handshake for one out of turn, and the link stays deaf, which is no fault of the station: once more then.
join_and_forget() {
    local password lost
    read -r password
    lost=$(lost_handshakes)
    join "$@" <<<"$password"
    if [ "$(cat "/out/$1/status")" != 0 ] && [ "$(lost_handshakes)" != "$lost" ]; then
        say "$1: a handshake was lost; once more"
        join "$@" <<<"$password"
    fi
    forget
}

switch_power() {
    observe "power-$1" 60 power "$1"
    cat /sys/class/net/wlan0/phy80211/rfkill*/soft >"/out/power-$1/blocked"
}

was_found() { grep -q found "/out/$1/stdout"; }

start_radios
start_access_points
serve_addresses
start_network_manager
permit yes

join wpa2-wrong wpa2 <<<'wrong horse'
join wpa2 wpa2 <<<"$PASSWORD"
join stored-wrong wpa2 <<<'wrong horse'
join stored wpa2 <<<''
nmcli connection modify wpa2 wifi-sec.psk 'other horse' ipv4.dns 10.9.8.7
join_and_forget stored-changed wpa2 <<<"$PASSWORD"

join_and_forget transition 'wpa2 wpa3' <<<"$PASSWORD"
join_and_forget wep wep <<<'abcde'
join_and_forget hidden "$HIDDEN_SSID" <<<"$PASSWORD"

join enterprise eap <<<''
join wpa3-wrong wpa3 <<<'wrong horse'
{
    wait_for 60 was_found leaving >&2
    switch_off_access_point "$LEAVING_INTERFACE"
    echo "$PASSWORD"
} | join leaving "$LEAVING_SSID"

permit yes no
join refused open <<<''
observe power-refused 60 power off
permit yes
# Last, as the switch is that of every radio in the machine: the access points' too.
switch_power off
join radio-off open <<<''
switch_power on
wait_for 60 station_state_is_at_least 30
