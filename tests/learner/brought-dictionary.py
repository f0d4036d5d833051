#!/usr/bin/env python3
"""Brings a dictionary to a learner, looks its words up in the program, and takes it away again."""

import gzip
import shutil
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

from driving import Driver, arguments_with, in_english, require


def run(options, own, *arguments, code=0, pack=None):
    done = subprocess.run([options.compiler, "import", *map(str, arguments), "--pack",
                           str(pack or options.pack), "--learner", str(own)], env=in_english(),
                          capture_output=True, text=True)
    require(done.returncode == code, f"import {arguments}: {done.returncode} {done.stdout}")
    return done.stdout


def look_up(options, own, word):
    """What the popup says of a word of the small pack's first text."""
    driver = Driver(options.driver, options.pack, str(own))
    driver.do("start")
    driver.open_titled("The Old Bank")
    driver.do("mouse", surface="R2", at=driver.text().index(word) + 1)
    shown = driver.do("surface", name="RHD")
    driver.end()
    return shown["text"] if shown["visible"] else ""


def stardict(folder, name, entries):
    index, articles = b"", b""
    for word, text in sorted(entries.items()):
        article = text.encode()
        index += word.encode() + b"\0" + struct.pack(">II", len(articles), len(article))
        articles += article
    (folder / f"{name}.ifo").write_text(
        f"StarDict's dict ifo file\nversion=2.4.2\nbookname={name}\nwordcount={len(entries)}\n"
        f"idxfilesize={len(index)}\nsametypesequence=h\n", encoding="utf-8")
    (folder / f"{name}.idx").write_bytes(index)
    (folder / f"{name}.dict.dz").write_bytes(gzip.compress(articles))
    return folder / f"{name}.ifo"


def main():
    options = arguments_with(__doc__, "--pack", "--compiler")
    with tempfile.TemporaryDirectory() as place:
        folder = Path(place)
        own = folder / "own"
        own.mkdir()
        (own / "Yes1").touch()
        ours = look_up(options, own, "bank")
        require(ours != "", "our own entry")
        info = stardict(folder, "Sach", {"bank": "<b>nha bang</b>", "children": "tre em"})
        table = folder / "more.tsv"
        table.write_text("bank\tket sat\n", encoding="utf-8")
        out = run(options, own, info, table)
        require("Sach: 2" in out and "more: 1" in out, out)
        both = look_up(options, own, "bank")
        places = [both.find(part) for part in ("Sach", "nha bang", "more", "ket sat")]
        require(both.startswith(ours.rstrip()[:20]) and -1 not in places, both)
        require(places == sorted(places), f"the dictionaries are not in their order: {both}")
        require("tre em" in look_up(options, own, "children"), "a word of theirs alone")
        run(options, own, "--imported-first", info)
        ahead = look_up(options, own, "bank")
        require("ket sat" not in ahead and ahead.index("nha bang") < len(ahead) // 2, ahead)
        # A damaged one is told with its place and leaves what is there.
        whole = (folder / "Sach.idx").read_bytes()
        (folder / "Sach.idx").write_bytes(whole[:-2])
        require("Sach.idx: offset" in run(options, own, info, code=2), "no place")
        packed = (folder / "Sach.dict.dz").read_bytes()
        (folder / "Sach.idx").write_bytes(whole)
        (folder / "Sach.dict.dz").write_bytes(packed[:-9])
        require("Sach.dict.dz: offset" in run(options, own, info, code=2), "no place")
        listed = run(options, own)
        require("Sach: 2" in listed, "what is there is not told")
        require("another course" not in listed, "it was made with this course")
        # A course with another dictionary comes under it.
        newer = folder / "newer"
        shutil.copytree(options.pack, newer)
        with open(newer / "data.avt", "ab") as entries:
            entries.write(b"more")
        require("another course" in run(options, own, pack=newer), "the new course is not told of")
        require(look_up(options, own, "bank") == ahead, "a failed import changed something")
        run(options, own, "--remove")
        require(look_up(options, own, "bank") == ours, "it is still there")
    return 0


if __name__ == "__main__":
    sys.exit(main())
