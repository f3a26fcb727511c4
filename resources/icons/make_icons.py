#!/usr/bin/env python3
"""Draws the library's icons and writes them as .ico files (32-bit BGRA, 16 and 32 px).

Run from this folder; the output is reproducible (no time stamps, no randomness):
    python3 make_icons.py
Each icon is drawn on a 32 by 32 grid by a function of (x, y) that returns a colour
or None for transparent; the 16 pixel image samples the same function at half
resolution.
"""
import struct

STEEL = (70, 96, 140)
STEEL_LIGHT = (140, 170, 210)
OUTLINE = (20, 30, 50)


def icon_2000(x, y):
    """The application icon: an I-beam section on a light plate."""
    if 2 <= x <= 29 and 2 <= y <= 29:
        if 6 <= x <= 25 and (6 <= y <= 10 or 21 <= y <= 25):
            return OUTLINE if x in (6, 25) or y in (6, 10, 21, 25) else STEEL
        if 13 <= x <= 18 and 10 <= y <= 21:
            return OUTLINE if x in (13, 18) else STEEL
        if x in (2, 29) or y in (2, 29):
            return OUTLINE
        return STEEL_LIGHT
    return None


def image(draw, size):
    """Rows bottom-up as .ico bitmaps store them: BGRA bytes and the AND mask."""
    step = 32 // size
    rows, mask = [], []
    for row in range(size - 1, -1, -1):
        line, bits = b"", 0
        maskline = b""
        for col in range(size):
            c = draw(col * step + step // 2, row * step + step // 2)
            if c is None:
                line += bytes((0, 0, 0, 0))
                bits = (bits << 1) | 1
            else:
                line += bytes((c[2], c[1], c[0], 255))
                bits <<= 1
            if col % 8 == 7:
                maskline += bytes((bits,))
                bits = 0
        maskline += b"\0" * ((4 - len(maskline) % 4) % 4)
        rows.append(line)
        mask.append(maskline)
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    return header + b"".join(rows) + b"".join(mask)


def write_ico(path, draw):
    images = [image(draw, s) for s in (16, 32)]
    out = struct.pack("<HHH", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for s, data in zip((16, 32), images):
        out += struct.pack("<BBBBHHII", s, s, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    with open(path, "wb") as f:
        f.write(out + b"".join(images))


if __name__ == "__main__":
    write_ico("qor_2000.ico", icon_2000)
