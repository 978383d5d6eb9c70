#!/usr/bin/env python3
"""Compares what our check finds in pages with what a reference checker finds.

    compare.py OURS THEIRS [FAULTS] [--details]

OURS is the output of tagwrighter-checkpages, THEIRS what the other prints as JSON. An error of theirs is found where an
error of ours touches one of its lines. Four things are put straight first:
  * that an end tag, or the end of the page, was met while something was open, and what was open, are one error of theirs in
    two messages: the second counts, which says where; alone, the first is found where an element is told of as not closed;
  * what an element lacks they tell at its end and we at its start: it is found where the same element is told of;
  * what is deprecated is an error there and a hint here, and so a deprecated element does not count;
  * what stands in an element that was not closed, and that browsers open again, follows from that error and is told by
    them at each place: it is found where the error that it follows from is found."""

import collections
import json
import re
import sys
from pathlib import Path

SEEN_OPEN = re.compile(r"(but there were (open|unclosed) elements|End of file seen when expecting)")
LACKS = re.compile(r"Element “([\w-]+)” is missing a required")
OBSOLETE = re.compile(r"element is obsolete|attribute .* is obsolete|never allowed")
FATAL = "Cannot recover after last error"


def ours(path):
    found = collections.defaultdict(list)
    for line in Path(path).read_text(encoding="utf-8").splitlines():
        file, first, last, _, kind, rule, message = line.split("\t")
        found[Path(file).name].append((int(first), int(last), kind, rule, message))
    return found


def theirs(path):
    found = collections.defaultdict(list)
    for message in json.loads(Path(path).read_text(encoding="utf-8"))["messages"]:
        if message["type"] != "error" or FATAL in message["message"] or OBSOLETE.search(message["message"]):
            continue
        last = message.get("lastLine", 1)
        found[Path(message["url"].removeprefix("file:")).name].append((message.get("firstLine", last), last, message["message"]))
    return {file: without_doubles(messages) for file, messages in found.items()}


def without_doubles(messages):
    """Without those that only say that something was open where the next one says what."""
    kept = []
    for index, message in enumerate(messages):
        told = any("Unclosed element" in other[2] for other in messages[index + 1 :])
        if not (SEEN_OPEN.search(message[2]) and told):
            kept.append(message)
    return kept


def touches(a, b):
    return a[0] <= b[1] and b[0] <= a[1]


def tells(one, message):
    """Whether an error of ours is that of theirs."""
    lacks = LACKS.search(message[2])
    if lacks and one[3] == "missing-child":
        return f"<{lacks[1]}> lacks" in one[4]
    return touches(one, message) or bool(SEEN_OPEN.search(message[2])) and one[3].startswith("unclosed")


def follows(message, messages, found):
    """Whether it is about what stands in an element that an earlier error, which we found, left open."""
    inside = re.search(r"not allowed as child of element “(\w+)”", message[2])
    opened = inside and [m for m in messages if m in found and re.search(rf"Unclosed element “{inside[1]}”|“{inside[1]}” violates", m[2])]
    return bool(opened)


def compared(our, their):
    """(those of theirs that we found, those we did not, those that follow, those of ours that they do not have)"""
    errors = [one for one in our if one[2] == "error"]
    found = [message for message in their if any(tells(one, message) for one in errors)]
    missed = [message for message in their if message not in found]
    following = [message for message in missed if follows(message, their, found)]
    alone = [one for one in errors if not any(tells(one, message) for message in their)]
    return found, [message for message in missed if message not in following], following, alone


def main(arguments):
    details = "--details" in arguments
    names = [argument for argument in arguments if not argument.startswith("--")]
    if len(names) < 2:
        sys.exit(__doc__)
    our, their = ours(names[0]), theirs(names[1])
    faults = dict(line.split("\t")[:2] for line in Path(names[2]).read_text().splitlines()) if names[2:] else {}
    files = sorted(set(our) | set(their) | set(faults))
    rows = collections.defaultdict(lambda: [0, 0, 0, 0, 0])
    for file in files:
        found, missed, following, alone = compared(our.get(file, []), their.get(file, []))
        row = rows[faults.get(file, "page")]
        for index, count in enumerate((1, len(found), len(missed), len(following), len(alone))):
            row[index] += count
        if details:
            for message in missed:
                print(f"{file} {faults.get(file, '')}: missed, line {message[0]}-{message[1]}: {message[2][:150]}")
            for one in alone:
                print(f"{file} {faults.get(file, '')}: ours alone, line {one[0]}: {one[3]}: {one[4][:120]}")
    print(f"{'':24}{'pages':>7}{'both':>7}{'theirs':>8}{'follow':>8}{'ours':>7}")
    total = [0, 0, 0, 0, 0]
    for name, row in sorted(rows.items()):
        total = [a + b for a, b in zip(total, row)]
        print(f"{name:24}{row[0]:7}{row[1]:7}{row[2]:8}{row[3]:8}{row[4]:7}")
    print(f"{'all':24}{total[0]:7}{total[1]:7}{total[2]:8}{total[3]:8}{total[4]:7}")
    counted = total[1] + total[2]
    share = 100 * total[1] / counted if counted else 100.0
    print(f"found of theirs: {total[1]} of {counted}, {share:.1f} of 100 (what follows from an error left out: {total[3]})")
    return 0 if share >= 95 else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
