#!/usr/bin/env python3
"""Makes the manual: chapters in Markdown, pictures of the program, one PDF.

    make_manual.py --page docs/manual/manual.html --chapters docs/manual/*.md
                   --pictures FOLDER --icons assets --version 1.0.0 --output "AIDE NAVARUN.pdf"

Beside Markdown the chapters know

    ![Caption](picture:consultation 120mm)   a picture of the gallery, with its caption
    ![](icon:Diskette_0)                     a small picture of the program, in the line
    `Calendrier`                             words as they stand on the screen
"""
import argparse
import re
from pathlib import Path

import markdown

from french_typography import typeset
from pdf import write_pdf

FIGURE = re.compile(r"^!\[(?P<caption>.*)\]\(picture:(?P<name>[\w-]+) (?P<width>\d+mm)\)$", re.M)
ICON = re.compile(r"!\[\]\(icon:([\w.]+)\)")
HEADING = re.compile(r'<h([12])[^>]* id="([^"]+)">(.*?)</h\1>')


def body_html(text, pictures, icons):
    """The chapters, from Markdown to HTML."""
    text = FIGURE.sub(
        lambda m: '<figure markdown="0">'
        f'<img src="{pictures.as_uri()}/{m["name"]}.png" alt="" style="width: {m["width"]}"/>'
        f"<figcaption>{inline(m['caption'])}</figcaption></figure>",
        text,
    )
    text = text.replace("picture:", f"{pictures.as_uri()}/")
    text = ICON.sub(lambda m: f'<img class="icon" alt="" src="{icons.as_uri()}/{m[1]}.svg"/>', text)
    return markdown.markdown(
        text, extensions=["tables", "attr_list", "def_list", "md_in_html", "toc", "sane_lists"]
    )


def inline(text):
    """Markdown within a line."""
    html = markdown.markdown(text)
    return html.removeprefix("<p>").removesuffix("</p>")


def contents_html(body):
    """The table of contents; the style sheet adds the page numbers."""
    rows = [
        f'<li class="level{level}"><a href="#{anchor}">{title}</a></li>'
        for level, anchor, title in HEADING.findall(body)
    ]
    return f'<ol>{"".join(rows)}</ol>'


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("page", "pictures", "icons", "output"):
        options.add_argument(f"--{name}", type=Path, required=True)
    options.add_argument("--chapters", type=Path, nargs="+", required=True)
    options.add_argument("--version", required=True)
    given = options.parse_args()
    icons = given.icons.resolve()
    # Rendered as one, so that each heading has an address of its own.
    text = "\n\n".join(read(chapter) for chapter in given.chapters)
    body = body_html(text, given.pictures.resolve(), icons)
    page = read(given.page)
    for name, value in {
        "version": given.version,
        "icons": icons.as_uri(),
        "contents": contents_html(body),
        "body": body,
    }.items():
        page = page.replace(f"{{{{{name}}}}}", value)
    write_pdf(typeset(page), given.page.parent, given.output)


def read(path):
    return path.read_text(encoding="utf-8")


if __name__ == "__main__":
    main()
