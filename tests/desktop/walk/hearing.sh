# A sound server whose device plays into nothing, and a record of what was played. Sourced by
# sound.sh.

sound_server=
recorder=
heard_from=0
trap 'stop_sound_server; clean_up' EXIT

# Neither the server nor the program may meet the sound of the person who runs this.
hear_only_ourselves() {
  export HOME=$work/home PULSE_SERVER=unix:$work/pulse
  mkdir -p "$HOME"
}

start_sound_server() {
  rm -f "$work/pulse"
  pulseaudio -n --daemonize=no --use-pid-file=no --exit-idle-time=-1 --disable-shm=1 \
    -L "module-null-sink sink_name=null format=s16le rate=16000 channels=1" \
    -L "module-native-protocol-unix auth-anonymous=1 socket=$work/pulse" \
    >"$work/pulse.log" 2>&1 &
  sound_server=$!
  for _ in $(seq 50); do
    pactl info >/dev/null 2>&1 && break
    sleep 0.1
  done
  pactl info >/dev/null 2>&1 || fail "the sound server does not start"
  parec --raw --device=null.monitor --format=s16le --rate=16000 --channels=1 --latency-msec=20 \
    >>"$work/heard" 2>/dev/null &
  recorder=$!
  for _ in $(seq 50); do
    [ -s "$work/heard" ] && return
    sleep 0.1
  done
  fail "nothing can be recorded"
}

stop_sound_server() {
  local process
  for process in $recorder $sound_server; do
    kill -CONT "$process" 2>/dev/null
    kill "$process" 2>/dev/null
    wait "$process" 2>/dev/null
  done
  recorder=
  sound_server=
}

# From here on is listened.
listen_from_now() {
  heard_from=$(stat -c %s "$work/heard")
  # A sample has two bytes.
  heard_from=$((heard_from / 2 * 2))
}

# So many samples sounded since then.
heard() {
  python3 "$here/heard.py" count "$work/heard" "$heard_from"
}

expect_heard() { # LEAST_SAMPLES
  local count
  for _ in $(seq 80); do
    count=$(heard)
    [ "$count" -ge "$1" ] && return
    sleep 0.1
  done
  fail "$count samples were heard, at least $1 expected"
}

# Waits until nothing has sounded for half a second.
expect_silence() {
  local before count
  count=$(heard)
  for _ in $(seq 40); do
    before=$count
    sleep 0.5
    count=$(heard)
    [ "$count" -eq "$before" ] && return
  done
  fail "it is never silent"
}

expect_nothing_heard() { # SECONDS
  sleep "$1"
  local count
  count=$(heard)
  [ "$count" -eq 0 ] || fail "$count samples were heard, none expected"
}
