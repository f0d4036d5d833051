# What the window adds to the pages: the way back and the scroll bar for a mouse alone, clicks at the
# caret for keys alone, and the strip's signs. Sourced by walk.sh.

# The middle of a button of the strip, counted from the right: close, minimise, hint, back. The strip
# is 3 % of the screen's height; texts are measured by the eye, so each point lies well inside.
strip_point() { # close|minimise|hint|back
  awk -v which="$1" -v width="$virtual_width" -v height="$virtual_height" 'BEGIN {
    side = height * 0.03
    if (which == "close") x = width - side * 0.85
    if (which == "minimise") x = width - side * 2.5
    if (which == "hint") x = width - side * 5.6
    if (which == "back") x = width - side * 10.5
    printf "%d %d\n", x, side / 2 }'
}

click_strip() { # BUTTON
  # shellcheck disable=SC2046 # two numbers each
  xdotool mousemove $(on_screen $(strip_point "$1"))
  sleep 0.2
  xdotool click 1
  sleep 0.4
}

# The mouse alone: into a text, the hint, a word, and all the way back.
use_the_mouse_alone() {
  click_button 1
  expect_note "focus=R1 "
  drag_the_list
  click_strip hint
  expect_visible RDOS
  settle 80-hint-by-mouse
  click_word R1 River
  expect_note "focus=R2 "
  sleep 1.5
  click_word R2 "bank[,.]?"
  expect_visible RHD
  click_strip back
  expect_hidden RHD
  click_strip back
  expect_note "focus=R1 "
  click_strip back
  expect_note "focus=but1 "
  passed "the mouse alone leads into a text and back to the menu"
}

first_line() { # SURFACE
  grep "^words $1 " "$work/trace" | tail -n 1 | cut -d ' ' -f 3-5
}

# The thumb of the list goes down with the pointer and up again; no title opens.
drag_the_list() {
  local x top bottom before
  before=$(first_line R1)
  read -r x top < <(on_screen $((virtual_width * 88 / 100 - 9)) $((virtual_height * 14 / 100)))
  [ "$virtual_width" -le 800 ] &&
    read -r x top < <(on_screen $((virtual_width * 925 / 1000 - 9)) $((virtual_height * 14 / 100)))
  bottom=$((top + screen_height / 3))
  xdotool mousemove "$x" "$top"
  sleep 0.2
  xdotool mousedown 1 mousemove "$x" $((top + 40)) mousemove "$x" "$bottom"
  sleep 0.4
  [ "$(first_line R1)" != "$before" ] || fail "the thumb is dragged and the list stays"
  xdotool mousemove "$x" "$top" mousemove "$x" $((top - 40)) mouseup 1
  sleep 0.4
  [ "$(first_line R1)" = "$before" ] || fail "the thumb is back and the list is not"
  expect_note "focus=R1 "
}

# The keys alone: a word is looked up with F10 and kept, and Shift+F10 opens a dictation.
use_the_keys_alone() {
  press Return
  expect_note "focus=R1 "
  press ctrl+Home
  press Down
  press Down
  press Down
  press Return
  expect_note "focus=R2 "
  sleep 1.5
  press Down
  # Not every word has an entry in the small dictionary.
  for _ in 1 2 3 4 5 6; do
    press ctrl+Right
    press F10
    sleep 0.3
    [[ "$(state)" == *,RHD,* ]] && break
  done
  expect_visible RHD
  settle 81-entry-by-key
  press Return
  take 82-word-kept
  press Escape
  leave_to R1
  press shift+F10
  expect_note "focus=Rviet "
  press Escape
  press Escape
  leave_to R1
  leave_to but1
  passed "the keys alone look a word up and open a dictation"
}

# Ticks of the processor that the program has used.
ticks() {
  awk '{ print $14 + $15 }' "/proc/$program_id/stat"
}

# The lit button stands still when nothing has been touched for twenty seconds, and goes on when
# something moves.
let_the_menu_rest() {
  expect_note "focus=but"
  sleep 21
  local before
  before=$(ticks)
  sleep 3
  local rested=$(($(ticks) - before))
  [ "$rested" -le 1 ] || fail "the menu at rest uses $rested ticks in three seconds"
  take 83-menu-at-rest
  sleep 0.5
  take 84-menu-still
  expect_same 83-menu-at-rest 84-menu-still 0
  press Down
  expect_note "focus=but2 "
  press Up
  expect_note "focus=but1 "
  passed "the menu rests after twenty seconds, and an arrow wakes it"
}
