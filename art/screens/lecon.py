"""The reminders page: a calm note for each text, and beside it what the text tells, shown with things."""

from lib import fox
from lib.lettering import number
from lib.palette import CORAL, INK, LEAF, PAPER, PLUM, SEA, SLATE, SUN, TEAL, WOOD, shade, tint
from lib.svg import circle, group, line, outlined, page, path, rect
from lib.things import apple, cube, cubes, open_book, pencil, pot, seyes, slate


def note(d, colour):
    """A sheet of any outline."""
    return (group(path(d, fill=INK, opacity=".09"), x=1.5, y=2.5)
            + path(d, fill=PAPER, stroke=tint(colour, .35), stroke_width=1.8, stroke_linejoin="round"))


def box(x, y, width, height, radius=7):
    r = radius
    return (f"M{x + r} {y}h{width - 2 * r}a{r} {r} 0 0 1 {r} {r}v{height - 2 * r}a{r} {r} 0 0 1 -{r} {r}h-{width - 2 * r}"
            f"a{r} {r} 0 0 1 -{r} -{r}v-{height - 2 * r}a{r} {r} 0 0 1 {r} -{r}Z")


def array_of_counters(x, y, columns, rows, pitch, radius, colours):
    return "".join(circle(x + pitch * c, y + pitch * r, radius, **outlined(colours(c, r), 1.2))
                   for r in range(rows) for c in range(columns))


def shelf():
    parts = [rect(310, 55, 322, 8, 3, **outlined(WOOD)), line(314, 57.5, 627, 57.5, tint(WOOD, .45), 1.3)]
    parts.append(open_book(366, 54, 84, 38, CORAL))
    for x, tall, wide, colour in ((424, 40, 12, SEA), (436, 44, 13, SUN), (449, 36, 11, LEAF), (460, 42, 14, PLUM)):
        parts.append(rect(x, 55 - tall, wide, tall, 1.5, **outlined(colour)))
        parts.append(rect(x + 1, 55 - tall + 7, wide - 2, 4, fill=tint(colour, .55)))
    parts.append(apple(496, 43, 10.5))
    parts.append(cubes(522, 40, 14, (CORAL, SUN, LEAF)) + cube(538, 24, 14, SEA))
    parts.append(group(pot(0, 0), x=600, y=54, scale=.62))
    return "".join(parts)


def long_multiplication():
    """Under the worked example that the page writes at (550, 351): its two lines of working and its result, digit by digit
    below its digits."""
    right, pitch, high = 580, 7, 9.4
    def written(text, y, colour=INK):
        return number(text, right - len(text) * pitch / 2, y, high, colour, pitch=pitch)
    return "".join([
        line(545, 384, 584, 384, INK, 1.6),
        written("2394", 393, SEA), written("17100", 406.5, PLUM), number("+", 546, 393.5, 8, INK),
        line(541, 415.5, 584, 415.5, INK, 1.6), written("19494", 424.5, shade(CORAL, .15)),
    ])


def added_and_tens():
    """Left, four rows of seven, where the line of the first reminder ends; right, four rods of ten."""
    parts = [array_of_counters(388, 243, 7, 4, 9, 3.7, lambda c, r: (CORAL, SUN, LEAF, SEA)[r])]
    for i, colour in enumerate((CORAL, SUN, LEAF, SEA)):
        x = 457 + 9.6 * i
        parts.append(rect(x, 222, 8, 74, 1.5, **outlined(colour, 1.3)))
        parts += [line(x + 1, 222 + 7.4 * n, x + 7, 222 + 7.4 * n, shade(colour, .45), 1) for n in range(1, 10)]
    return "".join(parts)


def turned():
    """Five rows of eight are eight rows of five."""
    def stripes(turn):
        return lambda c, r: (CORAL, SUN)[(c if turn else r) % 2]
    return (number("5×8", 146, 352, 15, INK) + array_of_counters(181, 338, 8, 5, 7, 2.9, stripes(False))
            + number("=", 250, 352, 13, INK)
            + array_of_counters(270, 326.5, 5, 8, 7, 2.9, stripes(True)) + number("8×5", 334, 352, 15, INK))


def product():
    """Where the line of the second reminder ends."""
    return (slate(585, 72, 51, 76, frame=5, radius=6) + number("6×7", 610.5, 95, 13, PAPER)
            + line(595, 107, 626, 107, tint(SLATE, .55), 1.4) + number("42", 610.5, 124, 17, SUN))


def result_of_eleven():
    """2, 8, 6 on cubes."""
    return "".join(cube(4 + 14 * i, 409, 13, colour) + number(digit, 10.5 + 14 * i, 415.5, 9.5, INK)
                   for i, (digit, colour) in enumerate((("2", SUN), ("8", tint(CORAL, .3)), ("6", SUN))))


NOTES = (
    (box(4, 57, 193, 87), LEAF), (box(301, 68, 281, 73), CORAL), (box(77, 262, 289, 57), PLUM), (box(497, 229, 141, 65), SUN),
    (box(53, 383, 482, 61), CORAL), (box(6, 452, 524, 22), TEAL),
    (box(43, 153, 222, 100), SEA), (box(270, 153, 349, 55), LEAF),
    # The worked example hangs from its text.
    ("M382 307H626a7 7 0 0 1 7 7V360a7 7 0 0 1 -7 7H594V431a7 7 0 0 1 -7 7H546a7 7 0 0 1 -7 -7V367H382"
     "a7 7 0 0 1 -7 -7V314a7 7 0 0 1 7 -7Z", PLUM),
)


def draw():
    return page("".join([
        seyes(), shelf(), fox.sitting(240, 147, .78), *(note(d, colour) for d, colour in NOTES),
        product(), added_and_tens(), turned(), long_multiplication(), result_of_eleven(),
        array_of_counters(12, 268, 8, 7, 8, 3.2, lambda c, r: (PLUM, SEA)[r % 2]), pencil(23, 251, 94, SUN, turn=-90),
    ]))
