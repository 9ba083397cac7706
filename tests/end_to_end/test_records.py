#!/usr/bin/env python3
"""A day with the records: kept, found, moved, deleted; portraits; the address book.

usage: test_records.py NAVARUN PILOTE PICTURES DRAG_SOURCE.
"""

import contextlib
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../support")]
from PIL import Image

from acts import *
from day import Row, play_day
from desk import wait_for
from eye import region, share_of
from rows import *

GREEN = (40, 160, 60)


def fill(folder):
    """Records of former days and some portraits."""
    data = os.path.join(folder, "RESSOURCES", "DATA1")
    images = os.path.join(folder, "RESSOURCES", "IMAGE")
    for place in (data, images):
        os.makedirs(place)
    for first, last in (("Alix", "Essai"), ("Luc", "Martin"), ("Zoé", "Témoin")):
        keep_record(data, first, last)
    keep_portraits(images)


def drop_from_outside(day):
    """A picture dragged from another program's window onto the portrait."""
    file = os.path.join(day.desk.folder, "vert.bmp")
    Image.new("RGB", (130, 180), GREEN).save(file)
    source = day.desk.start_other([sys.argv[4], file])
    number = wait_for(lambda: day.desk.windows("Fichiers"), "the window of the files")[0]
    day.desk.run(["xdotool", "windowmove", "--sync", number, "40", "700"])
    day.beside.append((0, 650, 260, 200))

    def is_there():
        return share_of(region(day.eye.look(), day.hand.rectangle("Picture_PHOTO")), GREEN) > 0.5

    def drop():
        # What is let go before the window has answered that it takes it is not dropped, and nothing
        # tells when it has: whoever sees nothing come of it tries again, less in a hurry.
        for rest in (0.3, 1, 3, 10):
            day.hand.drag_across((80, 730), day.hand.centre("Picture_PHOTO"), rest)
            with contextlib.suppress(AssertionError):
                return wait_for(is_there, "the portrait", 15)
        raise AssertionError("the window does not take what is dropped")

    yield Row("drops a picture from another window", [("wait", drop, "the drop")],
              [ask("drop", "Picture_PHOTO", file=file)])
    day.desk.end(source)
    day.beside.clear()


def key(name, told, code, *keys):
    return Row(told, [("keys", *keys)], [ask("key", name, code=code)])


KEEP_ONE = [
    write("Text_prenom", "Camille"),
    write("Text_nom", "Exemple"),
    write("Combo_jourNaiss", "22101986"),
    click("Command2"),
    write("Text_Note", "Changer de métier ?"),
    click("Command_Disk_Vert", "saves"),
    *WRITE_MORE_AND_SAVE,
]
FIND = [
    click("Charge(1)", "opens the first folder"),
    Row("searches", [("type", "mar")], [ask("type", SEARCH, text="mar")]),
    key(SEARCH, "loads what was found by Enter", ENTER, "Return"),
    click("Charge(1)", "opens the folder again"),
    Row("searches for nobody", [("type", "xyz")], [ask("type", SEARCH, text="xyz")]),
    click("Charge(1)", "closes it"),
    click("Charge(1)", "opens it"),
    entry(LIST, 0),
    Row("goes down by the keyboard", [("keys", "Down")], [ask("choose", LIST, index=1)]),
    double_click_entry(LIST, 0, "loads by a double click"),
]
MOVE = [
    click("Charge(1)", "opens the first folder"),
    entry(LIST, 2, "selects a record"),
    key(LIST, "takes it up by Control", CONTROL, "Control_L"),
    Row("lets it go on the other folder", [("click", "Charge(2)")], [ask("drop", "Charge(2)")]),
    entry(LIST, 0, "selects another"),
    key(LIST, "takes it up", CONTROL, "Control_L"),
    Row("and leaves it by Escape", [("keys", "Escape")], [ask("focus", LIST)]),
    click("Charge(1)", "closes the folder"),
    click("Charge(2)", "opens the other folder"),
    click("Charge(2)", "closes it"),
]
DELETE = [
    click("Charge(1)", "opens the first folder"),
    entry(LIST, 0, "selects a record"),
    Row("would delete it, but does not", [("keys", "Delete")],
        [{"op": "answer", "value": 2}, ask("key", LIST, code=ERASE)]),
    Row("deletes it", [("keys", "Delete")], [{"op": "answer", "value": 1}, ask("key", LIST, code=ERASE)]),
    click("Command_reset", "wants to delete with nothing selected"),
    entry(LIST, 0, "selects another"),
    answered(click("Command_reset", "deletes by the button"), 1),
    click("Charge(1)", "closes the folder"),
]
PORTRAIT = [
    Row("corrects the first name", [("click", "Text_prenom"), ("keys", "ctrl+a"), ("type", "zoé")],
        [ask("type", "Text_prenom", text="zoé")]),
    click("Bouton_Image", "opens the images"),
    entry(LIST, 0, "selects one"),
    double_click_entry(LIST, 0, "takes it"),
    Row("points at it", [("point", "Picture_PHOTO")], [ask("hover", "Picture_PHOTO")]),
    click("Bouton_Image", "opens the images again"),
    double_click_entry(LIST, 1, "takes the other"),
    double_click("Picture_PHOTO", "goes back to Ganesha"),
]
ADDRESSES = [
    click("Bouton_Internet", "opens the addresses"),
    Row("writes an address", [("click", "Text_New_URL"), ("keys", "End"), ("type", "exemple.fr"), ("keys", "Return")],
        [ask("set", "Text_New_URL", value="www.exemple.fr"), ask("key", "Text_New_URL", code=ENTER)]),
    entry("List_Internet", 0),
    double_click_entry("List_Internet", 0, "opens one"),
    click("Bouton_Internet", "closes the addresses"),
]
LEAVE = [answered(menu("MnuQuitter", "leaves"), 1)]


def rows(day):
    yield from KEEP_ONE + FIND + MOVE + DELETE + PORTRAIT
    yield from drop_from_outside(day)
    yield from ADDRESSES + LEAVE


play_day("records", rows, fill)
