"""Measures this program and other editors beside it, one after the other, round by round.

peers.py PROGRAM [--rounds N] [--key-rounds N] [--only NAMES] [--files NAMES] [--beside NAME=PROGRAM] [--starts]

PROGRAM is ours. The table tells the median of the rounds; an editor that is not installed is left out and named. --only
and --files name editors and files of the table, parted by ";"; --beside measures another build of ours as well, and
--starts leaves out the keys and the rest. --key-rounds has letters typed in so many of the rounds only, the first ones:
a start takes two seconds and the keys six.
"""
import argparse
import sys

import editors
from rounds import Measured, Wish, can_measure, measure_all, median_of

ROWS = (("wall", "ms to rest"), ("processor", "ms of processor"), ("memory", "MiB"), ("key", "ms of processor a key"),
        ("paint", "ms from key to paint"), ("all_of_key", "ms a key and what follows"),
        ("wakings", "wakings a second at rest"))


def wish_of(arguments: argparse.Namespace) -> Wish:
    chosen = [editors.ours(arguments.program), *editors.PEERS]
    for beside in arguments.beside:
        name, program = beside.split("=", 1)
        chosen.insert(1, editors.ours(program, name))
    if arguments.only:
        chosen = [editor for editor in chosen if editor.name in arguments.only.split(";")]
    return Wish(chosen, arguments.files.split(";") if arguments.files else [], arguments.rounds,
                arguments.starts, arguments.key_rounds)


def print_table(wish: Wish, measured: Measured):
    print(f"{'':45}" + "".join(f"{editor.name:>12}" for editor in wish.editors))
    for name in dict.fromkeys(file for file, _ in measured):
        for field, unit in ROWS:
            medians = [median_of(measured[name, editor.name], field) for editor in wish.editors]
            if any(median is not None for median in medians):
                cells = ("-" if median is None else f"{median:.3g}" if median < 100 else f"{median:.0f}"
                         for median in medians)
                print(f"{name + ', ' + unit:45}" + "".join(f"{cell:>12}" for cell in cells))


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--key-rounds", type=int)
    parser.add_argument("--only", default="")
    parser.add_argument("--files", default="")
    parser.add_argument("--beside", action="append", default=[])
    parser.add_argument("--starts", action="store_true")
    wish = wish_of(parser.parse_args())
    if not can_measure():
        return 2
    missing = [editor for editor in wish.editors if not editor.is_there()]
    wish.editors = [editor for editor in wish.editors if editor.is_there()]
    for editor in missing:
        print(f"{editor.name} is not installed (Debian's package {editor.package}).")
    print_table(wish, measure_all(wish))
    return 0


if __name__ == "__main__":
    sys.exit(main())
