#include "foundation/base/qor_string.h"

#include <cstdio>
#include <cstring>
#include <cwchar>
#include <vector>

namespace QOR {

wchar_t toLower(wchar_t c) {
    if (c >= L'A' && c <= L'Z')
        return static_cast<wchar_t>(c + 32);
    // Latin-1 capitals U+00C0..U+00DE, except the multiplication sign U+00D7.
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7)
        return static_cast<wchar_t>(c + 32);
    return c;
}

wchar_t toUpper(wchar_t c) {
    if (c >= L'a' && c <= L'z')
        return static_cast<wchar_t>(c - 32);
    // Latin-1 small letters U+00E0..U+00FE, except the division sign U+00F7;
    // U+00DF (sharp s) has no single capital and stays.
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7)
        return static_cast<wchar_t>(c - 32);
    return c;
}

} // namespace QOR

CQorString::CQorString(const wchar_t* text) : m_text(text ? text : L"") {}

CQorString& CQorString::operator=(const wchar_t* text) {
    std::wstring fresh(text ? text : L"");
    m_text.swap(fresh);
    m_bufferOut = false;
    return *this;
}

CQorString::~CQorString() = default;

void CQorString::settle() const {
    if (!m_bufferOut)
        return;
    m_bufferOut = false;
    const std::size_t n = std::wcslen(m_text.c_str());
    if (n < m_text.size())
        m_text.resize(n);
}

const std::wstring& CQorString::str() const {
    settle();
    return m_text;
}

const wchar_t* CQorString::c_str() const {
    return str().c_str();
}

int CQorString::len() const {
    return static_cast<int>(str().size());
}

wchar_t CQorString::operator[](int i) const {
    const std::wstring& s = str();
    if (i < 0 || static_cast<std::size_t>(i) >= s.size())
        return 0;
    return s[static_cast<std::size_t>(i)];
}

void CQorString::setAt(int i, wchar_t c) {
    settle();
    if (i < 0 || static_cast<std::size_t>(i) >= m_text.size())
        return;
    m_text[static_cast<std::size_t>(i)] = c;
    if (c == 0)
        m_text.resize(static_cast<std::size_t>(i));
}

int CQorString::find(wchar_t c) const {
    const std::size_t at = str().find(c);
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

int CQorString::find(const wchar_t* text, int start) const {
    if (!text || start < 0)
        return -1;
    const std::size_t at = str().find(text, static_cast<std::size_t>(start));
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

bool CQorString::operator==(const wchar_t* text) const {
    return str() == (text ? text : L"");
}
bool CQorString::operator<(const wchar_t* text) const {
    return str().compare(text ? text : L"") < 0;
}
bool CQorString::operator>(const wchar_t* text) const {
    return str().compare(text ? text : L"") > 0;
}
bool CQorString::operator==(const CQorString& other) const {
    return str() == other.str();
}
bool CQorString::operator<(const CQorString& other) const {
    return str() < other.str();
}

CQorString& CQorString::operator+=(const wchar_t* text) {
    settle();
    if (text)
        m_text += text;
    return *this;
}

CQorString& CQorString::operator+=(wchar_t c) {
    settle();
    if (c != 0)
        m_text += c;
    return *this;
}

CQorString CQorString::operator+(const wchar_t* text) const {
    CQorString out(*this);
    out += text;
    return out;
}

CQorString CQorString::operator+(const CQorString& other) const {
    CQorString out(*this);
    out += other.c_str();
    return out;
}

CQorString operator+(const wchar_t* text, const CQorString& s) {
    CQorString out(text);
    out += s.c_str();
    return out;
}

CQorString CQorString::mid(unsigned start, unsigned count) const {
    const std::wstring& s = str();
    if (start >= s.size())
        return CQorString();
    return CQorString(s.substr(start, count).c_str());
}

CQorString CQorString::right(unsigned count) const {
    const std::wstring& s = str();
    if (count >= s.size())
        return *this;
    return CQorString(s.substr(s.size() - count).c_str());
}

CQorString CQorString::left(unsigned count) const {
    return CQorString(str().substr(0, count).c_str());
}

CQorString& CQorString::makeLower() {
    settle();
    for (wchar_t& c : m_text)
        c = QOR::toLower(c);
    return *this;
}

CQorString& CQorString::makeUpper() {
    settle();
    for (wchar_t& c : m_text)
        c = QOR::toUpper(c);
    return *this;
}

CQorString& CQorString::replace(const wchar_t* from, const wchar_t* to) {
    settle();
    if (!from || !*from)
        return *this;
    const std::wstring f(from), t(to ? to : L"");
    std::wstring out;
    std::size_t pos = 0;
    for (;;) {
        const std::size_t at = m_text.find(f, pos);
        if (at == std::wstring::npos)
            break;
        out.append(m_text, pos, at - pos);
        out += t;
        pos = at + f.size();
    }
    out.append(m_text, pos, std::wstring::npos);
    m_text.swap(out);
    return *this;
}

CQorString& CQorString::replace(wchar_t from, wchar_t to) {
    settle();
    if (from == 0)
        return *this;
    for (wchar_t& c : m_text)
        if (c == from)
            c = to;
    if (to == 0)
        m_text.resize(std::wcslen(m_text.c_str()));
    return *this;
}

wchar_t* CQorString::GetBuffer(unsigned n) {
    settle();
    if (n > m_text.size())
        m_text.resize(n, L'\0');
    m_bufferOut = true;
    return &m_text[0];
}

void CQorString::empty() {
    m_text.clear();
    m_bufferOut = false;
}

namespace {

// Formats one numeric conversion with the C library; conversion holds a complete,
// portable conversion ("%-08.3f", "%lld").
template <class V>
void appendFormatted(std::wstring& out, const std::wstring& conversion, V value) {
    std::vector<wchar_t> buf(64);
    for (;;) {
        const int n = std::swprintf(buf.data(), buf.size(), conversion.c_str(), value);
        if (n >= 0 && static_cast<std::size_t>(n) < buf.size()) {
            out.append(buf.data(), static_cast<std::size_t>(n));
            return;
        }
        if (buf.size() > (1u << 20))
            return; // no sane single conversion is that long
        buf.resize(buf.size() * 4);
    }
}

// Pads a string conversion to its width, honouring the '-' flag.
void appendPadded(std::wstring& out, const std::wstring& text, int width, bool leftAlign) {
    const int pad =
        width > static_cast<int>(text.size()) ? width - static_cast<int>(text.size()) : 0;
    if (!leftAlign)
        out.append(static_cast<std::size_t>(pad), L' ');
    out += text;
    if (leftAlign)
        out.append(static_cast<std::size_t>(pad), L' ');
}

std::wstring widen(const char* s, int maxChars) {
    std::wstring w;
    if (!s)
        return L"(null)";
    // Narrow texts of the system are Latin-1 (the ANSI code page of its users).
    for (int i = 0; s[i] && (maxChars < 0 || i < maxChars); ++i)
        w += static_cast<wchar_t>(static_cast<unsigned char>(s[i]));
    return w;
}

} // namespace

int CQorString::format(const wchar_t* fmt, ...) {
    va_list args;
    va_start(args, fmt);
    const int n = formatV(fmt, args);
    va_end(args);
    return n;
}

// Walks the format itself, taking each argument with the type its conversion names,
// so that the Windows meaning of %s and %c holds on every C library.
int CQorString::formatV(const wchar_t* fmt, va_list args) {
    std::wstring out;
    if (!fmt) {
        *this = L"";
        return 0;
    }
    va_list ap;
    va_copy(ap, args);
    const wchar_t* p = fmt;
    while (*p) {
        if (*p != L'%') {
            out += *p++;
            continue;
        }
        const wchar_t* start = p++;
        if (*p == L'%') {
            out += L'%';
            ++p;
            continue;
        }
        std::wstring flags;
        while (*p && std::wcschr(L"-+ #0", *p))
            flags += *p++;
        int width = -1;
        if (*p == L'*') {
            width = va_arg(ap, int);
            if (width < 0) {
                flags += L'-';
                width = -width;
            }
            ++p;
        } else if (*p >= L'0' && *p <= L'9') {
            width = 0;
            while (*p >= L'0' && *p <= L'9')
                width = width * 10 + (*p++ - L'0');
        }
        int precision = -1;
        if (*p == L'.') {
            ++p;
            precision = 0;
            if (*p == L'*') {
                precision = va_arg(ap, int);
                ++p;
            } else {
                while (*p >= L'0' && *p <= L'9')
                    precision = precision * 10 + (*p++ - L'0');
            }
        }
        // Size prefixes: h, hh, l, ll, L, I32, I64, I (pointer-sized), z, j, t.
        enum Size { kDefault, kShort, kChar, kLong, kLongLong, kLongDouble, kPtr } size = kDefault;
        bool wideHint = false, narrowHint = false;
        for (bool more = true; more && *p;) {
            switch (*p) {
            case L'h':
                size = size == kShort ? kChar : kShort;
                narrowHint = true;
                ++p;
                break;
            case L'l':
                size = size == kLong ? kLongLong : kLong;
                wideHint = true;
                ++p;
                break;
            case L'L':
                size = kLongDouble;
                ++p;
                break;
            case L'w':
                wideHint = true;
                ++p;
                break;
            case L'z':
            case L'j':
            case L't':
                size = kPtr;
                ++p;
                break;
            case L'I':
                if (p[1] == L'6' && p[2] == L'4') {
                    size = kLongLong;
                    p += 3;
                } else if (p[1] == L'3' && p[2] == L'2') {
                    size = kDefault;
                    p += 3;
                } else {
                    size = kPtr;
                    ++p;
                }
                break;
            default:
                more = false;
            }
        }
        const wchar_t conv = *p;
        if (!conv)
            break;
        ++p;
        std::wstring conversion = L"%" + flags;
        if (width >= 0)
            conversion += std::to_wstring(width);
        if (precision >= 0)
            conversion += L"." + std::to_wstring(precision);
        const bool leftAlign = flags.find(L'-') != std::wstring::npos;
        switch (conv) {
        case L'd':
        case L'i':
        case L'u':
        case L'o':
        case L'x':
        case L'X': {
            const bool isSigned = conv == L'd' || conv == L'i';
            conversion += L"ll";
            conversion += conv;
            long long sv = 0;
            unsigned long long uv = 0;
            switch (size) {
            case kLongLong:
                sv = va_arg(ap, long long);
                uv = static_cast<unsigned long long>(sv);
                break;
            case kPtr:
                sv = static_cast<long long>(va_arg(ap, std::ptrdiff_t));
                uv = static_cast<unsigned long long>(static_cast<std::size_t>(sv));
                break;
            case kLong: {
                const long v = va_arg(ap, long);
                sv = v;
                uv = static_cast<unsigned long>(v);
                break;
            }
            default: {
                const int v = va_arg(ap, int);
                sv = size == kShort  ? static_cast<short>(v)
                     : size == kChar ? static_cast<signed char>(v)
                                     : v;
                uv = size == kShort  ? static_cast<unsigned short>(v)
                     : size == kChar ? static_cast<unsigned char>(v)
                                     : static_cast<unsigned>(v);
                break;
            }
            }
            if (isSigned)
                appendFormatted(out, conversion, sv);
            else
                appendFormatted(out, conversion, uv);
            break;
        }
        case L'f':
        case L'F':
        case L'e':
        case L'E':
        case L'g':
        case L'G':
        case L'a':
        case L'A':
            if (size == kLongDouble) {
                conversion += L'L';
                conversion += conv;
                appendFormatted(out, conversion, va_arg(ap, long double));
            } else {
                conversion += conv;
                appendFormatted(out, conversion, va_arg(ap, double));
            }
            break;
        case L'p':
            conversion += L'p';
            appendFormatted(out, conversion, va_arg(ap, void*));
            break;
        case L'c':
        case L'C': {
            // In a wide format %c is a wide character, %C a narrow one.
            const bool narrow = narrowHint || (conv == L'C' && !wideHint);
            const int v = va_arg(ap, int);
            const wchar_t c = narrow ? static_cast<wchar_t>(static_cast<unsigned char>(v))
                                     : static_cast<wchar_t>(v);
            appendPadded(out, std::wstring(1, c), width, leftAlign);
            break;
        }
        case L's':
        case L'S': {
            // In a wide format %s is a wide string, %S a narrow one.
            const bool narrow = narrowHint || (conv == L'S' && !wideHint);
            std::wstring text;
            if (narrow) {
                text = widen(va_arg(ap, const char*), precision);
            } else {
                const wchar_t* w = va_arg(ap, const wchar_t*);
                text = w ? w : L"(null)";
                if (precision >= 0 && static_cast<std::size_t>(precision) < text.size())
                    text.resize(static_cast<std::size_t>(precision));
            }
            appendPadded(out, text, width, leftAlign);
            break;
        }
        case L'n':
            // Writing through arguments is not supported; the argument is consumed.
            (void)va_arg(ap, void*);
            break;
        default:
            // Unknown conversion: keep its text as it stands.
            out.append(start, static_cast<std::size_t>(p - start));
            break;
        }
    }
    va_end(ap);
    m_text.swap(out);
    m_bufferOut = false;
    return static_cast<int>(m_text.size());
}
