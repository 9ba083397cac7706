#!/usr/bin/env python3
"""A day of printing: the preview and its boxes, a page as a PDF, the description of a person.

usage: test_printing.py NAVARUN PILOTE PICTURES.
"""

import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../support")]
from day import Row, play_day
from desk import wait_for
from rows import *

PREVIEW = [
    write("Text_prenom", "Camille"),
    write("Text_nom", "Exemple"),
    write("Combo_jourNaiss", "22101986"),
    click("Command_DateNow"),
    write("Text_Note", "Trois lignes pour la page."),
    menu("MnuApercu_Impression", "opens the preview"),
    *(
        click(f"Option_impression.Check_{box}", f"takes {box} off the page")
        for box in ("Mahadasha", "PhotoImprime", "SeigneurMois", "noteImprime", "palaisDestin", "periode")
    ),
    click("Option_impression.Check_periode", "puts the periods on again"),
    trough("Option_impression.HScroll_annee", right=True),
    arrow("Option_impression.HScroll_annee", right=False),
    click("Option_impression.Btn_remise1", "goes back to the age"),
]
PERSONALITY = [
    menu("MnuPersonalite", "reads the description of the personality"),
    menu("MnuAide", "asks for the manual, which is not there"),
]


def rows(day):
    yield from PREVIEW
    yield menu("MnuApercu_Impression", "closes the preview")
    file = os.path.join(day.desk.folder, "page.pdf")
    yield printer_dialog(day, file)
    wait_for(lambda: os.path.exists(file) and os.path.getsize(file) > 1000, "the printed page")
    words = day.desk.run(["pdftotext", "-layout", file, "-"]).decode()
    for word in ("Camille", "Exemple", "22/10/1986"):
        assert word.lower() in words.lower(), f"{word} is not on the page: {words}"
    told = [op["text"] for page in day.pilot.ask({"op": "pages"})["pages"]
            if page["target"] == "printer" for op in page["ops"] if op["op"] == "text"]
    assert told, "the pilot printed nothing"
    for text in told:
        for word in text.split():
            assert word in words, f"{word!r} of the pilot's page is not on the printed one: {words}"
    yield Row("opens the printer dialog and leaves it",
              [("menu", "MnuImprime"), ("wait", day.windows.box_has_keyboard, "the dialog"),
               ("keys", "Escape")],
              [{"op": "answer", "value": 2}, ask("click", "MnuImprime")])
    yield from PERSONALITY
    yield answered(menu("MnuQuitter", "leaves"), 1)


play_day("printing", rows)
