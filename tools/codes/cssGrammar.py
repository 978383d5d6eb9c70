"""Collects from the formal syntax of CSS properties the words that can be written as they stand."""

import re
from dataclasses import dataclass, field

# Everywhere a number can stand, a calculation can; nobody looks for these among the values of a property.
_CALCULATIONS = {
    "abs", "acos", "asin", "atan", "atan2", "calc", "calc-size", "clamp", "cos", "exp", "hypot", "log", "max", "min",
    "mod", "pow", "progress", "random", "rem", "round", "sibling-count", "sibling-index", "sign", "sin", "sqrt", "tan",
}  # fmt: skip

_TOKEN = re.compile(
    r"<'(?P<property>[\w-]+)'[^>]*>"  # the values of another property
    r"|<(?P<function>[\w-]+)\(\)>"
    r"|<(?P<type>[\w@-]+)[^>]*>"
    r"|(?P<call>-?[A-Za-z][\w-]*)\("
    r"|(?P<word>-?[A-Za-z][\w-]*)"
    r"|(?P<open>\()|(?P<close>\))"
    r"|\{[^}]*\}|'[^']*'|."
)

_COLOURS = "named-color"
_CALL = "()"


@dataclass
class Found:
    """What a syntax holds, each as the keys of a dictionary, in order."""

    words: dict = field(default_factory=dict)
    colours: dict = field(default_factory=dict)
    measures: dict = field(default_factory=dict)  # the types of numbers and texts that one writes oneself

    def in_order(self, samples=()):
        """The words, `samples` that are not among them, the names of colours, and the functions last."""
        functions = [word for word in self.words if word.endswith(_CALL)]
        plain = dict.fromkeys([word for word in self.words if not word.endswith(_CALL)] + list(samples))
        return list(plain) + list(self.colours) + functions


class Grammar:
    """`properties` is {name: syntax}, `syntaxes` {type: syntax}, and `words` {type: [word, ...]} goes before it, as do
    `measures`, the types that are not looked into."""

    def __init__(self, properties, syntaxes, words, measures=()):
        self._properties = properties
        self._syntaxes = syntaxes
        self._words = words
        self._measures = measures

    def of(self, name):
        """What the property can be set to."""
        return self._found(self._properties[name], ("property", name))

    def values(self, name):
        return self.of(name).in_order()

    def colours(self):
        """The words that stand for a colour wherever one can stand."""
        return self._found(self._syntaxes["color"], ("type", "color")).in_order()

    def _found(self, syntax, seen):
        found = Found()
        self._collect(syntax, found, found.words, {seen})
        return found

    def _collect(self, syntax, found, words, seen):
        """Adds what `syntax` holds to `found`, and words to `words`; `seen` has the names that are being looked into."""
        depth = 0  # of functions whose arguments are passed over
        for token in _TOKEN.finditer(syntax):
            if depth > 0 or token["call"]:
                if depth == 0:
                    _add_function(token["call"], words)
                depth += bool(token["call"] or token["open"]) - bool(token["close"])
            elif token["word"]:
                words.setdefault(token["word"])
            elif token["function"]:
                _add_function(token["function"], words)
            else:
                self._look_into(token, found, words, seen)

    def _look_into(self, token, found, words, seen):
        kind = "property" if token["property"] else "type"
        name = token[kind]
        if name is None or (kind, name) in seen:
            return
        if kind == "type" and name in self._measures:
            found.measures.setdefault(name)
            return
        if kind == "type" and name in self._words:
            words.update(dict.fromkeys(self._words[name]))
            return
        syntax = (self._properties if kind == "property" else self._syntaxes).get(name, "")
        self._collect(syntax, found, found.colours if name == _COLOURS else words, seen | {(kind, name)})


def _add_function(name, words):
    if name not in _CALCULATIONS:
        words.setdefault(name + _CALL)
