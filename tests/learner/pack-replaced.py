#!/usr/bin/env python3
"""A pack that is replaced under the program: renamed over, cut short, or copied over in place. The
program goes on, or ends with its own message, never by a signal."""

import shutil
import sys
import tempfile
from pathlib import Path

from driving import Driver, Ended, arguments


def visit(driver):
    """Opens a text, looks a word up in it and opens the look-up list."""
    driver.open_text()
    text = driver.text()
    reply = driver.do("mouse", surface="R2", at=text.find("bank") + 1)
    if reply.get("ended"):
        return reply
    for deed in (lambda: driver.key("Esc"), lambda: driver.key("Esc"), lambda: driver.key("Esc"),
                 lambda: driver.do("click", button="but1"), lambda: driver.do("type", text="zoo")):
        reply = deed()
        if reply.get("ended"):
            return reply
    return reply


def replace(path):
    new = path.with_suffix(".other")
    new.write_bytes(path.read_bytes()[::-1])
    new.rename(path)


def truncate(path):
    with path.open("r+b") as file:
        file.truncate(10)


def over(path):
    size = path.stat().st_size
    path.write_bytes(b"\0" * (size // 2))


def main():
    options = arguments(__doc__)
    ended = 0
    for change in (replace, truncate, over):
        for large in (False, True):
            with tempfile.TemporaryDirectory() as folder:
                pack, own = Path(folder, "pack"), Path(folder, "own")
                shutil.copytree(options.pack, pack)
                own.mkdir()
                Path(own, "Yes1").touch()
                if large:
                    # A file that is mapped, not read.
                    with Path(pack, "data.avt").open("ab") as file:
                        file.write(b"\0" * (3 << 20))
                driver = Driver(options.driver, str(pack), str(own))
                driver.do("start")
                for path in sorted(pack.iterdir()):
                    if path.is_file() and path.name.startswith("data"):
                        change(path)
                try:
                    reply = visit(driver)
                except Ended:
                    print(f"{change.__name__}, large {large}: exit {driver.process.wait()}")
                    return 1
                if reply.get("ended"):
                    assert "has become shorter" in reply["failure"], reply
                    ended += 1
                driver.end()
    assert ended > 0, "no large file was met"
    print(f"the program went on, but for {ended} ends with a message")
    return 0


if __name__ == "__main__":
    sys.exit(main())
