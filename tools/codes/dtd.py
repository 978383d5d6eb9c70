"""Reads the attribute lists of an SGML document type definition, as far as those of HTML 4.01 go."""

import re

_MARKUP = re.compile(r"<!\[\s*(?P<switch>[^\[]+?)\s*\[|<!(?P<kind>ENTITY|ATTLIST)\b")
_ENTITY = re.compile(r"\s*%\s+(?P<name>[\w.]+)\s+(?P<quote>[\"'])(?P<value>.*?)(?P=quote)", re.DOTALL)
_REFERENCE = re.compile(r"%([A-Za-z][\w.]*);?")
_NAMES = re.compile(r"\s*(\([^)]*\)|[\w.-]+)")
_ATTRIBUTE = re.compile(
    r"\s*(?P<name>[\w-]+)\s+(?P<type>\([^)]*\)|\w+)\s+"
    r"(?P<default>#FIXED\s+(?:'[^']*'|\"[^\"]*\")|#\w+|'[^']*'|\"[^\"]*\"|[\w-]+)",
    re.DOTALL,
)


class Definition:
    """What a DTD says of attributes: {element: {attribute: [word, ...] or None where any text does}}, in lower case.

    A switch such as HTML.Frameset that `switches` names is set before the text is read, and so is not set by it."""

    def __init__(self, text, switches=None):
        self._entities = dict(switches or {})
        self.elements = {}
        self._read(without_comments(text))

    def _read(self, text):
        at = 0
        while match := _MARKUP.search(text, at):
            if match["kind"]:
                at = _end_of_declaration(text, match.end())
                self._declare(match["kind"], text[match.end() : at - 1])
            else:
                end = text.index("]]>", match.end())
                if self._expand(match["switch"]) == "INCLUDE":
                    self._read(text[match.end() : end])
                at = end + len("]]>")

    def _declare(self, kind, body):
        if kind == "ENTITY":
            entity = _ENTITY.match(body)
            if entity:
                self._entities.setdefault(entity["name"], entity["value"])  # the first one holds
        else:
            self._list_attributes(self._expand(body))

    def _list_attributes(self, body):
        for elements, match in listed(body):
            for element in elements:
                self.elements.setdefault(element, {})[match["name"].lower()] = _words(match["type"])

    def _expand(self, text):
        while _REFERENCE.search(text):
            text = _REFERENCE.sub(lambda reference: self._entities.get(reference[1], ""), text)
        return text.strip()


def listed(body):
    """(elements, match of an attribute) for each attribute of a list."""
    names = _NAMES.match(body)
    elements = _words(names[1]) or [names[1].lower()]
    return [(elements, match) for match in _ATTRIBUTE.finditer(body, names.end())]


def without_comments(text):
    text = re.sub(r"<!--.*?-->", "", text, flags=re.DOTALL)
    return re.sub(r"--.*?--", "", text, flags=re.DOTALL)


def _end_of_declaration(text, at):
    quote = None
    while quote or text[at] != ">":
        if text[at] == quote:
            quote = None
        elif not quote and text[at] in "\"'":
            quote = text[at]
        at += 1
    return at + 1


def _words(group):
    """The words of "(a|b)"; None for what is no group."""
    if not group.startswith("("):
        return None
    return [word.strip().lower() for word in group[1:-1].split("|")]
