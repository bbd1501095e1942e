"""The guide: a young fox with a blue scarf, met on every screen."""

from lib.palette import CORAL, FOX, INK, LEAF, PAPER, SEA, SKY, mix, shade, tint
from lib.svg import LINE, circle, ellipse, group, limb, outlined, path, stroke

FUR, SNOW = FOX, mix(PAPER, "#FFFFFF", .5)
PAW = mix(FOX, INK, .72)


def ear(flip, width):
    return group(path("M14 -30C18 -46 28 -60 38 -66C44 -52 48 -34 46 -12Z", **outlined(FUR, width)),
                 path("M24 -34C28 -46 33 -52 36 -55C39 -46 41 -36 40 -24Z", fill=PAW), flip=flip)


def eye(x, mood):
    if mood == "happy":  # closed, smiling
        return stroke(f"M{x - 6} 3Q{x} -6 {x + 6} 3", INK, 3)
    look = {"left": -1.5, "right": 1.5}.get(mood, 0)
    return (ellipse(x + look, 0, 5.4, 7, fill=INK) + circle(x + look - 1.7, -2.6, 2, fill="#FFFFFF")
            + circle(x + look + 1.8, 3, 1, fill="#FFFFFF"))


def head(x, y, scale=1.0, turn=0, mood="open", hat=""):
    """About 104 wide and 112 high at scale 1, centred between the eyes."""
    face = "M0 -40C28 -40 46 -26 50 -2C52 6 57 12 60 16C48 34 22 46 0 46C-22 46 -48 34 -60 16C-57 12 -52 6 -50 -2C-46 -26 -28 -40 0 -40Z"
    return group(
        ear(True, LINE / scale), ear(False, LINE / scale),
        path(face, **outlined(FUR, LINE / scale)),
        path("M0 46C-22 46 -48 34 -60 16C-44 12 -30 8 -19 14C-10 19 -8 26 0 26C8 26 10 19 19 14C30 8 44 12 60 16C48 34 22 46 0 46Z",
             **outlined(SNOW, 1.2 / scale)),
        path("M-5 -38Q0 -14 5 -38Q0 -41 -5 -38Z", fill=shade(FUR, .2)),
        path("M30 -29C40 -22 45 -13 46.5 -3C40 -12 34 -20 24 -26Z", fill=shade(FUR, .14)),
        stroke("M-31 -24C-38 -18 -42 -11 -43.500 -4", tint(FUR, .45), 3),
        eye(-21, mood), eye(21, mood),
        ellipse(-37, 18, 7, 4.500, fill=tint(CORAL, .35)), ellipse(37, 18, 7, 4.500, fill=tint(CORAL, .35)),
        path("M-7.500 21Q0 16.500 7.500 21Q6 28.500 0 29.500Q-6 28.500 -7.500 21Z", fill=INK),
        ellipse(-2.400, 21.600, 2, 1.2, fill=tint(INK, .6)),
        stroke("M0 29V33M-10 33Q-5 39.500 0 33.500Q5 39.500 10 33", INK, 2.2),
        hat, x=x, y=y, scale=scale, turn=turn)


def scarf(x=0, y=0, scale=1.0, colour=SEA):
    return group(
        path("M3 8L5 37H16L17 6Z", **outlined(shade(colour, .12))),
        path("M-27 -6Q0 10 27 -6Q32 0 28 8Q0 22 -28 8Q-32 0 -27 -6Z", **outlined(colour)),
        stroke("M-22 0Q0 12 22 0", tint(colour, .4), 2),
        stroke("M6 30H15", tint(colour, .5), 2), x=x, y=y, scale=scale)


def tail(x, y, scale=1.0, flip=False, turn=0):
    """From its root (x, y), up and to the right."""
    return group(
        path("M0 0C22 10 50 4 56 -22C60 -40 52 -58 40 -66C44 -50 36 -42 24 -36C8 -28 -4 -16 0 0Z", **outlined(FUR)),
        path("M56 -32C56 -46 50 -60 40 -66C44 -52 38 -44 28 -38C36 -40 40 -34 44 -38C48 -34 52 -36 56 -32Z", **outlined(SNOW)),
        stroke("M12 -4C28 0 42 -6 47 -20", shade(FUR, .18), 3.5), x=x, y=y, scale=scale, flip=flip, turn=turn)


def arm(d, hand):
    x, y = hand
    return limb(d, FUR, 11) + circle(x, y, 8, **outlined(PAW))


def sitting(x, y, scale=1.0, mood="open", left=None, right=None, hat="", turn=0, tail_side="right",
            drape="", shadow=True):
    """Facing us, sitting; (x, y) is the ground under it. Arms are (path, hand), drawn over the body; 160 high at scale 1."""
    left = left or arm("M-24 -58C-32 -44 -28 -34 -14 -32", (-12, -32))
    right = right or arm("M24 -58C32 -44 28 -34 14 -32", (12, -32))
    return group(
        ellipse(6, -1, 54, 6, fill=INK, opacity=".14") if shadow else "",
        {"right": tail(16, -10), "left": tail(-16, -10, flip=True), "": ""}[tail_side],
        path("M-22 -72C-36 -52 -42 -24 -36 -4H36C42 -24 36 -52 22 -72Z", **outlined(FUR)),
        path("M-12 -66C-22 -44 -24 -20 -16 -4H16C24 -20 22 -44 12 -66Z", fill=SNOW),
        path("M30 -52C38 -34 39 -18 35 -5L27 -5C33 -22 33 -36 30 -52Z", fill=shade(FUR, .16)),
        drape,
        group(ellipse(-25, -6, 15, 8, **outlined(PAW)), ellipse(25, -6, 15, 8, **outlined(PAW))),
        "" if drape else scarf(0, -76, .98),
        left, right,
        head(0, -112, .82, turn, mood, hat), x=x, y=y, scale=scale)


def laurel():
    """Worn between the ears, as the Greeks did."""
    leaves = stroke("M-45 -16C-34 -34 -16 -41 -5 -41M45 -16C34 -34 16 -41 5 -41", shade(LEAF, .3), 2.4)
    for side in (1, -1):
        for i, (lx, ly, angle) in enumerate(((9, -41, -20), (20, -38, 0), (30, -31, 18), (38, -23, 38))):
            for lean in (-38, 38):
                leaves += group(group(path("M0 0C3 -6 11 -7 16 -3C12 4 5 5 0 0Z", **outlined(tint(LEAF, .2 * (i % 2)), 1.8)),
                                      turn=angle - 180 + lean), x=side * lx, y=ly, flip=side < 0)
    return leaves


def toga():
    """For sitting(): worn over the left shoulder."""
    return (path("M-25 -74C-38 -52 -43 -24 -38 -2H38C43 -24 37 -50 25 -70C18 -62 8 -60 2 -62Z", **outlined(SNOW))
            + path("M-25 -74C-34 -60 -38 -46 -40 -32C-20 -36 10 -46 25 -70C18 -62 8 -60 2 -62Z",
                   **outlined(tint(SEA, .72)))
            + stroke("M-30 -58C-12 -56 4 -58 14 -64M-36 -44C-14 -45 8 -52 20 -64", tint(SEA, .3), 1.8)
            + stroke("M-18 -34C-20 -22 -20 -14 -18 -8M4 -40C6 -28 6 -16 3 -8M22 -52C28 -36 28 -24 26 -12", mix(SKY, SEA, .3), 1.8)
            + stroke("M-36 -9H36", SEA, 3))
