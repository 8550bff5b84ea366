# Sourced with the package as $1: unpacks it into a folder of its own, $tree, and gives the user empty settings.
set -euo pipefail

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export XDG_CONFIG_HOME=$scratch/config
tree=$scratch/tree
dpkg-deb --extract "$1" "$tree"

# The long options that a program's help names, one on a line.
options_of() {
    "$tree/usr/bin/$1" --help | grep -oE -- '(^|[ [])--[a-z-]+' | tr -d ' [' | sort -u
}
