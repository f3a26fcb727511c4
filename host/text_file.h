// Reading the default host's text files (UTF-8, with or without a byte order
// mark, LF or CRLF line ends), by wide file name on every platform.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_string.h"

namespace QOR {
namespace host {

// True when the file can be opened for reading.
QOR_API bool fileReadable(const wchar_t* path);

// The lines of a text file without their line ends; false when it cannot be
// opened. Bytes that are not valid UTF-8 become U+FFFD each.
QOR_API bool textFileLines(const wchar_t* path, CQorArrayTempl<CQorString>& lines);

// UTF-8 bytes to a wide string (UTF-16 where wchar_t has 16 bits).
QOR_API CQorString fromUtf8(const char* bytes, std::size_t size);

} // namespace host
} // namespace QOR
