"""Builds the user's manual from the chapters in this folder: a page for the screen, a book for paper, and the first
chapter as a leaflet of its own.

Usage: bauen.py PICTURES TARGET; every picture of PICTURES must be used, every picture and link must be there.
"""

import base64
import io
import pathlib
import re
import sys

import markdown
import weasyprint
from PIL import Image

HERE = pathlib.Path(__file__).parent
ICON = HERE.parent.parent / "platform/qt/icons/quittika.svg"
TITLE = "Benutzerhandbuch - Quittika 2008"
SCALE = 1.5  # of the pictures, see app/main_bilder.cpp


def picture(path):
    """The picture with the colours that it has, as part of the page; its width on a screen."""
    image = Image.open(path).convert("RGB")
    width = round(image.width / SCALE)
    out = io.BytesIO()
    image.quantize(192, dither=Image.Dither.NONE).save(out, "PNG", optimize=True)
    return "data:image/png;base64," + base64.b64encode(out.getvalue()).decode("ascii"), width


class Manual:
    def __init__(self, pictures):
        self.pictures = pictures
        self.used = set()
        chapters = sorted(HERE.glob("[0-9]*.md"))
        self.html, self.contents = self.convert("\n\n".join(c.read_text("utf-8") for c in chapters))
        self.first_html, _ = self.convert(chapters[0].read_text("utf-8"))
        self.check()

    def convert(self, text):
        text = re.sub(r"\[\[(.+?)\]\]", self.keys, text)
        converter = markdown.Markdown(extensions=["attr_list", "tables", "toc", "sane_lists"])
        html = converter.convert(text)
        html = re.sub(r'<p><img alt="([^"]*)" src="bilder/([^"]+)\.png" /></p>', self.figure, html)
        return html.replace("<table>", '<div class="tafel"><table>').replace("</table>", "</table></div>"), converter.toc_tokens

    @staticmethod
    def keys(match):
        names = match.group(1)
        parts = [*names[:-2].split("+"), "+"] if names.endswith("++") else names.split("+")
        return "+".join(f"<kbd>{part}</kbd>" for part in parts)

    def figure(self, match):
        caption, name = match.groups()
        self.used.add(name)
        source, width = picture(self.pictures / f"{name}.png")
        return (f'<figure style="max-width:{width}px"><img src="{source}" alt="{caption}">'
                f"<figcaption>{caption}</figcaption></figure>")

    def check(self):
        ids = re.findall(r'id="([^"]+)"', self.html)
        wrong = [f"#{name} twice" for name in set(ids) if ids.count(name) > 1]
        wrong += [f"#{name} missing" for name in re.findall(r'href="#([^"]+)"', self.html) if name not in ids]
        wrong += [f"{p.name} not used" for p in self.pictures.glob("*.png") if p.stem not in self.used]
        wrong += re.findall(r'src="bilder/[^"]*"', self.html) + re.findall(r"\{#[^}]*\}", self.html)
        if wrong:
            sys.exit("bauen.py: " + ", ".join(wrong))

    def contents_list(self):
        return "<ol>" + "".join(
            f'<li><a href="#{chapter["id"]}">{chapter["name"]}</a></li>' for chapter in self.contents) + "</ol>"

    def page(self, title, style, body):
        css = "".join((HERE / name).read_text("utf-8") for name in ("handbuch.css", style))
        return (f'<!DOCTYPE html>\n<html lang="de"><head><meta charset="utf-8"><title>{title}</title>'
                f'<meta name="viewport" content="width=device-width, initial-scale=1">'
                f'<meta name="color-scheme" content="light dark"><style>{css}</style></head>'
                f"<body>{body}</body></html>\n")

    def cover(self, subtitle):
        icon = base64.b64encode(ICON.read_bytes()).decode("ascii")
        return (f'<header><img src="data:image/svg+xml;base64,{icon}" alt=""><div><p class="titel">Quittika 2008</p>'
                f'<p class="untertitel">{subtitle}</p></div></header>')

    def screen(self):
        return self.page(TITLE, "bildschirm.css",
                         f'<nav>{self.cover("Benutzerhandbuch")}<p class="inhalt">Inhalt</p>{self.contents_list()}</nav>'
                         f"<main>{self.html}</main>")

    def book(self):
        return self.page(TITLE, "papier.css",
                         f'{self.cover("Benutzerhandbuch")}<nav><p class="inhalt">Inhalt</p>{self.contents_list()}</nav>'
                         f"<main>{self.html}</main>")

    def leaflet(self):
        alone = re.sub(r'<a href="#[^"]*">(.*?)</a>', r"\1", self.first_html)
        return self.page("Die erste Rechnung - Quittika 2008", "faltblatt.css",
                         f'{self.cover("Die erste Rechnung")}<main>{alone}</main>')


def main(pictures, target):
    manual = Manual(pathlib.Path(pictures))
    folder = pathlib.Path(target)
    (folder / "startbenutzerhandbuch.htm").write_text(manual.screen(), "utf-8")
    weasyprint.HTML(string=manual.book()).write_pdf(folder / f"{TITLE}.pdf")
    weasyprint.HTML(string=manual.leaflet()).write_pdf(folder / "DIE_ERSTE_RECHNUNG.pdf")


main(*sys.argv[1:])
