#!/bin/sh
# Brings the translations up to date with the messages in the code: new ones are added empty, what
# was changed is marked fuzzy, what is gone goes. tools/check_messages.py tells what is left to do.
#
#   pack/po/update.sh
set -eu
cd "$(dirname "$0")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
pack/po/extract.sh "$work/talvora-pack.pot"
for language in pack/po/*.po; do
  msgmerge --quiet --update --backup=none --no-location --no-wrap --sort-output "$language" \
    "$work/talvora-pack.pot"
  msgattrib --no-obsolete --no-location --no-wrap --sort-output -o "$language" "$language"
  # The date of the messages would differ in any two branches.
  sed -i '/^"POT-Creation-Date: /d' "$language"
done
