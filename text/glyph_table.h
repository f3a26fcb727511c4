// The built-in vector font: a table from a character to the regions of its shape.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_export.h"
#include "foundation/geometry/qor_vertex_array.h"

// A copy of the glyph of c, an empty list when the font has none (the blank, the
// grave accent, control characters, and everything above 126 except ± ² ³ º ¼ ½ ¾
// Ä ä Ö ö Ü ü ß). Glyph units: baseline y = 0, cap height 1.0, ink from x about
// 0.155, z = 0. A glyph is a list of regions, each an outer contour (clockwise)
// followed by its holes (counter-clockwise); all pieces are straight and every
// contour closed. Empty contours and regions may follow the real ones. "[" draws a
// low bar and "_" a short slanted tick. The table fills at the first call; the
// caller owns the copy.
QOR_API CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> get_ascii_from_map(wchar_t c);
