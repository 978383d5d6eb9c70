"""The reference half of the help: its pages and the list of its topics."""

import elementPages
import stylePages
from markup import code, heading, link, page, paragraph, table, text

TOPICS = "topics/reference/"
_TITLE = "HTML and CSS reference"


def files(elements, inner, styles):
    """{path below the help's folder: text} of all pages and of the list of topics, `elements` being those of HTML and
    `inner` those of drawings and formulas."""
    titled = {elementPages.INDEX: (_TITLE, _index(elements, inner, styles))}
    titled |= elementPages.common_pages(elements) | elementPages.language_pages(elements)
    titled |= stylePages.pages(styles)
    pages = {name: html for name, (_, html) in titled.items()}
    pages |= elementPages.inner_pages(elements, inner) | elementPages.pages(elements)
    titles = {name: title for name, (title, _) in titled.items()}
    titles |= {elementPages.file_name(element): elementPages.title(element) for element in inner + elements}
    pages["Information_KeywordNotFound.htm"] = _not_found()
    return {TOPICS + name: html for name, html in pages.items()} | {"index-reference.txt": _topics(titles)}


def _topics(titles):
    """The page that tells of a missing word is not among them, since nobody would look it up."""
    return "".join(sorted(f"{title}\t{TOPICS}{name}\n" for name, title in titles.items()))


def _index(elements, inner, styles):
    parts = [paragraph(_OPENING), _letters(elements), *_common_links(), heading("Elements of HTML", "html")]
    for letter, group in _by_letter(elements).items():
        rows = [(_element_link(element), _sentence(element)) for element in group]
        parts += [f'<h3><a name="{letter}"></a>{letter}</h3>', table(("Element", "What it is for"), rows)]
    return page(_TITLE, _TITLE, parts + _inner_index(elements, inner) + stylePages.index(styles))


def _inner_index(elements, inner):
    """The elements of drawings and of formulas; of those that HTML has as well, its own sentence tells."""
    sentences = {element.name: element.sentence for element in elements}
    parts = []
    for entry, (*_, things) in sorted(elementPages.LANGUAGES.items(), key=lambda language: language[1][3]):
        group = sorted((element for element in inner if element.under == entry), key=lambda element: element.name.lower())
        rows = [(_element_link(element), _sentence(element) if element.sentence else text(sentences[element.name]))
                for element in group]  # fmt: skip
        parts += [heading(f"Elements of {things}", things), table(("Element", "What it is for"), rows)]
    return parts


_OPENING = (
    "Each element of HTML has a page of its own, which also opens by F1 when the caret stands in a tag. "
    "Elements and attributes that are deprecated are marked; they are listed because old pages are full of them."
)


def _letters(elements):
    links = [link(f"#{letter}", letter) for letter in _by_letter(elements)]
    below = {"drawings": "Elements of drawings", "formulas": "of formulas", "css": "CSS properties"}
    links_below = [link(f"#{anchor}", words) for anchor, words in below.items()]
    return paragraph(" ".join(links) + " &nbsp; " + " &nbsp; ".join(links_below))


def _common_links():
    return [
        paragraph(
            f"{link('GlobalAttributes.htm', 'Global attributes')}, "
            f"{link('EventAttributes.htm', 'event attributes')}, "
            f"{link('AriaAttributes.htm', 'attributes for assistive technology')}"
        )
    ]


def _by_letter(elements):
    found = {}
    for element in elements:
        found.setdefault(element.name.lstrip("!")[0].upper(), []).append(element)
    return {letter: found[letter] for letter in sorted(found)}


def _element_link(element):
    return link(elementPages.file_name(element), code(elementPages.tag(element.name)))


def _sentence(element):
    return text(element.sentence) + (" <i>Deprecated.</i>" if element.deprecated else "")


def _not_found():
    parts = [
        paragraph("The word at the caret is not the name of an element that the reference knows."),
        paragraph("F1 looks at the tag around the caret and opens the page of its element, for a start tag and an end "
                  "tag alike. It finds no page"),
        "<ul>",
        "<li>outside a tag, in the text of the page;</li>",
        "<li>where the name is misspelt, or is one of your own making;</li>",
        "<li>on an attribute in another line than the name of its element, since it looks no further than that line.</li>",
        "</ul>",
        paragraph(f"All elements stand in the {link(elementPages.INDEX, 'index of the reference')}."),
    ]  # fmt: skip
    return page("No page on this word", "There is no page on this word", parts)
