# SPDX-License-Identifier: MIT
# Completion of keyrill's arguments for bash. Needs nothing but bash itself; keyrill tells the macros.
_keyrill() {
    local word=${COMP_WORDS[COMP_CWORD]} before='' wish='' options i
    COMPREPLY=()
    # Readline splits --action=play at the sign.
    for ((i = COMP_CWORD; i > 1; i--)); do
        case ${COMP_WORDS[i - 1]} in
            =) continue ;;
            --action | --session | --play | --show | --times | --speed) before=${COMP_WORDS[i - 1]} ;;
        esac
        break
    done
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            --play | --show | --list) wish=${COMP_WORDS[i]} ;;
        esac
    done
    [ "$word" = = ] && word=
    case $before in
        --action) options='record stop play multiple save-pause macros' ;;
        --session) options='wayland x11' ;;
        --times) options='until-stopped' ;;
        --speed) options='0.25 0.5 2 4' ;;
        *)
            if [ "${word:0:1}" = - ]; then
                compopt -o nospace
                options='--action= --session='
                [ "$wish" = --play ] && options='--times= --speed= --session='
                mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
                options='--check --help --list --play --show --version'
                [ -z "$wish" ] && mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -W "$options" -S ' ' -- "$word")
            elif [ "$before" = --play ] || [ "$before" = --show ]; then
                _keyrill_macros "$word" "$before"
            elif [ -z "$wish" ]; then
                compopt -o filenames
                mapfile -t COMPREPLY < <(compgen -f -X '!*.keyrill' -- "$word"; compgen -d -- "$word")
            fi
            return
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
}
# The macros whose names begin with a word; where none does, files to play.
_keyrill_macros() {
    local beginning=${1//[\\\"\']/} name
    # Readline quotes blanks then.
    compopt -o filenames
    while IFS= read -r name; do
        [ "${name:0:${#beginning}}" = "$beginning" ] && COMPREPLY+=("$name")
    done < <("${COMP_WORDS[0]}" --list 2> /dev/null)
    [ "$2" = --play ] && [ ${#COMPREPLY[@]} = 0 ] &&
        mapfile -t COMPREPLY < <(compgen -f -X '!*.keyrill' -- "$1"; compgen -d -- "$1")
}
complete -F _keyrill keyrill
