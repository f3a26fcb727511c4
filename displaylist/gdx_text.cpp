#include "displaylist/gdx.h"

#include "foundation/data_tree.h"
#include "foundation/geometry.h"
#include "text/glyph_table.h"
#include "text/text_layout_p.h"
#include "text/text_to_regl.h"

#include <utility>

namespace {

bool countsForExtents(unsigned long flag) {
    return (flag & (GDX_FLAG_NO_EXT | GDX_FLAG_FIXED_SIZE)) == 0;
}

} // namespace

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
    item.regionList = QOR::txtLayout(txt.c_str(), align.c_str(), item.point, &get_ascii_from_map);
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
