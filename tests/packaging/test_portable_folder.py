"""The portable folder, unpacked into a path with blanks and accents, runs from there and keeps its
data beside it."""

import subprocess
import sys
import unittest
from pathlib import Path

from users_desk import UsersDesk

PACKAGES = Path(sys.argv.pop(1))
VERSION = sys.argv.pop(1)


def unpacked(folder):
    """The program folder out of the package, in `folder`."""
    folder.mkdir()
    subprocess.run(["tar", "-xzf", PACKAGES / f"navarun-{VERSION}.tar.gz", "-C", folder],
                   check=True)
    return folder / f"navarun-{VERSION}"


def files_of(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if not path.is_dir()}


class PortableFolder(unittest.TestCase):
    def test_runs_from_anywhere_and_keeps_its_data_beside_it(self):
        with UsersDesk() as desk:
            place = desk.home / "Clé à moi"
            program_folder = unpacked(place)
            self.assertEqual([path.name for path in place.iterdir()], [program_folder.name])
            delivered = files_of(program_folder)
            self.assertEqual({name for name in delivered if not name.startswith("RESSOURCES/DOCS/")},
                             {"navarun"})

            desk.launch([program_folder / "navarun"])
            window = desk.window("N.A.V.A.R.U.N")
            desk.quit(window)

            self.assertEqual(files_of(program_folder) - delivered,
                             {"RESSOURCES/CONFIG.CFG", "RESSOURCES/INTERNET.DAT"})
            self.assertFalse((desk.home / ".local").exists())


if __name__ == "__main__":
    unittest.main()
