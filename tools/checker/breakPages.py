#!/usr/bin/env python3
"""Breaks right pages, one fault a page, as people do who write HTML by hand.

    breakPages.py SEED COUNT FOLDER PAGE...

writes COUNT pages into FOLDER, and `faults.txt`, which says of each what was done to it. The same seed and pages give the
same files."""

import random
import re
import sys
from pathlib import Path

TAG = re.compile(r"<(/?)([a-zA-Z][\w-]*)((?:[^<>\"']|\"[^\"]*\"|'[^']*')*)>")
ATTRIBUTE = re.compile(r"\s([\w:-]+)=(\"[^\"]*\"|'[^']*')")
VOID = set("area base br col embed hr img input link meta source track wbr".split())
OPTIONAL = set("html head body p li dt dd tr td th thead tbody tfoot option optgroup colgroup rt rp caption".split())
NEAR = {"strong": "stron", "span": "spam", "table": "tabel", "title": "titel", "section": "secton", "em": "emm"}


class Page:
    """A page and the places in it that one may break."""

    def __init__(self, text, chance):
        self.text = text
        self.chance = chance
        self.tags = [tag for tag in TAG.finditer(text) if not self._hidden(tag.start())]

    def _hidden(self, at):
        before = self.text[:at]
        for start, end in (("<!--", "-->"), ("<script", "</script"), ("<style", "</style"), ("<textarea", "</textarea")):
            if before.rfind(start) > before.rfind(end):
                return True
        return False

    def pick(self, wanted):
        found = [tag for tag in self.tags if wanted(tag)]
        return self.chance.choice(found) if found else None

    def start(self, *names):
        return self.pick(lambda tag: not tag[1] and (not names or tag[2].lower() in names))

    def end(self, *names):
        return self.pick(lambda tag: tag[1] and (not names or tag[2].lower() in names))

    def with_attribute(self, name=None, element=None):
        found = []
        for tag in self.tags:
            if tag[1] or element and tag[2].lower() != element:
                continue
            for match in ATTRIBUTE.finditer(self.text, tag.start(), tag.end()):
                if name is None or match[1].lower() == name:
                    found.append(match)
        return self.chance.choice(found) if found else None

    def replaced(self, start, end, text):
        return self.text[:start] + text + self.text[end:]


def drop_end_tag(page):
    tag = page.pick(lambda tag: tag[1] and tag[2].lower() not in OPTIONAL)
    return tag and page.replaced(tag.start(), tag.end(), "")


def drop_start_tag(page):
    tag = page.pick(lambda tag: not tag[1] and tag[2].lower() not in VOID | {"html", "head", "body", "script", "style", "title", "textarea"})
    return tag and page.replaced(tag.start(), tag.end(), "")


def misspell_element(page):
    tag = page.pick(lambda tag: not tag[1] and tag[2].lower() not in VOID | {"html", "head", "body", "script", "style", "textarea"})
    if not tag:
        return None
    name = NEAR.get(tag[2], tag[2] + tag[2][-1] if len(tag[2]) > 1 else "xx")
    return page.replaced(tag.start(2), tag.end(2), name)


def misspell_attribute(page):
    match = page.with_attribute()
    if not match or match[1].startswith(("data-", "aria-")):
        return None
    return page.replaced(match.start(1), match.end(1), match[1][:-1] or "xq")


def double_attribute(page):
    match = page.with_attribute()
    return match and page.replaced(match.end(), match.end(), f' {match[1]}="x"')


def drop_closing_quote(page):
    match = page.with_attribute()
    return match and page.replaced(match.end() - 1, match.end(), "")


def drop_opening_quote(page):
    match = page.with_attribute()
    return match and page.replaced(match.start(2), match.start(2) + 1, "")


def drop_bracket(page):
    tag = page.pick(lambda tag: True)
    return tag and page.replaced(tag.end() - 1, tag.end(), "")


def stray_end_tag(page):
    tag = page.start("p", "li", "td", "div", "body", "dd")
    name = page.chance.choice(["div", "span", "ul", "b", "p", "table", "br"])
    return tag and page.replaced(tag.end(), tag.end(), f"</{name}>")


def block_in_words(page):
    tag = page.start("em", "strong", "span", "b", "i", "code", "h1", "h2", "h3", "a", "label")
    block = page.chance.choice(["<div>x</div>", "<ul><li>x</li></ul>", "<h2>x</h2>", "<table><tr><td>x</td></tr></table>"])
    return tag and page.replaced(tag.end(), tag.end(), block)


def block_in_paragraph(page):
    tag = page.end("p")
    return tag and page.replaced(tag.start(), tag.start(), page.chance.choice(["<ul><li>x</li></ul>", "<div>x</div>", "<h3>x</h3>"]))


def wrong_child(page):
    tag = page.start("ul", "ol", "dl", "tr", "table", "tbody", "select", "picture", "head")
    return tag and page.replaced(tag.end(), tag.end(), page.chance.choice(["<p>x</p>", "<div>x</div>", "<li>x</li>", "<td>x</td>", "<span>x</span>"]))


def child_alone(page):
    tag = page.start("body", "div", "section", "p", "main")
    part = page.chance.choice(["<li>x</li>", "<td>x</td>", "<tr><td>x</td></tr>", "<dt>x</dt>", "<option>x</option>", "<figcaption>x</figcaption>", "<caption>x</caption>"])
    return tag and page.replaced(tag.end(), tag.end(), part)


def text_in_list(page):
    tag = page.start("ul", "ol", "dl", "table", "tr", "tbody")
    return tag and page.replaced(tag.end(), tag.end(), "some words")


def in_its_like(page):
    tag = page.start("p", "td", "li", "div")
    return tag and page.replaced(tag.end(), tag.end(), page.chance.choice([
        '<a href="x.htm">a <a href="y.htm">b</a></a>', "<form action=\"x\"><form action=\"y\"><p>x</p></form></form>",
        "<button>a <button>b</button></button>", "<label>a <label>b</label></label>", '<a href="x.htm"><button>x</button></a>']))  # fmt: skip


def content_in_void(page):
    tag = page.start("br", "hr", "img", "input", "meta", "link")
    return tag and page.replaced(tag.end(), tag.end(), f"x</{tag[2]}>")


def id_twice(page):
    tag = page.start("p", "div", "li", "td", "h2", "span", "section")
    other = page.with_attribute("id")
    if not tag or not other or " id=" in tag[3]:
        return None
    return page.replaced(tag.end(2), tag.end(2), f" id={other[2]}")


def reference_nowhere(page):
    match = page.with_attribute("for", "label") or page.with_attribute("list", "input") or page.with_attribute("usemap")
    return match and page.replaced(match.start(2) + 1, match.end(2) - 1, ("#" if match[1] == "usemap" else "") + "nowhere")


def wrong_word(page):
    for _ in range(20):
        name = page.chance.choice(["type", "scope", "method", "dir", "shape", "loading", "enctype", "wrap", "kind", "preload", "role", "autocomplete"])
        match = page.with_attribute(name)
        if match and page.text[: match.start()].rfind("<script") < page.text[: match.start()].rfind(">"):
            return page.replaced(match.start(2) + 1, match.end(2) - 1, "wrongg")
    return None


def wrong_number(page):
    for name in page.chance.sample(["colspan", "rowspan", "width", "height", "maxlength", "size", "rows", "cols", "tabindex", "start", "value"], 11):
        match = page.with_attribute(name)
        if match and re.fullmatch(r"[\"'][0-9]+[\"']", match[2]):
            return page.replaced(match.start(2) + 1, match.end(2) - 1, page.chance.choice(["5px", "abc", "50%", "1.5.2"]))
    return None


def missing_attribute(page):
    for element, name in page.chance.sample([("img", "alt"), ("img", "src"), ("bdo", "dir"), ("area", "alt"), ("meta", "content"), ("map", "name"), ("track", "src"), ("optgroup", "label"), ("link", "href"), ("link", "rel"), ("input", "alt"), ("meter", "value")], 12):
        match = page.with_attribute(name, element)
        if match:
            return page.replaced(match.start(), match.end(), "")
    return None


def bad_address(page):
    match = page.with_attribute("href") or page.with_attribute("src")
    return match and page.replaced(match.start(2) + 1, match.start(2) + 1, page.chance.choice(["a b/", "a\\b/", "http://", "%zz"]))


def bad_reference(page):
    tag = page.end("p", "li", "td", "h1", "h2", "a")
    return tag and page.replaced(tag.start(), tag.start(), page.chance.choice([" &bogus; ", " &copy ", " &#0; ", " &eacute x", " a < b ", " &lt3 "]))


def crossed(page):
    tag = page.start("p", "td", "li", "dd")
    return tag and page.replaced(tag.end(), tag.end(), page.chance.choice(["<b>a <i>b</b> c</i>", "<em>a <strong>b</em> c</strong>", "<span>a <b>b</span> c</b>"]))


def comment_open(page):
    tag = page.start("p", "div", "ul", "table", "h2")
    return tag and page.replaced(tag.start(), tag.start(), page.chance.choice(["<!-- a note ", "<!-- a <!-- b --> c ", "<!- note ->", "<? echo 1 ?>", "<!note>"]))


def slash_in_tag(page):
    tag = page.pick(lambda tag: not tag[1] and tag[2].lower() in ("div", "span", "p", "a", "td", "li", "b", "em"))
    return tag and page.replaced(tag.end() - 1, tag.end(), "/>")


def attributes_together(page):
    match = page.with_attribute()
    return match and page.replaced(match.end(), match.end(), 'class="x"')


def without_title(page):
    match = re.search(r"<title>.*?</title>", page.text, re.DOTALL)
    return match and page.replaced(match.start(), match.end(), "")


def second_of_its_kind(page):
    tag = page.start("body", "head", "title")
    part = {"body": "<body>", "head": "<title>x</title><title>y</title>", "title": ""}[tag[2].lower()] if tag else ""
    return page.replaced(tag.end(), tag.end(), part) if part else None


def table_parts(page):
    tag = page.end("tr", "tbody", "table")
    part = {"tr": "<caption>x</caption>", "tbody": "<colgroup><col></colgroup>", "table": "<thead><tr><th>x</th></tr></thead>"}
    return tag and page.replaced(tag.start() if tag[2] == "table" else tag.end(), tag.start() if tag[2] == "table" else tag.end(), part[tag[2].lower()])


def without_doctype(page):
    match = re.search(r"<!DOCTYPE[^>]*>", page.text, re.IGNORECASE)
    return match and page.replaced(match.start(), match.end(), page.chance.choice(["", "<!DOCTYPE htm>", "<!DOCTYPE>"]))


def unknown_attribute(page):
    tag = page.start("p", "div", "a", "img", "td", "ul", "table", "input", "body")
    return tag and page.replaced(tag.end(2), tag.end(2), page.chance.choice([' colour="red"', ' onclik="x()"', ' herf="x"', " checked", ' aria-labell="x"', ' foo:bar="x"']))


def swapped_end(page):
    tag = page.pick(lambda tag: tag[1] and tag[2].lower() in ("h1", "h2", "h3", "b", "strong", "em", "i", "ul", "td", "div", "section"))
    other = {"h1": "h2", "h2": "h3", "h3": "h2", "b": "strong", "strong": "b", "em": "i", "i": "em", "ul": "ol", "td": "th", "div": "section", "section": "div"}
    return tag and page.replaced(tag.start(2), tag.end(2), other[tag[2].lower()])


FAULTS = [
    drop_end_tag, drop_start_tag, misspell_element, misspell_attribute, double_attribute, drop_closing_quote,
    drop_opening_quote, drop_bracket, stray_end_tag, block_in_words, block_in_paragraph, wrong_child, child_alone,
    text_in_list, in_its_like, content_in_void, id_twice, reference_nowhere, wrong_word, wrong_number, missing_attribute,
    bad_address, bad_reference, crossed, comment_open, slash_in_tag, attributes_together, without_title,
    second_of_its_kind, table_parts, without_doctype, unknown_attribute, swapped_end,
]  # fmt: skip


def broken(chance, pages, fault):
    """A page with that fault, tried on one page after another; nothing where it fits none."""
    for path in chance.sample(pages, len(pages)):
        text = fault(Page(path.read_text(encoding="utf-8"), chance))
        if text:
            return path, text
    return None, None


def main(arguments):
    if len(arguments) < 4:
        sys.exit(__doc__)
    chance = random.Random(int(arguments[0]))
    folder = Path(arguments[2])
    folder.mkdir(parents=True, exist_ok=True)
    pages = [Path(name) for name in arguments[3:]]
    told = []
    for number in range(int(arguments[1])):
        fault = FAULTS[number % len(FAULTS)]
        path, text = broken(chance, pages, fault)
        if text is None:
            sys.exit(f"no page for {fault.__name__}")
        name = f"{number:03d}.html"
        (folder / name).write_text(text, encoding="utf-8")
        told.append(f"{name}\t{fault.__name__}\t{path.name}\n")
    (folder / "faults.txt").write_text("".join(told), encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1:])
