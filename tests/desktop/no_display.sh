#!/bin/bash
# Starts the program where there is no display: it says so in one line and ends with 1.
set -u
program=$1

said=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$program" 2>&1 >/dev/null)
code=$?
[ "$code" -eq 1 ] || { echo "ended with $code: $said"; exit 1; }
wanted="Talvora không tìm thấy màn hình để hiện cửa sổ. / Talvora finds no display to show its window on."
[ "$said" = "$wanted" ] || { echo "said: $said"; exit 1; }
