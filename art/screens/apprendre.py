"""The learning screen: the table on its slate, four sheets for the exercises."""

from lib import fox
from lib.lettering import number, width_of
from lib.palette import CORAL, LEAF, PAPER, PLUM, SEA, SKY, SLATE, SUN, mix, tint
from lib.strip import PITCH, SMALL
from lib.svg import ellipse, line, outlined, page
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


def tray():
    """Small things on the line below the sheets."""
    return "".join([
        pencil(252, 460, 92, SUN, thick=8), stick(356, 461, 24), stick(386, 461, 18, tint(CORAL, .45)),
        cubes(416, 454.5, 10, (CORAL, SUN, LEAF)), *(counter(470 + 17 * i, 458, 5.5, c) for i, c in enumerate((SEA, PLUM, CORAL))),
    ])


def draw():
    sheets = [card(LEFT, top, WIDTH, height, colour, bar=5) for top, height, colour in PANELS]
    paws = [ellipse(x, 50, 8, 5.5, **outlined(fox.PAW)) for x in (32, 92)]
    return page("".join([
        seyes(top=46), fox.head(62, 34, .47, mood="right"), board(), *paws, *sheets,
        cubes(550, 21, 15, (CORAL, SUN, LEAF, SEA)), tray(),
    ]))
