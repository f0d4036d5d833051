# The arguments of a walk, how it ends, and its tools. Sourced by the walks.

if [ $# -lt 3 ]; then
  sed -n '2,/^set/s/^# \{0,1\}//p' "$0" >&2
  exit 2
fi
program=$(realpath "$1")
pack=$(realpath "$2")
mkdir -p "$3"
pictures=$(realpath "$3")
screen=${4:-1366x768}
platform=${5:-xcb}
screen_width=${screen%x*}
screen_height=${screen#*x}

work=$(mktemp -d)
x_server=
window_manager=
program_id=

clean_up() {
  for process in $program_id $window_manager $x_server; do
    kill "$process" 2>/dev/null
  done
  wait 2>/dev/null
  rm -rf "$work"
}
trap clean_up EXIT

fail() {
  take "failed" 2>/dev/null
  echo "FAILED: $*" >&2
  if [ -s "$work/program.log" ]; then
    echo "The program said:" >&2
    cat "$work/program.log" >&2
  fi
  exit 1
}

passed() {
  echo "ok: $*"
}

# shellcheck source=/dev/null
. "$here/walk/tools.sh"
