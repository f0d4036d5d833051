#!/bin/bash
# What is installed beside the program keeps the rules of its formats, and the programs tell of
# themselves without a display.
#
#   lint.sh SOURCE_FOLDER BUILD_FOLDER PROGRAM...
#
# Needs desktop-file-validate, appstreamcli and mandoc.
set -u

source=$1
build=$2
shift 2
failed=0

holds() { # WHAT COMMAND...
  local what=$1 said
  shift
  if said=$("$@" 2>&1); then
    echo "ok: $what"
  else
    printf 'FAILED: %s\n%s\n' "$what" "$said" >&2
    failed=1
  fi
}

# A page as people read it has no faults; lines of Vietnamese are long in bytes alone.
page_is_clean() {
  local said
  said=$(mandoc -T lint -W warning "$1")
  [ -z "$said" ] || { echo "$said"; return 1; }
}

tells_of_itself() { # PROGRAM OPTION PATTERN
  env -u DISPLAY -u WAYLAND_DISPLAY "$1" "$2" | grep -q -- "$3"
}

# Every option that the help tells stands in the page.
page_is_whole() { # PROGRAM PAGE
  local option missing=
  for option in $("$1" --help | grep -oE '^  (-[a-z],)?--[a-z-]+' | grep -oE -- '--[a-z-]+'); do
    grep -q -- "Fl ${option#-}" "$2" || missing="$missing $option"
  done
  [ -z "$missing" ] || { echo "not in the page:$missing"; return 1; }
}

holds "the desktop entry" desktop-file-validate "$source/packaging/org.talvora.talvora.desktop"
holds "the metadata" appstreamcli validate --no-net --pedantic \
  "$build/packaging/org.talvora.talvora.metainfo.xml"
for page in "$source"/packaging/man/*.? "$source"/packaging/man/vi/*.?; do
  holds "the page ${page#"$source"/}" page_is_clean "$page"
done
for program in "$@"; do
  name=$(basename "$program")
  holds "$name --version" tells_of_itself "$program" --version "^$name [0-9]"
  holds "$name --help" tells_of_itself "$program" --help --help
done
holds "the page of talvora names every option" \
  page_is_whole "$1" "$source/packaging/man/talvora.1"
holds "the Vietnamese page of talvora names every option" \
  page_is_whole "$1" "$source/packaging/man/vi/talvora.1"
exit "$failed"
