#!/usr/bin/env python3
"""Tells how many lines of every reader of bytes the fuzz targets reach, and fails under a floor.

usage: coverage.py SUMMARY READERS FLOOR
       SUMMARY is what llvm-cov exports, READERS a file a line, FLOOR in percent of lines
"""

import json
import sys
from pathlib import Path


def main():
    summary, readers, floor = sys.argv[1], sys.argv[2], float(sys.argv[3])
    files = {}
    for each in json.loads(Path(summary).read_text(encoding="utf-8"))["data"][0]["files"]:
        files[each["filename"]] = each["summary"]
    root = str(Path(__file__).resolve().parents[2]) + "/"
    low = []
    for line in Path(readers).read_text(encoding="utf-8").splitlines():
        name = line.strip()
        if not name or name.startswith("#"):
            continue
        found = files.get(root + name)
        lines = found["lines"]["percent"] if found else 0.0
        branches = found["branches"]["percent"] if found else 0.0
        print(f"{name:44} {lines:6.1f} % of lines {branches:6.1f} % of branches")
        if lines < floor:
            low.append(name)
    if low:
        print(f"under {floor:.0f} %: {', '.join(low)}")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
