"""What is on a display at this very moment, read from the display server's own memory, and a pointer that clicks."""

import mmap
import struct
import time

import numpy
from desk import HEIGHT, WIDTH
from Xlib import X
from Xlib.display import Display
from Xlib.ext import xtest

BLOCK = 8  # one pixel of each such square is watched
ENOUGH = 0.95  # of the watched pixels: texts that are drawn at random differ from one run to the next
FEWEST = 20  # places to watch
WORDS_OF_HEADER = 25


class Screen:
    def __init__(self, file, display, width=WIDTH, height=HEIGHT):
        with open(file, "rb") as memory:
            self._memory = mmap.mmap(memory.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack_from(f">{WORDS_OF_HEADER}I", self._memory)
        header_size, line, colours = header[0], header[12], header[19]
        first = header_size + 12 * colours
        assert line == 4 * width
        pixels = numpy.frombuffer(self._memory, "<u4", width * height, first)
        self._pixels = pixels.reshape(height, width)
        self._display = Display(display)

    def seen(self):
        return self._pixels.copy()

    def shows(self, picture):
        return numpy.count_nonzero(self._pixels[picture.places] == picture.colours) >= picture.enough

    def wait_for(self, picture, pause, patience=60):
        """The moment at which a picture was first seen."""
        end = time.monotonic() + patience
        while (now := time.monotonic()) < end:
            if self.shows(picture):
                return now
            time.sleep(pause)
        raise AssertionError("what should be painted is not")

    def settled(self, seconds, before=None):
        """What is seen some time after a change, and which pixels have been still for the last third of that time."""
        if before is not None:
            self._wait_for_change(before)
        time.sleep(seconds * 2 / 3)
        last = self.seen()
        still = numpy.ones_like(last, dtype=bool)
        for _ in range(10):
            time.sleep(seconds / 30)
            still &= self._pixels == last
        return last, still

    def _wait_for_change(self, before, patience=60):
        end = time.monotonic() + patience
        while numpy.count_nonzero(self._pixels != before) < FEWEST * BLOCK * BLOCK:
            if time.monotonic() > end:
                raise AssertionError("nothing is painted")
            time.sleep(0.05)

    def point(self, x, y):
        xtest.fake_input(self._display, X.MotionNotify, x=x, y=y)
        self._display.sync()

    def click(self):
        """Presses and lets go at once; returns when the display server has taken both."""
        xtest.fake_input(self._display, X.ButtonPress, 1)
        xtest.fake_input(self._display, X.ButtonRelease, 1)
        self._display.sync()


class Picture:
    """What several views of one thing have in common and the view before it has not."""

    def __init__(self, before, views):
        common = views[0][0] != before
        for view, still in views:
            common &= still & (view == views[0][0])
        blocks = {(y // BLOCK, x // BLOCK): (y, x) for y, x in zip(*numpy.nonzero(common))}
        if len(blocks) < FEWEST:
            raise AssertionError("no picture is there each time")
        self.places = tuple(numpy.array(list(blocks.values())).T)
        self.colours = views[0][0][self.places]
        self.enough = ENOUGH * len(self.colours)
