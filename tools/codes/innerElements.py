"""The elements of drawings and of formulas, each of which stands under an element of HTML: svg and math."""

from dataclasses import replace

from knowledge import GLOBAL, LANGUAGE, OWN, Attribute, Element, settled
from tables import names, rows, source

SOURCES = {"math": "mathml", "svg": "svg"}  # by the element that they stand under


def elements(html):
    """Those of both languages, `html` being the elements of HTML; the deprecated ones stand last."""
    words = Words()
    told = {(under, name): sentence for under, name, sentence in rows("innerElements.txt")}
    found = []
    for entry in (element for element in html if element.name in SOURCES):
        found += Language(entry, words).elements(told)
    return sorted(found, key=lambda element: (element.deprecated, element.under, element.name.lower()))


def entered(html):
    """The elements of HTML, of which svg and math have the attributes of their languages, too."""
    words = Words()
    return [Language(element, words).entry() if element.name in SOURCES else element for element in html]


class Words:
    """What an attribute takes and does, for one element or for all that have it."""

    def __init__(self):
        self._words = {}
        for name, hint, meaning, *values in rows("innerAttributes.txt"):
            attribute, _, elements = name.partition("@")
            for element in names(elements) if elements else ["*"]:
                self._words[element, attribute] = (hint, meaning, [(value, False) for value in values])
        self.used = set()

    def apply(self, element, attribute):
        key = (element, attribute.name) if (element, attribute.name) in self._words else ("*", attribute.name)
        self.used.add(key)
        attribute.hint, attribute.meaning, attribute.values = self._words[key]

    def unused(self):
        return sorted(set(self._words) - self.used)


class Language:
    """One of the two, as the browsers know it."""

    def __init__(self, entry, words):
        self._entry = entry
        self._words = words
        self._told = source(f"browser-compat-data/{SOURCES[entry.name]}.json")
        self._of_html = [one for one in entry.attributes if one.group == GLOBAL or one.name in _OF_HTML]
        self._taken = {name: taken.split() for cell, taken in rows("innerExceptions.txt") for name in names(cell)}
        self._added = {}
        for elements, attributes in rows("innerAdditions.txt"):
            for element in names(elements):
                self._added.setdefault(element, []).extend(attributes.split())

    def elements(self, told):
        found = []
        for name, feature in self._told["elements"].items():
            if name != self._entry.name:
                element = Element(name, under=self._entry.name, deprecated=feature.get("deprecated", False))
                element.sentence = told[element.under, name]
                element.attributes = self._in_order(self._own(element) + self._shared(name) + self._common())
                found.append(element)
        return found

    def entry(self):
        """The element of HTML itself; what it has of its own stays as it is."""
        own = {attribute.name for attribute in self._entry.attributes}
        added = self._own(self._entry, own) + self._shared(self._entry.name)
        added = [attribute for attribute in added if attribute.name not in own]
        return replace(self._entry, attributes=self._in_order(self._entry.attributes + added))

    def _common(self):
        """What they have in common with HTML. The roles stand on the page of their own, and with the elements of HTML."""
        return [replace(one, values=[]) if one.name == "role" else one for one in self._of_html]

    def _own(self, element, told=frozenset()):
        features = self._told["elements"][element.name].get("features", {})
        shared = {attribute.name for attribute in self._shared(element.name)}
        known = {_written(name): feature for name, feature in features.items() if settled(feature)}
        known.update((name, known.get(name, {})) for name in self._added.get(element.name, []))
        return [
            self._attribute(name, element, OWN, element.deprecated or known[name].get("deprecated", False))
            for name in sorted(known)
            if name and name not in shared | told
        ]

    def _shared(self, element):
        of_html = {attribute.name for attribute in self._of_html}
        known = {_written(name): feature for name, feature in self._told["globalAttributes"].items() if settled(feature)}
        known.update((name, {}) for name in self._added.get(f"{self._entry.name} *", []))
        known = {name: feature for name, feature in known.items() if name and name not in of_html}
        if self._entry.name == "svg":
            known = {name: feature for name, feature in known.items() if name in self._taken.get(element, known)}
        shown = Element(element)
        return [self._attribute(name, shown, LANGUAGE, known[name].get("deprecated", False)) for name in sorted(known)]

    def _attribute(self, name, element, group, deprecated):
        attribute = Attribute(name, group, valued=True, deprecated=deprecated)
        self._words.apply(element.name, attribute)
        return attribute

    @staticmethod
    def _in_order(attributes):
        return sorted(attributes, key=lambda attribute: (attribute.deprecated, attribute.group))


# Of the events and the attributes for assistive technology those that a part of a drawing is written with: all of them,
# on each of so many elements, would hide what is looked for.
_OF_HTML = set(
    "aria-describedby aria-hidden aria-label aria-labelledby onblur onclick onfocus onkeydown onload onmousedown "
    "onmousemove onmouseout onmouseover onmouseup onpointerdown onpointermove onpointerup".split()
)


def _written(name):
    """The attribute's name; "" for a habit of browsers that has a name with "_"."""
    if name == "svgView":  # no attribute, but a way to write an address
        return ""
    for prefix in ("xlink", "xml"):
        name = name.replace(prefix + "_", prefix + ":")
    return "" if "_" in name else name
