# The first run, which only sets up and ends. Sourced by walk.sh.

run_first() {
  cp -r "$pack" "$work/pack"
  rm -f "$work/pack/Yes1"
  xdotool mousemove $((screen_width / 2)) $((screen_height / 2))
  settle 00-before
  "$program" --dir "$work/pack" --trace "$work/first-trace" >"$work/program.log" 2>&1 &
  program_id=$!
  # It has nothing to load, so that the box is there soon.
  sleep 2
  running || fail "the first run has ended without a box"
  settle 00-first-run
  # Where it stands, the window manager decides.
  expect_change 00-before 00-first-run 15
  press Return
  # Without an English voice a second box asks to answer its installer.
  for _ in $(seq 50); do
    running || break
    press Return
  done
  expect_end
  [ -f "$work/pack/Yes1" ] || fail "the first run left no marker"
  passed "the first run tells where help stands, leaves its marker and ends with exit code 0"
}
