// Exact text of numbers: doubles that read back bit-identical.
#pragma once

#include "foundation/base/qor_export.h"

#include <cstddef>
#include <string>

namespace QOR {

// The shortest decimal text that reads back to the same double (as "0.1", "1e+300",
// "-0"); it always holds a '.', an 'e' or is one of the special forms, so it never
// looks like an integer. Infinities are "inf" and "-inf"; a NaN is written with its
// bits, "nan(0x7ff8000000000000)", so that its payload and sign survive.
QOR_API std::string doubleToText(double v);

// Reads what doubleToText writes, and any decimal or exponent form, from text[0..n).
// Returns the number of characters used, 0 when there is no number there; `out`
// changes only on success. Correctly rounded, independent of the C locale.
QOR_API std::size_t doubleFromText(const char* text, std::size_t n, double& out);

} // namespace QOR
