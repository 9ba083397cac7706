"""The hands of a practitioner: real events of the pointer and the keyboard.

An act is a tuple, its name first; the rows of a day are made of them.
"""

import time

from desk import wait_for
from window import STATE, extents, has, walk

ASIDE = ("2", "2")  # where the pointer rests, off all windows
STEPS = 12  # of a drag


class Hand:
    """Acts on the windows of the program. `forms` is the day's latest view of the forms."""

    def __init__(self, desk, windows):
        self._desk, self._windows = desk, windows
        self.walked = []  # where the keyboard came by
        self.forms = {}

    def do(self, act):
        getattr(self, "_" + act[0].replace(" ", "_"))(*act[1:])

    def rest(self):
        self._xdo("mousemove", *ASIDE)

    def _xdo(self, *words):
        self._desk.run(["xdotool", *map(str, words)])

    def _form_of(self, name):
        form, dot, inner = name.partition(".")
        return (self.forms[form], inner) if dot else (self.forms["Form1"], name)

    def control(self, name):
        form, inner = self._form_of(name)
        return form.controls[inner]

    def rectangle(self, name):
        """Where a control lies on the screen, by the values of the pilot."""
        form, inner = self._form_of(name)
        origin = self._windows.origin_of(form)
        left, top, width, height = form.controls[inner].place
        return left + origin[0], top + origin[1], width, height

    def centre(self, name):
        left, top, width, height = self.rectangle(name)
        return left + width // 2, top + height // 2

    def node(self, name):
        form, inner = self._form_of(name)
        return self._windows.nodes_of(form)[inner]

    # The pointer.

    def _click(self, name):
        self._xdo("mousemove", *self.centre(name), "click", 1)

    def _double_click(self, name):
        self._xdo("mousemove", *self.centre(name), "click", "--repeat", 2, "--delay", 40, 1)

    def _point(self, name):
        self._xdo("mousemove", *self.centre(name))

    def _click_at(self, name, x, y):
        """At a place of the control in pixels; counted from the right or the bottom below 0."""
        left, top, width, height = self.rectangle(name)
        self._xdo("mousemove", left + x % width, top + y % height, "click", 1)

    def _click_on_screen(self, x, y):
        self._xdo("mousemove", x, y, "click", 1)

    def _drag(self, name, x1, y1, x2, y2):
        left, top, _, _ = self.rectangle(name)
        self._xdo("mousemove", left + x1, top + y1, "mousedown", 1)
        for step in range(1, STEPS + 1):
            x = left + x1 + (x2 - x1) * step // STEPS
            y = top + y1 + (y2 - y1) * step // STEPS
            self._xdo("mousemove", x, y)
        self._xdo("mouseup", 1)

    def drag_across(self, start, end, rest):
        """From one place of the screen to another, across windows; so many seconds are rested there
        before it is let go."""
        self._xdo("mousemove", *start, "mousedown", 1)
        for step in range(1, STEPS + 1):
            self._xdo("mousemove", *(a + (b - a) * step // STEPS for a, b in zip(start, end)))
            time.sleep(0.02)  # the programs talk to each other about what is dragged
        time.sleep(rest)
        self._xdo("mouseup", 1)

    def _thumb(self, name, start, end, steps=STEPS):
        """The thumb of a scroll bar from one part of its way to another, 0 to 1."""
        left, top, width, height = self.rectangle(name)
        y = top + height // 2
        # Between the two arrows, whose boxes are as broad as the toolkit makes them.
        arrow = 24
        way = width - 2 * arrow
        places = [
            left + arrow + round(way * (start + (end - start) * step / steps))
            for step in range(steps + 1)
        ]
        self._xdo("mousemove", places[0], y, "mousedown", 1)
        for x in places[1:]:
            self._xdo("mousemove", x, y)
        self._xdo("mouseup", 1)

    def _entry(self, name, index, times=1):
        """Clicks an entry of a list; what is not in sight is scrolled to."""
        row = self.node(name).get_child_at_index(index)
        left, top, w, h = self.rectangle(name)
        for _ in range(200):
            x, y, width, height = extents(row)
            if top <= y and y + height <= top + h:
                break
            self._xdo("mousemove", left + w // 3, top + h // 2, "click", 4 if y < top else 5)
        else:
            raise AssertionError(f"entry {index} of {name} is not in sight")
        self._xdo(
            "mousemove", left + w // 3, y + height // 2,
            "click", "--repeat", times, "--delay", 40, 1,
        )

    def _menu(self, name):
        """Clicks a menu entry, through the menus that lead to it."""
        node, path = self._windows.menu_nodes(self.forms["Form1"])[name]
        for step in [*path, node]:
            x, y, width, height = wait_for(
                lambda: extents(step) if has(step, STATE.SHOWING) and extents(step)[2] else None,
                f"the menu entry {step.get_name()}",
            )
            self._xdo("mousemove", x + width // 2, y + height // 2, "click", 1)

    def _choose(self, name, item):
        """Takes an entry of a drop-down list by the pointer and the keyboard."""
        left, top, width, height = self.rectangle(name)
        self._xdo("mousemove", left + width - 6, top + height // 2, "click", 1)
        node = self.node(name)
        popup = node.get_child_at_index(0)
        wait_for(lambda: has(popup, STATE.SHOWING), f"the list of {name}")
        entries = self.control(name)["List"]
        # From the first entry on, by the keys: the list scrolls under them.
        self._xdo("key", "Home")
        self._xdo("key", "--repeat", max(1, entries.index(item)), "--delay", 10,
                  "Down" if entries.index(item) else "Home")
        self._xdo("key", "Return")
        wait_for(lambda: not has(popup, STATE.SHOWING), f"the list of {name} closed")

    def _button(self, window, words):
        """Clicks a button of one of the toolkit's own dialogs."""
        found = wait_for(
            lambda: next(
                (
                    node
                    for top in self._windows.all()
                    if top[2] == window
                    for node in walk(top[0])
                    if node.get_role_name() == "push button"
                    and node.get_name().replace("&", "") == words
                ),
                None,
            ),
            f"{words} of {window}",
        )
        x, y, width, height = extents(found)
        self._xdo("mousemove", x + width // 2, y + height // 2, "click", 1)

    def _close(self, form):
        """Closes a window as its frame does."""
        self._activate(form)
        self._xdo("key", "alt+F4")

    def _activate(self, form):
        self._desk.activate(self._desk.window(self.forms[form].values["Caption"]))

    # The keyboard.

    def _keys(self, *keys):
        self._xdo("key", "--delay", 30, *keys)

    def _type(self, text):
        self._xdo("type", "--delay", 30, text)

    def _tab_to(self, base, back=False):
        """Walks by Tab until the keyboard stands on a control of that name or array; the way is
        kept in `walked`."""
        self.walked = []
        here = self.focused()
        for _ in range(70):
            self._xdo("key", "shift+Tab" if back else "Tab")
            here = self._keyboard_elsewhere(here)
            self.walked.append(here)
            if here == base or here.split("(")[0] == base:
                return
        raise AssertionError(f"Tab does not lead to {base}: {self.walked}")

    def _press_and_stay(self, *keys):
        """Keys that move the keyboard's place within an array; where it is then is in `walked`."""
        before = self.focused()
        self._keys(*keys)
        self.walked = [self._keyboard_elsewhere(before)]

    def _keyboard_elsewhere(self, before):
        """Waits until the keyboard stands on another control than `before`; which it is."""

        def elsewhere():
            here = self.focused()
            return here if here != before else None

        return wait_for(elsewhere, lambda: f"the keyboard elsewhere; walked {self.walked}")

    def _wait_keyboard(self, name):
        """Waits until what is typed goes to a field."""
        wait_for(lambda: self._has_keyboard(self.control(name), self.node(name)),
                 f"the keyboard in {name}")

    @staticmethod
    def _has_keyboard(control, node):
        return has(node.get_child_at_index(1) if control.kind == "combo" else node, STATE.FOCUSED)

    def focused(self):
        """The control of the main window on which the keyboard stands."""
        form = self.forms["Form1"]
        nodes = self._windows.nodes_of(form)
        for control in form.placed:
            if self._has_keyboard(control, nodes[control.name]):
                return control.name
        return None

    # What waits for something.

    def _wait_window(self, title):
        wait_for(lambda: self._windows.has_keyboard(title), f"the keyboard in the window {title}")

    def _wait(self, what, told):
        wait_for(what, told)
