"""The twelve colours of the program, and their tints."""

INK = "#2E3550"    # outlines, numbers printed on paper
PAPER = "#FFFDF6"  # the ground of every text
SKY = "#A9D3EE"    # rulings, air
SLATE = "#34424E"  # slates
WOOD = "#D9A066"   # frames, beads' rails, rulers
CORAL = "#E8614F"  # margin line, roofs, hearts
SUN = "#F6C445"
LEAF = "#6BB36A"
SEA = "#3E8FC4"
PLUM = "#9A6FB8"
TEAL = "#3FB0A6"
FOX = "#F0893A"

# The colour of each table, 2 to 12, wherever a table shows as a number.
TABLES = dict(zip(range(2, 13), [CORAL, SUN, LEAF, SEA, PLUM, TEAL, FOX, LEAF, SEA, CORAL, PLUM]))


def mix(colour, other, share):
    """colour with `share` (0..1) of `other` in it."""
    a = [int(colour[i:i + 2], 16) for i in (1, 3, 5)]
    b = [int(other[i:i + 2], 16) for i in (1, 3, 5)]
    return "#" + "".join(f"{round(x + (y - x) * share):02X}" for x, y in zip(a, b))


def tint(colour, share):
    return mix(colour, "#FFFFFF", share)


def shade(colour, share):
    return mix(colour, INK, share)
