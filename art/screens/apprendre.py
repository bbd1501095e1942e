"""The learning screen: the table on its slate, four sheets for the exercises."""

from lib import fox
from lib.lettering import number, width_of
from lib.palette import CORAL, LEAF, PAPER, PLUM, SEA, SKY, SLATE, SUN, WOOD, mix, tint
from lib.strip import PITCH, SMALL
from lib.svg import ellipse, line, outlined, page, rect
from lib.things import card, counter, cubes, pencil, seyes, slate, stick

ROW_TOP, ROW_PITCH, ROW_HEIGHT = 56, 31, 25
LAST_ROW_MIDDLE = 430
PANELS = ((46, 91, CORAL), (141, 118, SEA), (263, 91, LEAF), (358, 91, PLUM))  # top, height, colour
LEFT, WIDTH = 236, 396


def board():
    pale, sign = tint(SKY, .25), mix(SLATE, PAPER, .62)
    parts = [slate(8, 46, 220, 428, frame=8)]
    for k in range(1, 13):
        middle = ROW_TOP + ROW_PITCH * (k - 1) + ROW_HEIGHT / 2 if k < 12 else LAST_ROW_MIDDLE
        text = str(k)
        width = width_of(text[-1], SMALL)
        if len(text) == 1:
            parts.append(number(text, 50 - width / 2, middle, SMALL, pale))
        else:
            parts.append(number(text, 50 - width / 2 - PITCH / 2 + 1, middle, SMALL, pale, pitch=PITCH - 2))
        parts.append(number("×", 63, middle, 19, sign) + number("=", 147, middle, 19, sign))
        if k < 12:
            edge = middle + ROW_PITCH / 2 if k < 11 else 396.5
            parts.append(line(18, edge, 218, edge, tint(SLATE, .14), 1))
    return "".join(parts)


def title():
    return (card(112, 5, 416, 35, SUN, radius=12, fill="#FFFFFF"))


def draw():
    parts = [seyes()]
    parts += [fox.head(62, 34, .47, mood="right"), board(),
              ellipse(32, 50, 8, 5.5, **outlined(fox.PAW)), ellipse(92, 50, 8, 5.5, **outlined(fox.PAW))]
    parts.append(title())
    parts += [card(LEFT, top, WIDTH, height, colour, bar=9) for top, height, colour in PANELS]
    parts.append(cubes(550, 21, 15, (CORAL, SUN, LEAF, SEA)))
    parts.append(rect(236, 472, 304, 7, 3, **outlined(WOOD)) + line(240, 474.3, 535, 474.3, tint(WOOD, .45), 1.3))
    parts.append(pencil(244, 466.5, 104, SUN) + stick(362, 468, 26) + stick(394, 468, 20, tint(CORAL, .45)))
    parts += [counter(434 + 22 * i, 463, 8, c) for i, c in enumerate((CORAL, SUN, LEAF, SEA, PLUM))]
    return page("".join(parts))
