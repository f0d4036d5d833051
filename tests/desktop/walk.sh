#!/bin/bash
# Walks through the real program from outside: a virtual X display, real clicks and keys, and a
# picture of every screen. A step that does not happen ends the walk with exit code 1.
#
#   walk.sh PROGRAM PACK_FOLDER PICTURE_FOLDER [WIDTHxHEIGHT]
#
# The pack is copied first, since the program writes into it. Needs Xvfb, xdotool and ImageMagick;
# openbox manages the window where it is installed, unless WALK_WINDOW_MANAGER is "none".
set -u

if [ $# -lt 3 ]; then
  sed -n '2,8s/^# \{0,1\}//p' "$0" >&2
  exit 2
fi
program=$(realpath "$1")
pack=$(realpath "$2")
mkdir -p "$3"
pictures=$(realpath "$3")
screen=${4:-1366x768}
screen_width=${screen%x*}
screen_height=${screen#*x}

work=$(mktemp -d)
x_server=
window_manager=
program_id=

clean_up() {
  for process in $program_id $window_manager $x_server; do
    kill "$process" 2>/dev/null
  done
  wait 2>/dev/null
  rm -rf "$work"
}
trap clean_up EXIT

fail() {
  take "failed" 2>/dev/null
  echo "FAILED: $*" >&2
  if [ -s "$work/program.log" ]; then
    echo "The program said:" >&2
    cat "$work/program.log" >&2
  fi
  exit 1
}

passed() {
  echo "ok: $*"
}

# -- Pictures.

# take NAME: keeps a picture of the whole screen.
take() {
  import -window root "$pictures/$1.png"
}

# changed_share NAME NAME [REGION]: how much differs between two pictures, in thousandths of the
# region. Small differences of a colour do not count.
changed_share() {
  local crop=() size=$((screen_width * screen_height)) differing
  if [ $# -gt 2 ]; then
    crop=(-crop "$3" +repage)
    local area=${3%%+*}
    size=$((${area%x*} * ${area#*x}))
  fi
  convert "$pictures/$1.png" "${crop[@]}" "$work/left.png" || fail "no picture $1"
  convert "$pictures/$2.png" "${crop[@]}" "$work/right.png" || fail "no picture $2"
  # The count of a large picture comes as 1.23e+06; the exit code only says that they differ.
  differing=$(compare -metric AE -fuzz 6% "$work/left.png" "$work/right.png" null: 2>&1)
  awk -v count="$differing" -v size="$size" 'BEGIN { printf "%d\n", count * 1000 / size }'
}

# settle NAME: takes the picture when the screen has come to rest. The animated button never rests;
# it is less than one hundredth of the screen.
settle() {
  take "$1"
  for _ in $(seq 40); do
    sleep 0.15
    cp "$pictures/$1.png" "$pictures/before.png"
    take "$1"
    local share
    share=$(changed_share before "$1")
    rm -f "$pictures/before.png"
    [ "$share" -lt 10 ] && return
  done
  fail "the screen does not come to rest at $1"
}

expect_change() { # NAME NAME LEAST [REGION]
  local share
  share=$(changed_share "$1" "$2" ${4:+"$4"})
  [ "$share" -ge "$3" ] || fail "$2 looks like $1: $share of 1000 changed, $3 expected"
}

expect_same() { # NAME NAME MOST [REGION]
  local share
  share=$(changed_share "$1" "$2" ${4:+"$4"})
  [ "$share" -le "$3" ] || fail "$2 does not look like $1: $share of 1000 changed, $3 allowed"
}

# What the program itself notes: which control has the keyboard and what is visible.
expect_note() { # TEXT
  local last
  for _ in $(seq 20); do
    last=$(tail -n 1 "$work/trace" 2>/dev/null)
    [[ "$last" == *"$1"* ]] && return
    sleep 0.1
  done
  fail "the program notes \"$last\", expected \"$1\""
}

# -- Pointer and keys. Points of the menu are those of a screen 768 pixels high; a lower screen has
#    tables of its own, and this walk does not know them.

on_screen() { # X Y: the same point on this screen, which shows the picture centred
  awk -v x="$1" -v y="$2" -v width="$screen_width" -v height="$screen_height" 'BEGIN {
    virtual = int(768 * width / height + 0.5)
    if (virtual < 1024) virtual = 1024
    if (virtual > 1366) virtual = 1366
    scale = width / virtual < height / 768 ? width / virtual : height / 768
    printf "%d %d\n", (width - virtual * scale) / 2 + x * scale,
                      (height - 768 * scale) / 2 + y * scale }'
}

point_of_button() { # NUMBER
  local row=$((($1 - 1) % 9)) x=480
  [ "$1" -gt 9 ] && x=750
  on_screen "$x" $((240 + row * 46))
}

pointer() {
  eval "$(xdotool getmouselocation --shell)"
  echo "$X $Y"
}

pointer_is_at() { # X Y
  local x y
  read -r x y < <(pointer)
  [ $((x - $1)) -ge -2 ] && [ $((x - $1)) -le 2 ] && [ $((y - $2)) -ge -2 ] && [ $((y - $2)) -le 2 ]
}

wait_for_pointer() { # TENTHS X Y
  for _ in $(seq "$1"); do
    kill -0 "$program_id" 2>/dev/null || fail "the program has ended by itself"
    pointer_is_at "$2" "$3" && return
    sleep 0.1
  done
  fail "the pointer stands at $(pointer), expected at $2 $3"
}

click_button() { # NUMBER
  local x y
  read -r x y < <(point_of_button "$1")
  xdotool mousemove "$x" "$y"
  sleep 0.2
  xdotool click 1
}

press() {
  xdotool key "$1"
  sleep 0.2
}

running() {
  kill -0 "$program_id" 2>/dev/null
}

# -- The parts of the walk.

start_display() {
  Xvfb -displayfd 3 -screen 0 "${screen}x24" -nolisten tcp 3>"$work/display" 2>/dev/null &
  x_server=$!
  for _ in $(seq 50); do
    [ -s "$work/display" ] && break
    sleep 0.1
  done
  [ -s "$work/display" ] || fail "Xvfb does not start"
  DISPLAY=:$(cat "$work/display")
  export DISPLAY
  if [ "${WALK_WINDOW_MANAGER:-openbox}" != none ] && command -v openbox >/dev/null; then
    openbox >/dev/null 2>&1 &
    window_manager=$!
    sleep 0.5
  fi
}

start_program() {
  cp -r "$pack" "$work/pack"
  # The marker of a first run that is over.
  : >"$work/pack/Yes1"
  xdotool mousemove $((screen_width - 5)) $((screen_height - 5))
  take 00-empty
  QT_QPA_PLATFORM=xcb "$program" --dir "$work/pack" --trace "$work/trace" >"$work/program.log" 2>&1 &
  program_id=$!
  # The start-up ends with the pointer on the first button.
  local x y
  read -r x y < <(point_of_button 1)
  wait_for_pointer 300 "$x" "$y"
  settle 01-menu
  expect_note "focus=but1 "
  expect_change 00-empty 01-menu 700
  passed "the menu stands and the pointer is on its first button"
}

walk_by_arrow() {
  local x y
  press Down
  read -r x y < <(point_of_button 2)
  wait_for_pointer 20 "$x" "$y"
  expect_note "focus=but2 "
  press Up
  read -r x y < <(point_of_button 1)
  wait_for_pointer 20 "$x" "$y"
  expect_note "focus=but1 "
  passed "the pointer follows the arrows"
}

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

read_the_guide() {
  click_button 9
  sleep 1
  settle 06-guide
  expect_change 05-menu-again 06-guide 300
  expect_note "focus=Rcachhoc "
  passed "the guide opens"
  press Escape
  settle 07-menu-after-guide
  expect_same 01-menu 07-menu-after-guide 40
  expect_note "focus=but9 "
  passed "Esc leads from the guide to the menu"
}

# The middle of the notice and of a question box, where the menu shows parts of two columns.
middle() {
  local left top right bottom
  read -r left top < <(on_screen "$((virtual_middle - 60))" "$1")
  read -r right bottom < <(on_screen "$((virtual_middle + 60))" "$2")
  echo "$((right - left))x$((bottom - top))+$left+$top"
}

see_the_notice() {
  click_button 6
  sleep 0.3
  take 08-notice
  expect_change 07-menu-after-guide 08-notice 400 "$(middle 285 335)"
  sleep 1.5
  settle 09-menu-after-notice
  expect_same 07-menu-after-guide 09-menu-after-notice 100 "$(middle 285 335)"
  passed "the notice of the section under construction comes and goes"
}

quit() {
  press Escape
  settle 10-question
  expect_change 09-menu-after-notice 10-question 300 "$(middle 354 414)"
  press Escape
  settle 11-menu-after-no
  running || fail "the program ended though the answer was No"
  expect_same 09-menu-after-notice 11-menu-after-no 40
  passed "No leads back to the menu"
  press Escape
  settle 12-question-again
  expect_change 11-menu-after-no 12-question-again 300 "$(middle 354 414)"
  press Return
  for _ in $(seq 50); do
    running || break
    sleep 0.1
  done
  running && fail "the program goes on though the answer was Yes"
  wait "$program_id"
  local code=$?
  program_id=
  [ "$code" -eq 0 ] || fail "the program ended with exit code $code"
  passed "Yes ends the program with exit code 0"
}

virtual_middle=$(awk -v width="$screen_width" -v height="$screen_height" 'BEGIN {
  virtual = int(768 * width / height + 0.5)
  if (virtual < 1024) virtual = 1024
  if (virtual > 1366) virtual = 1366
  printf "%d\n", virtual / 2 }')

start_display
start_program
walk_by_arrow
read_a_text
read_the_guide
see_the_notice
quit
echo "The pictures are in $pictures"
