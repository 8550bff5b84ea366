# shellcheck shell=bash
# Sourced by run.sh. Debian's kernel with its modules, unpacked into a cache directory but not installed.

# prepare_kernel CACHE: leaves CACHE/vmlinuz, CACHE/root (the modules below it) and CACHE/release; skips the run
# where there is no package to fetch. What an earlier run has unpacked is used again.
prepare_kernel() {
    local cache=$1 package partial=$1.partial
    [ -f "$cache/release" ] && return
    package=$(apt-cache depends linux-image-amd64 2>/dev/null | awk '/Depends: linux-image/ {print $2; exit}')
    [ -n "$package" ] || skip "apt knows no kernel package (apt-get update first?)"

    rm -rf "$cache" "$partial"
    mkdir -p "$partial/root"
    (cd "$partial" && timeout 180 apt-get download "$package") >"$partial/download.log" 2>&1 ||
        skip "the kernel package $package cannot be fetched: $(grep -m 1 '^E:' "$partial/download.log")"
    dpkg -x "$partial/$package"_*.deb "$partial/root"
    rm "$partial/$package"_*.deb
    ls "$partial/root/lib/modules" >"$partial/release"
    depmod -b "$partial/root" "$(cat "$partial/release")"
    mv "$partial/root/boot/vmlinuz-$(cat "$partial/release")" "$partial/vmlinuz"
    mv "$partial" "$cache"
}

# prepare_initrd CACHE INIT FILE: packs busybox, the modules that the shared root needs and INIT into FILE.
prepare_initrd() {
    local cache=$1 init=$2 file=$3 tree=$3.tree module
    mkdir -p "$tree"/{bin,modules,proc,sys,dev,root}
    cp "$(command -v busybox)" "$tree/bin/busybox"
    cp "$init" "$tree/init"
    chmod +x "$tree/init"
    for module in 9p 9pnet_virtio virtio_pci overlay virtio_rng; do
        modprobe -d "$cache/root" -S "$(cat "$cache/release")" --show-depends "$module"
    done | awk '$1 == "insmod" && !seen[$2]++ {print $2}' | while read -r module; do
        cp "$module" "$tree/modules/"
        basename "$module" >>"$tree/modules/order"
    done
    (cd "$tree" && find . | cpio --quiet -o -H newc | gzip -1) >"$file"
    rm -r "$tree"
}
