#include "foundation/geometry/g_planar_p.h"

#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_arc_p.h"

#include <algorithm>
#include <cmath>

namespace QOR {
namespace detail {

namespace {

const double kTwoPi = 2.0 * kPi;

double normAngle(double a) {
    a = std::fmod(a, kTwoPi);
    if (a < 0.0)
        a += kTwoPi;
    return a;
}

double cross(double ax, double ay, double bx, double by) {
    return ax * by - ay * bx;
}

double distPointSegment(const Piece2& p, double x, double y, double& t) {
    const double dx = p.x1 - p.x0, dy = p.y1 - p.y0;
    const double dd = dx * dx + dy * dy;
    t = dd == 0.0 ? 0.0 : ((x - p.x0) * dx + (y - p.y0) * dy) / dd;
    t = std::min(1.0, std::max(0.0, t));
    return std::hypot(x - (p.x0 + dx * t), y - (p.y0 + dy * t));
}

// Whether (x, y) lies on the piece, and where.
bool onPiece(const Piece2& p, double x, double y, double& t) {
    if (std::hypot(x - p.x0, y - p.y0) <= kPointTol) {
        t = 0.0;
        return true;
    }
    if (std::hypot(x - p.x1, y - p.y1) <= kPointTol) {
        t = 1.0;
        return true;
    }
    if (!p.arc)
        return distPointSegment(p, x, y, t) <= kPointTol;
    if (std::fabs(std::hypot(x - p.cx, y - p.cy) - p.r) > kPointTol)
        return false;
    return p.angleOn(std::atan2(y - p.cy, x - p.cx), t);
}

void snap(const Piece2& a, const Piece2& b, Hit& h) {
    if (std::hypot(h.x - a.x0, h.y - a.y0) <= kPointTol) {
        h.ta = 0.0;
        h.x = a.x0;
        h.y = a.y0;
    } else if (std::hypot(h.x - a.x1, h.y - a.y1) <= kPointTol) {
        h.ta = 1.0;
        h.x = a.x1;
        h.y = a.y1;
    }
    if (std::hypot(h.x - b.x0, h.y - b.y0) <= kPointTol)
        h.tb = 0.0;
    else if (std::hypot(h.x - b.x1, h.y - b.y1) <= kPointTol)
        h.tb = 1.0;
}

void push(const Piece2& a, const Piece2& b, double x, double y, std::vector<Hit>& out) {
    double ta, tb;
    if (!onPiece(a, x, y, ta) || !onPiece(b, x, y, tb))
        return;
    Hit h{ta, tb, x, y};
    snap(a, b, h);
    for (const Hit& o : out)
        if (std::hypot(o.x - h.x, o.y - h.y) <= kPointTol)
            return;
    out.push_back(h);
}

void lineLine(const Piece2& a, const Piece2& b, std::vector<Hit>& out) {
    const double dx1 = a.x1 - a.x0, dy1 = a.y1 - a.y0;
    const double dx2 = b.x1 - b.x0, dy2 = b.y1 - b.y0;
    const double den = cross(dx1, dy1, dx2, dy2);
    const double l1 = a.len, l2 = b.len;
    if (std::fabs(den) > 1e-14 * l1 * l2) {
        const double ex = b.x0 - a.x0, ey = b.y0 - a.y0;
        double ta = cross(ex, ey, dx2, dy2) / den;
        double tb = cross(ex, ey, dx1, dy1) / den;
        const double ea = kPointTol / l1, eb = kPointTol / l2;
        if (ta < -ea || ta > 1.0 + ea || tb < -eb || tb > 1.0 + eb)
            return;
        ta = std::min(1.0, std::max(0.0, ta));
        Hit h{ta, std::min(1.0, std::max(0.0, tb)), a.x0 + dx1 * ta, a.y0 + dy1 * ta};
        snap(a, b, h);
        out.push_back(h);
        return;
    }
    // Parallel: only collinear pieces meet, at the ends of their overlap.
    double t;
    if (distPointSegment(a, b.x0, b.y0, t) <= kPointTol)
        push(a, b, b.x0, b.y0, out);
    if (distPointSegment(a, b.x1, b.y1, t) <= kPointTol)
        push(a, b, b.x1, b.y1, out);
    if (distPointSegment(b, a.x0, a.y0, t) <= kPointTol)
        push(a, b, a.x0, a.y0, out);
    if (distPointSegment(b, a.x1, a.y1, t) <= kPointTol)
        push(a, b, a.x1, a.y1, out);
}

// l straight, c an arc; swap tells that the arc is the first piece of the pair.
void lineArc(const Piece2& a, const Piece2& b, bool swap, std::vector<Hit>& out) {
    const Piece2& l = swap ? b : a;
    const Piece2& c = swap ? a : b;
    const double dx = l.x1 - l.x0, dy = l.y1 - l.y0;
    const double dd = dx * dx + dy * dy;
    // Foot of the perpendicular from the centre and its distance.
    const double tf = ((c.cx - l.x0) * dx + (c.cy - l.y0) * dy) / dd;
    const double fx = l.x0 + dx * tf, fy = l.y0 + dy * tf;
    const double h = std::hypot(c.cx - fx, c.cy - fy);
    if (h > c.r + kPointTol)
        return;
    std::vector<Hit> found;
    auto add = [&](double x, double y) {
        if (swap)
            push(c, l, x, y, found);
        else
            push(l, c, x, y, found);
    };
    if (h >= c.r - kPointTol) {
        add(fx, fy);
    } else {
        const double s = std::sqrt(c.r * c.r - h * h) / std::sqrt(dd);
        add(fx - dx * s, fy - dy * s);
        add(fx + dx * s, fy + dy * s);
    }
    // An end of one piece lying on the other is a crossing even where rounding
    // placed the computed point just beside it.
    add(l.x0, l.y0);
    add(l.x1, l.y1);
    add(c.x0, c.y0);
    add(c.x1, c.y1);
    for (const Hit& f : found) {
        bool dup = false;
        for (const Hit& o : out)
            dup = dup || std::hypot(o.x - f.x, o.y - f.y) <= kPointTol;
        if (!dup)
            out.push_back(f);
    }
}

void arcArc(const Piece2& a, const Piece2& b, std::vector<Hit>& out) {
    const double dx = b.cx - a.cx, dy = b.cy - a.cy;
    const double d = std::hypot(dx, dy);
    std::vector<Hit> found;
    if (d <= kPointTol && std::fabs(a.r - b.r) <= kPointTol) {
        // One circle: the arcs meet where an end of one lies on the other.
        push(a, b, b.x0, b.y0, found);
        push(a, b, b.x1, b.y1, found);
        push(a, b, a.x0, a.y0, found);
        push(a, b, a.x1, a.y1, found);
    } else if (d > kPointTol && d <= a.r + b.r + kPointTol &&
               d >= std::fabs(a.r - b.r) - kPointTol) {
        const double m = (d * d + a.r * a.r - b.r * b.r) / (2.0 * d);
        const double h2 = a.r * a.r - m * m;
        const double h = h2 > 0.0 ? std::sqrt(h2) : 0.0;
        const double px = a.cx + dx * m / d, py = a.cy + dy * m / d;
        if (h <= kPointTol) {
            push(a, b, px, py, found);
        } else {
            push(a, b, px - dy * h / d, py + dx * h / d, found);
            push(a, b, px + dy * h / d, py - dx * h / d, found);
        }
        push(a, b, b.x0, b.y0, found);
        push(a, b, b.x1, b.y1, found);
        push(a, b, a.x0, a.y0, found);
        push(a, b, a.x1, a.y1, found);
    }
    for (const Hit& f : found) {
        bool dup = false;
        for (const Hit& o : out)
            dup = dup || std::hypot(o.x - f.x, o.y - f.y) <= kPointTol;
        if (!dup)
            out.push_back(f);
    }
}

// Parity of the crossings of the ray from (x, y) to +x with an arc. The arc is
// cut at the top and bottom of its circle into pieces that are monotone in y and
// lie in one half (left or right of the centre) each; every piece is tested as a
// straight one would be, half-open in y, with the crossing x taken on the circle.
// The ends of the whole arc are its exact vertex points, so the rule agrees with
// the neighbouring pieces at the joints.
bool rayCrossesArc(const Piece2& p, double x, double y) {
    double cuts[4];
    int n = 0;
    cuts[n++] = 0.0;
    for (double a : {0.5 * kPi, 1.5 * kPi}) {
        const double rel = normAngle(p.sw > 0.0 ? a - p.a0 : p.a0 - a);
        const double t = rel / std::fabs(p.sw);
        if (t > 0.0 && t < 1.0)
            cuts[n++] = t;
    }
    if (n == 3 && cuts[2] < cuts[1])
        std::swap(cuts[1], cuts[2]);
    cuts[n++] = 1.0;
    bool odd = false;
    double xa = p.x0, ya = p.y0;
    for (int k = 1; k < n; ++k) {
        double xb, yb;
        if (k == n - 1) {
            xb = p.x1;
            yb = p.y1;
        } else {
            const double a = p.a0 + p.sw * cuts[k];
            xb = p.cx + p.r * std::cos(a);
            yb = p.cy + p.r * std::sin(a);
        }
        if ((ya > y) != (yb > y)) {
            const double am = p.a0 + p.sw * 0.5 * (cuts[k - 1] + cuts[k]);
            const double dy = y - p.cy;
            const double dx = std::sqrt(std::max(0.0, p.r * p.r - dy * dy));
            const double xc = std::cos(am) >= 0.0 ? p.cx + dx : p.cx - dx;
            if (xc > x)
                odd = !odd;
        }
        xa = xb;
        ya = yb;
    }
    (void)xa;
    return odd;
}

} // namespace

bool Piece2::isDot() const {
    return len <= kPointTol;
}

void Piece2::at(double t, double& x, double& y) const {
    if (t <= 0.0) {
        x = x0;
        y = y0;
    } else if (t >= 1.0) {
        x = x1;
        y = y1;
    } else if (arc) {
        const double a = a0 + sw * t;
        x = cx + r * std::cos(a);
        y = cy + r * std::sin(a);
    } else {
        x = x0 + (x1 - x0) * t;
        y = y0 + (y1 - y0) * t;
    }
}

bool Piece2::angleOn(double a, double& t) const {
    double rel = normAngle(sw > 0.0 ? a - a0 : a0 - a);
    const double tolA = kPointTol / r;
    const double s = std::fabs(sw);
    if (rel >= kTwoPi - tolA)
        rel = 0.0;
    if (rel > s + tolA)
        return false;
    t = std::min(1.0, rel / s);
    return true;
}

Piece2 makePiece(const CQorVertex& v) {
    Piece2 p;
    p.x0 = v.m_start.x;
    p.y0 = v.m_start.y;
    p.z0 = v.m_start.z;
    p.x1 = v.m_end.x;
    p.y1 = v.m_end.y;
    p.z1 = v.m_end.z;
    p.len = std::hypot(p.x1 - p.x0, p.y1 - p.y0);
    p.bad = !std::isfinite(p.len);
    p.minx = std::min(p.x0, p.x1);
    p.maxx = std::max(p.x0, p.x1);
    p.miny = std::min(p.y0, p.y1);
    p.maxy = std::max(p.y0, p.y1);
    const double b = v.m_bulge;
    if (b == 0.0 || !std::isfinite(b) || p.len <= kPointTol || p.bad)
        return p;
    p.arc = true;
    // Centre to the left of the chord for a positive bulge below 1 (see CQorVertex).
    const double wx = -(p.y1 - p.y0) / p.len, wy = (p.x1 - p.x0) / p.len;
    const double off = p.len * (1.0 - b * b) / (4.0 * b);
    p.cx = 0.5 * (p.x0 + p.x1) + wx * off;
    p.cy = 0.5 * (p.y0 + p.y1) + wy * off;
    p.r = p.len * (1.0 + b * b) / (4.0 * std::fabs(b));
    p.a0 = std::atan2(p.y0 - p.cy, p.x0 - p.cx);
    p.sw = 4.0 * std::atan(b);
    if (!std::isfinite(p.cx) || !std::isfinite(p.cy) || !std::isfinite(p.r)) {
        p.bad = true;
        return p;
    }
    // The box takes the quadrant points that lie on the arc.
    for (int q = 0; q < 4; ++q) {
        double t;
        const double a = q * 0.5 * kPi;
        if (!p.angleOn(a, t))
            continue;
        const double x = p.cx + p.r * std::cos(a), y = p.cy + p.r * std::sin(a);
        p.minx = std::min(p.minx, x);
        p.maxx = std::max(p.maxx, x);
        p.miny = std::min(p.miny, y);
        p.maxy = std::max(p.maxy, y);
    }
    return p;
}

void intersect(const Piece2& a, const Piece2& b, std::vector<Hit>& out) {
    if (a.bad || b.bad)
        return;
    if (a.minx > b.maxx + kPointTol || b.minx > a.maxx + kPointTol || a.miny > b.maxy + kPointTol ||
        b.miny > a.maxy + kPointTol)
        return;
    if (a.isDot() || b.isDot()) {
        const Piece2& dot = a.isDot() ? a : b;
        push(a, b, dot.x0, dot.y0, out);
        return;
    }
    if (!a.arc && !b.arc)
        lineLine(a, b, out);
    else if (a.arc && b.arc)
        arcArc(a, b, out);
    else
        lineArc(a, b, a.arc, out);
}

int classify(const Contour2& c, double x, double y) {
    if (c.pieces.empty() || x < c.minx - kPointTol || x > c.maxx + kPointTol ||
        y < c.miny - kPointTol || y > c.maxy + kPointTol)
        return -1;
    bool inside = false;
    for (const Piece2& p : c.pieces) {
        if (p.bad)
            continue;
        double t;
        if (x >= p.minx - kPointTol && x <= p.maxx + kPointTol && y >= p.miny - kPointTol &&
            y <= p.maxy + kPointTol && onPiece(p, x, y, t))
            return 0;
        if (p.arc) {
            if (y >= p.miny && y <= p.maxy && x <= p.maxx && rayCrossesArc(p, x, y))
                inside = !inside;
            continue;
        }
        // Ray to +x, half-open in y, so a ray through a joint counts once.
        if ((p.y0 > y) != (p.y1 > y)) {
            const double xc = p.x0 + (y - p.y0) * (p.x1 - p.x0) / (p.y1 - p.y0);
            if (xc > x)
                inside = !inside;
        }
    }
    return inside ? 1 : -1;
}

PlaneFrame::PlaneFrame(const CQorVector3d& normal) {
    CQorVector3d n = normal;
    if (n.abs() == 0.0)
        n = CQorVector3d::kZAxis;
    n.normalize();
    identity = std::fabs(n.x) <= 1e-12 && std::fabs(n.y) <= 1e-12 && n.z > 0.0;
    if (!identity) {
        toWorld.setToPlaneToWorld(n);
        toPlane = toWorld.inverse();
    }
}

std::vector<CQorVertex> PlaneFrame::bring(const CQorVertexArray& vl) const {
    std::vector<CQorVertex> r(vl.begin(), vl.end());
    if (identity) {
        // Already in a plane parallel to xy; arcs of an array facing -z turn the
        // other way about +z.
        if (vl.normal().z < 0.0)
            for (CQorVertex& v : r)
                v.m_bulge = -v.m_bulge;
        return r;
    }
    // toPlane is a rotation taking the normal to +z: the bulges stay.
    for (CQorVertex& v : r)
        v.transformBy(toPlane.m);
    return r;
}

CQorPoint3d PlaneFrame::back(double x, double y, double z) const {
    const CQorPoint3d p(x, y, z);
    return identity ? p : p * toWorld.m;
}

std::vector<Piece2> makePieces(const std::vector<CQorVertex>& vertices) {
    std::vector<Piece2> r;
    r.reserve(vertices.size());
    for (const CQorVertex& v : vertices)
        r.push_back(makePiece(v));
    return r;
}

std::vector<Piece2> makePieces(const PlaneFrame& frame, const CQorVertexArray& vl) {
    if (!frame.identity)
        return makePieces(frame.bring(vl));
    std::vector<Piece2> r;
    r.reserve(size_t(vl.len()));
    const bool flip = vl.normal().z < 0.0;
    for (const CQorVertex& v : vl) {
        if (flip) {
            CQorVertex w(v);
            w.m_bulge = -w.m_bulge;
            r.push_back(makePiece(w));
        } else {
            r.push_back(makePiece(v));
        }
    }
    return r;
}

namespace {

Contour2 closeContour(std::vector<Piece2> pieces) {
    Contour2 c;
    c.pieces = std::move(pieces);
    if (c.pieces.empty())
        return c;
    const Piece2& first = c.pieces.front();
    const Piece2 last = c.pieces.back();
    if (std::hypot(last.x1 - first.x0, last.y1 - first.y0) > kPointTol) {
        CQorVertex closing(CQorPoint3d(last.x1, last.y1, last.z1),
                           CQorPoint3d(first.x0, first.y0, first.z0), 0.0);
        c.pieces.push_back(makePiece(closing));
    }
    c.minx = c.maxx = c.pieces.front().x0;
    c.miny = c.maxy = c.pieces.front().y0;
    for (const Piece2& p : c.pieces) {
        c.minx = std::min(c.minx, p.minx);
        c.maxx = std::max(c.maxx, p.maxx);
        c.miny = std::min(c.miny, p.miny);
        c.maxy = std::max(c.maxy, p.maxy);
    }
    return c;
}

} // namespace

Contour2 makeContour(const std::vector<CQorVertex>& vertices) {
    return closeContour(makePieces(vertices));
}

Contour2 makeContour(const PlaneFrame& frame, const CQorVertexArray& vl) {
    return closeContour(makePieces(frame, vl));
}

} // namespace detail
} // namespace QOR

namespace QOR {
namespace detail {

CQorVector3d areaVector(const CQorVertexArray& vl) {
    CQorVector3d area;
    if (vl.len() == 0)
        return area;
    CQorVector3d n = vl.normal();
    if (n.abs() == 0.0)
        n = CQorVector3d::kZAxis;
    n.normalize();
    const CQorPoint3d ref = vl[0].m_start;
    for (const CQorVertex& v : vl) {
        area += (v.m_start - ref) * (v.m_end - ref) * 0.5;
        CQorPoint3d c;
        double r;
        if (v.arcCentre(c, r, n)) {
            const double th = v.sweep();
            area += n * (0.5 * r * r * (th - std::sin(th)));
        }
    }
    return area;
}

} // namespace detail
} // namespace QOR
