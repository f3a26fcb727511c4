#include "foundation/base/utf8.h"

namespace QOR {

namespace {

constexpr bool kWide16 = sizeof(wchar_t) == 2;

} // namespace

void utf8Append(std::string& out, std::uint32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

std::string toUtf8(const wchar_t* text) {
    std::string out;
    for (const wchar_t* p = text ? text : L""; *p; ++p) {
        std::uint32_t unit =
            kWide16 ? static_cast<std::uint16_t>(*p) : static_cast<std::uint32_t>(*p);
        if (kWide16 && unit >= 0xD800 && unit <= 0xDBFF) {
            const std::uint32_t low = static_cast<std::uint16_t>(p[1]);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
                ++p;
            }
        }
        utf8Append(out, unit);
    }
    return out;
}

std::size_t utf8Decode(const char* p, const char* end, std::uint32_t& cp) {
    if (!p || p >= end)
        return 0;
    const unsigned char c = static_cast<unsigned char>(*p);
    std::uint32_t value = 0;
    std::size_t more = 0;
    if (c < 0x80) {
        value = c;
    } else if ((c & 0xE0) == 0xC0) {
        value = c & 0x1F;
        more = 1;
    } else if ((c & 0xF0) == 0xE0) {
        value = c & 0x0F;
        more = 2;
    } else if ((c & 0xF8) == 0xF0) {
        value = c & 0x07;
        more = 3;
    } else {
        return 0;
    }
    if (static_cast<std::size_t>(end - p) <= more)
        return 0;
    for (std::size_t k = 1; k <= more; ++k) {
        const unsigned char next = static_cast<unsigned char>(p[k]);
        if ((next & 0xC0) != 0x80)
            return 0;
        value = (value << 6) | (next & 0x3F);
    }
    static const std::uint32_t kLeast[4] = {0, 0x80, 0x800, 0x10000};
    if (value < kLeast[more] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return 0;
    cp = value;
    return more + 1;
}

void wideAppend(std::wstring& out, std::uint32_t cp) {
    if (kWide16 && cp > 0xFFFF) {
        cp -= 0x10000;
        out += static_cast<wchar_t>(0xD800 + (cp >> 10));
        out += static_cast<wchar_t>(0xDC00 + (cp & 0x3FF));
    } else {
        out += static_cast<wchar_t>(cp);
    }
}

CQorString fromUtf8(const char* bytes, std::size_t size) {
    std::wstring out;
    const char* p = bytes;
    const char* end = bytes ? bytes + size : bytes;
    while (p && p < end) {
        std::uint32_t cp = 0;
        const std::size_t n = utf8Decode(p, end, cp);
        if (n == 0) {
            out += static_cast<wchar_t>(0xFFFD);
            ++p;
            continue;
        }
        wideAppend(out, cp);
        p += n;
    }
    return CQorString(out.c_str());
}

} // namespace QOR
