#!/bin/bash
# Ends the real program in every way from outside while a text is open or read aloud, starts it a
# second time, and starts it without a pack and on one that may not be written. No word may be lost.
#
#   closing.sh PROGRAM PACK_FOLDER PICTURE_FOLDER [SESSION_MANAGER]
#
# Needs Xvfb and xdotool, and openbox to be asked to close by a window manager.
set -u

here=$(dirname "$(realpath "$0")")
session_manager=$(realpath "${4:-}" 2>/dev/null)
set -- "${@:1:3}"
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
expect_end 3 "SIGTERM with a text open"
expect_words 1

for signal in HUP INT; do
  start_with "${folders[@]}"
  open_a_text
  press F9
  sleep 1
  kill -"$signal" "$program_id"
  expect_end 3 "SIG$signal while a text is read aloud"
done

if [ -n "$window_manager" ]; then
  start_with "${folders[@]}"
  open_a_text
  take_word near
  press F9
  sleep 1
  xdotool key --clearmodifiers alt+F4
  expect_end 3 "Alt+F4 while a text is read aloud"
  expect_words 2
fi

# log_out: asks the program to store what it has, as a session manager does, and then to end.
log_out() {
  mkfifo "$work/orders"
  "$session_manager" <"$work/orders" >"$work/session" 2>&1 &
  local manager=$!
  trap 'kill "$manager" 2>/dev/null; clean_up' EXIT
  exec 4>"$work/orders"
  expect_session local/
  SESSION_MANAGER=$(head -n 1 "$work/session")
  export SESSION_MANAGER
  start_with "${folders[@]}"
  unset SESSION_MANAGER
  expect_session client
  open_a_text
  take_word river.
  local before
  before=$(words_stored)
  echo save >&4
  expect_session saved
  running || fail "the program has ended before the session did"
  expect_words $((before + 1))
  passed "a log-out stores the words while the program still runs"
  echo die >&4
  expect_end 5 "the end of the session"
  exec 4>&-
  wait "$manager"
  trap clean_up EXIT
}

expect_session() { # TEXT
  for _ in $(seq 50); do
    grep -q "^$1" "$work/session" && return
    sleep 0.1
  done
  fail "the session manager heard \"$(cat "$work/session")\", expected $1"
}

[ -z "$session_manager" ] || log_out

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
expect_end 3 "the quit question"

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
