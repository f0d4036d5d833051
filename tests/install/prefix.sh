#!/bin/bash
# What `cmake --install` puts into a folder runs and speaks from there: the sound device is found,
# and no path of the building machine is inside.
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
device=$(find "$work/place" -name talvora-sound-device.so)
[ -n "$device" ] || fail "no sound device is installed"

for file in "$program" "$work/place/bin/talvora-pack" "$device"; do
  readelf -d "$file" | grep -E 'R(UN)?PATH' && fail "a path of the build is in $file"
done

# The program looks where the device is, seen from itself.
from_bin=$(realpath -m --relative-to="$work/place/bin" "$(dirname "$device")")
strings -a "$program" >"$work/strings"
grep -qxF "$from_bin" "$work/strings" || strings -a -el "$program" | grep -qF "$from_bin" ||
  fail "the program does not look for the device in $from_bin"
echo "ok: an installed program finds its sound device and knows no folder of the build"
