#!/usr/bin/env python3
"""Tells how many lines and branches of each of some sources were reached, and fails under a floor.

usage: coverage.py SUMMARY SOURCES LINES [BRANCHES]
       SUMMARY is what llvm-cov exports, SOURCES a file a line, LINES and BRANCHES floors in percent
"""

import json
import sys
from pathlib import Path


def main():
    if len(sys.argv) not in (4, 5):
        print(__doc__, file=sys.stderr)
        return 2
    summary, sources = sys.argv[1:3]
    floors = {"lines": float(sys.argv[3]), "branches": float((sys.argv[4:] or ["0"])[0])}
    files = {}
    for each in json.loads(Path(summary).read_text(encoding="utf-8"))["data"][0]["files"]:
        # With a compiler cache the paths may be told from the build's folder: "build/fuzz/../../src".
        files[str(Path(each["filename"]).resolve())] = each["summary"]
    root = str(Path(__file__).resolve().parents[1]) + "/"
    low = []
    for line in Path(sources).read_text(encoding="utf-8").splitlines():
        name = line.strip()
        if not name or name.startswith("#"):
            continue
        found = files.get(root + name)
        reached = {what: found[what]["percent"] if found else 0.0 for what in floors}
        print(f"{name:44} {reached['lines']:6.1f} % of lines {reached['branches']:6.1f} % of branches")
        if any(reached[what] < floors[what] for what in floors):
            low.append(name)
    if low:
        told = f"{floors['lines']:.0f} % of lines and {floors['branches']:.0f} % of branches"
        print(f"under {told}: {', '.join(low)}")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
