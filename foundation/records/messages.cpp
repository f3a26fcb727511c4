#include "foundation/records/messages.h"

#include "foundation/application/host_services.h"

#include <set>
#include <string>

namespace {

// Every language code ever set, each kept once, so that a code handed out by
// msgLangSet stays valid for the life of the library.
const wchar_t* internedCode(const wchar_t* code) {
    static std::set<std::wstring> codes;
    return codes.insert(code).first->c_str();
}

const wchar_t*& currentLang() {
    static const wchar_t* lang = internedCode(L"DEU");
    return lang;
}

} // namespace

namespace QOR {

const wchar_t* msgLangSet(const wchar_t* lang) {
    if (lang && *lang && std::wstring(lang) != L"-1")
        currentLang() = internedCode(lang);
    return currentLang();
}

} // namespace QOR

CQorString qor_msg_get(const wchar_t* prefix, const wchar_t* key, const wchar_t* defaultText,
                       const wchar_t* lang) {
    const wchar_t* code = lang;
    if (!code || std::wstring(code) == L"-1")
        code = QOR::msgLangSet(nullptr);
    CQorString text;
    if (QOR::hostServices().msgTextGet(prefix, key, code, text))
        return text;
    return CQorString(defaultText);
}
