#include "text/glyph_table.h"

#include "foundation/base/qor_map_templ.h"
#include "text/glyph_data.h"

namespace {

using Glyph = CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>;
using GlyphMap = CQorMapTempl<wchar_t, Glyph>;

GlyphMap& table() {
    static GlyphMap s_table;
    return s_table;
}

// A builder fills one scratch glyph per character, sets it in the table and empties
// the contours it used. The emptied contours stay in the scratch glyph, so a
// character that uses fewer regions or contours than one before it in the same
// builder carries them as trailing empty elements.
void runBuilder(const QOR::glyphs::Builder& builder, GlyphMap& map) {
    using namespace QOR::glyphs;
    Glyph scratch;
    for (std::uint32_t e = 0; e < builder.count; ++e) {
        const Entry& entry = kEntries[builder.first + e];
        for (std::uint32_t k = 0; k < entry.count; ++k) {
            const Contour& c = kContours[entry.first + k];
            CQorVertexArray& contour = scratch[c.region][c.index];
            for (std::uint32_t p = 0; p < c.count; ++p) {
                const double* a = kPoints[c.first + p];
                const double* b = kPoints[c.first + (p + 1) % c.count];
                contour.append(
                    CQorVertex(CQorPoint3d(a[0], a[1], 0.0), CQorPoint3d(b[0], b[1], 0.0), 0.0));
            }
        }
        map.setAt(static_cast<wchar_t>(entry.key), scratch);
        for (std::uint32_t k = 0; k < entry.count; ++k) {
            const Contour& c = kContours[entry.first + k];
            scratch[c.region][c.index].setLogicalLength(0);
        }
    }
}

} // namespace

CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> get_ascii_from_map(wchar_t c) {
    GlyphMap& map = table();
    if (map.len() == 0)
        for (int b = 0; b < QOR::glyphs::kBuilderCount; ++b)
            runBuilder(QOR::glyphs::kBuilders[b], map);
    Glyph out;
    if (const Glyph* glyph = map.lookup(c))
        out = *glyph;
    return out;
}
