#!/usr/bin/env bash
# Runs clang-tidy by the compile commands of a build folder.
#
# usage: tidy.sh BUILD_FOLDER            all of src and pack
#        tidy.sh BUILD_FOLDER --changed  what is not as in the branch followed, or else what the last
#                                        commit and the working tree changed
set -euo pipefail
cd "$(dirname "$0")/.."
case "${1:-}" in
  -h | --help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
  "") sed -n '4,6s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
build=$1

sources() {
  if [ "${2:-}" != --changed ]; then
    git ls-files 'src/*.cpp' 'pack/*.cpp'
    return
  fi
  local base=HEAD~1
  if git rev-parse -q --verify '@{upstream}' >/dev/null && ! git diff --quiet '@{upstream}' HEAD; then
    base='@{upstream}'
  fi
  git diff --name-only --diff-filter=d "$base" -- 'src/*.cpp' 'pack/*.cpp'
}

# Only what the build folder knows how to compile.
sources "$@" | while read -r file; do
  if grep -qF "/$file\"" "$build/compile_commands.json"; then printf '%s\n' "$file"; fi
done | xargs -r -P "$(nproc)" -n 2 clang-tidy -p "$build" --quiet --warnings-as-errors='*' \
  --extra-arg=-Wno-unknown-warning-option
