"""Runs the demo host's viewer under Wine's null driver: each kind of file is shown in
its window, painted and written as PNG by --screenshot, and the PNG is read back with
Python's zlib; bad names end with a status and no file, and never hang.

usage: check_viewer.py WINE_RUN DEMO_HOST_EXE SOURCE_ROOT CASE"""
import os
import struct
import subprocess
import sys
import tempfile
import zlib

wine_run, exe, root, case = sys.argv[1:5]


def wine_path(path):
    return "Z:" + os.path.abspath(path)


def view(*args):
    cmd = [wine_run, exe, "--view"] + list(args)
    done = subprocess.run(cmd, stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120)
    return done.returncode, done.stdout.decode(errors="replace") + done.stderr.decode(
        errors="replace")


def read_png(path):
    data = open(path, "rb").read()
    assert data[:8] == b"\x89PNG\r\n\x1a\n", "signature"
    pos, idat, header = 8, b"", None
    while pos < len(data):
        (length,) = struct.unpack(">I", data[pos:pos + 4])
        kind = data[pos + 4:pos + 8]
        body = data[pos + 8:pos + 8 + length]
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            idat += body
        pos += 12 + length
    w, h = header[0], header[1]
    assert header[2:] == (8, 2, 0, 0, 0), "8-bit RGB"
    raw = zlib.decompress(idat)
    assert len(raw) == h * (1 + 3 * w)
    pixels = []
    for y in range(h):
        row = raw[y * (1 + 3 * w):(y + 1) * (1 + 3 * w)]
        assert row[0] == 0, "filter"
        pixels.append([(row[1 + 3 * x] << 16) | (row[2 + 3 * x] << 8) | row[3 + 3 * x]
                       for x in range(w)])
    return w, h, pixels


def colours(pixels):
    return {p for row in pixels for p in row}


def shot(tmp, *args):
    out = os.path.join(tmp, "shot.png")
    rc, text = view(*(list(args) + ["--screenshot", wine_path(out)]))
    assert rc == 0, "status %d: %s" % (rc, text)
    return read_png(out)


def bmp(path, w, h):
    """A 24-bit bitmap: the left half red, the right half blue."""
    rows = []
    for _ in range(h):
        row = b"".join(b"\x00\x00\xff" if x < w // 2 else b"\xff\x00\x00" for x in range(w))
        rows.append(row + b"\0" * ((4 - len(row) % 4) % 4))
    data = b"".join(rows)
    head = struct.pack("<2sIHHI", b"BM", 54 + len(data), 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, w, h, 1, 24, 0, len(data), 2835, 2835, 0, 0)
    open(path, "wb").write(head + info + data)


model = os.path.join(root, "tests", "data", "model", "demo_model.qdt")
slides = os.path.join(root, "tests", "data", "slides")

with tempfile.TemporaryDirectory() as tmp:
    if case == "model":
        # Page 4: six hatches in colours 1 to 6, a filled plate, coloured line types.
        w, h, px = shot(tmp, wine_path(model), "--page", "4", "--size", "400x300")
        assert (w, h) == (400, 300), (w, h)
        have = colours(px)
        for c in (0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF, 0x0000FF, 0xFF00FF):
            assert c in have, "colour %06x missing" % c
    elif case == "pick":
        # A left click on the hatched square of group 1 names the group in the title;
        # one on nothing names none.
        out = os.path.join(tmp, "pick.png")
        args = [wine_path(model), "--page", "4", "--size", "400x300", "--screenshot",
                wine_path(out), "--click"]
        rc, text = view(*(args + ["300,40"]))
        assert rc == 0 and "title: QOR viewer - styles (4/12)" in text, text
        assert "picked group 1\n" in text.replace("\r", ""), text
        rc, text = view(*(args + ["5,290"]))
        assert rc == 0 and "title: QOR viewer - styles" in text and "picked" not in text, text
    elif case == "vll":
        # The page after the documents: the vertex list view, lines that stand out
        # from the host's background, the first section marked in another colour.
        w, h, px = shot(tmp, wine_path(model), "--page", "12", "--size", "300x200")
        have = colours(px)
        back = px[0][0]
        contrast = 0x000000 if back == 0xFFFFFF else 0xFFFFFF
        assert contrast in have, "no line in the contrast colour"
        assert len(have - {back, contrast}) >= 1, "no marked section"
    elif case == "slide":
        w, h, px = shot(tmp, wine_path(os.path.join(slides, "slide_kss.sld")), "--size", "320x240")
        have = colours(px)
        assert px[0][0] == 0x000000, "background of colour index 0"
        assert 0xFFFFFF in have, "lines of colour 7"
    elif case == "library":
        lib = os.path.join(slides, "mylib.slb")
        w, h, px = shot(tmp, wine_path(lib) + ":SLIDE1", "--size", "320x240")
        assert len(colours(px)) >= 2, "slide drawn"
        out = os.path.join(tmp, "none.png")
        rc, _ = view(wine_path(lib) + ":NO_SUCH_SLIDE", "--screenshot", wine_path(out))
        assert rc == 1 and not os.path.exists(out), "missing member: status %d" % rc
    elif case == "picture":
        path = os.path.join(tmp, "halves.bmp")
        bmp(path, 60, 40)
        w, h, px = shot(tmp, wine_path(path), "--size", "200x100")
        # Smaller than the window: centred at its natural size, at (70, 30).
        assert px[50][75] == 0xFF0000, "%06x" % px[50][75]
        assert px[50][125] == 0x0000FF, "%06x" % px[50][125]
        assert px[5][5] not in (0xFF0000, 0x0000FF), "background"
        assert px[50][65] == px[5][5] and px[50][131] == px[5][5], "picture's edges"
    elif case == "bad":
        out = os.path.join(tmp, "none.png")
        rc, _ = view(wine_path(os.path.join(tmp, "notes.txt")), "--screenshot", wine_path(out))
        assert rc == 2, "unknown ending: %d" % rc
        rc, _ = view(wine_path(os.path.join(tmp, "missing.sld")), "--screenshot", wine_path(out))
        assert rc == 1, "missing file: %d" % rc
        assert not os.path.exists(out)
        # A slide of bytes that are no slide is held and shows its background only.
        junk = os.path.join(tmp, "junk.sld")
        open(junk, "wb").write(bytes(range(7, 250, 3)) * 5)
        w, h, px = shot(tmp, wine_path(junk), "--size", "64x48")
        assert colours(px) == {0x000000}, "background only"
        # Without a display and without a screenshot the viewer ends at once.
        rc, text = view(wine_path(model))
        assert rc == 2 and "no display" in text, "no display: %d %s" % (rc, text)
    else:
        sys.exit("unknown case " + case)
print("viewer ok: " + case)
