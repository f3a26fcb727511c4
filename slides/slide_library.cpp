#include "slides/slide_library.h"

namespace QOR {

namespace {

std::uint32_t readLe32(const std::uint8_t* p) {
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

char lowerAscii(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

// The entry's name field (NUL-padded, possibly without a NUL) against name.
bool sameName(const std::uint8_t* field, const char* name) {
    std::size_t len = 0;
    while (len < kSlideLibNameSize && name[len] != '\0')
        ++len;
    for (std::size_t k = 0; k < kSlideLibNameSize; ++k) {
        const char a = static_cast<char>(field[k]);
        const char b = k < len ? name[k] : '\0';
        if (lowerAscii(a) != lowerAscii(b))
            return false;
        if (a == '\0')
            return true;
    }
    return true;
}

// True when an entry lies at p within the library and its name does not begin with NUL.
bool entryAt(const std::uint8_t* lib, std::size_t size, std::size_t p) {
    return p <= size && size - p >= kSlideLibEntrySize && lib[p] != 0;
}

} // namespace

bool slideLibraryFind(const std::uint8_t* lib, std::size_t size, const char* name,
                      std::size_t& offset, std::size_t& length) {
    if (!lib || !name || name[0] == '\0')
        return false;
    for (std::size_t p = kSlideLibHeaderSize; entryAt(lib, size, p); p += kSlideLibEntrySize) {
        if (!sameName(lib + p, name))
            continue;
        const std::uint32_t own = readLe32(lib + p + kSlideLibNameSize);
        const std::size_t next = p + kSlideLibEntrySize;
        std::size_t end = size;
        if (entryAt(lib, size, next))
            end = readLe32(lib + next + kSlideLibNameSize);
        if (own > size || end < own)
            return false;
        if (end > size)
            end = size;
        offset = own;
        length = end - own;
        return true;
    }
    return false;
}

} // namespace QOR
