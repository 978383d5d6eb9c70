"""The help pages of the CSS properties: one for each letter, one for the browsers' own, one for the colours."""

from elementPages import way_back
from markup import codes, heading, link, page, paragraph, table, text

_OWN = "-"  # stands for the names that begin with a browser's prefix
_COLOURS = "Css_Colours.htm"
_WITHOUT_WORDS = "what is named or drawn is written out"
_STATUS = {
    "experimental": "experimental",
    "nonstandard": "not standardised",
    "obsolete": "deprecated",
}


def letter(found):
    return _OWN if found.name.startswith("-") else found.name[0].upper()


def file_name(key):
    return "Css_Prefixed.htm" if key == _OWN else f"Css_{key}.htm"


def caption(key):
    return "CSS properties: browsers' own" if key == _OWN else f"CSS properties: {key}"


def by_letter(properties):
    """{letter: its properties}, in the order of the properties."""
    found = {}
    for each in properties:
        found.setdefault(letter(each), []).append(each)
    return found


def pages(styles):
    """{file name: (title, page)}"""
    found = {_COLOURS: ("CSS colours", _colour_page(styles.colours))}
    for key, group in by_letter(styles.properties()).items():
        rows = [_row(each, set(styles.colours), set(styles.every)) for each in group]
        parts = [_common_words(styles.every), table(("Property", "Values"), rows), way_back()]
        found[file_name(key)] = (caption(key), page(caption(key), caption(key), parts))
    return found


def index(styles):
    """The section of the reference's index."""
    parts = [heading("CSS properties", "css"), paragraph(link(_COLOURS, "Colours"))]
    for key, group in by_letter(styles.properties()).items():
        links = [link(f"{file_name(key)}#{each.name}", text(each.name)) for each in group]
        letter_link = link(file_name(key), "Browsers' own" if key == _OWN else key)
        parts.append(paragraph(f"<b>{letter_link}</b><br>" + ", ".join(links)))
    return parts


def _row(found, colours, every):
    coloured = colours <= set(found.values)
    told = codes(value for value in found.values if value not in every and not (coloured and value in colours))
    if coloured:
        told += (", " if told else "") + link(_COLOURS, "a colour")
    if found.measures:
        told += (", " if told else "") + text(" or ".join([", ".join(found.measures[:-1])] * bool(found.measures[1:])
                                                          + found.measures[-1:]))  # fmt: skip
    status = _STATUS.get(found.status, "")
    if found.stands_for:
        status = f"the same as {found.stands_for}"
    status = f"<br><i>{status}</i>" if status else ""
    return f'<a name="{found.name}"></a><code>{found.name}:</code>{status}', told or _WITHOUT_WORDS


def _common_words(every):
    return paragraph(f"Every property can also be set to {codes(every)}.")


def _colour_page(colours):
    names = [name for name in colours if not name.endswith("()")]
    parts = [
        paragraph("Wherever a property takes a colour, one of these names can stand for it, or the number of a colour "
                  "such as <code>#800000</code>. The names with capital letters are colours of the reader's desktop."),
        paragraph(codes(names)),
        paragraph("These functions make a colour from numbers or from other colours."),
        paragraph(codes(name for name in colours if name not in names)),
        way_back(),
    ]  # fmt: skip
    return page("CSS colours", "CSS colours", parts)
