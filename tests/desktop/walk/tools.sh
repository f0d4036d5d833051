# Pictures, the pointer, keys, and what the program notes. Sourced by walk.sh.

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

# -- What the program itself notes: which control has the keyboard, what is visible, and where the
#    words stand.

state() {
  grep '^focus=' "$work/trace" 2>/dev/null | tail -n 1
}

expect_note() { # TEXT
  local last
  for _ in $(seq 50); do
    last=$(state)
    [[ "$last" == *"$1"* ]] && return
    sleep 0.1
  done
  fail "the program notes \"$last\", expected \"$1\""
}

expect_no_note() { # TEXT
  local last
  for _ in $(seq 50); do
    last=$(state)
    [[ "$last" != *"$1"* ]] && return
    sleep 0.1
  done
  fail "the program notes \"$last\", expected it without \"$1\""
}

expect_visible() { # SURFACE
  expect_note ",$1,"
}

# A bank is shuffled: any kind of its items may come first.
expect_item_of_bank() {
  for _ in $(seq 50); do
    [[ "$(state)" =~ focus=(RDT|RABCD|Rsai)\  ]] && return
    sleep 0.1
  done
  fail "the program notes \"$(state)\", expected an item"
}

expect_hidden() { # SURFACE
  expect_no_note ",$1,"
}

# Every place of a word on a surface: lines of "x y" in pixels of the program's screen. The word may
# be a pattern.
places_of() { # SURFACE WORD
  grep "^words $1 " "$work/trace" | tail -n 1 | tr ' ' '\n' | tail -n +3 |
    awk -F, -v word="$2" '{ x = $1; y = $2; sub(/^[^,]*,[^,]*,/, ""); if ($0 ~ "^" word "$") print x, y }'
}

point_at_word() { # SURFACE WORD [WHICH]
  local place
  for _ in $(seq 30); do
    place=$(places_of "$1" "$2" | sed -n "${3:-1}p")
    [ -n "$place" ] && break
    sleep 0.1
  done
  [ -n "$place" ] || fail "no word \"$2\" on $1"
  # shellcheck disable=SC2086,SC2046 # two numbers each
  xdotool mousemove $(on_screen $place)
  sleep 0.15
}

# The region of a picture around a word.
region_of() { # SURFACE WORD
  local x y
  # shellcheck disable=SC2046 # two numbers
  read -r x y < <(on_screen $(places_of "$1" "$2" | head -n 1))
  echo "80x24+$((x - 40))+$((y - 12))"
}

# A word can really be seen in a picture: its place is not of one colour.
expect_ink() { # PICTURE SURFACE WORD
  local spread
  [ -n "$(places_of "$2" "$3")" ] || fail "no word \"$3\" on $2"
  spread=$(convert "$pictures/$1.png" -crop "$(region_of "$2" "$3")" +repage -colorspace gray \
    -format '%[fx:round(1000*standard_deviation)]' info:)
  [ "$spread" -ge 40 ] || fail "$1 does not show the word \"$3\" of $2"
}

click_word() { # SURFACE WORD [WHICH [BUTTON]]
  point_at_word "$1" "$2" "${3:-1}"
  xdotool click "${4:-1}"
  sleep 0.3
}

# -- Pointer and keys, in pixels of the program's own screen: as high as the real one up to 768 pixels,
#    and as wide as the real one's shape says.

measure_screen() {
  read -r virtual_width virtual_height < <(awk -v width="$screen_width" -v height="$screen_height" '
    BEGIN {
      if (height < 768) { print width, height; exit }
      virtual = int(768 * width / height + 0.5)
      if (virtual < 1024) virtual = 1024
      if (virtual > 1366) virtual = 1366
      print virtual, 768 }')
  virtual_middle=$((virtual_width / 2))
  # Where the pointer goes for a menu button: both columns, the first row, the way to the next.
  case $virtual_width in
    [1-7]??) menu_table="305 477 160 29" ;;
    800) menu_table="388 605 190 36" ;;
    *) menu_table="480 750 240 46" ;;
  esac
}
measure_screen

on_screen() { # X Y: the same point on this screen, which shows the picture centred
  awk -v x="$1" -v y="$2" -v width="$screen_width" -v height="$screen_height" \
    -v virtual="$virtual_width" -v high="$virtual_height" 'BEGIN {
    scale = width / virtual < height / high ? width / virtual : height / high
    printf "%d %d\n", (width - virtual * scale) / 2 + x * scale,
                      (height - high * scale) / 2 + y * scale }'
}

# Where the program itself puts the pointer for a menu button: its table, made for 768 pixels, drifts
# off the lower buttons of the smallest screens.
point_of_button() { # NUMBER
  local left right top step x
  read -r left right top step <<<"$menu_table"
  x=$left
  [ "$1" -gt 9 ] && x=$right
  on_screen "$x" $((top + ($1 - 1) % 9 * step))
}

middle_of_button() { # NUMBER
  # shellcheck disable=SC2046 # two numbers
  on_screen $(awk -v number="$1" -v width="$virtual_width" -v height="$virtual_height" 'BEGIN {
    form = height * 0.97
    column = number > 9 ? 1 : 0
    row = (number - 1) % 9
    printf "%d %d\n", width * (0.225 + 0.01 + 0.13 + column * 0.27),
                      height - form + form * (0.22 + 0.06 + 0.02 + row * 0.06) }')
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
    if [ "$platform" = wayland ]; then
      # There no program moves the pointer; the focus and the hover come by themselves.
      [[ "$(state)" == focus=but* ]] && return
    else
      pointer_is_at "$2" "$3" && return
    fi
    sleep 0.1
  done
  fail "the pointer stands at $(pointer), expected at $2 $3"
}

click_button() { # NUMBER
  local x y
  read -r x y < <(middle_of_button "$1")
  xdotool mousemove "$x" "$y"
  sleep 0.2
  xdotool click 1
}

press() {
  xdotool key "$1"
  sleep 0.2
}

# Esc until a control has the keyboard.
leave_to() { # CONTROL
  for _ in 1 2 3 4 5 6; do
    [[ "$(state)" == *"focus=$1 "* ]] && return
    press Escape
    sleep 0.4
  done
  expect_note "focus=$1 "
}

# Esc until the menu has the keyboard.
leave_to_menu() {
  for _ in 1 2 3 4 5 6; do
    [[ "$(state)" == focus=but* ]] && return
    press Escape
    sleep 0.4
  done
  expect_note "focus=but"
}

running() {
  kill -0 "$program_id" 2>/dev/null
}

# The program ends by itself within so many seconds of what was done to it.
expect_end() { # [SECONDS [WHAT [EXIT_CODE]]]
  local seconds=${1:-5} what=${2:-the question} expected=${3:-0} tenth
  for tenth in $(seq $((seconds * 10))); do
    running || break
    sleep 0.1
  done
  running && fail "the program still runs $seconds s after $what"
  wait "$program_id"
  local code=$?
  program_id=
  [ "$code" -eq "$expected" ] || fail "exit code $code after $what, expected $expected"
  passed "$what ends the program within $tenth tenths of a second"
}
