"""A few SVG elements as text. Every drawn thing keeps one outline and one light, from the upper left."""

from lib.palette import INK

LINE = 1.7  # outline of everything that has one


def num(value):
    return f"{value:.2f}".rstrip("0").rstrip(".") if isinstance(value, float) else str(value)


def element(name, body=None, **attributes):
    text = "".join(f' {k.rstrip("_").replace("_", "-")}="{num(v)}"' for k, v in attributes.items() if v is not None)
    return f"<{name}{text}/>" if body is None else f"<{name}{text}>{body}</{name}>"


def group(*parts, x=0, y=0, scale=1, turn=0, flip=False, **attributes):
    moves = f"translate({num(x)} {num(y)})"
    if turn:
        moves += f" rotate({num(turn)})"
    if scale != 1 or flip:
        moves += f" scale({num(-scale if flip else scale)} {num(scale)})"
    return element("g", "\n".join(parts), transform=moves, **attributes)


def outlined(fill, width=LINE, ink=INK):
    return dict(fill=fill, stroke=ink, stroke_width=width, stroke_linejoin="round", stroke_linecap="round")


def path(d, **attributes):
    return element("path", d=d, **attributes)


def stroke(d, colour, width, **attributes):
    return path(d, fill="none", stroke=colour, stroke_width=width, stroke_linecap="round", stroke_linejoin="round",
                **attributes)


def rect(x, y, width, height, radius=0, **attributes):
    return element("rect", x=x, y=y, width=width, height=height, rx=radius or None, **attributes)


def circle(x, y, radius, **attributes):
    return element("circle", cx=x, cy=y, r=radius, **attributes)


def ellipse(x, y, rx, ry, **attributes):
    return element("ellipse", cx=x, cy=y, rx=rx, ry=ry, **attributes)


def line(x1, y1, x2, y2, colour, width=1.0, **attributes):
    return element("line", x1=x1, y1=y1, x2=x2, y2=y2, stroke=colour, stroke_width=width, **attributes)


def limb(d, colour, width, ink=INK, outline=LINE):
    """A thick rounded line with an outline: arms, legs, branches."""
    return stroke(d, ink, width + 2 * outline) + stroke(d, colour, width)


def soft_shadow(x, y, rx, ry=3.0):
    return ellipse(x, y, rx, ry, fill=INK, opacity=".14")


def page(body, width=640, height=480):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">\n{body}\n</svg>\n')
