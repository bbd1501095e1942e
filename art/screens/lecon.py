"""The reminders page: a sheet of notes, each text on its own calm place."""

from lib import fox
from lib.lettering import number
from lib.palette import CORAL, INK, LEAF, PAPER, PLUM, SEA, SKY, SLATE, SUN, TEAL, WOOD, mix, shade, tint
from lib.svg import circle, ellipse, group, line, outlined, page, path, rect, soft_shadow, stroke
from lib.things import abacus, book, card, counter, cubes, open_book, pencil, ruler, seyes, slate


def draw():
    parts = [seyes()]
    for x, y, w, h, colour in ((6, 57, 190, 86, TEAL), (302, 68, 280, 72, SEA), (43, 153, 222, 100, CORAL),
                               (267, 153, 352, 56, LEAF), (77, 262, 303, 58, PLUM), (498, 228, 139, 66, SUN),
                               (378, 307, 256, 60, SEA), (54, 384, 484, 60, CORAL), (7, 452, 523, 21, LEAF)):
        parts.append(card(x, y, w, h, tint(colour, .5), radius=7))
    return page("".join(parts))
