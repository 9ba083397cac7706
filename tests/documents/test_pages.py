"""Both documents as files: their text, fonts, pictures, contents and description."""
import re
import subprocess
import unittest

from program import CELEBRITIES, MANUAL, SOURCES, text_of


def lines_of(tool, pdf):
    command = [tool, *(["-list"] if tool == "pdfimages" else []), str(pdf)]
    return subprocess.run(command, check=True, capture_output=True).stdout.decode().splitlines()


def description(pdf):
    lines = [line for line in lines_of("pdfinfo", pdf) if ": " in line]
    return dict(re.split(r":\s+", line, maxsplit=1) for line in lines)


class Pages(unittest.TestCase):
    def each(self):
        return ((MANUAL, 20), (CELEBRITIES, 12))

    def test_they_are_of_a4_and_have_their_pages(self):
        for pdf, least in self.each():
            told = description(pdf)
            self.assertGreaterEqual(int(told["Pages"]), least, pdf.name)
            self.assertIn("A4", told["Page size"], pdf.name)

    def test_they_say_what_they_are_and_in_which_language(self):
        for pdf, title in ((MANUAL, "AIDE NAVARUN"), (CELEBRITIES, "CELEBRITES")):
            self.assertTrue(description(pdf)["Title"].startswith(title), pdf.name)
            self.assertIn(b"/Lang (fr)", pdf.read_bytes(), pdf.name)

    def test_they_have_an_outline(self):
        for pdf, _ in self.each():
            self.assertIn(b"/Outlines", pdf.read_bytes(), pdf.name)

    def test_they_bear_no_date_of_their_making(self):
        for pdf, _ in self.each():
            self.assertNotIn("CreationDate", description(pdf), pdf.name)

    def test_every_font_is_embedded_and_of_the_house(self):
        for pdf, _ in self.each():
            fonts = lines_of("pdffonts", pdf)[2:]
            self.assertGreaterEqual(len(fonts), 4, pdf.name)
            for font in fonts:
                embedded, subset, unicode_known = font.split()[-5:-2]
                self.assertEqual((embedded, subset, unicode_known), ("yes",) * 3, font)
                self.assertRegex(font, r"^[A-Z]{6}\+Liberation-(Serif|Sans)", font)

    def test_every_page_has_text(self):
        for pdf, _ in self.each():
            pages = text_of(pdf).rstrip("\f").split("\f")
            self.assertEqual(len(pages), int(description(pdf)["Pages"]), pdf.name)
            for number, page in enumerate(pages, 1):
                self.assertGreater(len(page.split()), 5, f"{pdf.name}, page {number}")

    def test_no_mark_of_the_sources_is_left_on_paper(self):
        for pdf, _ in self.each():
            text = text_of(pdf)
            for mark in ("{{", "{:", "**", "](", "`", "<div", "picture:", "icon:"):
                self.assertNotIn(mark, text, pdf.name)


class Manual(unittest.TestCase):
    def test_every_picture_of_the_sources_is_in_the_manual(self):
        named = set()
        for chapter in (SOURCES / "docs/manual").glob("*.md"):
            named |= set(re.findall(r"picture:([\w-]+)", chapter.read_text(encoding="utf-8")))
        self.assertGreaterEqual(len(named), 20)
        # The size of a picture is the one that it was taken with.
        shown = {line.split()[10] for line in lines_of("pdfimages", MANUAL)[2:]}
        self.assertGreaterEqual(len(shown), len(named))

    def test_the_contents_tell_the_page_of_each_heading(self):
        pages = text_of(MANUAL).split("\f")
        told = re.findall(r"^(\S.*?)(?: \.){2,} ?(\d+)$", pages[1], re.M)
        self.assertGreaterEqual(len(told), 45)
        for heading, page in told:
            self.assertIn(heading, re.sub(r"\s+", " ", pages[int(page) - 1]), heading)

    def test_the_quick_start_keeps_its_one_page(self):
        pages = text_of(MANUAL).split("\f")
        self.assertIn("Pour la personne suivante", pages[2])
        self.assertIn("Seigneur du jour", pages[2])


if __name__ == "__main__":
    unittest.main()
