#!/usr/bin/env python3
"""Checks that no folder names a page of a floor above it.

usage: check_pages.py [REPOSITORY]

A page belongs to the folder of the section that adds it to the shell's pages. What a lower floor must
know of it the section says there; the lower floor never names the surface. Looked at is src, but for
the fronts, which stand above all, and for the list of controls itself.
Exit code 0 when all is well, 1 with a line `file:line: message` for each fault, 2 on a wrong call.
"""

import re
import sys
from pathlib import Path

from check_includes import FLOORS
from repository import repository_of

# Whose each surface is.
OWNERS = {
    "RHD": "shell", "Rnen": "shell", "Rnen3": "shell", "RDOS": "shell",
    "RTD": "dictionary",
    "RAmthanh": "sound",
    "R1": "reading", "R2": "reading", "Rchon": "reading",
    "RVP1": "lessons", "RVP2": "lessons",
    "RN1": "exercises", "RDT": "exercises", "RABCD": "exercises", "Rsai": "exercises",
    "Rxep": "exercises", "RHDBT": "exercises", "Rnen2": "exercises",
    "RN2": "listening", "Rviet": "listening",
    "RW1": "writing", "RW2": "writing",
    "Rcachhoc": "program",
}
CONTROLS = Path("src/surface/Controls.h")
DECLARED = re.compile(r"^\s*Surface (\w+(?:, \w+)*);", re.MULTILINE)
NAMED = re.compile(r'(?:\.|->|")(R\w+)\b')


def faults_of(path, root):
    """A line for each page that a file names from below."""
    folder = path.parts[1]
    for number, line in enumerate((root / path).read_text(encoding="utf-8").splitlines(), start=1):
        for name in NAMED.findall(line.split("//")[0]):
            owner = OWNERS.get(name)
            if owner is not None and FLOORS[owner] > FLOORS[folder]:
                yield f"{path}:{number}: names {name}, which is a page of {owner}"


def main():
    root = repository_of(__doc__)
    declared = ", ".join(DECLARED.findall((root / CONTROLS).read_text(encoding="utf-8"))).split(", ")
    faults = [f"{CONTROLS}:1: {name} has no owner; give it one in {__file__}"
              for name in declared if name not in OWNERS]
    files = 0
    for path in sorted(p.relative_to(root) for p in (root / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp") or path.stem == "Controls":
            continue
        if FLOORS.get(path.parts[1], FLOORS["desktop"]) >= FLOORS["program"]:
            continue
        files += 1
        faults += faults_of(path, root)
    print("\n".join(faults) if faults else f"pages: {files} files, none names a page above it")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
