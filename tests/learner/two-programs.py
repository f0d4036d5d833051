#!/usr/bin/env python3
"""Two programs in one learner's folder: the second one does not start, and one that was killed
holds nobody up."""

import sys
import tempfile
from pathlib import Path

from driving import Driver, arguments


def main():
    options = arguments(__doc__)
    with tempfile.TemporaryDirectory() as folder:
        Path(folder, "Yes1").touch()
        first = Driver(options.driver, options.pack, folder)
        assert first.do("start")["running"]
        second = Driver(options.driver, options.pack, folder)
        reply = second.do("start")
        assert reply["running"] is False and reply["ended"] == "failure", reply
        assert reply["failure"].startswith("Talvora"), reply
        second.end()
        first.kill()
        third = Driver(options.driver, options.pack, folder)
        assert third.do("start")["running"], "a dead program's lock holds up the next one"
        third.do("answer", **{"with": "yes"})
        third.do("close")
        fourth = Driver(options.driver, options.pack, folder)
        assert fourth.do("start")["running"], "a program that has ended holds up the next one"
        third.end()
        fourth.end()
        with tempfile.TemporaryDirectory() as other:
            Path(other, "Yes1").touch()
            one = Driver(options.driver, options.pack, folder)
            two = Driver(options.driver, options.pack, other)
            assert one.do("start")["running"] and two.do("start")["running"]
            one.end()
            two.end()
    print("the second program did not start; a dead one held nobody up")
    return 0


if __name__ == "__main__":
    sys.exit(main())
