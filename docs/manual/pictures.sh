#!/bin/bash
# Takes the manual's pictures from the running program on the real course, so that they never show
# what is no longer there.
#
#   docs/manual/pictures.sh PROGRAM PACK_FOLDER PICTURE_FOLDER
#
# Needs Xvfb, xdotool, openbox and ImageMagick.
set -u

if [ $# -ne 3 ]; then
  sed -n '2,7s/^# \{0,1\}//p' "$0" >&2
  exit 2
fi
set -- "$1" "$2" "$3" 1366x768
# shellcheck source=/dev/null
. "$(dirname "$(realpath "$0")")/../pictures.sh"

start_display
cp -r "$pack" "$work/pack"
: >"$work/pack/Yes1"
start_program
# The pictures of the start are for the walk.
rm -f "$pictures"/0*.png
shot menu

click_button 1
expect_note "focus=R1 "
shot list
click_word R1 Soup
expect_note "focus=R2 "
sleep 2
press F2
shot hint
click_word R2 "soup[,.]?"
expect_visible RHD
shot entry
press Return
press Escape
point_at_word R2 "kitchen[,.]?"
xdotool click --repeat 2 --delay 60 1
expect_visible RHD
shot sentence
press Return
press Escape
leave_to R1
click_word R1 Soup 1 3
expect_note "focus=Rviet "
xdotool type --delay 60 "my gra"
shot dictation
leave_to R1
leave_to but1

click_button 2
expect_note "focus=Rchon "
click_word Rchon soup
shot vocabulary
leave_to but2

click_button 3
expect_note "focus=RVP1 "
press Down
press Down
press Return
expect_note "focus=RVP2 "
sleep 2
shot lesson
leave_to RVP1
leave_to but3

click_button 10
sleep 1
press Return
sleep 2
press Return
shot item
echo "The pictures are in $pictures"
