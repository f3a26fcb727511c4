// Sorting contours into regions of outer contours and holes.
#include "foundation/geometry/constants.h"
#include "foundation/geometry/g_planar_p.h"
#include "foundation/geometry/qor_geom_fcn.h"

#include <cmath>
#include <vector>

namespace QOR {

namespace {

// Absolute area of a closed contour about its own normal, arcs included.
double areaOf(const CQorVertexArray& vl) {
    return detail::areaVector(vl).abs();
}

// Whether contour a lies inside contour b: the first point of a that is not on b
// decides.
bool inside(const CQorVertexArray& a, const CQorVertexArray& b) {
    CQorArrayTempl<CQorVertexArray> outer;
    outer.append(b);
    for (const CQorVertex& v : a) {
        for (const CQorPoint3d& p : {v.m_start, v.mid(a.normal())}) {
            const int in = g_vll_pt_inside(outer, p);
            if (in != 0)
                return in > 0;
        }
    }
    return false;
}

} // namespace

CQorArrayTempl<CQorVertexArray> g_vll_regions_prepare(const CQorArrayTempl<CQorVertexArray>& list) {
    CQorArrayTempl<CQorVertexArray> r;
    for (const CQorVertexArray& vl : list) {
        CQorVertexArray clean;
        clean.normalSet(vl.normal());
        for (const CQorVertex& v : vl)
            if (v.m_start.distanceTo(v.m_end) > kPointTol)
                clean.append(v);
        for (CQorVertexArray run : g_vl_to_vll(clean)) {
            if (!run.isClosed())
                run.append(CQorVertex(run[-1].m_end, run[0].m_start, 0.0));
            r.append(run);
        }
    }
    return r;
}

CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>
g_vll_regions(const CQorArrayTempl<CQorVertexArray>& list, unsigned long mode) {
    const int n = list.len();
    std::vector<double> area(size_t(n), 0.0);
    for (int i = 0; i < n; ++i)
        area[size_t(i)] = areaOf(list[i]);
    // contains[i * n + j]: contour i lies inside contour j.
    std::vector<char> contains(size_t(n) * size_t(n), 0);
    std::vector<int> depth(size_t(n), 0);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
            if (i != j && list[i].len() > 0 && list[j].len() > 0 &&
                area[size_t(j)] >= area[size_t(i)] && inside(list[i], list[j])) {
                contains[size_t(i) * size_t(n) + size_t(j)] = 1;
                ++depth[size_t(i)];
            }
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    std::vector<int> regionOf(size_t(n), -1);
    const bool orient = (mode & 4u) != 0;
    for (int i = 0; i < n; ++i) {
        if (list[i].len() == 0 || depth[size_t(i)] % 2 != 0)
            continue;
        CQorVertexArray outer = list[i];
        if (orient && !g_vl_orient(outer, outer.normal()))
            outer.revert();
        regionOf[size_t(i)] = regions.len();
        CQorArrayTempl<CQorVertexArray> region;
        region.append(outer);
        regions.append(region);
    }
    for (int i = 0; i < n; ++i) {
        if (list[i].len() == 0 || depth[size_t(i)] % 2 == 0)
            continue;
        // The parent is the outer contour around it one level up.
        int parent = -1;
        for (int j = 0; j < n; ++j)
            if (contains[size_t(i) * size_t(n) + size_t(j)] &&
                depth[size_t(j)] == depth[size_t(i)] - 1)
                parent = j;
        if (parent < 0 || regionOf[size_t(parent)] < 0)
            continue;
        CQorVertexArray hole = list[i];
        if (orient && g_vl_orient(hole, hole.normal()))
            hole.revert();
        regions[regionOf[size_t(parent)]].append(hole);
    }
    return regions;
}

} // namespace QOR
