"""The start screen: the garland of the tables, and a scene for each page that it opens."""

from lib import fox
from lib.lettering import number, sticker
from lib.palette import CORAL, INK, LEAF, PAPER, PLUM, SEA, SKY, SLATE, SUN, TABLES, TEAL, WOOD, mix, shade, tint
from lib.svg import circle, ellipse, group, line, outlined, page, path, rect, soft_shadow, stroke
from lib.things import abacus, apple, book, card, counter, cube, plate, pot, seyes, slate, tag

TAGS = [(2, 120, 60, 34), (3, 160, 88, 34), (4, 200, 116, 34), (5, 240, 144, 34), (6, 280, 172, 34), (7, 320, 200, 34),
        (8, 360, 228, 34), (9, 400, 200, 34), (10, 440, 172, 61), (11, 470, 110, 59), (12, 536, 60, 62)]
TAG_HEIGHT = 57
PROMPT_GROUND = "#FFFFFF"


def string():
    pins = [(x + width / 2, y + 4) for _, x, y, width in TAGS]
    way = "M93 26L" + "L".join(f"{x} {y}" for x, y in pins) + "L622 34"
    return "".join([stroke(way, shade(WOOD, .5), 2), circle(93, 26, 4, **outlined(tint(SLATE, .6))),
                    circle(622, 34, 4, **outlined(tint(SLATE, .6)))])


def tags():
    parts = []
    for table, x, y, width in TAGS:
        parts.append(tag(x, y, width, TAG_HEIGHT, TABLES[table]))
        parts.append(sticker(str(table), x + width / 2, y + 35, 37, "#FFFFFF", gap=7))
    return "".join(parts)


def temple():
    """Zone (4, 85) to (119, 253): a little temple by the sea, a table of squares between its columns."""
    marble, vein = "#FFFFFF", mix(SKY, SLATE, .25)
    parts = [
        '<clipPath id="cove"><rect x="6" y="112" width="111" height="138" rx="12"/></clipPath>',
        group(rect(4, 110, 115, 142, fill=tint(SKY, .35)), circle(61, 146, 10, fill=SUN),
              rect(4, 196, 115, 60, fill=SEA), path("M4 197C16 186 30 184 40 197ZM84 197C92 188 108 187 120 197Z", fill=tint(LEAF, .25)),
              stroke("M10 206h10M92 204h12M100 212h10M14 215h8", tint(SEA, .5), 1.6),
              path("M4 232C30 220 90 220 119 232V254H4Z", fill=tint(LEAF, .3)), clip_path="url(#cove)"),
    ]
    parts.append(path("M61 91L112 118H10Z", **outlined(marble)))
    parts.append(path("M61 97L92 114.500H30Z", **outlined(tint(CORAL, .25), 1.4)))
    parts.append(rect(13, 118, 96, 9, 1, **outlined(marble)))
    parts.append(stroke("M17 122.500H105", vein, 1.4))
    for x in (18, 88):
        parts.append(rect(x, 134, 16, 96, **outlined(marble)))
        parts += [line(x + dx, 137, x + dx, 228, vein, 1.3) for dx in (4.5, 8, 11.5)]
        parts.append(rect(x - 4, 127, 24, 8, 4, **outlined(marble)))
        parts.append(rect(x - 3, 228, 22, 6, 2, **outlined(marble)))
    parts.append(rect(8, 234, 106, 7, 1.5, **outlined(marble)) + rect(5, 241, 112, 9, 1.5, **outlined(marble)))
    size, left, top = 10, 41, 166
    parts.append(rect(left - 3, top - 3, 4 * size + 6, 4 * size + 6, 3, **outlined(PAPER)))
    for i in range(4):
        for j in range(4):
            colour = SUN if i == 2 and j == 2 else tint(SEA, .45) if i == 2 or j == 2 else tint(SKY, .55)
            if i > 2 or j > 2:
                colour = tint(SKY, .55)
            parts.append(rect(left + j * size + 1, top + i * size + 1, size - 2, size - 2, 1.5, fill=colour))
    return "".join(parts)


def easel():
    """Zone (529, 121) to (617, 279): a slate on its easel, four rows of three counters."""
    leg = shade(WOOD, .08)
    parts = [soft_shadow(573, 274, 40, 4)]
    for d in ("M573 130L573 262", "M552 150L538 274", "M594 150L608 274"):
        parts.append(stroke(d, INK, 7.4) + stroke(d, leg, 4))
    parts.append(slate(532, 140, 82, 104, frame=7))
    parts.append(rect(530, 243, 86, 7, 3, **outlined(WOOD)))
    for row in range(4):
        for column in range(3):
            parts.append(counter(554 + 19 * column, 159 + 17 * row, 6.2, (CORAL, SUN, LEAF, SEA)[row]))
    parts.append(number("4×3", 573, 227.5, 13, tint(PAPER, .3)))
    parts.append(rect(563, 123, 20, 8, 3, **outlined(WOOD)))
    return "".join(parts)


def workshop():
    """Zone (233, 308) to (552, 463): abacus, slate, pencils and cubes on their shelf."""
    parts = [rect(236, 441, 313, 13, 5, **outlined(WOOD)), stroke("M242 444.500H542", tint(WOOD, .45), 1.6)]
    rows = [(CORAL, 3, 5), (SUN, 6, 2), (LEAF, 4, 4), (SEA, 7, 1), (PLUM, 2, 6)]
    parts.append(abacus(247, 318, 104, 120, rows, bead=6.2))
    parts.append(slate(366, 346, 84, 94, frame=7))
    parts.append(number("6×7", 408, 377, 20, "#FFFFFF") + number("=", 390, 410, 20, "#FFFFFF"))
    parts.append(stroke("M405 418H429", SUN, 2.8, stroke_dasharray=".1 6"))
    parts.append(pot(474, 441))
    for i, colours in enumerate(((LEAF, CORAL, SUN), (SEA, PLUM), (TEAL,))):
        for j, colour in enumerate(colours):
            parts.append(cube(495 + 16.5 * j + 8.2 * i, 423 - 17.5 * i, 16, colour))
    return "".join(parts)


def report():
    """Zone (32, 291) to (232, 363): a desk calendar, calm where time and date stand."""
    parts = [card(34, 299, 196, 62, SEA, radius=8)]
    parts.append(path("M34 308a8 8 0 0 1 8 -8H222a8 8 0 0 1 8 8V310H34Z", fill=SEA))
    for x in range(52, 222, 20):
        parts.append(circle(x, 305, 3, fill=shade(SEA, .4)) + stroke(f"M{x} 305V294.500", INK, 4.4)
                     + stroke(f"M{x} 305V294.500", tint(SLATE, .7), 1.8))
    for i, colour in enumerate((CORAL, SUN, LEAF, SEA, PLUM, TEAL, CORAL, SUN, LEAF, SEA, PLUM)):
        tall = (5, 9, 7, 11, 6, 10, 8, 11, 7, 9, 10)[i]
        parts.append(rect(51 + 15.2 * i, 359 - tall, 10, tall, 1.5, fill=colour))
    return "".join(parts)


def prompter():
    """The fox holds the sign on which the prompt line stands."""
    return "".join([
        fox.sitting(355, 163, .92, tail_side="", shadow=False),
        rect(243.5, 136.5, 224, 44, 11, fill=INK, opacity=".10"),
        rect(242, 123, 228, 55, 11, **outlined(PROMPT_GROUND)),
        ellipse(311, 124, 8.5, 6.5, **outlined(fox.PAW)), ellipse(399, 124, 8.5, 6.5, **outlined(fox.PAW)),
    ])


def shelf_of_books():
    """Lower left corner, outside every zone."""
    parts = [soft_shadow(112, 472, 112, 4)]
    parts += [book(16, 455, 124, 17, SEA), book(24, 439, 108, 16, CORAL), book(20, 424, 96, 15, LEAF)]
    parts += [apple(163, 460, 12), counter(194, 465, 8, SUN), counter(213, 463, 8, TEAL)]
    return "".join(parts)


def draw():
    labels = ((1, 67, 116, 20), (518, 280, 106, 19), (55, 381, 110, 22), (300, 461, 145, 18))
    return page("".join([
        seyes(),
        "".join(plate(*box) for box in labels),
        temple(), easel(), report(), workshop(), shelf_of_books(), string(), prompter(), tags(),
    ]))
