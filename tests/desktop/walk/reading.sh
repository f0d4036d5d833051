# A text and what it answers to. Sourced by walk.sh.

read_a_text() {
  click_button 1
  settle 02-list
  expect_change 01-menu 02-list 300
  expect_note "focus=R1 "
  passed "the list of titles opens"
  # Headings do not open: the first title below is what Enter opens.
  for _ in 1 2 3 4; do
    press Down
    settle 03-line
    press Return
    sleep 1
    settle 03-text
    [ "$(changed_share 03-line 03-text)" -ge 30 ] && break
  done
  expect_change 03-line 03-text 30
  expect_note "focus=R2 "
  passed "a text opens"
  press Escape
  settle 04-list-again
  expect_change 03-text 04-list-again 30
  expect_same 03-line 04-list-again 80
  expect_note "focus=R1 "
  passed "Esc leads from the text to the list"
  press Escape
  settle 05-menu-again
  expect_same 01-menu 05-menu-again 40
  expect_note "focus=but1 "
  passed "Esc leads from the list to the menu"
}
