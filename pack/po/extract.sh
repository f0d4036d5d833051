#!/bin/sh
# Collects the messages of the compiler from its code.
#
#   pack/po/extract.sh TEMPLATE.pot
set -eu
cd "$(dirname "$0")/../.."
find pack -name '*.cpp' -o -name '*.h' | sort |
  xgettext --files-from=- --language=C++ --from-code=UTF-8 --keyword= --keyword=said:1 \
    --keyword=saidOf:2,3 --keyword=toSay:1 \
    --flag=said:1:no-c-format --flag=saidOf:2:no-c-format --flag=saidOf:3:no-c-format \
    --flag=toSay:1:no-c-format --no-wrap --sort-output --package-name=talvora-pack \
    -o "$1"
