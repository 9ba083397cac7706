"""Acts that more than one day is made of, and what the folders hold when a day begins."""

import os

from PIL import Image

from day import Row
from rows import *

BAR, LIST, SEARCH = "HScroll_age", "File_Fichier", "Text_Cherche"
ENTER, CONTROL, ERASE = 13, 17, 46  # the program's codes of the keys


def keep_record(place, first, last):
    """A record of a former day."""
    record = f'"{first}","{last}","03","11","19","71",0,"","Note de {first}"\r\n'
    with open(os.path.join(place, f"{last} {first}.fcy"), "wb") as file:
        file.write(record.encode("cp1252"))


def keep_portraits(place):
    """One upright and one across."""
    Image.new("RGB", (200, 300), (200, 60, 60)).save(os.path.join(place, "rouge.jpg"))
    Image.new("RGB", (400, 200), (40, 90, 200)).save(os.path.join(place, "bleu.bmp"))


STEPS_OF_THE_BAR = [
    arrow(BAR, right=True),
    arrow(BAR, right=True),
    arrow(BAR, right=False),
    trough(BAR, right=True),
    trough(BAR, right=True),
    Row("presses Enter on the bar: the chart follows", [("keys", "Return")], [ask("key", BAR, code=ENTER)]),
]
CHOICE_OF_AN_AGE = [
    click("choix_age.Image2", "turns to the next page"),
    click("choix_age.Image1", "turns back"),
    click("choix_age.Label2(40)", "chooses 40 years"),
]
CELLS = [
    *(click(f"Label_mois({cell})", f"picks the month in cell {cell}") for cell in (2, 3, 9, 12)),
    *(click(f"Label_Dasha({cell})", f"picks the period in cell {cell}") for cell in (1, 4, 7)),
    double_click("Label_Solaire(3)", "asks for the definition of a palace"),
    double_click("Label_Solaire(10)", "asks for that of another"),
    click("Command_categorie", "shows the categories of the palaces"),
    click("Command_categorie", "hides them"),
    click("Btn_cycle_partiel", "shows the three cycles only"),
    click("Btn_cycle_partiel", "shows all cycles again"),
]
DESTINY_AND_LORDS = [
    menu("Mnu_palaisdestin", "opens the palace of destiny"),
    close("Palais_du_destin"),
    click("Bouton_seigneurjour", "opens the lords of the day"),
    entry("FrmSeigneurJour.List_SeigneurJour", 7),
    click("FrmSeigneurJour.Btn_Fermez", "closes them"),
]
CALENDAR = [
    menu("MnuCalendrier", "opens the calendar"),
    click("frmCalend.chkFerie", "marks the holidays"),
    click("frmCalend.chkWeek", "marks the week ends"),
    choose("frmCalend.cMois", "Mai"),
    click("frmCalend.btnJour(10)", "picks a day"),
    click("frmCalend.BtnToday", "goes back to today"),
]
ABOUT = [
    menu("MnuPropos", "opens the about box"),
    click("a_propos.cmdOK", "closes it"),
]
ABRIDGED = [
    menu("Mnu_abrege", "abridges the lords"),
    click("Label_mois(5)"),
    menu("Mnu_abrege", "says them in full again"),
]
BY_A_JULIAN_DATE = [
    menu("Mnu_Julien", "takes the date for a Julian one"),
    click("Command2", "generates"),
]
BACK_BY_THE_MARK = [
    click("Image_cal_Julien", "takes it back by the mark"),
    click("Command2", "generates"),
]
WRITE_MORE_AND_SAVE = [
    Row("writes more", [("click", "Text_Note"), ("keys", "ctrl+End"), ("type", " Oui.")],
        [ask("type", "Text_Note", text=" Oui.")]),
    answered(click("Command_Disk_Vert", "saves over it, but is not sure"), 2),
    answered(click("Command_Disk_Vert", "saves over it"), 1),
]
