// UTF-8: the library's one encoder, its strict decoder (for formats that refuse
// bytes that are not UTF-8) and its lenient decoder (for text files, where such
// bytes become U+FFFD).
#pragma once

#include "foundation/base/qor_string.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace QOR {

// Appends the UTF-8 form of the code point cp: one byte below 0x80, two below
// 0x800, three below 0x10000, four above. Whether cp is a Unicode scalar value is
// the caller's concern: a lone surrogate is encoded as it is.
QOR_API void utf8Append(std::string& out, std::uint32_t cp);

// The UTF-8 form of a wide string. Where wchar_t has 16 bits a high surrogate
// followed by a low one is one code point; every other unit is encoded on its own.
// Null gives "".
QOR_API std::string toUtf8(const wchar_t* text);

// Strict: decodes the sequence that starts at p (p before end) into cp and returns
// its length in bytes, 1 to 4. Returns 0, cp unchanged, when no valid sequence
// starts there: p at end, a byte that starts no sequence, a sequence cut short by
// end or by a byte that does not continue it, an overlong form, a surrogate or a
// value above 0x10FFFF.
QOR_API std::size_t utf8Decode(const char* p, const char* end, std::uint32_t& cp);

// Appends the code point cp to a wide string: as a surrogate pair above 0xFFFF
// where wchar_t has 16 bits, else as one unit.
QOR_API void wideAppend(std::wstring& out, std::uint32_t cp);

// Lenient: size bytes of UTF-8 as a wide string (UTF-16 where wchar_t has 16 bits).
// Each byte at which no valid sequence starts (utf8Decode) becomes one U+FFFD and
// decoding goes on with the next byte. The string ends at a decoded character 0.
QOR_API CQorString fromUtf8(const char* bytes, std::size_t size);

} // namespace QOR
