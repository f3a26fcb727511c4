// The layout of a text in one line from glyphs.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_export.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_vertex_array.h"

namespace QOR {

// A glyph: a list of regions, each an outer contour followed by its holes, in glyph
// units (cap height 1.0, baseline y = 0). Empty contours and regions may trail.
using GlyphRegions = CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>;
// Gives a copy of the glyph of a character, an empty list for none.
using GlyphFn = GlyphRegions (*)(wchar_t c);

// Distance added to each glyph's ink width to get its advance, and taken off the
// summed advance (once) to get the text width.
constexpr double kTxtLetterGap = 0.5;
constexpr double kTxtEndCorrection = 0.3;

// Lays a text out in one line with the glyphs of `glyphs` (null: no glyphs): one entry
// per glyph region (empty trailing regions included), every closed contour turned
// counter-clockwise, moved by point plus the advance so far, then the whole text
// shifted by the alignment. Alignments, matched exactly: "TL", "TC", "TR", "CL",
// "CC", "CR", "BC", "BR"; anything else is "BL" (no shift). The height used by the
// alignment is the highest y reached, insertion point included, never below 0.
// Characters without a glyph take no room. Text items lay out with the built-in
// font (get_ascii_from_map). The shift reaches contour c of region b for b and c
// below the number of regions n, as element access: a region with fewer than n
// contours is padded with empty ones (so n regions carry n contours each, a
// number of contours quadratic in the length of the text), and contours with
// an index of n or more keep their place. Null strings count as empty.
GlyphRegions txtLayout(const wchar_t* txt, const wchar_t* align, const CQorPoint3d& point,
                       GlyphFn glyphs);
} // namespace QOR
