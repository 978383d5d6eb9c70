"""What one start of a program takes, told from outside and by the same means for whatever program it is."""
import dataclasses
import os
import pathlib
import shutil
import time

from editors import Editor
from texts import TYPED
from watched import Watched
from xdisplay import Display

STILL = 0.15  # nothing happens for so long only at rest: carets blink at longer intervals
GIVE_UP = 30
KEYS = 28
AFTER_A_KEY = 0.03  # a key that is followed by so much rest has been dealt with
AFTER_ALL_KEYS = 3  # what follows the last key late: colouring, a list of names, a copy that is kept
BLINKING = 12  # some carets blink no longer than that
RESTING = 5


@dataclasses.dataclass
class Figures:
    """Of one start; a figure is None if the program did not come that far."""
    wall: float | None = None  # ms from exec to rest, without the wait of a splash screen
    processor: float | None = None  # ms up to then
    memory: float | None = None  # MiB at rest
    key: float | None = None  # ms of processor time that the middle one of the keys takes
    paint: float | None = None  # ms from the key to the first painting
    all_of_key: float | None = None  # ms of processor time a key with all that follows the last one
    wakings: float | None = None  # a second, at rest


def environment_of(home: pathlib.Path, display: str) -> dict[str, str]:
    """A desktop's session without a desktop: no services that would be shared between the programs."""
    kept = ("PATH", "LANG", "LC_ALL", "TZ", "XDG_DATA_DIRS")
    environment = {name: os.environ[name] for name in kept if name in os.environ}
    folders = {"XDG_CONFIG_HOME": ".config", "XDG_DATA_HOME": ".local/share", "XDG_CACHE_HOME": ".cache",
               "XDG_STATE_HOME": ".local/state", "XDG_RUNTIME_DIR": ".run", "TMPDIR": ".tmp"}
    for name, folder in folders.items():
        (home / folder).mkdir(parents=True, exist_ok=True, mode=0o700)
        environment[name] = str(home / folder)
    return environment | {"HOME": str(home), "DISPLAY": display, "QT_QPA_PLATFORM": "xcb", "NO_AT_BRIDGE": "1",
                          "DBUS_SESSION_BUS_ADDRESS": f"unix:path={home}/no-bus"}


class Run:
    """A program on a display. Times are those of time.monotonic()."""

    def __init__(self, display: Display, program: Watched):
        self.display = display
        self.program = program
        self.used = 0
        self.ran = time.monotonic()

    def look(self) -> bool:
        """Whether the program has run since the last look."""
        self.display.look()
        now = time.monotonic()
        used = self.program.processor_time()
        has_run = used != self.used
        if has_run:
            self.used, self.ran = used, now
        return has_run

    def wait_for_rest(self) -> float | None:
        """The seconds from exec to the last moment at which the program ran. A long rest without a window is a splash
        screen's wait, and does not count."""
        waited = 0.0
        began_rest = self.ran
        while time.monotonic() - self.program.started < GIVE_UP and self.program.running():
            if self.look():
                if self.ran - began_rest >= STILL:
                    waited += self.ran - began_rest
                began_rest = self.ran
            elif self.display.shows_window() and time.monotonic() - self.ran >= STILL:
                return self.ran - self.program.started - waited
            time.sleep(0.0003)
        return None

    def press(self, character: str) -> tuple[float, float | None]:
        """The processor time of a key and the time up to the first painting, in seconds."""
        self.look()
        before = self.used
        pressed = self.ran = time.monotonic()
        self.display.press(character)
        painted = None
        while time.monotonic() - self.ran < (AFTER_A_KEY if self.used != before else STILL):
            self.display.wait(0.001)
            self.look()
            if painted is None and self.display.painted > pressed:
                painted = self.display.painted - pressed
            if time.monotonic() - pressed > GIVE_UP:
                break
        return (self.used - before) / 1e9, painted

    def rest(self, seconds: float):
        time.sleep(seconds)
        self.look()


def middle(values: list[float]) -> float | None:
    """The median; of two in the middle the smaller one."""
    return sorted(values)[(len(values) - 1) // 2] if values else None


def type_letters(run: Run, figures: Figures):
    """Nothing is told of a program that does not take the letters: its title has to say that there is something to save."""
    run.rest(0.5)
    titles = run.display.titles()
    run.press(TYPED[0])  # the first one brings about what happens once
    run.rest(0.5)
    before = run.used
    presses = [run.press((TYPED * KEYS)[i + 1]) for i in range(KEYS)]
    run.rest(AFTER_ALL_KEYS)
    if run.display.titles() == titles:
        return
    figures.key = middle([processor for processor, _ in presses]) * 1e3
    paints = [painted for _, painted in presses if painted is not None]
    figures.paint = middle(paints) * 1e3 if paints else None
    figures.all_of_key = (run.used - before) / 1e6 / KEYS


def measure_rest(run: Run, figures: Figures):
    run.rest(BLINKING)
    before = run.program.wakings()
    run.rest(RESTING)
    figures.wakings = (run.program.wakings() - before) / RESTING


def measure(editor: Editor, file: pathlib.Path | None, prepared: pathlib.Path, display: Display, keys: bool = True,
            at_rest: bool = False) -> Figures:
    """A start over a copy of the prepared home, so that no start knows of the one before."""
    home = prepared.with_name(prepared.name + ".used")
    shutil.copytree(prepared, home, symlinks=True, ignore_dangling_symlinks=True, ignore=special_files)
    figures = Figures()
    try:
        command = [*editor.command, *([str(file)] if file else [])]
        with Watched(command, environment_of(home, display.name)) as program:
            run = Run(display, program)
            wall = run.wait_for_rest()
            if wall is not None:
                figures.wall = wall * 1e3
                figures.processor = run.used / 1e6
                figures.memory = program.memory() / 1024 / 1024
                if at_rest:
                    measure_rest(run, figures)
                if keys:
                    type_letters(run, figures)
    finally:
        shutil.rmtree(home, ignore_errors=True)
    wait_for_empty(display)
    return figures


def special_files(folder: str, names: list[str]) -> list[str]:
    """Sockets and locks, which are no part of a home that somebody comes back to."""
    paths = (pathlib.Path(folder, name) for name in names)
    return [path.name for path in paths if not path.is_dir() and not path.is_file()]


def wait_for_empty(display: Display):
    for _ in range(100):
        if not display.windows():
            return
        time.sleep(0.02)


def prepare(editor: Editor, home: pathlib.Path, display: Display):
    """A home that the program has been started in before, as users' are."""
    home.mkdir()
    with Watched(list(editor.command), environment_of(home, display.name)) as program:
        run = Run(display, program)
        run.wait_for_rest()
        run.rest(1)
    wait_for_empty(display)
    editor.settle(home)
