#!/bin/bash
# lint.sh PACKAGE: what the package says about itself is right, and true of what is in it.
source "$(dirname "$0")/unpacked.sh"
trap 'echo "Not true: $BASH_COMMAND" >&2' ERR

id=org.aerolith.Aerolith
share=$tree/usr/share

lintian --allow-root --fail-on error,warning "$1"
desktop-file-validate "$share/applications/$id.desktop"
appstreamcli validate-tree --no-net "$tree"

service=$share/dbus-1/services/$id.service
[ "$(sed -n 's/^Name=//p' "$service")" = $id ]
test -x "$tree$(sed -n 's/^Exec=//p' "$service")"
test -x "$tree/usr/bin/$(sed -n 's/^Exec=//p' "$share/applications/$id.desktop")"
test -f "$share/icons/hicolor/scalable/apps/$(sed -n 's/^Icon=//p' "$share/applications/$id.desktop").svg"

for program in "$tree"/usr/bin/*; do
    name=$(basename "$program")
    gunzip -c "$share/man/man1/$name.1.gz" >"$scratch/$name.1"
    mandoc -T lint -W warning "$scratch/$name.1"
    mandoc -T ascii "$scratch/$name.1" | col -b >"$scratch/$name.txt"
    for option in $(options_of "$name"); do
        grep -q -e "$option" "$scratch/$name.txt" || {
            echo "The manual page of $name does not tell of $option" >&2
            exit 1
        }
    done
done
