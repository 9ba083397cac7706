"""The birth dates of the historical persons: valid, single, and read by the program as printed."""
import csv
import unittest
from datetime import date, timedelta

from program import CELEBRITIES, SOURCES, Program, text_of

COLUMNS = ["domaine", "prenom", "nom", "naissance", "calendrier", "gregorien", "qualite"]
WEEKDAYS = ["Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi", "Dimanche"]


def rows():
    path = SOURCES / "docs/celebrities/celebrities.csv"
    with path.open(encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file, delimiter=";"))


def parts(text):
    day, month, year = text.split("/")
    assert (len(day), len(month), len(year)) == (2, 2, 4), text
    return int(day), int(month), int(year)


def gregorian_of_julian(text):
    """By counting days from a day that both calendars name: 1 March 1600 J. is 11 March."""
    day, month, year = parts(text)
    lengths = [31, 29 if year % 4 == 0 else 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]
    assert 1 <= month <= 12 and 1 <= day <= lengths[month - 1], f"no such Julian day: {text}"
    leap_days = (year - 1) // 4 - 1599 // 4
    days = (year - 1600) * 365 + leap_days + sum(lengths[: month - 1]) + day
    first_of_march_1600 = 31 + 29 + 1
    return date(1600, 3, 11) + timedelta(days - first_of_march_1600)


def same_day_today(row):
    if row["calendrier"] == "julien":
        return gregorian_of_julian(row["naissance"])
    day, month, year = parts(row["naissance"])
    return date(year, month, day)


def name(row):
    return f"{row['prenom']} {row['nom']}".strip()


class JulianCount(unittest.TestCase):
    def test_known_days(self):
        for julian, gregorian in (
            ("25/10/1917", date(1917, 11, 7)),  # the October revolution
            ("31/01/1918", date(1918, 2, 13)),  # the last one in Russia
            ("02/09/1752", date(1752, 9, 13)),  # the last one in England
            ("29/02/1700", date(1700, 3, 11)),
        ):
            self.assertEqual(gregorian_of_julian(julian), gregorian, julian)


class Data(unittest.TestCase):
    def test_there_are_at_least_two_hundred_persons_in_every_field_of_life(self):
        self.assertGreaterEqual(len(rows()), 200)
        self.assertGreaterEqual(len({row["domaine"] for row in rows()}), 9)

    def test_every_row_is_complete(self):
        for row in rows():
            self.assertEqual(list(row), COLUMNS)
            for column in ("domaine", "nom", "naissance", "qualite"):
                self.assertTrue(row[column], row)
            self.assertEqual([v for v in row.values() if v != v.strip()], [], row)
            self.assertIn(row["calendrier"], ("julien", "grégorien"), row)

    def test_a_field_stands_together(self):
        fields = [row["domaine"] for row in rows()]
        changes = sum(before != after for before, after in zip(fields, fields[1:]))
        self.assertEqual(changes + 1, len(set(fields)))

    def test_every_birth_is_a_day_that_the_program_knows(self):
        for row in rows():
            born = same_day_today(row)
            self.assertGreaterEqual(parts(row["naissance"])[2], 1600, row)
            self.assertLess(born, date(2025, 1, 1), row)

    def test_no_person_stands_twice(self):
        names = [name(row) for row in rows()]
        self.assertEqual(sorted(names), sorted(set(names)))

    def test_a_day_of_the_old_calendar_is_given_in_both(self):
        for row in rows():
            if row["calendrier"] == "julien":
                given = f"{gregorian_of_julian(row['naissance']):%d/%m/%Y}"
                self.assertEqual(row["gregorien"], given, row)
                # The last countries gave the old calendar up in 1923.
                self.assertLess(parts(row["naissance"])[2], 1924, row)
            else:
                self.assertEqual(row["gregorien"], "", row)


class InTheProgram(unittest.TestCase):
    def test_every_date_is_taken_as_printed_and_falls_on_the_printed_weekday(self):
        program = Program()
        self.addCleanup(program.close)
        for row in rows():
            program.birth(row["naissance"])
            if row["calendrier"] == "julien":
                program.click("Mnu_Julien")
                self.assertEqual(program.value("date_convertie"), row["gregorien"], row)
            program.click("Command2")
            self.assertEqual(program.value("date_naissance"), row["naissance"], row)
            self.assertEqual(
                program.value("Label_jourdeSemaine.Caption"),
                WEEKDAYS[same_day_today(row).weekday()],
                row,
            )


class Printed(unittest.TestCase):
    def test_every_person_is_printed_with_date_and_weekday(self):
        lines = text_of(CELEBRITIES, "-layout").splitlines()
        for row in rows():
            weekday = WEEKDAYS[same_day_today(row).weekday()].lower()
            found = [
                line
                for line in lines
                if name(row) in line and row["naissance"] in line and weekday in line
            ]
            self.assertEqual(len(found), 1, row)
            self.assertEqual(" J " in found[0], row["calendrier"] == "julien", found)

    def test_the_index_goes_from_a_to_z(self):
        index = text_of(CELEBRITIES).rsplit("\nIndex\n", 1)[-1]
        places = [index.index(f"\n{entry}") for entry in ("Musset, Alfred de", "Napoléon III")]
        places += [index.index(f"\n{entry}") for entry in ("Schneider", "Schœlcher", "Schönberg")]
        self.assertEqual(places, sorted(places))


if __name__ == "__main__":
    unittest.main()
