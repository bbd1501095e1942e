"""The exercises screen: six calm areas."""

from lib.palette import CORAL, INK, LEAF, PAPER, PLUM, SEA, SKY, SUN, TEAL, WOOD, tint
from lib.svg import page, rect
from lib.things import seyes


def draw():
    return page(seyes() + rect(6, 6, 628, 468, 12, fill=PAPER, stroke=SEA, stroke_width=2))
