#!/usr/bin/env python3
"""Draws the library's cursor and writes it as a .cur file (monochrome, 32 by 32).

Run from this folder; the output is reproducible (no time stamps, no randomness):
    python3 make_cursors.py
The cursor is drawn by a function of (x, y) on the 32 by 32 grid that returns
"black", "white" or None for transparent. A .cur file is an .ico file of type 2
whose directory entries hold the hot spot in place of planes and bit count.
"""
import struct

SIZE = 32


def cursor_2006(x, y):
    """The pan cursor: a cross of four arrows with its hot spot in the middle."""
    cx, cy = 15, 15
    dx, dy = abs(x - cx), abs(y - cy)
    # Shafts, one pixel wide with a white border.
    if (dx == 0 and dy <= 12) or (dy == 0 and dx <= 12):
        return "black"
    # Arrow heads: triangles at the four ends, black inside a white rim.
    for along, across in ((y - cy, x - cx), (x - cx, y - cy)):
        for sign in (-1, 1):
            d = along * sign
            if 8 <= d <= 13 and abs(across) <= 13 - d:
                return "black"
            if 7 <= d <= 14 and abs(across) <= 14 - d:
                return "white"
    if (dx <= 1 and dy <= 13) or (dy <= 1 and dx <= 13):
        return "white"
    return None


def image(draw):
    """XOR bitmap (1 bit, two colours) then the AND mask, rows bottom-up."""
    xor_rows, and_rows = [], []
    for row in range(SIZE - 1, -1, -1):
        xor_bits, and_bits = 0, 0
        for col in range(SIZE):
            c = draw(col, row)
            xor_bits = (xor_bits << 1) | (1 if c == "white" else 0)
            and_bits = (and_bits << 1) | (1 if c is None else 0)
        xor_rows.append(struct.pack(">I", xor_bits))
        and_rows.append(struct.pack(">I", and_bits))
    header = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE * 2, 1, 1, 0, 0, 0, 0, 2, 0)
    palette = bytes((0, 0, 0, 0, 255, 255, 255, 0))
    return header + palette + b"".join(xor_rows) + b"".join(and_rows)


def write_cur(path, draw, hot_x, hot_y):
    data = image(draw)
    out = struct.pack("<HHH", 0, 2, 1)
    out += struct.pack("<BBBBHHII", SIZE, SIZE, 2, 0, hot_x, hot_y, len(data), 6 + 16)
    with open(path, "wb") as f:
        f.write(out + data)


if __name__ == "__main__":
    write_cur("qor_2006.cur", cursor_2006, 15, 15)
