#include "styling/split.h"

namespace QOR {

double splitTolerance(double len) {
    return len < kSplitLongArc ? kSplitTolShort : kSplitTolLong;
}

} // namespace QOR

namespace {

// The plane matrices are built once per array, also for an empty one, so the
// cost per straight vertex is one copy.
CQorVertexArray splitArray(const CQorVertexArray& vl) {
    CQorMatrix3d planeToWorld;
    planeToWorld.setToPlaneToWorld(vl.normal());
    const CQorMatrix3d worldToPlane = planeToWorld.inverse();

    CQorVertexArray out;
    out.normalSet(vl.normal());
    for (int i = 0; i < vl.len(); ++i) {
        CQorVertex v = vl[i];
        if (v.m_bulge == 0.0) {
            out.append(v);
            continue;
        }
        v.transformBy(worldToPlane);
        const double len = v.bulgLen();
        const CQorVertexArray one(v);
        const int count = QOR::g_vx_split_dif(v, QOR::splitTolerance(len));
        CQorVertexArray chords = QOR::g_vl_expl(one, count);
        chords.transformBy(planeToWorld);
        for (int k = 0; k < chords.len(); ++k)
            out.append(chords[k]);
    }
    return out;
}

} // namespace

CQorVertexArray qor_gdx_image_vl_split(const CQorVertexArray& vl) {
    return splitArray(vl);
}

CQorArrayTempl<CQorVertexArray>
qor_gdx_image_reg_split(const CQorArrayTempl<CQorVertexArray>& regions) {
    CQorArrayTempl<CQorVertexArray> out;
    out.allocate(regions.len());
    for (int i = 0; i < regions.len(); ++i)
        out.append(splitArray(regions[i]));
    return out;
}
