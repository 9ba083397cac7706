"""Rows that a day is made of: each says what the hand does and what the same is for the pilot."""

import contextlib
import time

from day import Row
from desk import wait_for
from model import TWIPS

STAYS = 10  # seconds after which a bar that has not moved is taken to stay


def ask(operation, control, **more):
    return {"op": operation, "control": control, **more}


def click(name, told=None, times=1):
    requests = [ask("hover", name)] + [ask("click", name)] * times
    return Row(told or f"clicks {name}", [("click", name)] * times, requests)


def double_click(name, told=None):
    return Row(
        told or f"double clicks {name}",
        [("double click", name)],
        [ask("hover", name), ask("click", name), ask("dblclick", name)],
    )


def write(name, text, told=None):
    """Clicks an empty field and types."""
    return Row(
        told or f"types {text!r} in {name}",
        [("click", name), ("wait keyboard", name), ("type", text)],
        [ask("hover", name), ask("click", name), ask("type", name, text=text)],
    )


def menu(name, told=None):
    return Row(told or f"takes {name}", [("menu", name)], [ask("click", name)])


def answered(row, value):
    """The row, its question answered: 1 by Enter, 2 by Escape."""
    return Row(row.told, row.hand, [{"op": "answer", "value": value}, *row.requests], row.eye)


def moved(operation, name):
    """Asks for what the window's bar stands at. That is read once it has left its place and stands
    still: what the hand does and what is asked reach the program by two ways, and a question may
    come first. A bar at its end may stay where it was."""

    def requests(day):
        bar = day.hand.node(name).get_value_iface()
        left = day.pilot.value(name + ".Value")
        with contextlib.suppress(AssertionError):
            wait_for(lambda: bar.get_current_value() != left, f"{name} moved", STAYS)
        before, now = None, bar.get_current_value()
        while now != before:
            time.sleep(0.1)
            before, now = now, bar.get_current_value()
        return [ask(operation, name, value=int(now))]

    return requests


def trough(name, right, told=None):
    # Beside the arrow, far from the thumb.
    return Row(
        told or f"clicks in the trough of {name}",
        [("click at", name, -26 if right else 26, 8)],
        moved("set", name),
    )


def arrow(name, right):
    return Row(f"clicks an arrow of {name}", [("click at", name, -6 if right else 6, 8)],
               moved("set", name))


def thumb(name, start, end):
    return Row(f"drags the thumb of {name}", [("thumb", name, start, end)], moved("drag", name))


def entry(name, index, told=None):
    return Row(told or f"clicks entry {index} of {name}", [("entry", name, index)],
               [ask("choose", name, index=index)])


def double_click_entry(name, index, told=None):
    return Row(told or f"double clicks entry {index} of {name}", [("entry", name, index, 2)],
               [ask("choose", name, index=index), ask("dblclick", name)])


def choose(name, item):
    return Row(f"chooses {item} in {name}", [("choose", name, item)], [ask("choose", name, item=item)])


# What the focus of the model comes to on the way of Tab; all else keeps it where it was.
_TAKE_FOCUS = {"text", "combo", "list", "button", "switch", "scroll bar", "drop-down"}


def tab_to(base, *hand, then=lambda name: [], back=False, told=None):
    """Walks by Tab to a control or into an array, then does more with the hands; `then` says of
    the control on which the keyboard stands at the end what that is for the pilot."""

    def requests(day):
        form = day.forms["Form1"]
        walked = [name for name in day.hand.walked if form.controls[name].kind in _TAKE_FOCUS]
        passed = [ask("focus", name) for name in walked]
        hovered = [
            ask("hover", name) for name in day.hand.walked if form.controls[name].name == "Picture_PHOTO"
        ]
        return passed + hovered + then(day.hand.walked[-1])

    return Row(told or f"walks by Tab to {base}", [("tab to", base, back), *hand], requests)


def close(form):
    return Row(f"closes {form} by its frame", [("close", form)], [{"op": "close", "form": form}])


def draw(x1, y1, x2, y2):
    """An arrow on the chart, from one place to another in its pixels."""
    chart = "Picture_KUNDALI"

    def at(event, button, x, y):
        return ask("mouse", chart, event=event, button=button, x=x * TWIPS, y=y * TWIPS)

    from hand import STEPS

    moves = [
        at("move", 1, x1 + (x2 - x1) * step // STEPS, y1 + (y2 - y1) * step // STEPS)
        for step in range(1, STEPS + 1)
    ]
    return Row(
        f"draws an arrow from {x1}, {y1} to {x2}, {y2}",
        [("drag", chart, x1, y1, x2, y2)],
        [
            at("move", 0, x1, y1),
            at("down", 1, x1, y1),
            *moves,
            at("up", 1, x2, y2),
            ask("click", chart),
        ],
    )


def printer_dialog(day, file):
    """The printer dialog, for a desk with no printer: into a file. Told as an act of the hands."""

    def print_to_file():
        from window import STATE, extents, has, text_of, walk

        window = wait_for(
            lambda: next((w for w, role, name, _ in day.windows.all() if "Imprim" in name and role == "dialog"), None),
            "the printer dialog",
        )
        field = wait_for(
            lambda: next(
                (node for node in walk(window)
                 if node.get_role_name() == "text" and has(node, STATE.SHOWING)
                 and has(node, STATE.EDITABLE) and ".pdf" in text_of(node)),
                None,
            ),
            "the file's name in the printer dialog",
        )
        x, y, width, height = extents(field)
        day.hand.do(("click on screen", x + width // 2, y + height // 2))
        day.hand.do(("keys", "ctrl+a"))
        day.hand.do(("type", file))
        day.hand.do(("button", window.get_name(), "Imprimer"))
        return True

    return Row(
        "prints the page into a file",
        [("menu", "MnuImprime"), ("wait", print_to_file, "the page printed")],
        [{"op": "answer", "value": 1}, ask("click", "MnuImprime")],
    )
