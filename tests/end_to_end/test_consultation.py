#!/usr/bin/env python3
"""A day with the mouse: a person comes, is typed in and looked at from all sides.

usage: test_consultation.py NAVARUN PILOTE PICTURES.
"""

import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../support")]
from acts import *
from day import Row, play_day
from rows import *

# A window that opens leaves the field in which one writes unfinished; what is done in it does not.
A_WINDOW_IN_BETWEEN = [
    write("Text_prenom", "anne-lise", "types a first name in small letters"),
    menu("Mnuperiode", "opens the list of periods: the name stays as it is"),
    close("Affiche_cycle"),
    Row("writes on without a click", [("type", " rose")], [ask("type", "Text_prenom", text=" rose")]),
    menu("Mnuperiode", "opens the list again"),
    entry("Affiche_cycle.List_periode", 4, "picks a line: the name is finished"),
    write("Text_nom", "x", "comes back"),
    menu("Mnuperiode", "closes the list"),
    Row("types half a day of birth", [("click", "Combo_jourNaiss"), ("type", "1")],
        [ask("click", "Combo_jourNaiss"), ask("type", "Combo_jourNaiss", text="1")]),
    menu("MnuCalendrier", "opens the calendar: the date stays as it is"),
    close("frmCalend"),
    click("Label_age", "opens the choice of an age"),
    Row("leaves it by Escape", [("keys", "Escape")], [{"op": "close", "form": "choix_age"}]),
    click("Bouton_Image", "opens the images: the date is repaired"),
    click("Bouton_Image", "closes them"),
    click("Command_reset", "begins anew"),
]
THE_PERSON = [
    write("Text_prenom", "marie-claire", "types the first name in small letters"),
    write("Text_nom", "modèle"),
    write("Combo_jourNaiss", "17051962", "types the date of birth, digit by digit"),
    click("Command2", "generates"),
    write("Text_Note", "Première visite.", "writes a note"),
]
THE_AGES = [
    *STEPS_OF_THE_BAR,
    thumb(BAR, 0.06, 0.5),
    click("Command2", "generates for that age"),
    thumb(BAR, 0.5, 1.0),
    trough(BAR, right=False),
    Row("goes to the first age by Home", [("keys", "Home")], moved("set", BAR)),
    Row("goes on by the arrow of the keyboard", [("keys", "Right", "Right")],
        [ask("set", BAR, value=2), ask("set", BAR, value=3)]),
    click("Command_DateNow", "goes to the present age"),
]
THE_CHOOSER = [
    click("Label_age", "opens the choice of an age"),
    Row("points at an age", [("point", "choix_age.Label2(45)")], [ask("hover", "choix_age.Label2(45)")]),
    *CHOICE_OF_AN_AGE,
    click("Label_age", "opens the choice again"),
    Row("leaves it by Escape", [("keys", "Escape")], [{"op": "close", "form": "choix_age"}]),
]
THE_WINDOWS = [
    menu("Mnuperiode", "opens the list of periods"),
    entry("Affiche_cycle.List_periode", 3),
    click("Text_prenom", "comes back to the main window"),
    click("Command_DateNow"),
    menu("Mnuperiode", "closes the list"),
    *DESTINY_AND_LORDS,
    *CALENDAR,
    close("frmCalend"),
    *ABOUT,
]
THE_ARROWS = [
    menu("MnuFleche", "opens the arrows"),
    draw(150, 150, 330, 330),
    click("Fleche.Label_couleur(12)", "chooses red"),
    click("Fleche.Option_Fleche(2)", "chooses the other kind of arrow"),
    draw(340, 150, 160, 300),
    Row("chooses a thicker line", [("click at", "Fleche.Picture1", 60, 50)],
        [ask("mouse", "Fleche.Picture1", event="down", button=1, x=60 * 15, y=50 * 15)]),
    click("Fleche.Option_Fleche(3)", "chooses a plain line"),
    draw(180, 240, 320, 240),
    click("Fleche.Command1", "wipes the arrows off"),
    draw(200, 160, 200, 320),
    menu("MnuFleche", "closes the arrows"),
]
THE_LOOKS = [
    menu("MnuAzur_Aum"),
    menu("MnuMauve_cycle"),
    click("Command_DateNow"),
    menu("MnuMauve_Aum"),
    menu("Mnuperiode", "opens the list of periods in mauve"),
    close("Affiche_cycle"),
    menu("MnuAzur_cycle"),
    *ABRIDGED,
    *BY_A_JULIAN_DATE,
    Row("points at the mark of the calendar", [("point", "Image_cal_Julien")], [ask("hover", "Image_cal_Julien")]),
    *BACK_BY_THE_MARK,
]


def the_place(day):
    """Before all other windows, and behind them."""

    def state():
        number = day.desk.window("N.A.V.A.R.U.N")
        return day.desk.run(["xprop", "-id", number, "_NET_WM_STATE"]).decode()

    yield Row("keeps the window before all others",
              [("menu", "MnuDevant"), ("wait", lambda: "_ABOVE" in state(), "the window above")],
              [ask("click", "MnuDevant")])
    yield Row("puts it behind them",
              [("menu", "MnuDevant"), ("wait", lambda: "_ABOVE" not in state(), "the window no more above")],
              [ask("click", "MnuDevant")])


THE_END = [
    click("Command_Disk_Vert", "saves"),
    click("Command_reset", "begins anew"),
    answered(menu("MnuQuitter", "wants to leave, but stays"), 2),
    answered(menu("MnuQuitter", "leaves"), 1),
]


def rows(day):
    for part in (A_WINDOW_IN_BETWEEN, THE_PERSON, THE_AGES, CELLS, THE_CHOOSER, THE_WINDOWS,
                 THE_ARROWS, THE_LOOKS, the_place(day), THE_END):
        yield from part


play_day("consultation", rows)
