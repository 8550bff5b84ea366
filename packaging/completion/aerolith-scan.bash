# bash completion for aerolith-scan                        -*- shell-script -*-

_aerolith_scan()
{
    local cur prev words cword
    _init_completion -s -n : || return

    # The second argument of --details; the first is an address, which nobody knows beforehand.
    if ((cword >= 2)) && [[ ${words[cword - 2]} == --details ]]; then
        _filedir
        return
    fi
    case $prev in
        --cycles | --interval | --details)
            return
            ;;
        --sort)
            COMPREPLY=($(compgen -W 'signal ssid channel security' -- "$cur"))
            return
            ;;
        --format)
            COMPREPLY=($(compgen -W 'csv json' -- "$cur"))
            return
            ;;
        --list | --record)
            _filedir
            return
            ;;
        --simulate)
            [[ $cur == -* ]] || { _filedir json; return; }
            ;;
    esac
    COMPREPLY=($(compgen -W '--simulate --cycles --interval --sort --visible-only --watch --list --details
        --format --record --help --version' -- "$cur"))
} &&
    complete -F _aerolith_scan aerolith-scan
