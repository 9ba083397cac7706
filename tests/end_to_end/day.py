"""A day of work, played twice: at the window by hand, in the pilot by requests.

A day is a table of rows: what is told of the step, what the hands do, what the pilot is asked.
After each row all that the windows tell and show is compared with the pilot's values.
"""

import contextlib
import dataclasses
import os
import signal
import sys
import time

from desk import FAKETIME, Desk, end_with_parent, wait_for
from eye import Eye

DATE, TIME = ("21/11/2026", "2026-11-21"), "10:15:00"
SETTLED = float(os.environ.get("SETTLED", 20))  # seconds until what differs counts as a difference


@dataclasses.dataclass
class Row:
    """A step. `requests` may be a function of the day: what is asked once the hands are done."""

    told: str
    hand: list
    requests: object = dataclasses.field(default_factory=list)
    eye: bool = True  # whether pictures are compared; not where something foreign lies over all


class Day:
    """The program at a desk of its own and the pilot beside it; a context manager.

    `fill(folder)` puts files into the folder of each before the start."""

    def __init__(self, name, navarun, pilote, pictures, fill=None):
        self.name, self._programs, self._pictures = name, (navarun, pilote), pictures
        self._fill = fill or (lambda folder: None)
        self._open = contextlib.ExitStack()
        self.longest, self.longest_step, self.steps = 0.0, "", 0
        self.beside = []  # rectangles of what the day has put beside the window

    def __enter__(self):
        try:
            self._set_up()
        except BaseException:
            self._open.close()
            raise
        return self

    def __exit__(self, *error):
        self._open.close()

    def _set_up(self):
        os.makedirs(self._pictures, exist_ok=True)
        self.desk = self._open.enter_context(Desk("1600x1000"))
        self.desk.start_bus()
        self.eye = Eye(self.desk.folder)
        # The keyboard of a French practitioner, which has the accented letters.
        self.desk.run(["setxkbmap", "fr"])
        # What would be opened outside is noted down instead.
        self.opened = os.path.join(self.desk.folder, "opened")
        os.makedirs(self.opened)
        opener = os.path.join(self.desk.folder, "bin", "xdg-open")
        os.makedirs(os.path.dirname(opener))
        with open(opener, "w", encoding="utf-8") as script:
            script.write(
                "#!/usr/bin/python3 -I\n"
                "import os, shutil, sys\n"
                "from urllib.parse import unquote, urlparse\n"
                "url = urlparse(sys.argv[1])\n"
                f"place = {self.opened!r}\n"
                'file = unquote(url.path) if url.scheme in ("", "file") else ""\n'
                "if os.path.exists(file):\n"
                "    shutil.copy(file, place)\n"
                "else:\n"
                # It is looked for while this runs: there at once, or not yet.
                '    with open(place + "/address.new", "w") as note:\n'
                "        note.write(sys.argv[1])\n"
                '    os.replace(place + "/address.new", place + "/address")\n'
            )
        os.chmod(opener, 0o755)
        self.folders = [os.path.join(self.desk.folder, place) for place in ("window", "pilot")]
        for folder in self.folders:
            os.makedirs(folder)
            self._fill(folder)
        os.environ.update(self.desk.environment)
        from window import Windows  # reads the place of the screen and of the bus
        from hand import Hand
        from pilot import Pilot
        from seen import Seen

        self.pilot = self._open.enter_context(
            Pilot(self._programs[1], self.folders[1], DATE[0], TIME)
        )
        # The clock stands still as the pilot's does; what the program waits goes on.
        self.process = self.desk.start(
            self._programs[0],
            self.folders[0],
            DONT_FAKE_MONOTONIC="1",
            NO_FAKE_STAT="1",
            PATH=os.path.dirname(opener) + ":" + os.environ["PATH"],
            **self._around_the_program(),
        )
        self.windows = Windows(self.process)
        wait_for(lambda: self.windows.app, "the program among those that can be spoken")
        wait_for(lambda: self.desk.windows("N.A.V.A.R.U.N"), "the window")
        self.hand, self.seen = self._hand_of(Hand), Seen()
        self._look_at_pilot()
        self.hand.rest()
        self.pilot.effects()
        self._compare(Row("starts the program", []), [])

    def _hand_of(self, kind):
        return kind(self.desk, self.windows)

    def _around_the_program(self):
        """More of the environment in which the program is started: its clock."""
        return {"LD_PRELOAD": FAKETIME, "FAKETIME": f"{DATE[1]} {TIME}"}

    def _look_at_pilot(self):
        from model import Form

        self.pilot.set_clock()
        screen = self.pilot.screen()
        self.forms = {name: Form(name, own, controls) for name, (own, controls) in screen.items()}
        self.hand.forms = self.forms

    def play(self, rows):
        for row in rows:
            self.step(row)

    def step(self, row):
        self.steps += 1
        if "TELL_STEPS" in os.environ:
            print(f"{time.monotonic():.1f} {self.steps}: {row.told}", flush=True)
        try:
            late = callable(row.requests)
            effects = [] if late else self._ask(row.requests)
            for act in row.hand:
                self.hand.do(act)
            done = time.monotonic()
            # A box or a message of the program comes before what is asked of it next.
            for effect in effects:
                self._meet(effect)
            if self.pilot.ended:
                status = wait_for(
                    lambda: None if self.process.poll() is None else [self.process.returncode],
                    "the end of the program",
                )
                assert status == [0], f"the program ended with {status}"
                return
            if late:
                effects = self._ask(row.requests(self))
                for effect in effects:
                    self._meet(effect)
            self._wait_until_free()
            waited = time.monotonic() - done
            if not effects and waited > self.longest:
                self.longest, self.longest_step = waited, row.told
            self.hand.rest()
            self._look_at_pilot()
            self._compare(row, effects)
        except BaseException as error:
            self._fail(row, error)
            raise

    def _wait_until_free(self):
        self.windows.all()  # answered once the program is free again

    def _ask(self, requests):
        for request in requests:
            answer = self.pilot.ask(request)
            if self.pilot.ended:
                return answer["effects"]
        return self.pilot.effects()

    def _meet(self, effect):
        """Waits for what the pilot says was shown, and answers where an answer is asked."""
        kind = effect["kind"]
        if kind == "box":
            told = wait_for(self.windows.dialog, f"the box {effect['title']}")
            assert told[0] == effect["title"], f"the box {told}, should be {effect}"
            words = effect["text"].replace("\r\n", "\n")
            assert words in told[1], f"the box {told}, should say {words!r}"
            wait_for(self.windows.box_has_keyboard, f"the keyboard in the box {effect['title']}")
            self.hand.do(("keys", "Return" if effect["answer"] == 1 else "Escape"))
            if not self.pilot.ended:
                wait_for(lambda: self.windows.dialog() != told, "the box gone")
        elif kind == "message":
            words = "Message: " + " ".join(effect["text"].split()).rstrip(" .")
            form = self.forms["Form1"]
            label = self.windows.nodes_of(form)["Label_message"]
            from window import STATE, has

            wait_for(
                lambda: has(label, STATE.SHOWING) and label.get_name() == words,
                f"the message {words!r}",
            )
            wait_for(lambda: not has(label, STATE.SHOWING), f"the message {words!r} gone")
        elif kind == "view":
            name = os.path.basename(effect["file"])
            file = os.path.join(self.opened, name)
            wait_for(lambda: os.path.exists(file) and os.path.getsize(file), f"{name} in the viewer")
            with open(file, "rb") as shown:
                text = shown.read().decode("cp1252")
            assert text == effect["text"], f"the viewer shows {text!r}, should be {effect['text']!r}"
        elif kind == "open":
            file = os.path.join(self.opened, "address")
            wait_for(lambda: os.path.exists(file), f"{effect['target']} opened")
            with open(file, encoding="utf-8") as noted:
                address = noted.read()
            assert effect["target"] in address, f"opened {address!r}, should be {effect['target']!r}"
            os.remove(file)

    def _compare(self, row, effects):
        end = time.monotonic() + SETTLED
        tries = 0
        while True:
            tries += 1
            found = self.windows.differences(self.forms)
            if not found and row.eye:
                found = self._seen()
            if "TELL_STEPS" in os.environ:
                print(f"    {time.monotonic() - end + SETTLED:.2f} {tries} {found[:3]}", flush=True)
            if not found:
                return
            if time.monotonic() > end:
                raise AssertionError("\n  ".join(["window and pilot differ:", *found]))
            time.sleep(0.1)

    def _seen(self):
        shown = self.windows.all()
        origins, beside = {}, {}
        for name, form in self.forms.items():
            if not form.values["Visible"]:
                continue
            origins[name] = self.windows.origin_of(form)
            own = self.windows.window_of(form)
            beside[name] = [*self.beside] + [
                # With its frame, and some air for the shadow of a tool tip.
                (x - 6, y - 26, width + 12, height + 32)
                for window, role, title, (x, y, width, height) in shown
                if title != own.get_name()
                # The main window lies below all others.
                and not (title == "N.A.V.A.R.U.N" and role == "frame")
            ]
        return list(self.seen.differences(self.forms, origins, self.eye.look(), beside))

    def _fail(self, row, error):
        file = os.path.join(self._pictures, f"{self.name}-{self.steps}.png")
        self.eye.save(file)
        print(f"{self.name}, step {self.steps}: {row.told}\n  {error}\n  picture: {file}", flush=True)

    def compare_folders(self):
        """What lies in the two folders: the same names, the same bytes."""
        told = [self._files(folder) for folder in self.folders]
        for names in sorted(set(told[0]) ^ set(told[1])):
            raise AssertionError(f"{names}: in one of the two folders alone")
        for name in told[0]:
            assert told[0][name] == told[1][name], (
                f"{name} differs: {told[0][name][:300]!r}, should be {told[1][name][:300]!r}"
            )
        return sorted(told[0])

    @staticmethod
    def _files(folder):
        found = {}
        for place, _, names in os.walk(os.path.join(folder, "RESSOURCES")):
            for name in names:
                path = os.path.join(place, name)
                with open(path, "rb") as file:
                    found[os.path.relpath(path, folder)] = file.read()
        return found

    def told(self):
        return (
            f"{self.name}: {self.steps} steps; the longest until the window answered again: "
            f"{self.longest * 1000:.0f} ms ({self.longest_step})"
        )


def play_day(name, rows, fill=None):
    """Plays a day named on the command line: NAVARUN PILOTE PICTURES. `rows` may be a function
    of the day, for what only the day knows."""
    end_with_parent()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended from outside"))
    with Day(name, *sys.argv[1:4], fill) as day:
        day.play(rows(day) if callable(rows) else rows)
        print(day.told())
        print("the same bytes in both folders:", ", ".join(day.compare_folders()))
