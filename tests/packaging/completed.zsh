# SPDX-License-Identifier: MIT
# completed.zsh FOLDER LINE FILE: what an interactive zsh offers for the line, with the completions of a folder;
# a word a line in the file, and "done" at its end.
zmodload zsh/zpty
zpty shell zsh -f -i
zpty -w shell "fpath=(${(q)1} \$fpath) offered=${(q)3}"
# What is added is noted down, as its matching words; a call that stores what matches adds nothing.
zpty -w shell 'autoload -Uz compinit && compinit -u -D
compadd() {
    if [[ ${@[1,(i)(-|--)]} != *-(O|A|D)\ * ]]; then
        local -a matching
        builtin compadd -A matching "$@"
        (( $#matching )) && print -rl -- $matching >> $offered
    fi
    builtin compadd "$@"
}
complete-and-tell() { zle complete-word; print done >> $offered }
zle -N complete-and-tell
bindkey "^I" complete-and-tell'
zpty -w -n shell "$2"$'\t'
while [[ ! -e $3 || $(tail -n 1 $3) != done ]]; do zpty -r -t shell output || sleep 0.01; done
zpty -d shell
