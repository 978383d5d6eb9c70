"""What there is to know of CSS: its properties and the words that each can be set to."""

from dataclasses import dataclass

from cssGrammar import Grammar
from tables import names, rows, source

_CUSTOM = "--*"  # stands for the names that pages make up themselves


@dataclass
class Property:
    name: str
    status: str  # standard, experimental, nonstandard or obsolete
    values: list
    measures: list  # in words: what can be written beside the values
    stands_for: str = ""  # the property that this one is another name of


class Styles:
    """The properties that a browser of today knows, and the words that many of them share."""

    def __init__(self):
        css = source("mdn-data/css.json")
        words = {name: [cell for cell in cells if cell] for name, *cells in rows("cssTypes.txt")}
        self.every = words.pop("css-wide")  # what each property can be set to
        told = {name: told for name, told in css["properties"].items() if name != _CUSTOM}
        stands_for = _browser_names() | {name: name for name in told}
        self._stands_for = {name: stands_for[name] for name in _living(told)}
        self._status = {name: told[of]["status"] for name, of in self._stands_for.items()}
        self._measures = {name: cells for name, *cells in rows("cssMeasures.txt")}
        syntax = {name: told["syntax"] for name, told in css["properties"].items()}
        self._grammar = Grammar(syntax, css["syntaxes"], words, self._measures)
        self._left_out, self._put_in = _own_values()
        self.colours = self._grammar.colours()

    def properties(self):
        """The names that all browsers share in alphabetic order, then those that begin with a browser's own prefix."""
        names = sorted(self._stands_for, key=lambda name: (name.startswith("-"), name))
        return [self._property(name) for name in names]

    def _property(self, name):
        of = self._stands_for[name]
        found = self._grammar.of(of)
        measures = [self._measures[measure][0] for measure in self._measures if measure in found.measures]
        return Property(name, self._status[name], self._values(name, found), measures, "" if of == name else of)

    def _values(self, name, found):
        left_out = set(self.every) | self._left_out.get("*", set()) | self._left_out.get(name, set())
        values = self._put_in.get(name, []) + found.in_order(self._samples(found))
        return [value for value in dict.fromkeys(values + self._functions(found)) if value not in left_out] + self.every

    def _samples(self, found):
        return [value for name in self._measures if name in found.measures for value in self._measures[name][1:]]

    def _functions(self, found):
        """What calculates a measure, and what asks the device for a length."""
        calculated = set(found.measures) - {"string"}
        told = self._measures["@functions"] if calculated else []
        return told + (self._measures["@lengths"] if "length" in found.measures else [])


def _browser_names():
    """{prefixed name that browsers know: the property it stands for}"""
    return {name: of for name, of in source("browser-compat-data/css.json")["names"].items() if name.startswith("-")}


def _living(told):
    """The names that browsers of today know, of the properties whose syntax is told."""
    exceptions = {name: word for cell, word in rows("cssExceptions.txt") for name in names(cell)}
    browsers = source("browser-compat-data/css.json")["names"]
    kept = {name for name in told if name in browsers} | {name for name, word in exceptions.items() if word == "kept"}
    prefixed = {name for name, of in _browser_names().items() if of in told}
    return {name for name in kept | prefixed if exceptions.get(name) != "left out"}


def _own_values():
    """({property: values that are left out}, {property: values that are put in front}), of our table."""
    left_out, put_in = {}, {}
    for cell, values in rows("cssValues.txt"):
        for name in names(cell):
            left_out[name] = {value[1:] for value in values.split() if _is_left_out(value)}
            put_in[name] = [value for value in values.split() if not _is_left_out(value)]
    return left_out, put_in


def _is_left_out(value):
    return value.startswith("-")
