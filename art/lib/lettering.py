"""The one lettering: rounded digits and signs, drawn with a thick round pen.

Each sign is the pen's path in a box `width` wide and 80 high; the pen is PEN wide, so that a digit stands 80 + PEN high.
"""

from lib.palette import INK, mix, tint
from lib.svg import group, stroke

PEN = 19
GAP = 9  # between two digits, pen edge to pen edge

SIGNS = {
    "0": (44, "M22 0C36 0 44 15 44 40C44 65 36 80 22 80C8 80 0 65 0 40C0 15 8 0 22 0Z"),
    "1": (19, "M0 17L19 0L19 80"),
    "2": (43, "M1 20C2 7 11 0 22 0C34 0 42 9 42 21C42 37 28 50 1 80L43 80"),
    "3": (42, "M2 11C6 4 13 0 21 0C33 0 40 8 40 19C40 30 32 37 17 37C33 37 42 45 42 58C42 72 33 80 20 80C11 80 4 76 0 69"),
    "4": (45, "M33 80L33 0L0 56L45 56"),
    "5": (42, "M38 0L8 0L4 37C9 32 15 30 21 30C34 30 42 40 42 55C42 70 33 80 20 80C11 80 4 76 0 70"),
    "6": (44, "M34 1C16 10 0 29 0 55C0 70 9 80 22 80C35 80 44 70 44 56C44 42 35 33 23 33C12 33 3 41 0 54"),
    "7": (41, "M0 0L41 0C27 24 17 51 14 80"),
    "8": (42, "M21 37C10 37 3 29 3 18.500C3 8 10 0 21 0C32 0 39 8 39 18.500C39 29 32 37 21 37C8 37 0 46 0 58.500C0 71 8 80 21 80"
              "C34 80 42 71 42 58.500C42 46 34 37 21 37Z"),
    "9": (44, "M10 79C28 70 44 51 44 25C44 10 35 0 22 0C9 0 0 10 0 24C0 38 9 47 21 47C32 47 41 39 44 26"),
    "×": (36, "M0 24L36 60M36 24L0 60"),
    "=": (36, "M0 30L36 30M0 56L36 56"),
    "+": (40, "M20 22L20 62M0 42L40 42"),
    "-": (36, "M0 42L36 42"),
}


def width_of(text, height, pen=PEN, squeeze=1.0, gap=GAP):
    unit = height / (80 + pen)
    return unit * squeeze * (sum(SIGNS[c][0] + pen for c in text) + gap * (len(text) - 1))


def strokes(text, x, y, height, pens, pen=PEN, squeeze=1.0, gap=GAP, pitch=None, turn=0):
    """The text centred on (x, y), drawn once with each (colour, extra width in pixels, attributes) of `pens`."""
    unit = height / (80 + pen)
    drawn = []
    left = -width_of(text, height, pen, squeeze, gap) / 2
    for index, sign in enumerate(text):
        width, d = SIGNS[sign]
        if pitch:
            left = (index - (len(text) - 1) / 2) * pitch - (width + pen) * unit * squeeze / 2
        drawn.append((left + pen * unit * squeeze / 2, d))
        left += (width + pen + gap) * unit * squeeze
    layers = []
    for colour, extra, attributes in pens:
        for at, d in drawn:
            layers.append(f'<g transform="translate({at:.3f} {-40 * unit:.3f}) scale({unit * squeeze:.4f} {unit:.4f})">'
                          + stroke(d, colour, round(pen + extra / unit, 3), **attributes) + "</g>")
    return group(*layers, x=x, y=y, turn=turn)


def number(text, x, y, height, colour, **options):
    """Plain, for grids and rows."""
    return strokes(str(text), x, y, height, [(colour, 0, {})], **options)


def sticker(text, x, y, height, colour, edge=INK, outline=2.0, **options):
    """With an outline and a light, for numbers that invite a click."""
    height -= 2 * outline
    unit_pen = PEN * height / (80 + PEN)
    return strokes(str(text), x, y, height,
                   [(edge, 2 * outline, {}), (mix(colour, INK, .14), 0, {}),
                    (colour, -unit_pen * .3, {"transform": "translate(-1.5 -2)"}),
                    (tint(colour, .7), -unit_pen * .82, {"transform": "translate(-4 -4)", "opacity": ".8"})], **options)


def chalk(text, x, y, height, colour, **options):
    """Large, as written on a slate: the pen pressed harder in its middle."""
    unit_pen = PEN * height / (80 + PEN)
    return strokes(str(text), x, y, height,
                   [(colour, 0, {}), (tint(colour, .45), -unit_pen * .55, {"transform": "translate(-1 -1)"})], **options)
