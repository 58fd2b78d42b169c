# SPDX-License-Identifier: MIT
# Completion of keyrill-script for bash.
_keyrill_script() {
    local current=${COMP_WORDS[COMP_CWORD]}
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "check run trace format keys reference --help --version" -- "$current")
    elif [ "$COMP_CWORD" -eq 2 ]; then
        mapfile -t COMPREPLY < <(compgen -W "-e --json --press" -- "$current"; compgen -f -X '!*.keyrill' -- "$current"
                                 compgen -d -- "$current")
    fi
}
complete -o filenames -F _keyrill_script keyrill-script
