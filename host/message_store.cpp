#include "host/message_store.h"

#include "host/app_paths.h"
#include "host/text_file.h"

#include <map>
#include <string>

namespace {

struct PrefixTexts {
    bool searched = false;
    // key -> language in capitals -> text
    std::map<std::wstring, std::map<std::wstring, std::wstring>> texts;
};

std::map<std::wstring, PrefixTexts>& store() {
    static std::map<std::wstring, PrefixTexts> s;
    return s;
}

std::wstring upper(const wchar_t* s) {
    std::wstring out;
    for (; s && *s; ++s)
        out += QOR::toUpper(*s);
    return out;
}

std::wstring unescape(const std::wstring& s) {
    std::wstring out;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (s[i] == L'\\' && i + 1 < s.size() && (s[i + 1] == L'n' || s[i + 1] == L'\\')) {
            out += s[i + 1] == L'n' ? L'\n' : L'\\';
            ++i;
        } else {
            out += s[i];
        }
    }
    return out;
}

PrefixTexts& textsOf(const wchar_t* prefix) {
    return store()[prefix ? prefix : L""];
}

} // namespace

namespace QOR {
namespace host {

int msgFileLoad(const wchar_t* prefix, const wchar_t* path) {
    CQorArrayTempl<CQorString> lines;
    if (!textFileLines(path, lines))
        return -1;
    PrefixTexts& pt = textsOf(prefix);
    pt.searched = true;
    int count = 0;
    for (const CQorString& line : lines) {
        const std::wstring& s = line.str();
        if (s.empty() || s[0] == L'#')
            continue;
        const std::size_t a = s.find(L';');
        if (a == std::wstring::npos || a == 0)
            continue;
        const std::size_t b = s.find(L';', a + 1);
        if (b == std::wstring::npos || b == a + 1)
            continue;
        const std::wstring lang = upper(s.substr(a + 1, b - a - 1).c_str());
        pt.texts[s.substr(0, a)][lang] = unescape(s.substr(b + 1));
        ++count;
    }
    return count;
}

void msgTextSet(const wchar_t* prefix, const wchar_t* key, const wchar_t* lang,
                const wchar_t* text) {
    if (!key || !lang)
        return;
    PrefixTexts& pt = textsOf(prefix);
    if (!text || !*text) {
        auto k = pt.texts.find(key);
        if (k != pt.texts.end())
            k->second.erase(upper(lang));
        return;
    }
    pt.texts[key][upper(lang)] = text;
}

bool msgTextGet(const wchar_t* prefix, const wchar_t* key, const wchar_t* lang, CQorString& out) {
    if (!key || !lang)
        return false;
    PrefixTexts& pt = textsOf(prefix);
    if (!pt.searched) {
        pt.searched = true;
        CQorString file;
        if (appFileFind(file, (CQorString(prefix) + L"msg.txt").c_str()))
            msgFileLoad(prefix, file.c_str());
    }
    const auto k = pt.texts.find(key);
    if (k == pt.texts.end())
        return false;
    const auto t = k->second.find(upper(lang));
    if (t == k->second.end())
        return false;
    out = t->second.c_str();
    return true;
}

void msgStoreClear() {
    store().clear();
}

} // namespace host
} // namespace QOR
