"""What a practitioner does for one client, from the greeting to the farewell.

Each client has the same consultation under another name and another date of birth, so that the
program stands alike when they have gone: the fields empty, the folders closed, no window open but
the main one, and as many records as before.
"""

import os

from acts import *
from day import Row
from desk import wait_for
from rows import *

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
        keep_record(places[place], first, last)
    keep_portraits(places["IMAGE"])


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
    *STEPS_OF_THE_BAR,
    thumb(BAR, 0.06, 0.3),
    click("Command2", "generates for that age"),
    click("Label_age", "opens the choice of an age"),
    *CHOICE_OF_AN_AGE,
    click("Command_DateNow", "goes to the present age"),
]
WINDOWS = [
    menu("Mnuperiode", "opens the list of periods"),
    entry("Affiche_cycle.List_periode", 3),
    click("Command_DateNow"),
    menu("Mnuperiode", "closes the list"),
    *DESTINY_AND_LORDS,
    *CALENDAR,
    click("frmCalend.chkFerie"),
    click("frmCalend.chkWeek"),
    close("frmCalend"),
    *ABOUT,
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
    *ABRIDGED,
    *BY_A_JULIAN_DATE,
    *BACK_BY_THE_MARK,
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
        *WRITE_MORE_AND_SAVE,
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
