"""The launcher gives each user a folder of their own and starts the program by its link there.
A stand-in for the program tells what it was started as."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TEMPLATE = Path(sys.argv.pop(1))
STAND_IN = '#!/bin/sh\nprintf "%s\\n" "$0" "$@"\n'


class Launcher(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="navarun-launcher-")
        self.addCleanup(scratch.cleanup)
        self.scratch = Path(scratch.name)
        self.installed = self.scratch / "lib"
        self.program = self.installed / "navarun"
        self.documents = self.installed / "RESSOURCES" / "DOCS"
        self.documents.mkdir(parents=True)
        self.program.write_text(STAND_IN)
        self.program.chmod(0o755)
        self.launcher = self.scratch / "launcher"
        self.launcher.write_text(
            TEMPLATE.read_text().replace("@NAVARUN_PROGRAM_FOLDER@", str(self.installed)))
        self.home = self.scratch / "Maison d'Élodie  Béranger"
        self.home.mkdir()
        self.folder = self.home / ".local/share/navarun"
        self.link = self.folder / "navarun"
        self.documents_link = self.folder / "RESSOURCES/DOCS"
        self.tools = self.scratch / "bin"
        self.tools.mkdir()

    def launch(self, *arguments, **environment):
        """Runs the launcher with no more than the given environment and the home folder."""
        environment = {"HOME": str(self.home), "PATH": f"{self.tools}:/usr/bin:/bin",
                       "LANG": "C.UTF-8", **environment}
        return subprocess.run(["sh", str(self.launcher), *arguments], env=environment,
                              cwd=self.scratch, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=30)

    def assert_starts_by(self, link, run, *arguments):
        self.assertEqual(run.stderr, "")
        self.assertEqual(run.returncode, 0)
        self.assertEqual(run.stdout.splitlines(), [str(link), *arguments])

    def assert_refused(self, run, *words):
        self.assertEqual(run.returncode, 1)
        self.assertEqual(run.stdout, "")
        for word in ("N.A.V.A.R.U.N ne peut pas démarrer", *words):
            self.assertIn(word, run.stderr)

    def put_stand_in_tool(self, name):
        """A tool of the desktop that keeps what it was asked to show."""
        tool = self.tools / name
        tool.write_text(f'#!/bin/sh\nexec >"{self.scratch}/{name}.shown"\nprintf "%s\\n" "$@"\n'
                        'case " $* " in *" -file - "*) cat ;; esac\n')
        tool.chmod(0o755)

    def shown(self, name):
        kept = self.scratch / f"{name}.shown"
        return kept.read_text(encoding="latin-1") if kept.exists() else None

    def test_the_first_start_makes_the_folder_and_its_links(self):
        self.assert_starts_by(self.link, self.launch())
        self.assertEqual(os.readlink(self.link), str(self.program))
        self.assertEqual(os.readlink(self.documents_link), str(self.documents))

    def test_consultations_are_nobody_elses_business(self):
        self.launch()
        for folder in (self.folder, self.folder / "RESSOURCES"):
            self.assertEqual(folder.stat().st_mode & 0o777, 0o700)

    def test_a_data_home_of_the_users_choice_is_taken(self):
        chosen = self.scratch / "Données à moi"
        self.assert_starts_by(chosen / "navarun/navarun", self.launch(XDG_DATA_HOME=str(chosen)))
        self.assertFalse(self.folder.exists())

    def test_a_relative_or_empty_data_home_counts_as_none(self):
        for data_home in ("ailleurs", ""):
            self.assert_starts_by(self.link, self.launch(XDG_DATA_HOME=data_home))

    def test_what_was_asked_reaches_the_program(self):
        self.assert_starts_by(self.link, self.launch("deux mots", "*"), "deux mots", "*")

    def test_a_second_start_changes_nothing(self):
        self.launch()
        (self.folder / "RESSOURCES/CONFIG.CFG").write_text("0\r\n")
        before = sorted((path, path.lstat().st_mtime_ns) for path in self.folder.rglob("*"))
        self.assert_starts_by(self.link, self.launch())
        after = sorted((path, path.lstat().st_mtime_ns) for path in self.folder.rglob("*"))
        self.assertEqual(after, before)

    def test_links_that_lead_elsewhere_or_nowhere_are_set_right(self):
        elsewhere = self.scratch / "elsewhere"
        elsewhere.mkdir()
        for target in (elsewhere, self.scratch / "gone"):
            with self.subTest(target=target):
                self.launch()
                for link in (self.link, self.documents_link):
                    link.unlink()
                    link.symlink_to(target)
                self.assert_starts_by(self.link, self.launch())
                self.assertEqual(os.readlink(self.link), str(self.program))
                self.assertEqual(os.readlink(self.documents_link), str(self.documents))
        self.assertEqual(list(elsewhere.iterdir()), [])

    def test_a_program_of_the_users_own_is_set_aside_not_deleted(self):
        self.folder.mkdir(parents=True)
        for own in ("premier", "second"):
            self.link.unlink(missing_ok=True)
            self.link.write_text(own)
            self.assert_starts_by(self.link, self.launch())
        kept = {path.read_text() for path in self.folder.glob("navarun.ancien*")}
        self.assertEqual(kept, {"premier", "second"})

    def test_documents_of_the_users_own_stay(self):
        self.documents_link.mkdir(parents=True)
        (self.documents_link / "AIDE NAVARUN.pdf").write_text("annoté")
        self.assert_starts_by(self.link, self.launch())
        self.assertFalse(self.documents_link.is_symlink())
        self.assertEqual((self.documents_link / "AIDE NAVARUN.pdf").read_text(), "annoté")

    def test_without_installed_documents_there_is_no_link_to_them(self):
        self.documents.rmdir()
        self.assert_starts_by(self.link, self.launch())
        self.assertFalse(self.documents_link.is_symlink())

    def test_a_folder_that_cannot_be_made_is_told(self):
        self.folder.parent.mkdir(parents=True)
        self.folder.write_text("un fichier à la place du dossier")
        run = self.launch()
        self.assert_refused(run, f"Le dossier « {self.folder} » n'a pas pu être créé")
        self.assertEqual(self.folder.read_text(), "un fichier à la place du dossier")

    def test_an_unknown_home_is_told(self):
        self.assert_refused(self.launch(HOME=""), "HOME est vide")

    def test_a_missing_program_is_told(self):
        self.program.unlink()
        self.assert_refused(self.launch(), "réinstallez le paquet navarun")
        self.assertFalse(self.folder.exists())

    def test_a_refusal_is_shown_on_the_screen_by_the_first_tool_there_is(self):
        # None of the machine's own tools may be found: a search path with stand-ins alone.
        for name in ("cat", "fold", "iconv"):
            (self.tools / name).symlink_to(Path("/usr/bin") / name)
        sh = os.path.realpath("/bin/sh")
        (self.tools / "sh").symlink_to(sh)
        refused = {"HOME": "", "DISPLAY": ":nulle-part", "PATH": str(self.tools)}

        def launch():
            return subprocess.run([sh, str(self.launcher)], env=refused, capture_output=True,
                                  text=True, timeout=30)

        self.assert_refused(launch(), "HOME est vide")
        for tool in ("xmessage", "zenity", "kdialog"):  # the last comes first
            self.put_stand_in_tool(tool)
            self.assert_refused(launch(), "HOME est vide")
            self.assertIn("HOME est vide", self.shown(tool))
            (self.scratch / f"{tool}.shown").unlink()
        self.assertIsNone(self.shown("xmessage"))
        self.assertIsNone(self.shown("zenity"))

    def test_without_a_screen_no_tool_is_called(self):
        self.put_stand_in_tool("kdialog")
        self.assert_refused(self.launch(HOME=""), "HOME est vide")
        self.assertIsNone(self.shown("kdialog"))


if __name__ == "__main__":
    unittest.main()
