#!/usr/bin/env python3
"""Checks the order of the house: no include goes up a floor, and none goes in a circle.

usage: check_includes.py SOURCE_FOLDER

Exit code 0 when all is well, 1 with a line `file:line: message` for each fault, 2 on a wrong call.
"""

import re
import sys
from pathlib import Path

FLOORS = {
    "text": 0,
    "platform": 1,
    "surface": 2,
    "stores": 3,
    "learner": 4,
    "shell": 4,
    "dictionary": 5,
    "sound": 5,
    "reading": 6,
    "lessons": 7,
    "exercises": 8,
    "listening": 9,
    "writing": 9,
    "program": 10,
    "desktop": 11,
    "driver": 11,
}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')


def includes_of(path, root):
    """The project's own files that a file includes, with their lines."""
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), start=1):
        match = INCLUDE.match(line)
        if not match:
            continue
        target = root / match.group(1)
        if not target.exists():
            target = path.parent / match.group(1)
        if target.exists():
            yield number, target.relative_to(root)


def floor_of(path):
    return FLOORS.get(path.parts[0])


def circle_from(start, graph):
    """A circle of includes that leads back to `start`, or None."""
    stack = [(start, [start])]
    seen = set()
    while stack:
        node, way = stack.pop()
        for target in graph.get(node, ()):
            if target == start:
                return way + [start]
            if target not in seen:
                seen.add(target)
                stack.append((target, way + [target]))
    return None


def main():
    if len(sys.argv) != 2 or sys.argv[1] in ("-h", "--help"):
        print(__doc__.strip())
        return 0 if len(sys.argv) == 2 else 2
    root = Path(sys.argv[1])
    faults = []
    graph = {}
    for path in sorted(root.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(root)
        floor = floor_of(name)
        if floor is None:
            faults.append(f"{path}:1: the folder stands on no floor; give it one in {__file__}")
            continue
        graph[name] = []
        for number, target in includes_of(path, root):
            graph[name].append(target)
            if floor_of(target) is not None and floor_of(target) > floor:
                faults.append(f"{path}:{number}: includes {target}, which stands on a higher floor")
    for name in sorted(graph):
        circle = circle_from(name, graph)
        if circle:
            faults.append(f"{root / name}:1: includes itself: " + " > ".join(map(str, circle)))
    print("\n".join(faults) if faults else f"include order: {len(graph)} files, all in order")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
