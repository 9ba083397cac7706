"""The pilot's values as what a person finds: kinds of controls, their places, what is said."""

import re

TWIPS = 15  # to the pixel

# What lies on another control than the window itself.
_INSIDE = {
    "Form1": {
        "Picture_KUNDALI": (
            "ImageTriDeva Label_Dasha Label_DashaDate Label_annee Label_mois Label_MoisDate "
            "Label_Solaire Text_definition_palais"
        ).split(),
        "Frame_FileFichier": ["File_Fichier", "Text_Cherche", "Label_Nbr_Fiche", "Label_deplace"],
        "Frame_Internet": ["List_Internet", "Text_New_URL"],
        "frame_messageSauve": ["Shape_message", "Label_message"],
    },
    "Fleche": {
        "Frame1": (
            "Option_Fleche Label_couleur Shape_selection Picture1 Command1"
        ).split(),
    },
}
_MOST_CAPTIONS = {"label", "button", "switch"}
_LORDS = {
    "Su": "Surya",
    "Ca": "Chandra",
    "Gu": "Guru",
    "Ra": "Rahu",
    "Bu": "Budha",
    "Sk": "Shukra",
    "Ke": "Ketu",
    "Sa": "Shani",
    "Ku": "Kuja",
}


def base_of(name):
    return name.split("(")[0]


def cell_of(name):
    found = re.search(r"\((\d+)\)", name)
    return int(found.group(1)) if found else None


def container_of(form, name):
    for container, members in _INSIDE.get(form, {}).items():
        if base_of(name) in members:
            return container
    return None


def kind_of(form, values):
    """The kind of a control, by the properties it has."""
    if "Left" not in values:
        return "menu" if "Checked" in values else "unseen"
    if "Value" in values:
        return "switch" if "Caption" in values else "scroll bar"
    if "Caption" in values:
        if "Opaque" in values:
            return "label"
        return "button" if "Picture" in values else "frame"
    if "List" in values:
        if "Text" not in values:
            return "list"
        return "combo" if form == "Form1" else "drop-down"
    if "Text" in values:
        return "text"
    if "Picture" in values:
        return "picture box" if "Drawing" in values else "image"
    return "shape"


def colour_of(text):
    """Red, green and blue of a colour as the pilot tells it."""
    if text.startswith("#"):
        return tuple(int(text[place : place + 2], 16) for place in (1, 3, 5))
    return {"system:title-bar": (0x99, 0xB4, 0xD1)}.get(text, (255, 255, 255))


def _pixels(twips):
    # Halves go away from zero, as the toolkit rounds them.
    return int(abs(twips) / TWIPS + 0.5) * (1 if twips >= 0 else -1)


class Control:
    """A control of a form as the pilot tells it, among its neighbours."""

    def __init__(self, form, name, values, others):
        self.form, self.name, self.values = form, name, values
        self.kind = kind_of(form, values)
        self.container = others.get(container_of(form, name))

    def __getitem__(self, property_name):
        return self.values[property_name]

    @property
    def shown(self):
        """Visible with all that it lies on; its window aside."""
        return self["Visible"] and (self.container is None or self.container.shown)

    @property
    def place(self):
        """Left, top, width, height in pixels of the window's inside."""
        left, top = _pixels(self["Left"]), _pixels(self["Top"])
        width = _pixels(self["Left"] + self["Width"]) - left
        height = _pixels(self["Top"] + self["Height"]) - top
        if self.container is not None:
            left, top = left + self.container.place[0], top + self.container.place[1]
        return left, top, width, height

    @property
    def ancestors(self):
        return [] if self.container is None else [self.container, *self.container.ancestors]


class Form:
    """A form of the pilot: its controls by name, in stacking order."""

    def __init__(self, name, own, controls):
        self.name, self.values = name, own
        self.controls = {}
        for control, values in controls.items():
            self.controls[control] = Control(name, control, values, self.controls)
        self.placed = [
            control for control in self.controls.values() if control.kind not in ("menu", "unseen")
        ]
        self.menus = [
            control for control in self.controls.values() if control.kind == "menu"
        ]

    def covered(self, control):
        """Whether something lies on the control, or on a part of it."""
        after = self.placed[self.placed.index(control) + 1 :]
        left, top, width, height = control.place
        for other in after:
            if not other.shown:
                continue
            clear = other.kind == "label" and not other["Opaque"]
            if clear and (control.kind == "label" or not other["Caption"]):
                continue  # the one is seen through the other
            x, y, w, h = other.place
            # Labels that grow with their texts stand a little over their places.
            # Buttons side by side share the pixel of their edges.
            air = 24 if clear else -2
            if x - air < left + width and left < x + w + air and y < top + height and top < y + h:
                return True
        return False


def spoken(text):
    """Words with one blank between them, without the points at their end."""
    return re.sub(r"[ \r\n]+", " ", text.strip(" \r\n").rstrip(" \r\n."))


def _lord(shown):
    """A lord is said in full where the window shows two letters."""
    return _LORDS.get(shown, shown)


class Sayings:
    """What a screen reader says for the controls of a form, composed from the pilot's values."""

    _AFTER = {
        "Label_zodiac": "Signe zodiaque",
        "Label_nomNakshatra": "Nakshatra",
        "Label_Nak": "Seigneur du Nakshatra",
        "Label_jourdeSemaine": "Jour de naissance",
        "Label_divinite": "Seigneur du jour de naissance",
        "Label_Lal_Kitab": "Grand cycle",
        "Label_anneedefile": "Premier jour de l'année du cycle",
        "Label_anneedefile_Suite": "Dernier jour de l'année du cycle",
        "Label_Nbr_Fiche": "Total de vos fichiers",
        "Label_message": "Message",
        "Label_horloge": "Date du jour",
        "Label_Heure": "Heure",
        "lblDate": "Date affichée",
    }

    def __init__(self, form):
        self._form = form
        self._of = form.controls

    def __call__(self, control):
        """The name of a control; nothing where the control is told by something else."""
        base = base_of(control.name)
        if base in self._AFTER:
            return self._AFTER[base] + ": " + spoken(control["Caption"])
        cell = cell_of(control.name)
        own = getattr(self, "_" + base, None)
        if own is not None:
            return own(control, cell)
        if control.kind in _MOST_CAPTIONS:
            return spoken(control["Caption"]) or spoken(control["ToolTipText"])
        return None

    def _palace(self, cell):
        palace = self._of[f"Label_Solaire({cell})"]
        if not palace["Visible"] or not palace["Caption"]:
            return f"Case {cell}"
        quality = spoken(palace["ToolTipText"])
        return f"Palais {palace['Caption']}" + (f", {quality}" if quality else "")

    def _reign(self, cell, of_what, label):
        return f"{self._palace(cell)}; seigneur {of_what}: {_lord(label['Caption'])}"

    @staticmethod
    def _since(date):
        return f", depuis le {date['Caption']}" if date["Caption"] else ""

    @staticmethod
    def _mark(date):
        return ", marqué" if date["ForeColor"] == "#000000" else ""

    def _Label_Dasha(self, label, cell):
        date = self._of[f"Label_DashaDate({cell})"]
        return self._reign(cell, "de la période", label) + self._since(date) + self._mark(date)

    def _Label_annee(self, label, cell):
        if not label["Caption"]:
            return self._palace(cell)
        return self._reign(cell, "de l'année", label)

    def _Label_mois(self, label, cell):
        date = self._of[f"Label_MoisDate({cell})"]
        return self._reign(cell, "du mois", label) + self._since(date) + self._mark(date)

    def _Label_Solaire(self, label, cell):
        return self._palace(cell)

    def _Label_DashaDate(self, label, cell):
        return f"{self._palace(cell)}; période{self._since(label)}"

    def _Label_MoisDate(self, label, cell):
        return f"{self._palace(cell)}; mois{self._since(label)}"

    def _Label_age(self, label, index):
        if self._form.name != "Form1":
            return spoken(label["Caption"]) or spoken(label["ToolTipText"])
        true = self._of["HScroll_age"]["Tag"] == "VERT"
        return f"Âge: {label['Caption']}, cycle {'vrai' if true else 'faux'}"

    def _Command_Disk_Vert(self, button, index):
        saved = button["Picture"] != "Diskette(1)"
        words = spoken(button["Caption"]) or spoken(button["ToolTipText"])
        return words + (", rien à sauver" if saved else ", à sauver")

    def _Label_deplace(self, label, index):
        return "Fiche déplacée"

    def _Label2(self, label, index):
        age = label["Caption"]
        if not age:
            return "Aucun âge"
        return f"{int(age)} {'an' if int(age) == 1 else 'ans'}"

    def _Label_couleur(self, label, index):
        return None

    def _btnJour(self, button, index):
        return spoken(button["Caption"]) or spoken(button["ToolTipText"]) or "Aucun jour"
