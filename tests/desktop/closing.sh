#!/bin/bash
# Ends the real program in every way from outside while a text is open or read aloud, starts it a
# second time, and starts it without a pack and on one that may not be written. No word may be lost.
#
#   closing.sh PROGRAM PACK_FOLDER PICTURE_FOLDER [WIDTHxHEIGHT]
#
# Needs Xvfb and xdotool, and openbox to be asked to close by a window manager.
set -u

here=$(dirname "$(realpath "$0")")
for part in frame start; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

# start_with WORDS...: the program with these arguments, up to its menu.
start_with() {
  : >"$work/trace"
  xdotool mousemove $((screen_width - 5)) $((screen_height - 5))
  "$program" "$@" --trace "$work/trace" >"$work/program.log" 2>&1 &
  program_id=$!
  expect_note "focus=but1 "
}

open_a_text() {
  click_button 1
  expect_note "focus=R1 "
  # The text whose title has the word.
  click_word R1 Bank
  expect_note "focus=R2 "
  sleep 1
}

# take_word WORD: clicks a word of the open text and takes it.
take_word() {
  click_word R2 "$1"
  press Return
  sleep 0.3
}

# expect_end_within SECONDS WHAT
expect_end_within() {
  local tenth
  for tenth in $(seq $(($1 * 10))); do
    running || break
    sleep 0.1
  done
  running && fail "the program still runs $1 s after $2"
  wait "$program_id"
  local code=$?
  program_id=
  [ "$code" -eq 0 ] || fail "exit code $code after $2"
  passed "$2 ends the program within $tenth tenths of a second"
}

words_stored() {
  echo $(($(stat -c %s "$work/own/data.c") / 24))
}

expect_words() {
  [ "$(words_stored)" -eq "$1" ] || fail "$(words_stored) words are stored, expected $1"
}

start_display
mkdir "$work/own"
touch "$work/own/Yes1"
cp -r "$pack" "$work/pack"
chmod -R a-w "$work/pack"
sums() { (cd "$work/pack" && find . -type f -exec md5sum {} + | sort); }
sums >"$work/before"
folders=(--pack "$work/pack" --learner "$work/own")

start_with "${folders[@]}"
open_a_text
take_word bank
kill -TERM "$program_id"
expect_end_within 3 "SIGTERM with a text open"
expect_words 1

for signal in HUP INT; do
  start_with "${folders[@]}"
  open_a_text
  press F9
  sleep 1
  kill -"$signal" "$program_id"
  expect_end_within 3 "SIG$signal while a text is read aloud"
done

if [ -n "$window_manager" ]; then
  start_with "${folders[@]}"
  open_a_text
  take_word near
  press F9
  sleep 1
  xdotool key --clearmodifiers alt+F4
  expect_end_within 3 "Alt+F4 while a text is read aloud"
  expect_words 2
fi

start_with "${folders[@]}"
open_a_text
take_word old
kill -KILL "$program_id"
wait "$program_id" 2>/dev/null
program_id=
before_kill=$(words_stored)
start_with "${folders[@]}"
[ "$(words_stored)" -eq $((before_kill + 1)) ] || fail "the word of a killed program is lost"
passed "a word outlives a kill"

first=$program_id
: >"$work/second.log"
timeout 20 "$program" "${folders[@]}" >"$work/second.log" 2>&1 ||
  fail "the second start: exit code $?, $(cat "$work/second.log")"
[ -s "$work/second.log" ] && fail "the second start said: $(cat "$work/second.log")"
program_id=$first
running || fail "the first program has gone"
passed "a second start raises the first window and ends"
press Escape
sleep 0.5
press Return
expect_end_within 3 "the quit question"

start_with "${folders[@]}"
kill -KILL "$x_server"
wait "$program_id" 2>/dev/null
program_id=
passed "a lost display ends the program"
sums | cmp -s - "$work/before" || fail "something was written into the pack"
passed "nothing is ever written into the pack"

# Without a display and without a pack.
unset DISPLAY
"$program" --help >"$work/help" || fail "--help needs a display"
grep -q -- --learner "$work/help" || fail "--help does not tell of --learner"
"$program" --version | grep -q '^talvora ' || fail "--version says nothing"
"$program" --nonsense >/dev/null 2>&1
[ $? -eq 2 ] || fail "an unknown argument is not refused"
mkdir "$work/empty"
(cd "$work/empty" && QT_QPA_PLATFORM=offscreen timeout -s KILL 5 "$program" --pack "$work/empty") \
  >"$work/missing" 2>&1
grep -q "Không tìm thấy bộ bài học" "$work/missing" || fail "a missing pack is not told: $(cat "$work/missing")"
grep -qF "$work/empty" "$work/missing" || fail "it is not told where the pack was looked for"
[ -z "$(ls -A "$work/empty")" ] || fail "something was written where there is no pack"
passed "a pack that is not there is told, with where it was looked for"
