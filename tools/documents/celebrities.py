"""The historical persons of the collection: the data file, read and put in order."""
import csv
import re
import unicodedata
from dataclasses import dataclass
from datetime import date

WEEKDAYS = ("lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi", "dimanche")


@dataclass(frozen=True)
class Person:
    field: str
    first_name: str
    last_name: str
    birth: str  # dd/mm/yyyy, in the calendar of the country
    is_julian: bool
    gregorian: date  # the same day in the calendar of today
    known_for: str

    @property
    def name(self):
        return f"{self.first_name} {self.last_name}".strip()

    @property
    def weekday(self):
        return WEEKDAYS[self.gregorian.weekday()]

    @property
    def sort_key(self):
        """The last name without its particle and accents, then the first name."""
        bare = re.sub(r"^(de |d'|du |von )", "", self.last_name)
        return tuple(_plain_letters(part) for part in (bare, self.first_name))

    @property
    def index_entry(self):
        """Last name first: "Balzac, Honoré de"."""
        particle = re.match(r"(de |d'|du |von )?(.*)", self.last_name)
        behind = f"{self.first_name} {(particle[1] or '').strip()}".strip()
        return f"{particle[2]}, {behind}" if behind else particle[2]


def _plain_letters(text):
    text = text.casefold()
    for joined, letters in (("œ", "oe"), ("ø", "o"), ("ł", "l")):
        text = text.replace(joined, letters)
    return unicodedata.normalize("NFD", text).encode("ascii", "ignore").decode()


def _date(text):
    day, month, year = text.split("/")
    return date(int(year), int(month), int(day))


def read_persons(path):
    """The rows of the data file, in its order.

    REQUIRES well-formed rows; the tests of the documents see to that.
    """
    with open(path, encoding="utf-8", newline="") as file:
        return [
            Person(
                field=row["domaine"],
                first_name=row["prenom"],
                last_name=row["nom"],
                birth=row["naissance"],
                is_julian=row["calendrier"] == "julien",
                gregorian=_date(row["gregorien"] or row["naissance"]),
                known_for=row["qualite"],
            )
            for row in csv.DictReader(file, delimiter=";")
        ]
