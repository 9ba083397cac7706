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


def printer_dialog(day, file):
    """The printer dialog, for a desk with no printer: into a file. Told as an act of the hands."""

    def print_to_file():
        from window import children, has, STATE, text_of, walk

        window = wait_for(
            lambda: next((w for w, role, name, _ in day.windows.all() if "Imprim" in name and role == "dialog"), None),
            "the printer dialog",
        )
        field = wait_for(
            lambda: next(
                (node for node in walk(window)
                 if node.get_role_name() == "text" and has(node, STATE.SHOWING)
                 and has(node, STATE.EDITABLE) and ".pdf" in text_of(node)),
                None,
            ),
            "the file's name in the printer dialog",
        )
        from window import extents

        x, y, width, height = extents(field)
        day.hand.do(("click on screen", x + width // 2, y + height // 2))
        day.hand.do(("keys", "ctrl+a"))
        day.hand.do(("type", file))
        day.hand.do(("button", window.get_name(), "Imprimer"))
        return True

    return Row(
        "prints the page into a file",
        [("menu", "MnuImprime"), ("wait", print_to_file, "the page printed")],
        [{"op": "answer", "value": 1}, ask("click", "MnuImprime")],
    )


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
              [("menu", "MnuImprime"), ("wait", lambda: any(role == "dialog" for _, role, _, _ in day.windows.all()), "the dialog"),
               ("keys", "Escape")],
              [{"op": "answer", "value": 2}, ask("click", "MnuImprime")])
    yield from PERSONALITY
    yield answered(menu("MnuQuitter", "leaves"), 1)


play_day("printing", rows)
