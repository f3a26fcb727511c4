// Punching vertex arrays by contours and regions, cutting, point in region.
#include "foundation/geometry/constants.h"
#include "foundation/geometry/g_planar_p.h"
#include "foundation/geometry/qor_geom_fcn.h"

#include <algorithm>
#include <vector>

namespace QOR {

namespace {

using detail::Contour2;
using detail::Hit;
using detail::Piece2;
using detail::PlaneFrame;

// The contours of a region in the plane of the frame.
std::vector<Contour2> regionIn(const PlaneFrame& frame,
                               const CQorArrayTempl<CQorVertexArray>& regions) {
    std::vector<Contour2> r;
    for (const CQorVertexArray& c : regions)
        r.push_back(detail::makeContour(frame, c));
    return r;
}

// 1 inside, 0 on a contour, -1 outside of the region: outer contour first,
// further contours are holes.
int classifyRegion(const std::vector<Contour2>& region, double x, double y) {
    if (region.empty())
        return -1;
    const int outer = detail::classify(region[0], x, y);
    if (outer <= 0)
        return outer;
    for (size_t h = 1; h < region.size(); ++h) {
        const int in = detail::classify(region[h], x, y);
        if (in >= 0)
            return in == 0 ? 0 : -1;
    }
    return 1;
}

// Splits each vertex of vl at its crossings with the contours, keeps the parts
// whose middle classifies as wanted (the boundary counting as inside) and joins
// consecutive kept parts into runs.
CQorArrayTempl<CQorVertexArray> punch(const CQorVertexArray& vl,
                                      const std::vector<Contour2>& region, const PlaneFrame& frame,
                                      bool inside) {
    CQorArrayTempl<CQorVertexArray> runs;
    CQorVertexArray cur;
    cur.normalSet(vl.normal());
    auto flush = [&]() {
        if (cur.len() > 0)
            runs.append(cur);
        cur.setLogicalLength(0);
    };
    const std::vector<Piece2> flat = detail::makePieces(frame, vl);
    std::vector<Hit> hits;
    std::vector<double> cuts;
    std::vector<Contour2> band(region.size());
    for (int i = 0; i < vl.len(); ++i) {
        const CQorVertex& v = vl[i];
        const Piece2& a = flat[size_t(i)];
        if (i > 0 && v.m_start != vl[i - 1].m_end)
            flush();
        cuts.assign({0.0, 1.0});
        // Only contour pieces that reach into the height of this piece can cross
        // it or be met by the ray (to +x) from a point of it; a point inside a
        // contour always has contour pieces on its height. So the contours are
        // cut down to those pieces once per vertex.
        for (size_t c = 0; c < region.size(); ++c) {
            const Contour2& whole = region[c];
            Contour2& part = band[c];
            part.pieces.clear();
            if (whole.empty() || a.bad || a.miny > whole.maxy + kPointTol ||
                whole.miny > a.maxy + kPointTol)
                continue;
            for (const Piece2& b : whole.pieces)
                if (b.maxy >= a.miny - kPointTol && b.miny <= a.maxy + kPointTol)
                    part.pieces.push_back(b);
            if (part.pieces.empty())
                continue;
            part.minx = part.maxx = part.pieces.front().minx;
            part.miny = part.maxy = part.pieces.front().miny;
            for (const Piece2& b : part.pieces) {
                part.minx = std::min(part.minx, b.minx);
                part.maxx = std::max(part.maxx, b.maxx);
                part.miny = std::min(part.miny, b.miny);
                part.maxy = std::max(part.maxy, b.maxy);
            }
            if (a.isDot() || a.minx > part.maxx + kPointTol || part.minx > a.maxx + kPointTol)
                continue;
            for (const Piece2& b : part.pieces) {
                hits.clear();
                detail::intersect(a, b, hits);
                for (const Hit& h : hits)
                    if (h.ta > 0.0 && h.ta < 1.0)
                        cuts.push_back(h.ta);
            }
        }
        std::sort(cuts.begin(), cuts.end());
        // Cuts closer than the tolerance to the one before or to the end are
        // dropped, so that no part is shorter than the tolerance.
        const double len = v.bulgLen();
        size_t kept = 1;
        for (size_t k = 1; k + 1 < cuts.size(); ++k)
            if ((cuts[k] - cuts[kept - 1]) * len > kPointTol && (1.0 - cuts[k]) * len > kPointTol)
                cuts[kept++] = cuts[k];
        cuts[kept++] = 1.0;
        cuts.resize(kept);
        double from = 0.0;
        for (size_t k = 1; k < cuts.size(); ++k) {
            const double to = cuts[k];
            double x, y;
            a.at(0.5 * (from + to), x, y);
            const bool in = classifyRegion(band, x, y) >= 0;
            if (in == inside)
                cur.append(v.subPiece(from, to, vl.normal()));
            else
                flush();
            from = to;
        }
    }
    flush();
    return runs;
}

} // namespace

CQorArrayTempl<CQorVertexArray> g_vl_punch(CQorVertexArray vl, const CQorVertexArray& contour,
                                           bool inside) {
    const PlaneFrame frame(vl.normal());
    std::vector<Contour2> region;
    region.push_back(detail::makeContour(frame, contour));
    return punch(vl, region, frame, inside);
}

CQorArrayTempl<CQorVertexArray>
g_vl_punch_reg(CQorVertexArray vl, const CQorArrayTempl<CQorVertexArray>& regions, bool inside) {
    const PlaneFrame frame(vl.normal());
    return punch(vl, regionIn(frame, regions), frame, inside);
}

int g_vll_pt_inside(const CQorArrayTempl<CQorVertexArray>& list, const CQorPoint3d& p) {
    if (list.len() == 0)
        return -1;
    const PlaneFrame frame(list[0].normal());
    const CQorPoint3d q = frame.identity ? p : p * frame.toPlane.m;
    return classifyRegion(regionIn(frame, list), q.x, q.y);
}

CQorVertexArray g_vl_cut(CQorVertexArray vl, const CQorPoint3d& p0, const CQorPoint3d& p1) {
    CQorVertexArray r;
    r.normalSet(vl.normal());
    int i0 = -1, i1 = -1;
    for (int i = 0; i < vl.len() && (i0 < 0 || i1 < 0); ++i) {
        if (i0 < 0 && vl[i].isPoint(p0, vl.normal()))
            i0 = i;
        if (i1 < 0 && vl[i].isPoint(p1, vl.normal()))
            i1 = i;
    }
    if (i0 < 0 || i1 < 0)
        return r;
    double t0 = vl[i0].paramOf(p0, vl.normal());
    double t1 = vl[i1].paramOf(p1, vl.normal());
    if (i0 > i1 || (i0 == i1 && t0 > t1)) {
        std::swap(i0, i1);
        std::swap(t0, t1);
    }
    if (i0 == i1) {
        r.append(vl[i0].subPiece(t0, t1, vl.normal()));
        return r;
    }
    if (t0 < 1.0)
        r.append(vl[i0].subPiece(t0, 1.0, vl.normal()));
    for (int i = i0 + 1; i < i1; ++i)
        r.append(vl[i]);
    if (t1 > 0.0 || r.len() == 0)
        r.append(vl[i1].subPiece(0.0, t1, vl.normal()));
    return r;
}

} // namespace QOR
