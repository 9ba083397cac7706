#!/usr/bin/env python3
"""Makes the collection of birth dates of historical persons.

    make_celebrities.py --sources docs/celebrities --icons assets --version 1.0.0
                        --output CELEBRITES.pdf
"""
import argparse
from html import escape
from itertools import groupby
from pathlib import Path

from celebrities import read_persons
from french_typography import typeset
from pdf import write_pdf


def row_html(person):
    """The row of a person; a date of the old calendar bears its mark and today's date."""
    birth = person.birth
    if person.is_julian:
        birth += f' <b class="julian">J</b><br/><small>{person.gregorian:%d/%m/%Y}</small>'
    anchor = f"p{id_of(person)}"
    return (
        f'<tr id="{anchor}"><td class="name">{escape(person.name, quote=False)}</td>'
        f"<td>{escape(person.known_for, quote=False)}</td>"
        f'<td class="date">{birth}</td><td>{person.weekday}</td></tr>'
    )


def id_of(person):
    return f"{person.gregorian:%Y%m%d}-{'-'.join(person.sort_key)}".replace(" ", "-").replace(
        "'", "-"
    )


def field_html(number, name, persons):
    rows = "".join(row_html(person) for person in sorted(persons, key=lambda p: p.sort_key))
    return (
        f'<h1 id="f{number}">{name}</h1><table><thead><tr><th>Nom</th><th>Connu pour</th>'
        f"<th>Naissance</th><th>Jour</th></tr></thead><tbody>{rows}</tbody></table>"
    )


def index_html(persons):
    return "".join(
        f'<li><a href="#p{id_of(person)}">{escape(person.index_entry, quote=False)}</a></li>'
        for person in sorted(persons, key=lambda p: p.sort_key)
    )


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("sources", "icons", "output"):
        options.add_argument(f"--{name}", type=Path, required=True)
    options.add_argument("--version", required=True)
    given = options.parse_args()
    sources = given.sources.resolve()
    persons = read_persons(sources / "celebrities.csv")
    fields = [(name, list(rows)) for name, rows in groupby(persons, lambda p: p.field)]
    page = (sources / "celebrities.html").read_text(encoding="utf-8")
    for name, value in {
        "version": given.version,
        "icons": given.icons.resolve().as_uri(),
        "count": str(len(persons)),
        "fields": "".join(
            f'<li><a href="#f{number}">{field}</a></li>'
            for number, (field, _) in enumerate(fields)
        ),
        "tables": "".join(
            field_html(number, field, rows) for number, (field, rows) in enumerate(fields)
        ),
        "index": index_html(persons),
    }.items():
        page = page.replace(f"{{{{{name}}}}}", value)
    write_pdf(typeset(page), sources, given.output)


if __name__ == "__main__":
    main()
