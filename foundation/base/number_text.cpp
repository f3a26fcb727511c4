#include "foundation/base/number_text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace QOR {

std::string doubleToText(double v) {
    if (std::isnan(v)) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &v, sizeof bits);
        char buf[40];
        static const char* digits = "0123456789abcdef";
        std::string hex;
        for (int shift = 60; shift >= 0; shift -= 4)
            hex += digits[(bits >> shift) & 0xF];
        std::snprintf(buf, sizeof buf, "nan(0x%s)", hex.c_str());
        return buf;
    }
    if (std::isinf(v))
        return v < 0 ? "-inf" : "inf";
    char buf[64];
    const std::to_chars_result r = std::to_chars(buf, buf + sizeof buf, v);
    std::string s(buf, r.ptr);
    if (s.find_first_of(".en") == std::string::npos) {
        // "1e+20" style already has an 'e'; a plain integer text gets ".0".
        s += ".0";
    }
    return s;
}

static int hexValue(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

std::size_t doubleFromText(const char* text, std::size_t n, double& out) {
    if (!text || n == 0)
        return 0;
    std::size_t i = 0;
    const bool negative = text[0] == '-';
    if (text[0] == '-' || text[0] == '+')
        i = 1;
    const char* rest = text + i;
    const std::size_t left = n - i;
    if (left >= 3 && std::strncmp(rest, "inf", 3) == 0) {
        out = negative ? -HUGE_VAL : HUGE_VAL;
        return i + 3;
    }
    if (left >= 6 && i == 0 && std::strncmp(rest, "nan(0x", 6) == 0) {
        std::uint64_t bits = 0;
        std::size_t k = 6;
        int count = 0;
        for (; k < left && hexValue(rest[k]) >= 0 && count < 16; ++k, ++count)
            bits = (bits << 4) | static_cast<std::uint64_t>(hexValue(rest[k]));
        if (count == 0 || k >= left || rest[k] != ')')
            return 0;
        double v = 0.0;
        std::memcpy(&v, &bits, sizeof v);
        out = v;
        return k + 1;
    }
    // from_chars takes no '+' sign; it is skipped above and the text after it read.
    double v = 0.0;
    const char* begin = text[0] == '+' ? text + 1 : text;
    if (begin < text + n && *begin == '+')
        return 0;
    const std::from_chars_result r = std::from_chars(begin, text + n, v);
    if (r.ec != std::errc())
        return 0;
    out = v;
    return static_cast<std::size_t>(r.ptr - text);
}

} // namespace QOR
