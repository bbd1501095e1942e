"""The exercises screen: six sheets, one for each exercise, under the beads of an abacus."""

from lib import fox
from lib.palette import CORAL, LEAF, PLUM, SEA, SUN, TEAL, WOOD, shade, tint
from lib.svg import ellipse, line, outlined, page, rect, stroke
from lib.things import bead_on, card, seyes

AREAS = (  # left, top, right, bottom, colour
    (6, 50, 316, 158, CORAL),  # 4: the missing factor
    (322, 50, 634, 158, SEA),  # 2: the product
    (6, 164, 634, 252, LEAF),  # 3: two factors
    (6, 258, 634, 332, PLUM),  # 1: is it in the table?
    (6, 338, 326, 474, SUN),  # 6: the notes
    (332, 338, 634, 450, TEAL),  # 5: the sum
)
BEADS = ((CORAL, 2), (SUN, 4), (LEAF, 6), (SEA, 8), (PLUM, 10))


def beads(left, right, middle):
    """One rail; groups of two, four, six ... beads, a table begun."""
    parts = [line(left, middle, right, middle, shade(WOOD, .55), 2.2)]
    x = left + 22
    for colour, count in BEADS:
        for _ in range(count):
            parts.append(bead_on(x, middle, 8.2, colour))
            x += 13.6
        x += 14
    for post in (left - 4, right - 4):
        parts.append(rect(post, middle - 17, 8, 34, 3.5, **outlined(WOOD)))
        parts.append(stroke(f"M{post + 2.8} {middle - 12}V{middle + 12}", tint(WOOD, .45), 1.4))
    return "".join(parts)


def draw():
    sheets = "".join(card(left, top, right - left, bottom - top, colour, bar=8) for left, top, right, bottom, colour in AREAS)
    paws = "".join(ellipse(x, 53, 8, 5.5, **outlined(fox.PAW)) for x in (541, 607))
    return page("".join([seyes(), beads(16, 512, 24), fox.head(574, 37, .5, mood="left"), sheets, paws]))
