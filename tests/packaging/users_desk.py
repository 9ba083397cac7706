"""The desk of someone who has been given the program: a home folder whose path has blanks and accents,
and an environment with nothing of the test's own in it."""

import ctypes
import os
import signal
import sys
import time
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parent.parent / "support"))
from desk import Desk, wait_for

NOBODY = 65534
PR_SET_CHILD_SUBREAPER = 36


def children_of(process):
    """The ids of the processes that `process` has started, those of any thread."""
    found = []
    for task in Path(f"/proc/{process}/task").glob("*/children"):
        try:
            found += [int(child) for child in task.read_text().split()]
        except OSError:
            pass  # ended meanwhile
    return found


def bury():
    """Takes leave of the children that have ended."""
    try:
        while os.waitpid(-1, os.WNOHANG)[0] != 0:
            pass
    except ChildProcessError:
        pass


def end_children():
    """Ends what was started and what that has left behind."""
    for signal_number in (signal.SIGTERM, signal.SIGKILL):
        end = time.monotonic() + 5
        while children_of(os.getpid()) and time.monotonic() < end:
            for child in children_of(os.getpid()):
                os.kill(child, signal_number)
            time.sleep(0.05)
            bury()


class UsersDesk(Desk):
    """Use as a context; when a test fails there, a picture of the display stays in the current
    folder. `unprivileged`: what is started on the desk runs as a user without any rights."""

    SCREEN_OPTIONS = ["-ac"]  # that user may show windows there too

    def __init__(self, unprivileged=False):
        super().__init__()
        self.unprivileged = unprivileged and os.getuid() == 0

    def _set_up(self):
        # What a launcher leaves behind becomes this process's child and is found at the end.
        ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
        super()._set_up()
        self._open.callback(end_children)

    def _surroundings(self):
        folder = Path(self.folder)
        folder.chmod(0o711)
        self.home = folder / "Maison d'Élodie Béranger"
        runtime = folder / "runtime"
        for own in (self.home, runtime):
            own.mkdir(mode=0o700)
            if self.unprivileged:
                os.chown(own, NOBODY, NOBODY)
        return {
            "PATH": "/usr/local/bin:/usr/bin:/bin",
            "LANG": "C.UTF-8",
            "HOME": str(self.home),
            "XDG_RUNTIME_DIR": str(runtime),
            "DBUS_SESSION_BUS_ADDRESS": "disabled:",
        }

    def __exit__(self, failure=None, *rest):
        if failure:
            picture = Path.cwd() / "failed-desk.png"
            self.picture(str(picture))
            print(f"The desk as it was left: {picture}")
        super().__exit__(failure, *rest)

    def launch(self, command):
        """Starts `command` from the home folder as the user of the desk; gives the process."""
        if self.unprivileged:
            command = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", *command]
        return self._start(command, self.environment, cwd=self.home, stderr=None)

    def window(self, title):
        """The visible window whose title is `title` wholly, once it takes what is typed."""
        window = super().window(title)
        self.activate(window)
        return window

    def process_of(self, window):
        """The id of the process that shows `window`."""
        return int(self.run(["xdotool", "getwindowpid", window]))

    def click(self, window, x, y):
        """Clicks at a place of `window`, in pixels from its lower left corner."""
        left, top, _, height = self.geometry(window)
        self.run(["xdotool", "mousemove", "--sync", str(left + x), str(top + height - y),
                  "click", "1"])

    def quit(self, window):
        """Closes the program's `window` as its frame does, says yes to its question and waits until
        its process has ended by itself."""
        process = self.process_of(window)
        self.activate(window)
        self.press("alt+F4")
        self.answer_yes("QUITTER")

        def ended():
            bury()
            return not Path(f"/proc/{process}").exists()
        wait_for(ended, "the end of the program")

    def answer_yes(self, title):
        """Says yes to the question whose window bears `title`."""
        self.window(title)
        self.press("Return")
