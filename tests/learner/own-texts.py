#!/usr/bin/env python3
"""Adds a learner's own texts, works with one in the program, builds the course anew under them, and
takes them away again: the words that were taken keep their sentences."""

import shutil
import subprocess
import sys
import zipfile

from driving import Driver, arguments_with, course_to_change, in_vietnamese, require

STORY = """The lighthouse stood on a rock. Mr. Green lived there with his dog.

"Who is there?" he asked. Nobody answered!
"""
TRANSLATED = """// A comment may stand ahead of the title.
title: Two Lines

The kettle sings.
= Cái ấm reo.
The tea is ready.
"""
SUBTITLES = """1
00:00:01,000 --> 00:00:02,000
<i>Where is</i>

2
00:00:02,100 --> 00:00:04,000
the harbour?

3
00:00:09,000 --> 00:00:10,000
Over there.
"""
PAGE = """<?xml version="1.0"?><html xmlns="http://www.w3.org/1999/xhtml"><head><title>x</title></head>
<body><h1>Chapter {0}</h1><p>The caf&eacute; was   open in chapter {0}.</p><p>It rained.</p></body>
</html>"""


def run(options, own, *arguments, code=0):
    done = subprocess.run([options.compiler, "text", *map(str, arguments), "--learner", str(own)],
                          env=in_vietnamese(), capture_output=True, text=True)
    require(done.returncode == code, f"text {arguments}: {done.returncode} {done.stdout}")
    return done.stdout


def book(path):
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr("mimetype", "application/epub+zip")
        archive.writestr("META-INF/container.xml", '<container><rootfiles><rootfile '
                         'full-path="OEBPS/book.opf"/></rootfiles></container>')
        archive.writestr("OEBPS/book.opf", '<package><manifest><item id="b" href="two.xhtml"/>'
                         '<item id="a" href="text/one%20a.xhtml"/></manifest><spine>'
                         '<itemref idref="a"/><itemref idref="b"/></spine></package>')
        archive.writestr("OEBPS/text/one a.xhtml", PAGE.format("one"))
        archive.writestr("OEBPS/two.xhtml", PAGE.format("two"))


def started(options, pack, own):
    driver = Driver(options.driver, str(pack), str(own))
    driver.do("start")
    return driver


def row_of(own, word):
    for line in (own / "words.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith(word + "\t"):
            return line.split("\t")
    raise AssertionError(f"{word} is not on the list")


def hear(driver):
    """F9 reads an own text aloud, its title and each sentence, round and round."""
    driver.do("log")
    driver.key("Home")
    driver.do("hold", key="Esc", after=15000, **{"for": 25})
    driver.key("F9")
    said = [each["text"] for each in driver.do("log")["entries"] if each["what"] == "speak"]
    require(set(said[:5]) == {"lighthouse", "the lighthouse stood on a rock",
                              "mr green lived there with his dog", "who is there he asked",
                              "nobody answered"}, str(said))


def see_vocabulary(driver):
    """A word of an own text shows its sentence in the list of words, and its entry."""
    driver.do("click", button="but2")
    rows = driver.do("surface", name="Rchon")["text"]
    require("rock" in rows, rows)
    driver.do("mouse", surface="Rchon", at=rows.index("rock") + 1, double=True)
    sentence = driver.get("ChuoiCau").strip()
    require(sentence == "The lighthouse stood on a rock.", sentence)
    require(driver.do("surface", name="RHD")["visible"], "no message for the word's sentence")
    driver.leave_text()


def read(options, pack, own):
    """Reads an own text as a learner does."""
    driver = started(options, pack, own)
    driver.open_titled("lighthouse")
    text = driver.text()
    require("Mr. Green lived there" in text, text)
    driver.do("mouse", surface="R2", at=text.index("Green") + 1)
    driver.take("rock")
    # A sentence has a message in place of a translation, and is spoken.
    driver.do("mouse", surface="R2", at=text.index("Nobody") + 2, double=True)
    require(driver.get("CauChon") == 5, f"sentence {driver.get('CauChon')}")
    require(driver.do("surface", name="RHD")["visible"], "no message for the sentence")
    driver.key("Esc")
    driver.do("mouse", surface="R2", at=text.index("lived") + 1)
    driver.key("F6")
    require(driver.do("surface", name="Rxep")["visible"], "F6 opens no drill")
    driver.key("Esc")
    hear(driver)
    driver.leave_text()
    see_vocabulary(driver)
    driver.open_titled("Two Lines")
    driver.do("mouse", surface="R2", at=driver.text().index("kettle") + 2, double=True)
    # The driver tells bytes as they are stored.
    require(driver.get("ThongBaoHD") == "Cái Ím reo.", driver.get("ThongBaoHD"))
    driver.leave_text()
    # The course's own texts are as they were, the recorded one among them.
    driver.open_titled("The Old Bank")
    driver.take("river")
    driver.leave_text()
    # Dictation of an own text looks for no recording.
    driver.do("click", button="but1")
    at = driver.do("surface", name="R1")["text"].index("\tlighthouse\r")
    driver.do("mouse", surface="R1", at=at + 1, button="right")
    require(driver.do("surface", name="Rviet")["visible"], "no dictation")
    require(not driver.get("AmThanhThuc"), "an own text has no recording")
    driver.end()


def damaged(options, own, folder):
    """What cannot be read is told with its place and changes nothing."""
    before = (own / "owntexts.av").read_bytes()
    (folder / "bad.txt").write_bytes(b"Good text.\n\xff")
    require("byte 11" in run(options, own, "add", folder / "bad.txt", code=2), "no place")
    (folder / "bad.srt").write_text("1\n00:00:01,000 --> 00:00:02,000\nHi.\n\nwhat\n",
                                    encoding="utf-8")
    require("bad.srt:5:1" in run(options, own, "add", folder / "bad.srt", code=2), "no place")
    whole = (folder / "book.epub").read_bytes()
    (folder / "cut.epub").write_bytes(whole[:200])
    run(options, own, "add", folder / "story.txt", folder / "cut.epub", code=2)
    with zipfile.ZipFile(folder / "bomb.epub", "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr("META-INF/container.xml", b" " * (80 << 20))
    require("quá lớn" in run(options, own, "add", folder / "bomb.epub", code=2), "a bomb")
    run(options, own, "add", folder / "nothing.txt", code=2)
    run(options, own, "remove", "77", code=2)
    require((own / "owntexts.av").read_bytes() == before, "a failure changed something")


def main():
    options = arguments_with(__doc__, "--compiler", "--content")
    with course_to_change(options, 2000) as course:
        folder, own = course.place, course.own
        (folder / "story.txt").write_text(STORY, encoding="utf-8")
        (folder / "story.txt").rename(folder / "lighthouse.txt")
        shutil.copy(folder / "lighthouse.txt", folder / "story.txt")
        (folder / "lines.txt").write_text(TRANSLATED, encoding="utf-8")
        (folder / "film.srt").write_text(SUBTITLES, encoding="utf-8")
        book(folder / "book.epub")
        run(options, own, "add", folder / "lighthouse.txt", folder / "lines.txt")
        run(options, own, "add", folder / "film.srt", folder / "book.epub")
        listed = run(options, own, "list")
        for wanted in ("1\tlighthouse\t4 câu", "2\tTwo Lines\t2 câu", "3\tfilm\t2 câu",
                       "4\tChapter one\t2 câu", "5\tChapter two\t2 câu"):
            require(wanted in listed.splitlines(), f"{wanted}: {listed}")
        read(options, course.pack, own)
        place_before = row_of(own, "rock")[1]
        damaged(options, own, folder)
        # A new course under the texts: the words find their sentences.
        text = course.content / "reading" / "005-the-bank-by-the-river.txt"
        source = text.read_text(encoding="utf-8")
        text.write_text(source.replace("\n\n", "\n\nIt was a long and quiet morning.\n= Hôm đó là "
                                       "một buổi sáng dài và yên tĩnh.\n", 1), encoding="utf-8")
        course.build()
        started(options, course.pack, own).end()
        rock = row_of(own, "rock")
        require(rock[1] not in ("0", place_before), f"the place stayed {rock[1]}")
        require(rock[7].startswith("The lighthouse stood on a rock."), str(rock))
        run(options, own, "remove", "1")
        started(options, course.pack, own).end()
        rock, river = row_of(own, "rock"), row_of(own, "river")
        require(rock[1] == "0" and rock[7].startswith("The lighthouse"), str(rock))
        require(river[1] != "0", str(river))
        run(options, own, "remove", "2", "3", "4", "5")
        require(not (own / "owntexts.av").exists(), "a file without texts")
    return 0


if __name__ == "__main__":
    sys.exit(main())
