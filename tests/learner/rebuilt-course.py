#!/usr/bin/env python3
"""Collects words over the whole course, builds the course again with texts that are new, changed,
moved and gone, and looks what became of each word."""

import random
import subprocess
import sys

from driving import Driver, arguments_with, course_to_change

# Of the lists of reading and of speaking texts: how many texts are opened, and how many words are
# taken from each. The whole course is every text of both.
SHARE = {"but1": (36, 7), "but7": (24, 3)}
WHOLE = {"but1": (9999, 4), "but7": (9999, 2)}


def starts_of_texts(driver):
    starts, at = [], 0
    for line in driver.do("surface", name="R1")["text"].split("\r"):
        # Neither a heading nor an open slot.
        if line.startswith("\t\t") and "(" not in line and len(line) > 4:
            starts.append(at + 2)
        at += len(line) + 1
    return starts


def take_words(driver, wanted, chance):
    """Puts words of the open text on the list."""
    text = driver.text()
    spots = [i for i in range(1, len(text) - 4)
             if text[i:i + 4].isascii() and text[i:i + 4].isalpha() and text[i].islower()]
    for spot in chance.sample(spots, min(wanted, len(spots))):
        driver.do("mouse", surface="R2", at=spot)
        driver.key("Enter")


def collect(options, course, share, chance):
    """Takes words from texts of both lists, as a learner does; tells how many texts he opened."""
    driver = Driver(options.driver, str(course.pack), str(course.own))
    driver.do("start")
    opened = 0
    for button, (texts, words) in share.items():
        driver.do("click", button=button)
        starts = starts_of_texts(driver)
        for start in chance.sample(starts, min(texts, len(starts))):
            driver.do("mouse", surface="R1", at=start)
            if not driver.do("surface", name="R2")["visible"]:
                continue
            opened += 1
            take_words(driver, words, chance)
            while driver.do("surface", name="R2")["visible"]:
                driver.key("Esc")
        driver.leave_text()
    driver.end()
    return opened


def rows_of(own):
    """Word, place, title and sentence of each row of words.txt."""
    rows = {}
    for line in (own / "words.txt").read_text(encoding="utf-8").splitlines()[1:]:
        word, place, _, _, _, _, title, sentence = line.split("\t")
        rows[word] = (int(place), title, sentence)
    return rows


def revise(folder, free, chance):
    """Makes other texts of a folder: some go, some move, in some a sentence becomes another one.
    Only those of the slots that `free` is true of; the others are named by their numbers."""
    texts = [path for path in sorted(folder.glob("[0-9]*-*.txt"))
             if free(int(path.name.split("-")[0]))]
    chance.shuffle(texts)
    share = max(1, len(texts) // 8)
    gone, moved, changed = texts[:share], texts[share:2 * share], texts[2 * share:4 * share]
    for path in gone:
        path.unlink()
    numbers = [path.name.split("-")[0] for path in moved]
    for path, number in zip(moved, numbers[1:] + numbers[:1]):
        path.rename(path.with_name(f"moving-{number}-" + path.name.split("-", 1)[1]))
    for path in list(folder.glob("moving-*")):
        path.rename(path.with_name(path.name[len("moving-"):]))
    for path in changed:
        body = path.read_text(encoding="utf-8")
        path.write_text(body.replace(" the ", " the very ", 3), encoding="utf-8")
    return f"of {len(texts)} texts {len(gone)} gone, {len(moved)} moved, {len(changed)} changed"


def forget_pack(pack):
    """All but the recordings, which take long to speak and have no part in this."""
    for path in pack.iterdir():
        if path.is_file():
            path.unlink()


def main():
    options = arguments_with(__doc__, "--compiler", "--content")
    seed = random.randrange(1 << 32)
    chance = random.Random(seed)
    with course_to_change(options, 30000) as course:
        opened = collect(options, course, WHOLE if options.long else SHARE, chance)
        before = rows_of(course.own)
        # The guide, the analysed texts and the scripts are named by their numbers elsewhere.
        reading = revise(course.content / "reading", lambda slot: 20 <= slot < 400, chance)
        speaking = revise(course.content / "speaking", lambda slot: slot > 0, chance)
        forget_pack(course.pack)
        course.build()
        driver = Driver(options.driver, str(course.pack), str(course.own))
        driver.do("start")
        driver.end()
        after = rows_of(course.own)
        listed = subprocess.run(
            [options.compiler, "words", "list", "--learner", str(course.own)],
            check=True, capture_output=True, text=True).stdout.splitlines()
        checked = subprocess.run(
            [options.compiler, "words", "check", "--learner", str(course.own),
             "--pack", str(course.pack)], capture_output=True, text=True)
    same = sum(after[w][2] == before[w][2] and after[w][0] != 0 for w in before if w in after)
    kept = sum(after[w][0] == 0 for w in after)
    anew = len(after) - same - kept
    print(f"reading: {reading}; speaking: {speaking}; {len(before)} words of {opened} texts: {same} "
          f"have their sentence, {anew} one that is much like it, {kept} kept as text; seed {seed}")
    assert set(after) == set(before), "words are lost or doubled"
    assert all(after[w][2] == before[w][2] for w in after if after[w][0] == 0), "a text is not kept"
    assert same > anew + kept, "most texts are the same"
    assert kept > 0, "texts that are gone leave words without a sentence"
    assert len(listed) == len(before) + 1, "not every word is listed"
    assert checked.returncode == 0, checked.stdout
    return 0


if __name__ == "__main__":
    sys.exit(main())
