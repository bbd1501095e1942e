"""Turns the screens, the strip and the icon into pictures. Same sources, same bytes."""

import importlib
import struct
import subprocess
import sys
import zlib
from pathlib import Path

from lib import icon, strip

SCREENS = {"11": "apprendre", "12": "bilan", "13": "exercices", "14": "lecon", "15": "depart", "16": "pythagore"}
LARGER = 3  # times as large, for pages that are shown enlarged


def rasterize(svg, *options):
    return subprocess.run(["rsvg-convert", *options], input=svg.encode(), stdout=subprocess.PIPE, check=True).stdout


def in_few_colours(png):
    """256 colours without dithering, so that calm ground stays calm."""
    return subprocess.run(["pngquant", "--nofs", "--speed", "1", "--strip", "256", "-"], input=png, stdout=subprocess.PIPE,
                          check=True).stdout


def screen_picture(name, times=1):
    """Opaque."""
    svg = importlib.import_module(f"screens.{name}").draw()
    return in_few_colours(rasterize(svg, "--background-color", "#FFFDF6", "-z", str(times)))


def enlarging(png, small):
    """The picture with a note of the file that it is the larger one of, by the fingerprint that the program takes."""
    fingerprint = 2166136261
    for byte in small:
        fingerprint = (fingerprint ^ byte) * 16777619 % 2**32
    content = b"tEXtEnlarges\0%08x" % fingerprint
    header_end = 33
    return png[:header_end] + struct.pack(">I", len(content) - 4) + content + struct.pack(">I", zlib.crc32(content)) + png[header_end:]


def pixels(png):
    """Width, height and RGBA rows of an 8-bit RGBA picture."""
    width, height = struct.unpack(">II", png[16:24])
    at, packed = 8, b""
    while at < len(png):
        size, kind = struct.unpack(">I4s", png[at:at + 8])
        if kind == b"IDAT":
            packed += png[at + 8:at + 8 + size]
        at += size + 12
    raw, stride = zlib.decompress(packed), width * 4
    rows, above = [], bytearray(stride)
    for y in range(height):
        start = y * (stride + 1)
        above = unfilter(raw[start], bytearray(raw[start + 1:start + 1 + stride]), above)
        rows.append(above)
    return width, height, rows


def unfilter(kind, row, above):
    for i in range(len(row)):
        left, up, corner = (row[i - 4] if i > 3 else 0), above[i], (above[i - 4] if i > 3 else 0)
        guess = left + up - corner
        nearest = min((abs(guess - left), 0, left), (abs(guess - up), 1, up), (abs(guess - corner), 2, corner))[2]
        row[i] = (row[i] + (0, left, up, (left + up) // 2, nearest)[kind]) & 255
    return row


def bitmap_entry(png):
    """A picture as icons hold it: a header of double height, BGRA rows from the bottom, a mask."""
    width, height, rows = pixels(png)
    header = struct.pack("<IiiHHIIiiII", 40, width, 2 * height, 1, 32, 0, 0, 0, 0, 0, 0)
    colours = b"".join(bytes(row[i + c] for i in range(0, len(row), 4) for c in (2, 1, 0, 3)) for row in reversed(rows))
    mask = b"".join(mask_row(row) for row in reversed(rows))
    return header + colours + mask


def mask_row(row):
    bits = "".join("1" if row[i + 3] < 128 else "0" for i in range(0, len(row), 4))
    bits += "0" * (-len(bits) % 32)
    return int(bits, 2).to_bytes(len(bits) // 8, "big")


def icon_file(svgs):
    entries = []
    for size, svg in svgs.items():
        png = rasterize(svg, "-w", str(size), "-h", str(size))
        entries.append((size, png if size == 256 else bitmap_entry(png)))
    directory, at = struct.pack("<HHH", 0, 1, len(entries)), 6 + 16 * len(entries)
    for size, data in entries:
        directory += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(data), at)
        at += len(data)
    return directory + b"".join(data for _, data in entries)


def zeroed_record():
    """The counters as delivered: every counter 0, tagged ones as 16-bit integers."""
    tagged_zero = struct.pack("<hh", 2, 0)
    return tagged_zero + b" " * 10 + 3 * tagged_zero + struct.pack("<47h", *[0] * 47)


def main(datas, output):
    for name, screen in SCREENS.items():
        small = screen_picture(screen)
        (datas / name).write_bytes(small)
        (datas / f"{name}.{LARGER}x").write_bytes(enlarging(screen_picture(screen, LARGER), small))
    (datas / "18").write_bytes(zeroed_record())
    (output / "anim.png").write_bytes(rasterize(strip.draw()))
    (output / f"anim.{LARGER}x.png").write_bytes(in_few_colours(rasterize(strip.draw(), "-z", str(LARGER))))
    (output / "onze-tables.svg").write_text(icon.draw(512))
    (output / "onze-tables.png").write_bytes(rasterize(icon.draw(512), "-w", "512", "-h", "512"))
    (output / "onze-tables.ico").write_bytes(icon_file({size: icon.draw(size) for size in (16, 24, 32, 48, 64, 256)}))


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]))
