# Completion of the three programs in bash.
_talvora() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  case $before in
    --pack | --learner | --dir) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
    --trace) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    *)
      mapfile -t COMPREPLY < <(compgen -W \
        '--pack --learner --dir --go-on --trace --help --version' -- "$word")
      ;;
  esac
}

_talvora_driver() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  case $before in
    --dir | --learner) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
    --metrics) mapfile -t COMPREPLY < <(compgen -W fixed -- "$word") ;;
    *)
      mapfile -t COMPREPLY < <(compgen -W '--dir --learner --screen --seed --voices
        --speech-ms-per-char --metrics --help --version' -- "$word")
      ;;
  esac
}

# What a program's own help names, so that this list is never behind it: lines of options, or of
# commands, up to the first blank.
_talvora_named() {
  "$@" --help 2>/dev/null | sed -n 's/^  \(-[a-z],\)\{0,1\}\(-\{0,2\}[a-z][a-z-]*\).*/\2/p'
}

# Commands stand first; some have commands of their own, which come second. Behind them are files, and
# what the command's own help names.
_talvora_pack() {
  local word=${COMP_WORDS[COMP_CWORD]} names= commands=1
  case ${COMP_WORDS[1]} in text | words | folder) commands=2 ;; esac
  case "${COMP_WORDS[1]} ${COMP_WORDS[COMP_CWORD - 1]}" in
    "new new") names="text lesson item unit analysis" ;;
    *" --only") names="reading speaking listening analysis lessons exercises dictionary guide" ;;
    *" --audio") names="none word sentence both" ;;
    *)
      if [ "$COMP_CWORD" -le "$commands" ]; then
        names=$(_talvora_named "${COMP_WORDS[@]:0:COMP_CWORD}")
      elif [[ $word == -* ]]; then
        names=$(_talvora_named "${COMP_WORDS[@]:0:commands+1}")
      fi
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$names" -- "$word")
  if [ -z "$names" ]; then mapfile -t COMPREPLY < <(compgen -f -- "$word"); fi
}

complete -F _talvora talvora
complete -F _talvora_driver talvora-driver
complete -o filenames -F _talvora_pack talvora-pack
