#!/usr/bin/env python3
"""A teacher's own recording takes the place of the synthesised one: it is in the pack as it is, the
program plays each sentence between the teacher's marks, and without it the voices speak again."""

import shutil
import sys
import wave

from driving import Driver, arguments_with, course_to_change, require

MARKS = [700, 1500]


def record(folder):
    folder.mkdir()
    with wave.open(str(folder / "1.wav"), "wb") as recording:
        recording.setnchannels(1)
        recording.setsampwidth(2)
        recording.setframerate(16000)
        recording.writeframes(b"\x10\x00" * 16 * MARKS[-1])
    (folder / "1.txt").write_text("\n".join(map(str, MARKS)) + "\n", encoding="utf-8")
    return (folder / "1.wav").read_bytes()


def played(options, course):
    """Where the first sentence that the first unit asks for is played, by the sentence."""
    driver = Driver(options.driver, str(course.pack), str(course.own))
    driver.do("start")
    driver.do("click", button="but4")
    driver.do("log")
    driver.key("Enter")
    sentence = driver.get("CauNghe1")
    plays = [entry for entry in driver.do("log")["entries"]
             if entry["what"] == "mm" and entry["command"] == "Play"]
    driver.end()
    require(plays, "nothing is played")
    return sentence, plays[-1]["from"], plays[-1]["to"]


def main():
    options = arguments_with(__doc__, "--compiler", "--content")
    with course_to_change(options, 2000) as course:
        wave_file = course.pack / "sound" / "1.wav"
        synthesised = wave_file.read_bytes()
        sentence, start, synthesised_end = played(options, course)
        require((sentence, start) == ("The boy is running.", 1), f"{sentence} from {start}")
        recorded = record(course.content / "recordings")
        course.build()
        require(wave_file.read_bytes() == recorded, "the pack has another recording")
        require(played(options, course) == (sentence, 1, MARKS[0]), "the marks are not the teacher's")
        shutil.rmtree(course.content / "recordings")
        course.build()
        require(len(wave_file.read_bytes()) == len(synthesised), "the voices do not speak again")
        require(played(options, course) == (sentence, 1, synthesised_end), "the old marks stand")
    return 0


if __name__ == "__main__":
    sys.exit(main())
