"""What a practitioner does for one client, from the greeting to the farewell.

Each client has the same consultation under another name and another date of birth, so that the
program stands alike when they have gone: the fields empty, the folders closed, no window open but
the main one, and as many records as before.
"""

import os

from PIL import Image

from day import Row
from desk import wait_for
from rows import *

BAR, LIST, SEARCH, CONTROL, ENTER = "HScroll_age", "File_Fichier", "Text_Cherche", 17, 13
FIRST_NAMES = ("Camille", "Alix", "Maxence", "Dominique", "Ambre", "Basile", "Colombe", "Firmin")
# All before those of former days in the list of a folder.
LAST_NAMES = ("Airelle", "Bouleau", "Acacia", "Bruyère", "Anis", "Bleuet", "Aubépine")


def fill(folder):
    """Records of former days and some portraits."""
    places = {name: os.path.join(folder, "RESSOURCES", name) for name in ("DATA1", "DATA2", "IMAGE")}
    for place in places.values():
        os.makedirs(place)
    for place, first, last in (("DATA1", "Luc", "Martin"), ("DATA1", "Zoé", "Témoin"),
                               ("DATA2", "Ève", "Durand"), ("DATA2", "Guy", "Petit")):
        record = f'"{first}","{last}","03","11","19","71",0,"","Note de {first}"\r\n'
        with open(os.path.join(places[place], f"{last} {first}.fcy"), "wb") as file:
            file.write(record.encode("cp1252"))
    Image.new("RGB", (200, 300), (200, 60, 60)).save(os.path.join(places["IMAGE"], "rouge.jpg"))
    Image.new("RGB", (400, 200), (40, 90, 200)).save(os.path.join(places["IMAGE"], "bleu.bmp"))


def person(client):
    """First name, last name and date of birth of a client: no two of a day alike, and all of them
    in years whose dates can be Julian ones."""
    first = FIRST_NAMES[client % len(FIRST_NAMES)]
    last = LAST_NAMES[client % len(LAST_NAMES)]
    born = f"{1 + client * 11 % 28:02}{1 + client * 5 % 12:02}{1930 + client * 17 % 60}"
    return first, last, born


def comes(client):
    first, last, born = person(client)
    return [
        write("Text_prenom", first),
        write("Text_nom", last),
        write("Combo_jourNaiss", born),
        click("Command2", "generates"),
        write("Text_Note", f"Visite {client + 1}."),
    ]


AGES = [
    arrow(BAR, right=True),
    arrow(BAR, right=True),
    arrow(BAR, right=False),
    trough(BAR, right=True),
    trough(BAR, right=True),
    Row("presses Enter on the bar: the chart follows", [("keys", "Return")], [ask("key", BAR, code=ENTER)]),
    thumb(BAR, 0.06, 0.3),
    click("Command2", "generates for that age"),
    click("Label_age", "opens the choice of an age"),
    click("choix_age.Image2", "turns to the next page"),
    click("choix_age.Image1", "turns back"),
    click("choix_age.Label2(40)", "chooses 40 years"),
    click("Command_DateNow", "goes to the present age"),
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
WINDOWS = [
    menu("Mnuperiode", "opens the list of periods"),
    entry("Affiche_cycle.List_periode", 3),
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
    click("frmCalend.chkFerie"),
    click("frmCalend.chkWeek"),
    close("frmCalend"),
    menu("MnuPropos", "opens the about box"),
    click("a_propos.cmdOK", "closes it"),
    menu("MnuCalculatrice", "starts the calculator"),
    menu("MnuBlocNotes", "starts the editor"),
]
ARROWS = [
    menu("MnuFleche", "opens the arrows"),
    draw(150, 150, 330, 330),
    click("Fleche.Label_couleur(12)", "chooses red"),
    click("Fleche.Option_Fleche(2)", "chooses the other kind of arrow"),
    draw(340, 150, 160, 300),
    click("Fleche.Option_Fleche(3)", "chooses a plain line"),
    draw(180, 240, 320, 240),
    click("Fleche.Command1", "wipes the arrows off"),
    draw(200, 160, 200, 320),
    click("Fleche.Option_Fleche(1)", "goes back to the first kind"),
    click("Fleche.Command1", "wipes the arrow off"),
    menu("MnuFleche", "closes the arrows"),
]
LOOKS = [
    menu("MnuAzur_Aum"),
    menu("MnuMauve_cycle"),
    menu("MnuMauve_Aum"),
    menu("MnuAzur_cycle"),
    menu("Mnu_abrege", "abridges the lords"),
    click("Label_mois(5)"),
    menu("Mnu_abrege", "says them in full again"),
    menu("Mnu_Julien", "takes the date for a Julian one"),
    click("Command2", "generates"),
    click("Image_cal_Julien", "takes it back by the mark"),
    click("Command2", "generates"),
    menu("MnuDevant", "keeps the window above all others"),
    menu("MnuDevant", "lets it go below them"),
]
PORTRAIT = [
    click("Bouton_Image", "opens the images"),
    double_click_entry(LIST, 1, "takes one"),
    click("Bouton_Image", "opens the images again"),
    double_click_entry(LIST, 0, "takes the other"),
]
PREVIEW = [
    menu("MnuApercu_Impression", "opens the preview"),
    *(click(f"Option_impression.Check_{box}", f"takes {box} off the page") for box in ("PhotoImprime", "periode")),
    *(click(f"Option_impression.Check_{box}", f"puts {box} on again") for box in ("PhotoImprime", "periode")),
    arrow("Option_impression.HScroll_annee", right=True),
    click("Option_impression.Btn_remise1", "goes back to the age"),
    menu("MnuApercu_Impression", "closes the preview"),
]
ADDRESSES = [
    click("Bouton_Internet", "opens the addresses"),
    double_click_entry("List_Internet", 0, "opens the first"),
    click("Bouton_Internet", "closes the addresses"),
]


def keep(client):
    """Saved, found again, written on, carried to the other folder and deleted there."""
    first, last, _ = person(client)
    return [
        click("Command_Disk_Vert", "saves"),
        click("Command_reset", "begins anew"),
        click("Charge(1)", "opens the first folder"),
        Row("searches", [("type", last[:4].lower())], [ask("type", SEARCH, text=last[:4].lower())]),
        Row("loads what was found by Enter", [("keys", "Return")], [ask("key", SEARCH, code=ENTER)]),
        Row("writes more", [("click", "Text_Note"), ("keys", "ctrl+End"), ("type", " Oui.")],
            [ask("type", "Text_Note", text=" Oui.")]),
        answered(click("Command_Disk_Vert", "saves over it, but is not sure"), 2),
        answered(click("Command_Disk_Vert", "saves over it"), 1),
        double_click("Picture_PHOTO", "takes the portrait off"),
        click("Command_reset", "begins anew"),
        click("Charge(1)", "opens the first folder again"),
        Row("searches", [("type", last[:4].lower())], [ask("type", SEARCH, text=last[:4].lower())]),
        entry(LIST, 0, "selects the record"),
        Row("takes it up by Control", [("keys", "Control_L")], [ask("key", LIST, code=CONTROL)]),
        Row("lets it go on the other folder", [("click", "Charge(2)")], [ask("drop", "Charge(2)")]),
        click("Charge(1)", "closes the folder"),
        click("Charge(2)", "opens the other folder"),
        Row("searches", [("type", last[:4].lower())], [ask("type", SEARCH, text=last[:4].lower())]),
        entry(LIST, 0, "selects the record"),
        answered(click("Command_reset", "would delete it, but does not"), 2),
        answered(click("Command_reset", "deletes it"), 1),
        click("Charge(2)", "closes the folder"),
        # The next record is kept in the folder that was opened last.
        click("Charge(1)", "opens the first folder"),
        click("Charge(1)", "closes it"),
    ]


def consultation(day, client):
    """The rows of one client; rows and files of their own for what is printed."""
    yield from comes(client)
    yield from AGES + CELLS + WINDOWS + ARROWS + LOOKS + PORTRAIT + PREVIEW
    page = os.path.join(day.desk.folder, "page.pdf")
    yield printer_dialog(day, page)
    wait_for(lambda: os.path.exists(page) and os.path.getsize(page) > 1000, "the printed page")
    os.remove(page)
    yield menu("MnuPersonalite", "reads the description of the personality")
    yield from ADDRESSES + keep(client)
