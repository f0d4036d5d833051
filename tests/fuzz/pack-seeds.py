#!/usr/bin/env python3
"""Makes seeds of a pack: its stores as the targets take them that read several files at once.

usage: pack-seeds.py PACK FOLDER
"""

import sys
from pathlib import Path

MARK = b"\n%%\n"
# A seed is no use that is larger than what the targets are given.
LONGEST = 20000

STORES = {
    "reading": ("data.vt", "data.av", "DataS"),
    "speaking": ("datasp.vt", "datasp.av", "DataS"),
    "items": ("data.vbt", "data.bt", "data.Muc"),
    "lessons": ("datavp.vt", "datavp.n", "data.Muc"),
    "listening": ("dataN.vt", "dataN.av", "DataS"),
    "analyses": ("dataPt.vt", "dataPt.v", "data.Muc"),
    "words": ("data.mtd", "data.avt", "datatu.txt"),
    "side": ("dataD.vt", "dataD.av", "datatuD.txt"),
}


def main():
    pack, folder = Path(sys.argv[1]), Path(sys.argv[2])
    for target in ("Stores", "PackStores"):
        (folder / target).mkdir(parents=True, exist_ok=True)
        for name, files in STORES.items():
            parts = [(pack / file).read_bytes()[:LONGEST] for file in files]
            (folder / target / name).write_bytes(MARK.join(parts))
    # Places in lists of another course.
    places = b"\n".join(b"%d\t0123456789abcdef\t2\tA title" % record for record in range(1, 20))
    texts = [(pack / file).read_bytes()[:LONGEST] for file in ("data.vt", "data.av")]
    (folder / "Stores" / "places").write_bytes(MARK.join([*texts, places]))
    # A list of words with carets that rise, and the same many times over.
    words = folder / "WordFiles"
    words.mkdir(exist_ok=True)
    list_of_words = b"\n".join((pack / "datatu.txt").read_bytes().split(b"\n")[:1500])
    both = MARK.join([(pack / "data.mtd").read_bytes()[:12000], list_of_words])
    (words / "course").write_bytes(both)
    (words / "long").write_bytes(both + MARK + b"more")
    spoken = folder / "Pronunciations"
    spoken.mkdir(exist_ok=True)
    rules = (pack / "pronunciation.txt").read_bytes()[:LONGEST]
    (spoken / "course").write_bytes(rules + MARK + b"He has read the record; they record what they read.")


if __name__ == "__main__":
    main()
