#include "host/text_file.h"

#include "foundation/base/file_io.h"
#include "foundation/base/utf8.h"

#include <string>

namespace QOR {
namespace host {

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
