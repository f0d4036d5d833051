#!/usr/bin/env bash
# Runs clang-tidy over the program's own sources, by the compile commands of a build folder.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1
git ls-files 'src/*.cpp' 'pack/*.cpp' | grep -v '^src/desktop/' |
  xargs -P "$(nproc)" -n 4 clang-tidy -p "$build" --quiet --warnings-as-errors='*' \
    --extra-arg=-Wno-unknown-warning-option
