#!/bin/bash
# run.sh SCENARIO PROGRAM CACHE RESULTS [SECONDS]: boots a virtual machine with simulated radios, runs
# scenarios/SCENARIO.sh in it with the built PROGRAM and judges what it has left in RESULTS by judge/SCENARIO.py; a
# SCENARIO that is a file has its judge beside it. CACHE keeps the kernel between runs. Ends with 0 (as it should be), 1
# (a fault) or 77 (this machine cannot run it; says why).
set -euo pipefail

bed=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scenario=$bed/scenarios/$1.sh judge=$bed/judge/$1.py
[ ! -f "$1" ] || scenario=$(realpath "$1") judge=${scenario%.sh}.py
program=$(realpath "$2") cache=$(realpath -m "$3") results=$(realpath -m "$4") seconds=${5:-900}

skip() {
    echo "skipped: $*"
    exit 77
}

require_tools() {
    local tool
    [ "$(uname -m)" = x86_64 ] || skip "the emulated machine is made for x86_64"
    PATH=$PATH:/usr/sbin:/sbin:/usr/lib/polkit-1:/lib/systemd
    for tool in qemu-system-x86_64 busybox cpio depmod modprobe apt-get dpkg setpriv chrt hostapd hostapd_cli \
        wpa_supplicant NetworkManager nmcli iw rfkill ip udevadm systemd-udevd dbus-daemon busctl polkitd \
        dbus-run-session dbus-monitor Xvfb openbox trayer xdotool; do
        command -v "$tool" >/dev/null || skip "$tool is not installed"
    done
    [ -e /lib/firmware/regulatory.db ] || skip "wireless-regdb is not installed"
    ! ldd "$(command -v busybox)" >/dev/null 2>&1 || skip "busybox is not the static one (busybox-static)"
}

. "$bed/machine/kernel.sh"
. "$bed/machine/boot.sh"
trap stop_machine EXIT
trap 'exit 1' INT TERM HUP

require_tools
prepare_kernel "$cache"
rm -rf "$results"
mkdir -p "$results/plan"
prepare_initrd "$cache" "$bed/guest/init" "$results/initrd.gz"
python3 "$bed/judge/plans.py" "$(basename "$scenario" .sh)" "$results/plan"
printf '%s=%q\n' BED "$bed" SCENARIO "$scenario" PROGRAM "$program" \
    AEROLITH_SOAK_SECONDS "${AEROLITH_SOAK_SECONDS:-3600}" \
    AEROLITH_FAULTS "${AEROLITH_FAULTS:-manager join supplicant radio bus clock}" \
    MODULES "$cache/root/lib/modules/$(cat "$cache/release")" >"$results/bed.env"

if ! boot_machine "$cache" "$results" "$seconds" "$results/console.log"; then
    echo "the guest did not reach its end within $seconds s; its last words:"
    tail -n 40 "$results/console.log"
    exit 1
fi
grep '^guest:' "$results/console.log" || true
PYTHONPATH=$bed/judge python3 "$judge" "$results"
