#!/bin/bash
# Types Telex into the look-up while a Vietnamese typing method is at work: what arrives must be the
# English letters. That the method works is shown first, in a field that lets it.
#
#   typing.sh PROGRAM PACK_FOLDER PICTURE_FOLDER TYPING_FIELD
#
# Needs what walk.sh needs, dbus-run-session, and IBus with its engine Unikey; without that engine
# nothing is tested, which it says.
set -u

if [ ! -e /usr/share/ibus/component/unikey.xml ] || ! command -v ibus-daemon >/dev/null; then
  echo "not tested: there is no ibus-daemon with the engine Unikey (package ibus-unikey)"
  exit 77
fi

# A bus that nobody else listens on.
if [ -z "${TYPING_HAS_BUS:-}" ]; then
  TYPING_HAS_BUS=yes exec dbus-run-session -- "$0" "$@"
fi

here=$(dirname "$(realpath "$0")")
field=$(realpath "$4")
set -- "$1" "$2" "$3"
for part in frame start; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

start_typing_method() {
  export HOME=$work/home QT_IM_MODULE=ibus
  export XDG_CONFIG_HOME=$HOME/.config XDG_CACHE_HOME=$HOME/.cache
  mkdir -p "$HOME"
  ibus-daemon --panel disable --emoji-extension disable --config /usr/libexec/ibus-memconf \
    --cache none >"$work/ibus.log" 2>&1 &
  typing_method=$!
  trap 'kill "$typing_method" 2>/dev/null; clean_up' EXIT
  for _ in $(seq 100); do
    ibus engine Unikey >/dev/null 2>&1
    [ "$(ibus engine 2>/dev/null)" = Unikey ] && return
    sleep 0.1
  done
  fail "the typing method does not start: $(tail -n 3 "$work/ibus.log")"
}

# Until the field shows what the method makes of the letters.
type_into_the_field() {
  "$field" "$work/typed" >"$work/field.log" 2>&1 &
  local field_id=$!
  for _ in $(seq 50); do
    [ -e "$work/typed" ] && break
    sleep 0.1
  done
  sleep 1
  # The blank ends the word, which the method had in hand.
  xdotool type --delay 80 "dduwowngf "
  for _ in $(seq 50); do
    [[ "$(cat "$work/typed")" == *đ* ]] && break
    sleep 0.1
  done
  local typed
  typed=$(cat "$work/typed")
  kill "$field_id"
  wait "$field_id" 2>/dev/null
  [[ "$typed" == *đ* ]] || fail "the typing method is not at work: the field has \"$typed\""
  passed "the typing method makes \"$typed\" of dduwowngf"
}

type_into_the_look_up() { # LETTERS
  xdotool type --delay 80 "$1"
  expect_note "caption=$1"
  press Escape
  leave_to R1
  passed "the look-up gets $1 as it is typed"
}

start_display
start_typing_method
type_into_the_field
cp -r "$pack" "$work/pack"
: >"$work/pack/Yes1"
start_program
click_button 1
expect_note "focus=R1 "
type_into_the_look_up dduwowngf
type_into_the_look_up dduongf
type_into_the_look_up as
