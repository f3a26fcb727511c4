#!/usr/bin/env python3
"""Draws the pan cursor of the display list window and writes it as a .cur file.

Run from this folder; the output is reproducible:
    python3 make_cursor.py
The cursor is 32 by 32, one bit per pixel: a four-way arrow, black with a white
rim, its hot spot in the middle.
"""
import struct

SIZE = 32
HOT = 16


def inside(x, y):
    """True on the four-way arrow: a cross of two bars with a head at each end."""
    dx, dy = abs(x - HOT), abs(y - HOT)
    if dx <= 1 and dy <= 11 or dy <= 1 and dx <= 11:
        return True
    # Heads: triangles whose tips are 14 from the middle.
    if 9 <= dy <= 14 and dx <= 14 - dy:
        return True
    if 9 <= dx <= 14 and dy <= 14 - dx:
        return True
    return False


def pixel(x, y):
    """'black', 'white' (the rim) or None (transparent)."""
    if inside(x, y):
        return 'black'
    for nx, ny in ((x - 1, y), (x + 1, y), (x, y - 1), (x, y + 1)):
        if 0 <= nx < SIZE and 0 <= ny < SIZE and inside(nx, ny):
            return 'white'
    return None


def rows(bit):
    """Bottom-up rows of 1-bit pixels, 4 bytes each, with bit(x, y) deciding a 1."""
    out = b''
    for y in reversed(range(SIZE)):
        value = 0
        for x in range(SIZE):
            value = (value << 1) | (1 if bit(x, y) else 0)
        out += struct.pack('>I', value)
    return out


def cursor():
    # XOR plane: 1 for white. AND plane: 1 for transparent.
    xor = rows(lambda x, y: pixel(x, y) == 'white')
    mask = rows(lambda x, y: pixel(x, y) is None)
    header = struct.pack('<IiiHHIIiiII', 40, SIZE, SIZE * 2, 1, 1, 0, len(xor) + len(mask),
                         0, 0, 2, 0)
    palette = struct.pack('<II', 0x000000, 0xFFFFFF)
    image = header + palette + xor + mask
    directory = struct.pack('<HHH', 0, 2, 1)
    entry = struct.pack('<BBBBHHII', SIZE, SIZE, 2, 0, HOT, HOT, len(image), 6 + 16)
    return directory + entry + image


if __name__ == '__main__':
    with open('qor_2006.cur', 'wb') as f:
        f.write(cursor())
