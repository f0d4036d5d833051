#!/usr/bin/env python3
"""Makes a StarDict dictionary of a pack's word list, for the programs that the tutor is held against.

usage: make-stardict.py PACK_FOLDER OUT_FOLDER WORDS_FILE COUNT

WORDS_FILE gets COUNT mixed words, one a line: words of the list, every second one with an ending
that the list does not have.
"""
import random
import struct
import sys
from pathlib import Path


def ascii_lower(word: bytes) -> bytes:
    return bytes(c + 32 if 65 <= c <= 90 else c for c in word)


def main() -> None:
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    pack, out, words_file, count = Path(sys.argv[1]), Path(sys.argv[2]), sys.argv[3], int(sys.argv[4])
    lines = (pack / "datatu.txt").read_bytes().replace(b"\r\n", b"\n").replace(b"\r", b"\n")
    # The list is in single bytes, StarDict in UTF-8.
    words = {line.decode("cp1252", "replace").encode() for line in lines.split(b"\n") if line}
    ordered = sorted(words, key=lambda word: (ascii_lower(word), word))
    out.mkdir(parents=True, exist_ok=True)
    index, entries = bytearray(), bytearray()
    for word in ordered:
        entry = b"noun\n - a thing that is met every day: " + word
        index += word + b"\0" + struct.pack(">II", len(entries), len(entry))
        entries += entry
    (out / "words.idx").write_bytes(index)
    (out / "words.dict").write_bytes(entries)
    (out / "words.ifo").write_text(
        "StarDict's dict ifo file\nversion=2.4.2\n"
        f"wordcount={len(ordered)}\nidxfilesize={len(index)}\n"
        "bookname=words\nsametypesequence=m\n"
    )
    draw = random.Random(2)
    plain = [word.decode() for word in ordered if word.isalpha() and len(word) > 2]
    drawn = draw.sample(plain, count)
    mixed = [word + "ing" if place % 2 else word for place, word in enumerate(drawn)]
    Path(words_file).write_text("".join(word + "\n" for word in mixed))
    print(f"{len(ordered)} words")


if __name__ == "__main__":
    main()
