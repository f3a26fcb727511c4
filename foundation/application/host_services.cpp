#include "foundation/application/host_services.h"

#include "foundation/application/qor_app.h"

namespace QOR {

CHostServices::~CHostServices() = default;

bool CHostServices::layerGet(const wchar_t*, CLayerProp&) {
    return false;
}

bool CHostServices::matGet(const wchar_t*, CMatProp&) {
    return false;
}

void CHostServices::matRoots(CQorArrayTempl<CQorString>&) {}

bool CHostServices::msgTextGet(const wchar_t*, const wchar_t*, const wchar_t*, CQorString&) {
    return false;
}

bool CHostServices::fileFind(CQorString&, const wchar_t*) {
    return false;
}

bool CHostServices::helpFind(const wchar_t*, CQorString&) {
    return false;
}

CQorDataItem* CHostServices::sheetGet(const CQorArrayTempl<CQorString>&) {
    return nullptr;
}

bool CHostServices::outlineInit(CQorDataItem*) {
    return false;
}

CQorDataItem* CHostServices::entityData(const CAdsName&) {
    return nullptr;
}

CHostServices& hostServices() {
    if (CHostServices* services = qorAppPtr()->hostServices())
        return *services;
    static CHostServices s_none;
    return s_none;
}

} // namespace QOR
