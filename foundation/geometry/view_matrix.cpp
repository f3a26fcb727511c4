#include "foundation/geometry/view_matrix.h"

#include <cmath>

namespace {

// Relative size of the horizontal part of a view direction below which the
// direction counts as vertical and the world's x axis becomes the view's x axis.
constexpr double kVerticalTol = 1.0e-12;

} // namespace

namespace QOR {

CQorMatrix3d g_mtx_view(CQorVector3d dir, CQorPoint3d origin, bool keepOrigin) {
    CQorVector3d z = dir;
    const double len = z.abs();
    if (!(len > 0.0) || !std::isfinite(len))
        z.set(0.0, 0.0, 1.0);
    else
        z = z * (1.0 / len);
    CQorVector3d x;
    if (std::hypot(z.x, z.y) <= kVerticalTol) {
        x.set(1.0, 0.0, 0.0);
        z.set(0.0, 0.0, z.z < 0.0 ? -1.0 : 1.0);
    } else {
        x = CQorVector3d::kZAxis * z;
        x.normalize();
    }
    const CQorVector3d y = z * x;

    CQorMatrix3d m;
    const CQorVector3d* rows[3] = {&x, &y, &z};
    for (int r = 0; r < 3; ++r) {
        const CQorVector3d& a = *rows[r];
        m.m[r][0] = a.x;
        m.m[r][1] = a.y;
        m.m[r][2] = a.z;
        // Where the turned origin lands, moved back to origin or to zero.
        const double turned = a.x * origin.x + a.y * origin.y + a.z * origin.z;
        const double back = r == 0 ? origin.x : (r == 1 ? origin.y : origin.z);
        m.m[r][3] = (keepOrigin ? back : 0.0) - turned;
    }
    return m;
}

} // namespace QOR
