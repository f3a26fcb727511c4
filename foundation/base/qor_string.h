// CQorString: the wide string value type of the system.
#pragma once

#include "foundation/base/qor_obj.h"

#include <cstdarg>
#include <string>

// A wide string (wchar_t, 16 bits on Windows, 32 on Linux; nothing here assumes
// either). Comparisons are exact and case-sensitive. Indices out of range read as 0
// and are ignored by writes.
class QOR_API CQorString : public CQorObj {
public:
    CQorString() = default;
    CQorString(const CQorString& other) = default;
    CQorString(const wchar_t* text);
    CQorString& operator=(const CQorString& other) = default;
    CQorString(CQorString&& other) noexcept = default;
    CQorString& operator=(CQorString&& other) noexcept = default;
    CQorString& operator=(const wchar_t* text);
    ~CQorString() override;

    // The text as a null-terminated wide C string, valid until the next change.
    operator const wchar_t*() const { return c_str(); }
    const wchar_t* c_str() const;

    int len() const;
    wchar_t operator[](int i) const;
    void setAt(int i, wchar_t c);
    // Index of the first c, or -1.
    int find(wchar_t c) const;
    // Index of the first occurrence of text at or after start, or -1.
    int find(const wchar_t* text, int start = 0) const;

    bool operator==(const wchar_t* text) const;
    bool operator!=(const wchar_t* text) const { return !(*this == text); }
    bool operator<(const wchar_t* text) const;
    bool operator>(const wchar_t* text) const;
    bool operator==(const CQorString& other) const;
    bool operator!=(const CQorString& other) const { return !(*this == other); }
    bool operator<(const CQorString& other) const;

    CQorString& operator+=(const wchar_t* text);
    CQorString& operator+=(wchar_t c);
    CQorString operator+(const wchar_t* text) const;
    CQorString operator+(const CQorString& other) const;

    // Copies of a part; ranges are clipped to the string.
    CQorString mid(unsigned start, unsigned count) const;
    CQorString right(unsigned count) const;
    CQorString left(unsigned count) const;

    // Case mapping of ASCII and Latin-1 letters, the same on every platform.
    CQorString& makeLower();
    CQorString& makeUpper();
    // Replaces every occurrence (left to right, non-overlapping); an empty search
    // text changes nothing.
    CQorString& replace(const wchar_t* from, const wchar_t* to);
    CQorString& replace(wchar_t from, wchar_t to);

    // printf formatting with the Windows meaning of the wide conversions: %s and %c
    // take a wide string and a wide character, %S and %C a narrow one; %ls/%hs and
    // %lc/%hc say it explicitly; I64 and I32 size prefixes are understood.
    // Returns the new length.
    int format(const wchar_t* fmt, ...);
    int formatV(const wchar_t* fmt, va_list args);

    // A writable buffer of at least n characters (with 0, the present buffer) for
    // platform calls that write a C string. The string's length is the length of
    // the C string found there at the next read.
    wchar_t* GetBuffer(unsigned n);

    bool isNull() const { return len() == 0; }
    void empty();

    const std::wstring& str() const;

private:
    void settle() const;

    mutable std::wstring m_text;
    mutable bool m_bufferOut = false;
};

QOR_API CQorString operator+(const wchar_t* text, const CQorString& s);

namespace QOR {
// Case mapping used by CQorString (ASCII and Latin-1).
QOR_API wchar_t toLower(wchar_t c);
QOR_API wchar_t toUpper(wchar_t c);
} // namespace QOR
