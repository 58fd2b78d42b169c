# SPDX-License-Identifier: MIT
# Completion of keyrill's arguments for fish.
set -l actions 'record\t"start a recording"
stop\t"end the recording, or the playback"
play\t"play the macro"
multiple\t"ask how many times to play"
save-pause\t"keep the time since the last key"'
complete -c keyrill -f
complete -c keyrill -l action -x -a "$actions" -d 'Ask the running program to act'
complete -c keyrill -l session -x -a "wayland x11" -d 'Kind of desktop session'
complete -c keyrill -l check -d 'Print what works in this session'
complete -c keyrill -l help -d 'Print how the program is called'
complete -c keyrill -l version -d 'Print the version'
complete -c keyrill -k -a '(__fish_complete_suffix .keyrill)'
