#include "foundation/records/length_text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

// Largest count of steps (10^-prec or 2^-prec) that formats 3 to 5 write. Below
// it a double has at most an eighth between neighbours, so that the value read
// back from a text, scaled again, lies well within half a step of the count the
// text was written from, and writes the same text.
constexpr double kMaxSteps = 1.0e15;

// The value as a whole count of steps, rounded half away from zero; false when it
// is above kMaxSteps.
bool stepCount(double a, double scale, std::uint64_t& n) {
    const double x = a * scale;
    if (!(x < 2.0 * kMaxSteps))
        return false;
    const double r = std::round(x);
    if (r > kMaxSteps)
        return false;
    n = static_cast<std::uint64_t>(r);
    return true;
}
// Longest text qorAtoF looks at.
constexpr std::size_t kMaxInput = 1024;

bool finish(wchar_t* out, const std::string& text) {
    if (text.size() >= static_cast<std::size_t>(kQorLengthTextSize)) {
        out[0] = 0;
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i)
        out[i] = static_cast<wchar_t>(text[i]);
    out[text.size()] = 0;
    return true;
}

// Leaves out trailing zeros of the decimals between first and last, and the point
// when nothing is left after it.
void stripZeros(std::string& s, std::size_t decimalsEnd) {
    const std::size_t point = s.find('.');
    if (point == std::string::npos || point > decimalsEnd)
        return;
    std::size_t cut = decimalsEnd;
    while (cut > point + 1 && s[cut - 1] == '0')
        --cut;
    if (cut == point + 1)
        cut = point;
    s.erase(cut, decimalsEnd - cut);
}

bool allZeroDigits(const std::string& s, std::size_t end) {
    for (std::size_t i = 0; i < end; ++i)
        if (s[i] >= '1' && s[i] <= '9')
            return false;
    return true;
}

std::string decimalText(double a, int prec, bool option, bool& isZero) {
    char buf[400];
    const auto r = std::to_chars(buf, buf + sizeof buf, a, std::chars_format::fixed, prec);
    std::string s(buf, r.ec == std::errc() ? r.ptr : buf);
    isZero = allZeroDigits(s, s.size());
    if (option)
        stripZeros(s, s.size());
    return s;
}

std::string scientificText(double a, int prec, bool option, bool& isZero) {
    char buf[64];
    const auto r = std::to_chars(buf, buf + sizeof buf, a, std::chars_format::scientific, prec);
    std::string s(buf, r.ec == std::errc() ? r.ptr : buf);
    std::size_t e = s.find('e');
    if (e == std::string::npos)
        e = s.size();
    else
        s[e] = 'E';
    isZero = allZeroDigits(s, e);
    if (option)
        stripZeros(s, e);
    return s;
}

std::string fractionText(std::uint64_t num, std::uint64_t den) {
    while (den > 1 && num % 2 == 0) {
        num /= 2;
        den /= 2;
    }
    return std::to_string(num) + "/" + std::to_string(den);
}

} // namespace

bool qorRtoS(wchar_t* out, double v, Qor::lFormat fmt, int prec, bool option) {
    if (!out)
        return false;
    out[0] = 0;
    if (!std::isfinite(v))
        return false;
    if (prec < 0)
        prec = 0;
    if (prec > 16)
        prec = 16;
    const double a = std::fabs(v);
    std::string body;
    bool isZero = false;
    switch (fmt) {
    case Qor::formatScientific:
        body = scientificText(a, prec, option, isZero);
        break;
    case Qor::formatDecimal:
        body = decimalText(a, prec, option, isZero);
        break;
    case Qor::formatEngineering: {
        std::uint64_t scale = 1;
        for (int i = 0; i < prec; ++i)
            scale *= 10;
        std::uint64_t n = 0;
        if (!stepCount(a, static_cast<double>(scale), n))
            return false;
        isZero = n == 0;
        const std::uint64_t feet = n / (12 * scale);
        const std::uint64_t rem = n % (12 * scale);
        body = std::to_string(feet) + "'-" + std::to_string(rem / scale);
        if (prec > 0) {
            std::string digits = std::to_string(rem % scale);
            body += "." + std::string(static_cast<std::size_t>(prec) - digits.size(), '0') + digits;
            if (option)
                stripZeros(body, body.size());
        }
        body += "\"";
        break;
    }
    case Qor::formatArchitectural:
    case Qor::formatFractional: {
        const std::uint64_t scale = std::uint64_t(1) << prec;
        std::uint64_t n = 0;
        if (!stepCount(a, static_cast<double>(scale), n))
            return false;
        isZero = n == 0;
        const std::uint64_t mask = scale - 1;
        if (fmt == Qor::formatArchitectural) {
            const std::uint64_t feet = n / (12 * scale);
            const std::uint64_t rem = n % (12 * scale);
            body = std::to_string(feet) + "'-" + std::to_string(rem >> prec);
            if (rem & mask)
                body += " " + fractionText(rem & mask, scale);
            body += "\"";
        } else {
            const std::uint64_t whole = n >> prec;
            if (whole != 0 || (n & mask) == 0)
                body = std::to_string(whole);
            if (n & mask)
                body += (body.empty() ? "" : " ") + fractionText(n & mask, scale);
        }
        break;
    }
    default:
        return false;
    }
    if (body.empty())
        return false;
    if (v < 0.0 && !isZero)
        body.insert(body.begin(), '-');
    return finish(out, body);
}

namespace {

// The reader of length texts. Every function takes the position to start at and
// returns the position after what it read, or null when nothing fitting is there.
struct Reader {
    const wchar_t* end;

    static bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
    static bool isBlank(wchar_t c) { return c == L' ' || c == L'\t'; }

    const wchar_t* skipBlanks(const wchar_t* p) const {
        while (p < end && isBlank(*p))
            ++p;
        return p;
    }

    // Plain digits, at least one.
    const wchar_t* digits(const wchar_t* p, double& value) const {
        std::string s;
        while (p < end && isDigit(*p))
            s += static_cast<char>(*p++);
        if (s.empty())
            return nullptr;
        const auto r = std::from_chars(s.data(), s.data() + s.size(), value);
        return r.ec == std::errc() ? p : nullptr;
    }

    // A number without sign: digits, decimal point or comma, exponent.
    const wchar_t* number(const wchar_t* p, double& value, bool& whole) const {
        std::string s;
        bool anyDigit = false;
        whole = true;
        while (p < end && isDigit(*p)) {
            s += static_cast<char>(*p++);
            anyDigit = true;
        }
        if (p < end && (*p == L'.' || *p == L',')) {
            const wchar_t* q = p + 1;
            std::string frac;
            while (q < end && isDigit(*q))
                frac += static_cast<char>(*q++);
            if (anyDigit || !frac.empty()) {
                s += "." + frac;
                anyDigit = true;
                whole = false;
                p = q;
            }
        }
        if (!anyDigit)
            return nullptr;
        if (p < end && (*p == L'e' || *p == L'E')) {
            const wchar_t* q = p + 1;
            std::string ex = "e";
            if (q < end && (*q == L'+' || *q == L'-'))
                ex += static_cast<char>(*q++);
            if (q < end && isDigit(*q)) {
                while (q < end && isDigit(*q))
                    ex += static_cast<char>(*q++);
                s += ex;
                whole = false;
                p = q;
            }
        }
        if (s[0] == '.')
            s.insert(s.begin(), '0');
        if (s.back() == '.')
            s.pop_back();
        const std::string::size_type point = s.find('.');
        if (point != std::string::npos && (point + 1 == s.size() || s[point + 1] == 'e'))
            s.erase(point, 1);
        const auto r = std::from_chars(s.data(), s.data() + s.size(), value);
        return r.ec == std::errc() ? p : nullptr;
    }

    // "/" and a denominator above zero after a numerator already read.
    const wchar_t* over(const wchar_t* p, double numerator, double& value) const {
        if (p >= end || *p != L'/')
            return nullptr;
        double den = 0.0;
        const wchar_t* q = digits(p + 1, den);
        if (!q || den == 0.0)
            return nullptr;
        value = numerator / den;
        return q;
    }

    // A number, a fraction or a whole number with a fraction.
    const wchar_t* mixed(const wchar_t* p, double& value) const {
        bool whole = false;
        double n = 0.0;
        const wchar_t* q = number(p, n, whole);
        if (!q)
            return nullptr;
        value = n;
        if (!whole)
            return q;
        double f = 0.0;
        if (const wchar_t* r = over(q, n, f)) {
            value = f;
            return r;
        }
        const wchar_t* r = q;
        if (r < end && isBlank(*r))
            r = skipBlanks(r);
        else if (r < end && *r == L'-')
            ++r;
        else
            return q;
        double num = 0.0;
        const wchar_t* s = digits(r, num);
        if (!s)
            return q;
        if (const wchar_t* t = over(s, num, f)) {
            value = n + f;
            return t;
        }
        return q;
    }

    // An inch part: mixed, then an optional inch mark.
    const wchar_t* inches(const wchar_t* p, double& value) const {
        const wchar_t* q = mixed(p, value);
        if (q && q < end && *q == L'"')
            ++q;
        return q;
    }

    // A whole length without sign.
    const wchar_t* length(const wchar_t* p, double& value) const {
        bool whole = false;
        double feet = 0.0;
        const wchar_t* q = number(p, feet, whole);
        if (q && q < end && *q == L'\'') {
            ++q;
            value = feet * 12.0;
            const wchar_t* r = skipBlanks(q);
            if (r < end && *r == L'-')
                r = skipBlanks(r + 1);
            double in = 0.0;
            if (const wchar_t* s = inches(r, in)) {
                value += in;
                return s;
            }
            return q;
        }
        return inches(p, value);
    }
};

} // namespace

double qorAtoF(const wchar_t* text) {
    if (!text)
        return 0.0;
    std::size_t n = 0;
    while (n <= kMaxInput && text[n])
        ++n;
    if (n > kMaxInput)
        return 0.0;
    Reader reader{text + n};
    const wchar_t* p = reader.skipBlanks(text);
    double sign = 1.0;
    if (p < reader.end && (*p == L'+' || *p == L'-')) {
        sign = *p == L'-' ? -1.0 : 1.0;
        p = reader.skipBlanks(p + 1);
    }
    double value = 0.0;
    if (!reader.length(p, value))
        return 0.0;
    value *= sign;
    return std::isfinite(value) ? value : 0.0;
}
