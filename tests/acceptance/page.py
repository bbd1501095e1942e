"""Where a pupil finds things, in pixels of the page, and which screen is seen."""

import functools
import subprocess
from pathlib import Path

from waiting import wait_until

WIDTH, HEIGHT = 640, 480

TABLE_OF_7 = (337, 228)
PYTHAGORAS = (60, 170)
LESSONS = (570, 200)
EXERCISES = (400, 385)
REPORT = (130, 300)
# RETOUR lies over SORTIE: so that one after the other is no double click, each is clicked at an end of its own.
QUIT = (622, 468)
BACK = (560, 467)

FACTORING_MORE = (485, 57)
FACTORING_LESS = (485, 72)
FACTORING_BOX = (436, 54, 36, 22)
FACTORING_TEXT = (246, 84, 376, 48)
FACTORING_ANSWER = (454, 65)
MULTIPLE_NO = (470, 220)
MULTIPLE_AGAIN = (584, 244)
PRODUCT_MORE = (476, 34)
PRODUCT_ANSWER = (476, 64)
NOTHING = (20, 20)


def column(number):
    return (215, 114 + 19 * number)


def row(number):
    return (235 + 19 * number, 95)


# The screens by the names of their background pictures; what each is called, and what opens it.
SCREENS = "11", "12", "13", "14", "15", "16"
LEARNING, REPORT_SCREEN, EXERCISES_SCREEN, LESSONS_SCREEN, START, PYTHAGORAS_SCREEN = SCREENS
NAMES = dict(zip(SCREENS, ("apprendre", "bilan", "exercices", "lecon", "depart", "pythagore")))
WAYS = {
    LEARNING: TABLE_OF_7,
    EXERCISES_SCREEN: EXERCISES,
    PYTHAGORAS_SCREEN: PYTHAGORAS,
    LESSONS_SCREEN: LESSONS,
    REPORT_SCREEN: REPORT,
}

ROOT = Path(__file__).parents[2]


def clickable(screen):
    """The boxes (left, top, width, height) that react to a click, RETOUR and SORTIE left out; arrows are two."""
    for line in (ROOT / "tests" / "design" / "places.txt").read_text().splitlines():
        page, kind, *twips = line.split()
        left, top, width, height = (int(number) // 15 for number in twips)
        if page != NAMES[screen] or shared((left, top, width, height), (*BACK, 3, 3)):
            continue
        parts = 2 if kind == "arrows" else 1
        for part in range(parts):
            yield left, top + part * height // parts, width, height // parts


def middle(box):
    left, top, width, height = box
    return left + width // 2, top + height // 2


def shared(one, other):
    """The part that two boxes share, or nothing."""
    left, top = max(one[0], other[0]), max(one[1], other[1])
    width, height = min(one[0] + one[2], other[0] + other[2]) - left, min(one[1] + one[3], other[1] + other[3]) - top
    return [(left, top, width, height)] if min(width, height) > 2 else []


SMALL = (160, 120)
# Mean difference of a colour: what texts and controls, in whatever fonts, make of a background stays well below it,
# and another background well above.
ALIKE = 24


@functools.cache
def background(screen):
    command = ["convert", ROOT / "datas" / screen, "-resize", "{}x{}!".format(*SMALL), "-depth", "8", "rgb:-"]
    return subprocess.run(command, check=True, capture_output=True).stdout


def nearest(seen):
    """The mean difference from the most similar background, and the screen that it belongs to."""
    return min((sum(abs(x - y) for x, y in zip(seen, background(name))) / len(seen), name) for name in SCREENS)


class Page:
    """The page as it lies on a desk: its top left corner, scaled."""

    def __init__(self, desk, has_ended):
        self._desk, self._has_ended = desk, has_ended

    @property
    def box(self):
        return self.on_desk((0, 0, WIDTH, HEIGHT))

    def click(self, *places):
        self._desk.click(*map(self.on_desk, places))

    def double_click(self, *places):
        self.click(*(place for place in places for _ in range(2)))

    def go(self, place, screen):
        self.click(place)
        self.wait_for(screen)

    def press(self, keys, screen=None):
        """Presses keys, told with blanks between them, and waits for the screen that they lead to."""
        self._desk.press(*keys.split())
        if screen:
            self.wait_for(screen)

    def back(self):
        self.go(BACK, START)

    def look(self, box):
        """What a part of the page looks like."""
        return self._desk.look(self.on_desk(box), box[2:])

    def wait_for(self, screen):
        def shown():
            self._difference, self._nearest = nearest(self._desk.look(self.box, SMALL))
            return self._nearest == screen and self._difference < ALIKE

        if not wait_until(lambda: shown() or self._has_ended()) or self._has_ended():
            raise AssertionError(f"screen {screen} is not shown, but rather {self._nearest}")

    def on_desk(self, numbers):
        left, top, scale = self._desk.view()
        return tuple(round(first + number * scale) for first, number in zip((left, top, 0, 0), numbers))
