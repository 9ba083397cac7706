"""What the eye finds on the windows: grounds, inks, pictures, drawn lines."""

import numpy

from eye import distance_to, region, share_of
from model import TWIPS, colour_of

_FIELDS = {"text", "combo", "list"}


class Seen:
    """Compares the screen's picture with the forms; remembers how each picture looked."""

    def __init__(self):
        self._looks = {}  # what a picture's name and its ground looked like

    def differences(self, forms, origins, screen, beside):
        """What is seen otherwise than the forms tell. `origins`: of each shown form where its
        inside begins; `beside`: of each form the rectangles of what may lie over it."""
        for name, origin in origins.items():
            form = forms[name]
            for control in form.placed:
                if not control.shown or not control["Enabled"]:
                    continue
                left, top, width, height = control.place
                if control.kind == "button" and left + width > form.values["Width"] // TWIPS:
                    continue  # the ring of the keyboard lies on it instead of round it
                place = (left + origin[0], top + origin[1], width, height)
                if not self._is_inside(place, screen) or self._hidden(place, beside[name]):
                    continue
                for told in self._compare(form, control, place, screen, origin):
                    yield f"{name}.{control.name}: {told}"

    @staticmethod
    def _is_inside(place, screen):
        left, top, width, height = place
        return left >= 0 and top >= 0 and left + width <= screen.shape[1] and top + height <= screen.shape[0]

    @staticmethod
    def _hidden(place, others):
        left, top, width, height = place
        return any(
            x < left + width and left < x + w and y < top + height and top < y + h
            for x, y, w, h in others
        )

    def _compare(self, form, control, place, screen, origin):
        covered = form.covered(control)
        if control.kind == "picture box" and control["Drawing"]:
            yield from self._compare_lines(form, control, place, screen)
        if covered and control.kind != "picture box":
            return
        inside = region(screen, place, 3)
        if inside.size == 0:
            return
        if control.kind in _FIELDS or (control.kind == "label" and control["Opaque"]):
            yield from self._compare_ground(control, inside)
        if control.kind == "label" and control["Caption"].strip():
            yield from self._compare_ink(control, region(screen, place))
        if control.kind in ("button", "image", "picture box") and control["Picture"]:
            yield from self._compare_picture(form, control, place, screen, covered)

    @staticmethod
    def _compare_ground(control, inside):
        ground = colour_of(control["BackColor"])
        if share_of(inside, ground) < 0.1:
            yield f"its ground {control['BackColor']} is not seen"

    @staticmethod
    def _compare_ink(control, whole):
        # Thin letters are blended with their ground, so that few pixels are of the pure ink.
        ink = colour_of(control["ForeColor"])
        if distance_to(whole, ink).min() > 64:
            yield f"no ink of {control['ForeColor']} is seen"

    def _compare_picture(self, form, control, place, screen, covered):
        if control.name == "Picture_KUNDALI":
            # Only its centre is free of everything; labels stand a little into it.
            over = ("Picture2", "Text_definition_palais", "frame_messageSauve")
            if control["Drawing"] or any(form.controls[name].shown for name in over):
                return
            left, top = place[:2]
            part = screen[top + 160 : top + 330, left + 165 : left + 330]
        elif covered or control["Picture"].startswith("Image_nuage"):
            return
        else:
            part = region(screen, place, 5)
        key = (form.name, control.name, control["Picture"], control["BackColor"])
        if control.kind == "image":
            # What lies behind shows through.
            key += (form.values["BackColor"], form.controls["Picture_KUNDALI"]["Picture"] if form.name == "Form1" else "")
            key += control.place
        known = self._looks.setdefault(key, part.copy())
        if known.shape != part.shape or (numpy.abs(known.astype(int) - part.astype(int)).max() > 40):
            yield f"the picture {control['Picture']} looks otherwise than before"
        for (form_name, name, picture, ground, *_), look in self._looks.items():
            same_place = (form_name, name, ground) == (form.name, control.name, control["BackColor"])
            if same_place and picture != control["Picture"] and look.shape == part.shape:
                if numpy.array_equal(look, part):
                    yield f"the picture {control['Picture']} looks like {picture}"

    @staticmethod
    def _compare_lines(form, control, place, screen):
        for x1, y1, x2, y2, width, colour in control["Drawing"]:
            if (x1, y1) == (x2, y2):
                continue  # a line of no length is not seen
            for part in (0.2, 0.4, 0.6, 0.8):
                x = round(place[0] + (x1 + (x2 - x1) * part) / TWIPS)
                y = round(place[1] + (y1 + (y2 - y1) * part) / TWIPS)
                near = screen[y - 2 : y + 3, x - 2 : x + 3]
                free = all(
                    not other.shown
                    or other is control
                    or control not in other.ancestors
                    or not (
                        other.place[0] - 30 <= x - place[0] + control.place[0] <= other.place[0] + other.place[2] + 30
                        and other.place[1] - 4 <= y - place[1] + control.place[1] <= other.place[1] + other.place[3] + 4
                    )
                    for other in form.placed
                )
                if free and near.size and distance_to(near, colour_of(colour)).min() > 60:
                    yield f"a line of {colour} is not seen at {x}, {y}"
