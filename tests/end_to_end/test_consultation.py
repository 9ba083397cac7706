#!/usr/bin/env python3
"""A day with the mouse: a person comes, is typed in and looked at from all sides.

usage: test_consultation.py NAVARUN PILOTE PICTURES.
"""

import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../support")]
from day import Row, play_day
from rows import *

BAR = "HScroll_age"

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
    arrow(BAR, right=True),
    arrow(BAR, right=True),
    arrow(BAR, right=False),
    trough(BAR, right=True),
    trough(BAR, right=True),
    Row("presses Enter on the bar: the chart follows", [("keys", "Return")], [ask("key", BAR, code=13)]),
    thumb(BAR, 0.06, 0.5),
    click("Command2", "generates for that age"),
    thumb(BAR, 0.5, 1.0),
    trough(BAR, right=False),
    Row("goes to the first age by Home", [("keys", "Home")], moved("set", BAR)),
    Row("goes on by the arrow of the keyboard", [("keys", "Right", "Right")],
        [ask("set", BAR, value=2), ask("set", BAR, value=3)]),
    click("Command_DateNow", "goes to the present age"),
]
THE_CELLS = [
    *(click(f"Label_mois({cell})", f"picks the month in cell {cell}") for cell in (2, 3, 9, 12)),
    *(click(f"Label_Dasha({cell})", f"picks the period in cell {cell}") for cell in (1, 4, 7)),
    double_click("Label_Solaire(3)", "asks for the definition of a palace"),
    double_click("Label_Solaire(10)", "asks for that of another"),
    click("Command_categorie", "shows the categories of the palaces"),
    click("Command_categorie", "hides them"),
    click("Btn_cycle_partiel", "shows the three cycles only"),
    click("Btn_cycle_partiel", "shows all cycles again"),
]
THE_CHOOSER = [
    click("Label_age", "opens the choice of an age"),
    Row("points at an age", [("point", "choix_age.Label2(45)")], [ask("hover", "choix_age.Label2(45)")]),
    click("choix_age.Image2", "turns to the next page"),
    click("choix_age.Image1", "turns back"),
    click("choix_age.Label2(40)", "chooses 40 years"),
    click("Label_age", "opens the choice again"),
    Row("leaves it by Escape", [("keys", "Escape")], [{"op": "close", "form": "choix_age"}]),
]
THE_WINDOWS = [
    menu("Mnuperiode", "opens the list of periods"),
    entry("Affiche_cycle.List_periode", 3),
    click("Text_prenom", "comes back to the main window"),
    click("Command_DateNow"),
    menu("Mnuperiode", "closes the list"),
    menu("Mnu_palaisdestin", "opens the palace of destiny"),
    close("Palais_du_destin"),
    click("Bouton_seigneurjour", "opens the lords of the day"),
    entry("FrmSeigneurJour.List_SeigneurJour", 7),
    click("FrmSeigneurJour.Btn_Fermez", "closes them"),
    menu("MnuCalendrier", "opens the calendar"),
    click("frmCalend.chkFerie", "marks the holidays"),
    click("frmCalend.chkWeek", "marks the week ends"),
    choose("frmCalend.cMois", "Mai"),
    click("frmCalend.btnJour(10)", "picks a day"),
    click("frmCalend.BtnToday", "goes back to today"),
    close("frmCalend"),
    menu("MnuPropos", "opens the about box"),
    click("a_propos.cmdOK", "closes it"),
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
    menu("Mnu_abrege", "abridges the lords"),
    click("Label_mois(5)"),
    menu("Mnu_abrege", "says them in full again"),
    menu("Mnu_Julien", "takes the date for a Julian one"),
    click("Command2", "generates"),
    Row("points at the mark of the calendar", [("point", "Image_cal_Julien")], [ask("hover", "Image_cal_Julien")]),
    click("Image_cal_Julien", "takes it back by the mark"),
    click("Command2", "generates"),
]


def the_place(day):
    """Before all other windows, and behind them."""

    def state():
        number = day.desk.windows("N.A.V.A.R.U.N")[0]
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
    for part in (A_WINDOW_IN_BETWEEN, THE_PERSON, THE_AGES, THE_CELLS, THE_CHOOSER, THE_WINDOWS,
                 THE_ARROWS, THE_LOOKS, the_place(day), THE_END):
        yield from part


play_day("consultation", rows)
