#!/usr/bin/env python3
"""Collects words over the whole course, builds the course again with texts that are new, changed,
moved and gone, and looks what became of each word."""

import random
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from driving import Driver, arguments_with

WORDS = 300
WORDS_LONG = 1000


def build(options, content, pack):
    subprocess.run([options.compiler, "build", str(content), str(pack), "--words", "100000"],
                   check=True)


def collect(options, pack, own, wanted, chance):
    """Takes words from texts of the whole list, as a learner does, and tells their sentences."""
    driver = Driver(options.driver, str(pack), str(own))
    driver.do("start")
    driver.do("click", button="but1")
    lines = driver.do("surface", name="R1")["text"].split("\r")
    starts, at = [], 0
    for line in lines:
        # Neither a heading nor an open slot.
        if line.startswith("\t\t") and "(" not in line and len(line) > 4:
            starts.append(at + 2)
        at += len(line) + 1
    taken = 0
    for start in chance.sample(starts, len(starts)):
        driver.do("mouse", surface="R1", at=start)
        if not driver.do("surface", name="R2")["visible"]:
            continue
        text = driver.text()
        spots = [i for i in range(1, len(text) - 4)
                 if text[i:i + 4].isascii() and text[i:i + 4].isalpha() and text[i].islower()]
        for spot in chance.sample(spots, min(wanted // 60 + 6, len(spots))):
            driver.do("mouse", surface="R2", at=spot)
            before = driver.get("SoTuVung")
            driver.key("Enter")
            taken += driver.get("SoTuVung") > before
        driver.key("Esc")
        while driver.do("surface", name="R2")["visible"]:
            driver.key("Esc")
        if taken >= wanted:
            break
    driver.leave_text()
    driver.end()


def rows_of(own):
    """Word, place, title and sentence of each row of words.txt."""
    rows = {}
    for line in (own / "words.txt").read_text(encoding="utf-8").splitlines()[1:]:
        word, place, _, _, _, _, title, sentence = line.split("\t")
        rows[word] = (int(place), title, sentence)
    return rows


def revise(content, chance):
    """Makes another course: some texts go, some move, in some a sentence becomes another one."""
    texts = sorted((content / "reading").glob("[0-9][0-9][0-9]-*.txt"))
    # The guide and the analysed texts are named by their numbers elsewhere.
    free = [path for path in texts if 20 <= int(path.name[:3]) < 400]
    chance.shuffle(free)
    share = max(1, len(free) // 8)
    gone, moved, changed = free[:share], free[share:2 * share], free[2 * share:4 * share]
    for path in gone:
        path.unlink()
    numbers = [path.name[:3] for path in moved]
    for path, number in zip(moved, numbers[1:] + numbers[:1]):
        path.rename(path.with_name("moving-" + number + path.name[3:]))
    for path in list((content / "reading").glob("moving-*")):
        path.rename(path.with_name(path.name[len("moving-"):]))
    for path in changed:
        body = path.read_text(encoding="utf-8")
        path.write_text(body.replace(" the ", " the very ", 3), encoding="utf-8")
    return len(gone), len(moved), len(changed)


def main():
    options = arguments_with(__doc__, "--compiler", "--content")
    seed = random.randrange(1 << 32)
    chance = random.Random(seed)
    with tempfile.TemporaryDirectory() as folder:
        content, pack, own = Path(folder, "content"), Path(folder, "pack"), Path(folder, "own")
        shutil.copytree(options.content, content)
        own.mkdir()
        (own / "Yes1").touch()
        build(options, content, pack)
        collect(options, pack, own, WORDS_LONG if options.long else WORDS, chance)
        before = rows_of(own)
        gone, moved, changed = revise(content, chance)
        shutil.rmtree(pack)
        build(options, content, pack)
        driver = Driver(options.driver, str(pack), str(own))
        driver.do("start")
        driver.end()
        after = rows_of(own)
        listed = subprocess.run(
            [options.compiler, "words", "list", "--learner", str(own)],
            check=True, capture_output=True, text=True).stdout.splitlines()
        checked = subprocess.run(
            [options.compiler, "words", "check", "--learner", str(own), "--pack", str(pack)],
            capture_output=True, text=True)
    same = sum(after[w][2] == before[w][2] and after[w][0] != 0 for w in before if w in after)
    kept = sum(after[w][0] == 0 for w in after)
    anew = len(after) - same - kept
    print(f"{gone} texts gone, {moved} moved, {changed} changed; {len(before)} words: {same} have "
          f"their sentence, {anew} one that is much like it, {kept} kept as text; seed {seed}")
    assert set(after) == set(before), "words are lost or doubled"
    assert all(after[w][2] == before[w][2] for w in after if after[w][0] == 0), "a text is not kept"
    assert same > anew + kept, "most texts are the same"
    assert kept > 0 or gone == 0, "texts that are gone leave words without a sentence"
    assert len(listed) == len(before) + 1, "not every word is listed"
    assert checked.returncode == 0, checked.stdout
    return 0


if __name__ == "__main__":
    sys.exit(main())
