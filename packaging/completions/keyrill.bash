# SPDX-License-Identifier: MIT
# Completion of keyrill's arguments for bash. Needs nothing but bash itself.
_keyrill() {
    local word=${COMP_WORDS[COMP_CWORD]} before='' options i
    COMPREPLY=()
    # Readline splits --action=play at the sign.
    for ((i = COMP_CWORD; i > 1; i--)); do
        case ${COMP_WORDS[i - 1]} in
            =) continue ;;
            --action | --session) before=${COMP_WORDS[i - 1]} ;;
        esac
        break
    done
    [ "$word" = = ] && word=
    case $before in
        --action) options='record stop play multiple save-pause' ;;
        --session) options='wayland x11' ;;
        *)
            if [ "${word:0:1}" = - ]; then
                compopt -o nospace
                mapfile -t COMPREPLY < <(compgen -W '--action= --session=' -- "$word")
                mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -W '--check --help --version' -S ' ' -- "$word")
            else
                compopt -o filenames
                mapfile -t COMPREPLY < <(compgen -f -X '!*.keyrill' -- "$word"; compgen -d -- "$word")
            fi
            return
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
}
complete -F _keyrill keyrill
