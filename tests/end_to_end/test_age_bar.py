#!/usr/bin/env python3
"""The age bar is dragged from 1 to 350 and back: at no moment is less than a whole window seen.

usage: test_age_bar.py NAVARUN PILOTE PICTURES.
"""

import os
import sys
import threading

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HERE, os.path.join(HERE, "../support")]
import numpy

from day import Row, play_day
from desk import wait_for
from rows import *

BAR = "HScroll_age"
# What the ages change, and what they never do.
TEXTS = [f"{name}({cell})" for name in ("Label_Dasha", "Label_DashaDate", "Label_mois", "Label_MoisDate")
         for cell in range(1, 13)] + ["Label_age", "Label_Lal_Kitab", "Label_anneedefile"]
STILL = ["Text_prenom", "Text_nom", "Picture_PHOTO", "Label_zodiac", "Text_zodiac", "Bouton_Internet",
         "Text_jourdeSemaine", "Command_DateNow", "Command_categorie"]


class Watch(threading.Thread):
    """Looks at the screen as often as it can; keeps what was less than a whole window."""

    def __init__(self, day):
        super().__init__(daemon=True)  # a step that fails does not wait for it
        self._eye = day.eye
        self._texts = {name: day.hand.rectangle(name) for name in TEXTS}
        self._still = {name: day.hand.rectangle(name) for name in STILL}
        self._first = day.eye.look()
        self._over = threading.Event()
        self.looks, self.different, self.broken = 0, 0, []

    def run(self):
        before = self._first
        while not self._over.is_set():
            picture = self._eye.look()
            self.looks += 1
            self.different += not numpy.array_equal(picture, before)
            before = picture
            wrong = self._wrong(picture)
            if wrong and not self.broken:
                self.broken = [wrong, picture]

    def _wrong(self, picture):
        for name, (left, top, width, height) in self._still.items():
            part = (slice(top, top + height), slice(left, left + width))
            if not numpy.array_equal(picture[part], self._first[part]):
                return f"{name} has changed"
        for name, (left, top, width, height) in self._texts.items():
            part = picture[top : top + height, left : left + width].astype(int)
            if (part.max(axis=(0, 1)) - part.min(axis=(0, 1))).max() < 60:
                return f"{name} shows nothing"
        return None

    def end(self):
        self._over.set()
        self.join()


def rows(day):
    yield write("Text_prenom", "Camille")
    yield write("Text_nom", "Exemple")
    yield write("Combo_jourNaiss", "22101986")
    yield click("Command2", "generates")
    yield Row("lets the keyboard rest on the bar", [("click at", BAR, -6, 8)], moved("set", BAR))
    for told, start, end in (("up", 0.05, 1.0), ("down", 0.95, 0.0), ("up again", 0.05, 1.0)):
        watch = Watch(day)
        watch.start()
        try:
            yield Row(f"drags the age {told}", [("thumb", BAR, start, end, 60)], moved("drag", BAR))
        finally:
            watch.end()
        if watch.broken:
            day.eye.save(os.path.join(sys.argv[3], "age-bar.png"), watch.broken[1])
            raise AssertionError(f"while the age went {told}: {watch.broken[0]}; age-bar.png")
        # Else there was nothing to flicker.
        assert watch.different > 10, watch.different
        print(f"the age went {told}: {watch.looks} looks, {watch.different} pictures, all whole")
        value = day.pilot.value(BAR + ".Value")
        assert value == (1 if end == 0 else 350), f"the bar stands at {value}"
    yield click("Command2", "generates for the greatest age")
    yield answered(menu("MnuQuitter", "leaves"), 1)


play_day("age_bar", rows)
