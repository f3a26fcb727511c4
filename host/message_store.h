// The default host's message store: the texts behind qor_msg_get.
//
// Message files are UTF-8 text, one entry per line:
//     KEY;LANG;text
// The text runs to the end of the line; in it "\n" stands for a line feed and
// "\\" for a backslash, and every other character stands as it is (";" too).
// Lines beginning with "#" and blank lines are skipped, and so is a line without
// two ";" or with an empty key or language. A later entry for the same key and
// language replaces an earlier one. Keys are exact; languages are compared
// without regard to case.
//
// The texts of a prefix come from the files loaded for it with msgFileLoad. At
// the first look-up of a prefix for which nothing was loaded, the store looks for
// the file "<prefix>msg.txt" with QOR::fileFind and loads it when found.
#pragma once

#include "foundation/base/qor_string.h"

namespace QOR {
namespace host {

// Loads a message file for a prefix (null is the empty prefix). Returns the
// number of entries read, or -1 when the file cannot be opened.
QOR_API int msgFileLoad(const wchar_t* prefix, const wchar_t* path);

// Sets one text; an empty or null text removes it.
QOR_API void msgTextSet(const wchar_t* prefix, const wchar_t* key, const wchar_t* lang,
                        const wchar_t* text);

// The text of a key in a language (an explicit code, not "-1"); false when none.
QOR_API bool msgTextGet(const wchar_t* prefix, const wchar_t* key, const wchar_t* lang,
                        CQorString& out);

// Forgets every text and every prefix, so that the next look-up searches for the
// files again.
QOR_API void msgStoreClear();

} // namespace host
} // namespace QOR
