# SPDX-License-Identifier: MIT
# Completion of keyrill's arguments for fish.
set -l actions 'record\t"start a recording"
stop\t"end the recording, or the playback"
play\t"play the macro"
multiple\t"ask how many times to play"
save-pause\t"keep the time since the last key"
macros\t"show the window of the macros"'
complete -c keyrill -f
complete -c keyrill -l action -x -a "$actions" -d 'Ask the running program to act'
complete -c keyrill -l play -x -a '(keyrill --list 2> /dev/null; __fish_complete_suffix .keyrill)' -d 'Play a macro'
complete -c keyrill -l show -x -a '(keyrill --list 2> /dev/null)' -d 'Show the window of the macros'
complete -c keyrill -l list -d 'Print the names of the macros'
complete -c keyrill -l times -x -a until-stopped -d 'How many times to play'
complete -c keyrill -l speed -x -a '0.25 0.5 2 4' -d 'What pauses are divided by'
complete -c keyrill -l session -x -a "wayland x11" -d 'Kind of desktop session'
complete -c keyrill -l check -d 'Print what works in this session'
complete -c keyrill -s h -l help -d 'Print how the program is called'
complete -c keyrill -l version -d 'Print the version'
complete -c keyrill -k -a '(__fish_complete_suffix .keyrill)'
