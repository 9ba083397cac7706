"""What the manual states, held against the program itself."""
import re
import unittest

from program import SOURCES, Program

CHAPTERS = SOURCES / "docs/manual"

# Where the words of the screen are written.
PROGRAM_FOLDERS = (
    "chart core desktop files periods print readings shell zodiac".split()
)
# Words that the manual shows in the same way, and that are no literal of the program.
OF_THE_DESKTOP = {
    '"',  # the mark that a note must not hold
    r'/ \ : * ? " < > |',
    "KUJA (5 / 6 ans)",  # composed; held against the program below
    "RESSOURCES/DATA1",
    "RESSOURCES/DATA2",
    "RESSOURCES/IMAGE",
    "RESSOURCES/INTERNET.DAT",
    "RESSOURCES/CONFIG.CFG",
    "RESSOURCES/DOCS",
    "DOCS",
}


def chapter(name):
    return (CHAPTERS / name).read_text(encoding="utf-8")


def plain(text):
    return re.sub(r"\s+", " ", text.replace("&", "")).strip()


def literals_of_the_program():
    literal = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
    found = []
    for folder in PROGRAM_FOLDERS:
        for path in sorted((SOURCES / folder).rglob("*")):
            if path.suffix in (".cpp", ".h") and "gallery" not in path.parts:
                source = path.read_text(encoding="utf-8")
                joined = re.sub(r'"\s*\n\s*"', "", source)
                found += [plain(text) for text in literal.findall(joined)]
    return "\n".join(found)


def table(text, heading):
    """The rows below a heading, cell by cell, without the head."""
    below = text.split(heading, 1)[1]
    lines = re.search(r"(?:^\|.*\n)+", below, re.M)[0].splitlines()[2:]
    return [[cell.strip() for cell in line.strip("|").split("|")] for line in lines]


class WordsOfTheScreen(unittest.TestCase):
    def test_every_word_quoted_stands_in_the_program(self):
        literals = literals_of_the_program()
        quoted = {
            plain(words)
            for path in CHAPTERS.glob("*.md")
            for words in re.findall(r"`([^`]+)`", path.read_text(encoding="utf-8"))
        }
        self.assertGreater(len(quoted), 50)
        missing = {w for w in quoted - {plain(w) for w in OF_THE_DESKTOP} if w not in literals}
        self.assertEqual(missing, set())

    def test_every_entry_of_the_menus_is_told(self):
        program = Program()
        self.addCleanup(program.close)
        menus = plain(chapter("menus.md"))
        source = (SOURCES / "shell/form1.cpp").read_text(encoding="utf-8")
        names = set(re.findall(r'\b(Mnu\w+)\{\*this, "', source, re.I))
        self.assertGreater(len(names), 20)
        for name in names:
            caption = plain(program.value(f"{name}.Caption"))
            if re.match(r"(Azur|Mauve) \(", caption):
                self.assertIn(caption, chapter("apparence.md"))
            else:
                self.assertIn(caption, menus, name)


class Statements(unittest.TestCase):
    def setUp(self):
        self.program = Program()
        self.addCleanup(self.program.close)

    def caption(self, control):
        return self.program.value(f"{control}.Caption")

    def generate(self, birth):
        self.program.birth(birth)
        self.program.click("Command2")

    def test_camille_of_the_quick_start(self):
        self.program.birth("22/10/1986")
        self.program.click("Command_DateNow")
        self.assertEqual(self.caption("Label_Lal_Kitab"), "KUJA (5 / 6 ans)")
        self.assertEqual(plain(self.caption("Label_zodiac")), "6 ° Balance")
        self.assertEqual(
            plain(self.caption("Label_dinanka_Purnanka")), "Dinânka: 4 Purnânka: 2"
        )
        self.assertEqual(self.caption("Label_annee(10)"), "Kuja")
        self.assertEqual(self.caption("Label_divinite"), "Budha 5")

    def test_the_signs_begin_and_end_on_the_days_of_the_table(self):
        rows = table(chapter("tables.md"), "## Les douze signes")
        self.assertEqual(len(rows), 12)
        for number, sign, element, *eras in rows:
            for year, era in zip((1975, 2025), eras):
                for day in era.split(" au "):
                    self.generate(f"{day}/{year}")
                    self.assertTrue(self.caption("Label_zodiac").endswith(f" {sign}"), day)
                    self.assertEqual(str(self.program.value("signe_solaire")), number)
                # Degree 0 on the first day: the table cannot begin late.
                self.generate(f"{era[:5]}/{year}")
                self.assertEqual(self.program.value("degre_solaire"), 0, (sign, era))

    def test_the_mansions_of_the_table(self):
        rows = table(chapter("tables.md"), "## Les vingt-sept Nakshatras")
        told = {tuple(row[at : at + 3]) for row in rows for at in (0, 3, 6)}
        self.assertEqual(len(told), 27)
        shown = set()
        for month in range(1, 13):
            for day in range(1, 29):
                self.generate(f"{day:02}/{month:02}/1975")
                number, mansion = self.caption("Label_nomNakshatra").split(" ", 1)
                shown.add((number, mansion, self.caption("Label_Nak")))
        self.assertEqual(told, shown)

    def test_the_years_of_the_nine_lords(self):
        rows = table(chapter("carte.md"), "## Les neuf seigneurs")
        told = {name.upper(): int(years) for _, name, _, _, years, _, _ in rows}
        self.generate("22/10/1986")
        shown = {}
        for age in range(1, 36):
            self.program.ask(op="set", control="HScroll_age", value=age)
            lord, years = re.match(r"(\w+) \(\d / (\d)", self.caption("Label_Lal_Kitab")).groups()
            shown[lord] = int(years)
        self.assertEqual(told, shown)

    def test_a_29_february_wants_its_year_first(self):
        self.program.birth("01/01/1901")
        self.program.ask(op="focus", control="Text_nom")
        self.program.ask(op="type", control="Combo_jourNaiss", text="29021988")
        self.assertEqual(self.program.value("date_naissance"), "28/02/1988")
        self.program.birth("29/02/1988")
        self.assertEqual(self.program.value("date_naissance"), "29/02/1988")

    def test_a_31_typed_over_a_month_of_30_days_is_typed_again(self):
        self.program.birth("01/11/1950")
        for expected in ("30/12/1950", "31/12/1950"):
            self.program.ask(op="focus", control="Text_nom")
            self.program.ask(op="type", control="Combo_jourNaiss", text="31121950")
            self.assertEqual(self.program.value("date_naissance"), expected)

    def test_the_entries_that_wait_for_a_true_cycle(self):
        grey = ("MnuImprime", "MnuApercu_Impression", "Mnu_palaisdestin", "Mnuperiode")
        self.generate("22/10/1986")
        self.assertEqual([self.program.value(f"{e}.Enabled") for e in grey], [True] * 4)
        self.program.ask(op="set", control="HScroll_age", value=45)
        self.assertEqual([self.program.value(f"{e}.Enabled") for e in grey], [False] * 4)

    def test_the_julian_entry_is_grey_from_2000_on(self):
        self.program.birth("31/12/1999")
        self.assertTrue(self.program.value("Mnu_Julien.Enabled"))
        self.program.birth("01/01/2000")
        self.assertFalse(self.program.value("Mnu_Julien.Enabled"))


if __name__ == "__main__":
    unittest.main()
