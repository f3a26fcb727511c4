#include "host/text_file.h"

#include "foundation/data/data_text_format.h"

#include <cstdio>
#include <string>

namespace {

void appendCodePoint(std::wstring& out, unsigned long cp) {
    if (sizeof(wchar_t) == 2 && cp > 0xFFFF) {
        cp -= 0x10000;
        out += static_cast<wchar_t>(0xD800 + (cp >> 10));
        out += static_cast<wchar_t>(0xDC00 + (cp & 0x3FF));
    } else {
        out += static_cast<wchar_t>(cp);
    }
}

} // namespace

namespace QOR {
namespace host {

bool fileReadable(const wchar_t* path) {
    std::FILE* f = fileOpen(path, false);
    if (!f)
        return false;
    std::fclose(f);
    return true;
}

CQorString fromUtf8(const char* bytes, std::size_t size) {
    std::wstring out;
    const unsigned char* s = reinterpret_cast<const unsigned char*>(bytes);
    std::size_t i = 0;
    while (i < size) {
        const unsigned char c = s[i];
        int extra = 0;
        unsigned long cp = 0;
        unsigned long least = 0;
        if (c < 0x80) {
            cp = c;
        } else if ((c & 0xE0) == 0xC0) {
            extra = 1, cp = c & 0x1F, least = 0x80;
        } else if ((c & 0xF0) == 0xE0) {
            extra = 2, cp = c & 0x0F, least = 0x800;
        } else if ((c & 0xF8) == 0xF0) {
            extra = 3, cp = c & 0x07, least = 0x10000;
        } else {
            out += static_cast<wchar_t>(0xFFFD);
            ++i;
            continue;
        }
        bool ok = true;
        for (int k = 1; ok && k <= extra; ++k) {
            if (i + static_cast<std::size_t>(k) >= size || (s[i + k] & 0xC0) != 0x80)
                ok = false;
            else
                cp = (cp << 6) | (s[i + k] & 0x3F);
        }
        if (!ok || cp < least || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) {
            out += static_cast<wchar_t>(0xFFFD);
            ++i;
            continue;
        }
        appendCodePoint(out, cp);
        i += static_cast<std::size_t>(extra) + 1;
    }
    return CQorString(out.c_str());
}

bool textFileLines(const wchar_t* path, CQorArrayTempl<CQorString>& lines) {
    std::string bytes;
    if (!readFileBytes(path, bytes))
        return false;
    std::size_t start = 0;
    if (bytes.size() >= 3 && static_cast<unsigned char>(bytes[0]) == 0xEF &&
        static_cast<unsigned char>(bytes[1]) == 0xBB &&
        static_cast<unsigned char>(bytes[2]) == 0xBF)
        start = 3;
    lines.setLogicalLength(0);
    while (start < bytes.size()) {
        std::size_t end = start;
        while (end < bytes.size() && bytes[end] != '\n')
            ++end;
        std::size_t stop = end;
        if (stop > start && bytes[stop - 1] == '\r')
            --stop;
        lines.append(fromUtf8(bytes.data() + start, stop - start));
        start = end + 1;
    }
    return true;
}

} // namespace host
} // namespace QOR
