#!/usr/bin/env python3
"""Checks that no folder names a page of a floor above it.

usage: check_pages.py [REPOSITORY]

A page belongs to the folder whose list of controls makes it (src/FOLDER/...Controls.h). What a lower
floor must know of it its section says; the lower floor never names the surface, be it by a text. Looked
at is src, but for the fronts, which stand above all, and for the lists themselves.
Exit code 0 when all is well, 1 with a line `file:line: message` for each fault, 2 on a wrong call.
"""

import re
import sys
from pathlib import Path

from check_includes import FLOORS
from repository import repository_of

DECLARED = re.compile(r"^\s*Surface (\w+(?:, \w+)*);", re.MULTILINE)
NAMED = re.compile(r'(?:\.|->|")(R\w+)\b')


def owners_in(root):
    """Whose each surface is: its folder, by its name."""
    owners = {}
    for path in sorted((root / "src").glob("*/*Controls.h")):
        for names in DECLARED.findall(path.read_text(encoding="utf-8")):
            owners.update((name, path.parent.name) for name in names.split(", "))
    return owners


def faults_of(path, root, owners):
    """A line for each page that a file names from below."""
    folder = path.parts[1]
    for number, line in enumerate((root / path).read_text(encoding="utf-8").splitlines(), start=1):
        for name in NAMED.findall(line.split("//")[0]):
            owner = owners.get(name)
            if owner is not None and FLOORS[owner] > FLOORS[folder]:
                yield f"{path}:{number}: names {name}, which is a page of {owner}"


def main():
    root = repository_of(__doc__)
    owners = owners_in(root)
    if not owners:
        print("src: no list of controls has a surface")
        return 1
    faults = []
    files = 0
    for path in sorted(p.relative_to(root) for p in (root / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp") or path.stem.endswith("Controls"):
            continue
        if FLOORS.get(path.parts[1], FLOORS["desktop"]) >= FLOORS["program"]:
            continue
        files += 1
        faults += faults_of(path, root, owners)
    print("\n".join(faults) if faults else f"pages: {files} files, none names a page above it")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
