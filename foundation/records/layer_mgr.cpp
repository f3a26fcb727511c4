#include "foundation/records/layer_mgr.h"

#include "foundation/application/host_services.h"

namespace QOR {

CLayerProp::~CLayerProp() = default;

bool layer_color(CQorColor& out, const CQorString& name) {
    CLayerProp prop;
    if (!CQorLayerMgr().physLayerPropGet(name.c_str(), prop))
        return false;
    out = prop.color;
    return true;
}

} // namespace QOR

CQorLayerMgr::~CQorLayerMgr() = default;

bool CQorLayerMgr::physLayerPropGet(const wchar_t* name, QOR::CLayerProp& out) const {
    return QOR::hostServices().layerGet(name, out);
}
