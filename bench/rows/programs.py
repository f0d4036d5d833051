"""The programs that are measured from outside: the tutor, the least window, and the peers."""
from __future__ import annotations

import re
import shutil
import struct
from collections.abc import Callable
from pathlib import Path

from .display import Display, Failed, Onlooker

LEARNER_FILES = {"data.c", "data.Kcu", "Yes1"}
WORDS = ["house", "river", "mother", "winter", "garden", "silver", "paper", "window"]
TEXT_LINE = 4  # of the list of titles: the first three are headings or short
LESSONS_BUTTON = 3

Samples = dict[str, list[float]]


def copy_pack(pack: Path, folder: Path) -> Path:
    """A pack whose first run is over, by links and without the learner's files."""
    folder.mkdir(parents=True)
    for file in pack.iterdir():
        if file.name not in LEARNER_FILES:
            (folder / file.name).symlink_to(file.resolve())
    (folder / "Yes1").touch()
    return folder


def memory(process: int) -> tuple[float, float]:
    """What a process holds resident and what of that is its share, in MB."""
    text = Path(f"/proc/{process}/smaps_rollup").read_text()
    found = [re.search(rf"^{name}:\s+(\d+)", text, re.M) for name in ("Rss", "Pss")]
    return tuple(int(each.group(1)) / 1024 for each in found)  # type: ignore[union-attr]


class Program:
    """A program, how it is started, and what is done with it once it stands."""

    def __init__(self, name: str, command: str, env: dict[str, str] | None = None) -> None:
        self.name, self.command, self.env = name, command, env or {}

    def start(self, onlooker: Onlooker) -> tuple[float, int]:
        """Milliseconds to the finished window, and the process."""
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"):
            onlooker.ask(f"env {name}={self.env.get(name, onlooker.display.env[name])}")
        answer = onlooker.ask(f"start {self.command}").split()
        if len(answer) < 3:
            raise Failed(f"{self.name} shows no window")
        return float(answer[1]), int(answer[2])

    def deeds(self, onlooker: Onlooker, process: int, count: int) -> Samples:
        """Each figure's samples, `count` of what can be done again and again."""
        return {}

    def run(self, onlooker: Onlooker, count: int) -> Samples:
        started, process = self.start(onlooker)
        resident, share = memory(process)
        samples = {"start": [started], "menu RSS": [resident], "menu PSS": [share]}
        try:
            samples |= self.deeds(onlooker, process, count)
        except Failed as failure:
            raise Failed(f"{self.name}: {failure}") from failure
        onlooker.ask("end")
        return samples


class LeastWindow(Program):
    def deeds(self, onlooker: Onlooker, process: int, count: int) -> Samples:
        onlooker.rest(300)
        samples: Samples = {"text": [], "click": [], "key": []}
        for _ in range(3):
            samples["text"].append(onlooker.time("key Return"))
            onlooker.press("Escape")
        samples["lesson"] = samples["text"]
        middle = f"{onlooker.display.width // 2} {onlooker.display.height // 2}"
        for _ in range(count):
            samples["click"].append(onlooker.time(f"click {middle}"))
            onlooker.press("Escape")
        samples["first click"] = samples["click"][:1]
        samples["list"] = [onlooker.time("key b")]
        for _ in range(count):
            samples["key"].append(onlooker.time("key Down"))
        return samples


class Tutor(Program):
    """`words` are the places of words in the text that is opened, in pixels of the display."""

    def __init__(self, name: str, program: Path, pack: Path, sound: bool = False) -> None:
        super().__init__(name, f"{program} --dir {pack}")
        self._settings = pack / "data.Kcu"
        self._sound = sound
        self.words: list[str] = []

    def start(self, onlooker: Onlooker) -> tuple[float, int]:
        # Every start is alike: the program keeps where its lists stood.
        self._settings.write_bytes(struct.pack("<4i", 0, int(self._sound), 0, 5))
        return super().start(onlooker)

    def open_text(self, onlooker: Onlooker) -> float:
        """From the menu, to the text; milliseconds ahead of the curtain."""
        onlooker.press("Return")
        onlooker.rest(700)
        onlooker.press("Home", *["Down"] * (TEXT_LINE - 1))
        return self.open_line(onlooker)

    def open_line(self, onlooker: Onlooker) -> float:
        onlooker.rest(300)
        onlooker.ask("gap 250")  # the curtain hangs still for longer
        taken = onlooker.time("key Return")
        onlooker.ask("gap 100")
        onlooker.rest(2500)
        return taken

    def find_words(self, onlooker: Onlooker, trace: Path) -> None:
        """Learns where the words stand, from a run that is not measured."""
        plain, self.command = self.command, f"{self.command} --trace {trace}"
        self.start(onlooker)
        self.command = plain
        self.open_text(onlooker)
        onlooker.ask("end")
        lines = [line for line in trace.read_text().splitlines() if line.startswith("words R2 ")]
        if not lines:
            raise Failed("the tutor opened no text")
        scale = onlooker.display.height / 768
        for place in lines[-1].split()[2:]:
            x, y, word = place.split(",", 2)
            if word.isalpha() and word.islower() and len(word) >= 3:
                self.words.append(f"{round(int(x) * scale)} {round(int(y) * scale)}")
        if not self.words:
            raise Failed("the text has no words")

    def clicks(self, onlooker: Onlooker, count: int) -> list[float]:
        taken = []
        for number in range(count):
            taken.append(onlooker.time(f"click {self.words[number % len(self.words)]}"))
            onlooker.rest(100)
            onlooker.press("Escape")
            onlooker.rest(100)
        return taken

    def deeds(self, onlooker: Onlooker, process: int, count: int) -> Samples:
        samples: Samples = {"text": [self.open_text(onlooker)]}
        samples["first click"] = self.clicks(onlooker, 1)
        samples["click"] = self.clicks(onlooker, count)
        samples["list"] = [onlooker.time("key b")]
        samples["key"] = [onlooker.time("key Down") for _ in range(count)]
        onlooker.press("Return")
        onlooker.rest(1500)
        resident, share = memory(process)
        samples |= {"list RSS": [resident], "list PSS": [share]}
        samples["lesson"] = self.open_lessons(onlooker)
        return samples

    def open_lessons(self, onlooker: Onlooker) -> list[float]:
        # From the entry to the text, the titles, the menu.
        for _ in range(3):
            onlooker.press("Escape")
            onlooker.rest(500)
        for _ in range(LESSONS_BUTTON - 1):
            onlooker.press("Down")
            onlooker.rest(500)
        onlooker.press("Return")
        onlooker.rest(1200)
        taken = []
        for _ in range(3):
            onlooker.press("Down", "Down")
            taken.append(self.open_line(onlooker))
            onlooker.press("Escape")
            onlooker.rest(500)
        return taken


class Peer(Program):
    """A dictionary for the desktop, on a StarDict dictionary of the pack's words."""

    def __init__(self, name: str, home: Path, deeds: Callable[[Onlooker, int], Samples]) -> None:
        env = {"HOME": str(home), "XDG_CONFIG_HOME": str(home / ".config"),
               "XDG_CACHE_HOME": str(home / ".cache")}
        super().__init__(name, name.lower(), env)
        self._deeds = deeds

    def deeds(self, onlooker: Onlooker, process: int, count: int) -> Samples:
        return self._deeds(onlooker, count)


def spell(onlooker: Onlooker, word: str) -> list[float]:
    return [onlooker.time(f"key {letter}") for letter in word]


def use_goldendict(onlooker: Onlooker, count: int) -> Samples:
    samples: Samples = {"click": [], "key": []}
    for number in range(count):
        samples["key"] += spell(onlooker, WORDS[number % len(WORDS)])[1:]
        onlooker.rest(300)
        samples["click"].append(onlooker.time("key Return"))
        onlooker.rest(300)
        onlooker.press("Escape")
    return samples


def use_qstardict(onlooker: Onlooker, count: int) -> Samples:
    """Its words stand in a list at the left, where the window manager puts the window."""
    spell(onlooker, WORDS[0])
    onlooker.rest(1500)
    left = onlooker.display.width // 2 - 283
    top = onlooker.display.height // 2 - 185
    rows = [f"click {left} {top + 18 * (1 + number % 6)}" for number in range(count)]
    return {"click": [onlooker.time(row) for row in rows]}


def installed_peers(home: Path) -> list[Peer]:
    (home / ".goldendict").mkdir(parents=True, exist_ok=True)
    (home / ".goldendict/config").write_text(
        f'<config><paths><path recursive="1">{home}/.stardict/dic</path></paths><preferences>'
        "<enableTrayIcon>0</enableTrayIcon><checkForNewReleases>0</checkForNewReleases>"
        "<fullTextSearch><enabled>0</enabled></fullTextSearch></preferences></config>\n")
    peers = [Peer("GoldenDict", home, use_goldendict), Peer("QStarDict", home, use_qstardict)]
    return [peer for peer in peers if shutil.which(peer.command)]


def prepare(peer: Peer, onlooker: Onlooker) -> None:
    """The first start builds an index, which is not measured."""
    peer.start(onlooker)
    onlooker.rest(20_000)
    onlooker.ask("end")
