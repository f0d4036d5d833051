#!/usr/bin/env python3
"""Does word for word what the teacher's guide says, in a fresh folder: the commands and the text are
read from the guide."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from driving import Driver, arguments_with, in_vietnamese, require
from pages import blocks_of


class Teacher:
    """Somebody at a command line in a fresh folder."""

    def __init__(self, options, folder):
        self.place = folder / "lop-hoc"
        self.place.mkdir()
        programs = folder / "bin"
        programs.mkdir()
        (programs / "talvora-pack").symlink_to(Path(options.compiler).resolve())
        home = folder / "home"
        self.own = home / ".local" / "share" / "talvora"
        self.environment = in_vietnamese() | {
            "HOME": str(home), "PATH": f"{programs}:{os.environ['PATH']}"}
        self.environment.pop("XDG_DATA_HOME", None)

    def type(self, command):
        done = subprocess.run(command, shell=True, cwd=self.place, env=self.environment,
                              capture_output=True, text=True, encoding="utf-8", check=False)
        require(done.returncode == 0, f"{command}: {done.stdout}{done.stderr}")
        return done.stdout

    def write(self, name, text):
        (self.place / name).write_text(text + "\n", encoding="utf-8")


def first_text(teacher, part):
    """The first part, from an empty folder to a text in the program."""
    new, sample, show, add = blocks_of(part)
    require(sample.startswith("title: "), sample)
    teacher.type(new)
    name = new.split()[-1]
    example = (teacher.place / name).read_text(encoding="utf-8")
    require("title: " in example, "the example is no text")
    teacher.write(name, sample)
    title = sample.splitlines()[0].removeprefix("title: ")
    require(title in teacher.type(show), "the text is not shown")
    require(title in teacher.type(add), "the text is not told of")
    return title


def read(options, teacher, title):
    """The text is where the guide says, and does what the guide says."""
    driver = Driver(options.driver, options.pack, str(teacher.own))
    driver.do("start")
    driver.do("click", button="but1")
    for _ in range(40):
        driver.key("Right")
    shown = driver.do("surface", name="R1")
    rows = shown["text"].rstrip("\r")
    require(shown["selStart"] >= rows.rindex("\r", 0, rows.rindex("\r")), "not the last group")
    require(rows.split("\r")[-1].split("\t")[-1] == title, f"the last row is {rows[-40:]!r}")
    driver.do("mouse", surface="R1", at=rows.index(title) + 1)
    require("tea" in driver.text(), driver.text())
    driver.do("mouse", surface="R2", at=driver.text().index("sister") + 1, double=True)
    require(driver.do("surface", name="RHD")["visible"], "no translation of the sentence")
    driver.end()


def change(teacher, part):
    """The second part: the texts are told, changed and taken away."""
    commands = dict(re.split(r"\s{2,}", line)[::-1] for line in blocks_of(part)[0].splitlines())
    listed, refresh, remove = (f"talvora-pack text {each}" for each in ("list", "refresh", "remove 1"))
    require({listed, refresh, remove} == set(commands.values()), str(commands))
    require("1\t" in teacher.type(listed), "the text is not listed")
    source = teacher.own / "texts" / "001.txt"
    source.write_text(source.read_text(encoding="utf-8") + "\nWe sing.\n= Chúng tôi hát.\n",
                      encoding="utf-8")
    teacher.type(refresh)
    teacher.type(remove)
    require(not (teacher.own / "owntexts.av").exists(), "the text is still there")


def course(options, teacher, part, sample):
    """The third part, with a small course in place of the whole one."""
    show_and_check, build = blocks_of(part)
    shutil.copytree(options.content, teacher.place / "content")
    show, check = show_and_check.splitlines()
    teacher.write(show.split()[-1], sample)
    teacher.type(show)
    teacher.type(check)
    make = build.splitlines()[0]
    teacher.type(make + " --words 2000")
    require((teacher.place / make.split()[-1] / "datatu.txt").is_file(), "no course was built")


def main():
    options = arguments_with(__doc__, "--compiler", "--content", "--pack", "--guide")
    guide = Path(options.guide).read_text(encoding="utf-8")
    _, first, second, third, *_ = re.split(r"^## \d\. ", guide, flags=re.M)
    with tempfile.TemporaryDirectory() as folder:
        teacher = Teacher(options, Path(folder))
        title = first_text(teacher, first)
        (teacher.own / "Yes1").touch()
        read(options, teacher, title)
        change(teacher, second)
        course(options, teacher, third, blocks_of(first)[1])
    return 0


if __name__ == "__main__":
    sys.exit(main())
