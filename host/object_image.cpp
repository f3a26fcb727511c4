#include "host/object_image.h"

#include "displaylist/gdx.h"
#include "foundation/data_tree.h"

namespace {

bool drawDrillPlan(CQorGDX* gdx, double diameter, CQorDataItem* params) {
    int mode = 0;
    CQorMatrix3d mtx;
    CQorArrayTempl<int> stack;
    if (params) {
        const CQorDataKey modeKey(L"CMODE"), mtxKey(L"MTX"), stackKey(L"STACK");
        params->get(mode, &modeKey);
        dataItemGet(params, &mtxKey, static_cast<double(*)[4]>(mtx));
        params->get(stack, &stackKey);
    }
    const unsigned long flag = static_cast<unsigned long>(mode & 15) << 8;
    const double r = diameter / 2.0;
    const CQorColor color; // no index: drawn in the inverse of the background

    // The circle as two half circles (bulge 1: a half turn counter-clockwise).
    CQorVertexArray circle;
    circle.append(CQorVertex(CQorPoint3d(r, 0, 0), CQorPoint3d(-r, 0, 0), 1.0));
    circle.append(CQorVertex(CQorPoint3d(-r, 0, 0), CQorPoint3d(r, 0, 0), 1.0));
    CQorArrayTempl<double> solid;
    solid.append(1.0);
    gdx->imageVl(stack, flag, circle, color, mtx, solid, 1.0, 0, CQorPoint3d());

    // Dash-dot centre lines: long dash, gap, dot, gap, in units of the diameter.
    CQorArrayTempl<double> centre;
    centre.append(0.4 * diameter).append(-0.08 * diameter).append(0.0).append(-0.08 * diameter);
    const double arm = 1.25 * r;
    CQorVertexArray horizontal, vertical;
    horizontal.append(CQorVertex(CQorPoint3d(-arm, 0, 0), CQorPoint3d(arm, 0, 0), 0.0));
    vertical.append(CQorVertex(CQorPoint3d(0, -arm, 0), CQorPoint3d(0, arm, 0), 0.0));
    gdx->imageVl(stack, flag, horizontal, color, mtx, centre, 1.0, 0, CQorPoint3d());
    gdx->imageVl(stack, flag, vertical, color, mtx, centre, 1.0, 0, CQorPoint3d());
    return true;
}

} // namespace

bool qorHostObjectImage(CQorGDX* gdx, CQorDataItem* object, CQorDataItem* params) {
    if (!gdx || !object || !object->isDir())
        return false;
    CQorString type;
    const CQorDataKey typeKey(L"TYPE");
    object->get(type, &typeKey);
    if (type == L"DRILL") {
        double diameter = 0.0;
        const CQorDataKey diaKey(L"DIA");
        object->get(diameter, &diaKey);
        if (diameter > 0.0 && diameter < 1e300)
            return drawDrillPlan(gdx, diameter, params);
    }
    return false;
}
