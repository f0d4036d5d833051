#!/usr/bin/env python3
"""Kills the program at random moments while words are taken and deleted, texts left and the window
closed. No word that was taken may be lost, none deleted may come back, none may stand twice."""

import random
import re
import sys
import tempfile
import threading
from pathlib import Path

from driving import Driver, Ended, arguments

LONGEST_LIFE = 0.12  # seconds behind the start
LONGEST_CLOSING = 0.004


class Learner:
    """What is sure to be in the list, and what may be, since the kill came while it was done."""

    def __init__(self):
        self.taken = []
        self.open = set()

    def check(self, words):
        doubled = [word for word in words if words.count(word) > 1]
        lost = [word for word in self.taken if word not in words and word not in self.open]
        more = [word for word in words if word not in self.taken and word not in self.open]
        self.taken = words
        self.open = set()
        return doubled, lost, more


def kill_within(driver, seconds, chance):
    timer = threading.Timer(chance.uniform(0, seconds), driver.process.kill)
    timer.start()


def study(driver, learner, chance):
    """Takes and deletes words for ever, or closes the window while the kill is under way; ends by
    an exception when the driver is killed."""
    closes = chance.random() < 0.3
    if not closes:
        kill_within(driver, LONGEST_LIFE, chance)
    while True:
        driver.open_text()
        text = driver.text()
        places = [found.start() for found in re.finditer(r"[a-z]{4,19}", text)]
        for at in chance.sample(places, min(4, len(places))):
            driver.do("mouse", surface="R2", at=at + 1)
            word = driver.get("TuHienTai")
            before = driver.get("SoTuVung")
            learner.open = {word, word.lower()}
            driver.key("Enter")
            if driver.get("SoTuVung") > before:
                learner.taken.append(driver.words()[-1])
            learner.open = set()
        if closes:
            kill_within(driver, LONGEST_CLOSING, chance)
            driver.do("close")
            return
        driver.leave_text()
        if len(learner.taken) > 6:
            learner.open = {learner.taken[0]}
            driver.remove_first()
            learner.taken.pop(0)
            learner.open = set()


def main():
    options = arguments(__doc__)
    kills = 1000 if options.long else 40
    seed = random.randrange(1 << 32)
    chance = random.Random(seed)
    learner = Learner()
    broken = 0
    lives = 0
    with tempfile.TemporaryDirectory() as folder:
        Path(folder, "Yes1").touch()
        while broken < kills:
            lives += 1
            driver = Driver(options.driver, options.pack, folder)
            try:
                driver.do("start")
                faults = learner.check(driver.list_words())
                if any(faults):
                    print(f"life {lives}, seed {seed}: doubled, lost, come back: {faults}")
                    return 1
                study(driver, learner, chance)
            except Ended:
                broken += 1
            finally:
                driver.kill()
        driver = Driver(options.driver, options.pack, folder)
        driver.do("start")
        faults = learner.check(driver.list_words())
        driver.end()
    print(f"{lives} lives, {broken} killed, {len(learner.taken)} words in the end; seed {seed}")
    if any(faults):
        print(f"doubled, lost, come back: {faults}")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
