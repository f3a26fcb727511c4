#include "text/text_layout_p.h"

#include "foundation/geometry.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

struct AlignShift {
    const wchar_t* key;
    double fw; // factor of the text width
    double fh; // factor of the text height
};
const AlignShift kAlignShifts[] = {
    {L"TL", 0.0, -1.0},  {L"TC", -0.5, -1.0}, {L"TR", -1.0, -1.0}, {L"CL", 0.0, -0.5},
    {L"CC", -0.5, -0.5}, {L"CR", -1.0, -0.5}, {L"BC", -0.5, 0.0},  {L"BR", -1.0, 0.0},
};

CQorVector3d alignShift(const CQorString& align, double w, double h) {
    for (const AlignShift& a : kAlignShifts)
        if (align == a.key)
            return CQorVector3d(a.fw * w, a.fh * h, 0.0);
    return CQorVector3d(0.0, 0.0, 0.0);
}

} // namespace

namespace QOR {

GlyphRegions txtLayout(const wchar_t* txt, const wchar_t* align, const CQorPoint3d& point,
                       GlyphFn glyphs) {
    const CQorString text(txt ? txt : L"");
    const CQorString alignment(align ? align : L"");
    GlyphRegions out;
    double advance = 0.0;
    double h = 0.0;
    // lo and hi outlive the regions: a region whose first contour is empty leaves
    // them as the region before left them.
    CQorPoint3d lo, hi, gmin, gmax;
    for (int ci = 0; ci < text.len(); ++ci) {
        GlyphRegions glyph;
        if (glyphs)
            glyph = glyphs(text[ci]);
        if (glyph.len() == 0)
            continue; // no shape and no room: a blank closes the text up
        const CQorVector3d offset = (point + CQorVector3d(advance, 0.0, 0.0)) - CQorPoint3d();
        for (int r = 0; r < glyph.len(); ++r) {
            CQorArrayTempl<CQorVertexArray>& region = glyph[r];
            QOR::g_vll_orient(region, CQorVector3d::kZAxis);
            for (CQorVertexArray& contour : region)
                contour.move(offset);
            const CQorVertexArray& first = region[0]; // grows an empty region by one
            if (first.len() > 0)
                first.extents(lo, hi);
            if (r == 0) {
                gmin = lo;
                gmax = hi;
            } else {
                gmax = QOR::p_max(gmax, hi);
                gmin = QOR::p_min(gmin, lo);
            }
            out.append(std::move(region));
        }
        advance += std::fabs(gmin.x - gmax.x) + kTxtLetterGap;
        h = std::max(h, gmax.y);
    }
    const double w = advance - kTxtEndCorrection;
    const CQorVector3d shift = alignShift(alignment, w, h);
    // Both bounds are the number of regions, as element access: contours with an
    // index of n or more stay where they are (one letter's hole stays behind).
    const int n = out.len();
    for (int b = 0; b < n; ++b) {
        CQorArrayTempl<CQorVertexArray>& region = out[b];
        for (int c = 0; c < n; ++c)
            region[c].move(shift);
    }
    return out;
}

} // namespace QOR
