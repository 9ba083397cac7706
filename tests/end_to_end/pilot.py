"""The same program with no window: bin/pilote, asked by lines of JSON."""

import json
import subprocess

from desk import end_with_parent

# The forms whose values are compared with what their windows show.
FORMS = (
    "Form1",
    "Affiche_cycle",
    "choix_age",
    "FrmSeigneurJour",
    "Palais_du_destin",
    "frmCalend",
    "Fleche",
    "Option_impression",
    "a_propos",
)


class Refused(AssertionError):
    """An answer that is an error: the day asks what no user could do."""


class Pilot:
    """A pilot in a folder, on a clock that stands still; a context manager."""

    def __init__(self, program, folder, date, time):
        self._clock = {"op": "clock", "date": date, "time": time}
        self._process = subprocess.Popen(
            [program, folder],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            encoding="utf-8",
            preexec_fn=end_with_parent,
        )
        self.ended = False

    def __enter__(self):
        self.set_clock()
        self.ask({"op": "load"})
        return self

    def __exit__(self, *error):
        self._process.stdin.close()
        try:
            self._process.wait(10)
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.wait()
        self._process.stdout.close()

    def ask(self, request):
        """The answer to a request; the end of the program is one, an error raises."""
        self._process.stdin.write(json.dumps(request) + "\n")
        self._process.stdin.flush()
        answer = json.loads(self._process.stdout.readline())
        self.ended = self.ended or bool(answer.get("ended"))
        if "error" in answer:
            raise Refused(f"{request}: {answer}")
        return answer

    def set_clock(self, **clock):
        """What was waited in the pilot is no time here: the clock is put back, or to another
        date and time."""
        self._clock.update(clock)
        self.ask(self._clock)

    def value(self, name):
        return self.ask({"op": "get", "names": [name]})["values"][name]

    def effects(self):
        return self.ask({"op": "effects"})["effects"]

    def form(self, form):
        """One form: its own values and those of its controls, in stacking order."""
        names = [f"{form}.{name}" for name in ("Visible", "Caption", "BackColor", "Width", "Height")]
        values = self.ask({"op": "get", "names": names})["values"]
        own = {name.split(".")[1]: value for name, value in values.items()}
        controls = self.ask({"op": "dump", "form": form})["controls"]
        return own, {name.removeprefix(form + "."): of for name, of in controls.items()}

    def screen(self):
        """All forms by their names."""
        return {form: self.form(form) for form in FORMS}
