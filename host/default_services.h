// QOR::host::CDefaultHostServices: the default host's data library, what the default
// application object hands out as its services.
#pragma once

#include "foundation/application/host_services.h"

namespace QOR {
namespace host {

// Answers from the default host's stores: layers (layer_store.h), materials
// (material_store.h), message files (message_store.h), the application's paths and
// help (app_paths.h), the sheet catalogue (sheet_catalog.h), the built-in outline
// definitions (outline_defs.h) and the drawing model's entities (drawing_model.h).
class QOR_API CDefaultHostServices : public CHostServices {
public:
    CDefaultHostServices() = default;
    ~CDefaultHostServices() override;

    bool layerGet(const wchar_t* name, CLayerProp& out) override;
    bool matGet(const wchar_t* key, CMatProp& out) override;
    void matRoots(CQorArrayTempl<CQorString>& out) override;
    bool msgTextGet(const wchar_t* prefix, const wchar_t* key, const wchar_t* lang,
                    CQorString& out) override;
    bool fileFind(CQorString& out, const wchar_t* name) override;
    bool helpFind(const wchar_t* app, CQorString& out) override;
    CQorDataItem* sheetGet(const CQorArrayTempl<CQorString>& stack) override;
    bool outlineInit(CQorDataItem* dir) override;
    CQorDataItem* entityData(const CAdsName& name) override;
};

} // namespace host
} // namespace QOR
