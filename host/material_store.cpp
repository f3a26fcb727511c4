#include "host/material_store.h"

#include "host/text_file.h"

#include <charconv>
#include <map>
#include <string>

namespace {

std::map<std::wstring, QOR::CMatProp>& materials() {
    static std::map<std::wstring, QOR::CMatProp> m;
    return m;
}

// A whole text as a number (blanks around it allowed); false when anything is
// left over. Independent of the C locale.
bool readNumber(const std::wstring& text, double& out) {
    std::string s;
    for (wchar_t c : text) {
        if (c == L' ' || c == L'\t')
            continue;
        if (c < 0x20 || c > 0x7E)
            return false;
        s += static_cast<char>(c);
    }
    if (!s.empty() && s[0] == '+')
        s.erase(0, 1);
    if (s.empty())
        return false;
    double v = 0.0;
    const auto r = std::from_chars(s.data(), s.data() + s.size(), v);
    if (r.ec != std::errc() || r.ptr != s.data() + s.size())
        return false;
    out = v;
    return true;
}

bool knownField(const std::wstring& f) {
    return f == L"PARENT" || f == L"LABEL" || f == L"INFO" || f == L"EDGE" || f == L"SUB" ||
           f == L"EXTRA" || f == L"PHYS";
}

} // namespace

namespace QOR {
namespace host {

void matSet(const wchar_t* key, const CMatProp& prop) {
    if (!key || !*key)
        return;
    materials()[key] = prop;
}

bool matGet(const wchar_t* key, CMatProp& out) {
    if (!key)
        return false;
    const auto it = materials().find(key);
    if (it == materials().end())
        return false;
    out = it->second;
    return true;
}

void matRoots(CQorArrayTempl<CQorString>& out) {
    for (const auto& m : materials())
        if (m.second.parent.isNull())
            out.append(CQorString(m.first.c_str()));
}

void matClear() {
    materials().clear();
}

int matFileLoad(const wchar_t* path) {
    CQorArrayTempl<CQorString> lines;
    if (!textFileLines(path, lines))
        return -1;
    std::map<std::wstring, CMatProp> read;
    for (const CQorString& line : lines) {
        const std::wstring& s = line.str();
        if (s.empty() || s[0] == L'#')
            continue;
        const std::size_t a = s.find(L';');
        if (a == std::wstring::npos || a == 0)
            continue;
        const std::size_t b = s.find(L';', a + 1);
        if (b == std::wstring::npos)
            continue;
        const std::wstring field = s.substr(a + 1, b - a - 1);
        const std::wstring value = s.substr(b + 1);
        if (!knownField(field))
            continue;
        double number = 0.0;
        const std::size_t eq = value.find(L'=');
        if (field == L"PHYS" &&
            (eq == std::wstring::npos || eq == 0 || !readNumber(value.substr(eq + 1), number)))
            continue;
        CMatProp& m = read[s.substr(0, a)];
        const CQorString v(value.c_str());
        if (field == L"PARENT") {
            m.parent = v;
        } else if (field == L"LABEL") {
            m.label = v;
        } else if (field == L"INFO") {
            m.info = v;
        } else if (field == L"EDGE") {
            m.edges.append(v);
            m.edgeKind = CMatProp::edgeOwn;
        } else if (field == L"SUB") {
            m.subs.append(v);
        } else if (field == L"EXTRA") {
            m.extra.append(v);
        } else {
            std::wstring name = value.substr(0, eq);
            while (!name.empty() && (name.back() == L' ' || name.back() == L'\t'))
                name.pop_back();
            m.phys.setAt(CQorString(name.c_str()), number);
            m.physKind = CMatProp::physOwn;
        }
    }
    for (auto& m : read) {
        if (m.second.physKind == CMatProp::physNone && !m.second.parent.isNull())
            m.second.physKind = CMatProp::physFromParent;
        materials()[m.first] = m.second;
    }
    return static_cast<int>(read.size());
}

} // namespace host
} // namespace QOR
