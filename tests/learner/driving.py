"""A driver of the program, commanded line by line, and the list that it has stored."""

import argparse
import json
import os
import shutil
import subprocess
import tempfile
from contextlib import contextmanager
from pathlib import Path
from types import SimpleNamespace


def arguments(description):
    return arguments_with(description, "--pack")


def arguments_with(description, *more):
    """The driver, what else a test needs, and whether it is to be thorough."""
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--driver", required=True, help="the program talvora-driver")
    for each in more:
        parser.add_argument(each, required=True)
    parser.add_argument("--long", action="store_true", help="as thoroughly as one can wait for")
    return parser.parse_args()


def in_vietnamese():
    """An environment in which the compiler speaks Vietnamese."""
    return os.environ | {"LC_ALL": "vi_VN.UTF-8", "LANGUAGE": "vi"}


def in_english():
    return os.environ | {"LC_ALL": "C"}


def require(holds, message):
    """Ends the test with a message unless something holds."""
    if not holds:
        raise AssertionError(message)


@contextmanager
def course_to_change(options, words):
    """A place with a copy of the content, its pack of so many words, and the own folder of a learner who
    has been here. `build` compiles it, first now and then whenever something has changed."""
    with tempfile.TemporaryDirectory() as folder:
        course = SimpleNamespace(**{name: Path(folder, name) for name in ("content", "pack", "own")},
                                 place=Path(folder))
        course.build = lambda: subprocess.run(
            [options.compiler, "build", str(course.content), str(course.pack), "--words", str(words)],
            check=True)
        shutil.copytree(options.content, course.content)
        course.own.mkdir()
        (course.own / "Yes1").touch()
        course.build()
        yield course


class Ended(Exception):
    """The driver has gone before it answered."""


class Driver:
    def __init__(self, program, pack, learner):
        self.process = subprocess.Popen(
            [program, "--dir", pack, "--learner", learner],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, encoding="utf-8")

    def do(self, what, **fields):
        try:
            self.process.stdin.write(json.dumps({"do": what, **fields}) + "\n")
            self.process.stdin.flush()
            line = self.process.stdout.readline()
        except OSError as error:
            raise Ended from error
        if not line:
            raise Ended
        reply = json.loads(line)
        if not reply["ok"]:
            raise AssertionError(f"{what} {fields}: {reply}")
        return reply

    def key(self, name):
        return self.do("key", key=name)

    def get(self, name):
        return self.do("get", names=[name])["values"][name]

    def words(self):
        """The words in memory; those of the disk once a list was built."""
        return [word["Tu"].rstrip() for word in self.get("TuVung")[1:]]

    def open_text(self):
        self.do("click", button="but1")
        self.key("Home")
        while not self.do("surface", name="R2")["visible"]:
            self.key("Down")
            self.key("Enter")

    def open_titled(self, title):
        """Opens the reading text of a title."""
        self.do("click", button="but1")
        at = self.do("surface", name="R1")["text"].index("\t" + title + "\r")
        self.do("mouse", surface="R1", at=at + 1)
        require(self.do("surface", name="R2")["visible"], f"{title} does not open")

    def take(self, word):
        """Clicks on the first place of a word in the text and puts the word on the list."""
        before = self.get("SoTuVung")
        self.do("mouse", surface="R2", at=self.text().index(word) + 1)
        self.key("Enter")
        require(self.get("SoTuVung") == before + 1, f"{word} is not taken")

    def text(self):
        return self.do("surface", name="R2")["text"]

    def leave_text(self):
        while self.do("state")["visible"]:
            self.key("Esc")

    def list_words(self):
        """Goes through the section of the words and tells what it shows."""
        self.do("click", button="but2")
        shown = self.do("surface", name="Rchon")
        rows = shown["text"].split("\r")[:-1] if shown["visible"] else []
        if shown["visible"]:
            self.key("Esc")
        return [row.split("\t")[-1] for row in rows]

    def remove_first(self):
        self.do("click", button="but2")
        end = self.do("surface", name="Rchon")["text"].find("\r")
        self.do("answer", **{"with": "yes"})
        self.do("mouse", surface="Rchon", at=0, to=end)
        if self.do("surface", name="Rchon")["visible"]:
            self.key("Esc")

    def kill(self):
        self.process.kill()
        self.process.communicate()

    def end(self):
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()
