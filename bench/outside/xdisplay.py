"""A display of its own with a window manager: its windows, its keys, and when something is painted on it."""
import ctypes
import os
import pathlib
import select
import shutil
import subprocess
import time

NEEDED = ("Xvfb", "openbox")
LIBRARIES = ("libX11.so.6", "libXtst.so.6", "libXdamage.so.1")
SCREEN = "1400x1000x24"
PROPERTY_CHANGE_MASK = 1 << 22
VIEWABLE = 2
REPORT_NON_EMPTY = 3


class Attributes(ctypes.Structure):
    """What XGetWindowAttributes tells; only the last field named here is read."""
    _fields_ = [("geometry", ctypes.c_int * 5), ("visual", ctypes.c_void_p), ("root", ctypes.c_ulong),
                ("kind", ctypes.c_int * 4), ("planes", ctypes.c_ulong * 2), ("under", ctypes.c_int),
                ("colormap", ctypes.c_ulong), ("installed", ctypes.c_int), ("map_state", ctypes.c_int),
                ("rest", ctypes.c_byte * 64)]


def missing() -> list[str]:
    """What this machine lacks of it."""
    lacking = [name for name in NEEDED if not shutil.which(name)]
    for name in LIBRARIES:
        try:
            ctypes.CDLL(name)
        except OSError:
            lacking.append(name)
    return lacking


class Display:
    """An X server and a window manager, and a connection to them; use it with "with"."""

    def __init__(self, folder: pathlib.Path):
        self.folder = folder
        self.processes: list[subprocess.Popen] = []
        self.name = ""

    def __enter__(self):
        try:
            self._start_server()
            self._start_manager()
            self._connect()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()

    def _start_server(self):
        read, write = os.pipe()
        command = ["Xvfb", "-displayfd", str(write), "-screen", "0", SCREEN, "-nolisten", "tcp"]
        self.processes.append(subprocess.Popen(command, pass_fds=[write], stderr=subprocess.DEVNULL))
        os.close(write)
        with os.fdopen(read) as pipe:
            self.name = ":" + pipe.readline().strip()

    def _start_manager(self):
        ready = self.folder / "manager"
        environment = dict(os.environ, DISPLAY=self.name, HOME=str(self.folder))
        command = ["openbox", "--startup", f"sh -c 'echo ready >{ready}'"]
        self.processes.append(subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL,
                                               stderr=subprocess.DEVNULL))
        for _ in range(400):
            if ready.exists():
                return
            time.sleep(0.05)
        raise RuntimeError("no window manager came up")

    def _connect(self):
        self.x, self.test, self.damage = (ctypes.CDLL(name) for name in LIBRARIES)
        for library, name, result in ((self.x, "XOpenDisplay", ctypes.c_void_p), (self.x, "XInternAtom", ctypes.c_ulong),
                                      (self.x, "XDefaultRootWindow", ctypes.c_ulong),
                                      (self.damage, "XDamageCreate", ctypes.c_ulong)):
            getattr(library, name).restype = result
        # Windows may go while they are asked about; without a handler that would end this process.
        self.no_end = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)
        self.x.XSetErrorHandler(self.no_end)
        self.connection = ctypes.c_void_p(self.x.XOpenDisplay(self.name.encode()))
        self.root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.connection))
        self.x.XSelectInput(self.connection, self.root, ctypes.c_long(PROPERTY_CHANGE_MASK))
        first_event, first_error = ctypes.c_int(), ctypes.c_int()
        self.damage.XDamageQueryExtension(self.connection, ctypes.byref(first_event), ctypes.byref(first_error))
        self.event_of_damage = first_event.value
        self.watched = ctypes.c_ulong(self.damage.XDamageCreate(self.connection, self.root, REPORT_NON_EMPTY))
        self.event = ctypes.create_string_buffer(24 * 8)
        self.shown = False
        self.windows_changed = True
        self.painted = 0.0

    def look(self):
        """Takes in what has happened: `painted` is when something last was, a time of time.monotonic()."""
        while self.x.XPending(self.connection):
            self.x.XNextEvent(self.connection, self.event)
            if ctypes.c_int.from_buffer(self.event).value == self.event_of_damage:
                self.painted = time.monotonic()
                self.damage.XDamageSubtract(self.connection, self.watched, ctypes.c_ulong(0), ctypes.c_ulong(0))
                self.x.XFlush(self.connection)
            else:
                self.windows_changed = True

    def wait(self, seconds: float):
        """Until something happens on the display, or so long."""
        if not self.x.XPending(self.connection):
            select.select([self.x.XConnectionNumber(self.connection)], [], [], seconds)
        self.look()

    def shows_window(self) -> bool:
        """Whether a window stands there that is no splash screen."""
        if self.windows_changed:
            self.windows_changed = False
            self.shown = any(self._stands(window) for window in self.windows())
        return self.shown

    def _stands(self, window: int) -> bool:
        splash = self.x.XInternAtom(self.connection, b"_NET_WM_WINDOW_TYPE_SPLASH", 0)
        if splash in self._numbers(window, b"_NET_WM_WINDOW_TYPE"):
            return False
        attributes = Attributes()
        self.x.XGetWindowAttributes(self.connection, ctypes.c_ulong(window), ctypes.byref(attributes))
        self.windows_changed = attributes.map_state != VIEWABLE  # is looked at again
        return attributes.map_state == VIEWABLE

    def windows(self) -> list[int]:
        """Those that the window manager keeps."""
        return self._numbers(self.root.value, b"_NET_CLIENT_LIST")

    def titles(self) -> list[bytes]:
        return [self._property(window, b"_NET_WM_NAME", 8) for window in self.windows()]

    def _numbers(self, window: int, name: bytes) -> list[int]:
        numbers = self._property(window, name, 32)
        return [int.from_bytes(numbers[at:at + 8], "little") for at in range(0, len(numbers), 8)]

    def _property(self, window: int, name: bytes, bits: int) -> bytes:
        """A window's property as the library gives it out, where 32 bits take a long."""
        atom = ctypes.c_ulong(self.x.XInternAtom(self.connection, name, 0))
        kind, count, left = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_ulong()
        form = ctypes.c_int()
        data = ctypes.c_void_p()
        self.x.XGetWindowProperty(self.connection, ctypes.c_ulong(window), atom, ctypes.c_long(0), ctypes.c_long(1024), 0,
                                  ctypes.c_ulong(0), ctypes.byref(kind), ctypes.byref(form), ctypes.byref(count),
                                  ctypes.byref(left), ctypes.byref(data))
        if not data.value:
            return b""
        content = ctypes.string_at(data.value, count.value * (8 if bits == 32 else 1)) if form.value == bits else b""
        self.x.XFree(data)
        return content

    def press(self, character: str):
        """Presses and releases the key of a character that needs no Shift."""
        key = self.x.XKeysymToKeycode(self.connection, ctypes.c_ulong(ord(character)))
        for down in (1, 0):
            self.test.XTestFakeKeyEvent(self.connection, key, down, ctypes.c_ulong(0))
        self.x.XFlush(self.connection)
