"""Days of work, as requests: each a list, with the files that lie there before it."""

import random

MORNING = [{"op": "clock", "date": "21/11/2026", "time": "10:15:00"}, {"op": "load"}]
WINDOWS = ["Form1", "Affiche_cycle", "choix_age", "frmCalend", "Fleche", "FrmSeigneurJour",
           "Palais_du_destin", "Option_impression", "a_propos"]
# Everything that can be seen, and everything that reached the outside.
LOOK = [{"op": "dump", "form": window} for window in WINDOWS] + [{"op": "effects"}, {"op": "pages"}]

# Where files that the practitioner drops from outside lie; each pilot names it in its own way.
OUTSIDE = "{outside}"


def click(control):
    return {"op": "click", "control": control}


def double_click(control):
    return {"op": "dblclick", "control": control}


def type_in(control, text):
    return {"op": "type", "control": control, "text": text}


def set_to(control, value):
    return {"op": "set", "control": control, "value": value}


def choose(control, item):
    return {"op": "choose", "control": control, "item": item}


def key(control, code):
    return {"op": "key", "control": control, "code": code}


def answer(value):
    return {"op": "answer", "value": value}


def person(first_name, last_name, birth, note=""):
    requests = [set_to("Text_prenom", first_name), set_to("Text_nom", last_name),
                {"op": "focus", "control": "Text_Note"}, type_in("Combo_jourNaiss", birth),
                click("Command2")]
    return requests + ([set_to("Text_Note", note)] if note else [])


def saved(*who):
    return person(*who) + [click("Command_Disk_Vert")]


def selected(entry, folder=1):
    return [click(f"Charge({folder})"), choose("File_Fichier", entry)]


QUIT = [click("MnuQuitter")]
DELETE, CONTROL, ENTER = 46, 17, 13


def gif(width, height):
    return (b"GIF89a" + width.to_bytes(2, "little") + height.to_bytes(2, "little")
            + b"\x80\x00\x00\x80\x80\x80\xff\xff\xff\x2c\x00\x00\x00\x00\x01\x00\x01\x00\x00"
            + b"\x02\x02\x44\x01\x00\x3b")


def bmp(width, height):
    return (b"BM" + bytes(12) + (40).to_bytes(4, "little") + width.to_bytes(4, "little")
            + height.to_bytes(4, "little") + b"\x01\x00\x18\x00" + bytes(24))


def jpeg(width, height):
    return (b"\xff\xd8\xff\xe0\x00\x04\x00\x00\xff\xc0\x00\x0b\x08" + height.to_bytes(2, "big")
            + width.to_bytes(2, "big") + b"\x01\x01\x11\x00\xff\xd9")


PORTRAITS = {"RESSOURCES/IMAGE/Éloïse à Nîmes.gif": gif(100, 300),
             "RESSOURCES/IMAGE/jean.JPG": jpeg(640, 480),
             "RESSOURCES/IMAGE/vieux.bmp": bmp(64, 64),
             "RESSOURCES/IMAGE/😀.gif": gif(8, 8),
             "RESSOURCES/IMAGE/notes.txt": b"pas une image"}
OUTSIDE_FILES = {"Łódź été.jpg": jpeg(30, 40), "jean.JPG": jpeg(10, 10), "lettre.doc": b"texte"}

NOTE = "Première ligne : « œuvre », 12 € – été\r\nDeuxième ligne, d'une autre main…\r\n\r\nFin."

# A record by hand, with line ends of the other kind and a portrait that is gone.
OLD_RECORDS = {
    "RESSOURCES/DATA1/Martin Zoé.fcy":
        '"Zoé","Martin","29","02","19","60",1,"partie.gif","une note"\n'.encode("cp1252"),
    "RESSOURCES/DATA2/ÉCOLE Anaïs.FCY":
        '"Anaé","École","01","01","20","01",0,"jean.JPG",""\r\n'.encode("cp1252"),
    "RESSOURCES/DATA2/nul.txt": b"",
    "RESSOURCES/DATA1/navarun.tmp": b"what a killed run left",
    "RESSOURCES/CONFIG.CFG": b"9,3\r\n",
    "RESSOURCES/INTERNET.DAT": b'"www.example.org"\n"www.exemple.fr"',
}

EVERY_WINDOW = (
    [click("MnuCalendrier"), click("frmCalend.btnJour(20)"), choose("frmCalend.cMois", "Mai"),
     click("frmCalend.chkFerie"), click("frmCalend.chkWeek"), click("frmCalend.BtnToday"),
     {"op": "clock", "date": "21/11/2026", "time": "10:15:07"}]
    + [click("Bouton_seigneurjour"), {"op": "dump", "form": "FrmSeigneurJour"},
       click("FrmSeigneurJour.Btn_Imprime")]
    + [click("Mnu_palaisdestin"), click("Mnuperiode"), click("Label_age"),
       click("choix_age.Image2"), click("choix_age.Label2(57)")]
    + [click("MnuFleche"), click("Fleche.Option_Fleche(2)"), click("Fleche.Label_couleur(12)")]
    + [{"op": "mouse", "control": "Picture_KUNDALI", "event": event, "button": 1, "x": x, "y": y}
       for event, x, y in [("down", 1000, 1200), ("move", 2500, 1900), ("move", 3111, 2777.5),
                           ("up", 3111, 2777.5)]]
    + [{"op": "get", "names": ["Picture_KUNDALI.Drawing"]}, click("Fleche.Command1"),
       click("MnuFleche")]
    + [click("MnuPropos"), {"op": "dump", "form": "a_propos"}, click("a_propos.LblInternet"),
       click("a_propos.cmdOK")]
    + [click(entry) for entry in ("MnuAide", "Mnucelebrites", "MnuCalculatrice", "MnuBlocNotes",
                                  "MnuNavarun", "MnuDevant")]
)

PRINTING = (
    [click("MnuApercu_Impression"), {"op": "pages"}, click("Option_impression.Check_palaisDestin"),
     set_to("Option_impression.HScroll_annee", 33), click("Option_impression.Btn_remise1"),
     click("Option_impression.Check_periode"), {"op": "dump", "form": "Option_impression"},
     {"op": "pages"}, click("Option_impression.Image_Impression"), {"op": "pages"}]
    + [answer(2), click("MnuImprime"), click("MnuImprime"), {"op": "pages"}, {"op": "effects"}]
)

DAYS = {
    "records saved, found again, moved, deleted": ({}, (
        saved("marie-claire", "dupont", "17051962", NOTE) + saved("éloïse", "œuvre", "29021960")
        + saved("Łukasz", "ñandú", "31121999", "ł, ž et Ÿ")
        + [click("Command_Disk_Vert"), answer(2), click("Command_Disk_Vert")]
        + selected("Dupont Marie-claire.fcy") + [double_click("File_Fichier")] + LOOK
        + selected("Œuvre Éloïse.fcy") + [key("File_Fichier", CONTROL), {"op": "drop", "control": "Charge(2)"}]
        + [click("Charge(1)"), click("Charge(2)"), {"op": "get", "names": ["File_Fichier.List"]},
           set_to("Text_Cherche", "œ"), {"op": "get", "names": ["File_Fichier.ListIndex"]},
           key("Text_Cherche", ENTER)]
        + selected("Dupont Marie-claire.fcy")
        + [answer(2), click("Command_reset"), key("File_Fichier", DELETE)] + LOOK + QUIT)),
    "records of years": ({**PORTRAITS, **OLD_RECORDS}, (
        LOOK + selected("Martin Zoé.fcy") + [double_click("File_Fichier")] + LOOK
        + [click("Command_Disk_Vert"), click("Charge(2)"),
           {"op": "get", "names": ["File_Fichier.List"]}, choose("File_Fichier", "ÉCOLE Anaïs.FCY"),
           double_click("File_Fichier")] + LOOK + [click("Command_Disk_Vert")] + LOOK + QUIT)),
    "portraits chosen, dropped, deleted": (PORTRAITS, (
        person("Zoé", "Été", "01021970")
        + [click("Bouton_Image"), {"op": "get", "names": ["File_Fichier.List"]},
           choose("File_Fichier", "Éloïse à Nîmes.gif"), double_click("File_Fichier"),
           click("Command_Disk_Vert")]
        + [{"op": "drop", "control": "Picture_PHOTO", "file": f"{OUTSIDE}/{name}"}
           for name in (*OUTSIDE_FILES, "jean.JPG")]
        + [click("Command_Disk_Vert"), click("Bouton_Image"),
           {"op": "get", "names": ["File_Fichier.List"]}, choose("File_Fichier", "vieux.bmp"),
           click("Command_reset")] + LOOK
        + [{"op": "hover", "control": "Picture_PHOTO"}, double_click("Picture_PHOTO"),
           click("Command_Disk_Vert")] + LOOK + QUIT)),
    "a portrait that is none": ({"RESSOURCES/IMAGE/faux.gif": b"GIF"}, (
        saved("Jean", "Durand", "01011980", "à garder")
        + [set_to("Text_Note", "à sauver"), click("Bouton_Image"),
           choose("File_Fichier", "faux.gif"), double_click("File_Fichier")])),
    "addresses": ({}, (
        [click("Bouton_Internet"), set_to("Text_New_URL", "www.école.fr/été?q=œ"),
         click("Command_Disk_Vert"), choose("List_Internet", "fr.wikipedia.org"),
         double_click("List_Internet"), click("Command_reset"), answer(2),
         choose("List_Internet", "www.larousse.fr"), click("Command_reset")] + LOOK + QUIT)),
    "settings": ({}, (
        [request for entry in ("MnuMauve_Aum", "MnuAzur_cycle", "MnuAzur_Aum", "MnuMauve_cycle", "Mnu_abrege")
         for request in [click(entry), *LOOK]] + QUIT)),
    "a broken settings file": ({"RESSOURCES/CONFIG.CFG": b"300,0\r\n"}, LOOK),
    "the personality report": ({}, (
        person("Marie-Hélène", "Noël d'Arc", "24121985") + [click("MnuPersonalite")] + LOOK
        + [set_to("Text_prenom", ""), set_to("Text_nom", ""), click("MnuPersonalite")] + LOOK + QUIT)),
    "names that no file bears": ({}, (
        person("a/b", "c", "01011980", "à sauver") + [click("Command_Disk_Vert")])),
    "names that once were devices": ({}, (
        saved("jean", "aux.", "01011980") + saved("x.y", "con .z", "02011980") + saved(" ", " .", "03011980")
        + [set_to("Text_prenom", "nul."), set_to("Text_nom", "x"), click("MnuPersonalite")]
        + [click("Charge(1)"), {"op": "get", "names": ["File_Fichier.List"]},
           choose("File_Fichier", "Aux. Jean.fcy"), double_click("File_Fichier")] + LOOK + QUIT)),
    "a file in the place of the folders": ({"RESSOURCES": b"un fichier"}, LOOK),
    "a folder in the place of the settings": ({"RESSOURCES/CONFIG.CFG": None}, LOOK),
    "a folder in the place of the addresses": ({"RESSOURCES/INTERNET.DAT": None}, LOOK),
    "a folder in the place of a record": ({"RESSOURCES/DATA1/Durand Jean.fcy": None}, (
        person("jean", "durand", "01011980", "à sauver") + [click("Command_Disk_Vert")])),
    "a record gone behind one's back": ({}, saved("jean", "durand", "01011980") + (
        selected("Durand Jean.fcy") + [key("File_Fichier", DELETE), click("Charge(1)")]
        + [click("Charge(1)"), double_click("File_Fichier")] + LOOK + QUIT)),
    "every window": ({"RESSOURCES/DOCS/AIDE NAVARUN.pdf": b"%PDF"}, (
        person("Jeanne", "Morel", "12031601") + EVERY_WINDOW + LOOK
        + person("Anna", "Bloch", "15061970") + EVERY_WINDOW + LOOK + QUIT)),
    "pages printed": (PORTRAITS, (
        person("Anna", "Bloch", "15061970", NOTE * 9)
        + [click("Bouton_Image"), choose("File_Fichier", "jean.JPG"), double_click("File_Fichier")]
        + PRINTING + LOOK + QUIT)),
    "a life walked to its end": ({}, (
        [request for birth, step in (("17051962", 7), ("29022000", 13), ("01011900", 50))
         for request in [*person("Vie", "Longue", birth),
                         *(r for age in range(1, 351, step)
                           for r in (set_to("HScroll_age", age), click("Command2"))),
                         *LOOK]] + QUIT)),
    "births of every kind": ({}, (
        [request for birth in ("31041962", "29021901", "31121599", "01011600", "15061700", "28022199",
                               "24031800", "05051750", "10101920", "31121949")
         for request in [*saved("Naît", "Le " + birth, birth), click("Mnu_Julien"), click("Command2"),
                         {"op": "dump", "form": "Form1"}, click("Command_DateNow"), click("Mnu_Julien")]]
        + LOOK + QUIT)),
}

TEXTS = ["Jean", "éloïse", "œuvre", "ŁÓDŹ", "d'arc", "日本", "a b  c", "", "12", "Ÿ.", "x" * 40]


def random_day(seed, controls):
    """A day of whatever comes into someone's head, the same for the same seed."""
    rng = random.Random(seed)
    names = [name for name in controls if name != "MnuQuitter"]

    def act():
        control = rng.choice(names)
        kind = rng.choice(["click"] * 6 + ["dblclick", "hover", "type", "set", "key", "mouse", "drop",
                                           "choose", "answer", "clock", "save", "close"])
        if kind == "answer":
            return [answer(rng.choice([1, 1, 2]))]
        if kind == "clock":
            return [{"op": "clock", "date": f"{rng.randint(1, 28):02}/{rng.randint(1, 12):02}/2026",
                     "time": f"{rng.randint(0, 23):02}:15:00"}]
        if kind == "save":
            birth = f"{rng.randint(1, 28):02}{rng.randint(1, 12):02}{rng.randint(1600, 2030)}"
            return saved(rng.choice(TEXTS), rng.choice(TEXTS), birth)
        if kind == "close":
            return [{"op": "close", "form": rng.choice(WINDOWS[1:])}]
        request = {"op": kind, "control": control}
        if kind == "type":
            request["text"] = rng.choice(TEXTS)
        elif kind == "set":
            request["value"] = rng.choice([*TEXTS, 1, 0, True, rng.randint(-1, 400)])
        elif kind == "key":
            request["code"] = rng.choice([ENTER, CONTROL, DELETE, 32, 38, 40])
        elif kind == "choose":
            request["index"] = rng.randint(-1, 12)
        elif kind == "mouse":
            request.update(event=rng.choice(["down", "move", "up"]), button=rng.randint(0, 2),
                           x=round(rng.uniform(-50, 6000), 2), y=round(rng.uniform(-50, 6000), 2))
        return [request]

    return [request for _ in range(250) for request in act()] + LOOK
