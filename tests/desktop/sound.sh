#!/bin/bash
# Listens to the real program: a virtual X display, real clicks and keys, and a sound device that
# plays into nothing and counts what it plays. Then the same without a device, and with a sound
# server that does not answer: nothing may hang. Last, the display goes in the middle of a sound.
#
#   sound.sh PROGRAM PACK_FOLDER PICTURE_FOLDER [WIDTHxHEIGHT]
#
# Needs what walk.sh needs, PulseAudio with its tools, and Python.
set -u

here=$(dirname "$(realpath "$0")")
for part in frame start hearing sound; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

start_display
hear_only_ourselves
start_sound_server
start_anew
hear_a_word
hear_the_whole_text
hear_a_recording
hear_the_settings
lose_the_device
end_program
stop_sound_server

start_anew
go_without_sound
end_program
passed "nothing hangs without a sound device"

start_sound_server
kill -STOP "$sound_server"
start_anew
go_without_sound
passed "nothing hangs with a sound server that does not answer"
end_program
stop_sound_server

start_sound_server
start_anew
lose_the_display
