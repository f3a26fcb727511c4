// CQorApp: the application object, the library's door to the host.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_obj.h"
#include "foundation/data/data_item.h"
#include "foundation/data/resbuf.h"
#include "foundation/data/smart_resbuf.h"
#include "foundation/records/qor_lformat.h"

class CQorGDX;

namespace QOR {
class CHostServices;
}

// A host derives from CQorApp and installs its object with qorAppSet; without one,
// qorAppPtr() gives the default application object (the library installs the
// embedded host's at load, see host/install.h). The virtual operations stand in this
// order after the destructor: lFormatGet, viewBkColorGet, objImage, hatchPatternGet,
// entityOfKind, lispCall, hostServices. Every operation fails softly; the
// implementations here are what a host that overrides nothing gives.
class QOR_API CQorApp : public CQorObj {
public:
    CQorApp() = default;
    ~CQorApp() override;

    // The current length format (LUNITS numbering); here decimal.
    virtual Qor::lFormat lFormatGet();
    // The background colour of the host's drawing area as 0x00BBGGRR; here white.
    virtual unsigned long viewBkColorGet();
    // Draws an object (the item of its data) into the document; params holds "CMODE",
    // "MTX" and possibly "STACK". The result tells whether anything was drawn; here
    // nothing is.
    virtual bool objImage(CQorGDX* gdx, CQorDataItem* object, CQorDataItem* params);
    // Fills the pattern table of a name: one inner array per line family, angle in
    // degrees, base x, base y, shift, row distance, then the dashes (> 0 dash, < 0
    // gap, 0 dot). An unknown name leaves the table empty. True when the name is
    // known. Here every name is unknown.
    virtual bool hatchPatternGet(const wchar_t* name,
                                 CQorArrayTempl<CQorArrayTempl<double>>& lines);
    // Finds the drawing's entity of a kind and writes its name (two 64-bit words)
    // to `name`. True on success; `name` is untouched on failure. Here there is none.
    virtual bool entityOfKind(long long* name, const wchar_t* kind, bool flag);
    // Calls a named function of the host with an argument chain (the caller keeps
    // it) and puts the result chain into `result`. 5100 (RTNORM) on success, another
    // status otherwise; here every name is unknown (-5001, RTERROR).
    virtual int lispCall(const wchar_t* function, resbuf* arguments, QOR::CSmartResbuf& result);
    // What the host's data library keeps (layers, materials, message texts, files,
    // sheets, outlines, entities); the object stays the application's. Here none
    // (null): those look-ups then find nothing.
    virtual QOR::CHostServices* hostServices();

private:
    CQorApp(const CQorApp&) = delete;
    CQorApp& operator=(const CQorApp&) = delete;
};

// The application object of the process: the installed one, else the default one,
// else an application that overrides nothing. Never null.
QOR_API CQorApp* qorAppPtr();
// Installs a host's application object (not owned) and returns the one installed
// before (null when the default was in use); null goes back to the default.
QOR_API CQorApp* qorAppSet(CQorApp* app);
// Sets the default application object (not owned), the one qorAppPtr gives while no
// host has installed its own; returns the default before. The library's one wiring
// point sets it at load (QOR::host::installDefaultHost).
QOR_API CQorApp* qorAppDefaultSet(CQorApp* app);
