# The menu: its arrows, the guide, the notice and the end. Sourced by walk.sh.

walk_by_arrow() {
  local x y
  press Down
  read -r x y < <(point_of_button 2)
  wait_for_pointer 20 "$x" "$y"
  expect_note "focus=but2 "
  press Up
  read -r x y < <(point_of_button 1)
  wait_for_pointer 20 "$x" "$y"
  expect_note "focus=but1 "
  passed "the pointer follows the arrows"
}

read_the_guide() {
  click_button 9
  sleep 1
  settle 06-guide
  expect_change 05-menu-again 06-guide 300
  expect_note "focus=Rcachhoc "
  passed "the guide opens"
  press Escape
  settle 07-menu-after-guide
  expect_same 01-menu 07-menu-after-guide 40
  expect_note "focus=but9 "
  passed "Esc leads from the guide to the menu"
}

# A band around a height, in the middle of the screen, where the menu shows parts of two columns.
middle() { # HEIGHT
  local left top right bottom
  read -r left top < <(on_screen "$((virtual_middle - 60))" "$(($1 - 25))")
  read -r right bottom < <(on_screen "$((virtual_middle + 60))" "$(($1 + 25))")
  echo "$((right - left))x$((bottom - top))+$left+$top"
}

# The notice stands at a third of the form's height.
notice() {
  middle $((virtual_height * 40 / 100))
}

# A box stands in the middle of the screen, except where the compositor chooses its place.
expect_box() { # NAME_BEFORE NAME
  if [ "$platform" = wayland ]; then
    expect_change "$1" "$2" 15
  else
    expect_change "$1" "$2" 300 "$(middle $((virtual_height / 2)))"
  fi
}

see_the_notice() {
  click_button 6
  sleep 0.3
  take 08-notice
  expect_change 07-menu-after-guide 08-notice 400 "$(notice)"
  sleep 1.5
  settle 09-menu-after-notice
  expect_same 07-menu-after-guide 09-menu-after-notice 100 "$(notice)"
  passed "the notice of the section under construction comes and goes"
}

quit() {
  press Escape
  settle 10-question
  expect_box 09-menu-after-notice 10-question
  press Escape
  settle 11-menu-after-no
  running || fail "the program ended though the answer was No"
  expect_same 09-menu-after-notice 11-menu-after-no 40
  passed "No leads back to the menu"
  press Escape
  settle 12-question-again
  expect_box 11-menu-after-no 12-question-again
  press Return
  expect_end
  passed "Yes ends the program with exit code 0"
}
