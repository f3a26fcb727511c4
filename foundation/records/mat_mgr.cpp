#include "foundation/records/mat_mgr.h"

#include "foundation/application/host_services.h"
#include "foundation/records/labels.h"

namespace QOR {

CMatProp::~CMatProp() = default;

} // namespace QOR

CQorMatMgr::~CQorMatMgr() = default;

CQorString CQorMatMgr::matLabel(const wchar_t* key, const wchar_t* country) const {
    QOR::CMatProp prop;
    CQorString text;
    if (propGet(key, prop))
        QOR::label_get(text, prop.label.c_str(), country, false);
    return text;
}

bool CQorMatMgr::propGet(const wchar_t* key, QOR::CMatProp& out) const {
    return QOR::hostServices().matGet(key, out);
}

bool CQorMatMgr::isShadowMat(const wchar_t* key) const {
    QOR::CMatProp prop;
    if (!propGet(key, prop))
        return false;
    return !prop.parent.isNull() && prop.physKind == QOR::CMatProp::physFromParent &&
           prop.edgeKind == QOR::CMatProp::edgeNone;
}

bool CQorMatMgr::matDrawAll(CQorArrayTempl<CQorString>& out, bool) const {
    out.setLogicalLength(0);
    QOR::hostServices().matRoots(out);
    return out.len() > 0;
}

bool CQorMatMgr::physGet(const wchar_t* key, const wchar_t* name, double& out) const {
    CQorString at(key);
    for (int step = 0; step < 32; ++step) {
        QOR::CMatProp prop;
        if (!propGet(at.c_str(), prop))
            return false;
        if (prop.physKind == QOR::CMatProp::physOwn) {
            const double* v = prop.phys.lookup(CQorString(name));
            if (!v)
                return false;
            out = *v;
            return true;
        }
        if (prop.physKind != QOR::CMatProp::physFromParent || prop.parent.isNull())
            return false;
        at = prop.parent;
    }
    return false;
}
