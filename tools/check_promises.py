#!/usr/bin/env python3
"""Checks that every test that docs/promises.md names exists, and that it names every test of safety.

usage: { ctest --preset release -N; ctest --preset web -N; } | check_promises.py [REPOSITORY]

A test of safety is one of the families below, or of a suite that stands in a folder below.
Exit code 0 when all is well, 1 with a line for each fault, 2 on a wrong call.
"""

import re
import sys
from fnmatch import fnmatchcase

from repository import repository_of

PAGE = "docs/promises.md"
FAMILIES = ("damage", "faults", "walk*", "fuzz-*", "learner-*", "desktop-closing", "desktop-sound", "Closing.*")
FOLDERS = ("tests/storage", "tests/unit/learner", "tests/walk")

LISTED = re.compile(r"^\s*Test\s+#\d+: (\S+)", re.MULTILINE)
NAMED = re.compile(r"`([^`]+)`")
SUITE = re.compile(r"^TEST(?:_F)?\((\w+),", re.MULTILINE)


def names_on(page):
    """The tests that a promise is held by, as the last column of the tables has them."""
    names = set()
    for line in page.splitlines():
        if line.startswith("|"):
            names.update(NAMED.findall(line.rstrip(" |").rsplit("|", 1)[-1]))
    return names


def families_in(root):
    suites = set()
    for folder in FOLDERS:
        for path in (root / folder).glob("*.cpp"):
            suites.update(SUITE.findall(path.read_text(encoding="utf-8")))
    return [*FAMILIES, *(f"{suite}.*" for suite in sorted(suites))]


def main():
    root = repository_of(__doc__)
    tests = LISTED.findall(sys.stdin.read())
    if not tests:
        print("no tests are listed", file=sys.stderr)
        return 2
    named = names_on((root / PAGE).read_text(encoding="utf-8"))
    families = families_in(root)
    faults = [
        f"{PAGE}: there is no test {name}"
        for name in sorted(named)
        if not any(fnmatchcase(test, name) for test in tests)
    ]
    for test in sorted(tests):
        if any(fnmatchcase(test, each) for each in families) and not any(
            fnmatchcase(test, name) for name in named
        ):
            faults.append(f"{PAGE}: the test {test} holds no promise")
    print("\n".join(faults) if faults else f"promises: held by {len(named)} tests and families of tests, all there")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
