#!/bin/bash
# Makes a picture of every section of the real program, in the sizes of screens that people have.
#
#   gallery.sh PROGRAM PACK_FOLDER PICTURE_FOLDER [WIDTHxHEIGHT ...]
#
# The pictures of a size go to PICTURE_FOLDER/WIDTHxHEIGHT. The pack is the small one of the
# scenarios, or has its words; it is copied first, since the program writes into it. Needs Xvfb,
# xdotool and ImageMagick. WALK_WINDOW_MANAGER is as in walk.sh.
set -u

here=$(dirname "$(realpath "$0")")

if [ $# -ne 4 ]; then
  if [ $# -lt 3 ]; then
    sed -n '2,/^set/s/^# \{0,1\}//p' "$0" >&2
    exit 2
  fi
  folder=$3
  parts=("$1" "$2" "$folder")
  shift 3
  [ $# -gt 0 ] || set -- 800x600 1024x768 1280x1024 1366x768 1920x1080 3840x2160
  failed=0
  for size in "$@"; do
    "$0" "${parts[@]}" "$size" || failed=1
  done
  exit "$failed"
fi

set -- "$1" "$2" "$3/$4" "$4"
for part in frame start gallery; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

start_display
cp -r "$pack" "$work/pack"
: >"$work/pack/Yes1"
start_program
show_reading
show_vocabulary
show_lessons
show_items
show_drills
show_the_rest
show_failure
echo "The pictures are in $pictures"
