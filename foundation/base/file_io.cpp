#include "foundation/base/file_io.h"

#include "foundation/base/utf8.h"

namespace QOR {

std::FILE* fileOpen(const wchar_t* name, bool write) {
    if (!name || !*name)
        return nullptr;
#if defined(_WIN32)
    return _wfopen(name, write ? L"wb" : L"rb");
#else
    return std::fopen(toUtf8(name).c_str(), write ? "wb" : "rb");
#endif
}

bool fileReadable(const wchar_t* fileName) {
    std::FILE* f = fileOpen(fileName, false);
    if (!f)
        return false;
    std::fclose(f);
    return true;
}

bool readFileBytes(const wchar_t* fileName, std::string& out) {
    std::FILE* f = fileOpen(fileName, false);
    if (!f)
        return false;
    std::string bytes;
    char buf[65536];
    std::size_t n = 0;
    while ((n = std::fread(buf, 1, sizeof buf, f)) > 0)
        bytes.append(buf, n);
    const bool ok = !std::ferror(f);
    std::fclose(f);
    if (ok)
        out.swap(bytes);
    return ok;
}

bool writeFileBytes(const wchar_t* fileName, const std::string& bytes) {
    std::FILE* f = fileOpen(fileName, true);
    if (!f)
        return false;
    const bool ok = std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
    return std::fclose(f) == 0 && ok;
}

} // namespace QOR
