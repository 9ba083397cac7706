"""The windows of the running program, read by what the desktop tells screen readers."""

import contextlib

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

from model import Sayings, spoken

STATE = Atspi.StateType
BOXES = ("alert", "dialog")  # what a window that waits for an answer is told to be
TITLES = {
    "Form1": "N.A.V.A.R.U.N",
    "Affiche_cycle": "Périodes",
    "choix_age": "Choix d'un âge",
    "FrmSeigneurJour": "Seigneur du Jour",
    "Palais_du_destin": "PALAIS DU DESTIN",
    "frmCalend": "Calendrier",
    "Fleche": "Flêche",
    "Option_impression": "Option Impression",
}


def has(node, state):
    return node.get_state_set().contains(state)


def children(node):
    for place in range(node.get_child_count()):
        child = node.get_child_at_index(place)
        if child is not None:
            yield child


def walk(node):
    yield node
    for child in children(node):
        yield from walk(child)


def extents(node):
    place = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
    return place.x, place.y, place.width, place.height


def text_of(node):
    text = node.get_text_iface()
    return Atspi.Text.get_text(text, 0, Atspi.Text.get_character_count(text))


class Windows:
    """The windows of one process."""

    def __init__(self, process):
        self._process = process
        self._app = None
        self._nodes = {}  # of a form: the accessible object of each control
        self._menus = None
        self._told = {}  # entries of lists read before

    @property
    def app(self):
        if self._app is None:
            desktop = Atspi.get_desktop(0)
            for child in children(desktop):
                if child.get_process_id() == self._process.pid:
                    self._app = child
                    # The library has asked the program for all that it knows already; while it
                    # takes that answer in, it must not have to ask again, for it would wait for
                    # ever. What is asked of the program now is answered later than that.
                    child.get_child_count()
                    # What was told a while ago is not what is there.
                    self._app.set_cache_mask(Atspi.Cache.NONE)
        return self._app

    def _of_each_shown(self, tell):
        """What `tell` says of each window that is shown; one that goes meanwhile is passed over."""
        for window in children(self.app):
            with contextlib.suppress(GLib.Error):
                if has(window, STATE.SHOWING):
                    yield tell(window)

    def all(self):
        """All windows that are shown: their roles, names and places."""
        return list(self._of_each_shown(
            lambda window: (window, window.get_role_name(), window.get_name(), extents(window))
        ))

    def has_keyboard(self, name):
        """Whether the window of that name takes what is typed; it is shown before it does."""
        return any(self._of_each_shown(
            lambda window: window.get_name() == name and has(window, STATE.ACTIVE)
        ))

    def dialog(self):
        """A box that waits for its answer: its title and its words; nothing where there is none."""

        def told(window):
            if window.get_role_name() not in BOXES:
                return None
            labels = [
                node.get_name()
                for node in walk(window)
                if node.get_role_name() == "label" and node.get_name()
            ]
            return window.get_name(), labels

        return next(filter(None, self._of_each_shown(told)), None)

    def box_has_keyboard(self):
        """Whether such a box takes what is typed."""
        return any(self._of_each_shown(
            lambda window: window.get_role_name() in BOXES and has(window, STATE.ACTIVE)
        ))

    def title_of(self, form):
        # The about box bears the name that it tells about.
        return TITLES.get(form.name) or spoken(form.values["Caption"])

    def window_of(self, form):
        name = self.title_of(form)
        for window in children(self.app):
            if window.get_role_name() not in ("frame", "dialog", "window"):
                continue
            if spoken(window.get_name()) == spoken(name) and has(window, STATE.SHOWING):
                return window
        return None

    def nodes_of(self, form):
        """The accessible object of each control that has a place. Below each object those that
        lie on it come in the order in which the form tells them; their places prove it."""
        if form.name in self._nodes:
            return self._nodes[form.name]
        window = self.window_of(form)
        if window is None:
            return None
        area = [child for child in children(window) if child.get_role_name() != "menu bar"][-1]
        canvas = area.get_child_at_index(0).get_child_at_index(0)
        nodes = {}

        def match(container, node):
            inner = [control for control in form.placed if control.container is container]
            found = list(children(node))
            assert len(inner) == len(found), (
                f"{form.name}: {len(inner)} controls, {len(found)} can be spoken of"
            )
            for control, child in zip(inner, found):
                nodes[control.name] = child
                if any(other.container is control for other in form.placed):
                    match(control, child)

        match(None, canvas)
        self._nodes[form.name] = nodes
        self._nodes[form.name + ".canvas"] = canvas
        return nodes

    def origin_of(self, form):
        """Where the inside of a window begins on the screen."""
        self.nodes_of(form)
        return extents(self._nodes[form.name + ".canvas"])[:2]

    def menu_nodes(self, form):
        """The accessible object of each menu entry, with the entries that open it."""
        if self._menus is None:
            bar = next(
                child
                for child in children(self.window_of(form))
                if child.get_role_name() == "menu bar"
            )
            found = []

            def collect(node, path):
                for child in children(node):
                    if child.get_role_name() in ("menu item", "check menu item", "menu"):
                        found.append((child, path))
                        collect(child, [*path, child])
                    elif child.get_role_name() == "popup menu":
                        collect(child, path)

            collect(bar, [])
            assert len(found) == len(form.menus), (len(found), len(form.menus))
            self._menus = {
                control.name: node for control, node in zip(form.menus, found)
            }
        return self._menus

    def differences(self, forms):
        """What the windows tell otherwise than the forms, as texts; empty where all is alike."""
        try:
            return list(self._differences(forms))
        except GLib.Error as gone:
            return [f"the window does not answer: {gone.message}"]

    def _differences(self, forms):
        for form in forms.values():
            window = self.window_of(form) if form.name != "a_propos" or form.values["Visible"] else None
            shown = window is not None
            if shown != form.values["Visible"]:
                yield f"{form.name}: visible {shown}, should be {form.values['Visible']}"
            if not shown:
                continue
            nodes = self.nodes_of(form)
            say = Sayings(form)
            origin = self.origin_of(form)
            for control in form.placed:
                for told in self._compare(control, nodes[control.name], say, origin):
                    yield f"{form.name}.{control.name}: {told}"
            if form.name == "Form1":
                yield from self._compare_menus(form)

    def _compare(self, control, node, say, origin):
        states = node.get_state_set()
        shown = states.contains(STATE.SHOWING)
        if shown != control.shown:
            yield f"visible {shown}, should be {control.shown}"
        if not shown or not control.shown:
            return
        enabled = states.contains(STATE.ENABLED)
        if enabled != control["Enabled"]:
            yield f"enabled {enabled}, should be {control['Enabled']}"
        yield from self._compare_place(control, extents(node), origin)
        name = say(control)
        if name is not None and node.get_name() != name:
            yield f"is called {node.get_name()!r}, should be {name!r}"
        if control["ToolTipText"] and node.get_description() != control["ToolTipText"].replace("\r\n", "\n"):
            yield f"tool tip {node.get_description()!r}, should be {control['ToolTipText']!r}"
        special = getattr(self, "_compare_" + control.kind.replace(" ", "_").replace("-", "_"), None)
        if special is not None:
            yield from special(control, node, states)

    @staticmethod
    def _compare_place(control, there, origin):
        left, top, width, height = control.place
        x, y, w, h = there[0] - origin[0], there[1] - origin[1], there[2], there[3]
        grows = control.kind == "label" and not control["Opaque"]
        centred = abs((2 * x + w) - (2 * left + width)) <= 1 and w >= width
        if control.kind == "switch":
            # The toolkit tells where the mark and the words are, not the whole that answers.
            if x < left or y < top or x + w > left + width or y + h > top + height:
                yield f"lies at {(x, y, w, h)}, should be within {(left, top, width, height)}"
            return
        if (y, h) != (top, height) or not ((x, w) == (left, width) or (grows and centred)):
            yield f"lies at {(x, y, w, h)}, should be {(left, top, width, height)}"

    @staticmethod
    def _compare_text(control, node, states):
        told, text = text_of(node), control["Text"].replace("\r\n", "\n")
        if told != text:
            yield f"reads {told!r}, should be {text!r}"

    @staticmethod
    def _compare_combo(control, node, states):
        told = text_of(node.get_child_at_index(1))
        if told != control["Text"]:
            yield f"reads {told!r}, should be {control['Text']!r}"

    @staticmethod
    def _compare_drop_down(control, node, states):
        if not node.get_name().endswith(": " + control["Text"]) and control["Text"]:
            yield f"is called {node.get_name()!r}, should end with {control['Text']!r}"

    @staticmethod
    def _compare_scroll_bar(control, node, states):
        told = int(node.get_value_iface().get_current_value())
        if told != control["Value"]:
            yield f"stands at {told}, should be {control['Value']}"

    @staticmethod
    def _compare_switch(control, node, states):
        told = states.contains(STATE.CHECKED)
        if told != bool(control["Value"]):
            yield f"checked {told}, should be {bool(control['Value'])}"

    def _compare_list(self, control, node, states):
        rows = [row for row in children(node) if row.get_role_name() == "list item"] \
            if node.get_child_count() <= 40 else None
        entries, chosen = control["List"], control["ListIndex"]
        count = node.get_child_count() if rows is None else len(rows)
        if count != len(entries):
            yield f"{count} entries, should be {len(entries)}"
            return
        told = self._told.get(control.name)
        if told != entries:
            # Each is asked for; that takes its time, so once as long as they stay.
            wrong = False
            for place, entry in enumerate(entries):
                said = node.get_child_at_index(place).get_name()
                if said != (entry if entry.strip() else "(ligne vide)"):
                    wrong = True
                    yield f"entry {place} reads {said!r}, should be {entry!r}"
            if not wrong:
                self._told[control.name] = list(entries)
        selected = [
            place
            for place in (range(len(entries)) if len(entries) <= 40 else [chosen] if chosen >= 0 else [])
            if has(node.get_child_at_index(place), STATE.SELECTED)
        ]
        if selected != ([chosen] if chosen >= 0 else []):
            yield f"selected {selected}, should be {chosen}"

    def _compare_menus(self, form):
        for name, (node, _) in self.menu_nodes(form).items():
            entry = form.controls[name]
            checked = has(node, STATE.CHECKED)
            if checked != entry["Checked"]:
                yield f"{name}: checked {checked}, should be {entry['Checked']}"
            enabled = has(node, STATE.ENABLED)
            if enabled != entry["Enabled"]:
                yield f"{name}: enabled {enabled}, should be {entry['Enabled']}"
            caption = entry["Caption"].replace("&", "")
            if node.get_name().replace("&", "") != caption:
                yield f"{name}: is called {node.get_name()!r}, should be {caption!r}"
