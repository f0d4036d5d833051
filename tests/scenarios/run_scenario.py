#!/usr/bin/env python3
"""Runs scenarios: commands for talvora-driver with the fields expected of the replies.

usage: run_scenario.py --driver PROGRAM --pack FOLDER SCENARIO...

A scenario is a file of JSON lines. The first line may hold settings: {"options": ["--screen",
"800x600"], "firstRun": true, "without": ["data.av"]}. Every other line is a command with its "do",
and what is expected of the reply: "expect" compares the fields it names, deep; "expect_log" wants
its entries, each compared by the fields it names, among the entries of a "log" reply in that order;
"expect_not_log" wants none of its entries there. Each scenario gets a fresh copy of the pack.

Exit code 0 when all went as expected, 1 with `file:line: message` at the first difference of each
scenario, 2 on a wrong call.
"""

import argparse
import json
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

OWN_FIELDS = ("expect", "expect_log", "expect_not_log", "note")


class Difference(Exception):
    pass


def compare(expected, got, where):
    """Raises Difference where `got` lacks or differs from what `expected` names."""
    if isinstance(expected, dict) and isinstance(got, dict):
        for name, value in expected.items():
            if name not in got:
                raise Difference(f"{where}.{name}: expected {value!r}, got no such field")
            compare(value, got[name], f"{where}.{name}")
    elif isinstance(expected, list) and isinstance(got, list):
        if len(expected) != len(got):
            raise Difference(f"{where}: expected {expected!r}, got {got!r}")
        for place, (left, right) in enumerate(zip(expected, got)):
            compare(left, right, f"{where}[{place}]")
    elif expected != got:
        raise Difference(f"{where}: expected {expected!r}, got {got!r}")


def matches(entry, wanted):
    return all(entry.get(name) == value for name, value in wanted.items())


def check_log(command, entries):
    rest = iter(entries)
    for wanted in command.get("expect_log", []):
        if not any(matches(entry, wanted) for entry in rest):
            raise Difference(f"log: {wanted!r} did not come, in its place, among {entries!r}")
    for unwanted in command.get("expect_not_log", []):
        for entry in entries:
            if matches(entry, unwanted):
                raise Difference(f"log: {unwanted!r} came, as {entry!r}")


def check_reply(command, reply):
    compare(command.get("expect", {}), reply, "reply")
    if not command.get("expect") and not reply.get("ok"):
        raise Difference(f"reply: not ok: {reply.get('error')}")
    if "expect_log" in command or "expect_not_log" in command:
        check_log(command, reply.get("entries", []))


def copy_pack(pack, folder, settings):
    shutil.copytree(pack, folder, dirs_exist_ok=True)
    marker = folder / "Yes1"
    if settings.get("firstRun"):
        marker.unlink(missing_ok=True)
    else:
        marker.touch()
    for name in settings.get("without", []):
        (folder / name).unlink()


def run(driver, pack, path):
    lines = [
        (number, json.loads(text))
        for number, text in enumerate(path.read_text(encoding="utf-8").splitlines(), start=1)
        if text.strip()
    ]
    settings = lines.pop(0)[1] if lines and "do" not in lines[0][1] else {}
    with tempfile.TemporaryDirectory(prefix="talvora-scenario-") as folder:
        copy_pack(pack, Path(folder), settings)
        call = [driver, "--dir", folder, *settings.get("options", [])]
        process = subprocess.Popen(call, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        try:
            for number, command in lines:
                sent = {key: value for key, value in command.items() if key not in OWN_FIELDS}
                process.stdin.write(json.dumps(sent) + "\n")
                process.stdin.flush()
                answer = process.stdout.readline()
                if not answer:
                    raise Difference(f"{path}:{number}: the driver ended")
                try:
                    check_reply(command, json.loads(answer))
                except Difference as difference:
                    raise Difference(f"{path}:{number}: {difference}") from None
            process.stdin.close()
            if process.wait(timeout=30) != 0:
                raise Difference(f"{path}: the driver ended with code {process.returncode}")
        finally:
            process.kill()
            process.wait()
    return len(lines)


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("--driver", required=True)
    parser.add_argument("--pack", required=True, type=Path)
    parser.add_argument("scenarios", nargs="+", type=Path)
    arguments = parser.parse_args()
    failed = 0
    for path in arguments.scenarios:
        try:
            print(f"{path.name}: {run(arguments.driver, arguments.pack, path)} commands")
        except Difference as difference:
            failed += 1
            print(difference)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
