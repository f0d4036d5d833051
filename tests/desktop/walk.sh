#!/bin/bash
# Walks through the real program from outside: a virtual X display, real clicks and keys, and a
# picture of every screen. A step that does not happen ends the walk with exit code 1.
#
#   walk.sh PROGRAM PACK_FOLDER PICTURE_FOLDER [WIDTHxHEIGHT [xcb|wayland]]
#
# The pack is copied first, since the program writes into it. Needs Xvfb, xdotool and ImageMagick;
# openbox manages the window where it is installed, unless WALK_WINDOW_MANAGER is "none". With
# "wayland" the program is a client of weston, which must be installed and runs inside the X display.
set -u

here=$(dirname "$(realpath "$0")")
for part in frame start first_run menu reading words lessons exercises drills window both_ways; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

start_display
run_first
start_program
walk_by_arrow
read_a_text
look_words_up
if [ "$platform" = xcb ]; then
  # What the platform has no part in is walked once.
  read_lessons
  work_through_items
fi
practise
use_the_mouse_alone
use_the_keys_alone
if [ "$platform" = xcb ]; then
  walk_both_ways
fi
let_the_menu_rest
read_the_guide
see_the_notice
quit
echo "The pictures are in $pictures"
