#!/bin/bash
# What `cmake --install` puts into a folder runs and speaks from there: what is loaded with the first
# sound is found, the program does not link it, no path of the building machine is inside, and the
# compiler has its translations.
#
#   prefix.sh BUILD_FOLDER
set -u

build=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

cmake --install "$build" --prefix "$work/place" >"$work/log" 2>&1 ||
  fail "$(tail -n 5 "$work/log")"
program=$work/place/bin/talvora
modules=()
for module in talvora-sound-device talvora-voices talvora-recordings; do
  modules+=("$(find "$work/place" -name $module.so)")
  [ -n "${modules[-1]}" ] || fail "no $module is installed"
done

for file in "$program" "$work/place/bin/talvora-pack" "${modules[@]}"; do
  readelf -d "$file" | grep -E 'R(UN)?PATH' && fail "a path of the build is in $file"
done

readelf -d "$program" | grep -E 'NEEDED.*(flite|sndfile|Multimedia)' &&
  fail "the start pays for what only sound needs"

telltale=$(grep -rlaF "$build" "$work/place") && fail "the folder of the build is in $telltale"

LC_ALL=vi_VN.UTF-8 "$work/place/bin/talvora-pack" --help | grep -q "Cách dùng:" ||
  fail "the installed compiler does not speak Vietnamese"

# The program looks where the modules are, seen from itself.
from_bin=$(realpath -m --relative-to="$work/place/bin" "$(dirname "${modules[0]}")")
strings -a "$program" >"$work/strings"
grep -qxF "$from_bin" "$work/strings" || strings -a -el "$program" | grep -qF "$from_bin" ||
  fail "the program does not look for modules in $from_bin"
echo "ok: an installed program finds what makes sound and knows no folder of the build"
