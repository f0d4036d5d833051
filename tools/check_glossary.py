#!/usr/bin/env python3
"""Checks that the glossary explains every Vietnamese name that a header declares, and every name
that the driver and the pages go by.

usage: check_glossary.py [REPOSITORY]

A name is told by its parts, as TuVung has Tu and Vung. A part that is built like a Vietnamese
syllable and is no English word makes the whole name Vietnamese. The name is explained where it
stands in the glossary's table of names, or where the table of words has all its Vietnamese parts.
Exit code 0 when all is well, 1 with a line `file:line: message` for each fault, 2 on a wrong call.
"""

import re
import sys
from pathlib import Path

from repository import repository_of

GLOSSARY = Path("docs/glossary.md")
CONTROLS = "src/*/*Controls.h"

ONSET = "ngh|ng|gh|gi|kh|nh|ph|th|tr|ch|qu|[bcdghklmnprstvx]"
NUCLEUS = ("uye|uyu|uoi|uou|oai|oao|oay|uay|ieu|yeu|uya|ia|ie|ua|uo|oa|oe|ue|uy|oo|ai|ao|au|ay|eo|eu|iu"
           "|oi|ui|uu|ye|[aeiouy]")
CODA = "ng|nh|ch|[cmnpt]"
SYLLABLE = re.compile(f"(?:{ONSET})?(?:{NUCLEUS})(?:{CODA})?")
# Words of English, and of the trade, that are built like a syllable. One that is Vietnamese as well
# is taken for English by itself; the rest of its name tells.
ENGLISH = set("""
a am an at be bit but by can cue cut day doing due e gap get go got hang heat hip hop hot i im in
ing it let long loop main man map may me met min mm my net no not o on pay pop pot put quiet quit
ran rich rim ring room run rut sat say set so soon sum tap ten than the them then thin tip to too
top tram trim true try u up way wet x y yet
""".split())
# Runs of capitals that are no Vietnamese abbreviation.
ENGLISH_CAPITALS = set("ABCD CLI MM RTF UTF WA".split())
PART = re.compile(r"[A-Z]+\d*(?![a-z])|[A-Z]?[a-z]+")
NOT_CODE = re.compile(r'R"\(.*?\)"|//[^\n]*|/\*.*?\*/|^\s*#[^\n]*|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'',
                      re.DOTALL | re.MULTILINE)
NAME = re.compile(r"\b(?!0x|Q[A-Z])[A-Za-z]\w*", re.ASCII)
DECLARED_SURFACE = re.compile(r"^\s*Surface (\w+(?:, \w+)*);", re.MULTILINE)
DRIVERS_NAME = re.compile(r'\b(?:variables|procedures_|procedures)\.add\w*\(\s*"(\w+)"')


def line_of(text, place):
    return text.count("\n", 0, place) + 1


def blanked(text):
    """The code of a file, its comments and texts as blanks, so that places stay."""
    return NOT_CODE.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def names_in(path, text):
    """The names that a file has, each with its line, and whether it is Vietnamese whatever its parts."""
    if path.suffix == ".h":
        code = blanked(text)
        yield from ((found.group(), line_of(code, found.start()), False) for found in NAME.finditer(code))
    if path.match(CONTROLS):
        for found in DECLARED_SURFACE.finditer(text):
            yield from ((name, line_of(text, found.start()), True) for name in found.group(1).split(", "))
    for found in DRIVERS_NAME.finditer(text):
        yield found.group(1), line_of(text, found.start()), False


def vietnamese_parts(name):
    """The parts of a name that the glossary has to have."""
    for part in PART.findall(name):
        if part[1:2].isupper():
            if part not in ENGLISH_CAPITALS:
                yield part
        elif part.lower() not in ENGLISH and SYLLABLE.fullmatch(part.lower()):
            yield part.lower()


def rows_of(glossary, title):
    """The first cells of a table, below a heading."""
    table = glossary.split(f"\n## {title}\n", 1)[1].split("\n## ", 1)[0]
    return [row.split("|")[1].strip() for row in table.splitlines() if row.startswith("|")][2:]


def main():
    root = repository_of(__doc__)
    glossary = (root / GLOSSARY).read_text(encoding="utf-8")
    names = {name for row in rows_of(glossary, "Names") for name in re.findall(r"`([^`]+)`", row)}
    words = {word for row in rows_of(glossary, "Words that recur") for word in re.split(r"[ ,]+", row.lower())}
    faults = {}
    count = set()
    for path in sorted(p.relative_to(root) for top in ("src", "pack") for p in (root / top).rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        for name, line, always in names_in(path, (root / path).read_text(encoding="utf-8")):
            parts = set(vietnamese_parts(name))
            if not parts and not always:
                continue
            count.add(name)
            missing = sorted(part for part in parts - names if part.lower() not in words)
            if name not in names and (missing or always):
                told = f" ({', '.join(missing)})" if missing else ""
                faults.setdefault(name, f"{path}:{line}: {name} is not in {GLOSSARY}{told}")
    print("\n".join(faults.values()) if faults else f"glossary: {len(count)} Vietnamese names, all explained")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
