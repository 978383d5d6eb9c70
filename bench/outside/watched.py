"""A program that is watched from outside: its processes, their processor time and their memory."""
import ctypes
import os
import pathlib
import signal
import subprocess
import time

PROC = pathlib.Path("/proc")
SUBREAPER = 36


def adopt_orphans():
    """Processes whose parent ends become children of this one, so that none of a program's is lost."""
    ctypes.CDLL(None).prctl(SUBREAPER, 1, 0, 0, 0)


def children(process: int) -> list[int]:
    found = []
    for tasks in PROC.glob(f"{process}/task/*/children"):
        try:
            found += [int(number) for number in tasks.read_text().split()]
        except OSError:
            pass
    return found


def processor_clock(process: int) -> int:
    """The clock of the processor time of all threads of a process, those that have ended included."""
    return (~process << 3) | 2


class Watched:
    """A program from its exec to its end; use it with "with". Its descendants count with it."""

    LOOK_FOR_CHILDREN = 0.02

    def __init__(self, command: list[str], environment: dict[str, str]):
        self.started = time.monotonic()
        self.main = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                     stderr=subprocess.DEVNULL, start_new_session=True)
        self.times = {self.main.pid: 0}
        self.looked = 0.0

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._find_children()
        for process in reversed(self.times):
            try:
                os.kill(process, signal.SIGKILL)
            except ProcessLookupError:
                pass
        self.main.wait()
        for process in list(self.times)[1:]:
            try:
                os.waitpid(process, 0)
            except ChildProcessError:
                pass

    def running(self) -> bool:
        return self.main.poll() is None

    def _find_children(self):
        family = [self.main.pid]
        for process in family:
            family += [child for child in children(process) if child not in family]
        for process in family:
            self.times.setdefault(process, 0)
        self.looked = time.monotonic()

    def processor_time(self) -> int:
        """Of all its processes, those that have ended included, in nanoseconds."""
        if time.monotonic() - self.looked > self.LOOK_FOR_CHILDREN:
            self._find_children()
        for process, before in self.times.items():
            try:
                self.times[process] = max(before, time.clock_gettime_ns(processor_clock(process)))
            except OSError:
                pass  # it has ended
        return sum(self.times.values())

    def memory(self) -> float:
        """The proportional set size of all its processes, in bytes."""
        self._find_children()
        return sum(self._memory_of(process) for process in self.times)

    @staticmethod
    def _memory_of(process: int) -> float:
        try:
            lines = (PROC / str(process) / "smaps_rollup").read_text().splitlines()
        except OSError:
            return 0
        return sum(float(line.split()[1]) * 1024 for line in lines if line.startswith("Pss:"))

    def wakings(self) -> int:
        """How often its threads have gone to sleep by themselves."""
        count = 0
        for process in self.times:
            for status in PROC.glob(f"{process}/task/*/status"):
                try:
                    lines = status.read_text().splitlines()
                except OSError:
                    continue
                count += sum(int(line.split()[1]) for line in lines if line.startswith("voluntary_ctxt_switches"))
        return count
