#!/usr/bin/env python3
"""Writes tests/scenarios/differToday.txt anew: plays each script by the rules of today, and those that differ with one
rule alone after the other, to tell which of them makes it differ.

    tools/differToday.py BUILD [FOLDER/NAME...]    BUILD holds tests/drive/tagwrighter-drive; given scripts alone are played
"""
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
SCENARIOS = ROOT / "tests/scenarios"
TABLE = SCENARIOS / "differToday.txt"
CHOOSES = re.compile(r"^(no-)?setting QWRK77XE Settings EditingHabits", re.M)
PLAYERS = max(2, os.cpu_count() or 2)


def rules():
    source = (ROOT / "src/services/habits.cpp").read_text(encoding="utf-8")
    return re.findall(r"\{&Habits::(\w+), &settings::", source)


def differs(driver, text, habits):
    """Whether an expectation of the script does not hold."""
    with tempfile.NamedTemporaryFile("w", suffix=".drive", encoding="utf-8", newline="", delete=False) as script:
        script.write(text)
    environment = dict(os.environ, TAGWRIGHTER_HABITS=habits, QT_QPA_PLATFORM="offscreen")
    try:
        return subprocess.run([driver, script.name], env=environment, capture_output=True, timeout=300).returncode == 1
    except subprocess.TimeoutExpired:
        return True
    finally:
        os.unlink(script.name)


def differs_today(driver, text):
    """A script that does not even play by the classic rules tells nothing."""
    return differs(driver, text, "today") and not differs(driver, text, "classic")


def rule_of(driver, text, known, last):
    """The rule that the table names already is tried first, since it mostly still is the one."""
    for rule in sorted(known, key=lambda each: each != last):
        if differs(driver, f"setting QWRK77XE Settings {rule} True\n" + text, "classic"):
            return rule
    return "several rules together"


def text_of(name):
    return (SCENARIOS / f"{name}.drive").read_bytes().decode("utf-8")


def rows():
    """What the table holds: of each script the rule."""
    lines = TABLE.read_text(encoding="utf-8").splitlines()
    return dict(line.split(" ", 1) for line in lines if line and not line.startswith("#"))


def write(found, wanted):
    """The rows of scripts that were not played stay."""
    lines = TABLE.read_text(encoding="utf-8").splitlines()
    kept = {name: f"{name} {rule}" for name, rule in rows().items() if wanted and name not in wanted}
    kept.update({name: f"{name} {rule}" for name, rule in found.items()})
    head = [line for line in lines if line.startswith("#")]
    TABLE.write_text("".join(line + "\n" for line in head + [kept[name] for name in sorted(kept)]), encoding="utf-8")


def main():
    driver = pathlib.Path(sys.argv[1]) / "tests/drive/tagwrighter-drive"
    wanted = set(sys.argv[2:])
    scripts = sorted(f"{path.parent.name}/{path.stem}" for path in SCENARIOS.glob("*/*.drive"))
    played = [name for name in scripts if (not wanted or name in wanted) and not CHOOSES.search(text_of(name))]
    with concurrent.futures.ThreadPoolExecutor(PLAYERS) as pool:
        differing = [name for name, other in zip(played, pool.map(
            lambda name: differs_today(driver, text_of(name)), played)) if other]
        before = rows()
        print(f"{len(differing)} of {len(played)} scripts differ", flush=True)
        known = rules()
        found = dict(zip(differing, pool.map(lambda name: rule_of(driver, text_of(name), known, before.get(name)), differing)))
    write(found, wanted)


if __name__ == "__main__":
    main()
