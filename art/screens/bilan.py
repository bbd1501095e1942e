"""The usage report: the grid of the tables, the training card."""

from math import cos, pi, sin

from lib import fox
from lib.lettering import number, sticker
from lib.palette import CORAL, INK, LEAF, PLUM, SEA, SKY, SUN, TABLES, TEAL, mix, shade, tint
from lib.svg import circle, group, line, outlined, page, path, rect, soft_shadow
from lib.things import bunting, card, cube, open_book, seyes, star

ROW_TOPS = (192, 219, 246, 272, 298, 323, 349, 375, 401, 427, 454)
TEXT_MIDDLE = 10  # of a value, below its row's top
LEFT, COLUMNS, RIGHT = 188, (246.5, 307.5, 368.5, 428.5), 488
TOP, HEADING, BOTTOM = 152, 189, 478


def grid():
    parts = [card(LEFT, TOP, RIGHT - LEFT, BOTTOM - TOP, SEA, radius=8)]
    parts.append(path(f"M{LEFT + 2} {HEADING}V160a6 6 0 0 1 6 -6H{RIGHT - 8}a6 6 0 0 1 6 6V{HEADING}Z", fill=tint(SKY, .72)))
    middles = [top + TEXT_MIDDLE for top in ROW_TOPS]
    edges = [HEADING] + [(a + b) // 2 + .5 for a, b in zip(middles, middles[1:])] + [BOTTOM - 2]
    for i, middle in enumerate(middles):
        upper, lower = edges[i], edges[i + 1]
        if i % 2:
            parts.append(rect(COLUMNS[0], upper, RIGHT - 2 - COLUMNS[0], lower - upper, fill=tint(SKY, .84)))
        text = str(i + 2)
        colour = TABLES[i + 2]
        parts.append(rect(197, middle - 9.5, 42, 19, 6, **outlined(tint(colour, .4), 1.4)))
        parts.append(number(text, 218, middle, 15.5, INK, gap=7))
    rule = mix(SKY, SEA, .35)
    parts += [line(LEFT + 2, edge, RIGHT - 2, edge, rule, 1) for edge in edges[1:-1]]
    parts += [line(x, HEADING if x != COLUMNS[2] else TOP + 2, x, BOTTOM - 2, rule, 1) for x in COLUMNS]
    parts.append(line(LEFT + 1, HEADING, RIGHT - 1, HEADING, SEA, 2))
    return "".join(parts)


def training():
    parts = [card(493, 268, 144, 130, LEAF, radius=8)]
    parts.append(path("M495 294V276a6 6 0 0 1 6 -6H629a6 6 0 0 1 6 6V294Z", fill=tint(LEAF, .78)))
    parts.append(line(494, 294.5, 636, 294.5, LEAF, 1.5))
    parts += [line(499, y, 631, y, tint(LEAF, .55), 1) for y in (329.5, 362.5)]
    return "".join(parts)


def sentences():
    """Each begins behind a picture of what it tells of: the page of reminders, the Pythagoras table."""
    parts = [card(168, 66, 468, 31, SUN, radius=10), open_book(191, 89, 22, 14, CORAL), card(112, 101, 524, 45, SUN, radius=10)]
    for i in range(4):
        for j in range(4):
            colour = SUN if i == j == 2 else tint(SEA, .3) if 2 in (i, j) and max(i, j) < 3 else tint(SKY, .55)
            parts.append(rect(119 + 6 * j, 111.5 + 6 * i, 6, 6, **outlined(colour, 1)))
    return "".join(parts)


def towers():
    """Practice piles up."""
    parts = [soft_shadow(92, 470, 84, 5)]
    for i, colours in enumerate(((CORAL, SUN), (LEAF, SEA, PLUM), (TEAL, CORAL, SUN, LEAF), (SEA, PLUM, TEAL, CORAL, SUN))):
        parts += [cube(18 + 36 * i, 446 - 25 * j, 24, colour) for j, colour in enumerate(colours)]
    return "".join(parts)


def medal(x, y):
    """A rosette with the sign of multiplication."""
    petals = [circle(25 * cos(a * pi / 6), 25 * sin(a * pi / 6), 8, **outlined(CORAL)) for a in range(12)]
    ribbon = "M16 18L24 54L12 47L4 56L-2 22Z"
    return group(
        group(path(ribbon, **outlined(shade(CORAL, .15))), flip=True), path(ribbon, **outlined(CORAL)),
        *petals, circle(0, 0, 26, fill=CORAL), circle(0, 0, 22, **outlined(SUN)),
        circle(0, 0, 17.5, fill="none", stroke=tint(SUN, .5), stroke_width=1.6),
        sticker("×", 0, 0, 30, "#FFFFFF"), x=x, y=y)


def draw():
    arm = fox.arm("M24 -60C34 -62 44 -70 50 -84", (51, -88))
    stars = star(519, 176, 8, SUN, turn=-10) + star(612, 178, 10, LEAF, turn=12) + star(606, 240, 7, SEA, turn=-6)
    return page("".join([
        seyes(), bunting(640, 8), sentences(), grid(), training(), towers(),
        fox.sitting(84, 306, .92, mood="right", right=arm, tail_side="left"), medal(566, 197), stars,
    ]))
