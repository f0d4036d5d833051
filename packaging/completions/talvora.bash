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

_talvora_pack() {
  local word=${COMP_WORDS[COMP_CWORD]}
  if [ "$COMP_CWORD" -eq 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W "$(_talvora_named "${COMP_WORDS[0]}")" -- "$word")
  elif [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W \
      "$(_talvora_named "${COMP_WORDS[0]}" "${COMP_WORDS[1]}")" -- "$word")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
}

complete -F _talvora talvora
complete -F _talvora_driver talvora-driver
complete -o filenames -F _talvora_pack talvora-pack
