"""Writes cmake/startFunctions.txt anew: the functions of this program that a start runs, without a file and with a page.

startFunctions.py BUILD

BUILD is a release build with -DTAGWRIGHTER_ORDERS_FUNCTIONS=OFF: valgrind, which is needed, knows no names of functions that
were put in order. The release build has them beside one another, so one that is missing here costs up to 64 KB of memory,
and one that is here without need next to nothing: the list is to be written again when a start has come to run others.
"""
import pathlib
import re
import subprocess
import sys
import tempfile

import editors
import texts
import xdisplay
from measuring import Run, environment_of, prepare
from rounds import can_measure
from watched import Watched

LIST = pathlib.Path(__file__).resolve().parents[2] / "cmake/startFunctions.txt"
HEAD = """\
# Functions that a start runs, by the names that they have for the linker. Written by bench/outside/startFunctions.py; the
# release build has them beside one another (cmake/SmallProgram.cmake).
"""
END = "_ZN11FormRuntime3endEv"  # which runs once the program has decided to end
LATE = 8  # seconds in which what waits after a start has its turn, with valgrind's slowness


def profile_of_start(editor: editors.Editor, file: pathlib.Path | None, home: pathlib.Path,
                     display: xdisplay.Display) -> str:
    prepare(editor, home, display)
    # What the program does at its end goes into a second part, which nobody reads.
    command = ["valgrind", "--tool=callgrind", "--demangle=no", f"--dump-before={END}", f"--callgrind-out-file={home}/%p"]
    with Watched([*command, *editor.command, *([str(file)] if file else [])],
                 environment_of(home, display.name)) as program:
        run = Run(display, program)
        run.wait_for_rest()
        run.rest(LATE)
        program.main.terminate()
        program.main.wait()
    return (home / f"{program.main.pid}.1").read_text(encoding="utf-8", errors="replace")


def profiles(program: pathlib.Path):
    """Of starts by the rules of today and by the classic ones."""
    with tempfile.TemporaryDirectory(prefix="tagwrighter-outside-") as name:
        folder = pathlib.Path(name)
        page = folder / "page.htm"
        page.write_text(texts.page(60_000), encoding="utf-8", newline="")
        with xdisplay.Display(folder) as display:
            for editor in (editors.Editor("today", (str(program),)), editors.ours(str(program), "classic")):
                for file in (None, page):
                    yield profile_of_start(editor, file, folder / f"{editor.name}{'.page' if file else ''}", display)


def functions_of(profile: str, program: pathlib.Path) -> set[str]:
    """The names of the program's own functions that ran. The profile numbers names, and tells each only once."""
    files: dict[str, str] = {}
    names: dict[str, str] = {}
    inside = False
    ran = set()
    for kind, number, name in re.findall(r"^(c?ob|c?fn)=\((\d+)\)(?: (.*))?$", profile, re.M):
        table = files if kind.endswith("ob") else names
        if name:
            table[number] = name
        if kind == "ob":
            inside = files[number] == str(program)
        elif kind == "fn" and inside:
            ran.add(number)
    return {names[number].split("'")[0] for number in ran}


def output_of(*command: str | pathlib.Path) -> str:
    return subprocess.run(list(map(str, command)), check=True, capture_output=True, text=True).stdout


def names_at_addresses(program: pathlib.Path) -> list[set[str]]:
    at: dict[str, set[str]] = {}
    for address, name in re.findall(r"^([0-9a-f]+) [tTwW] (\S+)$", output_of("nm", program), re.M):
        at.setdefault(address, set()).add(name)
    return list(at.values())


def linked_names(functions: set[str], at: list[set[str]]) -> set[str]:
    """The names that the sections of functions may have: a function has several, as constructors do, or is entered by
    others that stand in front of it."""
    wanted = functions | {re.sub(r"^_ZT[hv]n?\d+_(n?\d+_)?", "_Z", name) for name in functions}
    found = {name for names in at if names & wanted for name in names}
    # What the compiler parts from a function goes by the function's name.
    return {re.sub(r"(\.(isra|part|constprop|cold|localalias)(\.\d+)?)+$", "", name)
            for name in found | wanted if name.startswith("_Z")}


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    if not can_measure():
        return 2
    program = pathlib.Path(sys.argv[1], "src/tagwrighter").resolve()
    if " .text.start " in output_of("readelf", "-SW", program):
        print("The functions of this program are in order already.", file=sys.stderr)
        return 2
    ran = set().union(*(functions_of(profile, program) for profile in profiles(program)))
    names = sorted(linked_names(ran, names_at_addresses(program)))
    before = set(LIST.read_text(encoding="ascii").split("\n")) if LIST.exists() else set()
    LIST.write_text(HEAD + "".join(name + "\n" for name in names), encoding="ascii")
    print(f"{len(names)} functions, {len(set(names) - before)} of them new")
    return 0


if __name__ == "__main__":
    sys.exit(main())
