"""A desk of its own for the program: a virtual screen, a window manager, a folder for the data.

Whatever is started here is ended here. Nothing waits for a length of time: each wait is for
something to be seen, with a patience that only a broken program exhausts.
"""

import contextlib
import ctypes
import os
import re
import shutil
import signal
import subprocess
import tempfile
import time

PATIENCE = 60  # seconds
MAIN = "N.A.V.A.R.U.N"
# The small windows by their titles, and the letters of the menus that open them.
SMALL_WINDOWS = {
    "Calendrier": ("alt+o", "a"),
    "Périodes": ("alt+a", "a"),
    "  PALAIS DU DESTIN": ("alt+a", "p"),
    "Flêche": ("alt+o", "d"),
    "Option Impression": ("alt+i", "a"),
    "À propos de N.A.V.A.R.U.N": ("alt+m", "p"),
}
# Where Debian keeps the library that tells a program what time it is.
FAKETIME = f"/usr/lib/{os.uname().machine}-linux-gnu/faketime/libfaketime.so.1"
_PR_SET_PDEATHSIG = 1
_prctl = ctypes.CDLL(None).prctl


def end_with_parent():
    """Has the calling process ended when its parent ends, however that may come: what a test has
    started outlives it in no case."""
    _prctl(_PR_SET_PDEATHSIG, signal.SIGTERM, 0, 0, 0)


def wait_for(what, told, patience=PATIENCE):
    """Calls `what` until it answers something, and returns that. Fails telling `told`, which may
    be a function, asked once it has failed."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        found = what()
        if found:
            return found
        time.sleep(0.05)
    raise AssertionError(f"not seen: {told() if callable(told) else told}")


def _end(process):
    if process.poll() is None:
        process.send_signal(signal.SIGTERM)
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


class Desk:
    """A virtual screen with a window manager; a context manager."""

    SCREEN_OPTIONS = []

    def __init__(self, size="1280x1024"):
        self.size = size
        self._open = contextlib.ExitStack()

    def __enter__(self):
        try:
            self._set_up()
        except BaseException:
            self._open.close()
            raise
        return self

    def _set_up(self):
        self.folder = self._open.enter_context(tempfile.TemporaryDirectory(prefix="navarun-"))
        reader, writer = os.pipe()
        # The picture of the screen lies in a file, where it is read without asking anybody.
        self._start(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", self.size + "x24", "-nolisten", "tcp",
             "-noreset", "-fbdir", self.folder, *self.SCREEN_OPTIONS],
            dict(os.environ),
            pass_fds=[writer],
        )
        os.close(writer)
        number = b""
        while not number.endswith(b"\n"):
            byte = os.read(reader, 1)
            assert byte, "the virtual screen did not start"
            number += byte
        os.close(reader)
        self.environment = dict(self._surroundings(), DISPLAY=":" + number.decode().strip())
        # The first key typed by a program gives the screen another keyboard. A window manager then
        # lets go of its keys and takes them anew, and what is typed meanwhile is not its own: it
        # meets that keyboard from its start.
        self.press("shift")
        self._start(["openbox"], self.environment)
        wait_for(
            lambda: b"window id" in self.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"]),
            "the window manager",
        )

    def _surroundings(self):
        """What programs on this desk find in their environment, but for the screen."""
        found = dict(
            os.environ,
            XDG_RUNTIME_DIR=self.folder,
            HOME=self.folder,
            QT_QPA_PLATFORM="xcb",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
        )
        found.pop("WAYLAND_DISPLAY", None)
        return found

    def start_bus(self):
        """Starts a message bus of this desk's own. Screen readers' bus, which it starts in turn,
        then has its socket in the desk's folder too, so that desks do not disturb each other."""
        reader, writer = os.pipe()
        self._start(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--print-address={writer}"],
            self.environment,
            pass_fds=[writer],
        )
        os.close(writer)
        with os.fdopen(reader, encoding="ascii") as told:
            address = told.readline().strip()
        assert address, "the message bus did not start"
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address

    def __exit__(self, *error):
        self._open.close()

    def _start(self, command, environment, **more):
        quiet = {name: subprocess.DEVNULL for name in ("stdin", "stdout", "stderr")}
        process = subprocess.Popen(
            command, env=environment, preexec_fn=end_with_parent, **{**quiet, **more}
        )
        self._open.callback(_end, process)
        return process

    def run(self, command):
        """Runs a command to its end on this screen; its output."""
        return subprocess.run(
            command, env=self.environment, capture_output=True, timeout=PATIENCE
        ).stdout

    def start(self, program, place=None, **environment):
        """Starts the program in the folder `place`, else in one of its own; the process."""
        place = place or tempfile.mkdtemp(dir=self.folder)
        copy = shutil.copy(program, os.path.join(place, "navarun"))
        return self._start([copy], dict(self.environment, **environment))

    def start_other(self, command):
        """Starts another program on this screen; the process."""
        return self._start(command, self.environment)

    def end(self, process):
        _end(process)

    def type(self, text):
        self.run(["xdotool", "type", "--delay", "20", text])

    def press(self, *keys):
        self.run(["xdotool", "key", "--delay", "20", *keys])

    def windows(self, title):
        """The visible windows of exactly that title, by their numbers."""
        pattern = "^" + title.replace(".", r"\.") + "$"
        found = self.run(["xdotool", "search", "--onlyvisible", "--name", pattern])
        return found.decode().split()

    def window(self, title):
        """The visible window of exactly that title, once it is there."""
        return wait_for(lambda: self.windows(title), f"the window « {title} »")[0]

    def activate(self, window):
        """Has `window` take what is typed."""

        def active():
            self.run(["xdotool", "windowactivate", window])
            return self.run(["xdotool", "getactivewindow"]).decode().strip() == window

        wait_for(active, f"{window} to become the active window")

    def geometry(self, window):
        """Left, top, width and height of a window without its frame, in pixels of the screen;
        None for a window that is gone."""
        told = self.run(["xwininfo", "-id", window]).decode()
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        found = [re.search(name + r": +(-?\d+)", told) for name in names]
        return tuple(int(number[1]) for number in found) if all(found) else None

    def picture(self, file, window="root"):
        """Saves what a window shows."""
        self.run(["import", "-window", window, file])
