#!/usr/bin/env python3
"""Drags text within the editor by the mouse of a display, as a user does: the way through the desktop's own protocol, which no
made-up event takes.

dragging.py PROGRAM

The mouse and the keyboard are those of the X display that OUTER_DISPLAY or else DISPLAY names; the program takes the session
that the environment names. Exits 0 if the text has come where it was dropped, 1 if not, having said what came of it.
"""
import collections
import ctypes
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

PAGE = "alpha\nbeta gamma"  # the first line is selected, and dropped behind the second one
MOVED = "\nbeta gammaalpha\n"  # a save ends the last line
STEPS = 12  # of the mouse on its way
PATIENCE = 60.0  # seconds

SHIFT, CONTROL, HOME, END, ESCAPE = 0xFFE1, 0xFFE3, 0xFF50, 0xFF57, 0xFF1B


class Image(ctypes.Structure):
    """What stands first in an XImage."""
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("offset", ctypes.c_int), ("format", ctypes.c_int),
                ("data", ctypes.c_void_p), ("orders", ctypes.c_int * 3), ("pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("line", ctypes.c_int)]


class Display:
    """The screen, the mouse and the keyboard of an X display."""

    def __init__(self, name: str):
        self.x, self.test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        for function, result in (("XOpenDisplay", ctypes.c_void_p), ("XDefaultRootWindow", ctypes.c_ulong),
                                 ("XGetImage", ctypes.POINTER(Image))):
            getattr(self.x, function).restype = result
        self.connection = ctypes.c_void_p(self.x.XOpenDisplay(name.encode()))
        if not self.connection.value:
            sys.exit(f"dragging.py: there is no display {name}")
        self.root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.connection))
        self.size = (self.x.XDisplayWidth(self.connection, 0), self.x.XDisplayHeight(self.connection, 0))

    def picture(self) -> memoryview:
        """The screen, four bytes a pixel, line by line."""
        image = self.x.XGetImage(self.connection, self.root, 0, 0, *self.size, ctypes.c_ulong(0xFFFFFFFF), 2)
        pixels = memoryview(ctypes.string_at(image.contents.data, image.contents.line * self.size[1])).cast("I")
        self.x.XDestroyImage(image)
        return pixels

    def key(self, sign: int, down: bool):
        self.test.XTestFakeKeyEvent(self.connection, self.x.XKeysymToKeycode(self.connection, ctypes.c_ulong(sign)),
                                    int(down), ctypes.c_ulong(0))
        self.x.XFlush(self.connection)
        time.sleep(0.02)

    def stroke(self, sign: int, *held: int):
        for each in held:
            self.key(each, True)
        self.key(sign, True)
        self.key(sign, False)
        for each in reversed(held):
            self.key(each, False)

    def move(self, x: int, y: int):
        self.test.XTestFakeMotionEvent(self.connection, -1, x, y, ctypes.c_ulong(0))
        self.x.XFlush(self.connection)
        time.sleep(0.05)

    def button(self, down: bool):
        self.test.XTestFakeButtonEvent(self.connection, 1, int(down), ctypes.c_ulong(0))
        self.x.XFlush(self.connection)
        time.sleep(0.1)


def place_of_selection(display: Display) -> tuple[int, int, int, int] | None:
    """The left, upper, right and lower edge of what the selection of the first line colours; nothing where none shows."""
    display.stroke(ESCAPE)  # takes the window away that welcomes at the first start
    time.sleep(0.3)
    display.stroke(HOME, CONTROL)
    time.sleep(0.3)
    before = display.picture()
    display.stroke(END, SHIFT)
    time.sleep(0.3)
    after = display.picture()
    changed = [at for at in range(len(after)) if after[at] != before[at]]
    if not changed:
        return None
    ground, count = collections.Counter(after[at] for at in changed).most_common(1)[0]
    coloured = [at for at in changed if after[at] == ground]
    columns, lines = [at % display.size[0] for at in coloured], [at // display.size[0] for at in coloured]
    if count < 100 or max(columns) - min(columns) > 200 or max(lines) - min(lines) > 50:
        return None  # a window that comes up, or nothing yet
    return min(columns), min(lines), max(columns), max(lines)


def drag(display: Display, start: tuple[int, int], end: tuple[int, int]):
    display.move(*start)
    display.button(True)
    for step in range(1, STEPS + 1):
        display.move(*(a + (b - a) * step // STEPS for a, b in zip(start, end)))
    time.sleep(0.2)
    display.button(False)
    time.sleep(0.3)


def saved(display: Display, page: pathlib.Path, wanted: str) -> bool:
    """Whether the page, once it is saved, holds the text, or comes to."""
    end = time.monotonic() + 10
    while time.monotonic() < end:
        display.stroke(ord("s"), CONTROL)
        time.sleep(0.5)
        if page.read_text(encoding="utf-8") == wanted:
            return True
    return False


def play(display: Display, page: pathlib.Path) -> str:
    """What went wrong; nothing if nothing did."""
    end = time.monotonic() + PATIENCE
    while not (place := place_of_selection(display)):
        if time.monotonic() > end:
            return "no selection is to be seen"
        time.sleep(0.5)
    left, top, right, bottom = place
    start = ((left + right) // 2, (top + bottom) // 2)
    behind = (right + 300, start[1] + bottom - top)  # the second line
    drag(display, start, behind)
    display.button(True)  # a Wayland session may leave the keyboard with nobody, whatever program one drags in
    display.button(False)
    if not saved(display, page, MOVED):
        return f"moved, the page holds {page.read_text(encoding='utf-8')!r}"
    return ""


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    display = Display(os.environ.get("OUTER_DISPLAY") or os.environ["DISPLAY"])
    with tempfile.TemporaryDirectory() as folder:
        home = pathlib.Path(folder)
        page = home / "page.html"
        page.write_text(PAGE, encoding="utf-8")
        (home / "run").mkdir(mode=0o700)
        environment = dict(os.environ, HOME=folder, XDG_RUNTIME_DIR=str(home / "run"))
        program = subprocess.Popen([sys.argv[1], str(page)], env=environment, stdout=subprocess.DEVNULL)
        try:
            wrong = play(display, page)
        finally:
            program.send_signal(signal.SIGTERM)
            status = program.wait(timeout=30)
    if not wrong and status != 0:
        wrong = f"the program ended with status {status}"
    if wrong:
        print("dragging.py:", wrong, file=sys.stderr)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
