"""French typography on HTML: what is typed plainly becomes what is printed.

Words of the screen (in <code>) stay as the screen shows them.
"""
import re

NBSP = "\u00a0"
# Thinner than a whole blank; a font without the narrow one still sets it well.
THIN = f'<span class="thin">{NBSP}</span>'

_VERBATIM = ("code", "style", "pre")
_TAG = re.compile(r"(<[^>]+>)")
# What a number stays on one line with.
_UNITS = r"(?:ans?|mois|jours?|lignes|caractères|lettres|années|h)\b"


def typeset_text(text):
    """The text between two tags, with the blanks and marks of French printing."""
    text = text.replace("...", "…").replace("'", "’")
    text = re.sub(r"[ \u00a0]+:", f"{NBSP}:", text)
    text = re.sub(r"[ \u00a0]+([;!?])", THIN + r"\1", text)
    text = re.sub(r"«[ \u00a0]*", f"«{NBSP}", text)
    text = re.sub(r"[ \u00a0]*»", f"{NBSP}»", text)
    text = re.sub(rf"(\d) (?={_UNITS})", rf"\1{NBSP}", text)
    text = text.replace(" –", f"{NBSP}–")
    return text


def typeset(html):
    """`html` with its texts typeset; attributes and words of the screen are let be."""
    pieces = []
    verbatim = 0
    for piece in _TAG.split(html):
        tag = re.match(r"<(/?)(\w+)", piece)
        if tag and tag[2] in _VERBATIM:
            verbatim += -1 if tag[1] else 1
        pieces.append(piece if tag or verbatim else typeset_text(piece))
    # A blank that would part a mark from the tag before it: « `word` » and `word` ?
    html = "".join(pieces)
    html = re.sub(rf"«{NBSP}\s+<", f"«{NBSP}<", html)
    return html
