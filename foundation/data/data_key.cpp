#include "foundation/data/data_key.h"

#include <cwchar>
#include <string>
#include <vector>

namespace {
constexpr int kShort = 5003;
constexpr int kStr = 5005;
constexpr int kKeyStr = 5020;
constexpr int kLong = 5010;
} // namespace

CQorDataKey::CQorDataKey() = default;

CQorDataKey::CQorDataKey(const wchar_t* text) {
    set(text);
}

CQorDataKey::CQorDataKey(int type, ...) {
    va_list args;
    va_start(args, type);
    setV(type, args);
    va_end(args);
}

CQorDataKey::CQorDataKey(const CQorDataKey& other) : CQorObj() {
    append(other);
}

CQorDataKey& CQorDataKey::operator=(const CQorDataKey& other) {
    if (this != &other) {
        CQorDataKey copy(other);
        clear();
        append(copy);
    }
    return *this;
}

CQorDataKey::~CQorDataKey() {
    clear();
}

void CQorDataKey::clear() {
    // Iterative, so a very long key cannot exhaust the stack.
    CQorDataKey* n = m_next;
    m_next = nullptr;
    while (n) {
        CQorDataKey* after = n->m_next;
        n->m_next = nullptr;
        delete n;
        n = after;
    }
    m_type = 0;
    m_number = 0;
    m_text.empty();
    m_path.empty();
}

CQorDataKey* CQorDataKey::lastNode() {
    CQorDataKey* k = this;
    while (k->m_next)
        k = k->m_next;
    return k;
}

int CQorDataKey::segments() const {
    if (isEmpty())
        return 0;
    int n = 0;
    for (const CQorDataKey* k = this; k; k = k->m_next)
        ++n;
    return n;
}

void CQorDataKey::rebuildPath() {
    // Every node caches the joined text of itself and its followers.
    std::vector<CQorDataKey*> nodes;
    if (!isEmpty())
        for (CQorDataKey* k = this; k; k = k->m_next)
            nodes.push_back(k);
    for (auto it = nodes.rbegin(); it != nodes.rend(); ++it) {
        CQorDataKey* k = *it;
        k->m_path = k->m_text;
        if (k->m_next) {
            k->m_path += L"\\";
            k->m_path += k->m_next->m_path.c_str();
        }
    }
}

CQorDataKey& CQorDataKey::set(const wchar_t* text) {
    clear();
    if (!text)
        return *this;
    const wchar_t* start = text;
    for (const wchar_t* p = text;; ++p) {
        if (*p == L'\\' || *p == 0) {
            std::wstring part(start, p);
            appendString(part.c_str());
            if (*p == 0)
                break;
            start = p + 1;
        }
    }
    return *this;
}

CQorDataKey& CQorDataKey::set(int type, ...) {
    va_list args;
    va_start(args, type);
    setV(type, args);
    va_end(args);
    return *this;
}

CQorDataKey& CQorDataKey::setV(int type, va_list args) {
    clear();
    while (type != 0) {
        if (type == kStr || type == kKeyStr) {
            const wchar_t* text = va_arg(args, const wchar_t*);
            appendString(text, type);
        } else if (type == kShort || type == kLong) {
            appendInt(va_arg(args, int));
        } else {
            break;
        }
        type = va_arg(args, int);
    }
    return *this;
}

CQorDataKey& CQorDataKey::appendString(const wchar_t* text, int type) {
    CQorDataKey* node = this;
    if (!isEmpty()) {
        node = new CQorDataKey();
        lastNode()->m_next = node;
    }
    node->m_type = type == kKeyStr ? kKeyStr : kStr;
    node->m_text = text ? text : L"";
    rebuildPath();
    return *this;
}

CQorDataKey& CQorDataKey::appendInt(int number) {
    CQorDataKey* node = this;
    if (!isEmpty()) {
        node = new CQorDataKey();
        lastNode()->m_next = node;
    }
    node->m_type = kShort;
    node->m_number = number;
    node->m_text.format(L"%d", number);
    rebuildPath();
    return *this;
}

CQorDataKey& CQorDataKey::append(const CQorDataKey& other) {
    if (&other == this) {
        CQorDataKey copy(other);
        return append(copy);
    }
    if (other.isEmpty())
        return *this;
    for (const CQorDataKey* k = &other; k; k = k->m_next) {
        if (k->isInt())
            appendInt(k->m_number);
        else
            appendString(k->m_text.c_str(), k->m_type);
    }
    return *this;
}

bool CQorDataKey::segmentEquals(const CQorDataKey& other) const {
    if (isInt() != other.isInt() || isEmpty() != other.isEmpty())
        return false;
    if (isInt())
        return m_number == other.m_number;
    return m_text == other.m_text;
}

bool CQorDataKey::segmentLess(const CQorDataKey& other) const {
    if (isInt() != other.isInt())
        return isInt();
    if (isInt())
        return m_number < other.m_number;
    return m_text < other.m_text;
}

bool CQorDataKey::operator==(const CQorDataKey& other) const {
    const CQorDataKey* a = this;
    const CQorDataKey* b = &other;
    for (; a && b; a = a->m_next, b = b->m_next)
        if (!a->segmentEquals(*b))
            return false;
    return a == nullptr && b == nullptr;
}

CQorDataKey CQorDataKey::first() const {
    CQorDataKey k;
    if (isInt())
        k.appendInt(m_number);
    else if (!isEmpty())
        k.appendString(m_text.c_str(), m_type);
    return k;
}
