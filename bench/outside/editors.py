"""The editors that are measured: how each is started, and what its first start would ask."""
import dataclasses
import pathlib
import shutil


@dataclasses.dataclass(frozen=True)
class Editor:
    name: str
    command: tuple[str, ...]
    package: str = ""  # of Debian, where it is somebody else's
    settings: tuple[tuple[str, str], ...] = ()  # files of its home and the lines that go to their ends

    def is_there(self) -> bool:
        return shutil.which(self.command[0]) is not None

    def settle(self, home: pathlib.Path):
        for path, lines in self.settings:
            with open(home / path, "a", encoding="utf-8") as file:
                file.write(lines)


PEERS = (
    Editor("SciTE", ("scite",), "scite"),
    Editor("FeatherPad", ("featherpad", "--standalone"), "featherpad"),
    Editor("Geany", ("geany", "--new-instance"), "geany"),
    Editor("KWrite", ("kwrite",), "kwrite"),
)


def ours(program: str, name: str = "ours") -> Editor:
    """By the classic rules, but without the Welcome screen and with the file that it is given in front."""
    lines = ("WelcomeScreen=false", "EditingHabits=classic", "HabitStart=True")
    return Editor(name, (program,), settings=((".config/tagwrighter/QWRK77XE.settings",
                                               "".join(f"Settings/{line}\n" for line in lines)),))
