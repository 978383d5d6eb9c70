#!/usr/bin/env python3
"""Writes cmake/startFunctions.txt anew: the functions of the program that a start runs, with no file and with a page.

    tools/startFunctions.py BUILD    BUILD is a release build with -DTAGWRIGHTER_ORDERS_FUNCTIONS=OFF

Needs valgrind, which knows no names of functions that were put in order, and an X server with a window manager, as users have one: without a screen some functions do not run.

They are linked beside one another, so a function that is missing costs the memory of a page or two and one that is there
without need next to nothing: the list need not be right, and is worth writing again after larger changes of a start.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
LIST = ROOT / "cmake/startFunctions.txt"
PAGE = ROOT / "README.md"
REST = 8  # seconds without the processor, after which a start has come to its end; the splash screen waits for three
LONGEST = 240  # seconds, with valgrind's slowness
END = "_ZN11FormRuntime3endEv"  # which runs once the program has decided to end
SETTINGS = ".config/tagwrighter/QWRK77XE.settings"
TODAY = ""
CLASSIC = "Settings/EditingHabits=classic\nSettings/WelcomeScreen=false\nSettings/HabitStart=True\n"
HEAD = """\
# Functions that a start runs, by the names that they have for the linker. Written by tools/startFunctions.py; the release
# build has them beside one another (cmake/SmallProgram.cmake).
"""


def ticks(process: int) -> int:
    fields = pathlib.Path(f"/proc/{process}/stat").read_text(encoding="ascii").rsplit(")", 1)[1].split()
    return int(fields[11]) + int(fields[12])


def wait_for_rest(process: int):
    began, used, since = time.monotonic(), -1, time.monotonic()
    while time.monotonic() - began < LONGEST and time.monotonic() - since < REST:
        time.sleep(0.2)
        if ticks(process) != used:
            used, since = ticks(process), time.monotonic()


def profile_of_start(program: pathlib.Path, settings: str, arguments: list[str]) -> str:
    with tempfile.TemporaryDirectory() as home:
        file = pathlib.Path(home, SETTINGS)
        file.parent.mkdir(parents=True)
        file.write_text(settings, encoding="utf-8")
        environment = {**os.environ, "HOME": home, "XDG_RUNTIME_DIR": home}
        for name in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"):
            environment.pop(name, None)
        # What the program does at its end goes into a second part, which nobody reads.
        command = ["valgrind", "--tool=callgrind", "--demangle=no", f"--dump-before={END}",
                   f"--callgrind-out-file={home}/%p", str(program)]
        with subprocess.Popen(command + arguments, env=environment, stderr=subprocess.DEVNULL) as started:
            wait_for_rest(started.pid)
            started.terminate()
        return pathlib.Path(home, f"{started.pid}.1").read_text(encoding="utf-8", errors="replace")


def output_of(*command: str | pathlib.Path) -> str:
    return subprocess.run(list(map(str, command)), check=True, capture_output=True, text=True).stdout


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
    program = pathlib.Path(sys.argv[1], "src/tagwrighter").resolve()
    if " .text.start " in output_of("readelf", "-SW", program):
        print("The functions of this program are in order already.", file=sys.stderr)
        return 1
    found: set[str] = set()
    for settings in (TODAY, CLASSIC):
        for arguments in ([], [str(PAGE)]):
            found |= functions_of(profile_of_start(program, settings, arguments), program)
    names = sorted(linked_names(found, names_at_addresses(program)))
    before = set(LIST.read_text(encoding="ascii").split("\n")) if LIST.exists() else set()
    LIST.write_text(HEAD + "".join(name + "\n" for name in names), encoding="ascii")
    print(f"{len(names)} functions, {len(set(names) - before)} of them new")
    return 0


if __name__ == "__main__":
    sys.exit(main())
