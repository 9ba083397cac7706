"""A practitioner's desk for one test: a display of its own with a window manager, a home folder
whose path has blanks and accents, and the means to look at windows, type and click."""

import ctypes
import os
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

NOBODY = 65534
PATIENCE = 60  # seconds until something that ought to happen counts as failed
PR_SET_CHILD_SUBREAPER = 36


def wait_until(happened, what):
    """What `happened()` answers as soon as that is true; REQUIRES that it will be."""
    end = time.monotonic() + PATIENCE
    while True:
        answer = happened()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"in vain waited for: {what}")
        time.sleep(0.05)


def children_of(process):
    """The ids of the processes that `process` has started, those of any thread."""
    found = []
    for task in Path(f"/proc/{process}/task").glob("*/children"):
        try:
            found += [int(child) for child in task.read_text().split()]
        except OSError:
            pass  # ended meanwhile
    return found


class Desk:
    """Use as a context; at its end everything that was started there is stopped and the folder is
    gone; when a test fails there, a picture of the display stays in the current folder.
    `unprivileged`: what is started on the desk runs as a user without any rights."""

    def __init__(self, unprivileged=False):
        self.unprivileged = unprivileged and os.getuid() == 0
        self.folder = Path(tempfile.mkdtemp(prefix="navarun-desk-"))
        self.home = self.folder / "Maison d'Élodie Béranger"

    def __enter__(self):
        # What a launcher leaves behind becomes this process's child and is found at the end.
        ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
        runtime = self.folder / "runtime"
        for folder in (self.home, runtime):
            folder.mkdir(mode=0o700)
            if self.unprivileged:
                os.chown(folder, NOBODY, NOBODY)
        self.folder.chmod(0o711)
        self.environment = {
            "PATH": "/usr/local/bin:/usr/bin:/bin",
            "LANG": "C.UTF-8",
            "HOME": str(self.home),
            "XDG_RUNTIME_DIR": str(runtime),
            "DBUS_SESSION_BUS_ADDRESS": "disabled:",
        }
        try:
            self._open_display()
        except BaseException:
            self.__exit__()
            raise
        return self

    def _open_display(self):
        reading, writing = os.pipe()
        # -ac: the unprivileged user may show windows there too. -noreset: a display whose only guest
        # so far has gone begins anew, and loses who was just coming.
        subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-ac",
             "-noreset", "-nolisten", "tcp"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise AssertionError("the virtual display did not open")
        self.environment["DISPLAY"] = f":{number}"
        subprocess.Popen(["openbox", "--sm-disable"], env=self.environment,
                         stdout=subprocess.DEVNULL,
                         stderr=subprocess.DEVNULL)  # it complains when the display goes
        wait_until(lambda: "_NET_SUPPORTING_WM_CHECK(WINDOW)"
                   in self._tool("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                   "the window manager")

    def __exit__(self, failure=None, *_):
        if failure and "DISPLAY" in self.environment:
            picture = Path.cwd() / "failed-desk.png"
            self._tool("import", "-window", "root", str(picture))
            print(f"The desk as it was left: {picture}")
        for signal_number in (signal.SIGTERM, signal.SIGKILL):
            end = time.monotonic() + 5
            while children_of(os.getpid()) and time.monotonic() < end:
                for child in children_of(os.getpid()):
                    os.kill(child, signal_number)
                time.sleep(0.05)
                self._bury()
        shutil.rmtree(self.folder)

    @staticmethod
    def _bury():
        try:
            while os.waitpid(-1, os.WNOHANG)[0] != 0:
                pass
        except ChildProcessError:
            pass

    def as_user(self, command):
        """`command` as the user of the desk runs it."""
        if not self.unprivileged:
            return command
        return ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", *command]

    def start(self, command):
        """Starts `command` from the home folder; gives the process."""
        return subprocess.Popen(self.as_user(command), env=self.environment, cwd=self.home,
                                stdout=subprocess.DEVNULL)

    def _tool(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True,
                              timeout=PATIENCE).stdout

    def window(self, title):
        """The visible window whose title is `title` wholly, once it takes what is typed."""
        pattern = "^" + title.replace(".", r"\.") + "$"
        window = wait_until(
            lambda: self._tool("xdotool", "search", "--onlyvisible", "--name", pattern).split(),
            f"the window « {title} »")[0]

        def active():
            self._tool("xdotool", "windowactivate", window)
            return self._tool("xdotool", "getactivewindow").strip() == window
        wait_until(active, f"the window « {title} » to become the active one")
        return window

    def process_of(self, window):
        """The id of the process that shows `window`."""
        return int(self._tool("xdotool", "getwindowpid", window))

    def type(self, text):
        self._tool("xdotool", "type", "--delay", "40", text)

    def key(self, *names):
        self._tool("xdotool", "key", "--delay", "40", *names)

    def click(self, window, x, y):
        """Clicks at a place of `window`, in pixels from its lower left corner."""
        geometry = self._tool("xdotool", "getwindowgeometry", "--shell", window)
        height = int(dict(line.split("=") for line in geometry.split())["HEIGHT"])
        self._tool("xdotool", "mousemove", "--sync", "--window", window, str(x), str(height - y),
                   "click", "1")

    def quit(self, window):
        """Closes the program's `window` as its frame does, says yes to its question and waits until
        its process has ended by itself."""
        process = self.process_of(window)
        self.key("alt+F4")
        self.answer_yes("QUITTER")

        def ended():
            self._bury()
            return not Path(f"/proc/{process}").exists()
        wait_until(ended, "the end of the program")

    def answer_yes(self, title):
        """Says yes to the question whose window bears `title`."""
        self.window(title)
        self.key("Return")
