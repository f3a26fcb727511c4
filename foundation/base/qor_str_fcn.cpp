#include "foundation/base/qor_str_fcn.h"

#include <climits>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <string>

namespace QOR {

namespace {

bool isSpace(wchar_t c) {
    return c == L' ' || (c >= L'\t' && c <= L'\r');
}
bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

} // namespace

double atof(const wchar_t* text) {
    if (text == nullptr)
        return 0.0;
    const wchar_t* p = text;
    while (isSpace(*p))
        ++p;
    // Collect the characters of the number in plain ASCII and let strtod read
    // them; the "C" spelling is the only one accepted, so no locale plays in.
    std::string s;
    if (*p == L'+' || *p == L'-')
        s += char(*p++);
    bool digits = false;
    while (isDigit(*p)) {
        s += char(*p++);
        digits = true;
    }
    if (*p == L'.') {
        std::string frac = ".";
        const wchar_t* q = p + 1;
        while (isDigit(*q)) {
            frac += char(*q++);
            digits = true;
        }
        if (digits) {
            s += frac;
            p = q;
        }
    }
    if (!digits)
        return 0.0;
    if (*p == L'e' || *p == L'E') {
        const wchar_t* q = p + 1;
        std::string ex = "e";
        if (*q == L'+' || *q == L'-')
            ex += char(*q++);
        if (isDigit(*q)) {
            while (isDigit(*q))
                ex += char(*q++);
            s += ex;
        }
    }
    // Decimal point of the "C" locale: strtod of the C library follows the
    // global locale, so the mark is swapped for the one it expects.
    const char mark = *std::localeconv()->decimal_point;
    for (char& c : s)
        if (c == '.')
            c = mark;
    return std::strtod(s.c_str(), nullptr);
}

int atoi(const wchar_t* text) {
    const double v = QOR::atof(text);
    if (std::isnan(v))
        return 0;
    if (v >= double(INT_MAX))
        return INT_MAX;
    if (v <= double(INT_MIN))
        return INT_MIN;
    return static_cast<int>(v);
}

int strTok(const wchar_t* text, const wchar_t* delims, CQorArrayTempl<CQorString>& out, bool flag) {
    out.setLogicalLength(0);
    if (text == nullptr || *text == 0)
        return 0;
    auto isDelim = [delims](wchar_t c) {
        if (delims == nullptr)
            return false;
        for (const wchar_t* d = delims; *d; ++d)
            if (*d == c)
                return true;
        return false;
    };
    std::wstring piece;
    for (const wchar_t* p = text;; ++p) {
        if (*p == 0 || isDelim(*p)) {
            if (flag || !piece.empty())
                out.append(CQorString(piece.c_str()));
            piece.clear();
            if (*p == 0)
                break;
        } else {
            piece += *p;
        }
    }
    return out.len();
}

} // namespace QOR
