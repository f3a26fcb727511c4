#!/usr/bin/python3
"""Generates text/glyph_data.cpp, the outlines of the built-in vector font.

Each glyph is drawn as centre lines of a single-stroke technical lettering. Every
stroke is widened to the stroke width with flat ends and mitred corners, the
strokes of a glyph are united, and the outlines of the union become the glyph's
regions: outer contour clockwise, holes counter-clockwise, all pieces straight,
coordinates written with six significant digits. The full stop, "H" and "I" are
given as literal outlines, as are the low bar and the tick of builder 5.

Needs Python 3 and Shapely (Debian: python3-shapely). The output depends only on
this file: running it twice writes the same table.

    /usr/bin/python3 text/tools/make_glyphs.py > text/glyph_data.cpp
"""

import math
import sys

from shapely.geometry import LineString, MultiPolygon, Polygon, box
from shapely.geometry.polygon import orient
from shapely.ops import unary_union

SW = 0.022373  # stroke width
HW = SW / 2.0
XL = 0.155932  # left edge of the ink
XR = 0.844746  # right edge of most glyphs
L = XL + HW  # centre lines of the left and right stems
R = XR - HW
C = (XL + XR) / 2.0
B = HW  # centre of a bar on the baseline
T = 1.0 - HW  # centre of a bar at the cap height
XH = 0.6664  # x-height (top of the stem of "i")
XT = XH - HW
DESC = -0.343729  # lowest point (the curved descenders of "g", "j", "y")
DESC_REACH = 0.01  # the descenders are drawn this far below DESC and clipped to it
STEM_DESC = -0.33  # the straight descenders of "p" and "q" stop short of DESC
OVER_LO = -0.0101695  # overshoot of round letters
OVER_HI = 1.01085
SEGS = 32  # pieces of a full ellipse


def arc(cx, cy, rx, ry, a0, a1, n=None):
    """Centre points of an elliptic arc from angle a0 to a1 (degrees, ccw positive)."""
    if n is None:
        n = max(2, int(round(abs(a1 - a0) / 360.0 * SEGS)))
    pts = []
    for i in range(n + 1):
        a = math.radians(a0 + (a1 - a0) * i / n)
        pts.append((cx + rx * math.cos(a), cy + ry * math.sin(a)))
    return pts


def ring(x0, y0, x1, y1):
    """Centre line of a closed ellipse whose outer edge is the box x0..x1, y0..y1."""
    return arc((x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0) / 2 - HW, (y1 - y0) / 2 - HW, 0, 360)


def bowl(x0, y0, x1, y1, a0, a1, n=None):
    """Part of the ellipse whose outer edge is the box x0..x1, y0..y1."""
    return arc((x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0) / 2 - HW, (y1 - y0) / 2 - HW, a0, a1, n)


def stroke(pts):
    if len(pts) > 2 and pts[0] == pts[-1]:
        # A closed ring: widen it as a ring so that it has no seam.
        outer = Polygon(pts).buffer(HW, join_style=2, mitre_limit=5)
        inner = Polygon(pts).buffer(-HW, join_style=2, mitre_limit=5)
        return outer.difference(inner)
    return LineString(pts).buffer(HW, cap_style=2, join_style=2, mitre_limit=5)


# --- The glyphs as centre lines. Each value: list of strokes, optional clip box.

LOW = 0.16678  # height of the full stop and of dots
DOT_GAP = 0.08


def dot(x, y0):
    return [(x, y0), (x, y0 + LOW)]


def o_ring(x0=XL, x1=XR, y0=OVER_LO, y1=OVER_HI):
    return ring(x0, y0, x1, y1)


G = {}
CLIP = {}

# Builder 1: 33 to 46
G['!'] = [[(L, 0.3), (L, 1.0)], dot(L, 0.0)]
G['"'] = [[(L, 0.72), (L, 1.0)], [(L + 0.2, 0.72), (L + 0.2, 1.0)]]
G['#'] = [[(0.38, 0.0), (0.46, 1.0)], [(0.62, 0.0), (0.70, 1.0)],
          [(XL, 0.34), (XR, 0.34)], [(XL, 0.66), (XR, 0.66)]]
G['$'] = [bowl(XL, 0.5 - HW, XR, OVER_HI - 0.06, 20, 270)
          + bowl(XL, -0.01 + 0.06, XR, 0.5 + HW, 90, -160),
          [(C, -0.06), (C, 1.06)]]
G['%'] = [ring(XL, 0.62, 0.42, 1.0), ring(0.58, 0.0, XR, 0.38), [(0.2, 0.0), (0.8, 1.0)]]
G['&'] = [[(XR, 0.0)] + bowl(0.22, 0.62, 0.58, 1.0, 225, 90) + bowl(0.22, 0.62, 0.58, 1.0, 90, -45)
          + bowl(XL, -0.01, 0.7, 0.55, 110, 330) + [(XR, 0.4)]]
G["'"] = [[(L, 0.72), (L, 1.0)]]
G['('] = [bowl(L - HW, -0.17, 0.8, 1.17, 90, 270, 12)]
CLIP['('] = (0.0, -0.2, 0.5, 1.2)
G[')'] = [bowl(-0.3, -0.17, XL + 0.3, 1.17, -90, 90, 12)]
CLIP[')'] = (XL, -0.2, 1.0, 1.2)
G['*'] = [[(C, 0.5), (C, 1.0)], [(0.28, 0.62), (0.72, 0.88)], [(0.28, 0.88), (0.72, 0.62)]]
G['+'] = [[(XL, 0.5), (XR, 0.5)], [(C, 0.17), (C, 0.83)]]
G[','] = [[(L, LOW), (L, 0.0), (XL - 0.02, -0.14)]]
CLIP[','] = (0.12, -0.2, 0.3, 0.3)
G['-'] = [[(XL, 0.5), (XR, 0.5)]]
# '.' is literal

# Builder 2: 47 to 57
G['/'] = [[(XL, -0.05), (XR, 1.05)]]
CLIP['/'] = (0.0, 0.0, 1.0, 1.0)
G['0'] = [o_ring()]
G['1'] = [[(0.25, 0.78), (0.56, 1.0 - HW * 1.5), (0.56, 0.0)]]
CLIP['1'] = (0.0, 0.0, 1.0, 1.0)
G['2'] = [bowl(XL, 0.5, XR, OVER_HI, 160, -30) + [(L, B), (XR, B)]]
G['3'] = [bowl(XL, 0.49, XR, OVER_HI, 160, -90) + [(0.45, 0.5)],
          bowl(XL, OVER_LO, XR, 0.51, 90, -200)]
G['4'] = [[(0.66, 0.0), (0.66, 1.0), (XL + 0.01, 0.3), (XR, 0.3)]]
CLIP['4'] = (0.0, 0.0, 1.0, 1.0)
G['5'] = [[(R, T), (L + 0.03, T), (L, 0.56)] + bowl(XL, OVER_LO, XR, 0.66, 130, -200)]
G['6'] = [bowl(XL, OVER_LO, XR, OVER_HI, 40, 180) + bowl(XL, OVER_LO, XR, OVER_HI, 180, 200),
          ring(XL, OVER_LO, XR, 0.64)]
G['7'] = [[(XL, T), (R, T), (0.36, 0.0)]]
CLIP['7'] = (0.0, 0.0, 1.0, 1.0)
G['8'] = [ring(0.19, 0.5 - HW, 0.81, OVER_HI), ring(XL, OVER_LO, XR, 0.5 + HW)]
G['9'] = [bowl(XL, OVER_LO, XR, OVER_HI, 220, 360) + bowl(XL, OVER_LO, XR, OVER_HI, 0, 20),
          ring(XL, 0.35, XR, OVER_HI)]

# Builder 3: 58 to 64
G[':'] = [dot(L, 0.0), dot(L, 0.45)]
G[';'] = [[(L, LOW), (L, 0.0), (XL - 0.02, -0.14)], dot(L, 0.45)]
CLIP[';'] = (0.12, -0.2, 0.3, 1.0)
G['<'] = [[(XR, 0.85), (XL, 0.5), (XR, 0.15)]]
G['='] = [[(XL, 0.38), (XR, 0.38)], [(XL, 0.62), (XR, 0.62)]]
G['>'] = [[(XL, 0.85), (XR, 0.5), (XL, 0.15)]]
CLIP['<'] = (0.0, 0.0, XR, 1.0)
CLIP['>'] = (XL, 0.0, 1.0, 1.0)
G['?'] = [bowl(XL, 0.45, XR, OVER_HI, 160, -90) + [(C, 0.5), (C, 0.3)], dot(C, 0.0)]
G['@'] = [ring(0.36, 0.3, 0.68, 0.7),
          [(0.68, 0.7), (0.68, 0.38)] + bowl(0.68 - 0.1, 0.3, 0.68 + 0.14, 0.5, 180, 360)
          + bowl(XL, 0.0, XR + 0.02, 1.0, 0, 300)]

# Builder 4: A to Z
A_BAR_X = (XL - 0.01) + (0.3 + 0.02) / 1.04 * (C - XL + 0.01)  # left leg's centre at y 0.3
G['A'] = [[(XL - 0.01, -0.02), (C, 1.02), (XR + 0.01, -0.02)], [(A_BAR_X, 0.3), (2 * C - A_BAR_X, 0.3)]]
CLIP['A'] = (0.0, 0.0, 1.0, 1.0)
G['B'] = [[(L, OVER_LO), (L, OVER_HI)],
          [(L, OVER_HI - HW), (0.59, OVER_HI - HW)] + bowl(0.38, 0.5 - HW, 0.8, OVER_HI, 90, -90)
          + [(L, 0.5)],
          [(L, 0.5), (0.6223, 0.5)] + bowl(0.4, OVER_LO, XR, 0.5 + HW, 90, -90)
          + [(L, OVER_LO + HW)]]
G['C'] = [bowl(XL, OVER_LO, XR + 0.02, OVER_HI, 40, 320)]
G['D'] = [[(L, B), (L, T), (0.5, T)] + bowl(XL, 0.0, XR, 1.0, 90, 0) + bowl(XL, 0.0, XR, 1.0, 0, -90)
          + [(L, B)]]
G['E'] = [[(XR, T), (L, T), (L, B), (XR, B)], [(L, 0.5), (0.7, 0.5)]]
G['F'] = [[(XR, T), (L, T), (L, 0.0)], [(L, 0.5), (0.7, 0.5)]]
G['G'] = [bowl(XL, OVER_LO, XR, OVER_HI, 40, 360), [(0.55, 0.45), (R, 0.45), (R, 0.0)]]
# 'H' and 'I' are literal
G['J'] = [[(R, 1.0), (R, 0.3)] + bowl(XL, OVER_LO, XR, 0.6, 0, -180)]
G['K'] = [[(L, 0.0), (L, 1.0)], [(XR + 0.02, 1.02), (L, 0.33)], [(0.40, 0.5638), (XR + 0.02, -0.02)]]
CLIP['K'] = (0.0, 0.0, XR, 1.0)
G['L'] = [[(L, 1.0), (L, B), (XR, B)]]
G['M'] = [[(L, 0.0), (L, T), (C, 0.2), (R, T), (R, 0.0)]]
CLIP['M'] = (0.0, 0.0, 1.0, 1.0)
G['N'] = [[(L, 0.0), (L, T), (R, B), (R, 1.0)]]
CLIP['N'] = (0.0, 0.0, 1.0, 1.0)
G['O'] = [o_ring()]
G['P'] = [[(L, 0.0), (L, T), (0.5, T)] + bowl(0.2, 0.44, XR, 1.0, 90, -90) + [(L, 0.44 + HW)]]
G['Q'] = [o_ring(), [(0.56, 0.25), (XR + 0.02, -0.06)]]
CLIP['Q'] = (0.0, OVER_LO, XR, OVER_HI)
# The mitred corners of a widened ring stand out a little beyond its box; round
# capitals are clipped to the overshoot band so that they keep it exactly.
for _name in ('O', '0', 'B'):
    CLIP[_name] = (0.0, OVER_LO, 2.0, OVER_HI)
G['R'] = [[(L, 0.0), (L, T), (0.5, T)] + bowl(0.2, 0.44, XR, 1.0, 90, -90) + [(L, 0.44 + HW)],
          [(0.5, 0.45), (XR + 0.01, -0.02)]]
CLIP['R'] = (0.0, 0.0, XR, 1.1)
G['S'] = [bowl(XL, 0.5 - HW, XR, OVER_HI, 20, 270) + bowl(XL, OVER_LO, XR, 0.5 + HW, 90, -160)]
G['T'] = [[(XL, T), (XR, T)], [(C, 1.0), (C, 0.0)]]
G['U'] = [[(L, 1.0), (L, 0.4)] + bowl(XL, OVER_LO, XR, 0.8, 180, 360) + [(R, 1.0)]]
G['V'] = [[(XL - 0.02, 1.04), (0.666839, 0.0), (1.17763 + 0.02, 1.04)]]
CLIP['V'] = (XL, 0.0, 1.17763, 1.0)
G['W'] = [[(XL - 0.01, 1.04), (0.42, 0.0), (0.666839, 0.8), (0.913, 0.0), (1.17763 + 0.01, 1.04)]]
CLIP['W'] = (XL, 0.0, 1.17763, 1.0)
G['X'] = [[(XL - 0.02, -0.02), (XR + 0.02, 1.02)], [(XL - 0.02, 1.02), (XR + 0.02, -0.02)]]
CLIP['X'] = (XL, 0.0, XR, 1.0)
G['Y'] = [[(XL - 0.02, 1.03), (C, 0.48), (XR + 0.02, 1.03)], [(C, 0.48), (C, 0.0)]]
CLIP['Y'] = (XL, 0.0, XR, 1.0)
G['Z'] = [[(XL, T), (R, T), (L, B), (XR, B)]]

# Builder 6: a to z (x-height XH, descender DESC)
XO_LO = -0.0101695
XO_HI = XH + 0.0118
G['a'] = [ring(XL, XO_LO, 0.8, XO_HI), [(0.8 - HW, XH), (0.8 - HW, 0.0)]]
G['b'] = [[(L, 1.0), (L, 0.0)], ring(XL, XO_LO, 0.8, XO_HI)]
G['c'] = [bowl(XL, XO_LO, 0.8, XO_HI, 45, 315)]
G['d'] = [[(0.8 - HW, 1.0), (0.8 - HW, 0.0)], ring(XL, XO_LO, 0.8, XO_HI)]
G['e'] = [[(L, 0.33), (0.8 - HW, 0.33)] + bowl(XL, XO_LO, 0.8, XO_HI, 0, 320)]
G['f'] = [bowl(0.3, 0.7, 0.7, 1.01, 20, 180) + [(0.3 + HW, 0.0)], [(XL, XT), (0.6, XT)]]
CLIP['f'] = (0.0, 0.0, 1.0, 1.1)
G['g'] = [ring(XL, 0.0, 0.8, XO_HI), [(0.8 - HW, XH), (0.8 - HW, -0.15)]
          + bowl(XL + 0.02, DESC - DESC_REACH, 0.8, 0.05, 0, -160)]
CLIP['g'] = (0.0, DESC, 1.0, 1.1)
G['h'] = [[(L, 1.0), (L, 0.0)], [(L, 0.4)] + bowl(XL, 0.0, 0.8, XO_HI, 150, 0) + [(0.8 - HW, 0.0)]]
G['i'] = [[(L, 0.0), (L, XH)], dot(L, 0.83)]
G['j'] = [[(0.42, XH), (0.42, -0.15)] + bowl(XL, DESC - DESC_REACH, 0.42 + HW, 0.0, 0, -150),
          dot(0.42, 0.83)]
CLIP['j'] = (0.0, DESC, 1.0, 1.1)
G['k'] = [[(L, 0.0), (L, 1.0)], [(0.74, XH + 0.02), (L, 0.2)], [(0.36, 0.36), (0.76, -0.02)]]
CLIP['k'] = (0.0, 0.0, 1.0, XH)
G['l'] = [[(L, 0.0), (L, 1.0)]]
G['m'] = [[(L, 0.0), (L, XH)], [(L, 0.4)] + bowl(XL, 0.0, 0.5, XO_HI, 160, 0) + [(0.5 - HW, 0.0)],
          [(0.5 - HW, 0.4)] + bowl(0.5 - SW, 0.0, XR, XO_HI, 160, 0) + [(R, 0.0)]]
G['n'] = [[(L, 0.0), (L, XH)], [(L, 0.4)] + bowl(XL, 0.0, 0.8, XO_HI, 150, 0) + [(0.8 - HW, 0.0)]]
G['o'] = [ring(XL, XO_LO, 0.8, XO_HI)]
G['p'] = [[(L, XH), (L, STEM_DESC)], ring(XL, XO_LO, 0.8, XO_HI)]
G['q'] = [[(0.8 - HW, XH), (0.8 - HW, STEM_DESC)], ring(XL, XO_LO, 0.8, XO_HI)]
G['r'] = [[(L, 0.0), (L, XH)], [(L, 0.36)] + bowl(XL, 0.0, 0.78, XO_HI, 160, 40)]
G['s'] = [bowl(XL, 0.33 - HW, 0.76, XO_HI, 30, 270) + bowl(XL, XO_LO, 0.76, 0.33 + HW, 90, -150)]
G['t'] = [[(0.3, 0.9), (0.3, 0.15)] + bowl(0.3 - HW, XO_LO, 0.62, 0.3, 180, 300), [(XL, XT), (0.6, XT)]]
G['u'] = [[(L, XH), (L, 0.3)] + bowl(XL, XO_LO, 0.8, 0.6, 180, 360) + [(0.8 - HW, XH)],
          [(0.8 - HW, XH), (0.8 - HW, 0.0)]]
G['v'] = [[(XL - 0.02, XH + 0.03), (0.46, 0.0), (0.76 + 0.02, XH + 0.03)]]
CLIP['v'] = (XL, 0.0, 0.76, XH)
G['w'] = [[(XL - 0.01, XH + 0.03), (0.34, 0.0), (0.5, 0.55), (0.66, 0.0), (XR + 0.01, XH + 0.03)]]
CLIP['w'] = (XL, 0.0, XR, XH)
G['x'] = [[(XL - 0.02, -0.02), (0.76 + 0.02, XH + 0.02)], [(XL - 0.02, XH + 0.02), (0.76 + 0.02, -0.02)]]
CLIP['x'] = (XL, 0.0, 0.76, XH)
Y_TAIL = 0.32 - (0.76 + 0.02 - 0.32) * (DESC_REACH - HW) / (XH + 0.03 - DESC - HW)
G['y'] = [[(XL - 0.02, XH + 0.03), (0.46, 0.0)],
          [(0.76 + 0.02, XH + 0.03), (Y_TAIL, DESC - DESC_REACH)]]
CLIP['y'] = (XL, DESC, 0.76, XH)
G['z'] = [[(XL, XT), (0.76 - HW, XT), (L, B), (0.76, B)]]

# Builder 7
G['{'] = [[(0.5, 1.0 + 0.15 - HW), (0.38, 1.1), (0.36, 0.6), (0.2, 0.5), (0.36, 0.4), (0.38, -0.1),
           (0.5, -0.15 + HW)]]
G['|'] = [[(L, -0.17), (L, 1.17)]]
G['}'] = [[(XL, 1.0 + 0.15 - HW), (0.28, 1.1), (0.3, 0.6), (0.46, 0.5), (0.3, 0.4), (0.28, -0.1),
           (XL, -0.15 + HW)]]
G['~'] = [arc(0.3, 0.5, 0.14, 0.08, 180, 0, 8) + arc(0.58, 0.5, 0.14, 0.08, 180, 360, 8)[1:]]
G['\u00b1'] = [[(XL, 0.6), (XR, 0.6)], [(C, 0.3), (C, 0.9)], [(XL, B), (XR, B)]]


def small(strokes, x0=0.0, y0=0.5, s=0.5):
    return [[(x0 + XL + (x - XL) * s, y0 + y * s) for (x, y) in st] for st in strokes]


G['\u00b2'] = small(G['2'])
G['\u00b3'] = small(G['3'])
G['\u00ba'] = small([ring(XL, 0.3, XR, 1.0)]) + [[(XL, 0.5 + B), (XL + 0.5 * (XR - XL), 0.5 + B)]]
G['\u00bc'] = small(G['1'], -0.04, 0.5) + [[(0.2, 0.0), (0.8, 1.0)]] + small(G['4'], 0.42, 0.0)
G['\u00bd'] = small(G['1'], -0.04, 0.5) + [[(0.2, 0.0), (0.8, 1.0)]] + small(G['2'], 0.42, 0.0)
G['\u00be'] = small(G['3'], 0.0, 0.5) + [[(0.2, 0.0), (0.8, 1.0)]] + small(G['4'], 0.42, 0.0)
CLIP['\u00bc'] = CLIP['\u00bd'] = CLIP['\u00be'] = (0.0, 0.0, 1.0, 1.0)
CLIP['\u00b2'] = CLIP['\u00b3'] = (0.0, 0.5, 1.0, 1.02)

# Builder 8: umlauts and sharp s
UML_Y = 1.1
G['\u00c4'] = G['A'] + [dot(0.35, UML_Y), dot(0.65, UML_Y)]
CLIP['\u00c4'] = (0.0, 0.0, 1.0, 1.3)
G['\u00e4'] = G['a'] + [dot(0.33, 0.8), dot(0.62, 0.8)]
G['\u00d6'] = G['O'] + [dot(0.35, UML_Y), dot(0.65, UML_Y)]
G['\u00f6'] = G['o'] + [dot(0.33, 0.8), dot(0.62, 0.8)]
G['\u00dc'] = G['U'] + [dot(0.35, UML_Y), dot(0.65, UML_Y)]
G['\u00fc'] = G['u'] + [dot(0.33, 0.8), dot(0.62, 0.8)]
G['\u00df'] = [[(L, 0.0), (L, 0.75)] + bowl(XL, 0.5, 0.66, OVER_HI, 180, -60)
               + [(0.4, 0.55)] + bowl(0.25, XO_LO, 0.78, 0.6, 90, -150)]

# --- Literal outlines (clockwise, first point lowest then rightmost).

LITERAL = {
    '.': [[[(0.178305, 0.0), (0.155932, 0.0), (0.155932, 0.16678), (0.178305, 0.16678)]]],
    'H': [[[(0.844746, 0.0), (0.822373, 0.0), (0.822373, 0.488814), (0.178305, 0.488814),
            (0.178305, 0.0), (0.155932, 0.0), (0.155932, 1.0), (0.178305, 1.0), (0.178305, 0.511186),
            (0.822373, 0.511186), (0.822373, 1.0), (0.844746, 1.0)]]],
    'I': [[[(0.500339, -0.0101695), (0.16678, -0.0101695), (0.16678, 0.0115254),
            (0.322712, 0.0115254), (0.322712, 0.989153), (0.16678, 0.989153), (0.16678, 1.01085),
            (0.500339, 1.01085), (0.500339, 0.989153), (0.344407, 0.989153), (0.344407, 0.0115254),
            (0.500339, 0.0115254)]]],
    'BRACKET': [[[(0.5, -0.15), (0.155932, -0.15), (0.155932, 1.0), (0.5, 1.0), (0.5, 0.977627),
                  (0.178305, 0.977627), (0.178305, -0.127627), (0.5, -0.127627)]]],
    'CLOSE': [[[(0.5, -0.15), (0.155932, -0.15), (0.155932, -0.127627), (0.477627, -0.127627),
                (0.477627, 0.977627), (0.155932, 0.977627), (0.155932, 1.0), (0.5, 1.0)]]],
    'LOWBAR': [[[(0.83322, -0.176933), (0.16678, -0.176933), (0.16678, -0.15456),
                 (0.83322, -0.15456)]]],
    'TICK': [[[(0.1796, 0.661), (0.1573, 0.661), (0.3208, 1.0054), (0.3431, 1.0054)]]],
}

G['\\'] = [[(XL, 1.05), (XR, -0.05)]]
CLIP['\\'] = (0.0, 0.0, 1.0, 1.0)
G['^'] = [[(0.22, 0.6), (C, 1.0 - HW), (0.78, 0.6)]]

BUILDERS = [
    [chr(c) for c in range(33, 47)],
    [chr(c) for c in range(47, 58)],
    [chr(c) for c in range(58, 65)],
    [chr(c) for c in range(65, 91)],
    ['BRACKET', '\\', 'CLOSE', '^', 'LOWBAR', 'TICK'],
    [chr(c) for c in range(97, 123)],
    [chr(c) for c in (123, 124, 125, 126, 177, 178, 179, 186, 188, 189, 190)],
    [chr(c) for c in (196, 228, 214, 246, 220, 252, 223)],
]
KEYS = {'BRACKET': 91, 'CLOSE': 93, 'LOWBAR': 91, 'TICK': 95}


def num(v):
    # Rounding noise of the union (such as -1e-17 on the baseline) is zero.
    if abs(v) < 1e-9:
        return 0.0
    v = float('%.6g' % v)
    if v == 0.0:
        v = 0.0
    return v


def ring_points(coords, clockwise):
    pts = [(num(x), num(y)) for (x, y) in list(coords)[:-1]]
    clean = []
    for p in pts:
        if not clean or clean[-1] != p:
            clean.append(p)
    while len(clean) > 1 and clean[0] == clean[-1]:
        clean.pop()
    # Drop points that lie on the straight line through their neighbours.
    changed = True
    while changed and len(clean) > 3:
        changed = False
        for i in range(len(clean)):
            a, b, c = clean[i - 1], clean[i], clean[(i + 1) % len(clean)]
            cross = (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0])
            if abs(cross) < 1e-12:
                del clean[i]
                changed = True
                break
    area = 0.0
    for i in range(len(clean)):
        x0, y0 = clean[i - 1]
        x1, y1 = clean[i]
        area += x0 * y1 - x1 * y0
    if (area < 0) != clockwise:
        clean.reverse()
    start = min(range(len(clean)), key=lambda i: (clean[i][1], -clean[i][0]))
    return clean[start:] + clean[:start]


def outlines(name):
    if name in LITERAL:
        return LITERAL[name]
    shape = unary_union([stroke(s) for s in G[name]])
    if name in CLIP:
        x0, y0, x1, y1 = CLIP[name]
        shape = shape.intersection(box(x0, y0, x1, y1))
    polys = list(shape.geoms) if isinstance(shape, MultiPolygon) else [shape]
    polys = [orient(p.simplify(0.0), -1.0) for p in polys if p.area > 1e-9]
    # Every glyph starts its ink at the same left bearing.
    dx = XL - min(p.bounds[0] for p in polys)
    polys = [Polygon([(x + dx, y) for (x, y) in p.exterior.coords],
                     [[(x + dx, y) for (x, y) in h.coords] for h in p.interiors]) for p in polys]
    polys.sort(key=lambda p: (-round(p.area, 6), round(p.bounds[0], 6), round(p.bounds[1], 6)))
    regions = []
    for p in polys:
        holes = sorted(p.interiors, key=lambda h: (round(h.bounds[0], 6), round(h.bounds[1], 6)))
        region = [ring_points(p.exterior.coords, True)]
        region += [ring_points(h.coords, False) for h in holes if Polygon(h).area > 1e-9]
        regions.append(region)
    return regions


def main():
    out = sys.stdout
    points, contours, entries, builders = [], [], [], []
    for chars in BUILDERS:
        builders.append((len(entries), len(chars)))
        for name in chars:
            key = KEYS.get(name, ord(name[0]))
            first = len(contours)
            for r, region in enumerate(outlines(name)):
                for k, pts in enumerate(region):
                    contours.append((r, k, len(points), len(pts), name))
                    points.extend(pts)
            entries.append((key, first, len(contours) - first, name))
    out.write('// Generated by text/tools/make_glyphs.py: the outlines of the built-in font.\n')
    out.write('// Do not edit; change the script and run it again.\n')
    out.write('#include "text/glyph_data.h"\n\n')
    out.write('namespace QOR {\nnamespace glyphs {\n\n')
    out.write('// clang-format off\n')
    out.write('const double kPoints[][2] = {\n')
    for c in contours:
        r, k, first, count, name = c
        out.write('    // %s, region %d, contour %d\n' % (('U+%04X' % KEYS.get(name, ord(name[0]))), r, k))
        for (x, y) in points[first:first + count]:
            out.write('    {%r, %r},\n' % (x, y))
    out.write('};\n')
    out.write('const int kPointCount = %d;\n\n' % len(points))
    out.write('const Contour kContours[] = {\n')
    for (r, k, first, count, name) in contours:
        out.write('    {%d, %d, %d, %d},\n' % (r, k, first, count))
    out.write('};\n')
    out.write('const int kContourCount = %d;\n\n' % len(contours))
    out.write('const Entry kEntries[] = {\n')
    for (key, first, count, name) in entries:
        out.write('    {%d, %d, %d},\n' % (key, first, count))
    out.write('};\n')
    out.write('const int kEntryCount = %d;\n\n' % len(entries))
    out.write('const Builder kBuilders[] = {\n')
    for (first, count) in builders:
        out.write('    {%d, %d},\n' % (first, count))
    out.write('};\n')
    out.write('const int kBuilderCount = %d;\n' % len(builders))
    out.write('// clang-format on\n\n')
    out.write('} // namespace glyphs\n} // namespace QOR\n')


if __name__ == '__main__':
    main()
