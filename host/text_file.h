// Reading the default host's text files (UTF-8, with or without a byte order
// mark, LF or CRLF line ends), by wide file name on every platform.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_string.h"

namespace QOR {
namespace host {

// The lines of a text file without their line ends; false when it cannot be
// opened. Bytes that are not valid UTF-8 become U+FFFD each (QOR::fromUtf8).
QOR_API bool textFileLines(const wchar_t* path, CQorArrayTempl<CQorString>& lines);

} // namespace host
} // namespace QOR
