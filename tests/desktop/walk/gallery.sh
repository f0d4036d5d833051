# A picture of every section, with what stands over it. Sourced by gallery.sh.

# Takes the picture when the screen has had time to follow.
shot() { # NAME
  sleep 0.6
  take "$1"
}

show_reading() {
  click_button 1
  expect_note "focus=R1 "
  shot 10-list
  press F2
  shot 11-list-hint
  press Escape
  press b
  expect_visible RTD
  shot 12-look-up-list
  leave_to R1
  click_word R1 River
  expect_note "focus=R2 "
  sleep 2
  shot 13-text
  expect_ink 13-text R2 stands
  click_word R2 "bank[,.]?"
  expect_visible RHD
  shot 14-entry
  press Return
  shot 15-word-taken
  point_at_word R2 spring
  xdotool click --repeat 2 --delay 60 1
  expect_visible RHD
  shot 16-sentence
  press Escape
  press F2
  shot 17-text-hint
  press Escape
  xdotool key F6
  expect_note "focus=Rxep "
  shot 18-ordering-from-a-text
  leave_to R2
  leave_to R1
  click_word R1 Old 1 3
  expect_note "focus=Rviet "
  xdotool type --delay 60 "there is"
  shot 19-dictation
  press F2
  shot 19-dictation-hint
  press Escape
  press Escape
  leave_to R1
  leave_to but1
  passed "reading"
}

show_vocabulary() {
  click_button 2
  expect_note "focus=Rchon "
  shot 20-vocabulary
  click_word Rchon bank
  shot 21-vocabulary-entry
  point_at_word Rchon bank
  xdotool click --repeat 2 --delay 60 1
  shot 22-vocabulary-sentence
  leave_to but2
  passed "your vocabulary"
}

show_lessons() {
  click_button 3
  expect_note "focus=RVP1 "
  shot 30-lessons
  click_word RVP1 khứ
  expect_note "focus=RVP2 "
  sleep 2
  shot 31-lesson
  leave_to RVP1
  click_word RVP1 tại 1 3
  shot 32-marked
  passed "lessons"
}

show_items() {
  press Return
  expect_note "focus=RDT "
  shot 40-fill-in
  xdotool type --delay 60 "goes"
  shot 41-typed
  press Return
  shot 42-judged
  press F2
  shot 42-judged-hint
  press Escape
  click_word RDT ".goes.*" 1 3
  expect_visible RHDBT
  shot 43-explained
  click_word RHDBT hiện
  expect_visible RVP2
  shot 44-link
  press Escape
  press Escape
  press Return
  expect_note "focus=RABCD "
  shot 45-choice
  click_word RABCD "[(]a[)]"
  click_word RABCD "[(]b[)]"
  shot 46-chosen
  click_word RABCD "<Next>"
  expect_note "focus=Rsai "
  shot 47-mistake
  click_word Rsai go
  shot 48-mistake-found
  click_word Rsai "<Next>"
  expect_note "focus=Rxep "
  shot 49-ordering
  press Return
  shot 50-answer
  leave_to RVP1
  leave_to but3
  click_button 10
  expect_note "focus=RN1 "
  shot 52-units
  press Return
  expect_item_of_bank
  shot 53-item-of-a-bank
  leave_to RN1
  press Escape
  expect_note "visible=, "
  passed "items"
}

show_drills() {
  click_button 4
  expect_note "focus=RN1 "
  shot 60-listening-units
  press Return
  expect_note "focus=RN2 "
  shot 61-listening
  local option
  for option in 1 2 3 4; do
    click_word RN2 "[a-z]+[.]" "$option"
  done
  shot 62-heard
  leave_to RN1
  leave_to but4
  click_button 5
  expect_note "focus=R1 "
  click_word R1 Old
  expect_note "focus=R2 "
  sleep 2
  shot 65-analysed-text
  click_word R2 river. 1 3
  expect_visible RHDBT
  shot 66-analysed-word
  press Escape
  leave_to R1
  leave_to but5
  click_button 7
  expect_note "focus=R1 "
  shot 68-speaking
  leave_to but7
  passed "drills"
}

show_the_rest() {
  click_button 8
  expect_note "focus=RAmthanh "
  shot 70-settings
  leave_to but8
  click_button 9
  sleep 0.4
  take 71-curtain
  sleep 2
  shot 72-guide
  leave_to but9
  click_button 6
  sleep 0.3
  take 73-notice
  sleep 1.5
  press Escape
  shot 74-question
  press Return
  expect_end
  passed "settings, guide, notice and question"
}

# The box of a pack that lacks a file.
show_failure() {
  rm -f "$work/pack/datatu.txt"
  "$program" --dir "$work/pack" >"$work/program.log" 2>&1 &
  program_id=$!
  sleep 1.5
  take 80-failure
  press Return
  expect_end 5 "the message of a failure" 1
}
