#!/usr/bin/env bash
# Runs clang-tidy by the compile commands of a build folder.
#
# usage: tidy.sh BUILD_FOLDER                 all of src and pack
#        tidy.sh BUILD_FOLDER --changed       what is not as in the branch followed, or else what the
#                                             last commit and the working tree changed
#        tidy.sh BUILD_FOLDER --since COMMIT  what is not as in a commit
set -euo pipefail
cd "$(dirname "$0")/.."

wrongUse() {
  sed -n '4,7s/^# \{0,1\}//p' tools/tidy.sh >&2
  exit 2
}

build=${1:-}
base=
case "$build ${2:-}" in
  -h\ * | --help\ *) sed -n '2,7s/^# \{0,1\}//p' tools/tidy.sh; exit 0 ;;
  " "*) wrongUse ;;
  *" ") ;;
  *" --changed")
    base=HEAD~1
    if git rev-parse -q --verify '@{upstream}' >/dev/null &&
      ! git diff --quiet '@{upstream}' HEAD; then
      base='@{upstream}'
    fi
    ;;
  *" --since") base=$(git rev-parse -q --verify "${3:-}^{commit}") || wrongUse ;;
  *) wrongUse ;;
esac

sources() {
  if [ -z "$base" ]; then
    git ls-files 'src/*.cpp' 'pack/*.cpp'
  else
    git diff --name-only --diff-filter=d "$base" -- 'src/*.cpp' 'pack/*.cpp'
  fi
}

# Only what the build folder knows how to compile.
sources | while read -r file; do
  if grep -qF "/$file\"" "$build/compile_commands.json"; then printf '%s\n' "$file"; fi
done | xargs -r -P "$(nproc)" -n 2 clang-tidy -p "$build" --quiet --warnings-as-errors='*' \
  --extra-arg=-Wno-unknown-warning-option
