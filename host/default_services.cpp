#include "host/default_services.h"

#include "host/app_paths.h"
#include "host/drawing_model.h"
#include "host/layer_store.h"
#include "host/material_store.h"
#include "host/message_store.h"
#include "host/outline_defs.h"
#include "host/sheet_catalog.h"

namespace QOR {
namespace host {

CDefaultHostServices::~CDefaultHostServices() = default;

bool CDefaultHostServices::layerGet(const wchar_t* name, CLayerProp& out) {
    return host::layerGet(name, out);
}

bool CDefaultHostServices::matGet(const wchar_t* key, CMatProp& out) {
    return host::matGet(key, out);
}

void CDefaultHostServices::matRoots(CQorArrayTempl<CQorString>& out) {
    host::matRoots(out);
}

bool CDefaultHostServices::msgTextGet(const wchar_t* prefix, const wchar_t* key,
                                      const wchar_t* lang, CQorString& out) {
    return host::msgTextGet(prefix, key, lang, out);
}

bool CDefaultHostServices::fileFind(CQorString& out, const wchar_t* name) {
    return appFileFind(out, name);
}

bool CDefaultHostServices::helpFind(const wchar_t* app, CQorString& out) {
    return appHelpFind(app, out);
}

CQorDataItem* CDefaultHostServices::sheetGet(const CQorArrayTempl<CQorString>& stack) {
    return sheetCatalogGet(stack);
}

bool CDefaultHostServices::outlineInit(CQorDataItem* dir) {
    return outlineDefsFill(dir);
}

CQorDataItem* CDefaultHostServices::entityData(const CAdsName& name) {
    return drawingModelPtr()->entityData(name);
}

} // namespace host
} // namespace QOR
