#!/usr/bin/env bash
# Tells which branches the tests take of what holds the learner's files, and fails when they leave one
# out. Needs the preset "fuzz" built, which counts them.
#
# usage: branches.sh BUILD_FOLDER
set -euo pipefail
cd "$(dirname "$0")/.."
case "${1:-}" in
  -h | --help) sed -n '2,5s/^# \{0,1\}//p' "$0"; exit 0 ;;
  "") sed -n '5s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
tests=$(realpath "$1")/tests/storage/talvora-storage-tests
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

LLVM_PROFILE_FILE=$work/profile "$tests" --gtest_brief=1
llvm-profdata merge -sparse "$work/profile" -o "$work/all.profdata"
llvm-cov export -summary-only -instr-profile "$work/all.profdata" "$tests" >"$work/coverage.json"
python3 tools/coverage.py "$work/coverage.json" tests/storage/whole.txt 100 100
