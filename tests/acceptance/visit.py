"""visit.py PROGRAM FOLDER: visits every screen with a real pointer and keeps a picture of each."""

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
    "leçon": (at.LESSONS, at.LESSONS_SCREEN),
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


if __name__ == "__main__":
    source, folder = Path(sys.argv[1]), Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    kind = WindowsProgram if source.suffix == ".exe" else LinuxProgram
    with Desk() as desk, tempfile.TemporaryDirectory() as scratch:
        with kind(desk, install(source, Path(scratch, "Onze Tables"))) as program:
            visit(desk, program, folder)
    print(f"Pictures of all screens: {folder}/*.png")
