"""Makes from the kept sources the rules that a page is checked by: one vocabulary for the language of today, and one for
each document type of HTML 4."""

import re

import dtd
from knowledge import ARIA, Joiner
from pageModels import Declaration, members, model
from tables import names, rows, source

_HEADER = """# What a page is checked by, made by tools/codes/generate.py. Cells are parted by tabs. Under "vocabulary":
#   group      name, members
#   element    name, marks, model, what it may not hold at any depth, what it must hold, what at most once, what it may
#              hold at any depth beside its model
#   attribute  name, marks, type, the elements that have it or "*"
#   demand     element, any one of these attributes, where
#   condition  element, attribute, where it may stand
"""


def text():
    """The whole file."""
    parts = [_HEADER, _today(), _words()]
    for name, switches in (("strict", {}), ("loose", {}), ("frameset", {"HTML.Frameset": "INCLUDE"})):
        file = "strict" if name == "strict" else "loose"
        parts.append(_of_definition(name, source(f"html401/{file}.dtd"), switches))
    return "".join(parts)


def _line(*cells):
    return "\t".join(cells).rstrip("\t") + "\n"


# --- Today --------------------------------------------------------------------------------------------------------


def _today():
    structure = source("markuplint-html-spec/structure.json")
    lines = [_line("vocabulary", "today")]
    known = sorted((element for element in Joiner().elements() if element.name.isalnum()), key=lambda one: one.name)
    deprecated = {element.name for element in known if element.deprecated}
    for name, group in sorted(structure["groups"].items()):
        lines.append(_line("group", name.removeprefix("#"), " ".join(_with_old(name, members(group), deprecated))))
    lines += _elements(structure, known)
    told = {(element.name, *one[:1]): one[1:] for element in known for one in _attributes(structure, element)}
    told.update({("*", *one[:1]): one[1:] for one in _common_attributes(structure, known)})
    told.update({("body", name): ("", "any") for name in _window_events(known)})
    lines += _gathered(told)
    lines += [_line("demand", element, *_demand(cells)) for element, *cells in rows("pageDemands.txt")]
    lines += [_line("condition", *row) for row in _conditions()]
    return "".join(lines)


_OLD_BLOCKS = {"center", "dir", "isindex", "listing", "xmp", "plaintext", "multicol", "noframes", "marquee"}
_NOWHERE = {"frame", "frameset", "param", "menuitem", "nextid", "rb", "rtc"}


def _with_old(group, found, deprecated):
    """What is deprecated is told as such, wherever it stands, and not as misplaced on top."""
    if group == "#flow":
        return found + ["selectedcontent"] + sorted(deprecated - set(found) - _NOWHERE)
    if group == "#phrasing":
        return found + ["selectedcontent"] + sorted(deprecated - set(found) - _NOWHERE - _OLD_BLOCKS)
    return found


def _elements(structure, known):
    own = {row[0]: [row[1].replace("/", "|"), *row[2:]] for row in rows("pageModels.txt")}
    excluded = source("html-validate/content.json")["elements"]
    lines = []
    for element in known:
        content = structure["elements"].get(element.name, {}).get("content") or {}
        held = model(content.get("contents", True))
        row = own.get(element.name, ["any" if held is None or element.deprecated else held, "", ""])
        marks = ["void"] * element.void + ["deprecated"] * element.deprecated
        without = [name.replace("@form", "form") for name in excluded.get(element.name, {}).get("notWithin", [])]
        must, once = (cell.replace(",", "") for cell in row[1:])
        lines.append(_line("element", element.name, " ".join(marks), row[0], " ".join(without), must, once))
    lines += [_line("element", name, "variant", row[0]) for name, row in own.items() if ">" in name]
    return lines


def _attributes(structure, element):
    """(name, marks, type) of those that only some elements have."""
    told = structure["elements"].get(element.name, {})
    types = dict(told.get("attributes", {}))
    for group, taken in (told.get("shared") or {}).items():
        if isinstance(taken, list):
            for name in taken:
                shared = structure["shared"].get(group, {}).get(name, {})
                types[name] = {**shared, **types.get(name, {})}
    own = {attribute.name: attribute for attribute in element.own()}
    for name in sorted(set(own) | set(types)):
        attribute = own.get(name)
        kind = types.get(name, {})
        if name.startswith("on") and attribute is None:
            continue
        old = attribute.deprecated if attribute else kind.get("deprecated") or kind.get("nonStandard")
        yield name, "deprecated" if old else "", _type_of(attribute, kind)


def _common_attributes(structure, known):
    types = structure["shared"]["#HTMLGlobalAttrs"]
    common = _shared(known, "div")
    for name in sorted(set(common) | set(types)):
        if not name.endswith("*"):
            attribute = common.get(name)
            old = attribute and attribute.deprecated
            yield name, "deprecated" if old else "", _type_of(attribute, types.get(name, {}))


def _shared(known, name):
    """{name: attribute} of what an element has in common with others."""
    element = next(element for element in known if element.name == name)
    return {attribute.name: attribute for attribute in element.attributes if attribute not in element.own()}


def _window_events(known):
    return sorted(set(_shared(known, "body")) - set(_shared(known, "div")))


def _demand(cells):
    attributes, *where = cells
    return [attributes.replace(",", ""), *where]


def _gathered(told):
    """A line for all elements that have an attribute of the same name, marks and type."""
    found = {}
    for (element, name), (marks, kind) in told.items():
        found.setdefault((name, marks, kind), []).append(element)
    return [_line("attribute", name, marks, kind, " ".join(sorted(found[name, marks, kind])))
            for name, marks, kind in sorted(found)]  # fmt: skip


def _is_flag(attribute):
    """Whether it counts by being there: it stands alone, or with its own name as its value."""
    return attribute.bare and (not attribute.valued or [text for text, _ in attribute.values] == [attribute.name])


def _type_of_aria(attribute):
    """The states that can be told; "undefined" stands for none of them."""
    values = [value for value, _ in attribute.values]
    if not values:
        return "any"
    kind = "words:" if attribute.name in ("aria-relevant", "aria-dropeffect") else "one:"
    return kind + "|".join(values + ["undefined"])


def _type_of(attribute, kind):
    if attribute is not None and _is_flag(attribute):
        return "flag"
    if attribute is not None and attribute.group == ARIA:
        return _type_of_aria(attribute)
    # An encoding other than UTF-8 is judged by the bytes of the page, not by its name.
    return "any" if attribute is not None and attribute.name == "charset" else _type(kind.get("type"))


_TYPES = {
    "Any": "any", "NoEmptyAny": "some", "Boolean": "flag", "URL": "url", "NonEmptyURL": "url+", "BaseURL": "url",
    "DOMID": "id", "Int": "int", "Uint": "uint", "Number": "number", "BCP47": "language", "HashName": "hash",
    "MIMEType": "mime", "NavigableTargetNameOrKeyword": "target", "NavigableTargetName": "target", "TabIndex": "int",
    "DateTime": "moment", "DateStringWithOptionalTime": "day", "CustomElementName": "some", "Srcset": "some",
    "AbsoluteURLOrEmpty": "any", "AutoComplete": "autocomplete", "AutoCompleteNoWebauthn": "autocomplete",
}  # fmt: skip


def _type(kind):
    """The program's name for a type of the structure package; "any" for what it does not look into."""
    if isinstance(kind, str):
        return _TYPES.get(kind, "any")
    if isinstance(kind, dict):
        return _told_type(kind)
    told = [one for one in kind or [] if isinstance(one, dict)]
    if told and all(str(one.get("type")).startswith("AutoComplete") for one in told):
        return "autocomplete"
    return "any"


def _told_type(kind):
    if "enum" in kind:
        mark = "case:" if kind.get("caseInsensitive") is False else "one:"
        return mark + "|".join(kind["enum"])
    if "token" in kind:
        token = kind["token"]
        if isinstance(token, dict) and "enum" in token and kind.get("separator") == "space":
            return "words:" + "|".join(token["enum"])
        return {"DOMID": "ids", "OneCodePointChar": "characters", "AbsoluteURL": "any"}.get(token, "any")
    if "pattern" in kind:
        return "some"
    if kind.get("type") == "integer":
        return "uint+" if kind.get("gt") == 0 else "uint"
    if kind.get("type") == "float":
        return "number"
    return "any"


def _conditions():
    for element, attributes, where in rows("pageConditions.txt"):
        for attribute in names(attributes):
            yield element, attribute, where


def _words():
    """What is the same for every vocabulary."""
    structure = source("markuplint-html-spec/structure.json")
    references = source("html-validate/content.json")["references"]
    lines = [_line("vocabulary", "all")]
    lines.append(_line("roles", " ".join(structure["roles"])))
    lines.append(_line("aria", " ".join(structure["aria"])))
    lines.append(_line("references", " ".join(references)))
    return "".join(lines)


# --- HTML 4 -------------------------------------------------------------------------------------------------------


class ContentDefinition(dtd.Definition):
    """A document type definition with its elements' content and what it demands of attributes."""

    _ELEMENT = re.compile(r"<!ELEMENT\s+(\([^)]*\)|[\w%;.]+)\s+([^>]*)>")

    def __init__(self, definition, switches):
        self.demands = set()
        self.kinds = {}
        super().__init__(definition, switches)
        self.declarations = {}
        for match in self._ELEMENT.finditer(dtd.without_comments(definition)):
            for name in re.findall(r"\w+", self._expand(match[1]).lower()):
                self.declarations.setdefault(name, Declaration(self._expand(match[2])))

    def expanded(self, entity):
        """What an entity stands for, as it stands in models."""
        return re.sub(r"\s+", " ", self._expand(f"%{entity};").lower()).replace("#pcdata", "#text")

    def _list_attributes(self, body):
        super()._list_attributes(body)
        for elements, match in dtd.listed(body):
            for element in elements:
                key = element, match["name"].lower()
                if match["default"] == "#REQUIRED":
                    self.demands.add(key)
                if match["type"] in _DEFINED:
                    self.kinds[key] = _DEFINED[match["type"]]


_DEFINED = {"ID": "id", "IDREF": "id", "IDREFS": "ids", "NUMBER": "uint"}


def _of_definition(name, definition, switches):
    read = ContentDefinition(definition, switches)
    groups = {group: read.expanded(group) for group in ("flow", "block", "inline")}
    lines = [_line("vocabulary", name)]
    lines += [_line("group", group, " ".join(re.findall(r"[\w#]+", held))) for group, held in groups.items()]
    for element, declared in sorted(read.declarations.items()):
        if "%" in element:
            continue
        held = declared.model
        for group, whole in groups.items():
            held = held.replace(whole, "@" + group)
        lines.append(_line("element", element, "void" if declared.void else "", held, " ".join(declared.without),
                           " ".join(declared.must), " ".join(declared.once), " ".join(declared.plus)))  # fmt: skip
    told = {}
    for element, attributes in sorted(read.elements.items()):
        for attribute, words in sorted(attributes.items()):
            kind = read.kinds.get((element, attribute), "any")
            if words:
                kind = "flag" if words == [attribute] else "one:" + "|".join(words)
            told[element, attribute] = ("", kind)
    lines += _gathered(told)
    lines += [_line("demand", element, attribute) for element, attribute in sorted(read.demands)]
    return "".join(lines)
