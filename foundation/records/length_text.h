// qorRtoS and qorAtoF: lengths as text in the formats of AutoCAD's LUNITS.
#pragma once

#include "foundation/records/units.h"

// Room of the buffer that qorRtoS writes: characters including the closing null.
constexpr int kQorLengthTextSize = 56;

// Writes the text of the length v into out, which has room for kQorLengthTextSize
// wide characters (at most 55 visible and a closing null). The notations, shown
// for 15.5 and -15.5:
//   1 scientific    "1.5500E+01"       mantissa with prec decimals, "E", sign and
//                                      at least two exponent digits
//   2 decimal       "15.50"            prec decimals
//   3 engineering   "1'-3.50\""        v in inches: feet, "'-", inches with prec
//                                      decimals, "\""
//   4 architectural "1'-3 1/2\""       v in inches: feet, "'-", whole inches, a
//                                      blank and the reduced fraction when it is
//                                      not zero, "\""
//   5 fractional    "15 1/2"           whole part, a blank and the reduced
//                                      fraction; "1/2" below one, "15" without one
// A negative value has a leading "-" ("-1'-3 1/2\""); a value that rounds to zero
// has none. Formats 4 and 5 round to the nearest multiple of 1/2^prec, format 3 to
// 10^-prec inches, carrying into inches and feet (11.999 at prec 2 is
// "1'-0.00\""). Ties round away from zero in formats 3 to 5, to even in 1 and 2.
// prec is clamped to 0 to 16. With option set, trailing zeros of the decimals in
// formats 1 to 3 are left out, and the decimal point with them ("15.5", "1.55E+01",
// "1'-3\""); formats 4 and 5 are not affected.
// False, with out holding an empty text, when out is null, v is not finite, fmt is
// not 1 to 5, or the text does not fit. Formats 3 to 5 also fail when v counts
// more than 10^15 steps of their precision (v * 10^prec or v * 2^prec), so that
// every text they write reads back to a value that writes the same text.
QOR_API bool qorRtoS(wchar_t* out, double v, Qor::lFormat fmt, int prec, bool option);

// Reads a length from its text, in any of the notations above, and plain numbers:
//   numbers      [+|-] digits [(.|,) digits] [(E|e) [+|-] digits]; "," is read as
//                the decimal point, ".5" and "5." are numbers
//   fractions    "3/4", "1 3/4", "1-3/4" (whole part, blanks or one "-", fraction;
//                whole part, numerator and denominator are plain digits)
//   feet, inches "1'", "1'-3\"", "1'3.5", "1' - 3 1/2\"", "3 1/2\"": a number
//                followed by "'" is feet, an inch part may follow after blanks or
//                a "-"; the "\"" is optional. The result is in inches.
// Blanks and tabs before the text are skipped; reading stops at the first
// character that does not continue the notation, and the rest is ignored
// ("12 mm" reads as 12). A text with no readable start, a null or empty text, a
// text longer than 1024 characters, or a result that is not finite (overflow)
// gives 0.0. The result is never a NaN or an infinity.
QOR_API double qorAtoF(const wchar_t* text);
