#!/usr/bin/env bash
# The checks of the source tree find what they are for, and take nothing for the tree that is none.
#
#   checks.sh REPOSITORY
set -euo pipefail

root=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "$1" >&2
  exit 1
}

# A check ends with a code for a tree.
expect() {
  local code=$1 check=$2
  shift 2
  local got=0
  python3 "$root/tools/$check" "$@" >"$work/said" 2>&1 || got=$?
  [ "$got" = "$code" ] || fail "$check $*: exit code $got instead of $code: $(head -5 "$work/said")"
}

for check in check_includes.py check_pages.py check_glossary.py check_messages.py; do
  expect 0 $check "$root"
  expect 0 $check --help
  expect 2 $check "$root/docs"
  expect 2 $check --all
  expect 2 $check "$root" "$root"
done

# Every name of the page as ctest would list it, then one less, then one of safety too many.
list_tests() {
  sed -n 's/^|.*|\(.*\)|$/\1/p' "$root/docs/promises.md" | grep -o '`[^`]*`' | tr -d '`*' |
    sed 's/\.$/.x/; s/-$/-x/' | awk '{ print "  Test #" NR ": " $0 }'
}
promises() {
  local code=$1 got=0
  python3 "$root/tools/check_promises.py" "$root" >"$work/said" 2>&1 || got=$?
  [ "$got" = "$code" ] || fail "check_promises.py: exit code $got instead of $code: $(head -5 "$work/said")"
}
list_tests | promises 0
list_tests | grep -v learner-kills | promises 1
grep -q 'there is no test learner-kills' "$work/said" || fail "the test is not named: $(cat "$work/said")"
{ list_tests; echo '  Test #999: learner-new'; } | promises 1
grep -q 'learner-new holds no promise' "$work/said" || fail "the test is not named: $(cat "$work/said")"
promises 2 </dev/null

mkdir "$work/tree"
for folder in src pack docs tests bench; do cp -r "$root/$folder" "$work/tree/$folder"; done

echo '#include "program/Program.h"' >>"$work/tree/src/text/Text.h"
expect 1 check_includes.py "$work/tree"
grep -q 'Text.h:.*higher floor' "$work/said" || fail "the include is not named: $(cat "$work/said")"

echo 'inline int tell(Controls& controls) { return controls.RVP1.Left(); }' >>"$work/tree/src/shell/Names.h"
expect 1 check_pages.py "$work/tree"
grep -q 'Names.h:.*RVP1' "$work/said" || fail "the page is not named: $(cat "$work/said")"

echo 'inline int NuocChay = 0; // and what a comment or "KhongRo" says does not count' >>"$work/tree/src/text/Bytes.h"
expect 1 check_glossary.py "$work/tree"
grep -q 'Bytes.h:.*NuocChay.*nuoc' "$work/said" || fail "the name is not told: $(cat "$work/said")"
[ "$(wc -l <"$work/said")" = 1 ] || fail "more than the new name: $(cat "$work/said")"

cat >"$work/tree/pack/Message.tmp.cpp" <<'END'
void say(Problems& problems) {
  // problems.add({}, "a remark is not told");
  problems.add({}, said("is not a " "folder"));
  problems.add({{"file"}, 1}, "nobody translates " "this one");
  problems.add({}, said("has no translation: {}", file));
}
END
sed -i '/^msgid "is not a folder"/{n;s/"$/ {}"/}' "$work/tree/pack/po/vi.po"
expect 1 check_messages.py "$work/tree"
grep -q 'Message.tmp.cpp:4: not marked.*nobody translates this one' "$work/said" ||
  fail "the unmarked message is not told: $(cat "$work/said")"
[ "$(grep -c 'not marked' "$work/said")" = 1 ] || fail "more is told: $(cat "$work/said")"
grep -q 'is used but not defined' "$work/said" || fail "no word of the lack: $(cat "$work/said")"
grep -q 'other values.*is not a folder' "$work/said" || fail "not the values: $(cat "$work/said")"
