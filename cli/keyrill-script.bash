# SPDX-License-Identifier: MIT
# Completion of keyrill-script for bash.
_keyrill_script() {
    local current=${COMP_WORDS[COMP_CWORD]} options=-e
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "check run trace format keys reference --help --version" -- "$current")
        return
    fi
    case ${COMP_WORDS[COMP_CWORD - 1]} in
        --times) mapfile -t COMPREPLY < <(compgen -W "2 3 10 until-stopped" -- "$current"); return ;;
        --speed) mapfile -t COMPREPLY < <(compgen -W "0.25 0.5 2 4" -- "$current"); return ;;
    esac
    case ${COMP_WORDS[1]} in
        check) options='-e --json' ;;
        run | trace) options='-e --times --speed' ;;
        keys) options=--press ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current"; compgen -f -X '!*.keyrill' -- "$current"
                             compgen -d -- "$current")
}
complete -o filenames -F _keyrill_script keyrill-script
