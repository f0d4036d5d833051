#!/usr/bin/env bash
# Runs every fuzz target with feedback for a while, then tells for each of the readers how many of its
# lines were reached, and fails when one stays under the floor or a target found a crash. Needs the
# preset "fuzz" built.
#
# usage: fuzz.sh BUILD_FOLDER SECONDS_A_TARGET [FLOOR]   the floor in percent of lines, 90
set -euo pipefail
cd "$(dirname "$0")/.."
case "${1:-}" in
  -h | --help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
  "") sed -n '6s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
build=$(realpath "$1")
seconds=$2
floor=${3:-90}
work=$build/tests/fuzz

pack=$work/seed-pack
[ -d "$pack" ] || "$build/pack/talvora-pack" build tests/scenarios/content "$pack" --words 2000
python3 tests/fuzz/pack-seeds.py "$pack" "$work/pack-seeds"

targets=$(find "$work" -maxdepth 1 -type f -perm -u+x -name 'talvora-fuzz-*' -printf '%f\n' |
  sed 's/^talvora-fuzz-//' | sort)
for target in $targets; do
  mkdir -p "$work/found/$target" "$work/pack-seeds/$target" "$work/run/$target"
done

run_target() {
  local target=$1
  cd "$work/run/$target"
  if ! LLVM_PROFILE_FILE="$work/run/$target/profile" "$work/talvora-fuzz-$target" \
    -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -max_len=65536 \
    -artifact_prefix="$work/run/$target/" "$work/found/$target" \
    "$here/tests/fuzz/seeds/$target" "$work/pack-seeds/$target" >log 2>&1; then
    echo "$target found something; see $work/run/$target/log"
    return 1
  fi
}
export -f run_target
export work seconds here=$PWD
failed=0
# shellcheck disable=SC2016 # the inner shell expands it
printf '%s\n' $targets | xargs -P "$(nproc)" -I{} bash -c 'run_target "$1"' _ {} || failed=1

llvm-profdata merge -sparse "$work"/run/*/profile -o "$work/all.profdata"
objects=()
for target in $targets; do objects+=(-object "$work/talvora-fuzz-$target"); done
llvm-cov export -summary-only -instr-profile "$work/all.profdata" "${objects[@]}" \
  >"$work/coverage.json"
python3 tools/coverage.py "$work/coverage.json" tests/fuzz/readers.txt "$floor" || failed=1
exit "$failed"
