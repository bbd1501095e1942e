"""The Pythagoras table: the grid 0 to 10 carved in marble, the Aegean behind."""

from lib import fox
from lib.lettering import number
from lib.palette import CORAL, FOX, INK, LEAF, PAPER, PLUM, SEA, SKY, SLATE, SUN, TEAL, WOOD, mix, shade, tint
from lib.svg import circle, ellipse, group, line, outlined, page, path, rect, soft_shadow, stroke

ROW_TOPS = (104, 123, 142, 162, 181, 200, 219, 238, 257, 276, 295)  # of the first column's numbers
LEFT, TOP, FIRST, PITCH, CELL = 205, 85, 225, 19, 20
RIGHT, BOTTOM = FIRST + 10 * PITCH + CELL, ROW_TOPS[-1] + CELL
MARBLE = "#FFFFFF"


def grid():
    rule, pale = mix(SKY, SEA, .4), tint(SKY, .78)
    parts = [rect(LEFT - 1, TOP - 1, RIGHT - LEFT + 2, BOTTOM - TOP + 2, 3, fill=MARBLE, stroke=INK, stroke_width=1.7)]
    edges = list(ROW_TOPS) + [BOTTOM]
    for i in range(11):
        for j in range(11):
            if (i + j) % 2:
                parts.append(rect(FIRST + PITCH * j, edges[i], PITCH, edges[i + 1] - edges[i], fill=pale))
    parts += [line(LEFT, y + .5, RIGHT, y + .5, rule, 1) for y in ROW_TOPS[1:]]
    parts += [line(FIRST + PITCH * j + .5, TOP, FIRST + PITCH * j + .5, BOTTOM, rule, 1) for j in range(1, 11)]
    parts += [line(LEFT, ROW_TOPS[0] + .5, RIGHT, ROW_TOPS[0] + .5, INK, 1.6), line(FIRST + .5, TOP, FIRST + .5, BOTTOM, INK, 1.6)]
    for i in range(11):
        for j in range(11):
            text = str(i * j)
            middle = (edges[i] + edges[i + 1]) / 2 + .5
            parts.append(number(text, FIRST + PITCH * (j + .5) + .5, middle, 11, INK,
                                pen=17, squeeze=.8 if len(text) == 3 else .95, gap=8))
    return "".join(parts)


def draw():
    return page(rect(0, 0, 640, 480, fill=PAPER) + grid())
