// Finds a slide in the bytes of an AutoCAD slide library (SLB).
#pragma once

#include <cstddef>
#include <cstdint>

namespace QOR {

// Library layout: a 32-byte header, then directory entries of 36 bytes (32 bytes of
// NUL-padded name, 4 bytes of file offset, little-endian); an entry whose name begins
// with NUL ends the directory.
constexpr std::size_t kSlideLibHeaderSize = 32;
constexpr std::size_t kSlideLibNameSize = 32;
constexpr std::size_t kSlideLibEntrySize = 36;

// Looks name up (narrow text, at most its first 32 bytes count, compared without
// regard to ASCII case) and gives the slide's bytes as offset and length within lib.
// A slide's length is the next entry's offset minus its own; for the last entry,
// the library's size minus its own offset. A slide whose bytes do not lie inside
// lib is cut to what does. False for a null or empty name, a name not found, or an
// offset that is not inside lib or lies after the next entry's.
bool slideLibraryFind(const std::uint8_t* lib, std::size_t size, const char* name,
                      std::size_t& offset, std::size_t& length);

} // namespace QOR
