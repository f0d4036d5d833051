# Words and sentences of a text, the popup in every corner of the page, and the look-up list. Sourced
# by walk.sh.

half_width=$virtual_middle
half_height=$((virtual_height / 2))

# Words that the small dictionary has.
known="(bank|boy|river)[,.]?"

# Numbers of the places of a word on R2 that lie in a quarter of the screen.
places_in_quarter() { # WORD left|right upper|lower
  places_of R2 "$1" | awk -v side="$2" -v level="$3" -v x="$half_width" -v y="$half_height" '
    (side == "left") == ($1 < x) && (level == "upper") == ($2 < y) { print NR }'
}

# The popup's first word stands in the same half of the page as the pointer, or close to it.
popup_is_near() { # WORD WHICH
  local word popup
  word=$(places_of R2 "$1" | sed -n "$2p")
  popup=$(grep '^words RHD ' "$work/trace" | tail -n 1 | cut -d ' ' -f 3)
  [ -n "$popup" ] || fail "the popup has no words"
  awk -v word="$word" -v popup="$popup" -v width="$((virtual_middle * 2))" 'BEGIN {
    split(word, at, " "); split(popup, shown, ",")
    dx = at[1] - shown[1]; dy = at[2] - shown[2]
    exit !(dx * dx < width * width / 4 && dy * dy < width * width / 25) }' ||
    fail "the popup at $popup is far from the word at $word"
}

look_up_in_quarter() { # left|right upper|lower
  local which
  which=$(places_in_quarter "$known" "$1" "$2" | head -n 1)
  [ -n "$which" ] || fail "no word in the $2 $1 quarter"
  click_word R2 "$known" "$which"
  expect_visible RHD
  settle "20-popup-$2-$1"
  popup_is_near "$known" "$which"
  press Escape
  expect_hidden RHD
}

look_words_up() {
  click_button 1
  expect_note "focus=R1 "
  settle 20-list
  click_word R1 River
  expect_note "focus=R2 "
  settle 20-text
  local level side
  for level in upper lower; do
    for side in left right; do
      look_up_in_quarter "$side" "$level"
    done
  done
  passed "a clicked word shows its entry beside it, in all four quarters"

  point_at_word R2 spring
  xdotool click --repeat 2 --delay 60 1
  expect_visible RHD
  settle 21-sentence
  press Escape
  expect_hidden RHD
  click_word R2 summer
  xdotool keydown space
  expect_visible RHD
  settle 22-sentence-held
  xdotool keyup space
  expect_hidden RHD
  passed "a double click and a held Space show the sentence"

  press b
  expect_visible RTD
  settle 23-look-up-list
  press o
  press Return
  expect_visible RHD
  settle 24-from-the-list
  press Escape
  passed "a letter opens the look-up list, and Enter shows an entry"
  leave_to R1
  leave_to but1
}
