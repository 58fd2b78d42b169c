# SPDX-License-Identifier: MIT
# To be sourced: a desktop of a script's own, which ends with it. Needs Xvfb, openbox, xterm, xdotool and xprop.
# shellcheck shell=bash

work=$(mktemp -d)
children=()
end() {
    [ ${#children[@]} -eq 0 ] || kill "${children[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap end EXIT

fail() {
    echo "${0##*/}: $*" >&2
    tail -n 50 "$work"/*.log >&2
    exit 1
}

# await WHAT COMMAND...: until the command succeeds, 30 s at most.
await() {
    local what=$1 end=$((SECONDS + 30))
    shift
    until "$@" >/dev/null 2>&1; do
        [ $SECONDS -lt $end ] || fail "waited in vain for $what"
        sleep 0.05
    done
}

# start NAME COMMAND...: in the background, until the end of the script.
start() {
    local name=$1
    shift
    "$@" >"$work/$name.log" 2>&1 &
    children+=($!)
}

# A home of its own, a virtual display with a window manager, and a terminal, which has the focus and writes down each
# byte that it gets. Nobody is greeted.
open_desktop() {
    mkdir -p "$work/home/.config/keyrill" "$work/runtime"
    chmod 700 "$work/runtime"
    printf '[Settings]\nnotFirstRun=true\n' >"$work/home/.config/keyrill/keyrill.conf"
    unset WAYLAND_DISPLAY XDG_CONFIG_HOME XDG_CONFIG_DIRS XDG_DATA_HOME XDG_CURRENT_DESKTOP
    export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime LC_ALL=C.UTF-8
    local number
    mkfifo "$work/display"
    start server Xvfb -displayfd 9 -screen 0 1280x800x24 -nolisten tcp -noreset -dpi 96 9<>"$work/display"
    read -r -t 30 number <>"$work/display" || fail "no virtual X server"
    export DISPLAY=:$number
    start manager openbox --sm-disable
    await "the window manager" sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 0x'
    start terminal xterm -geometry 80x20+60+160 -T Terminal \
        -e sh -c "stty -icanon -echo; touch '$work/opened'; exec tee '$work/received'"
    await "the terminal" test -e "$work/opened"
    focus_terminal
}

focus_terminal() {
    await "the terminal's window" xdotool search --onlyvisible --name '^Terminal$' windowactivate --sync windowfocus --sync
}

received() { [ "$(cat "$work/received")" = "$1" ]; }
# await_received TEXT: that the terminal has got exactly that so far.
await_received() { await "'$1' in the terminal" received "$1"; }

# All four; the program takes again what the check itself has just had.
has_hot_keys() { [ "$(keyrill --check | grep -c 'which the running Keyrill has')" -eq 4 ]; }

# start_keyrill [FILE]: the installed one, ready for hot keys.
start_keyrill() {
    start keyrill keyrill "$@"
    keyrill=${children[-1]}
    await "Keyrill's hot keys" has_hot_keys
}
