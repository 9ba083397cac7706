"""The two pilots: this machine's own, and the one for Windows, run by Wine without a display.

Each works on folders of this machine; the second sees them below its disk Z:.
"""

import fcntl
import json
import os
import subprocess
from pathlib import Path

HERE = Path(os.environ["PILOTE"])
WINDOWS_PROGRAMS = Path(os.environ["WINDOWS_PROGRAMS"])
WINE = "/usr/lib/wine/wine64"
WINE_SERVER = "/usr/lib/wine/wineserver64"
WINE_FOLDER = Path(os.environ["WINE_FOLDER"])
PATIENCE = 240  # seconds, for a run that hangs


def environment(wine_folder=WINE_FOLDER):
    """What Wine is told: its folder, no display, and to ask for no parts that it would fetch."""
    kept = {name: value for name, value in os.environ.items()
            if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
    return {**kept, "WINEPREFIX": str(wine_folder), "WINEDEBUG": "-all",
            "WINEDLLOVERRIDES": "mscoree,mshtml=", "LC_ALL": "C.UTF-8"}


def make_windows_folder():
    """The folder that Wine takes for a Windows machine; made once, whoever comes first."""
    WINE_FOLDER.parent.mkdir(parents=True, exist_ok=True)
    with open(str(WINE_FOLDER) + ".lock", "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        # No output is kept: the server that stays behind would hold it open.
        quiet = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL,
                 "stderr": subprocess.DEVNULL, "env": environment(), "timeout": PATIENCE}
        if not (WINE_FOLDER / "system.reg").exists():
            subprocess.run([WINE, "wineboot", "--init"], check=True, **quiet)
            # The server writes the registry when it ends.
            subprocess.run([WINE_SERVER, "-w"], check=True, **quiet)
        # Between two programs the machine stays up; it does not start anew for each. One that
        # is up already refuses, which is as well.
        subprocess.run([WINE_SERVER, "-p30"], check=False, **quiet)


def on_windows(path):
    """A path of this machine as Wine's Windows names it."""
    return "Z:" + str(path).replace("/", "\\")


def start(command, **options):
    """Starts a program with its input and output in the hands of the test."""
    return subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, **{"env": environment(), **options})


class Pilot:
    """One of the two, as a test runs it."""

    def __init__(self, name, command, path_of):
        self.name = name
        self.command = command
        self.path_of = path_of

    def start(self, folder, **options):
        return start([*self.command, self.path_of(folder)], **options)

    def run(self, folder, requests, **options):
        """Runs the requests in `folder`; the exit status and the bytes of the answers."""
        with self.start(folder, **options) as process:
            lines = "".join(json.dumps(request) + "\n" for request in requests)
            try:
                answers, _ = process.communicate(lines.encode(), PATIENCE)
            except subprocess.TimeoutExpired:
                process.kill()
                raise
            return process.returncode, answers

    def answers(self, folder, requests, **options):
        return [json.loads(line) for line in self.run(folder, requests, **options)[1].splitlines()]


class Conversation:
    """A pilot asked line by line."""

    def __init__(self, pilot, folder, **options):
        self.process = pilot.start(folder, **options)

    def ask(self, request):
        self.process.stdin.write(json.dumps(request).encode() + b"\n")
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.stdout.close()
        self.process.wait(PATIENCE)


HERE_PILOT = Pilot("here", [HERE], str)
WINDOWS_PILOT = Pilot("windows", [WINE, WINDOWS_PROGRAMS / "pilote.exe"], on_windows)


def files_below(folder):
    """Every file and folder: its name from there, and its bytes."""
    return {
        str(path.relative_to(folder)): None if path.is_dir() else path.read_bytes()
        for path in sorted(folder.rglob("*"))
    }
