"""visit.py PROGRAM FOLDER [PROBE]: visits every screen with a real pointer and keeps a picture of each."""

import sys
import tempfile
import time
from pathlib import Path

import page as at
from desk import Desk
from programs import LinuxProgram, WindowsProgram, install

STOPS = {
    "apprendre": (at.TABLE_OF_7, at.LEARNING),
    "exercices": (at.EXERCISES, at.EXERCISES_SCREEN),
    "pythagore": (at.PYTHAGORAS, at.PYTHAGORAS_SCREEN),
    "lecon": (at.LESSONS, at.LESSONS_SCREEN),
    "bilan": (at.REPORT, at.REPORT_SCREEN),
}


def visit(desk, program, folder):
    def keep(name):
        time.sleep(0.3)  # everything on the screen is painted
        desk.keep_picture(program.page.box, folder / f"{name}.png")

    program.page.wait_for(at.START)
    keep("depart")
    for name, (place, screen) in STOPS.items():
        program.page.go(place, screen)
        keep(name)
        program.page.back()
    program.page.click(at.QUIT)
    program.wait()


def main(source, folder, *probe):
    source, folder = Path(source), Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    with Desk() as desk, tempfile.TemporaryDirectory() as scratch:
        if probe:
            WindowsProgram.prepare(Path(scratch, "wine"), *probe)
        kind = WindowsProgram if probe else LinuxProgram
        with kind(desk, install(source, Path(scratch, "Onze Tables"))) as program:
            visit(desk, program, folder)
    print(f"Pictures of all screens: {folder}/*.png")


if __name__ == "__main__":
    main(*sys.argv[1:])
