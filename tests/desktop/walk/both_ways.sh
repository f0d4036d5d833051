# Each section that asks for clicks, once with the keys alone and once with the mouse alone:
# settings, a lesson's items with an explanation's link, the quiz, and deleting words. Sourced by
# walk.sh.

walk_both_ways() {
  set_the_speed_by_key
  set_the_speed_by_mouse
  work_through_items_by_key
  work_through_items_by_mouse
  answer_the_quiz_by_key
  answer_the_quiz_by_mouse
  delete_a_word_by_mouse
  delete_words_by_key
  press Up
  expect_note "focus=but1 "
}

# -- Keys.

# The caret of the page that has the keyboard, and the word at it: "12,word".
caret_at() {
  state | sed -n 's/.* caret=\([0-9]*,[^ ]*\).*/\1/p'
}

# Goes from word to word, from the top of the page, until the caret stands in the WHICH-th word of
# that pattern. Ctrl stays down: each time that it goes down it looks a word up.
keys_to() { # WORD [WHICH]
  press ctrl+Home
  xdotool keydown ctrl
  step_to Right "$@"
  xdotool keyup ctrl
}

# The same from the end of the page.
keys_back_to() { # WORD [WHICH]
  press ctrl+End
  press ctrl+Left
  xdotool keydown ctrl
  step_to Left "$@"
  xdotool keyup ctrl
}

step_to() { # KEY WORD [WHICH]
  local wanted=${3:-1} seen=0 before="" now step
  for step in $(seq 150); do
    now=$(caret_at)
    if [ "$now" != "$before" ] && [[ "${now#*,}" =~ ^$2$ ]]; then
      seen=$((seen + 1))
      [ "$seen" -ge "$wanted" ] && return
    fi
    before=$now
    xdotool key "$1"
    for _ in $(seq 10); do
      [ "$(caret_at)" != "$before" ] && break
      sleep 0.03
    done
  done
  fail "the keys do not come to \"$2\" in $step steps; the caret is at $(caret_at)"
}

# Into that button of the menu, from wherever the focus is on it.
open_by_key() { # NUMBER
  local number
  expect_note "focus=but"
  for number in $(seq 18); do
    [[ "$(state)" == *"focus=but$1 "* ]] && break
    press Down
  done
  expect_note "focus=but$1 "
  press Return
}

# -- The mouse.

# Back, by the strip, until a control has the keyboard.
back_to() { # CONTROL
  for _ in 1 2 3 4 5 6; do
    [[ "$(state)" == *"focus=$1 "* ]] && return
    click_strip back
  done
  expect_note "focus=$1 "
}

# The first button of the question box, which stands left of the one at its lower right corner.
click_yes() {
  local WIDTH HEIGHT X Y
  eval "$(xdotool getwindowfocus getwindowgeometry --shell)"
  [ "$HEIGHT" -lt $((screen_height / 2)) ] || fail "there is no box"
  # shellcheck disable=SC2046 # two numbers
  xdotool mousemove $(awk -v right=$((X + WIDTH)) -v bottom=$((Y + HEIGHT)) \
    -v pixel="$(awk "BEGIN { print $screen_height / 768 }")" 'BEGIN {
    printf "%d %d\n", right - (26 + 120 + 13 + 60) * pixel, bottom - (26 + 18) * pixel }')
  sleep 0.2
  xdotool click 1
  sleep 0.4
}

# -- Settings.

# The record of the speed in the learner's settings.
speed_stored() {
  od -An -t d4 -j 12 -N 4 "$work/pack/data.Kcu" | tr -d ' '
}

set_the_speed_by_key() {
  open_by_key 8
  expect_note "focus=RAmthanh "
  keys_to 3
  press F10
  leave_to but8
  [ "$(speed_stored)" = 3 ] || fail "the speed is $(speed_stored), expected 3"
  passed "the keys alone set the speed"
}

set_the_speed_by_mouse() {
  click_button 8
  expect_note "focus=RAmthanh "
  click_word RAmthanh 5
  back_to but8
  [ "$(speed_stored)" = 5 ] || fail "the speed is $(speed_stored), expected 5"
  passed "the mouse alone sets the speed"
}

# -- A marked lesson: a blank with its explanation, a choice, a mistake, an order of words.

work_through_items_by_key() {
  open_by_key 3
  expect_note "focus=RVP1 "
  press ctrl+Home
  press Down
  press shift+F10
  press Return
  expect_note "focus=RDT "
  xdotool type --delay 60 "goes"
  press Return
  press shift+F10
  expect_visible RHDBT
  press Tab
  expect_note "focus=RHDBT "
  press F10
  expect_visible RVP2
  press Escape
  expect_hidden RVP2
  press Escape
  expect_hidden RHDBT
  press Return
  expect_note "focus=RABCD "
  take 90-choice
  keys_back_to "[(]b[)]"
  press F10
  settle 91-chosen-by-key
  expect_change 90-choice 91-chosen-by-key 1
  keys_back_to "<Next>"
  press F10
  expect_note "focus=Rsai "
  take 92-mistake
  keys_to go
  press F10
  settle 93-found-by-key
  expect_change 92-mistake 93-found-by-key 50 "$(region_of Rsai go)"
  keys_back_to "<Next>"
  press F10
  expect_note "focus=Rxep "
  order_by shift_f10
  leave_to but3
  passed "the keys alone mark a lesson, follow a link and work through every kind of item"
}

shift_f10() { # WORD
  keys_to "$1"
  press shift+F10
}

right_click() { # WORD
  click_word Rxep "$1" 1 3
}

# The second word of the sentence never stands at its place to begin with.
order_by() { # HOW
  local before
  before=$(words_of_item)
  "$1" is
  for _ in $(seq 20); do
    [ "$(words_of_item)" != "$before" ] && return
    sleep 0.1
  done
  fail "no word moves in \"$before\""
}

words_of_item() {
  grep "^words Rxep " "$work/trace" | tail -n 1
}

work_through_items_by_mouse() {
  click_button 3
  expect_note "focus=RVP1 "
  click_word RVP1 tại 1 3
  xdotool click 2
  expect_note "focus=RDT "
  xdotool click 2
  sleep 0.4
  click_word RDT "_.*" 1 3
  expect_visible RHDBT
  click_word RHDBT hiện
  expect_visible RVP2
  click_strip back
  expect_hidden RVP2
  expect_visible RHDBT
  click_strip back
  expect_hidden RHDBT
  next_item RDT
  expect_note "focus=RABCD "
  take 94-choice
  click_word RABCD "[(]b[)]"
  settle 95-chosen-by-mouse
  expect_change 94-choice 95-chosen-by-mouse 1
  next_item RABCD
  expect_note "focus=Rsai "
  click_word Rsai go
  next_item Rsai
  expect_note "focus=Rxep "
  order_by right_click
  back_to RVP1
  back_to but3
  passed "the mouse alone marks a lesson, follows a link and works through every kind of item"
}

# -- The quiz.

answer_the_quiz_by_key() {
  open_by_key 4
  expect_note "focus=RN1 "
  press Return
  expect_note "focus=RN2 "
  take 96-quiz
  press ctrl+Home
  press End
  # Every line in turn, until all options have been taken.
  for _ in 1 2 3 4 5 6 7 8; do
    press Down
    press F10
  done
  settle 97-answered-by-key
  expect_change 96-quiz 97-answered-by-key 1
  # The sentence that was heard stands below the links.
  keys_back_to "<Next>"
  press F10
  expect_note "focus=RN2 "
  leave_to RN1
  leave_to but4
  passed "the keys alone answer the quiz"
}

answer_the_quiz_by_mouse() {
  click_button 4
  expect_note "focus=RN1 "
  click_word RN1 Unit
  expect_note "focus=RN2 "
  take 98-quiz
  local option
  for option in 1 2 3 4; do
    click_word RN2 "[a-z]+[.]" "$option"
  done
  settle 99-answered-by-mouse
  expect_change 98-quiz 99-answered-by-mouse 1
  next_item RN2
  expect_note "focus=RN2 "
  back_to RN1
  back_to but4
  passed "the mouse alone answers the quiz"
}

# -- Deleting words.

words_kept() {
  echo $(($(stat -c %s "$work/pack/data.c") / 24))
}

expect_kept() { # COUNT
  for _ in $(seq 20); do
    [ "$(words_kept)" -eq "$1" ] && return
    sleep 0.1
  done
  fail "$(words_kept) words are kept, expected $1"
}

# The middle button keeps a word that is looked up.
keep_words_by_mouse() {
  local before word
  before=$(words_kept)
  click_button 1
  expect_note "focus=R1 "
  click_word R1 River
  expect_note "focus=R2 "
  sleep 1.5
  for word in boy boys spring summer; do
    click_word R2 "$word"
    xdotool click 2
    sleep 0.3
  done
  back_to R1
  back_to but1
  [ "$(words_kept)" -ge $((before + 2)) ] || fail "the middle button kept no two words"
}

delete_a_word_by_mouse() {
  local before from to
  keep_words_by_mouse
  before=$(words_kept)
  click_button 2
  expect_note "focus=Rchon "
  from=$(places_of Rchon 1)
  to=$(places_of Rchon "[a-z]+" | head -n 1)
  # shellcheck disable=SC2086,SC2046 # two numbers each
  {
    xdotool mousemove $(on_screen $from)
    xdotool mousemove_relative -- -12 0
    xdotool mousedown 1
    xdotool mousemove $(on_screen $to) mousemove_relative 60 0
  }
  sleep 0.3
  xdotool mouseup 1
  sleep 0.5
  click_yes
  expect_kept $((before - 1))
  back_to but2
  passed "the mouse alone deletes a word"
}

# The first button of the question box.
answer_yes_by_key() {
  sleep 0.4
  press Left
  press Return
}

delete_words_by_key() {
  local before
  before=$(words_kept)
  open_by_key 2
  expect_note "focus=Rchon "
  press ctrl+Home
  press Delete
  sleep 0.4
  press Return
  expect_kept "$before"
  press Delete
  answer_yes_by_key
  expect_kept $((before - 1))
  expect_note "focus=Rchon "
  press ctrl+Home
  press shift+Down
  press F2
  expect_visible RDOS
  settle 99-lines-marked-by-key
  press shift+F10
  answer_yes_by_key
  expect_kept $((before - 3))
  leave_to but2
  passed "the keys alone delete words, and No keeps them"
}
