"""Measures this program from outside, for the benchmarks, as the other editors are measured.

own.py PROGRAM

Prints lines "FILE|FIGURE|VALUE": the names of texts.py and measuring.py, and the median of several starts.
"""
import dataclasses
import sys

import editors
from measuring import Figures
from rounds import Wish, can_measure, measure_all, median_of


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    if not can_measure():
        return 2
    for (file, _), figures in measure_all(Wish([editors.ours(sys.argv[1])])).items():
        for field in dataclasses.fields(Figures):
            median = median_of(figures, field.name)
            if median is not None:
                print(f"{file}|{field.name}|{median:.4g}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
