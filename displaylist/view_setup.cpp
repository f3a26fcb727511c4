#include "displaylist/view_setup.h"

#include "foundation/geometry.h"
#include "foundation/records.h"

#include <algorithm>

CQorMatrix3d getViewMtx(CQorPoint3d min, CQorPoint3d max, int height, int width, double margin) {
    if (height == 0)
        height = 240;
    if (width == 0)
        width = 320;
    const double m = margin * std::max(max.x - min.x, max.y - min.y);
    max += CQorVector3d(m, m, 0.0);
    min -= CQorVector3d(m, m, 0.0);
    const double dx = max.x - min.x;
    const double dy = max.y - min.y;
    if (!(dx > 0.0) || !(dy > 0.0))
        return CQorMatrix3d();
    const double w = width, h = height;
    const double s = w / h > dx / dy ? h / dy : w / dx;
    min -= CQorVector3d((w / s - dx) / 2.0, (h / s - dy) / 2.0, 0.0);
    CQorMatrix3d b, a;
    b.setCoordSystem(CQorPoint3d(-s * min.x, -s * min.y, 0.0), CQorVector3d(s, 0.0, 0.0),
                     CQorVector3d(0.0, s, 0.0), CQorVector3d(0.0, 0.0, s));
    a.setCoordSystem(CQorPoint3d(0.0, h, 0.0), CQorVector3d::kXAxis, -CQorVector3d::kYAxis,
                     CQorVector3d::kZAxis);
    return a * b;
}

CQorVector3d qor_gdx_view_vdir_get(const CQorString& name) {
    if (name == L"SW")
        return CQorVector3d(-1.0, -1.0, 1.0);
    if (name == L"SO")
        return CQorVector3d(1.0, -1.0, 1.0);
    if (name == L"NO")
        return CQorVector3d(1.0, 1.0, 1.0);
    if (name == L"NW")
        return CQorVector3d(-1.0, 1.0, 1.0);
    if (name == L"N")
        return CQorVector3d::kYAxis;
    if (name == L"S")
        return -CQorVector3d::kYAxis;
    if (name == L"O")
        return -CQorVector3d::kXAxis;
    if (name == L"W")
        return CQorVector3d::kXAxis;
    if (name == L"P")
        return CQorVector3d::kZAxis;
    return CQorVector3d();
}

CQorVertexArray qor_g_vl_mtx_view(const CQorVertexArray& vl, CQorVector3d dir, CQorPoint3d origin,
                                  bool flag) {
    const CQorMatrix3d view = QOR::g_mtx_view(dir, origin, flag);
    CQorVertexArray out = vl.getTransformedCopy(view);
    for (int i = 0; i < out.len(); ++i)
        QOR::g_vx_xy(out[i]);
    return out;
}
