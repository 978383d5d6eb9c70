"""Reads the tables of our own: lines of cells parted by "|", lines that start with # being comments."""

import json
from pathlib import Path

FOLDER = Path(__file__).resolve().parent
MARK = "«"


def rows(name):
    """The cells of each line of own/NAME."""
    lines = (FOLDER / "own" / name).read_text(encoding="utf-8").splitlines()
    return [[cell.strip() for cell in line.split("|")] for line in lines if line.strip() and not line.startswith("#")]


def names(cell):
    """The words of "a, b"."""
    return [name.strip() for name in cell.split(",")]


def unmarked(text):
    """The text without its mark of deprecation, and whether it had one."""
    return text.removeprefix(MARK), text.startswith(MARK)


def source(name):
    """A kept source: the value of a JSON file, the text of any other."""
    text = (FOLDER / "sources" / name).read_text(encoding="utf-8")
    return json.loads(text) if name.endswith(".json") else text
