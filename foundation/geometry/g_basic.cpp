// Small free functions of points, vectors, angles and vertices.
#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_arc_p.h"
#include "foundation/geometry/qor_geom_fcn.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace QOR {

CQorPoint3d p_min(const CQorPoint3d& a, const CQorPoint3d& b) {
    return CQorPoint3d(std::min(a.x, b.x), std::min(a.y, b.y), std::min(a.z, b.z));
}

CQorPoint3d p_max(const CQorPoint3d& a, const CQorPoint3d& b) {
    return CQorPoint3d(std::max(a.x, b.x), std::max(a.y, b.y), std::max(a.z, b.z));
}

CQorPoint3d polar(const CQorPoint3d& p, double angle, double dist) {
    return CQorPoint3d(p.x + dist * std::cos(angle), p.y + dist * std::sin(angle), p.z);
}

CQorVector3d polar(double angle, double dist) {
    return CQorVector3d(dist * std::cos(angle), dist * std::sin(angle), 0.0);
}

double g_ang(double a) {
    if (!std::isfinite(a))
        return a;
    const double full = 2.0 * kPi;
    a = std::fmod(a, full);
    if (a < 0.0)
        a += full;
    // fmod of a tiny negative angle plus a full turn can round up to the turn.
    return a >= full ? 0.0 : a;
}

double nan() {
    return std::numeric_limits<double>::quiet_NaN();
}

CQorVertex& g_vx_xy(CQorVertex& vx) {
    vx.m_start.z = 0.0;
    vx.m_end.z = 0.0;
    return vx;
}

} // namespace QOR
