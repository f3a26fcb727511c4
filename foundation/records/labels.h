// Labels: one string holding a text in several languages.
#pragma once

#include "foundation/base/qor_string.h"

// The notation of a label: a row of entries, each a backslash, a language code, a
// colon and the text in that language:
//     \DEU:Stahl\ENG:Steel\FRA:Acier
// A backslash inside a text is written twice ("\\"); every other character,
// line feeds among them, stands as it is. Codes are compared without regard to
// case and contain neither a backslash nor a colon. A string that does not begin
// with a backslash is no label but a plain text. Reading stops at the first entry
// without a colon; what came before it counts.

namespace QOR {

// The text of language lang in the label. A null lang and "-1" are the current
// language. A plain text (no backslash at the start) is the text of every
// language. False, with out emptied, when the label has no text in that language
// or label is null. The last argument is not used.
QOR_API bool label_get(CQorString& out, const wchar_t* label, const wchar_t* lang, bool);

// Puts text as the text of language lang into the label: it replaces the text that
// language had, or is added at the end. An empty or null text removes the
// language. A plain text in label is first kept as the text of the current
// language. Returns the label's characters.
QOR_API const wchar_t* label_set(CQorString& label, const wchar_t* text, const wchar_t* lang);

// The same on a copy of label, which is returned; a null or empty label starts a
// new one.
QOR_API CQorString label_set(const wchar_t* label, const wchar_t* text, const wchar_t* lang);

} // namespace QOR
