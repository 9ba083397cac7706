#!/usr/bin/env python3
"""The windows on a light and on a dark desktop: inside their frames they are alike.

usage: test_dark_desktop.py NAVARUN OTHER [FOLDER]

OTHER is a program that takes its colours from the desktop: by it the desktop is known to be dark.
With FOLDER the pictures of the dark desktop are kept there.
"""

import os
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [os.path.join(HERE, "../support"), os.path.join(HERE, "../end_to_end")]
import numpy
from PIL import Image

from desk import FAKETIME, MAIN, SMALL_WINDOWS, Desk, wait_for
from eye import Eye, region

THEMES = {"light": "Adwaita", "dark": "Adwaita:dark"}
# By the letters of the menus; what they open, and how it is closed.
WINDOWS = {**SMALL_WINDOWS, "QUITTER": ("alt+m", "q")}
MENUS = {"menu": "alt+m", "impression": "alt+i", "outils": "alt+o", "afficher": "alt+a", "apparence": "alt+p"}


class Look:
    """The windows on the desktop of one theme, by name."""

    def __init__(self, theme, navarun, other):
        self.pictures = {}
        with Desk("1280x900") as self._desk:
            self._eye = Eye(self._desk.folder)
            self._desk.environment.update(QT_QPA_PLATFORMTHEME="gtk3", GTK_THEME=THEMES[theme])
            self._look_at_other(other)
            # The calendar shows what time it is.
            self._desk.start(
                navarun, LD_PRELOAD=FAKETIME, FAKETIME="2026-11-21 10:15:00",
                DONT_FAKE_MONOTONIC="1", NO_FAKE_STAT="1",
            )
            self._look_at_windows()

    def _look_at_other(self, other):
        process = self._desk.start_other([other, "/dev/null"])
        number = self._desk.window("Fichiers")
        black = lambda: self._look(number).max() == 0
        wait_for(lambda: not black(), "its picture")
        self.ground = self._look(number).mean()
        self._desk.end(process)

    def _look_at_windows(self):
        desk = self._desk
        main = desk.window(MAIN)
        desk.activate(main)
        # From the first name to a button, the one that generates: no cursor blinks.
        left, top, _, height = desk.geometry(main)
        desk.run(["xdotool", "mousemove", str(left + 696), str(top + height - 16), "click", "1"])
        desk.run(["xdotool", "mousemove", "2", "2"])
        self._take_still(MAIN, main)
        self._take_still("desktop", "root")
        for name, keys in MENUS.items():
            desk.press(keys)
            self._take_still(name, "root", lambda now: not self._is("desktop", now))
            desk.press("Escape", "Escape")
            wait_for(lambda: self._is("desktop", self._look("root")), f"{name} closed")
        for title, keys in WINDOWS.items():
            desk.activate(main)
            desk.press(*keys)
            number = desk.window(title)
            desk.activate(number)
            self._take_still(title, number)
            desk.press("Escape" if title == "QUITTER" else "alt+F4")
            wait_for(lambda: not desk.windows(title), f"{title} gone")

    def _is(self, name, picture):
        return numpy.array_equal(picture, self.pictures[name])

    def _look(self, window):
        picture = self._eye.look()
        return picture if window == "root" else region(picture, self._desk.geometry(window))

    def _take_still(self, name, window, fits=lambda picture: True):
        """Keeps what two looks, a moment apart, show alike and painted."""

        def still():
            once = self._look(window)
            time.sleep(0.3)
            twice = self._look(window)
            # What is not painted yet is of one colour.
            painted = twice.size and twice[::7, ::7].std(axis=(0, 1)).min() > 1
            return [twice] if painted and numpy.array_equal(once, twice) and fits(twice) else None

        self.pictures[name] = wait_for(still, f"{name}, painted")[0]


def run(navarun, other, kept=None):
    light, dark = (Look(theme, navarun, other) for theme in THEMES)
    assert light.ground > 200 and dark.ground < 80, f"the desktops: {light.ground}, {dark.ground}"
    for name, picture in light.pictures.items():
        seen = dark.pictures[name]
        assert picture.shape == seen.shape, (name, picture.shape, seen.shape)
        wrong = (picture != seen).any(axis=2).sum()
        assert wrong == 0, f"{name}: {wrong} pixels look otherwise on a dark desktop"
    print("alike on a light and on a dark desktop:", ", ".join(map(str.strip, light.pictures)))
    if kept:
        os.makedirs(kept, exist_ok=True)
        for name, picture in dark.pictures.items():
            Image.fromarray(picture).save(os.path.join(kept, name.strip() + ".png"))


run(*sys.argv[1:])
