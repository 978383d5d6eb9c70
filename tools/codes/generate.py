#!/usr/bin/env python3
"""Makes from the kept sources what the program knows of HTML and CSS: Html.tcb, Css.tcb and the help's reference.

    generate.py             writes them into data/
    generate.py --check     changes nothing; tells what of data/ is not as it would be written, with exit status 1
"""

import sys
from pathlib import Path

import helpPages
import innerElements
import pageRules
import tcb
from knowledge import Joiner
from styles import Styles
from tables import source

DATA = Path(__file__).resolve().parents[2] / "data"
REFERENCE = "help/topics/reference"
NOTICES = "LICENSE-codes"
_NOTICED = {
    "html-validate": "html-validate",
    "html401": "The document type definitions of HTML 4.01",
    "markuplint-html-spec": "@markuplint/html-spec",
    "webref-idl": "Webref",
}


def files():
    """{path below data/: bytes} of all that is generated."""
    html = Joiner().elements()
    elements, inner = innerElements.entered(html), innerElements.elements(html)
    styles = Styles()
    codes = sorted(elements + inner, key=lambda element: element.deprecated)
    found = {"Html.tcb": tcb.html(codes), "Css.tcb": tcb.css(styles.properties()), NOTICES: _notices()}
    found["Page.rules"] = pageRules.text().encode("utf-8")
    for name, html in helpPages.files(elements, inner, styles).items():
        found["help/" + name] = html.encode("utf-8")
    return found


def _notices():
    """The notices that have to go along with what is made from the sources."""
    parts = [f"{name}\n\n{source(folder + '/LICENSE')}" for folder, name in sorted(_NOTICED.items())]
    return ("Html.tcb, Page.rules and the help's reference pages are made from parts of the following works.\n\n"
            + ("\n" + "-" * 72 + "\n\n").join(parts)).encode("utf-8")  # fmt: skip


def differences(wanted):
    """Lines that tell what is missing, other or left over in data/."""
    there = {path.relative_to(DATA).as_posix() for path in (DATA / REFERENCE).glob("*")}
    told = [f"left over: {name}" for name in sorted(there - set(wanted))]
    for name, content in sorted(wanted.items()):
        path = DATA / name
        if not path.exists():
            told.append(f"missing: {name}")
        elif path.read_bytes() != content:
            told.append(f"other: {name}")
    return told


def write(wanted):
    (DATA / REFERENCE).mkdir(parents=True, exist_ok=True)
    for path in (DATA / REFERENCE).glob("*"):
        if path.relative_to(DATA).as_posix() not in wanted:
            path.unlink()
    for name, content in wanted.items():
        (DATA / name).write_bytes(content)


def main(arguments):
    if arguments not in ([], ["--check"]):
        sys.exit(__doc__)
    wanted = files()
    if not arguments:
        write(wanted)
        return 0
    told = differences(wanted)
    for line in told:
        print(line)
    return 1 if told else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
