#!/usr/bin/env python3
"""A day with the keyboard alone: the pointer rests beside the window from morning to evening.

usage: test_keyboard.py NAVARUN PILOTE PICTURES.
"""

import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../support")]
from day import Row, play_day
from rows import *

ENTER, CONTROL = 13, 17
BAR, LIST, RECORDS = "HScroll_age", "Affiche_cycle.List_periode", "File_Fichier"


def clicked(name):
    return [ask("click", name)]


def by_letters(entry, *keys):
    return Row(f"takes {entry} by the letters of the menus", [("keys", *keys)], [ask("click", entry)])


ROWS = [
    Row("types the first name", [("type", "zoé")], [ask("type", "Text_prenom", text="zoé")]),
    tab_to("Text_nom", ("type", "témoin"), then=lambda name: [ask("type", name, text="témoin")]),
    tab_to("Combo_jourNaiss", ("type", "03111971"),
           then=lambda name: [ask("type", name, text="03111971")]),
    tab_to("Command2", ("keys", "Return"), then=clicked, told="generates by Enter"),
    tab_to(BAR, ("keys", "Right", "Right"), back=True,
           then=lambda name: [ask("set", name, value=2), ask("set", name, value=3)]),
    Row("goes on by ten", [("keys", "Prior")], moved("set", BAR)),
    Row("makes the chart follow by Enter", [("keys", "Return")], [ask("key", BAR, code=ENTER)]),
    tab_to("Label_mois", ("press and stay", "Right"), told="walks into the months"),
    Row("picks the month by Enter", [("keys", "Return")],
        lambda day: clicked(day.hand.walked[-1])),
    tab_to("Label_Dasha", ("keys", "Return"), then=clicked, back=True, told="picks a period by Enter"),
    tab_to("Label_Solaire", ("keys", "shift+Return"), then=lambda name: [ask("dblclick", name)],
           told="asks for a definition by Shift and Enter"),
    tab_to("Text_Note", ("type", "Une note."), then=lambda name: [ask("type", name, text="Une note.")]),
    tab_to("Command_DateNow", ("keys", "space"), then=clicked),
    Row("opens the list of periods", [("keys", "alt+a", "a"), ("wait window", "Périodes")],
        [ask("click", "Mnuperiode")]),
    Row("goes down in it", [("keys", "Down")],
        lambda day: [ask("choose", LIST, index=day.pilot.value(LIST + ".ListIndex") + 1)]),
    Row("closes it", [("keys", "alt+F4")], [{"op": "close", "form": "Affiche_cycle"}]),
    Row("opens the palace of destiny", [("keys", "alt+a", "p"), ("wait window", "PALAIS DU DESTIN")],
        [ask("click", "Mnu_palaisdestin")]),
    Row("closes it", [("keys", "alt+F4")], [{"op": "close", "form": "Palais_du_destin"}]),
    Row("opens the preview", [("keys", "alt+i", "a"), ("wait window", "Option Impression")],
        [ask("click", "MnuApercu_Impression")]),
    Row("takes the great cycle off the page by Space", [("keys", "space")],
        [ask("click", "Option_impression.Check_Mahadasha")]),
    Row("closes it", [("keys", "alt+F4")], [{"op": "close", "form": "Option_impression"}]),
    tab_to("Label_age", ("keys", "Return"), then=clicked, told="opens the choice of an age"),
    Row("leaves it by Escape", [("keys", "Escape")], [{"op": "close", "form": "choix_age"}]),
]
KEEP = [
    tab_to("Command_Disk_Vert", ("keys", "Return"), told="saves by Enter", then=clicked),
    tab_to("Charge(1)", ("keys", "Return"), then=clicked, told="opens the folder", back=True),
]


def move_the_record(day):
    """To the other folder: Control takes it up, Tab leads to the folders, Enter lets it go."""
    yield tab_to("Charge(1)", ("keys", "Return"), then=clicked, back=True, told="opens the folder again")
    yield tab_to(RECORDS, ("keys", "Down"), then=lambda name: [ask("choose", name, index=0)], back=True,
                 told="selects the record")
    yield Row("takes it up by Control", [("keys", "Control_L")], [ask("key", RECORDS, code=CONTROL)])
    yield Row("lets it go on the other folder", [("keys", "Tab", "Tab", "Return")],
              [ask("drop", "Charge(2)")])
    kept = os.listdir(os.path.join(day.folders[0], "RESSOURCES", "DATA2"))
    assert kept == ["Témoin Zoé.fcy"], kept


def rows(day):
    yield from ROWS
    yield KEEP[0]
    yield KEEP[1]
    yield Row("searches", [("type", "tém")], [ask("type", "Text_Cherche", text="tém")])
    yield Row("loads by Enter", [("keys", "Return")], [ask("key", "Text_Cherche", code=ENTER)])
    assert not day.pilot.value("Frame_FileFichier.Visible"), "nothing was found and loaded"
    yield from move_the_record(day)
    yield Row("would leave, but stays", [("keys", "alt+F4")],
              [{"op": "answer", "value": 2}, {"op": "close", "form": "Form1"}])
    yield Row("leaves", [("keys", "alt+F4")],
              [{"op": "answer", "value": 1}, {"op": "close", "form": "Form1"}])


play_day("keyboard", rows)
