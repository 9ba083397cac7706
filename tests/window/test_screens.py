#!/usr/bin/env python3
"""The windows on a large and on a small screen, at one scale.

usage: test_screens.py NAVARUN SCALE [FOLDER]

On a screen that has the room the main window is exactly as large as it is designed, at the scale;
on a smaller one it keeps within the screen, frame and all, and scrolls. So do the small windows.
With FOLDER the pictures of the screens are kept there.
"""

import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../support"))
from desk import MAIN, SMALL_WINDOWS, Desk, wait_for

DESIGNED = (801, 512)  # pixels at scale 1, without the menu bar


def framed(desk, window):
    """The same with its frame; nothing as long as it has none."""
    inner = desk.geometry(window)
    told = desk.run(["xprop", "-id", window, "_NET_FRAME_EXTENTS"]).decode()
    if inner is None or "=" not in told:
        return None
    left, right, top, bottom = (int(part) for part in told.split("=")[1].split(","))
    return (
        inner[0] - left,
        inner[1] - top,
        inner[2] + left + right,
        inner[3] + top + bottom,
    )


def is_inside(desk, window, width, height):
    place = framed(desk, window)
    return (
        place is not None
        and place[0] >= 0
        and place[1] >= 0
        and place[0] + place[2] <= width
        and place[1] + place[3] <= height
    )


def check(program, scale, width, height, pictures):
    fits = width > DESIGNED[0] * scale + 20 and height > (DESIGNED[1] + 60) * scale + 20
    with Desk(f"{width}x{height}") as desk:
        desk.start(program, QT_SCALE_FACTOR=str(scale))

        def check_inside(title, window):
            wait_for(
                lambda: is_inside(desk, window, width, height),
                lambda: f"{title} within {width}x{height} at {scale}; "
                f"it is at {framed(desk, window)}",
            )

        main = desk.window(MAIN)
        check_inside(MAIN, main)
        _, _, client_width, client_height = desk.geometry(main)
        if fits:
            assert abs(client_width - DESIGNED[0] * scale) <= scale, client_width
            assert client_height >= DESIGNED[1] * scale, client_height
            assert client_height <= (DESIGNED[1] + 60) * scale, client_height
        desk.activate(main)

        def is_painted():
            colours = desk.run(["identify", "-format", "%k", picture(main)])
            return int(colours or 0) > 50

        def picture(window):
            file = os.path.join(desk.folder, "window.png")
            desk.picture(file, window)
            return file

        wait_for(is_painted, "something on the window")
        for title, keys in SMALL_WINDOWS.items():
            desk.activate(main)
            desk.press(*keys)
            window = desk.window(title)
            check_inside(title, window)
            if pictures:
                name = title.strip().replace(" ", "-")
                desk.picture(f"{pictures}/{scale}-{width}-{name}.png")
            desk.activate(window)
            desk.press("alt+F4")
            wait_for(lambda: not desk.windows(title), f"{title} gone by Alt+F4")
        if pictures:
            desk.picture(f"{pictures}/{scale}-{width}.png")


def run(program, scale, pictures=None):
    number = float(scale)
    check(program, number, round(1280 * number), round(900 * number), pictures)
    check(program, number, 800, 480, pictures)


run(*sys.argv[1:])
