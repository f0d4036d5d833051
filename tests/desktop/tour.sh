#!/bin/bash
# Takes a tour through the real program in a virtual X display and leaves a picture of every screen.
#
#   tour.sh PROGRAM PACK_FOLDER PICTURE_FOLDER [WIDTHxHEIGHT]
#
# The pack is copied first, since the program writes into it. Needs Xvfb, xdotool and ImageMagick;
# openbox manages the window where it is installed, unless WALK_WINDOW_MANAGER is "none".
set -u

here=$(dirname "$(realpath "$0")")
for part in frame start first_run menu reading tour; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

start_display
run_first
start_program
walk_by_arrow
read_a_text
visit_sections
read_the_guide
see_the_notice
quit
echo "The pictures are in $pictures"
