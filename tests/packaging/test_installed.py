"""A whole life on a desk: the Debian package is installed, a user without rights starts the program
by its desktop entry, keeps a consultation, quits; the package is removed and leaves the user's
data alone."""

import os
import shutil
import socket
import subprocess
import sys
import time
import unittest
from pathlib import Path

from users_desk import UsersDesk, wait_for

PACKAGES = Path(sys.argv.pop(1))
[PACKAGE] = PACKAGES.glob("*.deb")
DISKETTE = 112, 16  # where it can be clicked, from the lower left corner of the window
SKIPPED = 77  # as ctest is told


def skip_test_program(reason):
    print(reason, file=sys.stderr)
    sys.exit(SKIPPED)


def rights():
    """What makes a command one of root, or None where that cannot be had without a question."""
    if os.getuid() == 0:
        return []
    sudo = shutil.which("sudo")
    if sudo and subprocess.run([sudo, "-n", "true"], capture_output=True).returncode == 0:
        return [sudo, "-n"]
    return None


def take_turn():
    """Waits until no other run of this test, from whatever folder, has the package installed; gives
    what must be kept until the end."""
    turn = socket.socket(socket.AF_UNIX)

    def taken():
        try:
            turn.bind("\0navarun-test-installed")  # free again when the process is gone
            return True
        except OSError:
            return False
    wait_for(taken, "another run of this test")
    return turn


def is_known_to_dpkg():
    run = subprocess.run(["dpkg-query", "-W", "navarun"], capture_output=True)
    return run.returncode == 0


def dpkg(*arguments):
    """Runs dpkg as root; waits where another one is at work."""
    for _ in range(60):
        run = subprocess.run([*rights(), "dpkg", *arguments], capture_output=True, text=True,
                             env={**os.environ, "LC_ALL": "C.UTF-8"})
        if "lock" not in run.stderr or run.returncode == 0:
            break
        time.sleep(1)
    if run.returncode != 0:
        raise AssertionError(f"dpkg {arguments}: {run.stdout}{run.stderr}")


def traces_on_the_machine():
    """Everything named after the program below the folders that packages write to."""
    found = []
    for place in ("/etc", "/usr", "/var/lib", "/var/cache", "/opt"):
        for folder, folders, files in os.walk(place):
            found += [os.path.join(folder, name) for name in folders + files
                      if "navarun" in name.lower()]
    return found


class Installed(unittest.TestCase):
    def setUp(self):
        self.assertEqual(traces_on_the_machine(), [], "not a machine without the program")
        self.addCleanup(lambda: is_known_to_dpkg() and dpkg("--purge", "navarun"))
        dpkg("--install", str(PACKAGE))

    def test_is_started_used_quit_and_removed(self):
        with UsersDesk(unprivileged=True) as desk:
            folder = desk.home / ".local/share/navarun"

            desk.launch(["gtk-launch", "fr.navarun.Navarun"])
            window = desk.window("N.A.V.A.R.U.N")
            self.assertEqual(os.readlink(f"/proc/{desk.process_of(window)}/exe"),
                             "/usr/lib/navarun/navarun")
            self.assertNotEqual(os.stat(f"/proc/{desk.process_of(window)}").st_uid, 0)

            self.keep_consultation(desk, window, folder / "RESSOURCES/DATA1")
            documents = Path("/usr/lib/navarun/RESSOURCES/DOCS")
            if documents.exists():
                self.assertEqual((folder / "RESSOURCES/DOCS").resolve(), documents)
            desk.quit(window)

            kept = {path: path.read_bytes() for path in folder.rglob("*")
                    if path.is_file() and not path.resolve().is_relative_to("/usr")}
            self.assertTrue(kept)
            dpkg("--remove", "navarun")
            dpkg("--purge", "navarun")
            self.assertFalse(is_known_to_dpkg())
            self.assertEqual(traces_on_the_machine(), [])
            for path, content in kept.items():
                self.assertEqual(path.read_bytes(), content)

    def keep_consultation(self, desk, window, records):
        """Types a name and a birth date and saves them by the diskette."""
        desk.type("Elodie")
        desk.press("Tab")
        desk.type("Beranger")
        desk.press("Tab")
        desk.type("17051962")
        desk.click(window, *DISKETTE)
        desk.answer_yes("SAUVEGARDER")
        record = records / "Beranger Elodie.fcy"
        wait_for(record.exists, "the record of the consultation")
        self.assertEqual(record.read_bytes(), b'"Elodie","Beranger","17","05","19","62",0,"",""\r\n')


if __name__ == "__main__":
    if rights() is None:
        skip_test_program("Installing a package takes root or a sudo that asks nothing.")
    turn = take_turn()
    if is_known_to_dpkg():
        skip_test_program("navarun is installed on this machine; its owner's package stays.")
    with turn:
        unittest.main()
