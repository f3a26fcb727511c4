#include "foundation/application/qor_solid.h"
#include "foundation/geometry/constants.h"

#include "foundation/geometry/constants.h"

#include <cmath>

namespace {

using QOR::kPi;
constexpr double kFacingTol = 1e-12;
// Circles of a smaller radius and sides of a smaller length are below the
// kernel's resolution and are not projected.
constexpr double kResolution = QOR::kPointTol;

// The half width of the range of angles phi, centred on the view's azimuth psi,
// over which a face whose normal has the radial part cb and the axial part sb
// faces the viewer (direction with radial length rho and axial part dz): pi for
// all around, below 0 for nowhere.
double frontHalfWidth(double cb, double sb, double rho, double dz) {
    const double c = cb * rho;
    const double s = sb * dz;
    if (c <= kFacingTol)
        return s > kFacingTol ? kPi : -1.0;
    const double x = -s / c;
    if (x <= -1.0)
        return kPi;
    if (x >= 1.0 - kFacingTol)
        return -1.0;
    return std::acos(x);
}

// The arc of the circle of radius r at height z from angle a to angle b
// (counter-clockwise about +z), in pieces of at most half a turn.
CQorVertexArrayEx circleArc(double r, double z, double a, double b) {
    CQorVertexArrayEx vl;
    const int pieces = b - a > kPi + 1e-12 ? 2 : 1;
    const double step = (b - a) / pieces;
    for (int i = 0; i < pieces; ++i) {
        const double a0 = a + i * step;
        const double a1 = i + 1 == pieces ? b : a0 + step;
        vl.append(CQorVertex(CQorPoint3d(r * std::cos(a0), r * std::sin(a0), z),
                             CQorPoint3d(r * std::cos(a1), r * std::sin(a1), z),
                             std::tan((a1 - a0) / 4.0)));
    }
    vl.normalSet(CQorVector3d::kZAxis);
    return vl;
}

} // namespace

CQor_Solid::CQor_Solid() = default;

CQor_Solid::~CQor_Solid() = default;

void CQor_Solid::setRevolved(const CQorArrayTempl<CQorPoint3d>& profile) {
    m_profile = profile;
    m_closed = CQorArrayTempl<CQorPoint3d>();
    m_built = false;
    m_evaluated = false;
    m_volume = 0.0;
}

bool CQor_Solid::setDrill(double diameter, double depth, double tipAngle) {
    if (!(diameter > 0.0) || !(depth > 0.0) || !(tipAngle > 0.0) || !std::isfinite(diameter) ||
        !std::isfinite(depth) || !std::isfinite(tipAngle))
        return false;
    const double r = diameter / 2.0;
    CQorArrayTempl<CQorPoint3d> p;
    p.append(CQorPoint3d(r, 0.0, 0.0));
    p.append(CQorPoint3d(r, -depth, 0.0));
    if (tipAngle < 180.0) {
        const double tip = r / std::tan(tipAngle * kPi / 360.0);
        p.append(CQorPoint3d(0.0, -depth - tip, 0.0));
    }
    setRevolved(p);
    return true;
}

void CQor_Solid::mtxSet(const CQorMatrix3d& mtx) {
    m_mtx = mtx;
    m_evaluated = false;
}

bool CQor_Solid::solid() {
    m_built = false;
    m_evaluated = false;
    m_volume = 0.0;
    m_closed = CQorArrayTempl<CQorPoint3d>();
    const int n = m_profile.len();
    if (n < 2)
        return false;
    for (int i = 0; i < n; ++i) {
        const CQorPoint3d& p = m_profile[i];
        if (!std::isfinite(p.x) || !std::isfinite(p.y) || p.x < 0.0)
            return false;
        if (i > 0 && !(p.y < m_profile[i - 1].y))
            return false;
        if (p.x == 0.0 && i > 0 && i + 1 < n)
            return false;
    }
    CQorArrayTempl<CQorPoint3d> c;
    if (m_profile[0].x > 0.0)
        c.append(CQorPoint3d(0.0, m_profile[0].y, 0.0));
    for (const CQorPoint3d& p : m_profile)
        c.append(CQorPoint3d(p.x, p.y, 0.0));
    if (m_profile[n - 1].x > 0.0)
        c.append(CQorPoint3d(0.0, m_profile[n - 1].y, 0.0));
    if (c.len() < 3)
        return false;
    // Convex: every turn of the closed profile (with the axis closing it) goes
    // clockwise in the (radius, height) plane, or straight on.
    const int m = c.len();
    bool turns = false;
    for (int i = 0; i < m; ++i) {
        const CQorPoint3d& a = c[(i + m - 1) % m];
        const CQorPoint3d& b = c[i];
        const CQorPoint3d& d = c[(i + 1) % m];
        const double cross = (b.x - a.x) * (d.y - b.y) - (b.y - a.y) * (d.x - b.x);
        const double scale = (b - a).abs() * (d - b).abs();
        if (cross > 1e-12 * scale)
            return false;
        if (cross < -1e-12 * scale)
            turns = true;
    }
    if (!turns)
        return false;
    m_closed = c;
    m_built = true;
    return true;
}

bool CQor_Solid::evaluate(QOR_MODELER_TYPE modeler) {
    m_evaluated = false;
    m_volume = 0.0;
    if (modeler != 1 || !m_built)
        return false;
    double v = 0.0;
    for (int i = 0; i + 1 < m_closed.len(); ++i) {
        const double r1 = m_closed[i].x, r2 = m_closed[i + 1].x;
        const double h = m_closed[i].y - m_closed[i + 1].y;
        v += kPi * h * (r1 * r1 + r1 * r2 + r2 * r2) / 3.0;
    }
    const double scale = std::fabs(m_mtx.det3());
    m_volume = v * scale;
    m_evaluated = true;
    return true;
}

bool CQor_Solid::project(const CQorMatrix3d& view, bool hidden,
                         CQorArrayTempl<CQorVertexArrayEx>& first,
                         CQorArrayTempl<CQorVertexArrayEx>& second, QOR_MODELER_TYPE modeler) {
    first = CQorArrayTempl<CQorVertexArrayEx>();
    second = CQorArrayTempl<CQorVertexArrayEx>();
    if (modeler != 1 || !m_evaluated)
        return false;
    if (std::fabs(view.det3()) < 1e-300 || std::fabs(m_mtx.det3()) < 1e-300)
        return false;
    // Local to view coordinates, and the direction to the viewer in local ones.
    const CQorMatrix3d toView = view.inverse() * m_mtx;
    CQorVector3d d = view.axis(2) * m_mtx.inverse();
    if (!(d.abs() > 0.0) || !std::isfinite(d.abs()))
        return false;
    d.normalize();
    const double rho = std::hypot(d.x, d.y);
    const double psi = rho > kFacingTol ? std::atan2(d.y, d.x) : 0.0;
    const int m = m_closed.len();
    // Per face (segment i to i + 1 of the closed profile): its front half width.
    CQorArrayTempl<double> width;
    CQorArrayTempl<double> cosB;
    CQorArrayTempl<double> sinB;
    for (int i = 0; i + 1 < m; ++i) {
        const double tr = m_closed[i + 1].x - m_closed[i].x;
        const double tz = m_closed[i + 1].y - m_closed[i].y;
        const double len = std::hypot(tr, tz);
        cosB[i] = -tz / len;
        sinB[i] = tr / len;
        width[i] = frontHalfWidth(cosB[i], sinB[i], rho, d.z);
    }
    // Circle edges: the profile points off the axis between two faces.
    for (int k = 1; k + 1 < m; ++k) {
        const double r = m_closed[k].x;
        const double z = m_closed[k].y;
        if (r < kResolution)
            continue;
        const double w = std::fmax(width[k - 1], width[k]);
        CQorVertexArrayEx seen;
        CQorVertexArrayEx rest;
        if (w >= kPi) {
            seen = circleArc(r, z, 0.0, 2.0 * kPi);
        } else if (w > 0.0) {
            seen = circleArc(r, z, psi - w, psi + w);
            rest = circleArc(r, z, psi + w, psi + 2.0 * kPi - w);
        } else {
            rest = circleArc(r, z, 0.0, 2.0 * kPi);
        }
        if (seen.len() > 0) {
            seen.transformBy(toView);
            seen.m_edge = k;
            seen.m_flags = 1;
            first.append(seen);
        }
        if (hidden && rest.len() > 0) {
            rest.transformBy(toView);
            rest.m_edge = k;
            rest.m_flags = 1;
            second.append(rest);
        }
    }
    // Silhouettes: the generators of a side where it turns away from the viewer.
    for (int i = 0; i + 1 < m; ++i) {
        const double w = width[i];
        if (cosB[i] <= kFacingTol || !(w > 0.0) || w >= kPi)
            continue;
        const CQorPoint3d& a = m_closed[i];
        const CQorPoint3d& b = m_closed[i + 1];
        if (std::hypot(b.x - a.x, b.y - a.y) < kResolution)
            continue;
        for (double phi : {psi - w, psi + w}) {
            const double c = std::cos(phi), s = std::sin(phi);
            CQorVertexArrayEx line(CQorVertexArray(CQorVertex(
                CQorPoint3d(a.x * c, a.x * s, a.y), CQorPoint3d(b.x * c, b.x * s, b.y), 0.0)));
            line.transformBy(toView);
            line.m_edge = i;
            line.m_flags = 2;
            first.append(line);
        }
    }
    return true;
}
