#!/usr/bin/env bash
# Measures the dictionaries that the tutor is held against, on the words of a pack.
set -euo pipefail

usage() {
  cat <<'TEXT'
usage: bench/peers.sh PACK_FOLDER [RUNS]

Measures on a StarDict dictionary that is made of the pack's word list:
  sdcv        1,000 mixed words in one call, exact search only, and a call with one word
  goldendict  from the start to its window, and its resident memory ten seconds later
  qstardict   the same
Each figure is the median of RUNS (default 11; the windows a third of that). Nothing is installed;
what is missing is named and left out. Needed: python3; for the windows also xvfb-run and xdotool.
How fast the windows answer a word is not measured: nothing tells from outside when one has painted
its article.
TEXT
}

case "${1:-}" in
--help | -h) usage; exit 0 ;;
"") usage >&2; exit 2 ;;
esac
pack=$1
runs=${2:-11}
[ -f "$pack/datatu.txt" ] || { echo "$pack holds no word list" >&2; exit 2; }
here=$(cd "$(dirname "$0")" && pwd)
# Inside the virtual display the script calls itself for one window.
work=${PEERS_WORK:-}

has() { command -v "$1" >/dev/null || { echo "missing: $1 (left out)"; return 1; }; }
microseconds() { echo $(($(date +%s%N) / 1000)); }
median() { sort -n | awk '{ all[NR] = $1 } END { print all[int((NR + 1) / 2)] }'; }

fail() { echo "$*" >&2; exit 1; }

time_of() { # COMMAND...: milliseconds with three places
  local begin end
  begin=$(microseconds)
  "$@" >/dev/null 2>&1 || fail "$1 failed, which is no figure: $*"
  end=$(microseconds)
  awk -v us=$((end - begin)) 'BEGIN { printf "%.3f\n", us / 1000 }'
}

tell_median() { # TEXT COMMAND...
  local text=$1 times=$work/call.times
  shift
  for _ in $(seq "$runs"); do time_of "$@"; done >"$times"
  echo "$text: $(median <"$times") ms"
}

# -- One window, inside the virtual display: milliseconds to the window, and kilobytes.
measure_window() { # PROGRAM
  local begin window
  begin=$(microseconds)
  "$1" >/dev/null 2>&1 &
  local process=$!
  window=
  for _ in $(seq 1500); do
    # Before there is a window, xdotool finds none and says so with its exit code.
    if window=$(xdotool search --onlyvisible --pid "$process" 2>/dev/null | head -n 1); then break; fi
    kill -0 "$process" 2>/dev/null || fail "$1 ended by itself"
    sleep 0.01
  done
  local shown=$((($(microseconds) - begin) / 1000))
  sleep 10
  local kilobytes
  kilobytes=$(awk '/^VmRSS:/ { print $2 }' "/proc/$process/status") || fail "$1 ended by itself"
  kill "$process"
  [ -n "$window" ] && echo "$shown $kilobytes" || echo "none $kilobytes"
}
if [ -n "$work" ]; then
  measure_window "$PEERS_PROGRAM"
  exit 0
fi

has python3 || exit 1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
home=$work/home
dictionary=$home/.stardict/dic/words
echo "word list: $(python3 "$here/make-stardict.py" "$pack" "$dictionary" "$work/words" 1000)"
echo "load: $(cut -d ' ' -f 1-3 /proc/loadavg), processors: $(nproc)"

measure_sdcv() {
  has sdcv || return 0
  mapfile -t words <"$work/words"
  local call=(sdcv -n -e --utf8-output --data-dir "$home/.stardict/dic")
  # The first call writes its own index cache where it may.
  time_of "${call[@]}" "${words[0]}" >/dev/null
  local found
  found=$("${call[@]}" "${words[@]}" 2>/dev/null | grep -c '^-->words') || fail "sdcv finds no word"
  echo "sdcv: $found of 1000 words found"
  tell_median "sdcv, 1,000 words" "${call[@]}" "${words[@]}"
  tell_median "sdcv, one word" "${call[@]}" "${words[0]}"
}

write_settings() {
  mkdir -p "$home/.goldendict" "$home/.config/qstardict"
  cat >"$home/.goldendict/config" <<XML
<config><paths><path recursive="1">$home/.stardict/dic</path></paths>
<preferences><enableTrayIcon>0</enableTrayIcon><checkForNewReleases>0</checkForNewReleases>
</preferences></config>
XML
}

run_window() { # PROGRAM
  HOME=$home XDG_CONFIG_HOME=$home/.config XDG_CACHE_HOME=$home/.cache \
    PEERS_WORK=$work PEERS_PROGRAM=$1 \
    xvfb-run -a -s "-screen 0 1366x768x24" "$here/peers.sh" "$pack"
}

measure_windows() { # PROGRAM
  has "$1" && has xvfb-run && has xdotool || return 0
  run_window "$1" >/dev/null # builds its index
  local times=$work/$1.times
  for _ in $(seq $(((runs + 2) / 3))); do run_window "$1" >>"$times"; done
  if grep -q none "$times"; then
    echo "$1: showed no window"
  else
    echo "$1, start to window: $(cut -d ' ' -f 1 "$times" | median) ms"
  fi
  echo "$1, resident: $(cut -d ' ' -f 2 "$times" | median | awk '{ printf "%.1f", $1 / 1024 }') MB"
}

measure_sdcv
write_settings
measure_windows goldendict
measure_windows qstardict
