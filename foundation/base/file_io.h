// Files by wide name on every platform: opening one, and whole files as bytes.
#pragma once

#include "foundation/base/qor_export.h"

#include <cstdio>
#include <string>

namespace QOR {

// A file by wide name (the C library gets UTF-8 where it takes narrow names),
// opened in binary mode for reading or writing; null for a null or empty name or a
// file that cannot be opened. The caller closes it.
QOR_API std::FILE* fileOpen(const wchar_t* fileName, bool write);

// True when the file can be opened for reading.
QOR_API bool fileReadable(const wchar_t* fileName);

// Whole files as bytes; false when the file cannot be opened or read (out is then
// unchanged) or written.
QOR_API bool readFileBytes(const wchar_t* fileName, std::string& out);
QOR_API bool writeFileBytes(const wchar_t* fileName, const std::string& bytes);

} // namespace QOR
