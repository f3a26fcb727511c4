#include "foundation/application/model_services.h"
#include "foundation/base/qor_string.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"
#include "foundation/data/resbuf_value.h"
#include "foundation/geometry/constants.h"

#include <cmath>

namespace QOR {
namespace {

CQorString typeOf(const CQorDataItem* item) {
    CQorString type;
    const CQorDataKey key(L"TYPE");
    item->get(type, &key);
    return type;
}

// Diameter, depth and tip angle of a drill item; false unless usable.
bool drillData(const CQorDataItem* item, double& dia, double& depth, double& tip) {
    dia = 0.0;
    depth = 0.0;
    tip = kDrillTipAngle;
    const CQorDataKey diaKey(L"DIA"), depthKey(L"DEPTH"), tipKey(L"TIP");
    item->get(dia, &diaKey);
    item->get(depth, &depthKey);
    item->get(tip, &tipKey);
    return dia > 0.0 && depth > 0.0 && tip > 0.0 && std::isfinite(dia) && std::isfinite(depth) &&
           std::isfinite(tip);
}

} // namespace

bool objGen(CQorDataItem* item, int mode) {
    (void)mode;
    if (item == nullptr)
        return false;
    const CQorString type = typeOf(item);
    if (type == CQorString(L"DRILL")) {
        double dia = 0.0, depth = 0.0, tip = 0.0;
        if (!drillData(item, dia, depth, tip))
            return false;
        const double tipLen = tip < 180.0 ? dia / 2.0 / std::tan(tip * kPi / 360.0) : 0.0;
        const CQorDataKey tipLenKey(L"TIPLEN"), lengthKey(L"LENGTH");
        dataItemSet(item, &tipLenKey, tipLen);
        dataItemSet(item, &lengthKey, depth + tipLen);
        return true;
    }
    if (type == CQorString(L"OUTLINE")) {
        CQorVertexArray vl;
        if (!g_outline(vl, item, static_cast<Qor::lUnit>(-1)))
            return false;
        const CQorDataKey vlKey(L"VL");
        return dataItemSetChain(item, &vlKey, mkResbuf(vl));
    }
    return false;
}

bool objModel(CQor_Solid& solid, CQorDataItem* item) {
    if (item == nullptr || typeOf(item) != CQorString(L"DRILL"))
        return false;
    double dia = 0.0, depth = 0.0, tip = 0.0;
    if (!drillData(item, dia, depth, tip))
        return false;
    CQor_Solid built;
    if (!built.setDrill(dia, depth, tip) || !built.solid())
        return false;
    solid.setRevolved(built.profile());
    return solid.solid();
}

} // namespace QOR
