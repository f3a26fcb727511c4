// Plain number reading and splitting of wide texts.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_export.h"
#include "foundation/base/qor_string.h"

namespace QOR {

// The number at the start of text: white space, an optional sign, digits with an
// optional '.' and fraction, an optional exponent ('e' or 'E', sign, digits). It
// stops without failure at the first character that does not continue the
// number ("12.5mm" gives 12.5). No number, or a null text, gives 0.0. The decimal
// mark is always '.', whatever the locale.
QOR_API double atof(const wchar_t* text);
// The number read as by atof, truncated toward zero, limited to the range of int.
// Not a number gives 0.
QOR_API int atoi(const wchar_t* text);
// Splits text at every character of delims into out (emptied first) and returns
// the number of tokens. With flag true every piece is a token, empty ones too:
// "\a\b" split at "\" gives "", "a" and "b". With flag false empty pieces are
// skipped: the same gives "a" and "b". A null or empty text gives no token; a
// null or empty delims gives the whole text as one token.
QOR_API int strTok(const wchar_t* text, const wchar_t* delims, CQorArrayTempl<CQorString>& out,
                   bool flag);

} // namespace QOR
