"""What a Windows machine puts in the way: each is told with its reason, and nothing is lost."""

import contextlib
import errno
import json
import os
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

import days
import pilots
from days import click, person, saved, selected
from pilots import HERE_PILOT, WINDOWS_PILOT, Conversation

sys.path.append(os.path.join(os.path.dirname(os.path.abspath(__file__)), "../support"))
from preload import preloadable

RECORD = "RESSOURCES/DATA1/Durand Jean.fcy"
WRITE_IT = [*person("jean", "durand", "01011980", "une note à garder"), click("Command_Disk_Vert")]
HELD = "Un autre programme tient ce fichier ouvert : fermez-le là, puis recommencez."


@contextlib.contextmanager
def held(file, how):
    """Another program keeps `file` open, with nobody beside it or with readers only."""
    program = pilots.start([pilots.WINE, pilots.WINDOWS_PROGRAMS / "hold_file.exe",
                            pilots.on_windows(file), how])
    try:
        assert program.stdout.readline().strip() == b"held"
        yield
    finally:
        program.stdin.close()
        program.stdout.close()
        program.wait(pilots.PATIENCE)


class BadInput(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        pilots.make_windows_folder()

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="navarun-essais-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name) / "essai"
        self.folder.mkdir()

    def windows(self, requests, folder=None, **options):
        return WINDOWS_PILOT.answers(folder or self.folder, days.MORNING + requests, **options)

    def keep_a_record(self):
        self.windows(saved("jean", "durand", "01011980"))
        return self.folder / RECORD

    def assert_fatal(self, answer, *told):
        self.assertEqual(answer.get("error"), "fatal", answer)
        for text in told:
            self.assertIn(text, answer["text"])

    def assert_nothing_unfinished(self):
        self.assertEqual(list(self.folder.rglob("navarun.tmp")), [])

    def rescued(self):
        return (self.folder / "RESSOURCES/DATA1/SAUVETAGE.fcy").read_bytes()

    def test_a_record_that_another_program_keeps_to_itself_is_not_loaded(self):
        record = self.keep_a_record()
        with held(record, "alone"):
            answers = self.windows([*selected("Durand Jean.fcy"),
                                    {"op": "dblclick", "control": "File_Fichier"}])
        self.assert_fatal(answers[-1], "La lecture du fichier « Durand Jean.fcy » a échoué.", HELD)
        answers = self.windows([*selected("Durand Jean.fcy"),
                                {"op": "dblclick", "control": "File_Fichier"}])
        self.assertEqual(answers[-1], {"ok": True})

    def test_a_record_that_another_program_reads_is_not_replaced_and_nothing_is_lost(self):
        record = self.keep_a_record()
        before = record.read_bytes()
        for how in ("readers", "alone"):
            with self.subTest(how), held(record, how):
                answers = self.windows(WRITE_IT)
                self.assert_fatal(answers[-1], "L'écriture du fichier « Durand Jean.fcy » a échoué.", HELD)
                self.assertEqual(record.read_bytes(), before)
                self.assert_nothing_unfinished()
                self.assertIn("une note à garder".encode("cp1252"), self.rescued())

    def test_a_record_that_another_program_reads_is_neither_deleted_nor_moved(self):
        record = self.keep_a_record()
        before = record.read_bytes()
        acts = {"La suppression": [click("Command_reset")],
                "Le déplacement": [days.key("File_Fichier", days.CONTROL),
                                   {"op": "drop", "control": "Charge(2)"}]}
        for told, act in acts.items():
            with self.subTest(told), held(record, "readers"):
                answers = self.windows([*selected("Durand Jean.fcy"), *act])
                self.assert_fatal(answers[-1], told, HELD)
                self.assertEqual(record.read_bytes(), before)

    def test_a_record_let_go_of_in_time_is_replaced(self):
        record = self.keep_a_record()
        with contextlib.ExitStack() as stack:
            pilot = stack.enter_context(Conversation(WINDOWS_PILOT, self.folder))
            for request in days.MORNING + WRITE_IT[:-1]:
                self.assertEqual(pilot.ask(request), {"ok": True})
            with held(record, "readers"):
                pass
            self.assertEqual(pilot.ask(WRITE_IT[-1]), {"ok": True})
        self.assertIn("une note à garder".encode("cp1252"), record.read_bytes())

    def test_a_record_marked_read_only_is_replaced_keeps_its_mark_and_can_be_deleted(self):
        record = self.keep_a_record()
        record.chmod(0o444)
        self.assertEqual(self.windows(WRITE_IT)[-1], {"ok": True})
        self.assertIn("une note à garder".encode("cp1252"), record.read_bytes())
        self.assertEqual(record.stat().st_mode & 0o222, 0)
        with held(record, "readers"):
            self.assert_fatal(self.windows(WRITE_IT)[-1], HELD)
        self.assertEqual(record.stat().st_mode & 0o222, 0)
        self.windows([*selected("Durand Jean.fcy"), click("Command_reset")])
        self.assertFalse(record.exists())

    def test_names_differ_by_more_than_their_case(self):
        record = self.keep_a_record()
        record.rename(record.with_name("DURAND JEAN.FCY"))
        self.windows(WRITE_IT)
        records = [path for path in record.parent.iterdir() if path.suffix.lower() == ".fcy"]
        self.assertEqual(len(records), 1)
        self.assertIn("une note à garder".encode("cp1252"), records[0].read_bytes())

    def same_in(self, name):
        """A day in a folder of that name, on Windows and here."""
        files, requests = days.DAYS["records saved, found again, moved, deleted"]
        self.assertEqual(files, {})
        results = []
        for place, pilot in (("ici", HERE_PILOT), ("windows", WINDOWS_PILOT)):
            folder = self.folder / place / name
            folder.mkdir(parents=True)
            results.append((pilot.run(folder, days.MORNING + requests), pilots.files_below(folder)))
        self.assertEqual(results[0], results[1])
        self.assertEqual(results[1][0][0], 0)

    def test_a_folder_with_accents_and_blanks(self):
        self.same_in("Été à Łódź  日本 😀/ deux  blancs")

    def test_a_folder_whose_path_is_longer_than_260_characters(self):
        self.same_in("/".join(f"{number} dossier de {'x' * 80}" for number in range(6)))

    def test_a_folder_that_is_not_there_is_made(self):
        folder = self.folder / "pas" / "encore"
        self.assertEqual(self.windows([], folder)[-1], {"ok": True})
        self.assertTrue((folder / "RESSOURCES/CONFIG.CFG").is_file())

    def test_a_second_program_in_the_folder_ends_and_one_elsewhere_does_not(self):
        other = self.folder / "autre"
        other.mkdir()
        with Conversation(WINDOWS_PILOT, self.folder) as first:
            for request in days.MORNING:
                self.assertEqual(first.ask(request), {"ok": True})
            spelled_otherwise = self.folder.with_name("ESSAI")
            for folder in (self.folder, spelled_otherwise, other / ".."):
                self.assertTrue(self.windows([], folder)[-1].get("ended"), folder)
            self.assertEqual(self.windows([], other)[-1], {"ok": True})
        self.assertEqual(self.windows([])[-1], {"ok": True})

    def test_a_killed_program_does_not_keep_the_next_one_out(self):
        with Conversation(WINDOWS_PILOT, self.folder) as killed:
            for request in days.MORNING:
                killed.ask(request)
            killed.process.kill()
            killed.process.wait(pilots.PATIENCE)
            self.assertEqual(self.windows([])[-1], {"ok": True})


class FailingDisk(unittest.TestCase):
    """The disk fails below the program, where Wine hands a write on to this machine."""

    NOTE = "n" * 200_000
    SAVE_AGAIN = [*person("jean", "durand", "01011980", NOTE), click("Command_Disk_Vert")]

    def setUp(self):
        pilots.make_windows_folder()
        folder = tempfile.TemporaryDirectory(prefix="navarun-essais-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name) / "essai"
        self.folder.mkdir()
        WINDOWS_PILOT.run(self.folder, days.MORNING + saved("jean", "durand", "01011980"))
        self.record = self.folder / RECORD
        self.before = self.record.read_bytes()
        self.shim = preloadable(os.environ["FAULT_SHIM"], folder.name)

    def with_fault(self, **fault):
        mark = self.folder.parent / "mark"
        shim = {"LD_PRELOAD": self.shim, "FAULT_MARK": str(mark),
                "FAULT_FOLDER": str(self.folder / "RESSOURCES/DATA1")}
        answers = WINDOWS_PILOT.answers(
            self.folder, days.MORNING + self.SAVE_AGAIN,
            env={**pilots.environment(), **shim,
                 **{f"FAULT_{name}": str(value) for name, value in fault.items()}})
        self.assertTrue(mark.exists(), "the fault has struck")
        mark.unlink()
        return answers[-1]

    def test_a_full_or_broken_disk_leaves_the_old_record_and_tells_why(self):
        told = {errno.ENOSPC: "Il n'y a plus de place sur le disque.", errno.EIO: ""}
        for call in ("write", "fsync"):
            for number, reason in told.items():
                with self.subTest(call, error=errno.errorcode[number]):
                    answer = self.with_fault(CALL=call, NUMBER=1, ERRNO=number)
                    self.assertEqual(answer.get("error"), "fatal", answer)
                    self.assertIn("L'écriture du fichier « Durand Jean.fcy » a échoué.", answer["text"])
                    self.assertIn(reason, answer["text"])
                    self.assertEqual(self.record.read_bytes(), self.before)
                    self.assertEqual(list(self.folder.rglob("navarun.tmp")), [])
                    rescued = self.record.with_name("SAUVETAGE.fcy")
                    self.assertIn(self.NOTE.encode(), rescued.read_bytes())
                    rescued.unlink()

    def test_a_disk_without_room_for_the_rescue_either_says_so(self):
        answer = self.with_fault(BUDGET=1000)
        self.assertIn("Il n'y a plus de place sur le disque.", answer["text"])
        self.assertIn("n'a pas pu être gardée", answer["effects"][-1]["text"])
        self.assertEqual(self.record.read_bytes(), self.before)
        self.assertEqual({path.name for path in self.record.parent.iterdir()}, {self.record.name})

    def test_a_write_that_takes_half_is_gone_on_with(self):
        self.assertEqual(self.with_fault(CALL="write", NUMBER=1, ERRNO=0), {"ok": True})
        self.assertIn(self.NOTE.encode(), self.record.read_bytes())

    def test_a_program_killed_while_it_saves_leaves_a_whole_record(self):
        contents = set()
        for run in range(6):
            before = self.record.read_bytes()
            with Conversation(WINDOWS_PILOT, self.folder) as pilot:
                for request in days.MORNING + self.SAVE_AGAIN[:-2]:
                    pilot.ask(request)
                letter = "QWXYZV"[run]
                pilot.ask(days.set_to("Text_Note", letter * 600_000))
                pilot.process.stdin.write(json.dumps(self.SAVE_AGAIN[-1]).encode() + b"\n")
                pilot.process.stdin.flush()
                time.sleep(run * 0.008)  # from the first moment on
                pilot.process.kill()
                pilot.process.wait(pilots.PATIENCE)
            after = self.record.read_bytes()
            whole = after.count(letter.encode()) == 600_000 and after.endswith(b'"\r\n')
            self.assertTrue(after == before or whole, run)
            contents.add(after == before)
        self.assertIn(True, contents, "killed early enough at least once")
        # The next start removes what the last one left.
        WINDOWS_PILOT.run(self.folder, days.MORNING)
        self.assertEqual(list(self.folder.rglob("navarun.tmp")), [])


class FolderWithoutRights(unittest.TestCase):
    """Who may write everywhere on this machine runs Wine without that right, with a server of its
    own: it is the server that opens the files."""

    @classmethod
    def setUpClass(cls):
        pilots.make_windows_folder()
        folder = tempfile.TemporaryDirectory(prefix="navarun-essais-", dir=pilots.WINE_FOLDER.parent)
        cls.addClassCleanup(folder.cleanup)
        wine_folder = Path(folder.name) / "wine"
        # The same files under another name: it is the registry alone that is written.
        shutil.copytree(pilots.WINE_FOLDER, wine_folder, symlinks=True, copy_function=os.link)
        cls.environment = pilots.environment(wine_folder)
        rights = "-dac_override,-dac_read_search,-fowner"
        cls.bounded = ["setpriv", "--bounding-set", rights] if os.geteuid() == 0 else []
        cls.server("-p")
        cls.addClassCleanup(cls.server, "-k")

    @classmethod
    def server(cls, what):
        subprocess.run([*cls.bounded, pilots.WINE_SERVER, what], env=cls.environment, check=True,
                       timeout=pilots.PATIENCE, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="navarun-essais-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name) / "essai"
        self.folder.mkdir()

    def answers(self, requests):
        pilot = pilots.Pilot("without rights", self.bounded + WINDOWS_PILOT.command, pilots.on_windows)
        return pilot.answers(self.folder, days.MORNING + requests, env=self.environment)

    def closed(self, folder):
        folder.chmod(0o555)
        self.addCleanup(folder.chmod, 0o755)

    def test_a_program_folder_without_write_permission_is_told(self):
        self.closed(self.folder)
        answer = self.answers([])[-1]
        self.assertEqual(answer.get("error"), "fatal")
        self.assertIn("RESSOURCES/CONFIG.CFG", answer["text"])
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_a_record_folder_without_write_permission_is_told_and_told_that_nothing_is_kept(self):
        self.answers([])
        self.closed(self.folder / "RESSOURCES/DATA1")
        answer = self.answers(WRITE_IT)[-1]
        self.assertEqual(answer.get("error"), "fatal")
        self.assertIn("L'écriture du fichier « Durand Jean.fcy » a échoué.\r\nL'accès est refusé.",
                      answer["text"])
        self.assertIn("n'a pas pu être gardée", answer["effects"][-1]["text"])


if __name__ == "__main__":
    unittest.main()
