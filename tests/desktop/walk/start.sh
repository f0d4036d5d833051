# The display and the start of the program. Sourced by walk.sh.

start_display() {
  start_x_server
  XDG_RUNTIME_DIR="$work/runtime"
  mkdir -m 700 "$XDG_RUNTIME_DIR"
  export XDG_RUNTIME_DIR QT_QPA_PLATFORM="$platform"
  if [ "$platform" = wayland ]; then
    start_compositor
  elif [ "${WALK_WINDOW_MANAGER:-openbox}" != none ] && command -v openbox >/dev/null; then
    openbox >/dev/null 2>&1 &
    window_manager=$!
    sleep 0.5
  fi
}

start_x_server() {
  Xvfb -displayfd 3 -screen 0 "${screen}x24" -nolisten tcp 3>"$work/display" 2>/dev/null &
  x_server=$!
  for _ in $(seq 50); do
    [ -s "$work/display" ] && break
    sleep 0.1
  done
  [ -s "$work/display" ] || fail "Xvfb does not start"
  DISPLAY=:$(cat "$work/display")
  export DISPLAY
}

# A Wayland compositor that is itself a window of the X display, from which it gets real input. Its
# kiosk shell would not give the keyboard back when a box closes.
start_compositor() {
  # Its panel would stay over the window once a box has been there.
  printf '%s\n' '[shell]' panel-position=none locking=false >"$work/weston.ini"
  weston --config="$work/weston.ini" --backend=x11-backend.so --use-pixman \
    --shell=desktop-shell.so --idle-time=0 --width="$screen_width" --height="$screen_height" \
    --socket=walk >"$work/weston.log" 2>&1 &
  window_manager=$!
  for _ in $(seq 50); do
    [ -S "$XDG_RUNTIME_DIR/walk" ] && break
    sleep 0.1
  done
  [ -S "$XDG_RUNTIME_DIR/walk" ] || fail "weston does not start: $(tail -n 3 "$work/weston.log")"
  export WAYLAND_DISPLAY=walk
  timeout 10 xdotool search --sync --onlyvisible --class weston >"$work/weston.window" ||
    fail "weston shows no window"
  meet_in_the_corner
}

# Weston counts in steps from where it believes the pointer to be, and stops it at the edges. A way
# across the whole screen into a corner makes its pointer and the display's the same.
meet_in_the_corner() {
  sleep 0.5
  xdotool mousemove $((screen_width - 1)) $((screen_height - 1))
  sleep 0.2
  xdotool mousemove 0 0
  sleep 0.2
}

start_program() {
  xdotool mousemove $((screen_width - 5)) $((screen_height - 5))
  take 00-empty
  "$program" --dir "$work/pack" --trace "$work/trace" >"$work/program.log" 2>&1 &
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
