#!/bin/bash
# Takes the pictures of the teacher's guide: does in a fresh folder what its first part says, with the
# commands and the text as they stand there, and looks at the text in the running program.
#
#   docs/teacher/pictures.sh PROGRAM TALVORA-PACK COURSE_FOLDER PICTURE_FOLDER
#
# Needs Xvfb, xterm with Noto Sans Mono, xdotool, openbox and ImageMagick.
set -u

if [ $# -ne 4 ]; then
  sed -n '2,7s/^# \{0,1\}//p' "$0" >&2
  exit 2
fi
compiler=$(realpath "$2")
guide=$(dirname "$(realpath "$0")")/../huong-dan-giao-vien.md
set -- "$1" "$3" "$4" 1366x768
# shellcheck source=/dev/null
. "$(dirname "$(realpath "$0")")/../pictures.sh"

# What the first part of the guide has people type, and the text that it has them write.
commands() {
  sed -n '/^## 1/,/^## 2/s/^    \(talvora-pack .*\)/\1/p' "$guide"
}
sample() {
  sed -n '/^## 1/,/^## 2/p' "$guide" |
    awk '/^    title: / { within = 1 } /^[^ ]/ { within = 0 } within { sub(/^    /, ""); print }'
}

# A command line in which the guide's commands are given; the text is written behind the first.
show_terminal() {
  mkdir -p "$work/bin" "$work/lop-hoc"
  ln -s "$compiler" "$work/bin/talvora-pack"
  sample >"$work/sample.txt"
  {
    echo 'cd "$1" && PATH=$2/bin:$PATH'
    commands | while read -r command; do
      printf "printf '\\\\033[1m\$ %%s\\\\033[0m\\\\n' '%s'\n%s\n" "$command" "$command"
      case $command in
        *" new "*) printf 'cp "$2/sample.txt" "%s"\n' "${command##* }" ;;
      esac
    done
    echo 'touch "$2/typed"; sleep 60'
  } >"$work/typing.sh"
  LANGUAGE=vi LC_ALL=C.UTF-8 xterm -u8 -fa "Noto Sans Mono" -fs 15 -geometry 96x26+40+20 +sb \
    -bg '#fdf9ec' -fg '#202020' -e bash "$work/typing.sh" "$work/lop-hoc" "$work" &
  terminal=$!
  for _ in $(seq 100); do
    [ -e "$work/typed" ] && break
    sleep 0.1
  done
  [ -e "$work/typed" ] || fail "the commands of the guide do not end"
  shot terminal
  kill "$terminal"
}

start_as_the_teacher() {
  : >"$own/Yes1"
  "$program" --pack "$pack" --learner "$own" --trace "$work/trace" >"$work/program.log" 2>&1 &
  program_id=$!
  for _ in $(seq 300); do
    [[ $(state) == *"focus=but1 "* ]] && break
    sleep 0.1
  done
  expect_note "focus=but1 "
}

start_display
HOME=$work/home
export HOME
own=$HOME/.local/share/talvora
mkdir -p "$own"
show_terminal
[ -s "$own/owntexts.av" ] || fail "the guide's text is not in the learner's folder"

start_as_the_teacher
sleep 2
click_button 1
expect_note "focus=R1 "
sleep 1
# The groups of the list, one after another, up to the last.
for _ in $(seq 60); do
  press Right
done
sleep 2
shot list
click_word R1 Morning
expect_note "focus=R2 "
for _ in $(seq 100); do
  [ -n "$(places_of R2 sister)" ] && break
  sleep 0.1
done
sleep 2
point_at_word R2 "sister"
xdotool click --repeat 2 --delay 60 1
expect_visible RHD
shot text
echo "The pictures are in $pictures"
