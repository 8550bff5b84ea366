# shellcheck shell=bash
# A thousand access points at once, each made up by a medium of our own between the station and the air.
# Sourced in the guest; judged on the host by judge/crowd.py.

modprobe cfg80211 bss_entries_limit=4000 # the kernel keeps 1,000 by itself
start_radios
start_medium "/out/plan/crowd-$CROWD"
watch_scans
start_network_manager
permit yes
observe crowd 400 --cycles 3 --interval 5 --format json --list list.json
network_manager_lives
