# shellcheck shell=bash
# Sourced by run.sh. One virtual machine: plain emulation, no network, the host's root read-only.

# boot_machine CACHE SHARE SECONDS LOG: runs the guest until it powers itself off; fails when it has not reached its
# end within SECONDS. The machine dies with this shell, however that ends.
boot_machine() {
    local cache=$1 share=$2 seconds=$3 log=$4
    setpriv --pdeathsig TERM timeout -k 5 "$seconds" setpriv --pdeathsig KILL \
        qemu-system-x86_64 -accel tcg,thread=multi -cpu max -smp 2 -M q35 -m 1536 \
        -display none -serial stdio -monitor none -no-reboot -nic none -device virtio-rng-pci \
        -kernel "$cache/vmlinuz" -initrd "$share/initrd.gz" \
        -append "console=ttyS0 panic=-1 quiet mitigations=off nokaslr no_timer_check random.trust_cpu=on" \
        -virtfs local,path=/,mount_tag=hostroot,security_model=none,readonly=on,multidevs=remap \
        -virtfs "local,path=${share//,/,,},mount_tag=share,security_model=none" \
        </dev/null >"$log" 2>&1 &
    MACHINE=$!
    wait "$MACHINE"
    MACHINE=
    grep -q '^guest: end' "$log"
}

# stop_machine: ends what boot_machine has left running, if anything.
stop_machine() {
    [ -z "${MACHINE:-}" ] || kill "$MACHINE" 2>/dev/null || true
}
