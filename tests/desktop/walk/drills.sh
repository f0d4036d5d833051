# Listening, dictation, speaking and analysed texts. Sourced by walk.sh.

practise() {
  listen
  take_dictation
  study_an_analysis
  open_a_speaking_text
}

listen() {
  click_button 4
  expect_note "focus=RN1 "
  settle 60-listening-units
  press Return
  expect_note "focus=RN2 "
  settle 61-listening
  local option
  for option in 1 2 3 4; do
    click_word RN2 "[a-z]+[.]" "$option"
  done
  settle 62-heard
  expect_change 61-listening 62-heard 1
  expect_ink 62-heard RN2 "A[.]"
  next_item RN2
  expect_note "focus=RN2 "
  leave_to RN1
  leave_to but4
  passed "a sentence is heard and its answer found"
}

take_dictation() {
  click_button 1
  expect_note "focus=R1 "
  click_word R1 Old 1 3
  expect_note "focus=Rviet "
  xdotool type --delay 60 "there is"
  settle 63-dictation
  expect_ink 63-dictation Rviet There
  expect_ink 63-dictation RHDBT Có
  press Right
  press Down
  settle 64-dictation-next
  expect_change 63-dictation 64-dictation-next 3
  press Escape
  leave_to R1
  leave_to but1
  passed "a sentence is taken from dictation"
}

study_an_analysis() {
  click_button 5
  expect_note "focus=R1 "
  click_word R1 Old
  expect_note "focus=R2 "
  settle 65-analysed-text
  click_word R2 river. 1 3
  expect_visible RHDBT
  settle 66-analysed-word
  expect_ink 66-analysed-word RHDBT "Từ:"
  press Escape
  expect_hidden RHDBT
  xdotool key F6
  expect_note "focus=Rxep "
  settle 67-ordering-from-a-text
  expect_ink 67-ordering-from-a-text Rxep "<Next>"
  leave_to R2
  leave_to R1
  leave_to but5
  passed "a word of an analysed text is explained, and F6 orders the words of the text"
}

open_a_speaking_text() {
  click_button 7
  expect_note "focus=R1 "
  settle 68-speaking
  leave_to but7
  passed "the speaking texts are listed"
}
