"""Collects from the formal syntax of CSS properties the words that can be written as they stand."""

import re

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


class Grammar:
    """`properties` is {name: syntax}, `syntaxes` {type: syntax}, and `words` {type: [word, ...]} goes before it."""

    def __init__(self, properties, syntaxes, words):
        self._properties = properties
        self._syntaxes = syntaxes
        self._words = words

    def values(self, name):
        """The words of the property in the order of its syntax, then the names of colours, then the functions."""
        return self._in_order(self._properties[name], ("property", name))

    def colours(self):
        """The words that stand for a colour wherever one can stand."""
        return self._in_order(self._syntaxes["color"], ("type", "color"))

    def _in_order(self, syntax, seen):
        words, colours = {}, {}
        self._collect(syntax, words, colours, {seen})
        functions = [word for word in words if word.endswith(_CALL)]
        return [word for word in words if not word.endswith(_CALL)] + list(colours) + functions

    def _collect(self, syntax, words, colours, seen):
        """Adds what `syntax` holds to `words` or `colours`; `seen` has the names that are being looked into."""
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
                self._look_into(token, words, colours, seen)

    def _look_into(self, token, words, colours, seen):
        kind = "property" if token["property"] else "type"
        name = token[kind]
        if name is None or (kind, name) in seen:
            return
        if kind == "type" and name in self._words:
            words.update(dict.fromkeys(self._words[name]))
            return
        syntax = (self._properties if kind == "property" else self._syntaxes).get(name, "")
        self._collect(syntax, colours if name == _COLOURS else words, colours, seen | {(kind, name)})


def _add_function(name, words):
    if name not in _CALCULATIONS:
        words.setdefault(name + _CALL)
