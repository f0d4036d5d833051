#!/bin/bash
# What bash completes behind talvora-pack is what the program's own help names, at every place.
#
#   completions.sh SOURCE_FOLDER TALVORA-PACK
set -u

compiler=$(realpath "$2")
# shellcheck source=/dev/null
. "$1/packaging/completions/talvora.bash"
failed=0

# expect PATTERN WORD...: what comes for the last word, as one line with a blank at both ends.
expect() {
  local pattern=$1
  shift
  COMP_WORDS=("$compiler" "$@")
  COMP_CWORD=$#
  COMPREPLY=()
  _talvora_pack
  if [[ " ${COMPREPLY[*]} " == $pattern ]]; then
    echo "ok: $*"
  else
    echo "FAILED: talvora-pack $*: ${COMPREPLY[*]}" >&2
    failed=1
  fi
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
touch words.csv

for language in en vi; do
  export LANGUAGE=$language LC_ALL=C.UTF-8
  expect "* build *" ""
  expect " words " wo
  expect "* export import *" words ""
  expect " --audio " words export --a
  expect "* --silent *" words export words.csv --
  expect " none word sentence both " words export --audio ""
  expect " words.csv " words import w
  expect " add " text a
  expect "* export import *" folder ""
  expect " --warnings " check --wa
  expect " analysis " check content --only ana
  expect " text lesson item unit analysis " new ""
  expect " words.csv " show w
done
exit "$failed"
