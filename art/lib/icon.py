"""The program's icon: the fox and the sign of multiplication; only the fox when it is small."""

from lib import fox
from lib.lettering import sticker
from lib.palette import INK, SEA, SUN, tint
from lib.svg import page, rect


def draw(size):
    """As SVG in a box of 64, for a picture `size` pixels wide."""
    plain = size < 48
    ground = rect(2, 2, 60, 60, 14, fill=tint(SEA, .12), stroke=INK, stroke_width=2.4)
    shine = rect(5.5, 5.5, 53, 53, 11, fill="none", stroke=tint(SEA, .5), stroke_width=1.6)
    if plain:
        drawn = ground + fox.head(32, 38, .5)
    else:
        drawn = ground + shine + fox.head(32, 38, .46) + sticker("×", 32, 13, 17, SUN, outline=1.6)
    return page(drawn, size, size).replace(f'viewBox="0 0 {size} {size}"', 'viewBox="0 0 64 64"')
