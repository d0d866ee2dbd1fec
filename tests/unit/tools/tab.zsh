# Types a command line into an interactive shell on a terminal of its own and prints what the line is once the Tab
# key has put in every word that is offered.
#
#   zsh -f tab.zsh bash|zsh FOLDER_OF_COMPLETIONS LINE

zmodload zsh/zpty
shell=$1 folder=$2 line=$3
export TERM=xterm

if [[ $shell == bash ]]; then
    zpty typist "exec bash --norc --noprofile -i"
    setup="PS1=; source ${(q)folder}/palvestrin; bind '\"\\C-t\": insert-completions'"
    setup+="; show() { printf '<%s>\\n' \"\$READLINE_LINE\"; exit; }; bind -x '\"\\C-y\": show'"
else
    zpty typist "exec zsh -f -i"
    setup="PS1=; fpath=(${(q)folder} \$fpath); autoload -Uz compinit; compinit -C -d \$HOME/.dump"
    setup+="; every() { _main_complete; compstate[insert]=all; compstate[list]= }; zle -C every complete-word every"
    setup+="; show() { print -r -- \"<\$BUFFER>\"; exit }; zle -N show; bindkey '^T' every '^Y' show"
fi
zpty -w typist "$setup; print=ready; echo \$print"
zpty -r typist output $'*\nready\r\n*'
zpty -w -n typist "$line"$'\C-t\C-y'
zpty -r typist output '*<*>*'
print -r -- "${${output##*<}%%>*}"
