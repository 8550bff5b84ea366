#!/bin/bash
# completion.sh PACKAGE: what bash offers after the beginnings of command lines.
source "$(dirname "$0")/unpacked.sh"

set +eu
source /usr/share/bash-completion/bash_completion
source "$tree/usr/share/bash-completion/completions/aerolith-scan"
mkdir "$scratch/here" && cd "$scratch/here" && touch air.json notes.txt || exit 1
failures=0

# offers EXPECTED WORD...: the words are those of a command line, cut as the shell cuts it, the last one unfinished;
# what is expected is in alphabetical order.
offers() {
    local expected=$1
    shift
    COMP_WORDS=(aerolith-scan "$@")
    COMP_CWORD=$#
    COMP_LINE="${COMP_WORDS[*]}"
    COMP_LINE=${COMP_LINE// : /:}
    COMP_POINT=${#COMP_LINE}
    COMPREPLY=()
    _aerolith_scan
    local offered
    offered=$(printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd " ")
    [ "$offered" = "$expected" ] || {
        echo "After \"$COMP_LINE\": \"$offered\", not \"$expected\"" >&2
        failures=1
    }
}

offers '--simulate --sort' --s
offers 'security signal ssid' --sort s
offers 'csv json' --format ''
offers '' --cycles ''
offers 'air.json' --simulate ''
offers '--cycles' --simulate --c
offers '' --details ''
offers 'air.json notes.txt' --details 0a : 1b : 2c ''
offers '--version --visible-only' --details 0a : 1b : 2c one.csv --v
offers "$(options_of aerolith-scan | paste -sd " ")" --
exit $failures
