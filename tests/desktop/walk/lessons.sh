# The rule lessons. Sourced by walk.sh.

read_lessons() {
  click_button 3
  expect_note "focus=RVP1 "
  settle 30-lessons
  click_word RVP1 khứ
  expect_note "focus=RVP2 "
  settle 31-lesson
  expect_change 30-lessons 31-lesson 30
  press Escape
  expect_note "focus=RVP1 "
  passed "a lesson opens and closes"
  leave_to but3
}
