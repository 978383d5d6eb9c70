"""Rounds of starts: each editor with each file, one after the other, so that what the machine does else meets them all."""
import dataclasses
import pathlib
import statistics
import sys
import tempfile

import texts
import xdisplay
from editors import Editor
from measuring import Figures, measure, prepare
from watched import adopt_orphans

Measured = dict[tuple[str, str], list[Figures]]  # by file and editor


@dataclasses.dataclass
class Wish:
    editors: list[Editor]
    files: list[str] = dataclasses.field(default_factory=list)  # those of texts.py; none: all
    rounds: int = 5
    only_starts: bool = False
    key_rounds: int | None = None  # the first so many rounds type, which takes longer than a start; none: all

    def types_in(self, number: int) -> bool:
        """Whether letters are typed in the round of that number, counted from 0."""
        return not self.only_starts and (self.key_rounds is None or number < self.key_rounds)


def can_measure() -> bool:
    """Whether the machine has what is needed; says what it lacks."""
    lacking = xdisplay.missing()
    if lacking:
        print(f"Nothing can be measured without {', '.join(lacking)}.", file=sys.stderr)
    return not lacking


def measure_all(wish: Wish) -> Measured:
    adopt_orphans()
    with tempfile.TemporaryDirectory(prefix="tagwrighter-outside-") as name:
        folder = pathlib.Path(name)
        files = {name: file for name, file in texts.write_all(folder).items() if not wish.files or name in wish.files}
        with xdisplay.Display(folder) as display:
            for editor in wish.editors:
                prepare(editor, folder / editor.name, display)
            return measure_rounds(wish, files, folder, display)


def measure_rounds(wish: Wish, files: dict[str, pathlib.Path | None], folder: pathlib.Path,
                   display: xdisplay.Display) -> Measured:
    measured: Measured = {}
    for number in range(wish.rounds):
        for name, file in files.items():
            for editor in wish.editors:
                at_rest = file is None and number == 0 and not wish.only_starts
                figures = measure(editor, file, folder / editor.name, display, wish.types_in(number), at_rest)
                measured.setdefault((name, editor.name), []).append(figures)
        print(f"round {number + 1} of {wish.rounds}", file=sys.stderr)
    return measured


def median_of(measured: list[Figures], field: str) -> float | None:
    """None if no round has told it."""
    values = [value for figures in measured if (value := getattr(figures, field)) is not None]
    return statistics.median(values) if values else None
