"""What Debian's own tools say of the Debian package, and what it delivers."""

import gzip
import os
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

PACKAGES = Path(sys.argv.pop(1))
VERSION = sys.argv.pop(1)
DOCUMENTS_ARE_MADE = sys.argv.pop(1) == "1"
[PACKAGE] = PACKAGES.glob("*.deb")
DESKTOP_ID = "fr.navarun.Navarun"


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class DebianPackage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory(prefix="navarun-deb-")
        cls.addClassCleanup(scratch.cleanup)
        cls.tree = Path(scratch.name)
        subprocess.run(["dpkg-deb", "-x", PACKAGE, cls.tree], check=True)

    def assert_content(self, *command):
        """A checker that ends well and has nothing to say."""
        run = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.assertEqual((run.returncode, run.stdout), (0, ""))

    def test_lintian_finds_no_error_and_no_warning(self):
        root = ["--allow-root"] if os.getuid() == 0 else []
        self.assert_content("lintian", "--fail-on", "error,warning", *root, PACKAGE)

    def test_the_desktop_entry_is_valid(self):
        self.assert_content("desktop-file-validate",
                            self.tree / f"usr/share/applications/{DESKTOP_ID}.desktop")

    def test_the_software_centres_find_a_valid_description(self):
        run = subprocess.run(["appstreamcli", "validate-tree", "--no-net", self.tree],
                             capture_output=True, text=True)
        self.assertEqual(run.returncode, 0, run.stdout)
        self.assertNotRegex(run.stdout, r"(?m)^\s*[EW]:")

    def test_the_manual_is_well_formed_in_both_languages(self):
        for folder in ("man1", "fr/man1"):
            with self.subTest(folder):
                page = gzip.open(self.tree / "usr/share/man" / folder / "navarun.1.gz").read()
                run = subprocess.run(["groff", "-man", "-Tutf8", "-Kutf8", "-ww", "-z"], input=page,
                                     capture_output=True)
                self.assertEqual((run.returncode, run.stderr), (0, b""))

    def test_the_version_is_the_same_everywhere(self):
        self.assertEqual(output_of("dpkg-deb", "-f", PACKAGE, "Version").strip(), f"{VERSION}-1")
        changes = gzip.open(self.tree / "usr/share/doc/navarun/changelog.Debian.gz", "rt",
                            encoding="utf-8").readline()
        self.assertEqual(changes.split(")")[0], f"navarun ({VERSION}-1")
        description = xml.parse(self.tree / f"usr/share/metainfo/{DESKTOP_ID}.metainfo.xml")
        self.assertEqual(description.find("releases/release").get("version"), VERSION)

    def test_it_asks_for_what_the_program_calls_while_it_runs(self):
        asked = set(re.findall(r"[\w.+-]+(?=[ ,(\n])", output_of("dpkg-deb", "-f", PACKAGE,
                                                                   "Depends")))
        needed = {"libqt6widgets6", "libqt6svg6", "libc6", "qt6-qpa-plugins",
                  "qt6-translations-l10n", "fonts-liberation", "xdg-utils"}
        self.assertEqual(needed - asked, set())

    @unittest.skipUnless(DOCUMENTS_ARE_MADE, "this build makes no documents")
    def test_both_packages_bring_the_documents(self):
        names = {"AIDE NAVARUN.pdf", "CELEBRITES.pdf"}
        delivered = self.tree / "usr/lib/navarun/RESSOURCES/DOCS"
        self.assertEqual({path.name for path in delivered.iterdir()}, names)
        for name in names:
            self.assertEqual((delivered / name).read_bytes()[:5], b"%PDF-")
        portable = set(output_of("tar", "-tzf", PACKAGES / f"navarun-{VERSION}.tar.gz").splitlines())
        self.assertEqual({f"navarun-{VERSION}/RESSOURCES/DOCS/{name}" for name in names} - portable,
                         set())

    def test_the_binary_carries_no_symbols_and_no_path_of_the_builder(self):
        program = self.tree / "usr/lib/navarun/navarun"
        sections = output_of("objdump", "--section-headers", program)
        for section in (".symtab", ".debug_info"):
            self.assertNotIn(section, sections)
        self.assertNotRegex(output_of("objdump", "--private-headers", program), "R(UN)?PATH")
        sources = Path(__file__).resolve().parents[2]
        self.assertNotIn(bytes(sources), program.read_bytes())

    def test_every_icon_has_the_size_of_its_folder(self):
        icons = self.tree / "usr/share/icons/hicolor"
        self.assertTrue((icons / "scalable/apps/navarun.svg").is_file())
        sizes = {folder.name for folder in icons.iterdir()} - {"scalable"}
        self.assertEqual(sizes, {f"{n}x{n}" for n in (16, 22, 24, 32, 48, 64, 128, 256, 512)})
        for size in sizes:
            picture = icons / size / "apps/navarun.png"
            self.assertEqual(output_of("identify", "-format", "%wx%h", picture), size)

    def test_nothing_lies_outside_the_places_of_a_package(self):
        places = ("usr/bin/navarun", "usr/lib/navarun/", "usr/share/applications/",
                  "usr/share/doc/navarun/", "usr/share/icons/hicolor/", "usr/share/lintian/overrides/",
                  "usr/share/man/", "usr/share/metainfo/")
        for path in self.tree.rglob("*"):
            if not path.is_dir():
                self.assertTrue(str(path.relative_to(self.tree)).startswith(places), path)


if __name__ == "__main__":
    unittest.main()
