#!/usr/bin/env python3
"""What a recording of the sound device holds: raw samples of 16 bits, one channel, 16,000 a second.

    heard.py count RECORDING [FROM_BYTE]
        prints how many samples are not silent
    heard.py stretch RECORDING FROM_BYTE WAVE MARKS NUMBER
        tells whether it holds the stretch of a sentence of a wave file, from its mark to the next
        one, both within 30 ms; NUMBER counts the sentences from 1
"""

import array
import sys
import wave

RATE = 16000
TOLERANCE = RATE * 30 // 1000
BLOCK = RATE // 10


def samples_of(path, from_byte):
    with open(path, "rb") as file:
        file.seek(from_byte)
        data = file.read()
    return array.array("h", data[: len(data) // 2 * 2])


def sounding(samples):
    """The samples without silence: a device that runs dry for a moment puts silence in between."""
    return [sample for sample in samples if sample]


def stretch_of(path, marks, number):
    with open(marks, "rb") as file:
        ends = array.array("i", file.read())
    first = 1 if number == 1 else ends[number - 1]
    with wave.open(path) as file:
        samples = array.array("h", file.readframes(file.getnframes()))
    return samples[first * RATE // 1000 : ends[number] * RATE // 1000]


def begins_alike(heard, expected):
    """Whether both begin alike, when one of them may begin a tolerance later."""
    for shift in range(-TOLERANCE, TOLERANCE + 1):
        here, there = heard[max(shift, 0) :][:BLOCK], expected[max(-shift, 0) :][:BLOCK]
        if here == there:
            return True
    return False


def compare(heard, expected):
    """The first difference in words, or nothing. What a busy device loses in between is not the
    player's; where the stretch begins and where it ends is."""
    if not begins_alike(heard, expected):
        return "another beginning"
    if not begins_alike(heard[::-1], expected[::-1]):
        return "another end"
    if abs(len(heard) - len(expected)) > TOLERANCE:
        return "more or less than the stretch"
    return None


def main(arguments):
    if arguments[:1] == ["count"]:
        print(len(sounding(samples_of(arguments[1], int((arguments[2:] or ["0"])[0])))))
        return 0
    recording, from_byte, path, marks, number = arguments[1:]
    heard = sounding(samples_of(recording, int(from_byte)))
    expected = sounding(stretch_of(path, marks, int(number)))
    difference = compare(heard, expected)
    if difference:
        print(f"{difference}: {len(heard)} heard, {len(expected)} expected")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
