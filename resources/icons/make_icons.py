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


GREY = (150, 150, 150)
GREY_LIGHT = (215, 215, 215)
SHADOW = (185, 195, 210)
PAPER = (250, 248, 235)
INK = (40, 40, 40)


def box(x, y, x0, y0, x1, y1, fill, edge=OUTLINE):
    """Colour of a framed rectangle at (x, y), or None outside it."""
    if x0 <= x <= x1 and y0 <= y <= y1:
        return edge if x in (x0, x1) or y in (y0, y1) else fill
    return None


def icon_2001(x, y):
    """A group of materials: two grey sheets, one behind the other."""
    front = box(x, y, 4, 10, 25, 27, GREY_LIGHT, GREY)
    if front is not None:
        return front
    return box(x, y, 8, 4, 29, 21, GREY, OUTLINE)


def block(x, y, face, side):
    """A block seen from above at an angle: front face, top and right side."""
    c = box(x, y, 4, 12, 21, 28, face)
    if c is not None:
        return c
    # The top: a parallelogram from the front's upper edge back to the right.
    if 4 <= y <= 12 and 12 - y + 4 <= x - 0 <= 12 - y + 21 + 0:
        d = 12 - y
        if x in (4 + d, 21 + d) or y == 4:
            return OUTLINE
        return side
    # The right side: a parallelogram from the front's right edge back and up.
    if 21 <= x <= 29:
        d = x - 21
        if 12 - d <= y <= 28 - d:
            return OUTLINE if y in (12 - d, 28 - d) or x == 29 else side
    return None


def icon_2002(x, y):
    """A usable material: a solid steel block."""
    return block(x, y, STEEL, STEEL_LIGHT)


def icon_2003(x, y):
    """A shadow material: the same block, pale and hatched."""
    c = block(x, y, SHADOW, GREY_LIGHT)
    if c == SHADOW and (x + y) % 4 == 0:
        return STEEL_LIGHT
    return c


def label(x, y, lines):
    """A tag with a hole on the left and lines of text on it."""
    c = box(x, y, 2, 8, 29, 23, PAPER)
    if c != PAPER:
        return c
    if (x - 6) ** 2 + (y - 15) ** 2 <= 4:
        return OUTLINE if (x - 6) ** 2 + (y - 15) ** 2 >= 2 else None
    for row in lines:
        if row <= y <= row + 1 and 11 <= x <= 26:
            return INK
    return PAPER


def icon_2004(x, y):
    """A label of a single line."""
    return label(x, y, (15,))


def icon_2005(x, y):
    """A label of several lines."""
    return label(x, y, (11, 15, 19))


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
    for number, draw in ((2000, icon_2000), (2001, icon_2001), (2002, icon_2002),
                         (2003, icon_2003), (2004, icon_2004), (2005, icon_2005)):
        write_ico("qor_%d.ico" % number, draw)
