"""The exercises screen: a sheet for each exercise, with the gaps that the dividing lines run through."""

from lib import fox
from lib.palette import CORAL, FOX, INK, LEAF, PLUM, SEA, SUN, TEAL, WOOD, shade, tint
from lib.svg import circle, line, outlined, page, path, rect
from lib.things import abacus, bead_on, card, counter, cube, pencil, seyes, stick

SHEETS = (  # left, top, right, bottom, colour
    (2, 6, 317, 157, CORAL),  # the missing factor
    (323, 6, 638, 157, SEA),  # the product
    (2, 160, 638, 252, LEAF),  # two factors
    (2, 255, 638, 333, PLUM),  # is it in the table?
    (2, 336, 317, 474, SUN),  # the notes
    (323, 336, 638, 449, TEAL),  # the sum
)


def towers(x, ground, size, heights, colours):
    return "".join(cube(x + i * size * 1.5, ground - size * (j + 1), size, colour)
                   for i, (height, colour) in enumerate(zip(heights, colours)) for j in range(height))


def beads(left, right, middle):
    """A rail with five groups of three."""
    parts = [line(left, middle, right, middle, shade(WOOD, .55), 1.8)]
    x = left + 14
    for colour, count in ((CORAL, 3), (SUN, 3), (LEAF, 3), (SEA, 3), (PLUM, 3)):
        for _ in range(count):
            parts.append(bead_on(x, middle, 6.2, colour))
            x += 10.6
        x += 8
    parts += [rect(post, middle - 12, 6, 24, 2.5, **outlined(WOOD)) for post in (left - 3, right - 3)]
    return "".join(parts)


def xylophone(x, y):
    """Seven bars, one for each note."""
    parts = [path(f"M{x + 2} {y + 12}L{x + 80} {y + 22}V{y + 26}L{x + 2} {y + 20}Z", **outlined(WOOD)),
             path(f"M{x + 2} {y + 52}L{x + 80} {y + 40}V{y + 44}L{x + 2} {y + 60}Z", **outlined(WOOD))]
    for i, colour in enumerate((CORAL, FOX, SUN, LEAF, TEAL, SEA, PLUM)):
        left, tall = x + 5 + 10.8 * i, 66 - 5.2 * i
        top = y + 34 - tall / 2
        parts.append(rect(left, top, 8.4, tall, 2.5, **outlined(colour)))
        parts.append(line(left + 2.4, top + 4, left + 2.4, top + tall - 5, tint(colour, .5), 1.4))
        parts += [circle(left + 4.2, dot, 1.1, fill=INK) for dot in (top + 9, top + tall - 9)]
    return "".join(parts)


def stack(x, ground, count, colour):
    """Counters one on the other, seen from the side."""
    return "".join(rect(x, ground - 5.6 * (i + 1), 17, 6.2, 2.6, **outlined(colour if i % 2 else tint(colour, .3), 1.4))
                   for i in range(count))


def draw():
    sheets = [card(left, top, right - left, bottom - top, colour, radius=8, bar=6) for left, top, right, bottom, colour in SHEETS]
    twelve = [counter(466 + 17 * c, 201 + 16 * r, 6.4, (CORAL, SUN, SEA)[r]) for r in range(3) for c in range(4)]
    return page("".join([
        seyes(), *sheets,
        towers(244, 68, 13, (1, 2, 3), (CORAL, SUN, LEAF)),
        abacus(520, 17, 98, 48, [(SEA, 4, 4), (CORAL, 6, 2), (SUN, 3, 5)], bead=5, posts=5),
        *twelve, fox.sitting(584, 246, .5, mood="left"),
        towers(26, 326, 11, (1, 2, 3, 4), (PLUM, SEA, TEAL, LEAF)), beads(410, 620, 317),
        xylophone(16, 398),
        stack(586, 402, 4, CORAL), stack(608, 402, 7, SEA),
        pencil(330, 464, 96, SUN), stick(438, 464, 24), stick(470, 464, 18, tint(CORAL, .45)),
        counter(512, 463, 7, LEAF), counter(530, 464, 7, PLUM),
    ]))
