# What is heard of words, of a text that is read aloud, of a recording, and of the settings. Sourced
# by sound.sh.

# A second of sound, in samples.
second=16000

# A fresh pack whose first run is over, in the menu.
start_anew() {
  rm -rf "$work/pack"
  cp -r "$pack" "$work/pack"
  : >"$work/pack/Yes1"
  start_program
}

open_text() { # TITLE_WORD [END_OF_LIST]
  click_button 1
  expect_note "focus=R1 "
  press "ctrl+${2:-Home}"
  click_word R1 "$1"
  expect_note "focus=R2 "
  # The curtain ends with a click aside.
  sleep 1
}

leave_text() {
  leave_to R1
  leave_to but1
}

hear_a_word() {
  open_text Old
  listen_from_now
  click_word R2 bank
  expect_visible RHD
  expect_heard $((second / 2))
  expect_silence
  local twice
  twice=$(heard)
  [ "$twice" -lt $((6 * second)) ] || fail "a word sounds for $twice samples"
  press Escape
  expect_hidden RHD
  passed "a clicked word is heard: $twice samples"
}

hear_the_whole_text() {
  listen_from_now
  press F9
  expect_heard $((3 * second))
  press Right
  listen_from_now
  expect_heard "$second"
  press Escape
  sleep 0.3
  listen_from_now
  expect_nothing_heard 1
  # The key that ends the reading is delivered behind it and ends the state, too.
  click_word R2 bank
  expect_visible RHD
  press Escape
  expect_hidden RHD
  expect_silence
  leave_text
  passed "F9 reads the text aloud, Right leads on, and Esc silences it"
}

expect_recorded_sentence() {
  local difference
  difference=$(python3 "$here/heard.py" stretch "$work/heard" "$heard_from" \
    "$work/pack/sound/1.wav" "$work/pack/DataS" 1) || fail "the recording: $difference"
}

hear_a_recording() {
  open_text Listening End
  point_at_word R2 boy
  xdotool click --repeat 2 --delay 60 1
  expect_visible RHD
  listen_from_now
  expect_silence
  # The first click has said its word; the right button says the sentence alone.
  listen_from_now
  xdotool click 3
  expect_heard $((second / 2))
  expect_silence
  expect_recorded_sentence
  press Escape
  expect_hidden RHD
  passed "a sentence of a recording is heard from its mark to the next"

  listen_from_now
  xdotool keydown space
  expect_visible RHD
  expect_heard $((second / 2))
  expect_silence
  expect_visible RHD
  expect_recorded_sentence
  xdotool keyup space
  expect_hidden RHD
  leave_text
  passed "however long Space is held, the sentence is heard once"
}

# The words of the settings panel that can be clicked: "BẬt" and "TẮt" switch the sound.
switch_sound() { # WORD
  click_button 8
  expect_note "focus=RAmthanh "
  sleep 0.5
  click_word RAmthanh "$1"
  press Escape
  expect_note "focus=but8 "
}

hear_the_settings() {
  listen_from_now
  click_button 8
  expect_note "focus=RAmthanh "
  expect_heard "$second"
  expect_silence
  press Escape
  expect_note "focus=but8 "
  passed "the settings panel speaks its test sentence"

  switch_sound "Tắt"
  expect_silence
  open_text Old
  listen_from_now
  click_word R2 bank
  expect_visible RHD
  expect_nothing_heard 1.5
  press Escape
  leave_text
  passed "with the sound off a word is silent"
  switch_sound "Bật"
  expect_silence
}

# The server goes while a word sounds, and comes back.
lose_the_device() {
  open_text Old
  click_word R2 bank
  expect_visible RHD
  stop_sound_server
  press Escape
  expect_hidden RHD
  click_word R2 river.
  expect_visible RHD
  press Escape
  expect_hidden RHD
  passed "words are looked up while the sound device is gone"
  start_sound_server
  local try
  for try in 1 2 3 4 5 6; do
    sleep 1.5
    listen_from_now
    click_word R2 bank
    expect_visible RHD
    sleep 1
    press Escape
    expect_hidden RHD
    [ "$(heard)" -gt 0 ] && break
  done
  [ "$(heard)" -gt 0 ] || fail "a sound device that is back is not heard"
  leave_text
  passed "a sound device that is back is heard again"
}

# The same deeds with nothing to hear them: each answers as soon as ever.
go_without_sound() {
  open_text Old
  click_word R2 bank
  expect_visible RHD
  press Escape
  expect_hidden RHD
  press F9
  sleep 2
  press Right
  press Escape
  click_word R2 river.
  expect_visible RHD
  press Escape
  expect_hidden RHD
  leave_text
  click_button 8
  expect_note "focus=RAmthanh "
  press Escape
  expect_note "focus=but8 "
}

# From the menu.
end_program() {
  press Escape
  sleep 0.5
  press Return
  expect_end
}

# The display goes while a text is read aloud, so that another thread is at work on the sound.
lose_the_display() {
  open_text Old
  listen_from_now
  press F9
  expect_heard "$second"
  kill -KILL "$x_server"
  wait "$x_server" 2>/dev/null
  wait "$program_id"
  local code=$?
  program_id=
  [ "$code" -eq 1 ] || fail "exit code $code when the display was lost while a text was read aloud"
  passed "a display that is lost while a text is read aloud ends the program by no signal"
}
