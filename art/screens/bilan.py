"""The usage report: the grid of the tables, the training card."""

from lib import fox
from lib.lettering import number
from lib.palette import CORAL, INK, LEAF, PAPER, PLUM, SEA, SKY, SLATE, SUN, TABLES, TEAL, WOOD, mix, shade, tint
from lib.svg import circle, ellipse, group, line, outlined, page, path, rect, soft_shadow, stroke
from lib.things import abacus, card, counter, cube, cubes, pencil, seyes, star

ROW_TOPS = (192, 219, 246, 272, 298, 323, 349, 375, 401, 427, 454)
TEXT_MIDDLE = 10  # of a value, below its row's top
LEFT, COLUMNS, RIGHT = 188, (247, 307.5, 368.5, 428), 488
TOP, HEADING, BOTTOM = 152, 191, 478


def grid():
    parts = [card(LEFT, TOP, RIGHT - LEFT, BOTTOM - TOP, SEA, radius=8)]
    parts.append(path(f"M{LEFT + 2} {HEADING}V160a6 6 0 0 1 6 -6H{RIGHT - 8}a6 6 0 0 1 6 6V{HEADING}Z", fill=tint(SKY, .72)))
    middles = [top + TEXT_MIDDLE for top in ROW_TOPS]
    edges = [HEADING] + [(a + b) / 2 for a, b in zip(middles, middles[1:])] + [BOTTOM - 2]
    for i, middle in enumerate(middles):
        upper, lower = edges[i], edges[i + 1]
        if i % 2:
            parts.append(rect(COLUMNS[0], upper, RIGHT - 2 - COLUMNS[0], lower - upper, fill=tint(SKY, .84)))
        text = str(i + 2)
        colour = TABLES[i + 2]
        parts.append(rect(197, middle - 10, 42, 20, 6, **outlined(colour, 1.4)))
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


def teller():
    """The fox shows the two sentences; towers of cubes show that practice piles up."""
    parts = [soft_shadow(92, 470, 84, 5)]
    for i, colours in enumerate(((CORAL, SUN), (LEAF, SEA, PLUM), (TEAL, CORAL, SUN, LEAF), (SEA, PLUM, TEAL, CORAL, SUN))):
        parts += [cube(18 + 36 * i, 446 - 25 * j, 24, colour) for j, colour in enumerate(colours)]
    return "".join(parts)


def draw():
    parts = [seyes()]
    parts.append(card(140, 66, 494, 80, SUN, radius=12))
    parts.append(grid() + training() + teller())
    arm = fox.arm("M24 -60C34 -62 44 -70 50 -84", (51, -88))
    parts.append(fox.sitting(74, 300, 1.05, mood="right", right=arm, tail_flip=True))
    parts.append(star(553, 222, 15, SUN, turn=-8) + star(592, 240, 10, CORAL, turn=12) + star(520, 243, 8, LEAF, turn=16))
    return page("".join(parts))
