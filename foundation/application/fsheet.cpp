#include "foundation/application/fsheet.h"

#include "foundation/application/host_services.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"
#include "foundation/data/dta_file_pointer.h"
#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_geom_fcn.h"
#include "foundation/geometry/qor_matrix3d.h"

#include <cmath>

namespace QOR {
namespace {

constexpr std::uint32_t kFaceRef = 1;
constexpr std::uint32_t kFaceOther = 2;
constexpr std::uint32_t kCap = 3;
// A profile is never repeated more often than this, whatever run it covers.
constexpr int kMaxPeriods = 10000;

CQorVector3d leftOf(const CQorVector3d& d) {
    return CQorVector3d(-d.y, d.x, 0.0);
}

// The definition named by the item's "STACK".
const CQorDataItem* definitionOf(const CQorDataItem* item) {
    CQorArrayTempl<CQorString> stack;
    const CQorDataKey key(L"STACK");
    if (!item->get(stack, &key))
        return nullptr;
    return fsheet_get(stack);
}

bool readRun(const CQorDataItem* item, CQorVertexArray& run) {
    const CQorDataKey key(L"VL");
    if (!item->get(run, &key))
        return false;
    run = g_vl_expl(run, 1);
    for (int i = run.len() - 1; i >= 0; --i)
        if (run[i].m_start.distanceTo(run[i].m_end) <= kPointTol)
            run.removeAt(i);
    return run.len() > 0;
}

double readThickness(const CQorDataItem* item) {
    double s = 0.0;
    const CQorDataKey key(L"S");
    item->get(s, &key);
    return std::isfinite(s) ? s : 0.0;
}

void placeByMtx(const CQorDataItem* item, CQorArrayTempl<CQorVertexArray>& vll, CQorVertexArray* a,
                CQorVertexArray* b) {
    CQorMatrix3d m;
    const CQorDataKey key(L"MTX");
    if (!item->get(m, &key))
        return;
    for (CQorVertexArray& vl : vll)
        vl.transformBy(m);
    if (a != nullptr)
        a->transformBy(m);
    if (b != nullptr)
        b->transformBy(m);
}

// The face at distance s to the left of `ref` (straight pieces and arcs that meet
// their neighbours tangentially). Straight pieces meeting at a corner are joined
// at the intersection of their offset lines. False when an arc would lose its
// radius.
bool offsetLeft(const CQorVertexArray& ref, double s, CQorVertexArray& out) {
    out = CQorVertexArray();
    for (const CQorVertex& v : ref) {
        if (v.m_bulge == 0.0) {
            CQorVector3d d = v.m_end - v.m_start;
            d.normalize();
            const CQorVector3d n = leftOf(d) * s;
            out.append(CQorVertex(v.m_start + n, v.m_end + n, 0.0));
            continue;
        }
        CQorPoint3d c;
        double r = 0.0;
        if (!v.arcCentre(c, r))
            return false;
        const double nr = v.m_bulge > 0.0 ? r - s : r + s;
        if (!(nr > kPointTol))
            return false;
        const CQorVector3d ds = (v.m_start - c) * (nr / r);
        const CQorVector3d de = (v.m_end - c) * (nr / r);
        out.append(CQorVertex(c + ds, c + de, v.m_bulge));
    }
    for (int i = 0; i + 1 < out.len(); ++i) {
        CQorVertex& p = out[i];
        CQorVertex& q = out[i + 1];
        if (p.m_end.distanceTo(q.m_start) <= 1e-9)
            continue;
        if (p.m_bulge == 0.0 && q.m_bulge == 0.0) {
            // Intersection of the two lines.
            const CQorVector3d d1 = p.m_end - p.m_start;
            const CQorVector3d d2 = q.m_end - q.m_start;
            const double den = d1.x * d2.y - d1.y * d2.x;
            if (std::fabs(den) > 1e-15) {
                const CQorVector3d w = q.m_start - p.m_start;
                const double t = (w.x * d2.y - w.y * d2.x) / den;
                const CQorPoint3d x = p.m_start + d1 * t;
                p.m_end = x;
                q.m_start = x;
                continue;
            }
        }
        q.m_start = p.m_end; // tangent within rounding
    }
    return true;
}

void setAttr(CQorVertexArray& vl, std::uint32_t attr) {
    for (CQorVertex& v : vl)
        v.m_attr = attr;
}

// The closed contour of the layout: ref forward, end cap, other backward, start
// cap.
CQorVertexArray sheetContour(const CQorVertexArray& ref, const CQorVertexArray& other) {
    CQorVertexArray a = ref;
    setAttr(a, kFaceRef);
    CQorVertexArray b = other;
    setAttr(b, kFaceOther);
    b.revert();
    CQorVertexArray c = a;
    CQorVertex cap(a[-1].m_end, b[0].m_start, 0.0);
    cap.m_attr = kCap;
    c.append(cap);
    c += b;
    CQorVertex back(b[-1].m_end, a[0].m_start, 0.0);
    back.m_attr = kCap;
    c.append(back);
    return c;
}

// An open line through the points, each inner corner rounded by its radius.
bool roundedLine(const CQorPoint3dArray& p, const CQorArrayTempl<double>& radius,
                 CQorVertexArray& out) {
    out = CQorVertexArray();
    const int n = p.len();
    CQorPoint3d cur = p[0];
    for (int i = 1; i < n; ++i) {
        if (i + 1 == n || radius[i] <= 0.0) {
            if (p[i].distanceTo(cur) > kPointTol)
                out.append(CQorVertex(cur, p[i], 0.0));
            cur = p[i];
            continue;
        }
        CQorVector3d d1 = p[i - 1] - p[i];
        CQorVector3d d2 = p[i + 1] - p[i];
        const double l1 = d1.abs(), l2 = d2.abs();
        d1.normalize();
        d2.normalize();
        const double turn = -(d1.x * d2.y - d1.y * d2.x);
        if (std::fabs(turn) < 1e-12)
            continue; // straight on: no corner
        const double phi = std::acos(std::fmax(-1.0, std::fmin(1.0, d1.dot(d2))));
        const double t = radius[i] / std::tan(phi / 2.0);
        if (t > l1 / 2.0 + kPointTol || t > l2 / 2.0 + kPointTol)
            return false;
        const CQorPoint3d t1 = p[i] + d1 * t;
        const CQorPoint3d t2 = p[i] + d2 * t;
        if (t1.distanceTo(cur) > kPointTol)
            out.append(CQorVertex(cur, t1, 0.0));
        out.append(CQorVertex(t1, t2, std::tan((kPi - phi) / 4.0) * (turn > 0 ? 1.0 : -1.0)));
        cur = t2;
    }
    return out.len() > 0;
}

double runLength(const CQorVertexArray& run) {
    double l = 0.0;
    for (const CQorVertex& v : run)
        l += v.m_start.distanceTo(v.m_end);
    return l;
}

void clearAll(CQorArrayTempl<CQorVertexArray>& vll, CQorVertexArray& a, CQorVertexArray& b) {
    vll = CQorArrayTempl<CQorVertexArray>();
    a = CQorVertexArray();
    b = CQorVertexArray();
}

} // namespace

bool fsheet_sid(CDtaFilePointer* file, CQorString& out) {
    if (file == nullptr || file->root() == nullptr)
        return false;
    const CQorDataItem* root = file->root();
    CQorString id;
    const CQorDataKey idKey(L"ID");
    if (root->get(id, &idKey) && id.len() > 0) {
        out = id;
        return true;
    }
    CQorArrayTempl<CQorString> stack;
    const CQorDataKey stackKey(L"STACK");
    if (root->get(stack, &stackKey) && stack.len() > 0 && stack[-1].len() > 0) {
        out = stack[-1];
        return true;
    }
    return false;
}

bool fsheet_vll_fnc(const CQorDataItem* item, CQorArrayTempl<CQorVertexArray>& vll,
                    CQorVertexArray& a, CQorVertexArray& b) {
    clearAll(vll, a, b);
    if (item == nullptr)
        return false;
    CQorVertexArray run;
    const double s = readThickness(item);
    if (!readRun(item, run) || !(s > 0.0))
        return false;
    CQorVertexArray other;
    if (!offsetLeft(run, s, other))
        return false;
    vll.append(sheetContour(run, other));
    a = run;
    b = other;
    placeByMtx(item, vll, &a, &b);
    return true;
}

bool fsheet_vll_fillet(const CQorDataItem* item, CQorArrayTempl<CQorVertexArray>& vll,
                       CQorVertexArray& a, CQorVertexArray& b) {
    clearAll(vll, a, b);
    if (item == nullptr)
        return false;
    const CQorDataItem* def = definitionOf(item);
    CQorVertexArray run;
    const double s = readThickness(item);
    if (def == nullptr || !readRun(item, run) || !(s > 0.0))
        return false;
    CQorPoint3dArray period;
    const CQorDataKey filletKey(L"FILLET_P"), pointsKey(L"POINTS"), rKey(L"R");
    double r = 0.0;
    const bool filleted = def->get(period, &filletKey);
    if (filleted)
        def->get(r, &rKey);
    else if (!def->get(period, &pointsKey))
        return false;
    if (period.len() < 2 || !std::isfinite(r))
        return false;
    const double pitch = period[-1].x - period[0].x;
    if (!(pitch > kPointTol))
        return false;
    const double length = runLength(run);
    const int count = static_cast<int>(std::fmin(kMaxPeriods, std::ceil(length / pitch - 1e-9)));
    // The reference face in the run's frame: the periods one after the other.
    CQorPoint3dArray pts;
    for (int k = 0; k < (count < 1 ? 1 : count); ++k)
        for (int i = k == 0 ? 0 : 1; i < period.len(); ++i)
            pts.append(CQorPoint3d(period[i].x - period[0].x + k * pitch, period[i].y, 0.0));
    // Radii on the reference face: the inner radius r inside every bend.
    CQorArrayTempl<double> radius;
    for (int i = 0; i < pts.len(); ++i) {
        double ri = 0.0;
        if (filleted && r > 0.0 && i > 0 && i + 1 < pts.len()) {
            const CQorVector3d d1 = pts[i] - pts[i - 1];
            const CQorVector3d d2 = pts[i + 1] - pts[i];
            const double turn = d1.x * d2.y - d1.y * d2.x;
            ri = turn > 0.0 ? r + s : r; // a left bend has the other face inside
        }
        radius[i] = ri;
    }
    CQorVertexArray ref;
    CQorVertexArray other;
    if (!roundedLine(pts, radius, ref) || !offsetLeft(ref, s, other))
        return false;
    // Along the run's first piece, from its start.
    CQorVector3d u = run[0].m_end - run[0].m_start;
    u.normalize();
    CQorMatrix3d place;
    place.setCoordSystem(run[0].m_start, u, CQorVector3d::kZAxis * u, CQorVector3d::kZAxis);
    ref.transformBy(place);
    other.transformBy(place);
    vll.append(sheetContour(ref, other));
    a = ref;
    b = other;
    placeByMtx(item, vll, &a, &b);
    return true;
}

bool fsheet_vll_region(const CQorDataItem* item, CQorArrayTempl<CQorVertexArray>& vll) {
    vll = CQorArrayTempl<CQorVertexArray>();
    if (item == nullptr)
        return false;
    const CQorDataItem* def = definitionOf(item);
    if (def == nullptr)
        return false;
    CQorArrayTempl<CQorVertexArray> region;
    const CQorDataKey regionKey(L"REGION"), segKey(L"SEG");
    if (!dataItemGet(def, &regionKey, region) || region.len() == 0)
        return false;
    double seg = 0.0;
    def->get(seg, &segKey);
    CQorVertexArray run;
    const double length = readRun(item, run) ? runLength(run) : 0.0;
    int copies = 1;
    if (seg > 0.0 && std::isfinite(seg) && length > 0.0)
        copies = static_cast<int>(std::fmin(kMaxPeriods, std::ceil(length / seg - 1e-9)));
    for (int k = 0; k < (copies < 1 ? 1 : copies); ++k)
        for (const CQorVertexArray& vl : region) {
            CQorVertexArray c = vl;
            c.move(CQorVector3d(k * (seg > 0.0 ? seg : 0.0), 0.0, 0.0));
            vll.append(c);
        }
    placeByMtx(item, vll, nullptr, nullptr);
    return true;
}

namespace {

// The pieces of a contour of the layout with one face attribute, running with
// growing x; their mean height in `height`.
CQorVertexArray facePieces(const CQorVertexArray& contour, std::uint32_t attr, double& height) {
    CQorVertexArray f;
    double sum = 0.0;
    for (const CQorVertex& v : contour)
        if (v.m_attr == attr) {
            f.append(v);
            sum += (v.m_start.y + v.m_end.y) / 2.0;
        }
    height = f.len() > 0 ? sum / f.len() : 0.0;
    if (f.len() > 0 && f[0].m_start.x > f[-1].m_end.x)
        f.revert();
    return f;
}

CQorVertexArray faceOf(const CQorVertexArray& contour, bool upper) {
    double h1 = 0.0, h2 = 0.0;
    CQorVertexArray f1 = facePieces(contour, kFaceRef, h1);
    CQorVertexArray f2 = facePieces(contour, kFaceOther, h2);
    if (f1.len() == 0 || f2.len() == 0)
        return CQorVertexArray();
    return (h1 > h2) == upper ? f1 : f2;
}

} // namespace

bool fsheet_vll_outline(const CQorDataItem* item, const CQorVertexArray& top,
                        const CQorVertexArray& bot,
                        const CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& regions,
                        CQorArrayTempl<CQorVertexArray>& vll) {
    vll = CQorArrayTempl<CQorVertexArray>();
    (void)item;
    const CQorVertexArray lower = faceOf(bot, true);
    CQorVertexArray upper = faceOf(top, false);
    if (lower.len() == 0 || upper.len() == 0)
        return false;
    CQorVertexArray fill = lower;
    setAttr(fill, kFaceRef);
    setAttr(upper, kFaceOther);
    upper.revert();
    CQorVertex cap(fill[-1].m_end, upper[0].m_start, 0.0);
    cap.m_attr = kCap;
    fill.append(cap);
    fill += upper;
    CQorVertex back(upper[-1].m_end, fill[0].m_start, 0.0);
    back.m_attr = kCap;
    fill.append(back);
    vll.append(fill);
    const CQorArrayTempl<CQorVertexArray> outer(vll);
    for (const CQorArrayTempl<CQorVertexArray>& region : regions) {
        if (region.len() == 0 || region[0].len() == 0)
            continue;
        bool inside = true;
        for (const CQorVertex& v : region[0])
            if (g_vll_pt_inside(outer, v.m_start) <= 0 || g_vll_pt_inside(outer, v.mid()) <= 0)
                inside = false;
        if (inside)
            vll.append(region[0]);
    }
    return true;
}

bool fsheet_axis_vl(const CQorArrayTempl<CQorVertexArray>& vll, double thickness,
                    CQorVertexArray& out) {
    out = CQorVertexArray();
    bool any = false;
    CQorPoint3d lo, hi;
    for (const CQorVertexArray& vl : vll) {
        CQorPoint3d a, b;
        if (!vl.extents(a, b))
            continue;
        lo = any ? p_min(lo, a) : a;
        hi = any ? p_max(hi, b) : b;
        any = true;
    }
    if (!any)
        return false;
    const double t = std::isfinite(thickness) ? std::fabs(thickness) : 0.0;
    out.append(CQorVertex(CQorPoint3d(lo.x, lo.y - t, 0.0), CQorPoint3d(lo.x, hi.y + t, 0.0)));
    return true;
}

// The catalogue is the host's.
CQorDataItem* fsheet_get(const CQorArrayTempl<CQorString>& stack) {
    if (stack.len() == 0)
        return nullptr;
    return hostServices().sheetGet(stack);
}

} // namespace QOR
