"""What there is to know of HTML: its elements, their attributes and the values of these, joined from all sources."""

import re
from dataclasses import dataclass, field

from dtd import Definition
from tables import FOLDER, MARK, names, rows, source, unmarked

# The groups of attributes, in the order in which they are listed. LANGUAGE: what all elements of drawings have, or of formulas.
OWN, LANGUAGE, GLOBAL, ARIA, EVENTS = range(5)
ONLY = "="  # stands among values of ours: there are no others


@dataclass
class Attribute:
    name: str
    group: int
    bare: bool = False  # may stand alone
    valued: bool = False  # may have a value
    guessed: bool = False  # the sources do not tell whether it takes a value
    deprecated: bool = False
    hint: str = ""
    meaning: str = ""
    values: list = field(default_factory=list)  # of (text, deprecated)


@dataclass
class Element:
    name: str
    under: str = ""  # the element of HTML that those of its language stand under; empty for those of HTML
    deprecated: bool = False
    void: bool = False  # has no end tag
    attributes: list = field(default_factory=list)
    sentence: str = ""
    example: str = ""
    instead: str = ""  # of a deprecated element: what to use in its place
    holds: str = ""  # these four tell how it is used, where there is something to tell
    stands: str = ""
    demands: str = ""
    tags: str = ""
    related: list = field(default_factory=list)  # the names of other elements

    def own(self):
        return [attribute for attribute in self.attributes if attribute.group == OWN]


# --- What the sources say -----------------------------------------------------------------------------------------


class Sources:
    """The kept sources, without what is left out of them."""

    def __init__(self):
        self.checked = source("html-validate/elements.json")
        self.browsers = source("browser-compat-data/html.json")
        self.handlers = source("webref-idl/eventHandlers.json")
        self.strict = Definition(source("html401/strict.dtd")).elements
        self.loose = Definition(source("html401/loose.dtd"), {"HTML.Frameset": "INCLUDE"}).elements
        self._omitted = {}
        for elements, attributes in rows("omissions.txt"):
            for element in names(elements):
                self._omitted.setdefault(element, []).append(attributes.split())

    def elements(self):
        found = set(self.checked) | set(self.loose)
        found |= {name for name, feature in self.browsers["elements"].items() if settled(feature)}
        return [name for name in found if [] not in self._omitted.get(name, [])]

    def deprecated(self, element):
        return any(place.get(element, {}).get("deprecated") for place in (self.checked, self.browsers["elements"]))

    def void(self, element):
        return self.checked.get(element, {}).get("void", False)

    def attributes(self, element):
        """{attribute: what each of the three sources says of it, None where it says nothing}"""
        checked = self.checked.get(element, {}).get("attributes", {})
        browsers = self._attributes_in_browsers(element)
        listed = self.loose.get(element, {})
        left_out = {name for omitted in self._omitted.get(element, []) for name in omitted}
        found = (set(checked) | set(browsers) | set(listed)) - left_out
        return {name: (checked.get(name), browsers.get(name), listed.get(name, False)) for name in sorted(found)}

    def _attributes_in_browsers(self, element):
        features = self.browsers["elements"].get(element, {}).get("features", {})
        return {
            name: feature
            for name, feature in features.items()
            # The names with "_" are habits of browsers, not attributes.
            if "_" not in name and (settled(feature) or self._is_checked(element, name))
        }

    def _is_checked(self, element, attribute):
        return attribute in self.checked.get(element, {}).get("attributes", {})

    def global_attributes(self):
        left_out = {name for omitted in self._omitted["*"] for name in omitted}
        checked = self.checked["*"]["attributes"]
        found = {name for name, feature in self.browsers["globalAttributes"].items() if settled(feature)}
        found = {name for name in found | set(checked) if not name.startswith("aria-")}  # a table of ours has these
        return {name: checked.get(name, {}) for name in sorted(found - left_out)}

    def event_handlers(self, mixin):
        """Of the standards whose events browsers have; the browsers' old names of newer events are left out."""
        standards = ["css-animations", "css-transitions", "html", "pointerevents", "selection-api", "touch-events"]
        found = [name for standard in standards for name in self.handlers[standard].get(mixin, [])]
        return sorted(name for name in found if not name.startswith("onwebkit"))


def settled(feature):
    """A trial is none of the standard's, unless it was one and is on its way out."""
    return feature.get("deprecated", False) or not (feature.get("experimental") or feature.get("nonstandard"))


# --- Values -------------------------------------------------------------------------------------------------------


class Values:
    """The values that are ours to add, by element and attribute."""

    def __init__(self):
        self._groups = {}
        self._values = {}
        for cells in rows("values.txt"):
            if cells[0].startswith("@"):
                self._groups[cells[0]] = cells[1:]
                continue
            for element in names(cells[0]):
                for attribute in names(cells[1]):
                    self._values.setdefault((element, attribute), []).extend(self._resolved(cells[2:]))

    def _resolved(self, cells):
        found = []
        for cell in cells:
            found.extend(self._resolved(self._groups[cell]) if cell in self._groups else [cell])
        return found

    def of(self, element, attribute):
        return self._values.get((element, attribute), []) + self._values.get(("*", attribute), [])


def _joined_values(own, checked, listed):
    """Ours first, since they stand in a chosen order; then the sources' that are not among them."""
    if ONLY in own:
        own, checked, listed = [value for value in own if value != ONLY], None, None
    found = dict(unmarked(value) for value in own)
    for value in list((checked or {}).get("values", [])) + list(listed or []):
        found.setdefault(value, False)
    current = [(text, False) for text, deprecated in found.items() if not deprecated]
    return current + [(text, True) for text, deprecated in found.items() if deprecated]


# --- Attributes ---------------------------------------------------------------------------------------------------


def _is_flag(name, checked, listed):
    return bool((checked or {}).get("boolean")) or listed == [name]


def _may_be_bare(checked):
    return bool((checked or {}).get("omit"))


def _is_current(checked, browsers):
    checked_current = checked is not None and not checked.get("deprecated")
    browsers_current = browsers is not None and not browsers.get("deprecated")
    if checked is not None and browsers is not None:
        return checked_current and browsers_current
    return checked_current or browsers_current


class Words:
    """The hint and the meaning of an attribute, for one element or for all that have it."""

    def __init__(self):
        self._words = {}
        for name, hint, meaning in rows("attributes.txt"):
            attribute, _, elements = name.partition("@")
            for element in names(elements) if elements else ["*"]:
                self._words[element, attribute] = (hint, meaning)
        self.used = set()

    def of(self, element, attribute):
        key = (element, attribute) if (element, attribute) in self._words else ("*", attribute)
        self.used.add(key)
        return self._words.get(key, ("", ""))

    def unused(self):
        return sorted(set(self._words) - self.used)


class Order:
    """The attributes that an element is mostly written with stand first; the others follow by letter."""

    def __init__(self):
        self.chosen = {}
        for elements, attributes in rows("order.txt"):
            for element in names(elements):
                self.chosen[element] = attributes.split()

    def place(self, element, attribute):
        first = self.chosen.get(element, [])
        return (first.index(attribute) if attribute in first else len(first), attribute)


class Additions:
    """The attributes that the sources leave out."""

    def __init__(self):
        self._attributes = {}
        for elements, attributes in rows("additions.txt"):
            for element in names(elements):
                self._attributes.setdefault(element, []).extend(attributes.split())

    def elements(self):
        return set(self._attributes) - {"*"}

    def apply(self, element, attributes, group):
        """Adds the element's to {name: Attribute}; a form that is already there stays as it is."""
        for word in self._attributes.get(element, []):
            text, deprecated = unmarked(word)
            name = text.removesuffix("=")
            attribute = attributes.setdefault(name, Attribute(name, group, deprecated=deprecated))
            if attribute.guessed:
                attribute.guessed = attribute.valued = False
            attribute.bare |= text == name
            attribute.valued |= text != name


class Joiner:
    """Joins the sources and our own tables."""

    def __init__(self):
        self.sources = Sources()
        self.additions = Additions()
        self.values = Values()
        self.words = Words()
        self.order = Order()
        self._exceptions = {}
        for group, elements, kept in rows("exceptions.txt"):
            for element in elements.split():
                self._exceptions[group, element] = set(kept.split())

    def elements(self):
        told = {name: (mark, sentence) for name, mark, sentence in rows("elements.txt")}
        instead = dict(rows("instead.txt"))
        models, related, examples = _models(), _related(), _examples()
        found = set(self.sources.elements()) | self.additions.elements()
        result = []
        for name in found:
            mark, sentence = told[name]
            element = Element(name, sentence=sentence, example=examples[name])
            element.deprecated = self.sources.deprecated(name) or MARK in mark
            element.void = self.sources.void(name) or "void" in mark
            element.attributes = self._attributes(element)
            element.instead = instead[name] if element.deprecated else ""
            element.holds, element.stands, element.demands, element.tags = models.get(name, ("", "", "", ""))
            element.related = related[name]
            result.append(element)
        return sorted(result, key=lambda element: (element.deprecated, element.name))

    def _attributes(self, element):
        """The current ones in front of the deprecated ones, its own in front of those of all elements."""
        common = self._common(element)
        named = {attribute.name for attribute in common}
        found = [own for own in self._own(element) if own.name not in named] + common
        return sorted(found, key=lambda attribute: (attribute.deprecated, attribute.group))

    def _own(self, element):
        found = {}
        for name, (checked, browsers, listed) in self.sources.attributes(element.name).items():
            flag = _is_flag(name, checked, listed)
            attribute = Attribute(name, OWN, valued=True, guessed=checked is None and listed is False)
            attribute.bare = flag or _may_be_bare(checked)
            attribute.deprecated = not _is_current(checked, browsers)
            attribute.values = [(name, False)] if flag else self._values(element.name, name, checked, listed)
            found[name] = attribute
        self.additions.apply(element.name, found, OWN)
        for attribute in found.values():
            attribute.deprecated |= element.deprecated
            self._complete(element.name, attribute)
        return [found[name] for name in sorted(found, key=lambda name: self.order.place(element.name, name))]

    def _complete(self, element, attribute):
        attribute.hint, attribute.meaning = self.words.of(element, attribute.name)
        if attribute.bare and not attribute.valued and element != "!doctype":
            # A flag, to which XHTML and old pages give its name as value.
            attribute.valued, attribute.values = True, [(attribute.name, False)]
        if attribute.valued and not attribute.values:
            attribute.values = self._values(element, attribute.name, None, None)

    def _values(self, element, name, checked, listed):
        return _joined_values(self.values.of(element, name), checked, listed)

    def _common(self, element):
        """What all elements have, but for the exceptions."""
        groups = [
            ("global", self._global_attributes()),
            ("aria", self._aria_attributes()),
            ("events", self._event_attributes(element.name)),
        ]
        return [attribute for group, found in groups for attribute in found if self._takes(element, group, attribute)]

    def _takes(self, element, group, attribute):
        told = attribute.name == "role" or attribute.group == ARIA
        if told and element.deprecated:
            return False  # who cares for such readers will not begin with what is obsolete
        keys = [("role", element.name)] * (attribute.name == "role") + [(group, element.name)]
        return all(attribute.name in self._exceptions.get(key, {attribute.name}) for key in keys)

    def _global_attributes(self):
        found = {}
        for name, checked in self.sources.global_attributes().items():
            flag = _is_flag(name, checked, None)
            attribute = Attribute(name, GLOBAL, valued=True, deprecated=checked.get("deprecated", False))
            attribute.bare = flag or _may_be_bare(checked)
            attribute.values = [(name, False)] if flag else self._values("*", name, checked, None)
            found[name] = attribute
        self.additions.apply("*", found, GLOBAL)
        for attribute in found.values():
            self._complete("*", attribute)
        role = self._aria_rows()[0]
        found["role"] = role
        role.group = GLOBAL
        return [found[name] for name in sorted(found)]

    def _aria_attributes(self):
        return self._aria_rows()[1:]

    def _aria_rows(self):
        found = []
        for marked, hint, meaning, *values in rows("aria.txt"):
            name, deprecated = unmarked(marked)
            attribute = Attribute(name, ARIA, valued=True, deprecated=deprecated, hint=hint, meaning=meaning)
            attribute.values = _joined_values(values, None, None)
            found.append(attribute)
        return found

    def _event_attributes(self, element):
        found = self.sources.event_handlers("GlobalEventHandlers")
        if element in ("body", "frameset"):
            found = sorted(set(found) | set(self.sources.event_handlers("WindowEventHandlers")))
        attributes = [Attribute(name, EVENTS, valued=True) for name in found]
        for attribute in attributes:
            self._complete(element, attribute)
        return attributes


def _models():
    """{element: what it may hold, where it may stand, which attributes it must have, which tags may be left out}"""
    groups, found = {}, {}
    for first, *cells in rows("models.txt"):
        if first.startswith("@"):
            groups[first] = cells[0]
            continue
        cells = [re.sub("@[a-z-]+", lambda group: groups[group[0]], cell) for cell in cells + [""] * (4 - len(cells))]
        found.update(dict.fromkeys(names(first), tuple(cells)))
    return found


def _related():
    """{element: the others that its page names}"""
    found = {}
    for elements, others in rows("related.txt"):
        for name in names(elements):
            found.setdefault(name, []).extend(other for other in names(others) if other != name)
    return {name: list(dict.fromkeys(others)) for name, others in found.items()}


def _examples():
    """{element: its example}: in own/examples.txt each stands indented below its element's name."""
    found = {}
    for line in (FOLDER / "own" / "examples.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith("    "):
            found[name] += line[4:] + "\n"
        elif line and not line.startswith("#"):
            name = line
            found[name] = ""
    return {name: text.rstrip("\n") for name, text in found.items()}
