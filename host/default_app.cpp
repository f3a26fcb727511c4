#include "host/default_app.h"

#include "foundation/data/config.h"
#include "host/object_image.h"
#include "host/text_function.h"

#include <cstring>

namespace QOR {

CQorDefaultApp::CQorDefaultApp() {
    const char* text = builtinPatternText();
    m_patterns.loadText(text, std::strlen(text));
    lispFunctionSet(L"qor_text_to_regl", &qorHostTextToRegl);
}

CQorDefaultApp::~CQorDefaultApp() = default;

Qor::lFormat CQorDefaultApp::lFormatGet() {
    int format = 0;
    const CQorDataItem* item = cfg_get(L"_HOST\\LUNITS");
    if (item && item->get(format, nullptr) && format >= 1 && format <= 5)
        return static_cast<Qor::lFormat>(format);
    return Qor::formatDecimal;
}

unsigned long CQorDefaultApp::viewBkColorGet() {
    unsigned long colour = 0x00FFFFFFul;
    const CQorDataItem* item = cfg_get(L"_HOST\\VIEW_BKCOLOR");
    if (item)
        item->get(colour, nullptr);
    return colour & 0x00FFFFFFul;
}

bool CQorDefaultApp::objImage(CQorGDX* gdx, CQorDataItem* object, CQorDataItem* params) {
    return qorHostObjectImage(gdx, object, params);
}

bool CQorDefaultApp::hatchPatternGet(const wchar_t* name,
                                     CQorArrayTempl<CQorArrayTempl<double>>& lines) {
    return m_patterns.get(name, lines);
}

bool CQorDefaultApp::entityOfKind(long long* name, const wchar_t* kind, bool) {
    CAdsName found;
    if (!name || !drawingModelPtr()->entityOfKind(kind, found))
        return false;
    const long long* words = found;
    name[0] = words[0];
    name[1] = words[1];
    return true;
}

int CQorDefaultApp::lispCall(const wchar_t* function, resbuf* arguments, CSmartResbuf& result) {
    result.reset();
    if (!function)
        return kRtError;
    for (int i = 0; i < m_functions.len(); ++i)
        if (m_functions[i].name == function)
            return m_functions[i].fn(arguments, result);
    return kRtError;
}

CQorDefaultApp::LispFn CQorDefaultApp::lispFunctionSet(const wchar_t* name, LispFn fn) {
    if (!name)
        return nullptr;
    for (int i = 0; i < m_functions.len(); ++i) {
        if (m_functions[i].name == name) {
            const LispFn old = m_functions[i].fn;
            if (fn)
                m_functions[i].fn = fn;
            else
                m_functions.removeAt(i);
            return old;
        }
    }
    if (fn)
        m_functions.append(Function{CQorString(name), fn});
    return nullptr;
}

CHostServices* CQorDefaultApp::hostServices() {
    return &m_services;
}

int CQorDefaultApp::patternFileAdd(const wchar_t* fileName, CQorArrayTempl<CQorString>* rejected) {
    return m_patterns.loadFile(fileName, rejected);
}

CQorDefaultApp* defaultAppPtr() {
    static CQorDefaultApp s_app;
    return &s_app;
}

} // namespace QOR
