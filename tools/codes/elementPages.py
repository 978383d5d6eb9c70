"""The help pages of the elements, and of the attributes that all of them have."""

import re

from knowledge import ARIA, EVENTS, GLOBAL, LANGUAGE
from markup import code, codes, example, heading, link, page, paragraph, table, text

INDEX = "ReferenceIndex.htm"
_COMMON = {
    GLOBAL: ("GlobalAttributes.htm", "Global attributes", "global attributes"),
    ARIA: ("AriaAttributes.htm", "Attributes for assistive technology", "attributes for assistive technology"),
    EVENTS: ("EventAttributes.htm", "Event attributes", "event attributes"),
}
_OF_COMMON = {
    GLOBAL: "These attributes can stand on nearly every element, whatever it is for.",
    ARIA: "These attributes tell programs that read a page aloud, or show it on a braille display, what its parts are "
    "and how they stand. Where an element of HTML says so by itself, none of them is needed.",
    EVENTS: "Each of these attributes holds a piece of script, which runs when the event happens.",
}


LANGUAGES = {
    "math": ("FormulaAttributes.htm", "Attributes of formulas", "attributes of formulas", "formulas"),
    "svg": ("DrawingAttributes.htm", "Attributes of drawings", "attributes of drawings", "drawings"),
}  # by the element under which those of the language stand


def title(element):
    if element.under:
        return f"{element.name} element of {LANGUAGES[element.under][3]}"
    return f"{element.name} element" if element.name != "!doctype" else "!doctype declaration"


def file_name(element):
    return f"Tag_{element.name.upper()}.htm"


def tag(name):
    return f"<{name}>"


def language_pages(elements):
    """{file name: (title, page)} of the attributes that the elements of drawings have in common, and those of formulas."""
    found = {}
    for entry in (element for element in elements if element.name in LANGUAGES):
        name, caption, _, things = LANGUAGES[entry.name]
        opening = f"These attributes can stand on nearly every element of {things}, and on {_link_to(entry)} itself."
        attributes = [attribute for attribute in entry.attributes if attribute.group == LANGUAGE]
        found[name] = (caption, page(caption, caption, [paragraph(opening), *_tables(attributes), way_back()]))
    return found


def inner_pages(elements, inner):
    """{file name: page} of the elements of other languages; what HTML has under the same name stands there."""
    known = {element.name: element for element in elements}
    common = _of_every_element(known)
    return {file_name(element): _inner_page(element, known, common) for element in inner if element.name not in known}


def _inner_page(element, known, common):
    name, _, words, things = LANGUAGES[element.under]
    stands = f"It stands in {things}, inside {_link_to(known[element.under])}."
    old = "This element is deprecated. Browsers may still know it, but new pages do better without it."
    parts = [
        paragraph(text(element.sentence)),
        paragraph(stands),
        paragraph(old, "deprecated") if element.deprecated else "",
        heading("Syntax"),
        paragraph(code(syntax_line(element)), "syntax"),
        paragraph(f"It also takes the {link(name, words)}."),
        _common_attributes(element, common),
        *_tables(element.own()),
        way_back(),
    ]
    return page(title(element), tag(element.name), parts)


def _of_every_element(known):
    most = known["div"].attributes  # as many as an element can have in common with others
    return {group: {attribute.name for attribute in most if attribute.group == group} for group in _COMMON}


def pages(elements):
    """{file name: page} of all elements of HTML."""
    known = {element.name: element for element in elements}
    common = _of_every_element(known)
    return {file_name(element): _page(element, known, common) for element in elements}


def common_pages(elements):
    """{file name: (title, page)} of the attributes that the elements have in common."""
    found = {}
    for group, (name, caption, _) in _COMMON.items():
        parts = [paragraph(_OF_COMMON[group]), *_common_tables(elements, group), way_back()]
        found[name] = (caption, page(caption, caption, parts))
    return found


def _common_tables(elements, group):
    """Of events, those that only the whole page knows stand apart from those of every element."""
    every = {attribute.name for element in elements if element.name == "div" for attribute in element.attributes}
    attributes = _all_of(elements, group)
    if group != EVENTS:
        return _tables(attributes)
    parts = []
    for caption, of_all in ((_ON_EVERY, True), (_ON_BODY, False)):
        parts += [paragraph(caption), *_tables([found for found in attributes if (found.name in every) == of_all])]
    return parts


_ON_EVERY = "These can stand on every element."
_ON_BODY = f"These tell of the page as a whole, and can stand on {link('Tag_BODY.htm', code('<body>'))} alone."


def syntax_line(element):
    """The element with the attributes of its own that are in use."""
    line = "<" + element.name
    for attribute in (own for own in element.own() if not own.deprecated or element.deprecated):
        line += f" {attribute.name}" if attribute.bare else ""
        hint = f"[{attribute.hint}]" if attribute.hint else ""
        line += f" {attribute.name}={hint}" if attribute.valued and not _is_flag(attribute) else ""
    return line + ">"


def _is_flag(attribute):
    """Whether the name says it all, and is the one value that the attribute can have."""
    return attribute.bare and attribute.values == [(attribute.name, attribute.deprecated)] and not attribute.hint


def _page(element, known, common):
    parts = [
        paragraph(text(element.sentence)),
        _standing(element, known),
        heading("Example"),
        example(element.example),
        heading("Syntax"),
        paragraph(code(syntax_line(element)), "syntax"),
        _language_attributes(element),
        _common_attributes(element, common),
        *_model(element, known),
        *_tables(element.own()),
        _related(element, known),
        way_back(),
    ]
    return page(title(element), tag(element.name), parts)


def _standing(element, known):
    told = []
    if element.deprecated:
        told.append("This element is deprecated. Browsers may still know it, but new pages do better without it.")
        told.append(linked(element.instead, known))
    if element.void and element.name != "!doctype":
        told.append("It has no content and no end tag.")
    return paragraph(" ".join(told), "deprecated" if element.deprecated else None) if told else ""


def linked(words, known):
    """The words, each {name} in them as a link to that element's page."""
    return re.sub(r"\{([\w!]+)\}", lambda name: _link_to(known[name[1]]), text(words))


def _link_to(element):
    return link(file_name(element), code(tag(element.name)))


def _model(element, known):
    """What the element may hold and where it may stand."""
    told = (
        ("It may hold", element.holds),
        ("It may stand", element.stands),
        ("It must have", element.demands),
        ("Tags", element.tags),
    )
    rows = [(caption, linked(words, known)) for caption, words in told if words]
    return [heading("Use"), table(None, rows)] if rows else []


def _tables(attributes):
    """One table of the attributes in use, one of those that are not to be used any more."""
    parts = []
    for deprecated, caption in ((False, "Attributes"), (True, "Deprecated attributes")):
        chosen = [attribute for attribute in attributes if attribute.deprecated == deprecated]
        if chosen:
            rows = [(_forms(attribute), text(attribute.meaning), _values(attribute)) for attribute in chosen]
            parts += [heading(caption), table(("Attribute", "What it says", "Values"), rows)]
    return parts


def _forms(attribute):
    forms = [attribute.name] * attribute.bare + [attribute.name + "="] * attribute.valued
    return "<br>".join(code(form) for form in forms)


def _values(attribute):
    """The values that are known by name, or else what is to be written."""
    told = [codes(value for value, deprecated in attribute.values if not deprecated)]
    if attribute.hint:
        told.insert(0, text(attribute.hint))
    deprecated = codes(value for value, deprecated in attribute.values if deprecated)
    if deprecated:
        told.append(f"Deprecated: {deprecated}")
    return "<br>".join(part for part in told if part) or ("none" if attribute.bare else "&nbsp;")


def _language_attributes(element):
    if element.name not in LANGUAGES:
        return ""
    name, _, words, things = LANGUAGES[element.name]
    return paragraph(f"It also takes the {link(name, words)}. {link(f'{INDEX}#{things}', f'The elements of {things}')}.")


def _common_attributes(element, common):
    """Which of the attributes that elements have in common this one takes; `common` is {group: their names}."""
    links = []
    for group, (name, _, words) in _COMMON.items():
        taken = {attribute.name for attribute in element.attributes if attribute.group == group}
        if taken:
            links.append(("the " if common[group] <= taken else "some of the ") + link(name, words))
    if not links:
        return ""
    return paragraph(f"It also takes {' and '.join([', '.join(links[:-1]), links[-1]] if links[1:] else links)}.")


def _all_of(elements, group):
    """The group's attributes in alphabetic order, from whichever element has them."""
    found = {}
    for element in elements:
        for attribute in element.attributes:
            if attribute.group == group:
                found.setdefault(attribute.name, attribute)
    return [found[name] for name in sorted(found)]


def _related(element, known):
    links = [_link_to(known[name]) for name in element.related]
    return paragraph("See also: " + ", ".join(links)) if links else ""


def way_back():
    return paragraph(link(INDEX, "All elements and properties"))
