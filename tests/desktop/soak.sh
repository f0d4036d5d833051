#!/bin/bash
# Keeps the real window busy with random clicks and keys for a while, on the pack and on damaged ones,
# and takes the display, the sound server, the session or the program's life away at random. The
# program, best one built with sanitizers, may end when it is told to or when its pack is no use; it
# may not crash.
#
#   soak.sh PROGRAM PACK_FOLDER SECONDS [SESSION_MANAGER [SEED]]
#
# Needs Xvfb, xdotool, PulseAudio with its tools, and python3.
set -u
# A session manager that is gone is no end of this.
trap '' PIPE

here=$(dirname "$(realpath "$0")")
seconds=${3:-600}
session_manager=$(realpath "${4:-}" 2>/dev/null)
RANDOM=${5:-1}
set -- "$1" "$2" "$(mktemp -d)" 1024x768
for part in frame start hearing; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done
trap 'close_session; stop_sound_server; clean_up' EXIT

keys=(Return Return Down Down Up Left Right space Escape Escape Tab Prior Next Home End F2 F6 F9
  a t x BackSpace Delete ctrl shift+Right)
end=$((SECONDS + seconds))
lives=0
events=0
sessions=0
silences=0
manager=

# A pack with one of its files cut, emptied or sprinkled with noise.
damage_pack() {
  chmod -R u+w "$work/pack" 2>/dev/null
  rm -rf "$work/pack"
  cp -r "$pack" "$work/pack"
  python3 - "$work/pack" "$RANDOM" <<'PYTHON'
import random
import sys
from pathlib import Path

chance = random.Random(int(sys.argv[2]))
file = chance.choice(sorted(path for path in Path(sys.argv[1]).iterdir() if path.is_file()))
content = bytearray(file.read_bytes())
kind = chance.randrange(3)
if kind == 0:
    content = content[:chance.randrange(len(content) + 1)]
elif kind == 1:
    for _ in range(1 + len(content) // 100):
        if content:
            content[chance.randrange(len(content))] = chance.randrange(256)
file.write_bytes(content)
print(file.name)
PYTHON
}

# One or two dozen events, sent in one go.
stir() {
  local words=() event
  for ((event = 0; event < 20; ++event)); do
    case $((RANDOM % 5)) in
      0) words+=(mousemove $((RANDOM % screen_width)) $((RANDOM % screen_height))) ;;
      1) words+=(mousemove $((RANDOM % screen_width)) $((RANDOM % screen_height)) click $((1 + RANDOM % 5))) ;;
      *) words+=(key "${keys[RANDOM % ${#keys[@]}]}") ;;
    esac
  done
  timeout 20 xdotool "${words[@]}" >/dev/null 2>&1
  events=$((events + 20))
}

# One life in three is part of a session that may end.
open_session() {
  [ -n "$session_manager" ] && [ $((RANDOM % 3)) -eq 0 ] || return
  rm -f "$work/orders" "$work/session"
  mkfifo "$work/orders"
  "$session_manager" <"$work/orders" >"$work/session" 2>&1 &
  manager=$!
  exec 4>"$work/orders"
  for _ in $(seq 50); do
    [ -s "$work/session" ] && break
    sleep 0.1
  done
  SESSION_MANAGER=$(head -n 1 "$work/session")
  export SESSION_MANAGER
}

end_session() {
  sessions=$((sessions + 1))
  echo save >&4
  sleep 1
  echo die >&4
}

close_session() {
  [ -n "$manager" ] || return
  exec 4>&-
  kill "$manager" 2>/dev/null
  wait "$manager" 2>/dev/null
  manager=
  unset SESSION_MANAGER
}

# The sound server falls silent, or it is gone, or nothing happens to it.
disturb_sound() {
  case $((RANDOM % 3)) in
    0) kill -STOP "$sound_server" ;;
    1) stop_sound_server ;;
    *) return ;;
  esac
  silences=$((silences + 1))
}

# What a program said that was not told to end.
judge() {
  local code=$1
  if grep -qE 'AddressSanitizer|runtime error|LeakSanitizer' "$work/program.log"; then
    fail "a sanitizer has spoken in life $lives"
  fi
  # 0 the end, 1 a failure that was told; by signal only what was sent.
  case $code in
    0 | 1 | "$allowed") ;;
    *) fail "exit code $code in life $lives, which was ended by $ended_by" ;;
  esac
}

lives_on() {
  jobs -pr | grep -qx "$program_id"
}

live_once() {
  lives=$((lives + 1))
  allowed=0
  ended_by=itself
  local folder=$pack
  if [ $((lives % 3)) -eq 0 ]; then
    damage_pack >"$work/damaged"
    folder=$work/pack
  fi
  kill -0 "$x_server" 2>/dev/null || { : >"$work/display"; start_x_server; }
  if [ $((lives % 2)) -eq 1 ]; then
    stop_sound_server
    start_sound_server
  fi
  open_session
  "$program" --pack "$folder" --learner "$work/own" >"$work/program.log" 2>&1 &
  program_id=$!
  local stirs=$((5 + RANDOM % 40))
  local disturbed=$((RANDOM % stirs))
  sleep 2
  while [ "$stirs" -gt 0 ] && [ "$SECONDS" -lt "$end" ] && lives_on; do
    stir
    stirs=$((stirs - 1))
    if [ "$stirs" -eq "$disturbed" ] && [ -n "$sound_server" ]; then disturb_sound; fi
  done
  if lives_on; then
    local ways=(SIGTERM SIGHUP SIGKILL display)
    ended_by=${ways[RANDOM % 4]}
    if [ -n "$manager" ]; then ended_by=session; fi
    case $ended_by in
      session) end_session ;;
      SIGKILL) kill -KILL "$program_id"; allowed=137 ;;
      display) kill -KILL "$x_server"; wait "$x_server" 2>/dev/null ;;
      *) kill -"$ended_by" "$program_id" ;;
    esac
  fi
  for _ in $(seq 300); do
    lives_on || break
    sleep 0.1
  done
  # One that does not end when it is told to stands still.
  if lives_on; then
    gdb -p "$program_id" -batch -ex "thread apply all backtrace" >>"$work/program.log" 2>&1
    kill -ABRT "$program_id"
  fi
  wait "$program_id" 2>/dev/null
  local code=$?
  program_id=
  close_session
  judge "$code"
}

mkdir "$work/own"
touch "$work/own/Yes1"
start_display
hear_only_ourselves
while [ "$SECONDS" -lt "$end" ]; do
  live_once
done
passed "$events events in $lives lives of the real window; $sessions sessions ended, $silences times \
the sound server fell silent"
rm -rf "$pictures"
