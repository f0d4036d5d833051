"""What the checks of the source tree share: the repository that they were called on."""

import sys
from pathlib import Path


def repository_of(usage):
    """The root of the repository: the only argument, or the folder one is in. Ends the program with
    its usage when that is asked for, or with code 2 and a message when the call is wrong: a folder
    that has no source would pass every check."""
    arguments = sys.argv[1:]
    if arguments in (["-h"], ["--help"]):
        print(usage.strip())
        sys.exit(0)
    if len(arguments) > 1 or arguments[:1] and arguments[0].startswith("-"):
        print(usage.strip(), file=sys.stderr)
        sys.exit(2)
    root = Path(arguments[0] if arguments else ".")
    if not (root / "src" / "CMakeLists.txt").is_file():
        print(f"{root}: not the root of the repository: it has no src/CMakeLists.txt", file=sys.stderr)
        sys.exit(2)
    return root
