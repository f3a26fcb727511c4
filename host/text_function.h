// The default host's layout of text from a data item with the built-in font.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/data/resbuf.h"
#include "foundation/data/smart_resbuf.h"

// The default host's function "qor_text_to_regl". Arguments: a data item as a lisp
// list (a list of (key value) pairs, or one such pair) followed by a real. The text
// is the string at "TXT"; without one it is the real written with up to six
// significant digits. "ALIGN" (a string) aligns it as a text item would; the
// insertion point is the origin, in glyph units. The result is the list of regions
// of the built-in font's layout, nil for a text without glyphs; the status is 5100
// (RTNORM), or -5001 (RTERROR) when the arguments are not of this form.
QOR_API int qorHostTextToRegl(resbuf* arguments, QOR::CSmartResbuf& result);
