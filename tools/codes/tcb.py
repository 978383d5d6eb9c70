"""Writes the two data files: lines of Windows-1252 that end in CR LF, each led by a mark for every level of its depth."""

_LEVEL = "»"
_DEPRECATED = "«"
_UNDER = ">"  # which no name can hold


def html(elements):
    """Html.tcb: an element at depth 1, its attributes at depth 2, their values at depth 3. An element that stands under
    another one has that one's name and ">" in front of its own."""
    lines = []
    for element in elements:
        assert _UNDER not in element.name, element.name
        name = element.under + _UNDER + element.name if element.under else element.name
        lines.append(_line(1, element.deprecated, name))
        for attribute in element.attributes:
            lines += _attribute(attribute)
    return _file(lines)


def css(properties):
    """Css.tcb: a property behind one mark, its values behind two."""
    lines = []
    for found in properties:
        lines.append(_line(1, False, found.name))
        lines += [_line(2, False, value) for value in found.values]
    return _file(lines)


def _attribute(attribute):
    lines = []
    if attribute.bare:
        lines.append(_line(2, attribute.deprecated, attribute.name))
    if attribute.valued:
        lines.append(_line(2, attribute.deprecated, attribute.name + "=" + attribute.hint))
        lines += [_line(3, deprecated, text) for text, deprecated in attribute.values]
    return lines


def _line(depth, deprecated, text):
    # Marks count wherever they stand, and an empty line would read as a value.
    assert text and not set(text) & {_LEVEL, _DEPRECATED, "\r", "\n"}, text
    return _LEVEL * (depth - 1) + (_DEPRECATED if deprecated else _LEVEL) + text


def _file(lines):
    return "".join(line + "\r\n" for line in lines).encode("cp1252")
