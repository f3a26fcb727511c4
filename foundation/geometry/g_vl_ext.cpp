// Boxes and orientation of vertex arrays.
#include "foundation/geometry/g_planar_p.h"
#include "foundation/geometry/qor_arc_p.h"
#include "foundation/geometry/qor_geom_fcn.h"
#include "foundation/geometry/qor_matrix3d.h"

#include <cmath>

namespace QOR {

CQorPoint3dArray g_vl_extmax(const CQorVertexArray& vl, double angle) {
    CQorPoint3dArray r;
    CQorPoint3d lo, hi;
    if (angle == 0.0) {
        vl.extents(lo, hi);
        r.append(lo).append(hi);
        return r;
    }
    CQorMatrix3d toFrame, toWorld;
    toFrame.setToRotation(-angle, CQorVector3d::kZAxis, CQorPoint3d::kOrigin);
    toWorld.setToRotation(angle, CQorVector3d::kZAxis, CQorPoint3d::kOrigin);
    vl.getTransformedCopy(toFrame.m).extents(lo, hi);
    r.append(lo * toWorld.m).append(hi * toWorld.m);
    return r;
}

CQorVertexArray g_vl_extrect(const CQorVertexArray& vl, double offset) {
    CQorVertexArray r;
    CQorPoint3d lo, hi;
    if (!vl.extents(lo, hi))
        return r;
    const double x0 = lo.x - offset, y0 = lo.y - offset;
    const double x1 = hi.x + offset, y1 = hi.y + offset;
    const double z = lo.z;
    const CQorPoint3d a(x0, y0, z), b(x1, y0, z), c(x1, y1, z), d(x0, y1, z);
    r.append(CQorVertex(a, b)).append(CQorVertex(b, c)).append(CQorVertex(c, d));
    r.append(CQorVertex(d, a));
    return r;
}

bool g_vl_orient(const CQorVertexArray& vl, const CQorVector3d& axis) {
    if (vl.len() == 0)
        return false;
    return detail::areaVector(vl).dot(axis) > 0.0;
}

void g_vll_orient(CQorArrayTempl<CQorVertexArray>& list, const CQorVector3d& axis) {
    for (CQorVertexArray& contour : list)
        if (contour.isClosed() && !g_vl_orient(contour, axis))
            contour.revert();
}

} // namespace QOR
