// QOR::CHostServices: what the add-on's data library keeps for the host (layers,
// materials, message texts, the application's files and help, the sheet catalogue,
// the outline definitions and the drawing's entities), as the application object
// hands it out (CQorApp::hostServices). The contract classes and functions of the
// foundation (CQorLayerMgr, CQorMatMgr, qor_msg_get, QOR::fileFind, QOR::help_find,
// QOR::fsheet_get, qorOutlineInit, QOR::dtaOpen of an entity) ask only this.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_export.h"
#include "foundation/base/qor_string.h"

class CQorDataItem;

namespace QOR {

class CAdsName;
class CLayerProp;
class CMatProp;

// Every operation here is what a host that keeps nothing gives: false, null or an
// empty result. A host overrides what it has.
class QOR_API CHostServices {
public:
    CHostServices() = default;
    virtual ~CHostServices();

    // The properties of the drawing's layer of a name; false and `out` untouched for
    // an unknown layer.
    virtual bool layerGet(const wchar_t* name, CLayerProp& out);
    // The material of a key; false and `out` untouched for an unknown one.
    virtual bool matGet(const wchar_t* key, CMatProp& out);
    // Appends the keys of the root materials (those without a parent) to `out`.
    virtual void matRoots(CQorArrayTempl<CQorString>& out);
    // The message text of a key in a language (an explicit code, never "-1") for a
    // prefix ("QOR_"); false when there is none.
    virtual bool msgTextGet(const wchar_t* prefix, const wchar_t* key, const wchar_t* lang,
                            CQorString& out);
    // The full name of a file found along the application's paths; false when none.
    virtual bool fileFind(CQorString& out, const wchar_t* name);
    // The help file or address of an application name; false when none.
    virtual bool helpFind(const wchar_t* app, CQorString& out);
    // The definition of a sheet from its path in the catalogue; null when unknown.
    // The item stays the host's.
    virtual CQorDataItem* sheetGet(const CQorArrayTempl<CQorString>& stack);
    // Fills an empty directory with the outline definitions; false when `dir` is
    // null, not empty, or the host has none.
    virtual bool outlineInit(CQorDataItem* dir);
    // The data of the drawing's entity of a name; null when there is none. The item
    // stays the host's, and writes to it reach the entity.
    virtual CQorDataItem* entityData(const CAdsName& name);

private:
    CHostServices(const CHostServices&) = delete;
    CHostServices& operator=(const CHostServices&) = delete;
};

// The services of the application object in use (qorAppPtr()->hostServices()), or
// an instance of the base class when it hands out none; never null.
QOR_API CHostServices& hostServices();

} // namespace QOR
