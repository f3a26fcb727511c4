#include "displaylist/gdx_text.h"

#include "displaylist/gdx.h"
#include "foundation/application.h"
#include "foundation/data_tree.h"
#include "foundation/geometry.h"
#include "foundation/resbuf_value.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

QOR::GlyphFn s_glyphSource = nullptr;

// Turns every closed contour counter-clockwise about z; open ones stay as they are.
// (The styling layer has the same helper for its hatch; the display list cannot
// reach it from below.)
void orientClosedContours(CQorArrayTempl<CQorVertexArray>& contours) {
    for (CQorVertexArray& contour : contours)
        if (contour.isClosed() && !QOR::g_vl_orient(contour, CQorVector3d::kZAxis))
            contour.revert();
}

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

bool countsForExtents(unsigned long flag) {
    return (flag & (GDX_FLAG_NO_EXT | GDX_FLAG_FIXED_SIZE)) == 0;
}

} // namespace

namespace QOR {

GlyphFn gdxGlyphSourceSet(GlyphFn fn) {
    const GlyphFn before = s_glyphSource;
    s_glyphSource = fn;
    return before;
}

GlyphFn gdxGlyphSourceGet() {
    return s_glyphSource;
}

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
            orientClosedContours(region);
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
        const int last = n <= kTxtPadLimit ? n : std::min(n, region.len());
        for (int c = 0; c < last; ++c)
            region[c].move(shift);
    }
    return out;
}

} // namespace QOR

bool qor_text_to_regl(const CQorDataItem* item,
                      CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& regl, double value) {
    regl.setLogicalLength(0);
    if (!item)
        return false;
    QOR::CSmartResbuf arguments(QOR::rbToList(item->mkLisp()));
    arguments.append(QOR::mkResbuf(value, QOR::kRtReal));
    QOR::CSmartResbuf result;
    const int status = qorAppPtr()->lispCall(L"qor_text_to_regl", arguments, result);
    resbuf* chain = result;
    if (status == QOR::kRtNorm && chain &&
        (chain->restype == QOR::kRtLb || chain->restype == QOR::kRtNil))
        QOR::fromRb(regl, chain, 0);
    return regl.len() > 0;
}

// --- Text items of the document ------------------------------------------------------

void CQorGDX::imageTxt(const CQorArrayTempl<int>& stack, unsigned long flag, const wchar_t* txt,
                       const CQorColor& color, const CQorMatrix3d& mtx, const wchar_t* align,
                       const CQorPoint3d& point, const CQorPoint3d& anchor) {
    CQorDisplayItem item;
    item.type = GDX_TXT;
    item.color = color;
    item.stack = stack;
    item.flag = static_cast<std::uint32_t>(flag);
    item.point = point;
    item.mtx = mtx;
    item.txt = txt ? txt : L"";
    item.txtAlign = align ? align : L"";
    item.linetype.append(1.0).append(0.0).append(0.0);
    item.ltscale = 0.0;
    item.thickn = 0;
    if (flag & GDX_FLAG_FIXED_SIZE)
        item.vertices.append(CQorVertex(anchor, CQorPoint3d(), 0.0));
    m_displayList.append(std::move(item));
    const int i = lenGet() - 1;
    txtReglUpd(i);
    if (countsForExtents(flag)) {
        const CQorMatrix3d m = m_projMtx * m_viewDirectionMtx * mtx;
        for (CQorArrayTempl<CQorVertexArray>& entry : m_displayList[i].regionList)
            refresh_ext(entry[0], m);
    }
}

bool CQorGDX::imageTxt(const CQorArrayTempl<int>& stack, unsigned long flag,
                       const CQorDataItem* item, const CQorColor& color, const CQorMatrix3d& mtx,
                       double value, const CQorPoint3d& anchor) {
    if (!item || !item->isDir())
        return false;
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    if (!qor_text_to_regl(item, regions, value))
        return false;
    CQorDisplayItem txtItem;
    txtItem.type = GDX_TXT;
    txtItem.stack = stack;
    txtItem.flag = static_cast<std::uint32_t>(flag);
    txtItem.mtx = mtx;
    txtItem.color = color;
    txtItem.thickn = 0;
    txtItem.regionList = std::move(regions);
    if (flag & GDX_FLAG_FIXED_SIZE)
        txtItem.vertices.append(CQorVertex(anchor, CQorPoint3d(), 0.0));
    m_displayList.append(std::move(txtItem));
    if (countsForExtents(flag)) {
        const CQorMatrix3d m = m_projMtx * m_viewDirectionMtx * mtx;
        for (CQorArrayTempl<CQorVertexArray>& entry : m_displayList[lenGet() - 1].regionList)
            refresh_ext(entry[0], m);
    }
    return true;
}

void CQorGDX::txtReglUpd(int i) {
    CQorDisplayItem& item = m_displayList[i];
    const CQorString txt = item.txt;
    const CQorString align = item.txtAlign;
    item.regionList = QOR::txtLayout(txt.c_str(), align.c_str(), item.point, s_glyphSource);
}

bool CQorGDX::txtSet(const CQorArrayTempl<int>& stack, const wchar_t* txt) {
    if (!txt)
        return false;
    for (int i : StackToItemNr(stack)) {
        m_displayList[i].txt = txt;
        txtReglUpd(i);
        refresh_ext();
    }
    return true;
}

bool CQorGDX::txtAlignSet(const CQorArrayTempl<int>& stack, const wchar_t* align) {
    if (!align)
        return false;
    for (int i : StackToItemNr(stack)) {
        m_displayList[i].txtAlign = align;
        txtReglUpd(i);
        refresh_ext();
    }
    return true;
}

void CQorGDX::txtPointSet(const CQorArrayTempl<int>& stack, CQorPoint3d point) {
    for (int i : StackToItemNr(stack)) {
        m_displayList[i].point = point;
        txtReglUpd(i);
        refresh_ext();
    }
}

const CQorString& CQorGDX::txtGet(int i) const {
    return itemAt(i).txt;
}

const CQorString& CQorGDX::txtAlignGet(int i) const {
    return itemAt(i).txtAlign;
}

const CQorPoint3d& CQorGDX::txtPointGet(int i) const {
    return itemAt(i).point;
}
