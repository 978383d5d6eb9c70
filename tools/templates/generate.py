#!/usr/bin/env python3
"""Packs the card of tools/templates/card/ into data/Template/Card.ctp, or says by --check that it is what it would be.

The page comes first, with the mark of its folder before the name of each file that is packed with it.
"""

import pathlib
import struct
import sys

HERE = pathlib.Path(__file__).resolve().parent
CARD = HERE / "card"
TARGET = HERE.parent.parent / "data" / "Template" / "Card.ctp"
MAGIC = b"TagwrighterCombinedTemplateFile"
FOLDER_MARK = b"\x01"


def files():
    """The contents by their names in the container, the page first."""
    page = (CARD / "card.html").read_bytes().replace(b"\n", b"\r\n")
    others = sorted(path for path in CARD.iterdir() if path.name != "card.html")
    for path in others:
        name = path.name.encode("ascii")
        page = page.replace(b'"' + name + b'"', b'"' + FOLDER_MARK + name + b'"')
    return [(b"index_tmp.dat", page)] + [(path.name.encode("ascii"), path.read_bytes()) for path in others]


def container():
    """The whole container; positions count from 1."""
    position = len(MAGIC) + 4 + 1
    contents, directory = b"", b""
    for name, data in files():
        directory += struct.pack("<ii", position, len(data)) + name + b"\0"
        contents += data
        position += len(data)
    return MAGIC + struct.pack("<i", position) + contents + directory


def main():
    if sys.argv[1:] == ["--check"]:
        if not TARGET.exists() or TARGET.read_bytes() != container():
            sys.exit(f"{TARGET.name} is not what tools/templates/generate.py makes")
        return
    TARGET.write_bytes(container())


if __name__ == "__main__":
    main()
