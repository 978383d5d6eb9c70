"""Lets a user who does anything loose on the program, and cuts what fails down to a short script.

monkey.py DRIVER SEED STEPS [--cut SECONDS] [--found FOLDER] [--warn]

SEED is a number, "new" for one from the clock, or several with commas between them, each of which plays so many steps. What
fails is told, and its lines are left out as long as what is left still fails in the same way, each try a process of its
own. The short script stands in FOLDER, where the next run tries it first: so a finding goes on failing until it is fixed.
The exit status is 0 if all held, or if "--warn" says that it is only to be told.
"""
import argparse
import pathlib
import re
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).parent
WORLD = (HERE / "monkeyWorld.txt").read_text(encoding="utf-8")
TODAY = "setting QWRK77XE Settings EditingHabits today\n"


def signature(errors: str, status: int) -> str:
    """What failed, without what differs from one try to the next; empty if nothing did."""
    if status == 0:
        return ""
    for mark in ("SUMMARY: ", "runtime error: "):
        found = re.search(re.escape(mark) + ".*", errors)
        if found:
            return re.sub(r"0x[0-9a-f]+|\d+", "#", found.group())
    last = errors.strip().rsplit("\n", 1)[-1]
    told = re.sub(r"^\S+?:\d+: ", "", last)
    return re.sub(r"\d+", "#", re.sub(r'"[^"]*"|/\S+', '""', told))


class Player:
    """Plays scripts, each in a process of its own."""

    def __init__(self, driver: str, folder: pathlib.Path):
        self.driver = pathlib.Path(driver).resolve()
        self.folder = folder / "here"  # where a name without a folder leads to
        self.folder.mkdir()
        self.script = folder / "play.drive"

    def play(self, text: str) -> tuple[str, str]:
        self.script.write_text(text, encoding="utf-8", newline="\n")
        try:
            done = subprocess.run([self.driver, str(self.script)], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                                  cwd=self.folder, timeout=3600, check=False)
        except subprocess.TimeoutExpired:
            return "no end", "the play has no end"
        errors = done.stderr.decode("utf-8", "replace")
        return signature(errors, done.returncode), errors


def prepared(seed: int) -> str:
    """The world of a play: by turns that of somebody with the classic habits and of somebody with today's."""
    return (TODAY if seed % 2 else "") + WORLD


def repeated(world: str, steps: list[str]) -> str:
    return world + "freely\n" + "".join(steps) + "end\n"


def steps_of(lines: list[str]) -> list[str]:
    """Each line with the answers behind it."""
    steps: list[str] = []
    for line in lines:
        if steps and re.match(r"answer |choose", line):
            steps[-1] += line
        else:
            steps.append(line)
    return steps


def shortened(steps: list[str], fails, until: float) -> list[str]:
    """Leaves out ever smaller pieces as long as the rest fails in the same way."""
    size = max(1, len(steps) // 2)
    while time.monotonic() < until:
        place, cut = 0, False
        while place < len(steps) and time.monotonic() < until:
            rest = steps[:place] + steps[place + size:]
            if rest and fails(rest):
                steps, cut = rest, True
            else:
                place += size
        if size == 1 and not cut:
            break
        size = max(1, size // 2) if not cut or size > 1 else 1
    return steps


def still_failing(player: Player, found: pathlib.Path) -> list[pathlib.Path]:
    return [script for script in sorted(found.glob("*.drive")) if player.play(script.read_text(encoding="utf-8"))[0]]


def seeds_of(text: str) -> list[int]:
    return [int(time.time()) % 2**31 if seed == "new" else int(seed) for seed in text.split(",")]


def run(arguments: argparse.Namespace, seed: int) -> int:
    found = pathlib.Path(arguments.found)
    found.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        player = Player(arguments.driver, folder)
        for script in still_failing(player, found):
            print(f"{script} was found before, and still fails.")
            return 1
        print(f"monkey: seed {seed}, {arguments.steps} steps", flush=True)
        lines = folder / "lines"
        world = prepared(seed)
        failed, errors = player.play(f'{world}monkey {seed} {arguments.steps} "{lines}"\n')
        if not failed:
            return 0
        print(errors, flush=True)
        steps = steps_of(lines.read_text(encoding="utf-8").splitlines(keepends=True))
        until = time.monotonic() + arguments.cut
        same = player.play(repeated(world, steps))[0] == failed
        if same:
            steps = shortened(steps, lambda rest: player.play(repeated(world, rest))[0] == failed, until)
        else:
            print("Its lines alone do not fail in the same way; these are all of them.")
        script = found / f"seed{seed}.drive"
        script.write_text(f"# {failed}\n{repeated(world, steps)}", encoding="utf-8", newline="\n")
        print(f"{script}, {len(steps)} steps:\n\n{''.join(steps)}")
    return 1


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("driver")
    parser.add_argument("seeds", type=seeds_of)
    parser.add_argument("steps", type=int)
    parser.add_argument("--cut", type=int, default=900)
    parser.add_argument("--found", default="found")
    parser.add_argument("--warn", action="store_true")
    arguments = parser.parse_args()
    failed = max(run(arguments, seed) for seed in arguments.seeds)
    if failed and arguments.warn:
        print("WARNING: the monkey has found something; see above.", flush=True)
    return 0 if arguments.warn else failed


if __name__ == "__main__":
    sys.exit(main())
