"""The counters file, seen from outside."""

import struct

LESSON_CONSULTATIONS, PYTHAGORE_CONSULTATIONS, PYTHAGORE_SOLVES = 16, 20, 24
PUZZLE_COUNT, PUZZLE_RIGHT, PUZZLE_WRONG = 26, 28, 30
SAVED_ONCE = 2


def of_table(table):
    """Where its counters lie: consultations, exercises, right, wrong."""
    first = 32 + 8 * (table - 2)
    return range(first, first + 8, 2)


def changes(before, after):
    """What was added to which number of the file, by offset."""
    assert len(before) == len(after)
    old, new = (struct.unpack(f"<{len(data) // 2}h", data) for data in (before, after))
    return {2 * i: b - a for i, (a, b) in enumerate(zip(old, new)) if a != b}


def worn():
    """A record of counters that all differ, one of them grown wide, and bytes that are none of the program's."""
    leading = struct.pack("<hh10shihhhh", 2, 1, b"0123456789", 3, 70_000, 2, 801, 2, 802)
    return leading + struct.pack("<47h", *range(900, 947)) + b"and more"
