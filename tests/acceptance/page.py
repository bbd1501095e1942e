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
QUIT = (590, 468)
BACK = (590, 467)

FACTORING_MORE = (485, 57)
FACTORING_ANSWER = (454, 65)
MULTIPLE_NO = (470, 220)
MULTIPLE_AGAIN = (584, 244)
PRODUCT_MORE = (476, 34)
PRODUCT_ANSWER = (476, 64)


def column(number):
    return (215, 114 + 19 * number)


def row(number):
    return (235 + 19 * number, 95)


# The screens by the names of their background pictures.
SCREENS = "11", "12", "13", "14", "15", "16"
LEARNING, REPORT_SCREEN, EXERCISES_SCREEN, LESSONS_SCREEN, START, PYTHAGORAS_SCREEN = SCREENS


class Backgrounds:
    """Tells the screens apart by their background pictures."""

    SIZE = (160, 120)
    ALIKE = 16  # mean difference of a colour; texts and controls cover a part of every background

    def __init__(self):
        datas = Path(__file__).parents[2] / "datas"
        self._pictures = {name: self._small(datas / name) for name in SCREENS}

    def nearest(self, seen):
        """The most similar background and the mean difference from it."""
        return min(((self._difference(seen, picture), name) for name, picture in self._pictures.items()))[::-1]

    def _small(self, file):
        size = f"{self.SIZE[0]}x{self.SIZE[1]}!"
        command = ["convert", str(file), "-resize", size, "-depth", "8", "rgb:-"]
        return subprocess.run(command, check=True, capture_output=True).stdout

    @staticmethod
    def _difference(a, b):
        return sum(abs(x - y) for x, y in zip(a, b, strict=True)) / len(a)


backgrounds = functools.cache(Backgrounds)


class Page:
    """The page as it lies on a desk: its top left corner, scaled."""

    def __init__(self, desk, scale):
        self._desk, self._scale = desk, scale
        self.box = (0, 0, round(WIDTH * scale), round(HEIGHT * scale))

    def click(self, *places):
        self._desk.click(*((round(x * self._scale), round(y * self._scale)) for x, y in places))

    def go(self, place, screen):
        self.click(place)
        self.wait_for(screen)

    def back(self):
        self.go(BACK, START)

    def wait_for(self, screen):
        def shown():
            self._nearest, difference = backgrounds().nearest(self._desk.look(self.box, Backgrounds.SIZE))
            return self._nearest == screen and difference < Backgrounds.ALIKE

        if not wait_until(shown):
            raise AssertionError(f"screen {screen} is not shown, but rather {self._nearest}")
