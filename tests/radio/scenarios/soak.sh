# shellcheck shell=bash
# The window and aerolith-scan for AEROLITH_SOAK_SECONDS, while access points come and go.
# Sourced in the guest; judged on the host by judge/soak.py.

# come_or_go NUMBER: starts that radio's hostapd, or ends it.
come_or_go() {
    if [ -n "${RUNNING[$1]:-}" ]; then
        kill "${RUNNING[$1]}"
        wait "${RUNNING[$1]}"
        RUNNING[$1]=
    else
        ip netns exec radios hostapd "/out/plan/wlan$1.conf" >>/run/hostapd.log &
        RUNNING[$1]=$!
    fi
}

keep_coming_and_going() {
    local number
    RUNNING=() RANDOM=1
    for number in $(seq "$RADIOS"); do come_or_go "$number"; done
    while sleep 10; do come_or_go $((RANDOM % RADIOS + 1)); done
}

start_radios
set_signals
keep_coming_and_going &
start_network_manager
permit yes
install -m 755 "$(dirname "$PROGRAM")/aerolith-scan" /run/scanner
drive soak $((AEROLITH_SOAK_SECONDS + 300)) soak.py /run/scanner "$AEROLITH_SOAK_SECONDS"
network_manager_lives
