"""The program without a window, as these tests use it, and where the documents stand."""
import json
import os
import subprocess
import tempfile
from pathlib import Path

SOURCES = Path(__file__).resolve().parents[2]
DOCUMENTS = Path(os.environ["DOCUMENTS"])
MANUAL = DOCUMENTS / "AIDE NAVARUN.pdf"
CELEBRITIES = DOCUMENTS / "CELEBRITES.pdf"


def text_of(pdf, *options):
    """The text of a PDF, as pdftotext gives it, with plain blanks and apostrophes."""
    command = ["pdftotext", *options, str(pdf), "-"]
    text = subprocess.run(command, check=True, capture_output=True).stdout.decode()
    return text.replace("\u00a0", " ").replace("’", "'")


class Program:
    """A program freshly started in a folder of its own, on 21/11/2026 at 10:15."""

    def __init__(self):
        self._folder = tempfile.TemporaryDirectory()
        self._pilot = subprocess.Popen(
            [os.environ["PILOTE"], self._folder.name],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        self.ask(op="clock", date="21/11/2026", time="10:15:00")
        self.ask(op="load")

    def close(self):
        self._pilot.stdin.close()
        self._pilot.stdout.close()
        self._pilot.wait(timeout=10)
        self._folder.cleanup()

    def ask(self, **request):
        self._pilot.stdin.write(json.dumps(request) + "\n")
        self._pilot.stdin.flush()
        answer = json.loads(self._pilot.stdout.readline())
        assert "error" not in answer, f"{request}: {answer}"
        return answer

    def click(self, control):
        self.ask(op="click", control=control)

    def birth(self, date):
        """Enters a birth date (dd/mm/yyyy), year first, as the manual tells to."""
        day, month, century, year = date[:2], date[3:5], date[6:8], date[8:]
        for control, text in (
            ("Combo_AnNaiss1", century),
            ("Combo_AnNaiss2", year),
            ("Combo_moisNaiss", month),
            ("Combo_jourNaiss", day),
        ):
            self.ask(op="set", control=control, value=text)

    def value(self, name):
        return self.ask(op="get", names=[name])["values"][name]
