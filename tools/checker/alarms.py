#!/usr/bin/env python3
"""Tells what our check alarms of in pages that a reference checker finds right.

    alarms.py OURS THEIRS PAGE...

OURS is the output of tagwrighter-checkpages, THEIRS what the other prints as JSON. What the other does not look for at all
counts by itself: links that lead to a name that is not in the page. The exit status is 1 if there is any other alarm."""

import collections
import json
import sys
from pathlib import Path

NOT_LOOKED_FOR = {"leads-nowhere"}


def main(arguments):
    if len(arguments) < 3:
        sys.exit(__doc__)
    messages = json.loads(Path(arguments[1]).read_text(encoding="utf-8"))["messages"]
    wrong = {Path(one["url"].removeprefix("file:")).name + "|" + str(Path(one["url"].removeprefix("file:")).parent.name)
             for one in messages if one["type"] == "error"}  # fmt: skip
    key = lambda path: Path(path).name + "|" + Path(path).resolve().parent.name
    right = [page for page in arguments[2:] if key(page) not in wrong]
    alarms = collections.defaultdict(list)
    for line in Path(arguments[0]).read_text(encoding="utf-8").splitlines():
        page, first, _, _, kind, rule, message = line.split("\t")
        if kind == "error" and key(page) not in wrong:
            alarms[rule].append(f"{page}:{first}: {message}")
    for rule, found in sorted(alarms.items()):
        print(f"{rule}: {len(found)}, such as {found[0]}")
    other = sum(len(found) for rule, found in alarms.items() if rule not in NOT_LOOKED_FOR)
    print(f"pages that both were given: {len(arguments) - 2}; right ones: {len(right)}; false alarms: {other}")
    return 1 if other else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
