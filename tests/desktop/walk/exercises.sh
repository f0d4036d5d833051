# One item of each kind, in a run of a marked lesson, and the list of a bank. Sourced by walk.sh.

next_item() { # SURFACE
  click_word "$1" "<Next>"
}

work_through_items() {
  click_button 3
  expect_note "focus=RVP1 "
  click_word RVP1 tại 1 3
  settle 40-marked
  press Return
  expect_note "focus=RDT "
  settle 41-fill-in
  fill_in
  choose
  find_the_mistake
  order_words
  leave_to RVP1
  leave_to but3
  see_a_bank
}

fill_in() {
  xdotool type --delay 60 "goes"
  press Return
  settle 42-judged
  click_word RDT ".goes.*" 1 3
  expect_visible RHDBT
  settle 43-explained
  expect_ink 43-explained RHDBT hiện
  click_word RHDBT hiện
  expect_visible RVP2
  settle 44-link
  expect_ink 44-link RVP2 rises
  press Escape
  expect_hidden RVP2
  expect_visible RHDBT
  press Escape
  expect_hidden RHDBT
  press Return
  expect_note "focus=RABCD "
  passed "a fill-in item is typed, judged and explained, and its link leads to a lesson and back"
}

choose() {
  settle 45-choice
  click_word RABCD "[(]a[)]"
  click_word RABCD "[(]b[)]"
  settle 46-chosen
  expect_change 45-choice 46-chosen 1
  next_item RABCD
  expect_note "focus=Rsai "
  passed "a choice greys what is wrong and shows what is right"
}

find_the_mistake() {
  settle 47-mistake
  click_word Rsai go
  settle 48-mistake-found
  expect_change 47-mistake 48-mistake-found 50 "$(region_of Rsai go)"
  next_item Rsai
  expect_note "focus=Rxep "
  passed "the wrong phrase is found"
}

order_words() {
  settle 49-ordering
  expect_ink 49-ordering Rxep "<Next>"
  click_word Rxep is 1 3
  settle 50-ordered
  press Return
  settle 51-answer
  expect_change 50-ordered 51-answer 1
  passed "a word is moved, and Enter shows the sentence"
}

see_a_bank() {
  click_button 10
  expect_note "focus=RN1 "
  settle 52-units
  press Return
  expect_item_of_bank
  settle 53-item-of-a-bank
  leave_to RN1
  press Escape
  expect_note "visible=, "
  passed "a bank opens, and its run is left again"
}
