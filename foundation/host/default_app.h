// QOR::CQorDefaultApp: the application object of the embedded host.
#pragma once

#include "foundation/host/drawing_model.h"
#include "foundation/host/hatch_pattern_table.h"
#include "foundation/qor_app.h"
#include "foundation/smart_resbuf.h"

namespace QOR {

// What a real host replaces:
//  - lFormatGet: the int at "_HOST\LUNITS" in the configuration (1 to 5, as LUNITS);
//    decimal (2) when missing or out of range;
//  - viewBkColorGet: the int at "_HOST\VIEW_BKCOLOR" (0x00BBGGRR); white when
//    missing;
//  - hatchPatternGet: the patterns of builtinPatternText(), then of the files given
//    to patternFileAdd (later files replace patterns of the same name);
//  - entityOfKind: the first entity of the kind in drawingModelPtr();
//  - lispCall: the host functions registered by name with lispFunctionSet; any
//    other name answers -5001 (RTERROR) with an empty result;
//  - objImage: draws through the object drawing function that the display list
//    side installs with objectImageSet (the library installs images/
//    host_object_image's at load); without one nothing is drawn and the result is
//    false. The foundation cannot draw itself: documents live in a layer above it.
class QOR_API CQorDefaultApp : public CQorApp {
public:
    // A host function: reads the argument chain (which stays the caller's), puts its
    // answer into `result` and returns a status, 5100 on success.
    using LispFn = int (*)(resbuf* arguments, CSmartResbuf& result);
    // Draws an object of the default host's model into a document.
    using ObjImageFn = bool (*)(CQorGDX* gdx, CQorDataItem* object, CQorDataItem* params);

    CQorDefaultApp();
    ~CQorDefaultApp() override;

    Qor::lFormat lFormatGet() override;
    unsigned long viewBkColorGet() override;
    bool objImage(CQorGDX* gdx, CQorDataItem* object, CQorDataItem* params) override;
    bool hatchPatternGet(const wchar_t* name,
                         CQorArrayTempl<CQorArrayTempl<double>>& lines) override;
    bool entityOfKind(long long* name, const wchar_t* kind, bool flag) override;
    int lispCall(const wchar_t* function, resbuf* arguments, CSmartResbuf& result) override;

    // Registers the host function of a name (exact, case-sensitive); null removes
    // it. Returns the function registered before, or null.
    LispFn lispFunctionSet(const wchar_t* name, LispFn fn);

    // Installs the function objImage draws with (null: none); returns the one before.
    static ObjImageFn objectImageSet(ObjImageFn fn);
    // Adds the patterns of a .pat file; the count of pattern headers read, -1 when
    // the file cannot be read. Rejected lines go to `rejected` when given.
    int patternFileAdd(const wchar_t* fileName, CQorArrayTempl<CQorString>* rejected = nullptr);
    // The pattern table in use (built-in patterns first).
    CHatchPatternTable& patterns() { return m_patterns; }

private:
    struct Function {
        CQorString name;
        LispFn fn;
    };
    CHatchPatternTable m_patterns;
    CQorArrayTempl<Function> m_functions;
};

// The default application object of the process.
QOR_API CQorDefaultApp* defaultAppPtr();

} // namespace QOR
