#!/bin/bash
# Uses the real program as a screen reader does, over a real accessibility bus: a virtual X display
# and a session bus of its own.
#
#   reader.sh PROGRAM PACK_FOLDER PICTURE_FOLDER [WIDTHxHEIGHT]
#
# Needs what walk.sh needs, dbus-run-session, at-spi2-core, and Python with Atspi's introspection.
set -u

# A bus that nobody else listens on.
if [ -z "${READER_HAS_BUS:-}" ]; then
  READER_HAS_BUS=yes exec dbus-run-session -- "$0" "$@"
fi

here=$(dirname "$(realpath "$0")")
for part in frame start first_run; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
start_display
run_first
start_program
# The system's own Python has the system's packages.
timeout 300 /usr/bin/python3 -W ignore::DeprecationWarning "$here/reader.py" || fail "the program is not as a screen reader needs it"
running || fail "the program has ended"
