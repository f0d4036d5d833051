#!/bin/bash
# Unpacks the archive that needs no installation into a bare system tree, as an ordinary user, and
# reads a text there.
#
#   portable.sh TREE ARCHIVE PICTURE_FOLDER
#
# Needs root (the tree is entered with chroot), Xvfb, xdotool and ImageMagick.
set -u

tree=$(realpath "$1")
archive=$(realpath "$2")
set -- "$(command -v true)" "$tree" "$3"
here=$(dirname "$(realpath "$0")")/../desktop
for part in frame start; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

start_display
find "$tree/usr" -name 'libQt6*' | grep -q . && fail "the tree has a Qt of its own"
chroot "$tree" useradd --create-home --shell /bin/sh pupil
tar -xJf "$archive" -C "$tree/home/pupil"
chroot "$tree" /usr/bin/env -i LC_ALL=vi_VN.UTF-8 LD_LIBRARY_PATH=/home/pupil/talvora/lib \
  /home/pupil/talvora/bin/talvora-pack --help | grep -q "Cách dùng:" ||
  fail "the archive's compiler does not speak Vietnamese"
trace=/tmp/talvora-trace
: >"$tree$trace"
chmod 666 "$tree$trace"
ln -s "$tree$trace" "$work/trace"
chroot --userspec=pupil:pupil "$tree" /usr/bin/env -i HOME=/home/pupil PATH=/usr/bin:/bin \
  DISPLAY="$DISPLAY" LC_ALL=C.UTF-8 /home/pupil/talvora/talvora --trace "$trace" \
  >"$work/program.log" 2>&1 &
program_id=$!
sleep 2
running || fail "the first start has ended without a box"
press Return
expect_note "focus=but1 "
click_button 1
expect_note "focus=R1 "
click_word R1 Street
expect_note "focus=R2 "
sleep 2
click_word R2 '[a-z][a-z][a-z][a-z]+'
expect_visible RHD
settle 01-entry
grep -q 'no sound' "$work/program.log" && fail "the program has no sound device"
press Escape
leave_to_menu
press Escape
sleep 0.5
press Return
expect_end
passed "the archive runs where there is no Qt"
