#!/usr/bin/env python3
"""What the pages on content show as examples is put into a small course: the compiler takes it, and
the program shows what the pages say."""

import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from driving import Driver, arguments_with, in_english, require
from pages import blocks_of, part_of, rows_of

BLUE = 0xFF0000
RED = 0x0000FF
# Letters and digits in colour tell where a colour stands; a blank shows none.
COLOURED = re.compile(r"[\w-]")


def single(text):
    """A text as the driver gives it: one character a letter, what is not ASCII masked."""
    return re.sub(r"[^\x00-\x7f]", "?", text)


class Course:
    """Sources in a folder: the small course, or its guide alone."""

    def __init__(self, options, folder, small=True):
        self.options = options
        self.folder = folder
        self.content = folder / "content"
        if small:
            shutil.copytree(options.content, self.content)
        else:
            self.content.mkdir(parents=True)
            shutil.copy(Path(options.content) / "guide.txt", self.content)

    def tell(self, *arguments, code=0):
        done = subprocess.run([self.options.compiler, *map(str, arguments)], env=in_english(),
                              capture_output=True, text=True, encoding="utf-8", check=False)
        told = done.stdout + done.stderr
        require(done.returncode == code, f"{arguments} gave {done.returncode}: {told}")
        return told

    def put(self, name, text):
        path = self.content / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(text + "\n", encoding="utf-8")
        return path

    def add(self, name, text):
        path = self.content / name
        return self.put(name, path.read_text(encoding="utf-8") + "\n" + text)

    def check(self, code=0):
        return self.tell("check", self.content, "--words", 2000, code=code)

    def opened(self):
        """The program with the course."""
        pack = self.folder / "pack"
        own = self.folder / "own"
        own.mkdir()
        (own / "Yes1").touch()
        self.tell("build", self.content, pack, "--words", 2000)
        driver = Driver(self.options.driver, str(pack), str(own))
        driver.do("start")
        return driver


# -- Items.

def shown_at(course, file):
    """What is shown of a file with one item, without the place that stands above it."""
    return course.tell("show", file).partition("\n")[2]


def put_items(course, page):
    """Every example of an item, in a bank or among a lesson's items, with what is shown of it."""
    shown = {}
    for kind in ("Fill in", "Multiple choice", "Find the mistake", "Word ordering"):
        for item in blocks_of(part_of(page, kind)):
            require(item.startswith("item: "), item)
            bank = not item.startswith("item: order")
            if bank:
                course.add("exercises/articles/01-first.txt", item)
            else:
                course.put("lessons/002-items.txt", item)
            alone = course.put("exercises/alone.txt" if bank else "lessons/009-items.txt", item)
            shown.setdefault(kind, []).append(shown_at(course, alone))
            alone.unlink()
    return shown


def check_items(shown):
    """The blanks are as wide as the page says, and the rest is what it says it is."""
    hinted, plain = shown["Fill in"]
    require(re.findall("_+", hinted) == ["_" * 8, "_" * 9], hinted)
    require("hints: go, be" in hinted and "is / 's" in hinted, hinted)
    require(re.findall("_+", plain) == ["_" * 10] * 3, plain)
    require("stays empty" in plain, plain)
    require("B. went, right" in shown["Multiple choice"][0], str(shown))
    require("She [has gone] to" in shown["Multiple choice"][0], str(shown))
    require("1. go, the mistake" in shown["Find the mistake"][0], str(shown))
    require(shown["Word ordering"][0].count("    = ") == 2, str(shown))


def names_known(course, name):
    """The names of headings that the compiler offers in place of one that there is not."""
    wrong = course.put(name, "item: choice, nothing\n")
    told = course.tell("show", wrong, code=1)
    wrong.unlink()
    return set(re.search(r"of this name[^(]*\(([^)]*)\)", told)[1].split(", "))


def check_headings(course, page):
    """The tables have every heading that there is, as it is shown."""
    bank, lesson = rows_of(part_of(page, "Headings"))
    said = {}
    for rows, name in ((bank, "exercises/alone.txt"), (lesson, "lessons/009-items.txt")):
        names = set()
        for cell, heading in rows:
            for each in re.findall(r"`([^`]+)`", cell):
                names.add(each)
                expected = said.setdefault(each, heading) if heading == "as above" else heading
                said[each] = expected
                item = f"item: choice, {each}\n\nHe is _____.\n\n+ a\n- b\n- c\n- d"
                shown = shown_at(course, course.put(name, item)).splitlines()[0]
                require(shown == expected, f"{each} is {shown!r} and not {expected!r}")
        (course.content / name).unlink()
        known = names_known(course, name) - {"none"}
        require(names == known, f"{name}: {sorted(names ^ known)}")


# -- Lessons.

def put_lesson(course, page):
    example = blocks_of(part_of(page, "Lessons:"))[0]
    course.put("lessons/002-present-simple.txt", example)
    return example


def painted(line):
    """A line of a lesson with the colour of each of its characters, as the page says."""
    blue = line.startswith("> ")
    line = line[2:] if blue else line
    red = False
    letters = []
    at = 0
    while at < len(line):
        if line[at] == "*":
            red = not red
        elif line.startswith(">> ", at):
            blue = True
            at += 2
        else:
            letters.append((single(line[at]), RED if red else BLUE if blue else None))
        at += 1
    return letters


def check_lesson(driver, example):
    """The page of the lesson has the words of the example in their colours."""
    title, _, *lines = example.splitlines()
    driver.do("click", button="but3")
    rows = single(driver.do("surface", name="RVP1")["text"])
    at = rows.index(single(title.removeprefix("title: ")))
    driver.do("mouse", surface="RVP1", at=at + 1)
    page = driver.do("surface", name="RVP2")
    expected = [letter for line in lines for letter in [*painted(line), ("\r", None)]]
    text = single(page["text"]).split("\r", 1)[1]
    require(text == "".join(letter for letter, _ in expected), repr(text))
    colours = [run["color"] for run in page["runs"] for _ in range(run["from"], run["to"])]
    for (letter, colour), seen in zip(expected, colours[-len(text):], strict=True):
        if COLOURED.match(letter):
            shown = seen if seen in (RED, BLUE) else None
            require(shown == colour, f"{letter!r} is {shown} and not {colour} in {text!r}")


def check_entry(driver, page):
    """A click on "goes" in the lesson shows the entry as the page has it."""
    expected = blocks_of(part_of(page, "Dictionary:"))[1]
    text = driver.do("surface", name="RVP2")["text"]
    driver.do("mouse", surface="RVP2", at=text.index("goes") + 1)
    shown = single(driver.do("surface", name="RHD")["text"]).strip("\r").split("\r")
    require(shown == single(expected).splitlines(), f"the entry is {shown}")


def check_coming(driver):
    """A slot without a source says that it is coming."""
    while driver.do("surface", name="RVP2")["visible"]:
        driver.key("Esc")
    rows = driver.do("surface", name="RVP1")["text"]
    driver.do("mouse", surface="RVP1", at=rows.index("(") + 1)
    lines = single(driver.do("surface", name="RVP2")["text"]).strip("\r").split("\r")
    require(len(lines) == 2 and lines[0] == single("(đang soạn)"), str(lines))
    driver.leave_text()


# -- The drills.

def put_listening(course, page):
    """The question and the sentence with a voice, in a script that has them, and the page's words."""
    question = blocks_of(part_of(page, "Listening units:"))[0]
    number, sentence = re.match(r"(\d+): (.*)", question).groups()
    spoken = blocks_of(part_of(page, "How the scripts are spoken"))[0]
    require(spoken.startswith("// voice: "), spoken)
    ahead = ["We like to listen.\n= Chúng tôi thích nghe."] * (int(number) - 2)
    pairs = [*ahead, f"{spoken}\n= Vợ chồng tôi có hai con trai.",
             f"{sentence}\n= Cô Hoa mở cửa hàng lúc sáu giờ."]
    course.put("listening/unit-3.txt", question)
    course.put("reading/402-script.txt", "title: Script\n\n" + "\n".join(pairs))
    template = blocks_of(part_of(page, "The page:"))[0]
    course.put("listening/template.txt", template)
    return question, template


def check_listening(driver, question, template):
    driver.do("click", button="but4")
    driver.key("Down")
    driver.key("Down")
    driver.key("Enter")
    shown = single(driver.do("surface", name="RN2")["text"])
    instruction, labels = (line.partition(": ")[2] for line in template.splitlines())
    require(single(instruction) in shown, repr(shown))
    answers = re.findall(r"^[+-] (.*)", question, re.M)
    seen = [re.search(rf"{re.escape(label)} (.*?)\r", shown)[1] for label in labels.split()]
    require(sorted(seen) == sorted(answers), f"{seen} and not {answers}")
    driver.leave_text()


def put_speaking(course, page):
    text = blocks_of(part_of(page, "Speaking texts:"))[0]
    course.put("speaking/0003-page.txt", text)
    return text


def put_keys(course, page):
    """A text whose key stands in two others, and one whose key does not."""
    text, key = blocks_of(part_of(page, "Speaking texts:"))
    asked = f"{key.removeprefix('// key: ')} keys?\n= Chìa khóa của tôi đâu?"
    require(not asked.startswith("//"), key)
    told = f"title: Here\n\n{asked}\n\nHere they are.\n= Đây này."
    course.put("speaking/0004-key.txt", f"{key}\n{told}")
    course.put("speaking/0005-first.txt", told)
    course.put("speaking/0006-second.txt", told)
    return course.put("speaking/0007-nowhere.txt", f"{key}\n{text}")


def check_speaking(driver, text):
    """The list of speaking texts has the text, which opens with a paragraph a turn."""
    title = text.splitlines()[0].removeprefix("title: ")
    driver.do("click", button="but7")
    at = driver.do("surface", name="R1")["text"].index("\t" + title + "\r")
    driver.do("mouse", surface="R1", at=at + 1)
    turns = [" ".join(line for line in turn.splitlines() if not line.startswith("= "))
             for turn in text.split("\n\n")[1:]]
    shown = [" ".join(line.split()) for line in driver.text().strip().split("\r")]
    require(shown == [title, *turns], f"{turns} in {shown}")
    driver.leave_text()


def check_analysis(course, page):
    """The labels of the stretch are those of the page's table."""
    part = part_of(page, "Sentence analyses:")
    alone = course.put("analysis/11.txt", blocks_of(part)[0])
    shown = course.tell("show", alone)
    alone.unlink()
    fields = dict(re.findall(r"^(\w+): (.*)", blocks_of(part)[0], re.M))
    labels = [(cell.strip("`"), label) for cell, label in rows_of(part)[0]]
    require([name for name, _ in labels] == [name for name in fields if name != "lesson"], labels)
    for name, label in labels:
        begins = label.replace("...", "").strip()
        require(f"{begins} {fields[name]}" in shown, f"{begins} {fields[name]!r} in {shown}")


# -- What all sources share.

def put_text(course, page):
    text = blocks_of(part_of(page, "Reading texts:"))[0]
    course.put("reading/007-page.txt", text)
    return text


def put_lists(course, page):
    """The plan, one way of writing, and how words are said."""
    course.put("plan.txt", blocks_of(part_of(page, "The plan"))[0])
    course.put("pronunciation.txt", blocks_of(part_of(page, "Pronunciation:"))[0])
    spelling = next(block for block in blocks_of(page) if "# everywhere" in block)
    course.put("spelling.txt", spelling)
    return spelling


def put_spellings(course, spelling):
    """What stands ahead of each "=", in a text of its own; the texts and what is wrong in them."""
    twins = {part: re.split("[/=]", twin)[0].strip() for part, twin in
             re.findall(r"^# (\w+)\n(.*)", spelling, re.M)}
    require(set(twins) == {"everywhere", "translations", "english", "texts", "regions"}, str(twins))
    wrong = {}
    for slot, (part, word) in enumerate(twins.items(), 8):
        english = part in ("english", "texts")
        pair = f"We like this {word}.\n= Thế nhé." if english else f"Yes.\n= Vâng, {word}, muỗng."
        wrong[course.put(f"reading/{slot:03}-wrong.txt", f"title: {part}\n\n{pair}")] = word
    return wrong


def check_text(driver, text):
    title = text.splitlines()[0].removeprefix("title: ")
    driver.open_titled(title)
    for line in text.splitlines()[2:]:
        require(not line or line.startswith("= ") or line in driver.text(), line)
    driver.leave_text()


def check_commands(course, page):
    """The compiler has the commands of the page, and the kinds that it may be told."""
    told = blocks_of(part_of(page, "The compiler"))[0]
    commands = set(re.findall(r"^talvora-pack ([a-z]+)", told, re.M))
    known = set(re.findall(r"^  ([a-z]+) ", course.tell("--help"), re.M))
    require({"build", "check", "new", "show"} <= commands <= known, f"{commands} of {known}")
    for command, begins in (("check", "reading, "), ("new", "text, ")):
        kinds = re.search(rf"{begins}[a-z, \n]*", told)[0]
        listed = set(re.findall("[a-z]+", kinds.split("talvora")[0]))
        offered = re.search(r"([a-z]+(?:\|[a-z]+)+)", course.tell(command, "--help"))[1]
        require(listed == set(offered.split("|")), f"{command}: {listed} and {offered}")


def check_rules(options, folder, pages):
    """The examples keep the rules of texts, which are looked at where no other source has a fault."""
    course = Course(options, folder, small=False)
    put_text(course, pages["content"])
    put_listening(course, pages["content-drills"])
    put_speaking(course, pages["content-drills"])
    wrong = put_spellings(course, put_lists(course, pages["content"]))
    without_key = put_keys(course, pages["content-drills"])
    told = course.check(code=1)
    faults = [line for line in told.splitlines() if not line.startswith("note: ")]
    for file, word in wrong.items():
        require(any(str(file) in line and word in line for line in faults), f"{word}: {told}")
        file.unlink()
    require(any(line.startswith(f"{without_key}:1:1: ") for line in faults), told)
    without_key.unlink()
    require(len(faults) == len(wrong) + 1, told)
    course.check()
    check_commands(course, pages["content"])


def check_program(options, folder, pages):
    """The program shows the examples as the pages say."""
    course = Course(options, folder)
    text = put_text(course, pages["content"])
    course.put("dictionary/g.txt", blocks_of(part_of(pages["content"], "Dictionary:"))[0])
    lesson = put_lesson(course, pages["content-lessons"])
    check_items(put_items(course, pages["content-lessons"]))
    check_headings(course, pages["content-lessons"])
    question, template = put_listening(course, pages["content-drills"])
    conversation = put_speaking(course, pages["content-drills"])
    check_analysis(course, pages["content-drills"])
    driver = course.opened()
    check_lesson(driver, lesson)
    check_entry(driver, pages["content"])
    check_coming(driver)
    check_listening(driver, question, template)
    check_speaking(driver, conversation)
    check_text(driver, text)
    driver.end()


def main():
    options = arguments_with(__doc__, "--compiler", "--content", "--docs")
    pages = {name: (Path(options.docs) / f"{name}.md").read_text(encoding="utf-8")
             for name in ("content", "content-lessons", "content-drills")}
    with tempfile.TemporaryDirectory() as folder:
        check_rules(options, Path(folder) / "rules", pages)
        check_program(options, Path(folder) / "program", pages)
    return 0


if __name__ == "__main__":
    sys.exit(main())
