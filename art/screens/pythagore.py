"""The Pythagoras table: the grid 0 to 10 carved in marble, the Aegean behind."""

from lib import fox
from lib.lettering import number, sticker
from lib.palette import CORAL, INK, LEAF, PAPER, SEA, SKY, SLATE, SUN, WOOD, mix, tint
from lib.svg import circle, group, line, num, outlined, page, path, rect, stroke
from lib.things import cloud, plate

ROW_TOPS = (104, 123, 142, 162, 181, 200, 219, 238, 257, 276, 295)  # of the first column's numbers
LEFT, TOP, FIRST, PITCH, CELL = 205, 85, 225, 19, 20
RIGHT, BOTTOM = FIRST + 10 * PITCH + CELL, ROW_TOPS[-1] + CELL
MARBLE = "#FFFFFF"


def grid():
    rule, pale = mix(SKY, SEA, .4), tint(SKY, .78)
    parts = [rect(LEFT - 1, TOP - 1, RIGHT - LEFT + 2, BOTTOM - TOP + 2, 3, fill=MARBLE, stroke=INK, stroke_width=2)]
    edges = list(ROW_TOPS) + [BOTTOM]
    for i in range(11):
        for j in range(11):
            if (i + j) % 2:
                parts.append(rect(FIRST + PITCH * j, edges[i], PITCH, edges[i + 1] - edges[i], fill=pale))
    parts += [line(LEFT, y + .5, RIGHT, y + .5, rule, 1) for y in ROW_TOPS[1:]]
    parts += [line(FIRST + PITCH * j + .5, TOP, FIRST + PITCH * j + .5, BOTTOM, rule, 1) for j in range(1, 11)]
    parts += [line(LEFT, ROW_TOPS[0] + .5, RIGHT, ROW_TOPS[0] + .5, INK, 1), line(FIRST + .5, TOP, FIRST + .5, BOTTOM, INK, 1)]
    for i in range(11):
        for j in range(11):
            text = str(i * j)
            middle = (edges[i] + edges[i + 1]) / 2 + .5
            parts.append(number(text, FIRST + PITCH * (j + .5) + .5, middle, 11, INK,
                                pen=17, squeeze=.8 if len(text) == 3 else .95, gap=8))
    parts.append(number("×", LEFT + 10, TOP + 9.5, 12, INK))
    return "".join(parts)


def sea():
    """Sky, islands and sea behind it all, ending before the texts."""
    parts = [
        rect(0, 0, 640, 62, fill=tint(SKY, .45)),
        circle(560, 30, 15, fill=SUN), circle(560, 30, 20, fill="none", stroke=tint(SUN, .5), stroke_width=2),
        cloud(486, 26, .7), cloud(606, 54, .5), cloud(180, 22, .6),
        path("M408 60C430 44 446 52 462 46C480 40 500 56 520 60Z", fill=tint(LEAF, .45)),
        path("M590 60C604 50 622 48 640 46V60Z", fill=tint(LEAF, .45)),
        path("M0 60H640V80Q620 86 600 80T560 80T520 80T480 80T440 80T400 80T360 80T320 80T280 80T240 80T200 80T160 80T0 80Z", fill=SEA),
        stroke("M462 69h14M500 65h10M606 67h16M448 76h10M586 75h12", tint(SEA, .5), 1.8),
    ]
    return "".join(parts)


def boat(x, y):
    """Its sail is a right triangle."""
    return "".join([
        path(f"M{x - 2} {y - 38}V{y - 6}H{x - 26}Z", **outlined(tint(CORAL, .2))),
        path(f"M{x + 3} {y - 32}V{y - 6}H{x + 19}Z", **outlined(PAPER)),
        stroke(f"M{x} {y - 42}V{y}", INK, 2.4),
        path(f"M{x - 24} {y - 2}H{x + 24}Q{x + 18} {y + 10} {x + 10} {y + 10}H{x - 12}Q{x - 20} {y + 10} {x - 24} {y - 2}Z", **outlined(WOOD)),
        stroke(f"M{x - 30} {y + 12}q5 -5 10 0t10 0t10 0t10 0t10 0t10 0", tint(SEA, .6), 2),
    ])


def pediment():
    """The grid stands in the front of a temple."""
    vein = mix(SKY, SLATE, .25)
    return "".join([
        path("M319.500 24L452 78H187Z", **outlined(MARBLE)),
        path("M319.500 35L424 74H215Z", **outlined(tint(SEA, .35), 1.4)),
        rect(192, 77, 255, 8, 1.5, **outlined(MARBLE)), stroke("M197 81H442", vein, 1.4),
        circle(319.5, 23, 4.5, **outlined(SUN)),
        sticker("×", 319.5, 60, 25, SUN, outline=1.7),
    ])


def theorem():
    """Three, four, five: the squares on the sides of a right triangle, carved in a stele."""
    x, y, u = 139, 136, 5.9  # the right angle, one unit
    def squares(n, colour, turn, at):
        return group("".join(rect(u * i, u * j, u, u, fill=tint(colour, .25 if (i + j) % 2 else .5), stroke=INK, stroke_width=.9)
                             for i in range(n) for j in range(n)), x=at[0], y=at[1], turn=turn)
    slope = 90 - 53.1301
    return "".join([
        path("M112 169V93Q112 81 126 81H184Q198 81 198 93V169Z", **outlined(MARBLE)),
        path("M191 87Q194 90 194 95V165H189V93Q189 88 186 85Z", fill=mix(SKY, SLATE, .12), opacity=".5"),
        rect(107, 167, 96, 8, 2, **outlined(MARBLE)),
        squares(3, CORAL, 0, (x - 3 * u, y - 3 * u)), squares(4, LEAF, 0, (x, y)),
        squares(5, SEA, slope, (x + u * 3, y - 3 * u - 4 * u)),
        path(f"M{x} {y}V{num(y - 3 * u)}L{num(x + 4 * u)} {y}Z", **outlined(SUN)),
    ])


def meander(y, left, right):
    """A Greek key along the page."""
    step, d = 14, ""
    for x in range(left, right - step + 1, step):
        d += f"M{x} {y + 8}V{y}H{x + 11}V{y + 6}H{x + 5}V{y + 3.5}H{x + 8}M{x} {y + 8}H{x + step}"
    return stroke(d, tint(SEA, .45), 1.4)


def teacher():
    arm = fox.arm("M24 -58C32 -56 42 -58 50 -62", (53, -63))
    return fox.sitting(54, 174, .84, mood="right", right=arm, hat=fox.laurel(), drape=fox.toga(), tail_side="")


def draw():
    return page("".join([
        rect(0, 0, 640, 480, fill=PAPER), sea(), boat(520, 64),
        pediment(), grid(), theorem(), teacher(), meander(372, 6, 634),
        plate(177, 450, 252, 27),
    ]))
