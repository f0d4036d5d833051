#!/usr/bin/env python3
"""Takes a learner's words along: collects some in the program, writes them in every form, looks at
what was written, and brings them to another learner."""

import csv
import io
import json
import re
import sqlite3
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

from driving import Driver, arguments_with, in_vietnamese, require

# The tables of a deck's database, with the columns that importers read by their places.
TABLES = {
    "col": "id crt mod scm ver dty usn ls conf models decks dconf tags",
    "notes": "id guid mid mod usn tags flds sfld csum flags data",
    "cards": "id nid did ord mod usn type queue due ivl factor reps lapses left odue odid flags "
             "data",
    "revlog": "id cid usn ease ivl lastIvl factor time type",
    "graves": "usn oid type",
}
WORDS = ["bank", "river", "children"]
FIELDS = ["Từ", "Dạng gốc", "Phiên âm", "Nghĩa", "Câu", "Dịch", "Bài", "Tiếng của từ",
          "Tiếng của câu"]


def words(options, own, *arguments, code=0):
    done = subprocess.run([options.compiler, "words", *arguments, "--learner", str(own)],
                          env=in_vietnamese(), capture_output=True, text=True)
    require(done.returncode == code, f"words {arguments}: {done.returncode} {done.stdout}")
    return done.stdout


def collect(options, own):
    """Takes the words of the first sentences of the small pack's first text."""
    driver = Driver(options.driver, str(options.pack), str(own))
    driver.do("start")
    driver.open_titled("The Old Bank")
    for word in WORDS:
        driver.take(word)
    driver.leave_text()
    driver.end()


def notes_of(deck):
    """The notes of a deck by their identity, after a look at everything that is in it."""
    with zipfile.ZipFile(deck) as archive:
        require(archive.testzip() is None, "the archive is damaged")
        names = archive.namelist()
        media = json.loads(archive.read("media"))
        require(set(names) == {"collection.anki2", "media", *media}, f"strange entries: {names}")
        for number, name in media.items():
            require(len(archive.read(number)) > 500, f"{name} is no sound")
        with tempfile.NamedTemporaryFile() as file:
            file.write(archive.read("collection.anki2"))
            file.flush()
            database = sqlite3.connect(file.name)
            require(database.execute("pragma integrity_check").fetchone() == ("ok",), "damaged")
            for table, columns in TABLES.items():
                there = [row[1] for row in database.execute(f"pragma table_info({table})")]
                require(there == columns.split(), f"{table}: {there}")
            (models, decks, version), = database.execute("select models, decks, ver from col")
            notes = list(database.execute("select id, guid, mid, mod, flds, csum from notes"))
            cards = list(database.execute("select nid, did from cards"))
            database.close()
    require(version == 11, f"version {version}")
    (kind, model), = json.loads(models).items()
    require([field["name"] for field in model["flds"]] == FIELDS, "fields")
    sides = model["tmpls"][0]["qfmt"] + model["tmpls"][0]["afmt"]
    require(set(re.findall(r"{{[#/]?([^}]*)}}", sides)) == set(FIELDS), "fields of the sides")
    require(sorted(nid for nid, _ in cards) == sorted(note[0] for note in notes), "cards")
    require({str(did) for _, did in cards} <= set(json.loads(decks)), "decks")
    found = {}
    for number, guid, mid, moment, fields, _ in notes:
        require(str(mid) == kind, "kind of note")
        row = dict(zip(FIELDS, fields.split("\x1f"), strict=True))
        for sound in re.findall(r"\[sound:([^]]*)\]", fields):
            require(sound in media.values(), f"{sound} is not in the deck")
        found[guid] = (number, moment, row)
    return found


def deck(options, own, folder):
    out = words(options, own, "export", str(folder / "words.apkg"), "--pack", options.pack)
    require("3 từ" in out, out)
    first = notes_of(folder / "words.apkg")
    by_word = {row["Từ"]: row for _, _, row in first.values()}
    require(set(by_word) == set(WORDS), str(set(by_word)))
    require("<b>bank</b>" in by_word["bank"]["Câu"], by_word["bank"]["Câu"])
    require(by_word["bank"]["Dịch"] != "", "the translation")
    require("[sound:" in by_word["bank"]["Tiếng của từ"], "the word's sound")
    words(options, own, "export", str(folder / "again.apkg"), "--pack", options.pack)
    again = notes_of(folder / "again.apkg")
    require({guid: note[0] for guid, note in first.items()} ==
            {guid: note[0] for guid, note in again.items()}, "another export, other identities")
    for audio, with_word, with_sentence in (("word", True, False), ("sentence", False, True),
                                            ("none", False, False)):
        file = folder / f"{audio}.apkg"
        words(options, own, "export", str(file), "--pack", options.pack, "--audio", audio)
        row, = (each for _, _, each in notes_of(file).values() if each["Từ"] == "bank")
        require((row["Tiếng của từ"] != "", row["Tiếng của câu"] != "") ==
                (with_word, with_sentence), f"--audio {audio}: {row}")
    words(options, own, "export", str(folder / "x.apkg"), "--audio", "loud", code=2)
    require(all(again[guid][1] >= first[guid][1] for guid in first), "the second is not newer")
    return set(first)


def tables(options, own, folder, identities):
    words(options, own, "export", str(folder / "w.tsv"), "--pack", options.pack,
          "--sounds", str(folder / "sounds"))
    lines = (folder / "w.tsv").read_text(encoding="utf-8").split("\n")
    require("#separator:tab" in lines and "#guid column:1" in lines, str(lines[:6]))
    rows = [line.split("\t") for line in lines if line and not line.startswith("#")]
    require({row[0] for row in rows} == identities, "the table's identities are not the deck's")
    for row in rows:
        name, = re.findall(r"\[sound:(.*)\]", row[8])
        require((folder / "sounds" / name).is_file(), f"{name} was not written")
    words(options, own, "export", str(folder / "w.csv"), "--pack", options.pack)
    content = (folder / "w.csv").read_text(encoding="utf-8-sig")
    table = list(csv.DictReader(io.StringIO(content)))
    require({row["Từ"] for row in table} == set(WORDS), content)
    words(options, own, "export", str(folder / "w.doc"), code=2)
    require(not (folder / "w.doc").exists(), "a file of an unknown form")


def bring(options, own, folder):
    """What was written comes back with its sentences, and never over what is there."""
    before = (own / "words.txt").read_bytes()
    require("0 từ, 3 từ đã có" in words(options, own, "import", str(folder / "w.csv")), "again")
    require((own / "words.txt").read_bytes() == before, "an import changed what was there")
    for form in ("w.csv", "w.tsv"):
        other = folder / ("other-" + form)
        other.mkdir()
        (other / "Yes1").touch()
        words(options, other, "import", str(folder / form))
        driver = Driver(options.driver, str(options.pack), str(other))
        driver.do("start")
        driver.end()
        ours = [line.split("\t") for line in before.decode().splitlines()]
        theirs = [line.split("\t") for line in
                  (other / "words.txt").read_text(encoding="utf-8").splitlines()]
        require(ours == theirs, f"{form}: {theirs} instead of {ours}")
    (folder / "plain.txt").write_text("harbour\nđường\nsomething too long to be taken\nbank\n",
                                      encoding="utf-8")
    out = words(options, own, "import", str(folder / "plain.txt"), code=1)
    require("plain.txt:2:" in out and "plain.txt:3:" in out, out)
    require("1 từ, 1 từ đã có, 2 dòng" in out, out)
    # A list that is not there, and one that a program holds, change nothing.
    words(options, own, "import", str(folder / "nothing.txt"), code=2)
    driver = Driver(options.driver, str(options.pack), str(own))
    driver.do("start")
    words(options, own, "import", str(folder / "plain.txt"), code=2)
    driver.end()


def main():
    options = arguments_with(__doc__, "--pack", "--compiler")
    with tempfile.TemporaryDirectory() as place:
        folder = Path(place)
        own = folder / "own"
        own.mkdir()
        (own / "Yes1").touch()
        collect(options, own)
        identities = deck(options, own, folder)
        tables(options, own, folder, identities)
        bring(options, own, folder)
    return 0


if __name__ == "__main__":
    sys.exit(main())
