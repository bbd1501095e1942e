"""Paper, slates and the things of a classroom."""

from lib.palette import CORAL, FOX, INK, LEAF, PAPER, PLUM, SEA, SKY, SLATE, SUN, TEAL, WOOD, mix, shade, tint
from lib.svg import LINE, circle, ellipse, group, line, num, outlined, path, rect, soft_shadow, stroke

BRIGHT = (CORAL, SUN, LEAF, SEA, PLUM, TEAL, FOX)


def seyes(top=0):
    """Exercise-book paper: squares of 24 pixels, three fine lines in each, the margin line; blank above the top."""
    fine, bold = mix(PAPER, SKY, .16), mix(PAPER, SKY, .38)
    parts = [rect(0, 0, 640, 480, fill=PAPER)]
    parts += [line(0, y + .5, 640, y + .5, fine) for y in range(6, 480, 6) if y % 24 and y > top]
    parts += [line(x + .5, top, x + .5, 480, bold) for x in range(24, 640, 24)]
    parts += [line(0, y + .5, 640, y + .5, bold) for y in range(24, 480, 24) if y > top]
    parts.append(line(48.5, 0, 48.5, 480, mix(PAPER, CORAL, .5), 1.6))
    return "".join(parts)


def card(x, y, width, height, colour, radius=9, fill=PAPER, bar=0):
    """A sheet with a coloured border; `bar` thickens it on the left."""
    parts = [rect(x + 1.5, y + 2.5, width, height, radius, fill=INK, opacity=".10"),
             rect(x + 1, y + 1, width - 2, height - 2, radius, fill=fill, stroke=colour, stroke_width=2)]
    if bar:
        parts.append(path(f"M{num(x + radius)} {y}H{num(x + bar)}V{num(y + height)}H{num(x + radius)}"
                          f"A{radius} {radius} 0 0 1 {x} {num(y + height - radius)}V{num(y + radius)}"
                          f"A{radius} {radius} 0 0 1 {num(x + radius)} {y}Z", fill=colour))
    return "".join(parts)


def slate(x, y, width, height, frame=9, radius=9):
    """A slate in its wooden frame."""
    f = frame
    return "".join([
        rect(x + 2, y + 3, width, height, radius, fill=INK, opacity=".16"),
        rect(x + .8, y + .8, width - 1.6, height - 1.6, radius, **outlined(WOOD)),
        stroke(f"M{x + 3} {y + height - radius}V{y + radius}Q{x + 3} {y + 3} {x + radius} {y + 3}H{x + width - radius}",
               tint(WOOD, .45), 1.6),
        stroke(f"M{x + radius} {y + height - 3.2}H{x + width - radius}Q{x + width - 3} {y + height - 3} "
               f"{x + width - 3} {y + height - radius}V{y + radius}", shade(WOOD, .3), 1.6),
        rect(x + f, y + f, width - 2 * f, height - 2 * f, radius / 2, **outlined(SLATE)),
    ])


def cube(x, y, size, colour):
    """A wooden cube; (x, y) is its front face's upper left corner."""
    d = size * .34
    return "".join([
        path(f"M{num(x)} {num(y)}L{num(x + d)} {num(y - d)}H{num(x + size + d)}V{num(y + size - d)}"
             f"L{num(x + size)} {num(y + size)}Z", **outlined(shade(colour, .25))),
        path(f"M{num(x)} {num(y)}L{num(x + d)} {num(y - d)}H{num(x + size + d)}L{num(x + size)} {num(y)}Z",
             **outlined(tint(colour, .45))),
        rect(x, y, size, size, 1.2, **outlined(colour)),
        stroke(f"M{num(x + 3)} {num(y + size - 4)}V{num(y + 3)}H{num(x + size - 5)}", tint(colour, .4), 1.4),
    ])


def cubes(x, y, size, colours, pitch=None):
    """A row of cubes standing side by side."""
    pitch = pitch or size
    return "".join(cube(x + i * pitch, y, size, c) for i, c in enumerate(colours))


def counter(x, y, radius, colour):
    """A flat round counter."""
    return (ellipse(x, y + radius * .22, radius, radius, **outlined(shade(colour, .3)))
            + circle(x, y, radius, **outlined(colour))
            + circle(x, y, radius * .58, fill="none", stroke=tint(colour, .45), stroke_width=1.4))


def abacus(x, y, width, height, rows, bead=6.5, posts=6):
    """rows: for each rail, (colour, beads pushed left, beads pushed right)."""
    parts = [soft_shadow(x + width / 2, y + height + 3, width * .56, 4)]
    gap = (height - 14) / len(rows)
    for i, (colour, left, right) in enumerate(rows):
        ry = y + 7 + gap * (i + .5)
        parts.append(line(x + 3, ry, x + width - 3, ry, shade(WOOD, .55), 1.6))
        for n in range(left):
            parts.append(bead_on(x + posts + bead + n * bead * 1.72, ry, bead, colour))
        for n in range(right):
            parts.append(bead_on(x + width - posts - bead - n * bead * 1.72, ry, bead, colour))
    for px in (x, x + width - posts):
        parts.append(rect(px, y + 1, posts, height, 2.5, **outlined(WOOD)))
        parts.append(stroke(f"M{num(px + 2)} {y + 5}V{y + height - 3}", tint(WOOD, .45), 1.3))
    for py, extra in ((y, 4), (y + height - 6, 7)):
        parts.append(rect(x - extra, py, width + 2 * extra, 7, 3, **outlined(WOOD)))
        parts.append(stroke(f"M{num(x - extra + 3)} {num(py + 2.2)}H{num(x + width + extra - 4)}", tint(WOOD, .45), 1.3))
    return "".join(parts)


def bead_on(x, y, radius, colour):
    return (ellipse(x, y, radius * .86, radius, **outlined(colour, 1.4))
            + path(f"M{num(x + radius * .5)} {num(y - radius * .3)}Q{num(x + radius * .55)} {num(y + radius * .65)} "
                   f"{num(x - radius * .2)} {num(y + radius * .78)}Q{num(x + radius * .4)} {num(y + radius * .3)} "
                   f"{num(x + radius * .5)} {num(y - radius * .3)}Z", fill=shade(colour, .3))
            + ellipse(x - radius * .28, y - radius * .42, radius * .2, radius * .15, fill=tint(colour, .7)))


def pencil(x, y, length, colour, turn=0, thick=9):
    """Point at (x, y), lying towards the right before it is turned."""
    t = thick / 2
    return group(
        path(f"M0 0L{num(t * 2.6)} {num(-t)}V{num(t)}Z", **outlined(tint(WOOD, .45))),
        path(f"M0 0L{num(t)} {num(-t * .4)}V{num(t * .4)}Z", fill=INK),
        rect(t * 2.6, -t, length - t * 5.4, thick, **outlined(colour)),
        rect(t * 2.6 + .8, t * .25, length - t * 5.4 - 1.6, t * .65, fill=shade(colour, .25)),
        line(t * 2.6 + 2, -t * .45, length - t * 2.8 - 2, -t * .45, tint(colour, .5), 1.3),
        rect(length - t * 2.8, -t, t * 1.0, thick, **outlined(tint(SLATE, .65))),
        path(f"M{num(length - t * 1.8)} {num(-t)}H{num(length - t)}Q{num(length)} {num(-t)} {num(length)} 0"
             f"Q{num(length)} {num(t)} {num(length - t)} {num(t)}H{num(length - t * 1.8)}Z", **outlined(tint(CORAL, .35))),
        x=x, y=y, turn=turn)


def stick(x, y, length, colour=PAPER, turn=0, thick=6):
    """A piece of chalk."""
    return group(rect(0, -thick / 2, length, thick, thick / 2.4, **outlined(colour, 1.4)),
                 line(3, thick * .22, length - 3, thick * .22, shade(colour, .18), 1.4), x=x, y=y, turn=turn)


def book(x, y, width, height, colour):
    """A closed book lying flat, its back towards us."""
    return "".join([
        rect(x, y, width, height, 2.5, **outlined(colour)),
        line(x + 3, y + height * .3, x + width - 3, y + height * .3, tint(colour, .45), 1.4),
        rect(x + width * .14, y + 1, width * .07, height - 2, fill=tint(colour, .6)),
        rect(x + width * .79, y + 1, width * .07, height - 2, fill=tint(colour, .6)),
    ])


def open_book(x, y, width, height, colour):
    """Standing open towards us, lines on its pages; (x, y) is the middle of its lower edge."""
    w, h = width / 2, height
    def side(flip):
        rules = "".join(stroke(f"M6 {y}Q{num(w * .5)} {y - 5} {num(w - 7)} {y - 1}", mix(PAPER, SEA, .5), 1.2)
                        for y in range(11 - h, -3, 7))
        return group(path(f"M0 2Q{num(w * .5)} -7 {num(w + 4)} 0V{num(-h + 3)}Q{num(w * .5)} {num(-h - 4)} 0 {num(-h + 5)}Z",
                          **outlined(colour)),
                     path(f"M0 -2Q{num(w * .5)} -10 {num(w)} -4V{num(-h)}Q{num(w * .5)} {num(-h - 6)} 0 {num(-h + 3)}Z",
                          **outlined(PAPER)), rules, flip=flip)
    return group(side(False), side(True), x=x, y=y)


def tag(x, y, width, height, colour):
    """A card pegged on a string; it fills its box."""
    peg = shade(WOOD, .1)
    middle = x + width / 2
    return "".join([
        rect(x + 1, y + 8, width - 2, height - 9, 6, **outlined(colour)),
        path(f"M{num(x + width - 3.2)} {y + 16}V{num(y + height - 8)}Q{num(x + width - 3.4)} {num(y + height - 3.2)} "
             f"{num(x + width - 8)} {num(y + height - 3.2)}H{x + 9}", fill="none", stroke=shade(colour, .3), stroke_width=2.2,
             stroke_linecap="round"),
        stroke(f"M{x + 4.2} {num(y + height - 14)}V{y + 14.5}Q{x + 4.5} {y + 11.2} {x + 8} {y + 11.2}H{num(x + width - 11)}",
               tint(colour, .5), 1.6),
        rect(middle - 3.4, y + 1, 6.8, 14, 2, **outlined(tint(peg, .15), 1.5)),
        line(middle, y + 3, middle, y + 13, shade(peg, .35), 1),
        line(middle - 3, y + 7.5, middle + 3, y + 7.5, tint(SLATE, .35), 1.8),
    ])


def cloud(x, y, scale=1.0):
    return group(path("M-22 8C-32 8 -33 -5 -23 -6C-22 -16 -8 -19 -3 -11C4 -18 17 -14 17 -5C28 -6 30 8 20 8Z",
                      fill="#FFFFFF", stroke=mix(SKY, SEA, .35), stroke_width=1.4, stroke_linejoin="round"), x=x, y=y, scale=scale)


def plate(x, y, width, height):
    """A small white label, like those on exercise books."""
    return rect(x + .7, y + .7, width - 1.4, height - 1.4, 6, fill="#FFFFFF", stroke=mix(SKY, SEA, .25), stroke_width=1.4)


def apple(x, y, radius):
    width = LINE * 10 / radius
    return group(
        path("M0 -6C7 -12 13.5 -4 11 3C9 11 4 12 0 10C-4 12 -9 11 -11 3C-13.5 -4 -7 -12 0 -6Z", **outlined(CORAL, width)),
        path("M9.5 -2.5C10.5 5 6 9.5 1 8.5C5 6 8 3 9.5 -2.5Z", fill=shade(CORAL, .25)),
        ellipse(-5, -2, 2, 3, fill=tint(CORAL, .55)),
        stroke("M0 -5.5Q-1 -11 2 -14", shade(WOOD, .6), 2),
        path("M1 -10Q3 -17 11 -14Q8 -8 1 -10Z", **outlined(LEAF, width)), x=x, y=y, scale=radius / 10)


def pot(x, y, colour=TEAL):
    """A pot of pencils; (x, y) is the middle of its foot."""
    return "".join([
        pencil(x - 12, y - 74, 60, SUN, turn=80, thick=7), pencil(x + 13, y - 70, 60, CORAL, turn=102, thick=7),
        pencil(x + 1, y - 82, 60, SEA, turn=91, thick=7),
        path(f"M{x - 15} {y - 36}H{x + 15}L{x + 12.5} {y}H{x - 12.5}Z", **outlined(colour)),
        path(f"M{x + 7} {y - 32}H{x + 13}L{x + 11} {y - 1.5}H{x + 6}Z", fill=shade(colour, .22)),
        stroke(f"M{x - 11} {y - 32}L{x - 9.5} {y - 5}", tint(colour, .5), 1.8),
        rect(x - 16.5, y - 40, 33, 7, 3, **outlined(tint(colour, .2))),
    ])


def bunting(width, y, count=16):
    """Little flags on a string along the top."""
    step = width / count
    parts = [stroke(f"M-4 {y}" + "".join(f"Q{num(step * (i + .5))} {y + 8} {num(step * (i + 1))} {y}" for i in range(count)),
                    shade(WOOD, .5), 1.8)]
    for i in range(count):
        x, colour = step * (i + .5), BRIGHT[i % len(BRIGHT)]
        parts.append(group(path("M-11 2.6Q0 5 11 2.6L0 27Z", **outlined(colour)),
                           path("M3 4.5L9.3 4L.3 24Z", fill=shade(colour, .18)), x=x, y=y))
    return "".join(parts)


def star(x, y, radius, colour, turn=0):
    points = ("0 -10 2.9 -4 9.5 -3.1 4.7 1.5 5.9 8.1 0 5 -5.9 8.1 -4.7 1.5 -9.5 -3.1 -2.9 -4")
    return group(f'<polygon points="{points}" fill="{colour}" stroke="{INK}" stroke-width="{num(LINE * 10 / radius)}" '
                 'stroke-linejoin="round"/>', x=x, y=y, scale=radius / 10, turn=turn)
