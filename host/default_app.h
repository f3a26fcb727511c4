// QOR::CQorDefaultApp: the application object of the embedded host.
#pragma once

#include "foundation/application/qor_app.h"
#include "foundation/data/smart_resbuf.h"
#include "host/default_services.h"
#include "host/drawing_model.h"
#include "host/hatch_pattern_table.h"

namespace QOR {

// What a real host replaces:
//  - lFormatGet: the int at "_HOST\LUNITS" in the configuration (1 to 5, as LUNITS);
//    decimal (2) when missing or out of range;
//  - viewBkColorGet: the int at "_HOST\VIEW_BKCOLOR" (0x00BBGGRR); white when
//    missing;
//  - hatchPatternGet: the patterns of builtinPatternText(), then of the files given
//    to patternFileAdd (later files replace patterns of the same name);
//  - entityOfKind: the first entity of the kind in drawingModelPtr();
//  - lispCall: the host functions registered by name with lispFunctionSet, from the
//    start "qor_text_to_regl" (host/text_function.h); any other name answers -5001
//    (RTERROR) with an empty result;
//  - objImage: the default host's drawing of its own objects (host/object_image.h);
//  - hostServices: the default host's stores (host/default_services.h).
class QOR_API CQorDefaultApp : public CQorApp {
public:
    // A host function: reads the argument chain (which stays the caller's), puts its
    // answer into `result` and returns a status, 5100 on success.
    using LispFn = int (*)(resbuf* arguments, CSmartResbuf& result);

    CQorDefaultApp();
    ~CQorDefaultApp() override;

    Qor::lFormat lFormatGet() override;
    unsigned long viewBkColorGet() override;
    bool objImage(CQorGDX* gdx, CQorDataItem* object, CQorDataItem* params) override;
    bool hatchPatternGet(const wchar_t* name,
                         CQorArrayTempl<CQorArrayTempl<double>>& lines) override;
    bool entityOfKind(long long* name, const wchar_t* kind, bool flag) override;
    int lispCall(const wchar_t* function, resbuf* arguments, CSmartResbuf& result) override;
    CHostServices* hostServices() override;

    // Registers the host function of a name (exact, case-sensitive); null removes
    // it. Returns the function registered before, or null.
    LispFn lispFunctionSet(const wchar_t* name, LispFn fn);

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
    host::CDefaultHostServices m_services;
    CQorArrayTempl<Function> m_functions;
};

// The default application object of the process.
QOR_API CQorDefaultApp* defaultAppPtr();

} // namespace QOR
