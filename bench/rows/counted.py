"""Rows of the benchmarks that stand in programs of their own, and of the compiler."""
from __future__ import annotations

import json
import os
import shutil
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

from .display import Failed
from .table import Figure, Row

REPETITIONS = 5
SCALE = {"ns": 1e-3, "us": 1, "ms": 1e3, "s": 1e6}  # to microseconds


@dataclass(frozen=True)
class Counted:
    """A figure that a benchmark program gives, with the peer and the limit in the same program."""

    program: str
    bench: str
    name: str
    unit: str
    goal: str = ""
    peer: str = ""
    peer_name: str = ""
    limit: str = ""
    limit_name: str = ""


COUNTED = [
    Counted("Dictionary", "wordFilesReady", "word files ready", "us", "1.3 x limit",
            "oneStringAWord", "a string a word", "mapAndScanOnce", "map and scan"),
    Counted("Dictionary", "lookUpExistingWord", "look-up, hit", "us", "1"),
    Counted("Dictionary", "lookUpWithEveryShortening", "look-up, every shortening", "us", "5"),
    Counted("Surface", "writeColouredCharacters", "3,000 coloured characters", "us", "2000",
            limit="writeColouredCharactersPeer", limit_name="string and spans"),
    Counted("Surface", "writeInsideTheLongList", "a character inside 385,082 lines", "us", "",
            "writeInsideTheLongListPeer", "std::string"),
    Counted("Surface", "setTheLongList", "385,082 lines set", "us", "5000",
            limit="setTheLongListPeer", limit_name="copy and scan"),
    Counted("Rows", "clickOnRow/3000", "click on row 3,000 of your vocabulary", "us", "2000"),
    Counted("Rows", "clickOnNewList/3000", "the same when it was written anew", "us", "2000"),
    Counted("Pages", "onSurface/lesson/manual_time", "lesson, without a window", "us", "10000"),
    Counted("PaintedPages", "inWindow/lesson/manual_time", "lesson, painted", "us", "10000",
            limit="inWindow/typedLetter/manual_time", limit_name="a typed letter"),
    Counted("PaintedPages", "inWindow/nextItem/manual_time", "next item, painted", "us", "10000",
            limit="inWindow/typedLetter/manual_time", limit_name="a typed letter"),
    Counted("PaintedPages", "inWindow/judgedItem/manual_time", "judged item, painted", "us",
            "10000", limit="inWindow/typedLetter/manual_time", limit_name="a typed letter"),
    Counted("Sound", "clickToFirstSample/iterations:100/manual_time",
            "click to the first sample of the word", "us", "60000"),
    Counted("Sound", "stopToSilence/iterations:100/manual_time", "stop to silence", "us", "20000"),
]


def run_program(program: Path, arguments: list[str], work: Path) -> dict[str, Figure]:
    """The figures of a benchmark program in microseconds, its benchmarks in mixed order."""
    out = work / f"{program.name}.json"
    command = [
        str(program), *arguments, f"--benchmark_out={out}", "--benchmark_out_format=json",
        f"--benchmark_repetitions={REPETITIONS}", "--benchmark_min_time=0.3",
        "--benchmark_enable_random_interleaving=true"]
    env = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": str(work)}
    done = subprocess.run(command, env=env, stdin=subprocess.DEVNULL, capture_output=True, text=True)
    if done.returncode != 0:
        raise Failed(f"{program.name}: {done.stderr.strip()}")
    figures: dict[str, Figure] = {}
    for each in json.loads(out.read_text())["benchmarks"]:
        if each.get("error_occurred"):
            raise Failed(f"{each['name']}: {each['error_message']}")
        if each["run_type"] == "iteration":
            name = each["run_name"].replace(f"/repeats:{REPETITIONS}", "")
            figures.setdefault(name, Figure()).add(each["real_time"] * SCALE[each["time_unit"]])
    return figures


def counted_rows(build: Path, pack: Path, work: Path) -> list[Row]:
    rows = []
    for program in dict.fromkeys(each.program for each in COUNTED):
        arguments = [str(pack)] if program == "Sound" else []
        figures = run_program(build / f"bench/talvora-bench-{program}", arguments, work)
        for each in (each for each in COUNTED if each.program == program):
            if each.bench not in figures:
                raise Failed(f"{program} has no benchmark {each.bench}: {sorted(figures)}")
            rows.append(Row(
                each.name, each.unit, figures[each.bench], each.goal, each.peer_name,
                figures.get(each.peer), each.limit_name, figures.get(each.limit)))
    return rows


# -- The look-up of another program, a call of it with many words.


def seconds_of(command: list[str], **more) -> float:
    begin = time.monotonic()
    done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, **more)
    if done.returncode != 0:
        raise Failed(f"{command[0]}: {done.stderr.decode(errors='replace').strip()}")
    return time.monotonic() - begin


def time_sdcv(home: Path, rounds: int) -> Figure | None:
    """Microseconds that sdcv takes for one more word; none when it is not installed."""
    if not shutil.which("sdcv"):
        return None
    words = (home / "words").read_text().split()
    call = ["sdcv", "-n", "-e", "--utf8-output", "--data-dir", str(home / ".stardict/dic")]
    env = {**os.environ, "HOME": str(home)}
    seconds_of([*call, words[0]], env=env)  # writes its index
    figure = Figure()
    for _ in range(rounds):
        many = seconds_of([*call, *words], env=env)
        one = seconds_of([*call, words[0]], env=env)
        figure.add(1e6 * (many - one) / (len(words) - 1))
    return figure


# -- The compiler.


def compiler_rows(compiler: Path, content: Path, work: Path) -> list[Row]:
    """The whole course from nothing, and once more when one text was corrected."""
    copy = work / "content"
    shutil.copytree(content, copy)
    out = work / "course"
    call = [str(compiler), "build", str(copy), str(out)]
    whole = Figure([seconds_of(call)])
    text = sorted((copy / "reading").glob("*.txt"))[0]
    corrected = Figure()
    for _ in range(3):
        text.write_bytes(text.read_bytes() + b"\n")
        corrected.add(seconds_of(call))
    return [
        Row("course compiled from nothing", "s", whole, "60"),
        Row("course compiled after one corrected text", "s", corrected, "2",
            limit_name="from nothing", limit=whole),
    ]
