"""A long day at the desk, played fast: the same practice as the other days, with a hand that does
not rest and a clock that is put on from one client to the next.

The pilot is played beside. After each step what has changed in it is looked for in the windows
before the next begins; once an hour everything is compared.
"""

import os
import subprocess

from day import FAKETIME, Day
from desk import wait_for
from readings import Probe


class QuickTool:
    """One xdotool that stays, told line by line; starting one for each act takes most of the time."""

    def __init__(self, desk):
        self._process = subprocess.Popen(
            # Each answer is read as soon as it is there.
            ["stdbuf", "-oL", "xdotool", "-"],
            env=desk.environment,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            encoding="utf-8",
        )

    def __enter__(self):
        return self

    def __exit__(self, *error):
        self._process.stdin.close()
        self._process.wait(10)
        self._process.stdout.close()

    def do(self, *words):
        """Handed to the X server when this returns. The answer that tells so asks for no window,
        for one that goes at that moment would end xdotool."""
        quoted = ('"' + str(word).replace("\\", "\\\\").replace('"', '\\"') + '"' for word in words)
        self._process.stdin.write(" ".join(quoted) + "\ngetdisplaygeometry\n")
        self._process.stdin.flush()
        assert self._process.stdout.readline(), f"xdotool refused {words}"


class LazyForms(dict):
    """The pilot's forms, each asked for when it is first looked at."""

    def __init__(self, pilot):
        super().__init__()
        self._pilot = pilot

    def __missing__(self, name):
        from model import Form

        self[name] = Form(name, *self._pilot.form(name))
        return self[name]


class SoakDay(Day):
    """A day whose steps are many. `clock` is where it begins."""

    def __init__(self, name, navarun, pilote, pictures, library, clock, fill=None):
        super().__init__(name, navarun, pilote, pictures, fill)
        self._library = library
        self.clock = clock
        self._known = {}  # the values of the pilot's forms after the step before

    def _around_the_program(self):
        self.probe = Probe(self.desk, self._library)
        self._clock_file = os.path.join(self.desk.folder, "clock")
        self._stand_in_programs()
        self.set_clock(self.clock)
        return {
            **self.probe.environment(FAKETIME),
            "FAKETIME_TIMESTAMP_FILE": self._clock_file,
            "FAKETIME_NO_CACHE": "1",
            # The toolkit as it is by itself, without the libraries of a desktop.
            "XDG_CURRENT_DESKTOP": "",
        }

    def _hand_of(self, kind):
        tool = self._open.enter_context(QuickTool(self.desk))

        class QuickHand(kind):
            def _xdo(self, *words):
                tool.do(*words)

        return QuickHand(self.desk, self.windows)

    def _stand_in_programs(self):
        """The calculator and the editor are noted down as what is opened outside is, whatever is
        installed here."""
        note = os.path.join(self.opened, "address")
        for name, does in (
            ("gnome-calculator", f"echo calculator > '{note}.new' && mv '{note}.new' '{note}'"),
            ("gnome-text-editor", f"echo text-editor > '{note}.new' && mv '{note}.new' '{note}'"),
            ("xdg-mime", ":"),  # no default
        ):
            file = os.path.join(self.desk.folder, "bin", name)
            with open(file, "w", encoding="utf-8") as script:
                script.write(f"#!/bin/sh\n{does}\n")
            os.chmod(file, 0o755)

    def set_clock(self, clock):
        """Puts the clocks of the program and of the pilot. Between clients: a wait of the program
        over which midnight passes ends it, which is not what is tried here."""
        self.clock = clock
        fresh = self._clock_file + ".new"
        with open(fresh, "w", encoding="ascii") as file:
            file.write(f"{clock:%Y-%m-%d %H:%M:%S}\n")
        os.replace(fresh, self._clock_file)
        self.pilot.set_clock(date=f"{clock:%d/%m/%Y}", time=f"{clock:%H:%M:%S}")

    def _look_at_pilot(self):
        self.pilot.set_clock()
        self.forms = LazyForms(self.pilot)
        if hasattr(self, "hand"):
            self.hand.forms = self.forms

    def _wait_until_free(self):
        self.windows.app.get_child_count()

    def _compare(self, row, effects):
        """Waits until the step is seen: the windows that it opens or closes, and a few of the
        controls that it changes; the rest comes with them."""
        from pilot import FORMS

        names = [name + ".Visible" for name in FORMS]
        visible = self.pilot.ask({"op": "get", "names": names})["values"]
        before, self._known = self._known, {
            name: self.forms[name] for name in FORMS if visible[name + ".Visible"]
        }
        turned = [(self.forms[name], name in self._known) for name in before.keys() ^ self._known.keys()]
        changed = [
            control
            for name, form in self._known.items() if name in before
            for control in form.placed
            if control.values != before[name].controls[control.name].values
        ]
        looked_at = changed[:: len(changed) // 4 + 1]
        self._wait_for_no(lambda: self._missing(turned, looked_at))

    def _missing(self, turned, controls):
        """What the windows do not tell yet, as texts."""
        from model import Sayings

        for form, shown in turned:
            if (self.windows.window_of(form) is not None) != shown:
                yield f"{form.name}: visible {not shown}, should be {shown}"
        for control in controls:
            form = self.forms[control.form]
            node = self.windows.nodes_of(form)[control.name]
            origin = self.windows.origin_of(form)
            for told in self.windows._compare(control, node, Sayings(form), origin):
                yield f"{form.name}.{control.name}: {told}"

    @staticmethod
    def _wait_for_no(differences):
        from gi.repository import GLib

        found = []

        def alike():
            try:
                found[:] = differences()
            except GLib.Error as gone:
                found[:] = [f"the window does not answer: {gone.message}"]
            return not found

        try:
            wait_for(alike, "window and pilot alike")
        except AssertionError as late:
            raise AssertionError("\n  ".join([str(late), *found])) from None

    def compare_all(self):
        """Everything that the windows tell against the pilot, as after each step of other days."""
        from pilot import FORMS

        forms = {name: self.forms[name] for name in FORMS}
        self._wait_for_no(lambda: self.windows.differences(forms))

    def read(self, count_spoken):
        """What the program holds now. The objects that screen readers find are counted where
        `count_spoken`, for that takes a while; the entries of lists, of which each client has
        others, are not."""
        reading = self.probe.read(self.process.pid)
        if count_spoken:
            from window import walk

            reading.spoken_objects = sum(
                node.get_role_name() != "list item" for node in walk(self.windows.app)
            )
        return reading
