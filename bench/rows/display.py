"""A virtual display with a window manager, a sound server that plays into nothing, and the onlooker
that measures what happens on that display."""
from __future__ import annotations

import os
import shutil
import subprocess
import time
from pathlib import Path


class Failed(Exception):
    """A measurement that cannot be made; its text says why."""


def end(process: subprocess.Popen | None) -> None:
    if process is not None and process.poll() is None:
        process.terminate()
        try:
            process.wait(timeout=10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def silent(command: list[str], env: dict[str, str], **more) -> subprocess.Popen:
    return subprocess.Popen(
        command, env=env, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL, **more)


class Display:
    """Lives as long as its `with` block; `env` is what programs on it need to be told."""

    def __init__(self, work: Path, width: int = 1366, height: int = 768) -> None:
        self.width, self.height = width, height
        self.env = dict(os.environ)
        runtime = work / "runtime"
        runtime.mkdir(mode=0o700, exist_ok=True)
        home = work / "home"
        home.mkdir(exist_ok=True)
        # Nothing of the person who runs this is read, heard or written.
        self.env.update(
            HOME=str(home), XDG_RUNTIME_DIR=str(runtime), XDG_CONFIG_HOME=str(home / ".config"),
            XDG_CACHE_HOME=str(home / ".cache"), XDG_DATA_HOME=str(home / ".local"),
            PULSE_SERVER=f"unix:{work}/pulse", QT_QPA_PLATFORM="xcb")
        self.env.pop("DBUS_SESSION_BUS_ADDRESS", None)
        self._work = work
        self._running: list[subprocess.Popen] = []

    def __enter__(self) -> Display:
        reading, writing = os.pipe()
        server = silent(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{self.width}x{self.height}x24",
             "-nolisten", "tcp"], self.env, pass_fds=[writing])
        self._running.append(server)
        os.close(writing)
        with os.fdopen(reading) as told:
            number = told.readline().strip()
        if not number:
            raise Failed("Xvfb does not start")
        self.env["DISPLAY"] = f":{number}"
        if shutil.which("openbox"):
            self._running.append(silent(["openbox"], self.env))
        if shutil.which("pulseaudio"):
            self._running.append(silent(
                ["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
                 "--disable-shm=1", "-L", "module-null-sink sink_name=null rate=16000 channels=1",
                 "-L", f"module-native-protocol-unix auth-anonymous=1 socket={self._work}/pulse"],
                self.env))
        time.sleep(1)
        return self

    def __exit__(self, *_) -> None:
        for process in reversed(self._running):
            end(process)


class Onlooker:
    """The program `talvora-onlooker` on a display: one command, one answer."""

    def __init__(self, program: Path, display: Display) -> None:
        self._process = subprocess.Popen(
            [str(program)], env=display.env, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL, text=True)
        self.display = display

    def __enter__(self) -> Onlooker:
        return self

    def __exit__(self, *_) -> None:
        self._process.stdin.close()
        self._process.wait(timeout=30)

    def ask(self, command: str) -> str:
        self._process.stdin.write(command + "\n")
        self._process.stdin.flush()
        answer = self._process.stdout.readline().strip()
        if not answer or answer.startswith("error"):
            raise Failed(f"{command}: {answer or 'the onlooker has ended'}")
        return answer

    def time(self, command: str) -> float:
        """Milliseconds from a deed to the last change that follows."""
        answer = self.ask(command)
        if answer == "none":
            raise Failed(f"{command}: nothing changed")
        return float(answer.split()[1])

    def rest(self, ms: int) -> None:
        self.ask(f"rest {ms}")

    def press(self, *keys: str) -> None:
        for key in keys:
            self.ask(f"press {key}")
            self.rest(60)
