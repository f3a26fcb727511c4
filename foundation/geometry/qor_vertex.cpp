#include "foundation/geometry/qor_vertex.h"

#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_arc_p.h"

#include <cmath>

using QOR::detail::ArcFrame;
using QOR::detail::arcFrame;
using QOR::detail::lerp;

CQorVertex::CQorVertex(const CQorPoint3d& start, const CQorPoint3d& end, double bulge)
    : m_start(start), m_end(end), m_bulge(bulge) {}

CQorVertex::~CQorVertex() = default;

CQorVertex& CQorVertex::set(const CQorPoint3d& start, const CQorPoint3d& end, double bulge) {
    m_start = start;
    m_end = end;
    m_bulge = bulge;
    return *this;
}

CQorVertex& CQorVertex::transformBy(const double (*m)[4]) {
    m_start *= m;
    m_end *= m;
    const double det = m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
                       m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
                       m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
    // The sense of rotation about the transformed normal turns with the sign of
    // the determinant: (M u) x (M v) . (M n) = det(M) for u x v = n.
    if (det < 0.0)
        m_bulge = -m_bulge;
    return *this;
}

CQorPoint3d CQorVertex::lotp(const CQorPoint3d& p, const CQorVector3d& normal) const {
    ArcFrame f;
    if (!arcFrame(*this, normal, f)) {
        const CQorVector3d d = m_end - m_start;
        const double dd = d.dot(d);
        if (dd == 0.0)
            return m_start;
        double t = (p - m_start).dot(d) / dd;
        t = t < 0.0 ? 0.0 : (t > 1.0 ? 1.0 : t);
        return lerp(m_start, m_end, t);
    }
    CQorVector3d d = p - f.c;
    d -= f.n * d.dot(f.n);
    if (d.abs() > 0.0) {
        const CQorPoint3d q = f.c + d.normalize() * f.r;
        if (f.angleOn(f.along(q)))
            return q;
    }
    return p.distanceTo(m_start) <= p.distanceTo(m_end) ? m_start : m_end;
}

CQorPoint3d CQorVertex::mid(const CQorVector3d& normal) const {
    return pointAt(0.5, normal);
}

bool CQorVertex::isPoint(const CQorPoint3d& p, const CQorVector3d& normal) const {
    if (p == m_start || p == m_end)
        return true;
    ArcFrame f;
    if (!arcFrame(*this, normal, f))
        return lotp(p, normal).distanceTo(p) <= QOR::kPointTol;
    const CQorVector3d d = p - f.c;
    const double h = d.dot(f.n);
    const CQorVector3d inPlane = d - f.n * h;
    if (std::fabs(h) > QOR::kPointTol || std::fabs(inPlane.abs() - f.r) > QOR::kPointTol)
        return false;
    return f.angleOn(f.along(p));
}

double CQorVertex::bulgLen() const {
    const double len = m_start.distanceTo(m_end);
    if (m_bulge == 0.0 || len == 0.0)
        return len;
    const double b = std::fabs(m_bulge);
    const double r = len * (1.0 + b * b) / (4.0 * b);
    return r * 4.0 * std::atan(b);
}

double CQorVertex::sweep() const {
    return 4.0 * std::atan(m_bulge);
}

CQorPoint3d CQorVertex::pointAt(double t, const CQorVector3d& normal) const {
    if (t == 0.0)
        return m_start;
    if (t == 1.0)
        return m_end;
    ArcFrame f;
    if (!arcFrame(*this, normal, f))
        return lerp(m_start, m_end, t);
    return f.at(f.sweep * t);
}

CQorVertex CQorVertex::subPiece(double t0, double t1, const CQorVector3d& normal) const {
    CQorVertex r(*this);
    r.m_start = pointAt(t0, normal);
    r.m_end = pointAt(t1, normal);
    // A piece of no length is a point and is left straight.
    if (m_bulge != 0.0)
        r.m_bulge = std::tan(sweep() * (t1 - t0) / 4.0);
    return r;
}

bool CQorVertex::arcCentre(CQorPoint3d& centre, double& radius, const CQorVector3d& normal) const {
    ArcFrame f;
    if (!arcFrame(*this, normal, f))
        return false;
    centre = f.c;
    radius = f.r;
    return true;
}

double CQorVertex::paramOf(const CQorPoint3d& p, const CQorVector3d& normal) const {
    const CQorPoint3d q = lotp(p, normal);
    if (q == m_start)
        return 0.0;
    if (q == m_end)
        return 1.0;
    ArcFrame f;
    if (!arcFrame(*this, normal, f)) {
        const CQorVector3d d = m_end - m_start;
        const double dd = d.dot(d);
        return dd == 0.0 ? 0.0 : (q - m_start).dot(d) / dd;
    }
    const double a = f.along(q) / std::fabs(f.sweep);
    return a > 1.0 ? 1.0 : a;
}
