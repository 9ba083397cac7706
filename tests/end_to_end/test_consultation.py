#!/usr/bin/env python3
"""A day with the mouse: a person comes, is typed in, looked at from all sides, saved.

usage: test_consultation.py NAVARUN PILOTE PICTURES, inside a message bus of its own.
"""

import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../support")]
from day import Day, Row
from rows import *

ROWS = [
    write("Text_prenom", "anne"),
    write("Text_nom", "modele"),
    write("Combo_jourNaiss", "17051962", "types the date of birth"),
    click("Command2", "generates"),
]


def main(navarun, pilote, pictures):
    with Day("consultation", navarun, pilote, pictures) as day:
        day.play(ROWS)
        print("the same in both:", *day.compare_folders())
        print(day.told())


main(*sys.argv[1:])
