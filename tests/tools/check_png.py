"""Runs png_sample and reads its PNG with Python's zlib, an independent
decoder: every chunk's CRC, the header, and each pixel must be as written."""
import struct
import subprocess
import sys
import tempfile
import zlib
import os

program = sys.argv[1]
with tempfile.TemporaryDirectory() as d:
    path = os.path.join(d, "sample.png")
    subprocess.run([program, path], check=True)
    data = open(path, "rb").read()

assert data[:8] == b"\x89PNG\r\n\x1a\n", "signature"
pos, chunks = 8, {}
while pos < len(data):
    (length,) = struct.unpack(">I", data[pos:pos + 4])
    kind = data[pos + 4:pos + 8]
    body = data[pos + 8:pos + 8 + length]
    (crc,) = struct.unpack(">I", data[pos + 8 + length:pos + 12 + length])
    assert crc == zlib.crc32(kind + body) & 0xFFFFFFFF, "crc of %r" % kind
    chunks[kind] = body
    pos += 12 + length
w, h, depth, colour, comp, filt, inter = struct.unpack(">IIBBBBB", chunks[b"IHDR"])
assert (w, h, depth, colour, comp, filt, inter) == (61, 47, 8, 2, 0, 0, 0), "header"
raw = zlib.decompress(chunks[b"IDAT"])
assert len(raw) == h * (1 + 3 * w), "size of the image data"
for y in range(h):
    row = raw[y * (1 + 3 * w):(y + 1) * (1 + 3 * w)]
    assert row[0] == 0, "filter"
    for x in range(w):
        c = 0xFFFFFF
        if 10 <= y < 20:
            c = (x * 4) & 0xFF
        if x == y:
            c = 0xFF0000
        got = (row[1 + 3 * x] << 16) | (row[2 + 3 * x] << 8) | row[3 + 3 * x]
        assert got == c, "pixel %d,%d: %06x, expected %06x" % (x, y, got, c)
print("png ok: %d bytes for %d pixels" % (len(data), w * h))
