#include "foundation/records/labels.h"

#include "foundation/records/messages.h"

#include <string>
#include <vector>

namespace {

struct Entry {
    std::wstring code;
    std::wstring text;
};

bool sameCode(const std::wstring& a, const wchar_t* b) {
    std::size_t i = 0;
    for (; i < a.size() && b[i]; ++i)
        if (QOR::toUpper(a[i]) != QOR::toUpper(b[i]))
            return false;
    return i == a.size() && b[i] == 0;
}

const wchar_t* resolveLang(const wchar_t* lang) {
    if (!lang || std::wstring(lang) == L"-1")
        return QOR::msgLangSet(nullptr);
    return lang;
}

// The entries of a label, in order. A string without a backslash at the start
// gives none.
std::vector<Entry> parse(const wchar_t* label) {
    std::vector<Entry> entries;
    if (!label || label[0] != L'\\')
        return entries;
    const wchar_t* p = label;
    while (*p == L'\\') {
        ++p;
        Entry e;
        while (*p && *p != L':' && *p != L'\\')
            e.code += *p++;
        if (*p != L':')
            break;
        ++p;
        while (*p) {
            if (*p == L'\\') {
                if (p[1] != L'\\')
                    break;
                e.text += L'\\';
                p += 2;
                continue;
            }
            e.text += *p++;
        }
        entries.push_back(e);
    }
    return entries;
}

std::wstring write(const std::vector<Entry>& entries) {
    std::wstring out;
    for (const Entry& e : entries) {
        out += L'\\';
        out += e.code;
        out += L':';
        for (wchar_t c : e.text) {
            if (c == L'\\')
                out += L'\\';
            out += c;
        }
    }
    return out;
}

} // namespace

namespace QOR {

bool label_get(CQorString& out, const wchar_t* label, const wchar_t* lang, bool) {
    out.empty();
    if (!label)
        return false;
    if (label[0] != L'\\') {
        out = label;
        return true;
    }
    const wchar_t* code = resolveLang(lang);
    for (const Entry& e : parse(label)) {
        if (sameCode(e.code, code)) {
            out = e.text.c_str();
            return true;
        }
    }
    return false;
}

const wchar_t* label_set(CQorString& label, const wchar_t* text, const wchar_t* lang) {
    std::vector<Entry> entries;
    if (label.len() > 0 && label[0] != L'\\')
        entries.push_back(Entry{msgLangSet(nullptr), label.c_str()});
    else
        entries = parse(label.c_str());
    const wchar_t* code = resolveLang(lang);
    const std::wstring value = text ? text : L"";
    bool done = false;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!sameCode(entries[i].code, code))
            continue;
        if (value.empty())
            entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(i));
        else
            entries[i].text = value;
        done = true;
        break;
    }
    if (!done && !value.empty()) {
        std::wstring c;
        for (const wchar_t* p = code; *p; ++p)
            if (*p != L'\\' && *p != L':')
                c += *p;
        entries.push_back(Entry{c, value});
    }
    label = write(entries).c_str();
    return label.c_str();
}

CQorString label_set(const wchar_t* label, const wchar_t* text, const wchar_t* lang) {
    CQorString copy(label);
    label_set(copy, text, lang);
    return copy;
}

} // namespace QOR
