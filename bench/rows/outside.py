"""Rows of the real window: from the event that the X server gets to the last change that follows."""
from __future__ import annotations

import os
import shutil
import sys
import time
from pathlib import Path

from .display import Display, Failed, Onlooker, end, silent
from .programs import LeastWindow, Program, Tutor, copy_pack, installed_peers, prepare
from .table import Figure, Row

SLOW_PART = 20  # of a core, in hundredths
REST_S, WATCH_S = 24, 5

#       sample        name                         unit  goal
SHOWN = [
    ("start", "start to finished window", "ms", "1.6 x limit"),
    ("first click", "first click of a session", "ms", "10"),
    ("click", "click to entry", "ms", "2.2 (4)"),
    ("key", "key to list", "ms", "1.5 (2.5)"),
    ("list", "list first shown", "ms", "8"),
    ("lesson", "lesson page by Enter", "ms", "10"),
    ("text", "reading text by Enter, ahead of the curtain", "ms", "10"),
    ("menu RSS", "memory, menu", "MB resident", "40"),
    ("menu PSS", "memory, menu, its share", "MB", ""),
    ("list RSS", "memory, list and entry", "MB resident", "55"),
    ("list PSS", "memory, list and entry, its share", "MB", ""),
]
WITH_SOUND = ("click", "first click", "list RSS", "list PSS")


class Bin:
    """Where the programs stand that a run needs."""

    def __init__(self, build: Path) -> None:
        self.tutor = build / "src/desktop/talvora"
        self.onlooker = build / "bench/talvora-onlooker"
        self.least = build / "bench/talvora-least-window"
        self.pack = build / "pack/talvora-pack"


class Collected:
    """Figures by program and sample."""

    def __init__(self) -> None:
        self._figures: dict[tuple[str, str], Figure] = {}

    def add(self, program: str, samples: dict[str, list[float]]) -> None:
        for name, values in samples.items():
            figure = self._figures.setdefault((program, name), Figure())
            for value in values:
                figure.add(value)

    def run(self, program: Program, onlooker: Onlooker, count: int) -> None:
        """Takes a program's turn; one that went wrong, as on a machine that stalls, is told."""
        try:
            self.add(program.name, program.run(onlooker, count))
        except Failed as failure:
            print(f"   a turn left out: {failure}", file=sys.stderr)
            onlooker.ask("end")

    def of(self, program: str, name: str) -> Figure | None:
        return self._figures.get((program, name))


def fastest(collected: Collected, peers: list[Program], sample: str) -> tuple[str, Figure | None]:
    """The peer that is best at something; none when no peer does it."""
    measured = [(peer.name, figure) for peer in peers if (figure := collected.of(peer.name, sample))]
    return min(measured, key=lambda each: each[1].median, default=("", None))


def row_of(collected: Collected, peers: list[Program], program: str, shown: tuple) -> Row | None:
    sample, name, unit, goal = shown
    ours = collected.of(program, sample)
    if ours is None:
        return None
    peer_name, peer = fastest(collected, peers, sample)
    limit = collected.of("least window", sample)
    name = name if program == "tutor" else f"{name}, sound on"
    return Row(name, unit, ours, goal, peer_name, peer, "least window", limit)


def window_rows(binary: Bin, pack: Path, work: Path, home: Path, rounds: int, count: int) -> list[Row]:
    """Every program in turn, and that `rounds` times; of what can be repeated, `count` each time."""
    with Display(work) as display, Onlooker(binary.onlooker, display) as onlooker:
        tutor = Tutor("tutor", binary.tutor, copy_pack(pack, work / "quiet"))
        tutor.find_words(onlooker, work / "trace")
        loud = Tutor("tutor, sound on", binary.tutor, copy_pack(pack, work / "loud"), True)
        loud.words = tutor.words
        peers = installed_peers(home)
        for peer in peers:
            prepare(peer, onlooker)
        collected = Collected()
        for _ in range(rounds):
            for program in [LeastWindow("least window", str(binary.least)), tutor, loud, *peers]:
                collected.run(program, onlooker, count)
    rows = [row_of(collected, peers, "tutor", shown) for shown in SHOWN]
    rows += [row_of(collected, peers, loud.name, shown) for shown in SHOWN if shown[0] in WITH_SOUND]
    return [row for row in rows if row is not None]


def large_rows(binary: Bin, pack: Path, work: Path, rounds: int, count: int) -> list[Row]:
    """The same window on a screen of 3840x2160."""
    with Display(work, 3840, 2160) as display, Onlooker(binary.onlooker, display) as onlooker:
        tutor = Tutor("tutor", binary.tutor, copy_pack(pack, work / "large"))
        tutor.find_words(onlooker, work / "large-trace")
        least = LeastWindow("least window", str(binary.least))
        collected = Collected()
        for _ in range(rounds):
            for program in (least, tutor):
                collected.run(program, onlooker, count)
    shown = [("click", "3840x2160: click to entry", "ms", "16"),
             ("text", "3840x2160: text opened", "ms", "100")]
    return [row for each in shown if (row := row_of(collected, [], "tutor", each))]


def slow_rows(binary: Bin, pack: Path, work: Path, count: int) -> list[Row]:
    """A click on a slow machine: a fifth of one core is all that the program gets."""
    if not shutil.which("cpulimit") or not shutil.which("taskset"):
        print("left out, since cpulimit is missing: a slow machine")
        return []
    figures = {}
    with Display(work) as display, Onlooker(binary.onlooker, display) as onlooker:
        tutor = Tutor("tutor", binary.tutor, copy_pack(pack, work / "slow"))
        tutor.find_words(onlooker, work / "slow-trace")
        for program in (LeastWindow("least window", str(binary.least)), tutor):
            _, process = program.start(onlooker)
            if program is tutor:
                tutor.open_text(onlooker)
                tutor.clicks(onlooker, 3)
            os.sched_setaffinity(process, {min(os.sched_getaffinity(0))})
            brake = silent(["cpulimit", "-l", str(SLOW_PART), "-p", str(process)], display.env)
            time.sleep(1)
            try:
                clicks = (tutor.clicks(onlooker, count) if program is tutor
                          else program.deeds(onlooker, process, count)["click"])
            finally:
                end(brake)
            figures[program.name] = Figure(clicks)
            onlooker.ask("end")
    late = Figure([figures["tutor"].part(0.99)])
    limit = Figure([figures["least window"].part(0.99)])
    return [Row("slow machine: click to entry, 99th percentile", "ms", late, "60",
                limit_name="least window", limit=limit)]


def seconds_of(process: int) -> float:
    """Seconds of processor time that a process has had."""
    fields = Path(f"/proc/{process}/stat").read_text().rsplit(")")[1].split()
    return sum(map(int, fields[11:13])) / os.sysconf("SC_CLK_TCK")


def wakes_of(process: int) -> dict[str, int]:
    """How often each thread of a process was woken."""
    sign = "\nvoluntary_ctxt_switches:"
    return {each.parent.name: int(each.read_text().split(sign)[1].split()[0])
            for each in Path(f"/proc/{process}/task").glob("*/status")}


def rest_rows(binary: Bin, pack: Path, work: Path) -> list[Row]:
    """The menu when nothing has been touched for a while."""
    with Display(work) as display, Onlooker(binary.onlooker, display) as onlooker:
        tutor = Tutor("tutor", binary.tutor, copy_pack(pack, work / "rest"))
        _, process = tutor.start(onlooker)
        time.sleep(REST_S)
        seconds, wakes = seconds_of(process), wakes_of(process)
        time.sleep(WATCH_S)
        worked = seconds_of(process) - seconds
        woken = sum(count - wakes.get(thread, 0) for thread, count in wakes_of(process).items())
        onlooker.ask("end")
    return [
        Row("menu at rest", "% of a core", Figure([100 * worked / WATCH_S]), "0"),
        Row("menu at rest", "wake-ups a second", Figure([woken / WATCH_S]), "0"),
    ]

