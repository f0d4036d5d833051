#!/bin/bash
# Goes to a place of each kind in the real program and keeps its picture and its trace, for another
# front to be held against them: NAME.png and NAME.trace.
#
#   places.sh PROGRAM PACK_FOLDER PICTURE_FOLDER [WIDTHxHEIGHT]
#
# The pack is the small one of the scenarios; it is copied first, since the program writes into it.
# Needs Xvfb, xdotool and ImageMagick.
set -u

here=$(dirname "$(realpath "$0")")
for part in frame start; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

keep() { # NAME
  settle "$1"
  cp "$work/trace" "$pictures/$1.trace"
}

start_display
cp -r "$pack" "$work/pack"
: >"$work/pack/Yes1"
start_program
# The pointer stands where nothing answers to it.
xdotool mousemove $((screen_width / 2)) $((screen_height - 2))
keep menu
click_button 1
expect_note "focus=R1 "
keep list
press Down
press Return
expect_note "focus=R2 "
sleep 2
keep text
click_word R2 word
expect_visible RHD
keep entry
leave_to_menu
click_button 3
expect_note "focus=RVP1 "
press Down
press Return
expect_note "focus=RVP2 "
sleep 2
keep lesson
leave_to_menu
# The items of a bank are shuffled; the few of a lesson that is marked come in their order.
click_button 3
expect_note "focus=RVP1 "
press ctrl+Home
press Down
press shift+F10
press Return
expect_note "focus=RDT "
sleep 2
keep item
xdotool type --delay 60 "goes"
press Return
keep judged
press Return
expect_note "focus=RABCD "
sleep 2
keep choice
leave_to_menu
click_button 8
expect_note "focus=RAmthanh "
keep settings
