// Message texts by key and language, and the current language.
#pragma once

#include "foundation/base/qor_string.h"

// The text of a message key in a language. prefix names the family of message
// files ("QOR_" for this library); key is looked up exactly as given, the
// language without regard to case. A null lang and "-1" are the current language
// (QOR::msgLangSet). Without a text for the key in that language the result is
// defaultText, or an empty string when that is null; no other language stands in.
// The default host reads the texts from message files: see
// host/message_store.h.
QOR_API CQorString qor_msg_get(const wchar_t* prefix, const wchar_t* key,
                               const wchar_t* defaultText, const wchar_t* lang);

namespace QOR {

// Sets the current language to the code lang (a code of qorDlCountrys, such as
// "DEU", or any other non-empty code) and returns the current code. Null, an
// empty text and "-1" only read it. The language at start is "DEU". The returned
// characters stay valid for the life of the library, also when the language
// changes later.
QOR_API const wchar_t* msgLangSet(const wchar_t* lang);

} // namespace QOR
