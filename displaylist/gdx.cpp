#include "displaylist/gdx.h"

#include "foundation/application.h"
#include "foundation/data_tree.h"
#include "foundation/geometry.h"
#include "foundation/records/color_value.h"

#include <algorithm>
#include <utility>

namespace {

// The configured colours of the colour table, by mode.
struct ConfiguredColor {
    int mode;
    const wchar_t* name;
};
const ConfiguredColor kConfiguredColors[] = {
    {QOR::GdxCmHighlight, L"HIGHLIGHT"}, {QOR::GdxCmRefer, L"REFER"}, {QOR::GdxCmAxis, L"AXIS"},
    {QOR::GdxCmBase, L"BASE"},           {QOR::GdxCmAux, L"AUX"},
};

unsigned long inverseOf(const CQorColor& c) {
    return ~c.oleColor() & 0xFFFFFFul;
}

// An empty contour for regions that have none; it is only read.
const CQorVertexArray& emptyContour() {
    static const CQorVertexArray empty;
    return empty;
}

} // namespace

CQorGDX::CQorGDX() {
    m_backColor.setOleColor(qorAppPtr()->viewBkColorGet());
    const CQorDataItem* dir = QOR::cfg_get(L"ORV_MENU\\COLOR");
    if (dir) {
        const CQorDataKey sizeKey(L"PDSIZE");
        dir->get(m_pdSize, &sizeKey);
        const CQorDataKey modeKey(L"PDMODE");
        unsigned long mode = m_pdMode;
        if (dir->get(mode, &modeKey))
            m_pdMode = static_cast<std::uint32_t>(mode);
    }
    for (const ConfiguredColor& entry : kConfiguredColors) {
        CQorColor color;
        if (dir) {
            const CQorDataKey key(entry.name);
            dataItemGet(dir, &key, color);
        }
        ColorTabSet(entry.mode, color);
    }
}

CQorGDX::CQorGDX(const CQorColor& back, const CQorMatrix3d& proj, double pdSize,
                 unsigned long pdMode, const CQorPoint3d& extMin, const CQorPoint3d& extMax)
    : m_backColor(back), m_pdSize(pdSize), m_pdMode(static_cast<std::uint32_t>(pdMode)),
      m_projMtx(proj), m_extViewMin(extMin), m_extViewMax(extMax) {}

CQorGDX::~CQorGDX() = default;

// --- Adding items -------------------------------------------------------------------

namespace {
bool countsForExtents(unsigned long flag) {
    return (flag & (GDX_FLAG_NO_EXT | GDX_FLAG_FIXED_SIZE)) == 0;
}

// The fields that lines and regions share: an empty pattern is stored as solid,
// and the anchor only counts for fixed-size items.
CQorDisplayItem strokedItem(QorDisplayObj type, const CQorArrayTempl<int>& stack,
                            unsigned long flag, const CQorColor& color, const CQorMatrix3d& mtx,
                            const CQorArrayTempl<double>& linetype, double ltscale,
                            unsigned long thickn, const CQorPoint3d& anchor) {
    CQorDisplayItem item;
    item.type = type;
    item.stack = stack;
    item.flag = static_cast<std::uint32_t>(flag);
    item.color = color;
    item.linetype = linetype;
    if (item.linetype.len() == 0)
        item.linetype.append(1.0);
    item.ltscale = ltscale;
    item.thickn = static_cast<std::uint32_t>(thickn);
    item.mtx = mtx;
    if (flag & GDX_FLAG_FIXED_SIZE)
        item.point = anchor;
    return item;
}
} // namespace

void CQorGDX::imageVl(const CQorArrayTempl<int>& stack, unsigned long flag,
                      const CQorVertexArray& vl, const CQorColor& color, const CQorMatrix3d& mtx,
                      const CQorArrayTempl<double>& linetype, double ltscale, unsigned long thickn,
                      const CQorPoint3d& anchor) {
    CQorDisplayItem item =
        strokedItem(GDX_VL, stack, flag, color, mtx, linetype, ltscale, thickn, anchor);
    item.vertices = vl;
    m_displayList.append(std::move(item));
    if (countsForExtents(flag))
        refresh_ext(vl, m_projMtx * m_viewDirectionMtx * mtx);
}

void CQorGDX::imagePt(const CQorArrayTempl<int>& stack, unsigned long flag, const CQorPoint3d& pt,
                      const CQorColor& color, const CQorMatrix3d& mtx, double pdSize,
                      unsigned long pdMode, const CQorPoint3d& anchor) {
    CQorDisplayItem item;
    item.type = GDX_PT;
    item.stack = stack;
    item.flag = static_cast<std::uint32_t>(flag);
    item.point = pt;
    item.color = color;
    item.mtx = mtx;
    item.pdSize = pdSize;
    item.pdMode = static_cast<std::uint32_t>(pdMode);
    if (flag & GDX_FLAG_FIXED_SIZE)
        item.vertices.append(CQorVertex(anchor, CQorPoint3d(), 0.0));
    m_displayList.append(std::move(item));
    if (countsForExtents(flag))
        refresh_ext(pt, m_projMtx * m_viewDirectionMtx * mtx);
}

void CQorGDX::imageReg(const CQorArrayTempl<int>& stack, unsigned long flag,
                       const CQorArrayTempl<CQorVertexArray>& regions, const CQorColor& color,
                       const CQorMatrix3d& mtx, const CQorArrayTempl<double>& linetype,
                       double ltscale, unsigned long thickn, const CQorColor& fcolor,
                       const QOR::CHatchProp& hatch, const CQorPoint3d& anchor) {
    CQorDisplayItem item =
        strokedItem(GDX_REG, stack, flag, color, mtx, linetype, ltscale, thickn, anchor);
    item.regions = regions;
    item.hatch = hatch;
    if (flag & (GDX_FLAG_FILL | GDX_FLAG_HATCH))
        item.fcolor = fcolor.colorIndex() >= 0 ? fcolor : color;
    m_displayList.append(std::move(item));
    if (countsForExtents(flag))
        refresh_ext(regions.len() > 0 ? regions[0] : emptyContour(),
                    m_projMtx * m_viewDirectionMtx * mtx);
}

void CQorGDX::imagePicture(const CQorArrayTempl<int>& stack, unsigned long flag,
                           const wchar_t* name, int number, const CQorPoint3d& p1,
                           const CQorPoint3d& p2) {
    CQorDisplayItem item;
    item.type = GDX_PICTURE;
    item.stack = stack;
    item.flag = static_cast<std::uint32_t>(flag);
    item.txt = name;
    item.pdMode = static_cast<std::uint32_t>(number);
    if (p1 != p2)
        item.vertices.append(CQorVertex(p1, p2, 0.0));
    m_displayList.append(std::move(item));
}

bool CQorGDX::addDisplayList(const CQorArrayTempl<CQorDisplayItem>& items) {
    for (const CQorDisplayItem& item : items)
        m_displayList.append(std::move(item));
    return items.len() > 0;
}

// --- Item accessors -----------------------------------------------------------------

QorDisplayObj CQorGDX::typeGet(int i) const {
    return itemAt(i).type;
}
unsigned long CQorGDX::flagGet(int i) const {
    return itemAt(i).flag;
}
const CQorColor& CQorGDX::colorGet(int i) const {
    return itemAt(i).color;
}
const CQorColor& CQorGDX::fcolorGet(int i) const {
    return itemAt(i).fcolor;
}
const CQorArrayTempl<double>& CQorGDX::linetypeGet(int i) const {
    return itemAt(i).linetype;
}
double CQorGDX::ltscaleGet(int i) const {
    return itemAt(i).ltscale;
}
int CQorGDX::thicknGet(int i) const {
    return static_cast<int>(itemAt(i).thickn);
}
const CQorMatrix3d& CQorGDX::mtxGet(int i) const {
    return itemAt(i).mtx;
}
void CQorGDX::geomGet(CQorVertexArray& out, int i) const {
    out = itemAt(i).vertices;
}
void CQorGDX::geomGet(CQorPoint3d& out, int i) const {
    out = itemAt(i).point;
}
void CQorGDX::geomGet(CQorArrayTempl<CQorVertexArray>& out, int i) const {
    out = itemAt(i).regions;
}
void CQorGDX::geomGet(CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& out, int i) const {
    out = itemAt(i).regionList;
}
void CQorGDX::itemStackGet(CQorArrayTempl<int>& out, int i) const {
    out = itemAt(i).stack;
}

unsigned long CQorGDX::pdModeGet(int i) const {
    const std::uint32_t mode = itemAt(i).pdMode;
    return mode == GDX_PDMODE_DOCUMENT ? m_pdMode : mode;
}

double CQorGDX::pdSizeGet(int i) const {
    const double size = itemAt(i).pdSize;
    return size == 0.0 ? m_pdSize : size;
}

bool CQorGDX::hatchGet(int i, QOR::CHatchProp& out) const {
    if (static_cast<unsigned>(i) >= static_cast<unsigned>(lenGet()))
        return false;
    out = itemAt(i).hatch;
    return true;
}

bool CQorGDX::pictureGet(int i, CQorString& name, int& number) const {
    const CQorDisplayItem& item = itemAt(i);
    name = item.txt;
    number = static_cast<int>(item.pdMode);
    if (item.pdMode == GDX_PICTURE_NONE)
        return !name.isNull();
    return true;
}

unsigned long CQorGDX::itemColorGet(int i) const {
    const CQorDisplayItem& item = itemAt(i);
    const int mode = item.colorMode();
    if (mode == QOR::GdxCmItem)
        return item.color.colorIndex() != -1 ? item.color.oleColor() : inverseOf(m_backColor);
    if (mode == QOR::GdxCmInverse)
        return inverseOf(m_backColor);
    return colorTabGet(mode).oleColor();
}

bool CQorGDX::ColorTabSet(int mode, const CQorColor& c) {
    // A negative mode is an index like any other: mode - 1 counts from the end of
    // the table (on an empty table it writes a scratch element).
    if (mode == 0 || mode >= 15)
        return false;
    m_colorTab[mode - 1] = c;
    return true;
}

// --- Group operations ---------------------------------------------------------------

bool CQorGDX::isPrefixOf(const CQorArrayTempl<int>& path, const CQorDisplayItem& item) const {
    if (path.len() == 0 || item.stack.len() < path.len())
        return false;
    for (int k = 0; k < path.len(); ++k)
        if (item.stack[k] != path[k])
            return false;
    return true;
}

bool CQorGDX::isExactly(const CQorArrayTempl<int>& path, const CQorDisplayItem& item) const {
    return item.stack.len() == path.len() && isPrefixOf(path, item);
}

CQorArrayTempl<int> CQorGDX::StackToItemNr(const CQorArrayTempl<int>& stack) const {
    CQorArrayTempl<int> out;
    for (int i = 0; i < lenGet(); ++i)
        if (isPrefixOf(stack, m_displayList[i]))
            out.append(i);
    return out;
}

bool CQorGDX::cModeSet(const CQorArrayTempl<int>& stack, QOR::GdxColorMode mode) {
    const CQorArrayTempl<int> items = StackToItemNr(stack);
    for (int i : items)
        cFlagSet(i, mode);
    return items.len() > 0;
}

bool CQorGDX::propSet(const CQorArrayTempl<int>& stack, unsigned long code) {
    const CQorArrayTempl<int> items = StackToItemNr(stack);
    bool changed = false;
    for (int i : items)
        changed = applyFlagCode(i, code) || changed;
    // One rebuild after all changes gives the same extents as one after each.
    if (changed)
        refresh_ext();
    return items.len() > 0;
}

bool CQorGDX::redraw(const CQorArrayTempl<int>& stack, unsigned long code) {
    if (lenGet() == 0)
        return false;
    if (stack.len() == 0) {
        bool changed = false;
        for (int i = 0; i < lenGet(); ++i)
            changed = applyFlagCode(i, code) || changed;
        if (changed)
            refresh_ext();
    } else {
        propSet(stack, code);
    }
    return true;
}

bool CQorGDX::hatchSet(const CQorArrayTempl<int>& stack, const QOR::CHatchProp& hatch) {
    const CQorArrayTempl<int> items = StackToItemNr(stack);
    for (int i : items)
        m_displayList[i].hatch = hatch;
    return items.len() > 0;
}

bool CQorGDX::pdModeSet(const CQorArrayTempl<int>& stack, unsigned long mode) {
    bool any = false;
    for (int i = 0; i < lenGet(); ++i) {
        if (isExactly(stack, m_displayList[i])) {
            m_displayList[i].pdMode = static_cast<std::uint32_t>(mode);
            any = true;
        }
    }
    return any;
}

bool CQorGDX::pdSizeSet(const CQorArrayTempl<int>& stack, double size) {
    bool any = false;
    for (int i = 0; i < lenGet(); ++i) {
        if (isExactly(stack, m_displayList[i])) {
            m_displayList[i].pdSize = size;
            any = true;
        }
    }
    return any;
}

bool CQorGDX::mtxSet(const CQorArrayTempl<int>& stack, const CQorMatrix3d& m) {
    if (lenGet() == 0 || stack.len() == 0)
        return false;
    const CQorArrayTempl<int> items = StackToItemNr(stack);
    if (items.len() == 0)
        return false;
    int owner = items[items.len() - 1];
    for (int i : items) {
        if (m_displayList[i].stack.len() == stack.len()) {
            owner = i;
            break;
        }
    }
    // The factors stand in this order on purpose: the change is applied after each
    // item's own placement.
    const CQorMatrix3d delta = m * m_displayList[owner].mtx.inverse();
    for (int i : items)
        m_displayList[i].mtx *= delta;
    refresh_ext();
    return true;
}

bool CQorGDX::clear(const CQorArrayTempl<int>& stack) {
    return removeSelected(stack);
}

bool CQorGDX::removeItemStack(const CQorArrayTempl<int>& stack) {
    return removeSelected(stack);
}

// Removing the selected items one by one from the highest index down, each with a
// rebuild, leaves the same list and extents as one pass that keeps the others in
// order followed by one rebuild.
bool CQorGDX::removeSelected(const CQorArrayTempl<int>& stack) {
    const CQorArrayTempl<int> items = StackToItemNr(stack);
    if (items.len() == 0)
        return false;
    int kept = 0;
    for (int i = 0, next = 0; i < lenGet(); ++i) {
        if (next < items.len() && items[next] == i) {
            ++next;
            continue;
        }
        if (kept != i)
            m_displayList[kept] = std::move(m_displayList[i]);
        ++kept;
    }
    m_displayList.setLogicalLength(kept);
    refresh_ext();
    return true;
}

int CQorGDX::stackGet() const {
    int top = 0;
    for (const CQorDisplayItem& item : m_displayList)
        if (item.stack.len() > 0 && item.stack[0] > top)
            top = item.stack[0];
    return top;
}

int CQorGDX::stackGet(const CQorArrayTempl<int>& stack) const {
    int result = -1;
    if (stack.len() == 0)
        return result;
    for (const CQorDisplayItem& item : m_displayList) {
        if (item.stack.len() > stack.len())
            continue;
        bool equal = true;
        for (int k = 0; k < stack.len() && equal; ++k)
            equal = stack[k] == item.stack[k]; // past the item's end this reads 0
        if (equal)
            result = 0;
    }
    return result;
}

void CQorGDX::clear() {
    m_displayList.setLogicalLength(0);
    m_ext.setLogicalLength(0);
    m_extViewMin = CQorPoint3d();
    m_extViewMax = CQorPoint3d();
}

// --- Flag word, removal and the extents cache ---------------------------------------

bool CQorGDX::flagSet(int i, unsigned long code) {
    if (!applyFlagCode(i, code))
        return false;
    refresh_ext();
    return true;
}

bool CQorGDX::applyFlagCode(int i, unsigned long code) {
    std::uint32_t set = 0, clear = 0;
    switch (code) {
    case GDX_PROP_SHOW:
        clear = GDX_FLAG_HIDDEN;
        break;
    case GDX_PROP_HIDE:
        set = GDX_FLAG_HIDDEN;
        break;
    case GDX_PROP_EXT_ON:
        clear = GDX_FLAG_NO_EXT;
        break;
    case GDX_PROP_EXT_OFF:
        set = GDX_FLAG_NO_EXT;
        break;
    case GDX_PROP_OUTLINE_ON:
        set = GDX_FLAG_OUTLINE;
        break;
    case GDX_PROP_OUTLINE_OFF:
        clear = GDX_FLAG_OUTLINE;
        break;
    case GDX_PROP_WINDOW_ON:
        set = GDX_FLAG_PIC_WINDOW;
        break;
    case GDX_PROP_WINDOW_OFF:
        clear = GDX_FLAG_PIC_WINDOW;
        break;
    case GDX_PROP_TRANSPARENT_ON:
        set = GDX_FLAG_PIC_TRANSPARENT;
        break;
    case GDX_PROP_TRANSPARENT_OFF:
        clear = GDX_FLAG_PIC_TRANSPARENT;
        break;
    default:
        return false;
    }
    std::uint32_t& flag = m_displayList[i].flag;
    flag = (flag | set) & ~clear;
    return true;
}

void CQorGDX::cFlagSet(int i, QOR::GdxColorMode mode) {
    std::uint32_t& flag = m_displayList[i].flag;
    flag = (flag & 0xFFu) | ((static_cast<std::uint32_t>(mode) & 15u) << 8);
}

bool CQorGDX::removeItem(int i) {
    if (static_cast<unsigned>(i) >= static_cast<unsigned>(lenGet()))
        return false;
    // Bubble the item to the end so the others keep their order.
    for (int k = i; k + 1 < lenGet(); ++k)
        std::swap(m_displayList[k], m_displayList[k + 1]);
    m_displayList.setLogicalLength(lenGet() - 1);
    refresh_ext();
    return true;
}

void CQorGDX::refresh_ext(const CQorPoint3d& p, const CQorMatrix3d& m) {
    CQorPoint3d t(p);
    t *= m;
    if (m_ext.len() == 0) {
        m_ext[0] = t;
        m_ext[1] = t;
    } else {
        m_ext[0] = QOR::p_min(m_ext[0], t);
        m_ext[1] = QOR::p_max(m_ext[1], t);
    }
}

void CQorGDX::refresh_ext(const CQorVertexArray& vl, const CQorMatrix3d& m) {
    CQorPoint3d lo, hi;
    vl.getTransformedCopy(m).extents(lo, hi);
    if (m_ext.len() == 0) {
        m_ext[0] = lo;
        m_ext[1] = hi;
    } else {
        m_ext[0] = QOR::p_min(m_ext[0], lo);
        m_ext[1] = QOR::p_max(m_ext[1], hi);
    }
}

// The rebuild reads the first contour through the growing index, so a region or
// glyph without contours gets one empty contour here.
void CQorGDX::foldItem(CQorDisplayItem& item, const CQorMatrix3d& m) {
    switch (item.type) {
    case GDX_VL:
        refresh_ext(item.vertices, m);
        break;
    case GDX_PT:
        refresh_ext(item.point, m);
        break;
    case GDX_REG:
        refresh_ext(item.regions[0], m);
        break;
    case GDX_TXT:
        for (CQorArrayTempl<CQorVertexArray>& glyph : item.regionList)
            refresh_ext(glyph[0], m);
        break;
    default:
        break; // pictures never count
    }
}

void CQorGDX::refresh_ext() {
    m_ext.setLogicalLength(0);
    const CQorMatrix3d base = m_projMtx * m_viewDirectionMtx;
    for (CQorDisplayItem& item : m_displayList)
        if (countsForExtents(item.flag))
            foldItem(item, base * item.mtx);
}
