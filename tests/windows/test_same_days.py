"""The same requests give the same answers on Windows and leave the same files, byte by byte."""

import json
import tempfile
import unittest
from pathlib import Path

import days
import pilots
from pilots import HERE_PILOT, WINDOWS_PILOT

DIALOGUES = Path(__file__).resolve().parent.parent / "scenarios" / "dialogues"
RANDOM_DAYS = 40


def requests_of(dialogue):
    return [json.loads(line[2:]) for line in dialogue.read_text(encoding="utf-8").splitlines()
            if line.startswith("> ")]


def differences(one, other, path=""):
    """Where two answers differ, as lines; there may be thousands of values in one."""
    if isinstance(one, dict) and isinstance(other, dict):
        return [line for name in {**one, **other}
                for line in differences(one.get(name), other.get(name), f"{path}/{name}")]
    if isinstance(one, list) and isinstance(other, list) and len(one) == len(other):
        return [line for place, pair in enumerate(zip(one, other))
                for line in differences(*pair, f"{path}/{place}")]
    return [] if one == other else [f"{path}: {one!r} here, {other!r} on Windows"]


def put(folder, files):
    for name, content in files.items():
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        if content is None:
            (folder / name).mkdir()
        else:
            (folder / name).write_bytes(content)


def with_outside(requests, outside):
    """The requests with the folder outside, as the pilot that reads them names it."""
    return [{name: value.replace(days.OUTSIDE, outside) if isinstance(value, str) else value
             for name, value in request.items()} for request in requests]


class SameDays(unittest.TestCase):
    maxDiff = 2000

    @classmethod
    def setUpClass(cls):
        pilots.make_windows_folder()

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="navarun-jours-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.outside = self.folder / "dehors"
        put(self.outside, days.OUTSIDE_FILES)

    def both(self, name, files, requests):
        """Runs a day by both pilots, compares, and gives this machine's answers."""
        results = []
        for number, pilot in enumerate((HERE_PILOT, WINDOWS_PILOT)):
            # Of one name, for answers may tell it.
            folder = self.folder / f"{name}.{number}" / "essai"
            put(folder, files)
            folder.mkdir(parents=True, exist_ok=True)
            status, answers = pilot.run(folder, with_outside(requests, pilot.path_of(self.outside)))
            results.append((status, answers.split(b"\n"), pilots.files_below(folder)))
        (status, answers, left), (windows_status, windows_answers, windows_left) = results
        # By line, for the whole of a day tells nothing.
        for number, (line, windows_line) in enumerate(zip(answers, windows_answers)):
            if line != windows_line:
                told = differences(json.loads(line or "null"), json.loads(windows_line or "null"))
                self.fail("\n".join([f"{name}: {requests[number]}", *told[:20]]))
        self.assertEqual(len(answers), len(windows_answers), name)
        self.assertEqual(status, windows_status, name)
        self.assertEqual(left, windows_left, name)
        return answers

    def test_days_of_work(self):
        for name, (files, requests) in days.DAYS.items():
            with self.subTest(name):
                answers = self.both(name, files, days.MORNING + requests)
                # A day does what it says: only the calendar of births after 1999 is refused.
                refused = [line for line in answers
                           if line.startswith(b'{"error"') and b'"fatal"' not in line
                           and b"Mnu_Julien" not in line]
                self.assertEqual(refused, [])

    def test_dialogues(self):
        found = sorted(DIALOGUES.glob("*.txt"))
        self.assertGreater(len(found), 5)
        for dialogue in found:
            with self.subTest(dialogue.stem):
                self.both(dialogue.stem, {}, requests_of(dialogue))

    def test_random_days(self):
        folder = self.folder / "noms"
        folder.mkdir()
        dumps = HERE_PILOT.answers(folder, days.MORNING + days.LOOK)[2:-2]
        controls = sorted(name for dump in dumps for name in dump["controls"])
        self.assertGreater(len(controls), 200)
        for seed in range(RANDOM_DAYS):
            with self.subTest(seed=seed):
                self.both(f"hasard {seed}", days.PORTRAITS,
                          days.MORNING + days.random_day(seed, controls))


if __name__ == "__main__":
    unittest.main()
