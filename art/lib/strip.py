"""The digit strip from which the learning screen cuts its numbers."""

from lib.lettering import chalk, number
from lib.palette import PAPER, TABLES, mix, tint
from lib.svg import page

WIDTH, HEIGHT = 540, 116
SMALL, LARGE, PITCH = 21.5, 50, 17  # heights; from one small digit to the next in a row
CHALK_WHITE = mix(PAPER, "#FFFFFF", .5)
SMALL_CELLS = [(str(d), 37 * d + 2, 61, 36, 25) for d in range(10)] \
    + [("10", 1, 88, 53, 25), ("11", 55, 88, 36, 25), ("12", 92, 88, 47, 25)]
LARGE_CELLS = [(str(n), 35 * n + 1, 1, 34, 57) for n in range(2, 10)] \
    + [("10", 351, 1, 61, 57), ("11", 413, 1, 59, 57), ("12", 473, 1, 62, 57)]


def in_cell(write, cell, height, colour, **options):
    text, x, y, width, tall = cell
    return write(text, x + width / 2, y + tall / 2, height, colour, **options)


def draw():
    parts = [in_cell(number, cell, SMALL, CHALK_WHITE, pitch=PITCH) for cell in SMALL_CELLS]
    parts += [in_cell(chalk, cell, LARGE, tint(TABLES[int(cell[0])], .35), gap=6) for cell in LARGE_CELLS]
    return page("\n".join(parts), WIDTH, HEIGHT)
