"""Content models, from the two forms in which the sources write them to the one that the program reads."""

import re

def model(contents):
    """The model for a `contents` of the structure package; None for one that is not judged."""
    if contents is True:
        return None
    if contents is False or not contents:
        return ""
    return "(" + ", ".join(_piece(piece) for piece in contents) + ")"


def _piece(piece):
    if isinstance(piece, str):
        return _symbol(piece)
    (kind, held), = piece.items()
    if kind == "choice":
        return "(" + " | ".join(model(one) for one in held) + ")"
    if kind == "transparent":
        return "#transparent*"
    # Where the sources ask for one or more of a group, an element without any is still right.
    mark = {"zeroOrMore": "*", "oneOrMore": "*" if _is_group(held) else "+", "optional": "?", "require": ""}[kind]
    return _inner(held) + mark


def _is_group(held):
    return isinstance(held, str) and (held.startswith(":model(") or held == "#text")


def _inner(held):
    if isinstance(held, str):
        return _symbol(held)
    parted = ", " if all(isinstance(one, dict) for one in held) else " | "
    return "(" + parted.join(_piece(one) for one in held) + ")"


def _symbol(selector):
    group = re.match(r":model\(([\w-]+)\)", selector)
    if group:
        return "@" + group[1]
    name = re.match(r"#?[\w-]+", selector)[0]
    return {"#nonEmptyText": "#text", "#script-supporting": "@script-supporting"}.get(name, name)


def members(group):
    """The names in a group of the structure package; what only counts under a condition is among them."""
    found = []
    for selector in group:
        name = re.match(r"(?:\w+\|)?(#?[\w-]+)", selector.strip())[1]
        if name not in found:
            found.append(name)
    return found


class Declaration:
    """An element's declaration in a document type definition."""

    def __init__(self, content):
        """`content` stands behind the names, entities expanded: "- O (A|B)* -(C) +(D)"."""
        text = content.lower()
        start, end, rest = re.match(r"\s*(-|o)\s+(-|o)\s+(.*)", text, re.DOTALL).groups()
        self.start_optional = start == "o"
        self.end_optional = end == "o"
        self.without = self._exception(rest, "-")
        self.plus = self._exception(rest, r"\+")
        bare = re.sub(r"\s[-+]\([^)]*\)", "", " " + rest).strip()
        self.void = bare == "empty"
        self.must, self.once = [], []
        self.model = "" if self.void else self._model(bare)

    @staticmethod
    def _exception(text, mark):
        found = re.search(r"(?:^|\s)" + mark + r"\(([^)]*)\)", text)
        return [name.strip() for name in found[1].split("|")] if found else []

    def _model(self, text):
        if text == "cdata":
            return "(#text)*"
        text = re.sub(r"\s+", " ", text).replace("#pcdata", "#text")
        if text in ("#text", "(#text)"):
            return "(#text)*"
        if "&" not in text:
            return text.replace("(#text,", "(#text*,")  # blanks are no text, and none is demanded
        for part in text.strip("() ").split("&"):
            name = re.sub(r"[^\w#|]", "", part).strip("|")
            if "|" in name or part.strip().endswith(("+", "+)")):
                continue
            self.once.append(name)
            if not part.strip().endswith("?"):
                self.must.append(name)
        names = [name for name in re.findall(r"[\w#]+", text)]
        return "(" + " | ".join(names) + ")*"
