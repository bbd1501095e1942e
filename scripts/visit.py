"""visit.py PROGRAM FOLDER [PROBE]: visits every screen with a real pointer and keeps a picture of each."""

import sys
import tempfile
from pathlib import Path

sys.path.append(str(Path(__file__).parents[1] / "tests" / "acceptance"))  # which know the ways

import page as at
from installed import new_desk
from programs import Program, install


def visit(desk, page, folder):
    def keep(screen):
        desk.keep_picture(page.box, folder / f"{at.NAMES[screen]}.png")

    page.wait_for(at.START)
    keep(at.START)
    for screen, place in at.WAYS.items():
        page.go(place, screen)
        keep(screen)
        page.back()
    page.click(at.QUIT)


def main(source, folder, *probe):
    source, folder = Path(source), Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    with new_desk(*probe) as desk, tempfile.TemporaryDirectory() as scratch:
        with Program(desk, install(source, Path(scratch, "Onze Tables"))) as program:
            visit(desk, program.page, folder)
            program.wait()
    print(f"Pictures of all screens: {folder}/*.png")


if __name__ == "__main__":
    main(*sys.argv[1:])
