// CQorGDX: drawing layers and picking.
#include "displaylist/gdx.h"

#include "foundation/geometry.h"

#include <utility>

namespace {

// The drawing layer of an item, bottom (1) to top (6).
int layerOf(const CQorDisplayItem& item) {
    if (item.type == GDX_PICTURE)
        return 6;
    const int mode = item.colorMode();
    if (item.type == GDX_REG && (mode == 0 || mode >= 3))
        return 1;
    if (mode == 0 || mode > 2)
        return 2;
    if (mode == QOR::GdxCmRefer)
        return 3;
    if (item.type != GDX_REG)
        return 5; // highlighted lines, points and text
    return 4;     // highlighted regions
}

// Pick tolerance in world units, inclusive; not scaled by the zoom.
constexpr double kPickTolerance = 5.0;

} // namespace

void CQorGDX::displListSort() {
    if (lenGet() < 2)
        return;
    CQorArrayTempl<int> layers[6];
    for (int i = 0; i < lenGet(); ++i)
        layers[layerOf(m_displayList[i]) - 1].append(i);
    CQorArrayTempl<int> order;
    order.allocate(lenGet());
    for (const CQorArrayTempl<int>& layer : layers)
        order += layer;
    bool ascending = true;
    for (int k = 1; k < order.len() && ascending; ++k)
        ascending = order[k - 1] < order[k];
    if (ascending)
        return;
    // Each item moves once into its place; nobody sees the list in between, so
    // moving gives the same list as copying would.
    CQorArrayTempl<CQorDisplayItem> sorted;
    sorted.allocate(lenGet());
    for (int i : order)
        sorted.append(std::move(m_displayList[i]));
    m_displayList = std::move(sorted);
}

int CQorGDX::imageItemGet(const CQorPoint3d& p) {
    const CQorPoint3d w = imagePtWc(p);
    displListSort();
    // Topmost first. The list stays reversed afterwards, so each pick turns over the
    // order within the layers; the next drawing shows it so.
    for (int lo = 0, hi = lenGet() - 1; lo < hi; ++lo, --hi)
        std::swap(m_displayList[lo], m_displayList[hi]);

    int hit = -1;
    for (int i = 0; i < lenGet(); ++i) {
        CQorDisplayItem& item = m_displayList[i];
        bool found = false;
        if (item.type == GDX_REG || item.type == GDX_VL) {
            const CQorVertexArray& shape = item.type == GDX_REG ? item.regions[0] : item.vertices;
            const CQorVertexArray placed = shape.getTransformedCopy(item.mtx);
            for (int k = 0; k < placed.len() && !found; ++k) {
                const CQorVertex& v = placed[k];
                if (v.m_start == v.m_end)
                    continue;
                // An arc bulges to its side of the contour's own plane, so the foot
                // is found with the contour's normal.
                found = w.distanceTo(v.lotp(w, placed.normal())) <= kPickTolerance;
            }
        } else if (item.type == GDX_PT) {
            CQorPoint3d placed(item.point);
            placed *= item.mtx;
            found = w.distanceTo(placed) <= kPickTolerance;
        }
        if (found && hit < 0)
            hit = i;
    }
    if (hit < 0)
        return -1;
    // An item without a stack answers with the element that reading creates: 0.
    return m_displayList[hit].stack[0];
}
