// Private: the circle of an arc piece, shared by the geometry of the library.
#pragma once

#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_vertex.h"

#include <cmath>

namespace QOR {
namespace detail {

// The circle of an arc: P(phi) = c + r (cos(phi) u + sin(phi) v), phi from 0 to
// sweep, with v = n x u so that a positive sweep turns counter-clockwise about n.
struct ArcFrame {
    CQorPoint3d c;
    double r = 0.0;
    CQorVector3d u, v, n;
    double sweep = 0.0;

    CQorPoint3d at(double phi) const { return c + (u * std::cos(phi) + v * std::sin(phi)) * r; }
    // Angle of q about the centre, counted from the start in the sense of the
    // sweep, in [0, 2 pi).
    double along(const CQorPoint3d& q) const {
        const CQorVector3d d = q - c;
        double a = std::atan2(d.dot(v), d.dot(u));
        if (sweep < 0.0)
            a = -a;
        if (a < 0.0)
            a += 2.0 * kPi;
        return a;
    }
    bool angleOn(double a) const {
        const double tolA = QOR::kPointTol / r;
        return a <= std::fabs(sweep) + tolA || a >= 2.0 * kPi - tolA;
    }
};

inline CQorVector3d unitNormal(const CQorVector3d& normal) {
    CQorVector3d n = normal;
    if (n.abs() == 0.0)
        return CQorVector3d::kZAxis;
    return n.normalize();
}

inline bool arcFrame(const CQorVertex& vx, const CQorVector3d& normal, ArcFrame& f) {
    if (vx.m_bulge == 0.0 || !std::isfinite(vx.m_bulge))
        return false;
    const CQorVector3d n = unitNormal(normal);
    const CQorVector3d chord = vx.m_end - vx.m_start;
    const double len = chord.abs();
    if (len <= QOR::kPointTol)
        return false;
    CQorVector3d w = n * chord;
    if (w.abs() <= 0.0)
        return false;
    w.normalize();
    const double b = vx.m_bulge;
    const CQorPoint3d chordMid(0.5 * (vx.m_start.x + vx.m_end.x), 0.5 * (vx.m_start.y + vx.m_end.y),
                               0.5 * (vx.m_start.z + vx.m_end.z));
    f.n = n;
    f.c = chordMid + w * (len * (1.0 - b * b) / (4.0 * b));
    f.r = len * (1.0 + b * b) / (4.0 * std::fabs(b));
    f.u = vx.m_start - f.c;
    f.u.normalize();
    f.v = n * f.u;
    f.v.normalize();
    f.sweep = 4.0 * std::atan(b);
    return true;
}

inline CQorPoint3d lerp(const CQorPoint3d& a, const CQorPoint3d& b, double t) {
    return CQorPoint3d(a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t, a.z + (b.z - a.z) * t);
}

} // namespace detail
} // namespace QOR
