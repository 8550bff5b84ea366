# shellcheck shell=bash
# The main window on live access points, driven through its accessibility tree.
# Sourced in the guest; judged on the host by judge/window.py.

start_radios
start_access_points
start_network_manager
permit yes
drive window 600 main_window.py "$CHOSEN_SSID"
