#!/bin/bash
# Uses the packages as a person would who has just installed them: installs both into a bare system
# tree, starts the program from its desktop entry as an ordinary user, walks three sections, collects
# a word, puts the next course under it, removes everything, and looks for the word.
#
#   installed.sh TREE PACKAGES_FOLDER PICTURE_FOLDER NEXT_COURSE.deb
#
# Needs root (the tree is entered with chroot), Xvfb, xdotool and ImageMagick.
set -u

tree=$(realpath "$1")
packages=$(realpath "$2")
next_course=$(realpath "$4")
set -- "$(command -v true)" "$tree" "$3"
here=$(dirname "$(realpath "$0")")/../desktop
for part in frame start; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

in_tree() {
  chroot "$tree" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin \
    DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 "$@"
}

install_in_tree() {
  mkdir -p "$tree/packages"
  cp "$@" "$tree/packages/"
  in_tree sh -c 'apt-get install -y -q --no-install-recommends /packages/*.deb' \
    >"$work/install.log" 2>&1 || {
    tail -n 20 "$work/install.log" >&2
    fail "the packages cannot be installed"
  }
  rm -r "$tree/packages"
}

# The line of the desktop entry, run as the user, noting what it shows.
start_from_entry() {
  local line
  line=$(sed -n 's/^Exec=//p' "$tree/usr/share/applications/org.talvora.talvora.desktop")
  : >"$work/trace"
  chmod 666 "$work/trace"
  chroot --userspec=pupil:pupil "$tree" /usr/bin/env -i HOME=/home/pupil PATH=/usr/bin:/bin \
    DISPLAY="$DISPLAY" LC_ALL=C.UTF-8 sh -c "cd && exec $line --trace $1" \
    >"$work/program.log" 2>&1 &
  program_id=$!
}

words_stored() {
  echo $(($(stat -c %s "$own/data.c" 2>/dev/null || echo 0) / 24))
}

quit_by_keys() {
  leave_to_menu
  press Escape
  sleep 0.5
  press Return
  expect_end
}

start_display
trace=/tmp/talvora-trace
rm -f "$tree$trace"
install_in_tree "$packages"/*.deb
in_tree sh -c 'id pupil >/dev/null 2>&1 || useradd --create-home --shell /bin/sh pupil'
own=$tree/home/pupil/.local/share/talvora
passed "both packages can be installed"
in_tree env LC_ALL=vi_VN.UTF-8 talvora-pack --help | grep -q "Cách dùng:" ||
  fail "the installed compiler does not speak Vietnamese"
passed "the installed compiler speaks Vietnamese"

: >"$tree$trace"
chmod 666 "$tree$trace"
rm -f "$work/trace"
ln -s "$tree$trace" "$work/trace"
xdotool mousemove $((screen_width - 5)) $((screen_height - 5))
start_from_entry "$trace"
sleep 2
running || fail "the first start has ended without a box"
settle 00-first-start
press Return
expect_note "focus=but1 "
settle 01-menu
passed "the first start tells where help stands and goes on to the menu"

click_button 1
expect_note "focus=R1 "
settle 02-reading-list
click_word R1 Street
expect_note "focus=R2 "
sleep 2
settle 03-text
click_word R2 '[a-z][a-z][a-z][a-z]+'
expect_visible RHD
settle 04-entry
grep -q 'no sound' "$work/program.log" && fail "the installed program has no sound"
press Return
press Escape
passed "a text opens and a word of it is taken"
leave_to_menu
[ "$(words_stored)" -eq 1 ] || fail "$(words_stored) words are stored, expected 1"

click_button 3
expect_note "focus=RVP1 "
settle 05-lessons
leave_to_menu
click_button 10
settle 06-bank
leave_to_menu
passed "lessons and a bank open"
quit_by_keys
passed "the program ends"

install_in_tree "$next_course"
start_from_entry "$trace"
expect_note "focus=but1 "
[ "$(words_stored)" -eq 1 ] || fail "the next course has lost the word"
passed "the next course keeps the word"
quit_by_keys

in_tree apt-get purge -y -q talvora talvora-course >"$work/purge.log" 2>&1 ||
  fail "the packages cannot be removed"
left=$(find "$tree/usr" -iname '*talvora*' | head -n 5)
[ -z "$left" ] || fail "left behind: $left"
[ "$(words_stored)" -eq 1 ] || fail "removing the program has removed the word"
passed "removed, nothing of the program is left, and the word is"
