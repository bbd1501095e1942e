"""A random child before a browser, from a fixed seed."""

import random
import time

import page as at

SEED = 11
KEYS = "Tab shift+Tab Left Right Up Down Return Escape space Home End Delete BACK_SPACE PAGE_UP PAGE_DOWN F1".split()
CHARACTERS = [*"0123456789ADERSTXZadx+-*&!~"]
STEPS = 20  # between two looks at how things stand


class Monkey:
    def __init__(self, browser):
        self._browser, self._random = browser, random.Random(SEED)
        own = [self._drag] if browser.is_touched else [self._drag, self._press, self._turn]
        self._things = [self._click, self._click, self._click, *own]

    def play(self, minutes):
        end = time.monotonic() + 60 * minutes
        while time.monotonic() < end:
            for _ in range(STEPS):
                self._random.choice(self._things)()
            assert not self._browser.told(), self._browser.told()
            if self._browser.has_ended():
                self._browser.begin_again()

    def _place(self):
        """Something of some page, or anywhere."""
        screen = self._random.choice(at.SCREENS)
        boxes = [*at.clickable(screen), (*at.BACK, 1, 1), (*at.BACK, 1, 1), (0, 0, at.WIDTH, at.HEIGHT)]
        left, top, width, height = self._random.choice(boxes)
        return self._browser.page.on_desk((left + self._random.random() * width, top + self._random.random() * height))

    def _press(self):
        self._browser.press(*self._random.choices(KEYS + CHARACTERS, k=3))

    def _click(self):
        self._browser.click(*[self._place()] * self._random.randint(1, 2))

    def _drag(self):
        actions = self._browser.actions()
        pointer = actions.pointer_action.move_to_location(*self._place()).pointer_down()
        pointer.pause(self._random.random()).move_to_location(*self._place()).pointer_up()
        actions.perform()

    def _turn(self):
        actions = self._browser.actions()
        actions.wheel_action.scroll(*self._place(), 0, self._random.randint(-300, 300))
        actions.perform()
