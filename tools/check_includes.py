#!/usr/bin/env python3
"""Checks the order of the house: no include goes up a floor, and none goes in a circle, neither
from file to file nor from component to component (a header and its source are one).

usage: check_includes.py [REPOSITORY]

Looked at are src, pack, web, tests and bench.
Exit code 0 when all is well, 1 with a line `file:line: message` for each fault, 2 on a wrong call.
"""

import re
import sys
from pathlib import Path

from repository import repository_of

# The folders of src; a file includes from its own floor or a lower one.
FLOORS = {
    "text": 0,
    "formats": 1,
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
    "fronts": 11,
    "desktop": 12,
    "driver": 12,
}
# Beside the house: the compiler knows what the program reads, up to the items' headings; tests and
# benchmarks see everything.
PACK_FLOOR = 8
# The browser's front stands beside the other two; what is made of the desktop's look for it, and the
# tests of both, see everything.
WEB_FRONT = ("web", "core")
FREE = ("tests", "bench", "web")
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')


def floor_of(path):
    """The floor a file stands on, or None where there is none for its folder."""
    top = path.parts[0]
    if top == "src":
        return FLOORS.get(path.parts[1])
    if top == "pack":
        return PACK_FLOOR
    if path.parts[:2] == WEB_FRONT:
        return max(FLOORS.values())
    return max(FLOORS.values()) + 1 if top in FREE else None


def includes_of(path, root):
    """The project's own files that a file includes, with their lines."""
    for number, line in enumerate((root / path).read_text(encoding="utf-8").splitlines(), start=1):
        match = INCLUDE.match(line)
        if not match:
            continue
        name = match.group(1)
        for base in (Path("src"), Path("."), path.parent, Path("tests/unit"), Path("tests"), Path("web")):
            if (root / base / name).exists():
                yield number, (base / name)
                break


def circle_from(start, graph):
    """A circle of includes that leads back to `start`, or None."""
    stack = [(start, [start])]
    seen = set()
    while stack:
        node, way = stack.pop()
        for target in sorted(graph.get(node, ())):
            if target == start:
                return way + [start]
            if target not in seen:
                seen.add(target)
                stack.append((target, way + [target]))
    return None


def circles_of(graph):
    """One line for each circle, named by its first member."""
    told = set()
    lines = []
    for name in sorted(graph):
        circle = circle_from(name, graph)
        if circle and frozenset(circle) not in told:
            told.add(frozenset(circle))
            lines.append(f"{name}: includes itself: " + " > ".join(map(str, circle)))
    return lines


def components_of(graph):
    """The same graph with headers and their sources as one, by the path without its ending."""
    components = {}
    for path, targets in graph.items():
        of = components.setdefault(path.with_suffix(""), set())
        of |= {target.with_suffix("") for target in targets}
    for name, targets in components.items():
        targets.discard(name)
    return components


def main():
    root = repository_of(__doc__)
    faults = []
    graph = {}
    files = 0
    for path in sorted(p.relative_to(root) for top in ("src", "pack", *FREE) for p in (root / top).rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        files += 1
        floor = floor_of(path)
        if floor is None:
            faults.append(f"{path}:1: the folder stands on no floor; give it one in {__file__}")
            continue
        graph[path] = set()
        for number, target in includes_of(path, root):
            graph[path].add(target)
            target_floor = floor_of(target)
            if target_floor is not None and target_floor > floor:
                faults.append(f"{path}:{number}: includes {target}, which stands on a higher floor")
            if path.parts[0] == "src" and target.parts[0] != "src":
                faults.append(f"{path}:{number}: includes {target}, which is no part of the program")
    faults += circles_of(graph) or circles_of(components_of(graph))
    print("\n".join(faults) if faults else f"include order: {files} files, all in order")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
