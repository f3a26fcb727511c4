#include "foundation/application/g_mtx_local.h"

#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"

namespace QOR {

CQorMatrix3d g_mtx_local(const CQorDataItem* item) {
    CQorMatrix3d m;
    if (item == nullptr)
        return m;
    CQorPoint3d origin;
    CQorPoint3d xp(1.0, 0.0, 0.0);
    CQorPoint3d zp(0.0, 0.0, 1.0);
    const CQorDataKey originKey(L"ORIGIN");
    const CQorDataKey xKey(L"XDIR");
    const CQorDataKey zKey(L"ZDIR");
    item->get(origin, &originKey);
    item->get(xp, &xKey);
    item->get(zp, &zKey);
    CQorVector3d z(zp.x, zp.y, zp.z);
    if (z.abs() <= 1e-12)
        z = CQorVector3d::kZAxis;
    z.normalize();
    CQorVector3d x(xp.x, xp.y, xp.z);
    x = x - z * x.dot(z);
    if (x.abs() <= 1e-9) {
        CQorMatrix3d plane;
        plane.setToPlaneToWorld(z);
        x = plane.axis(0);
    }
    x.normalize();
    const CQorVector3d y = z * x;
    m.setCoordSystem(origin, x, y, z);
    return m;
}

bool g_mtx_local(const CQorDataItem* item, double (*out)[4], Qor::lUnit from, Qor::lUnit to) {
    if (out == nullptr)
        return false;
    CQorMatrix3d m;
    const bool ok = item != nullptr;
    if (ok) {
        m = g_mtx_local(item);
        for (int r = 0; r < 3; ++r)
            acadUnitCv(m.m[r][3], from, to);
    }
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            out[r][c] = m.m[r][c];
    return ok;
}

} // namespace QOR
