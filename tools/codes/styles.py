"""What there is to know of CSS: its properties and the words that each can be set to."""

from dataclasses import dataclass

from cssGrammar import Grammar
from tables import rows, source

_CUSTOM = "--*"  # stands for the names that pages make up themselves


@dataclass
class Property:
    name: str
    status: str  # standard, experimental, nonstandard or obsolete
    values: list


class Styles:
    """The properties, and the words that many of them share."""

    def __init__(self):
        css = source("mdn-data/css.json")
        words = {name: [cell for cell in cells if cell] for name, *cells in rows("cssTypes.txt")}
        self.every = words.pop("css-wide")  # what each property can be set to
        self._status = {name: told["status"] for name, told in css["properties"].items() if name != _CUSTOM}
        syntax = {name: told["syntax"] for name, told in css["properties"].items()}
        self._grammar = Grammar(syntax, css["syntaxes"], words)
        self.colours = self._grammar.colours()

    def properties(self):
        """The names that all browsers share in alphabetic order, then those that begin with a browser's own prefix."""
        names = sorted(self._status, key=lambda name: (name.startswith("-"), name))
        return [Property(name, self._status[name], self._values(name)) for name in names]

    def _values(self, name):
        return [value for value in self._grammar.values(name) if value not in self.every] + self.every
