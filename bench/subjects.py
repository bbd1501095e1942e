"""What is measured: the program of both platforms, their floors, and two programs that children learn with as well."""

import os
import shutil
import subprocess
import time
from dataclasses import dataclass, field
from pathlib import Path

import page as at
import processes
from desk import Desk
from programs import ROOT, install
from wine import WINE, WineDesk

SCREENS = at.TABLE_OF_7, at.EXERCISES, at.PYTHAGORAS, at.LESSONS, at.REPORT
BLINK = at.PYTHAGORAS, at.column(8), at.row(7)


@dataclass
class Subject:
    """A program and the places on the display where its parts are clicked."""

    name: str
    command: list
    program: list  # files
    data: list = field(default_factory=list)
    settle: float = 3  # seconds until nothing moves
    click: tuple = None  # brings another page
    back: tuple = None  # brings the first page again
    visit: list = field(default_factory=list)  # clicks that bring every page
    blink: list = field(default_factory=list)
    quit: tuple = None  # ends it; else it is killed


def scaled(place, scale):
    return tuple(round(part * scale) for part in place)


def onze_tables(command, executable, scale, name="Onze Tables"):
    click, back, leave = (scaled(place, scale) for place in (at.TABLE_OF_7, at.BACK, at.QUIT))
    return Subject(
        name,
        [*command, str(executable)],
        [executable],
        list((executable.parent / "datas").iterdir()),
        click=click,
        back=back,
        visit=[step for place in SCREENS for step in (scaled(place, scale), back)],
        blink=[scaled(place, scale) for place in BLINK],
        quit=leave,
    )


def files_of(*packages):
    listed = subprocess.run(["dpkg", "-L", *packages], check=True, capture_output=True, text=True).stdout
    return [Path(name) for name in set(listed.splitlines()) if Path(name).is_file()]


def debian_program(executable, *packages, **more):
    program = Path(shutil.which(executable, path="/usr/bin:/usr/games"))
    others = [file for file in files_of(*packages) if file != program]
    return Subject(executable, [str(program), *more.pop("options", ())], [program], others, **more)


def builds(command, program, earlier, folder, scale):
    """The program, and an earlier build of it where one is given."""
    now = onze_tables(command, install(program, folder / "Onze Tables"), scale)
    before = [onze_tables(command, install(file, folder / "earlier"), scale, "earlier") for file in earlier]
    return now, before


def linux_subjects(program, earlier, floor, folder):
    picture = ROOT / "datas" / "15"
    middle = (320, 240)
    now, before = builds([], program, earlier, folder, Desk.SCALE)
    return [
        now,
        Subject("bare Qt window", [str(floor), str(picture)], [floor], [picture], click=middle, back=middle),
        debian_program("kbruch", "kbruch", click=(290, 300)),
        debian_program(
            "tuxmath", "tuxmath", "tuxmath-data", options=["--windowed"], settle=9, click=(420, 214)
        ),
        *before,
    ]


def windows_subjects(program, earlier, folder, prefix):
    wine = ["/usr/lib/wine/wine64"]
    notepad = prefix / "drive_c" / "windows" / "system32" / "notepad.exe"
    file_menu = (16, 33)
    now, before = builds(wine, program, earlier, folder, WineDesk.SCALE)
    floor = Subject("Wine's notepad", [*wine, str(notepad)], [notepad], click=file_menu, back=file_menu)
    return [now, floor, *before]


class WineDesktop:
    """A Wine whose programs all find one desktop with a taskbar, which is there before they start."""

    def __init__(self, desk, prefix):
        self.prefix = prefix
        self.environment = desk.environment(WINEPREFIX=str(prefix), WINEDEBUG="-all")
        prefix.mkdir()
        self._run("wineboot", "-i")
        explorer = r"HKCU\Software\Wine\Explorer"
        self._run("reg", "add", explorer, "/v", "Desktop", "/d", "shell")
        self._run("reg", "add", explorer + r"\Desktops", "/v", "shell", "/d", "1024x768")

    def __enter__(self):
        self._process = subprocess.Popen([WINE, "explorer", "/desktop=shell,1024x768"], env=self.environment)
        time.sleep(5)
        return self

    def __exit__(self, *_):
        subprocess.run(["wineserver", "-k"], env=self.environment)
        self._process.wait()

    def server(self):
        return processes.named("wineserver64", os.fsencode(str(self.prefix)))

    def _run(self, *command):
        subprocess.run([WINE, *command], env=self.environment, check=True, stdout=subprocess.DEVNULL)
