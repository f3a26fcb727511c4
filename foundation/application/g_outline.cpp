#include "foundation/application/g_outline.h"

#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"
#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_matrix3d.h"

#include <cmath>

namespace QOR {
namespace {

// One corner of a section: its point and the radius of the fillet that rounds it
// (0.0: a sharp corner).
struct Corner {
    double x;
    double y;
    double r;
};

double parmAt(const CQorArrayTempl<double>& parms, int i) {
    return i < parms.len() ? parms[i] : 0.0;
}

// The closed contour through the corners in order, each corner with a radius
// replaced by its tangent arc. False when a fillet does not fit on the edges
// beside it or a corner point repeats.
bool roundedPolygon(const Corner* c, int n, CQorVertexArray& out) {
    out.setLogicalLength(0);
    if (n < 3)
        return false;
    CQorArrayTempl<CQorPoint3d> tin;
    CQorArrayTempl<CQorPoint3d> tout;
    CQorArrayTempl<double> bulge;
    CQorArrayTempl<double> tangent;
    for (int i = 0; i < n; ++i) {
        const Corner& a = c[(i + n - 1) % n];
        const Corner& p = c[i];
        const Corner& b = c[(i + 1) % n];
        const CQorPoint3d pp(p.x, p.y, 0.0);
        CQorVector3d d1(a.x - p.x, a.y - p.y, 0.0);
        CQorVector3d d2(b.x - p.x, b.y - p.y, 0.0);
        if (d1.abs() < kPointTol || d2.abs() < kPointTol)
            return false;
        d1.normalize();
        d2.normalize();
        double t = 0.0;
        double bg = 0.0;
        const double turn = -(d1.x * d2.y - d1.y * d2.x); // (p - a) x (b - p), sign only
        if (p.r > 0.0 && std::fabs(turn) > 1e-12) {
            const double phi = std::acos(std::fmax(-1.0, std::fmin(1.0, d1.dot(d2))));
            t = p.r / std::tan(phi / 2.0);
            const double sweep = kPi - phi;
            bg = std::tan(sweep / 4.0) * (turn > 0.0 ? 1.0 : -1.0);
        }
        tangent[i] = t;
        tin[i] = pp + d1 * t;
        tout[i] = pp + d2 * t;
        bulge[i] = bg;
    }
    for (int i = 0; i < n; ++i) {
        const Corner& p = c[i];
        const Corner& b = c[(i + 1) % n];
        const double edge = std::hypot(b.x - p.x, b.y - p.y);
        if (tangent[i] + tangent[(i + 1) % n] > edge + kPointTol)
            return false;
    }
    for (int i = 0; i < n; ++i) {
        if (bulge[i] != 0.0)
            out.append(CQorVertex(tin[i], tout[i], bulge[i]));
        const CQorPoint3d& next = tin[(i + 1) % n];
        if (tout[i].distanceTo(next) > kPointTol)
            out.append(CQorVertex(tout[i], next, 0.0));
    }
    // Close exactly: the end of the last piece is the start of the first.
    if (out.len() > 0)
        out[out.len() - 1].m_end = out[0].m_start;
    return true;
}

CQorVertexArray circleAt(double r) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(r, 0, 0), CQorPoint3d(-r, 0, 0), 1.0));
    vl.append(CQorVertex(CQorPoint3d(-r, 0, 0), CQorPoint3d(r, 0, 0), 1.0));
    return vl;
}

// Outer contour, bridge to the start of the inner contour, the inner contour
// reversed, bridge back. Both contours start on the positive x axis.
CQorVertexArray keyhole(const CQorVertexArray& outer, CQorVertexArray inner) {
    CQorVertexArray vl = outer;
    inner.revert();
    const CQorPoint3d po = outer[0].m_start;
    const CQorPoint3d pi = inner[0].m_start;
    vl.append(CQorVertex(po, pi, 0.0));
    vl += inner;
    vl.append(CQorVertex(pi, po, 0.0));
    return vl;
}

// A rectangle centred on the origin with all corners rounded by r, starting at
// the middle of its right side.
bool roundedRect(double w, double h, double r, CQorVertexArray& out) {
    const Corner c[] = {{w / 2, 0, 0},
                        {w / 2, h / 2, r},
                        {-w / 2, h / 2, r},
                        {-w / 2, -h / 2, r},
                        {w / 2, -h / 2, r}};
    return roundedPolygon(c, 5, out);
}

bool buildSection(int code, const CQorArrayTempl<double>& parms, CQorVertexArray& vl) {
    for (double v : parms)
        if (!std::isfinite(v))
            return false;
    const double p1 = std::fabs(parmAt(parms, 0));
    const double p2 = std::fabs(parmAt(parms, 1));
    const double p3 = std::fabs(parmAt(parms, 2));
    const double p4 = parmAt(parms, 3);
    const double p5 = parmAt(parms, 4);
    auto radius = [](double r) { return r > 0.0 ? r : 0.0; };
    switch (code) {
    case kOutlineFlat: {
        if (p1 <= 0.0 || p2 <= 0.0)
            return false;
        const Corner c[] = {
            {-p1 / 2, -p2 / 2, 0}, {p1 / 2, -p2 / 2, 0}, {p1 / 2, p2 / 2, 0}, {-p1 / 2, p2 / 2, 0}};
        return roundedPolygon(c, 4, vl);
    }
    case kOutlineSquare:
        if (p1 <= 0.0)
            return false;
        return roundedRect(p1, p1, radius(p2), vl);
    case kOutlineRound:
        if (p1 <= 0.0)
            return false;
        vl = circleAt(p1 / 2);
        return true;
    case kOutlineTube: {
        const double ri = p1 / 2 - p2;
        if (p1 <= 0.0 || p2 <= 0.0 || ri <= 0.0)
            return false;
        vl = keyhole(circleAt(p1 / 2), circleAt(ri));
        return true;
    }
    case kOutlineRhs: {
        const double t = p3;
        const double r = radius(p4);
        if (p1 <= 0.0 || p2 <= 0.0 || t <= 0.0 || 2 * t >= p1 || 2 * t >= p2)
            return false;
        CQorVertexArray outer;
        CQorVertexArray inner;
        if (!roundedRect(p1, p2, r, outer) ||
            !roundedRect(p1 - 2 * t, p2 - 2 * t, r > t ? r - t : 0.0, inner))
            return false;
        vl = keyhole(outer, inner);
        return true;
    }
    case kOutlineAngleEqual:
    case kOutlineAngleUnequal: {
        const bool equal = code == kOutlineAngleEqual;
        const double a = p1;
        const double b = equal ? p1 : p2;
        const double t = equal ? p2 : p3;
        const double r1 = radius(equal ? p3 : p4);
        const double r2 = radius(equal ? p4 : p5);
        if (a <= 0.0 || b <= 0.0 || t <= 0.0 || t >= a || t >= b)
            return false;
        const Corner c[] = {{0, 0, 0}, {a, 0, 0}, {a, t, r2}, {t, t, r1}, {t, b, r2}, {0, b, 0}};
        return roundedPolygon(c, 6, vl);
    }
    case kOutlineChannel: {
        const double h = p1, b = p2, tw = p3, tf = std::fabs(p4), r = radius(p5);
        if (h <= 0.0 || b <= 0.0 || tw <= 0.0 || tf <= 0.0 || tw >= b || 2 * tf >= h)
            return false;
        const Corner c[] = {{0, -h / 2, 0},       {b, -h / 2, 0},      {b, -h / 2 + tf, 0},
                            {tw, -h / 2 + tf, r}, {tw, h / 2 - tf, r}, {b, h / 2 - tf, 0},
                            {b, h / 2, 0},        {0, h / 2, 0}};
        return roundedPolygon(c, 8, vl);
    }
    case kOutlineIBeam:
    case kOutlineHBeam: {
        const double h = p1, b = p2, tw = p3, tf = std::fabs(p4), r = radius(p5);
        if (h <= 0.0 || b <= 0.0 || tw <= 0.0 || tf <= 0.0 || tw >= b || 2 * tf >= h)
            return false;
        const double x = b / 2, y = h / 2, w = tw / 2, f = h / 2 - tf;
        const Corner c[] = {{-x, -y, 0}, {x, -y, 0}, {x, -f, 0},  {w, -f, r},
                            {w, f, r},   {x, f, 0},  {x, y, 0},   {-x, y, 0},
                            {-x, f, 0},  {-w, f, r}, {-w, -f, r}, {-x, -f, 0}};
        return roundedPolygon(c, 12, vl);
    }
    case kOutlineTee: {
        const double h = p1, b = p2, t = p3, r = radius(p4);
        if (h <= 0.0 || b <= 0.0 || t <= 0.0 || t >= h || t >= b)
            return false;
        const Corner c[] = {{-b / 2, -t, 0}, {-t / 2, -t, r}, {-t / 2, -h, 0}, {t / 2, -h, 0},
                            {t / 2, -t, r},  {b / 2, -t, 0},  {b / 2, 0, 0},   {-b / 2, 0, 0}};
        return roundedPolygon(c, 8, vl);
    }
    case kOutlineBentPlate: {
        const double a = p1, b = p2, t = std::fabs(p4);
        const double theta = p3 * kPi / 180.0;
        if (a <= 0.0 || b <= 0.0 || t <= 0.0 || !(theta > 0.0 && theta < kPi))
            return false;
        const double ux = std::cos(theta), uy = std::sin(theta);
        const double nx = uy, ny = -ux; // towards the first leg
        const double s = t * (1.0 + ux) / uy;
        const double ix = t * nx + s * ux, iy = t * ny + s * uy;
        if (ix >= a || s >= b)
            return false;
        const Corner c[] = {{0, 0, 0},
                            {a, 0, 0},
                            {a, t, 0},
                            {ix, iy, 0},
                            {b * ux + t * nx, b * uy + t * ny, 0},
                            {b * ux, b * uy, 0}};
        return roundedPolygon(c, 6, vl);
    }
    default:
        return false;
    }
}

void mirror(CQorVertexArray& vl, bool inX, bool inY) {
    if (!inX && !inY)
        return;
    CQorMatrix3d m;
    m.setCoordSystem(CQorPoint3d::kOrigin, CQorVector3d(inX ? -1.0 : 1.0, 0, 0),
                     CQorVector3d(0, inY ? -1.0 : 1.0, 0), CQorVector3d(0, 0, 1.0));
    vl.transformBy(m);
    if (inX != inY)
        vl.revert();
}

} // namespace

CQorVertexArray g_outline(int code, const CQorVector3d& base, const CQorArrayTempl<double>& parms) {
    CQorVertexArray vl;
    if (!buildSection(code, parms, vl)) {
        vl.setLogicalLength(0);
        return vl;
    }
    const bool neg1 = parmAt(parms, 0) < 0.0;
    const bool neg2 = parmAt(parms, 1) < 0.0;
    switch (code) {
    case kOutlineAngleEqual:
    case kOutlineChannel:
        mirror(vl, neg1, false);
        break;
    case kOutlineAngleUnequal:
    case kOutlineBentPlate:
        mirror(vl, neg1, neg2);
        break;
    case kOutlineTee:
        mirror(vl, false, neg1);
        break;
    default:
        break;
    }
    vl.move(base);
    return vl;
}

bool g_outline(CQorVertexArray& vl, const CQorDataItem* item, Qor::lUnit unit) {
    vl.setLogicalLength(0);
    if (item == nullptr)
        return false;
    int code = 0;
    const CQorDataKey codeKey(L"CODE");
    if (!item->get(code, &codeKey))
        return false;
    int stored = -1;
    const CQorDataKey unitKey(L"UNIT");
    item->get(stored, &unitKey);
    const Qor::lUnit from = static_cast<Qor::lUnit>(stored);
    CQorArrayTempl<double> parms;
    int count = 0;
    for (int i = 1; i <= 6; ++i) {
        double v = 0.0;
        CQorString name;
        name.format(L"P%d", i);
        const CQorDataKey key(name.c_str());
        if (item->get(v, &key))
            count = i;
        const bool angle = code == kOutlineBentPlate && i == 3;
        if (!angle)
            acadUnitCv(v, from, unit);
        parms[i - 1] = v;
    }
    parms.setLogicalLength(count);
    CQorPoint3d base;
    const CQorDataKey baseKey(L"BASE");
    item->get(base, &baseKey);
    CQorVector3d move(base.x, base.y, base.z);
    acadUnitCv(move.x, from, unit);
    acadUnitCv(move.y, from, unit);
    acadUnitCv(move.z, from, unit);
    vl = g_outline(code, move, parms);
    return vl.len() > 0;
}

} // namespace QOR
