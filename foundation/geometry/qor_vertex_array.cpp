#include "foundation/geometry/qor_vertex_array.h"

#include "foundation/geometry/constants.h"
#include "foundation/geometry/g_planar_p.h"
#include "foundation/geometry/qor_arc_p.h"
#include "foundation/geometry/qor_geom_fcn.h"

#include <algorithm>
#include <cmath>
#include <vector>

using QOR::detail::ArcFrame;
using QOR::detail::arcFrame;

CQorVertexArray::CQorVertexArray(const CQorVertex& v) {
    append(v);
}

CQorVertexArray::~CQorVertexArray() = default;

CQorVertexArray& CQorVertexArray::append(const CQorVertex& v) {
    CQorArrayTempl<CQorVertex>::append(v);
    return *this;
}

CQorVertexArray& CQorVertexArray::operator+=(const CQorVertexArray& other) {
    CQorArrayTempl<CQorVertex>::operator+=(other);
    return *this;
}

CQorVertexArray& CQorVertexArray::fromPoints(const CQorPoint3dArray& pts, bool closed) {
    setLogicalLength(0);
    if (pts.len() < 2)
        return *this;
    for (int i = 0; i + 1 < pts.len(); ++i)
        append(CQorVertex(pts[i], pts[i + 1], 0.0));
    if (closed && pts[-1] != pts[0])
        append(CQorVertex(pts[-1], pts[0], 0.0));
    return *this;
}

namespace {

void widen(CQorPoint3d& lo, CQorPoint3d& hi, const CQorPoint3d& p) {
    lo.set(std::min(lo.x, p.x), std::min(lo.y, p.y), std::min(lo.z, p.z));
    hi.set(std::max(hi.x, p.x), std::max(hi.y, p.y), std::max(hi.z, p.z));
}

} // namespace

bool CQorVertexArray::extents(CQorPoint3d& min, CQorPoint3d& max) const {
    if (len() == 0) {
        min = CQorPoint3d::kOrigin;
        max = CQorPoint3d::kOrigin;
        return false;
    }
    min = max = (*this)[0].m_start;
    for (const CQorVertex& v : *this) {
        widen(min, max, v.m_start);
        widen(min, max, v.m_end);
        ArcFrame f;
        if (!arcFrame(v, m_normal, f))
            continue;
        // Coordinate k of the circle is c_k + r (u_k cos phi + v_k sin phi): its
        // extremes are at phi = atan2(v_k, u_k) and that plus pi.
        for (int k = 0; k < 3; ++k) {
            if (f.u[k] == 0.0 && f.v[k] == 0.0)
                continue;
            const double phi = std::atan2(f.v[k], f.u[k]);
            for (double cand : {phi, phi + QOR::kPi}) {
                double a = f.sweep > 0.0 ? cand : -cand;
                a = std::fmod(a, 2.0 * QOR::kPi);
                if (a < 0.0)
                    a += 2.0 * QOR::kPi;
                if (a <= std::fabs(f.sweep))
                    widen(min, max, f.at(cand));
            }
        }
    }
    return true;
}

CQorVertexArray& CQorVertexArray::transformBy(const double (*m)[4]) {
    CQorVector3d n = m_normal * m;
    if (n.abs() == 0.0 || !std::isfinite(n.abs()))
        n = CQorVector3d::kZAxis;
    n.normalize();
    for (CQorVertex& v : *this)
        v.transformBy(m);
    m_normal = n;
    return *this;
}

CQorVertexArray CQorVertexArray::getTransformedCopy(const double (*m)[4]) const {
    CQorVertexArray r(*this);
    r.transformBy(m);
    return r;
}

bool CQorVertexArray::isClosed() const {
    return len() > 0 && (*this)[-1].m_end == (*this)[0].m_start;
}

bool CQorVertexArray::isContinuous() const {
    for (int i = 1; i < len(); ++i)
        if ((*this)[i].m_start != (*this)[i - 1].m_end)
            return false;
    return true;
}

CQorVertexArray& CQorVertexArray::move(const CQorVector3d& v) {
    for (CQorVertex& x : *this) {
        x.m_start += v;
        x.m_end += v;
    }
    return *this;
}

CQorVertexArray& CQorVertexArray::revert() {
    std::reverse(begin(), end());
    for (CQorVertex& v : *this) {
        std::swap(v.m_start, v.m_end);
        v.m_bulge = -v.m_bulge;
    }
    return *this;
}

bool CQorVertexArray::breakVertex(int i, const CQorPoint3d& p) {
    if (i < 0 || i >= len())
        return false;
    const CQorVertex v = (*this)[i];
    if (p == v.m_start || p == v.m_end || !v.isPoint(p, m_normal))
        return false;
    const double t = v.paramOf(p, m_normal);
    CQorVertex a = v.subPiece(0.0, t, m_normal);
    CQorVertex b = v.subPiece(t, 1.0, m_normal);
    // The break point is the given point, so both halves meet there exactly.
    a.m_end = p;
    b.m_start = p;
    (*this)[i] = a;
    insertAt(i + 1, b);
    return true;
}

CQorPoint3dArray CQorVertexArray::pts(bool flag, double tolerance) const {
    CQorPoint3dArray r;
    for (int i = 0; i < len(); ++i) {
        const CQorVertex& v = (*this)[i];
        if (r.len() == 0 || r[-1] != v.m_start)
            r.append(v.m_start);
        if (v.m_bulge != 0.0) {
            const int n = QOR::g_vx_split_dif(v, tolerance);
            for (int k = 1; k < n; ++k)
                r.append(v.pointAt(double(k) / n, m_normal));
        }
        r.append(v.m_end);
    }
    if (!flag && r.len() > 1 && r[-1] == r[0])
        r.setLogicalLength(r.len() - 1);
    return r;
}

CQorPoint3dArray CQorVertexArray::intersectWith(const CQorVertexArray& other, unsigned mode) const {
    CQorPoint3dArray r;
    intersectWith(r, other, mode);
    return r;
}

bool CQorVertexArray::intersectWith(CQorPoint3dArray& out, const CQorVertexArray& other,
                                    unsigned mode) const {
    using namespace QOR::detail;
    if (len() == 0 || other.len() == 0)
        return false;
    const PlaneFrame frame(m_normal);
    const std::vector<Piece2> mine = makePieces(frame, *this);
    // Straight pieces of other outside the box of this array cannot cross it and
    // are not built at all: a short row against a long contour stays cheap.
    double x0 = mine.front().minx, x1 = mine.front().maxx;
    double y0 = mine.front().miny, y1 = mine.front().maxy;
    for (const Piece2& a : mine) {
        x0 = std::min(x0, a.minx);
        x1 = std::max(x1, a.maxx);
        y0 = std::min(y0, a.miny);
        y1 = std::max(y1, a.maxy);
    }
    x0 -= QOR::kPointTol;
    x1 += QOR::kPointTol;
    y0 -= QOR::kPointTol;
    y1 += QOR::kPointTol;
    struct Found {
        int i;
        double t;
        CQorPoint3d p;
    };
    std::vector<Found> found;
    std::vector<Hit> hits;
    // Crosses one piece of other with every piece of this; true when mode 0 has
    // its answer.
    auto cross = [&](const Piece2& b) {
        for (int i = 0; i < int(mine.size()); ++i) {
            const Piece2& a = mine[size_t(i)];
            hits.clear();
            intersect(a, b, hits);
            for (const Hit& h : hits) {
                if (!std::isfinite(h.x) || !std::isfinite(h.y))
                    continue;
                const double z = a.z0 + (a.z1 - a.z0) * h.ta;
                found.push_back({i, h.ta, frame.back(h.x, h.y, z)});
                if (mode == 0)
                    return true;
            }
        }
        return false;
    };
    bool done = false;
    if (frame.identity) {
        const bool flip = other.normal().z < 0.0;
        for (int k = 0; k < other.len() && !done; ++k) {
            const CQorVertex& v = other[k];
            if (v.m_bulge == 0.0 &&
                ((v.m_start.x < x0 && v.m_end.x < x0) || (v.m_start.x > x1 && v.m_end.x > x1) ||
                 (v.m_start.y < y0 && v.m_end.y < y0) || (v.m_start.y > y1 && v.m_end.y > y1)))
                continue;
            if (flip) {
                CQorVertex w(v);
                w.m_bulge = -w.m_bulge;
                done = cross(makePiece(w));
            } else {
                done = cross(makePiece(v));
            }
        }
    } else {
        for (const Piece2& b : makePieces(frame, other))
            if ((done = cross(b)))
                break;
    }
    if (mode == 0) {
        if (found.empty())
            return false;
        out.append(found.front().p);
        return true;
    }
    std::stable_sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
        return a.i != b.i ? a.i < b.i : a.t < b.t;
    });
    const int before = out.len();
    for (const Found& f : found) {
        // Sorted along this array, a point met twice comes twice in a row; on a
        // closed array the last may also repeat the first.
        const bool seen = out.len() > before && (out[-1] == f.p || out[before] == f.p);
        if (!seen)
            out.append(f.p);
    }
    return out.len() > before;
}
