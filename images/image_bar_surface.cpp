#include "images/image_bar_surface.h"

#include "displaylist/gdx.h"
#include "foundation/application/model_services.h"
#include "foundation/data_tree.h"
#include "foundation/geometry/qor_geom_fcn.h"
#include "foundation/records/color_value.h"
#include "foundation/records/hatch_prop.h"

#include <memory>

namespace {

using Regions = CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>;
using FilePtr = std::unique_ptr<QOR::CDtaFilePointer>;

// Flag words: outline only, in colour mode item (0) or aux (5 in bits 8 to 11).
constexpr unsigned long kFlagOutline = 16;
constexpr unsigned long kFlagOutlineAux = 1296;
// Pick points: colour mode highlight; size and style in the host's PDSIZE and
// PDMODE terms, -10 (ten percent of the view) and 3 (a cross).
constexpr unsigned long kFlagPick = 256;
constexpr double kPickSize = -10.0;
constexpr unsigned long kPickStyle = 3;
// The colour of a coat line whose surface names none, and the line's pen width.
constexpr short kCoatColorIndex = 3;
constexpr unsigned long kCoatPenWidth = 3;
// The mode of the region sorting that loose contours go through.
constexpr unsigned long kRegionMode = 4;

const wchar_t* const kSurfaceNames[] = {L"1", L"2", L"TOTAL"};

// The regions of the section of a bar or sub-bar item: a referenced section
// ("XREF"), the item's own regions ("REGL"), or its loose contours ("VL") sorted
// into regions. Data that is missing leaves `regions` as it was.
void sectionGet(const CQorDataItem* item, Regions& regions) {
    if (item == nullptr)
        return;
    const CQorDataKey xrefKey(L"XREF"), reglKey(L"REGL"), vlKey(L"VL");
    if (const CQorDataItem* xref = item->getItem(&xrefKey)) {
        const FilePtr file(QOR::dtaOpen(QOR::QorDtaMemory, 3, nullptr, xref));
        regions = QOR::bar_regl(file.get(), CQorMatrix3d());
    } else {
        dataItemGet(item, &reglKey, regions);
    }
    CQorArrayTempl<CQorVertexArray> contours;
    if (regions.len() == 0 && dataItemGet(item, &vlKey, contours))
        regions = QOR::g_vll_regions(QOR::g_vll_regions_prepare(contours), kRegionMode);
}

// The item's "MTX", or else its local placement.
CQorMatrix3d placementGet(const CQorDataItem* item) {
    CQorMatrix3d m;
    const CQorDataKey mtxKey(L"MTX");
    if (item != nullptr && item->get(m, &mtxKey))
        return m;
    return QOR::g_mtx_local(item);
}

void drawRegions(CQorGDX* gdx, const Regions& regions, unsigned long flag,
                 const CQorMatrix3d& mtx) {
    const CQorArrayTempl<int> stack;
    CQorArrayTempl<double> solidLine;
    solidLine.append(1.0);
    for (const CQorArrayTempl<CQorVertexArray>& region : regions)
        gdx->imageReg(stack, flag, region, CQorColor(), mtx, solidLine, 1.0, 0, CQorColor(),
                      QOR::CHatchProp(), CQorPoint3d::kOrigin);
}

// The coat lines of the bar's surfaces "1", "2" and "TOTAL". The line and the
// colour carry over from one surface to the next: a surface without a line of its
// own draws the line of the one before it, in its own colour.
void drawCoatLines(CQorGDX* gdx, const CQorDataItem* bar, Regions& regions) {
    const CQorDataKey surfaceKey(L"SURFACE");
    const CQorDataItem* surface = bar->getItem(&surfaceKey);
    if (surface == nullptr || !surface->isDir())
        return;
    const CQorArrayTempl<int> stack;
    CQorArrayTempl<double> solidLine;
    solidLine.append(1.0);
    const CQorDataKey vlKey(L"VL"), coatKey(L"COAT");
    CQorVertexArray line;
    CQorColor colour;
    for (const wchar_t* name : kSurfaceNames) {
        const CQorDataItem* sub = surface->getItem(name);
        if (sub == nullptr || !sub->isDir())
            continue;
        if (CQorString(name) == L"TOTAL")
            line = regions[0][0]; // grows an empty section to one empty contour
        else
            sub->get(line, &vlKey);
        if (line.len() == 0)
            continue;
        if (!dataItemGet(sub, &coatKey, colour))
            colour.setColorIndex(kCoatColorIndex);
        gdx->imageVl(stack, 0, line, colour, CQorMatrix3d(), solidLine, 1.0, kCoatPenWidth,
                     CQorPoint3d::kOrigin);
    }
}

} // namespace

bool qor_gdx_image_bar_surface(CQorGDX* gdx, QOR::CDtaFilePointer* object,
                               QOR::CDtaFilePointer* params) {
    if (gdx == nullptr || object == nullptr || params == nullptr)
        return false;
    const FilePtr file(object->lobjGet(nullptr, false));
    if (!file)
        return false;

    CQorString grp, bt;
    const CQorDataItem* p = QOR::dtaGet(params, nullptr);
    if (p != nullptr) {
        const CQorDataKey grpKey(L"GRP"), btKey(L"BT");
        p->get(grp, &grpKey);
        p->get(bt, &btKey);
    }
    const CQorDataKey groupKey(grp.c_str());
    CQorDataItem* group = file->get(&groupKey, false);
    if (group == nullptr || !group->isDir())
        return false;
    const CQorDataItem* bar = group->getItem(bt.c_str());
    if (bar == nullptr || !bar->isDir())
        return false;

    Regions regions;
    sectionGet(bar, regions);
    drawRegions(gdx, regions, kFlagOutline, CQorMatrix3d());
    drawCoatLines(gdx, bar, regions);

    if (p != nullptr) {
        const CQorArrayTempl<int> stack;
        const CQorDataKey pickKeys[] = {CQorDataKey(L"PICK\\P1"), CQorDataKey(L"PICK\\P2")};
        for (const CQorDataKey& key : pickKeys) {
            CQorPoint3d pick;
            if (p->get(pick, &key))
                gdx->imagePt(stack, kFlagPick, pick, CQorColor(), CQorMatrix3d(), kPickSize,
                             kPickStyle, CQorPoint3d::kOrigin);
        }
    }

    // Sub-bars are placed relative to the bar, as the section is drawn in the bar's
    // own coordinates.
    const CQorMatrix3d toBar = placementGet(bar).inverse();
    CQorArrayTempl<CQorDataKey> keys;
    QOR::bar_bt_subs(keys, QOR::dtaGet(object, nullptr), grp.c_str(), bt.c_str());
    for (const CQorDataKey& key : keys) {
        const CQorDataItem* sub = group->getItem(static_cast<const wchar_t*>(key));
        regions = Regions();
        sectionGet(sub, regions);
        drawRegions(gdx, regions, kFlagOutlineAux, toBar * placementGet(sub));
    }
    return true;
}
