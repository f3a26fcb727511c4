#include "images/image_hole.h"

#include "displaylist/display_item.h"
#include "displaylist/gdx.h"
#include "foundation/application.h"
#include "foundation/application/model_services.h"
#include "foundation/data/ads_name.h"
#include "foundation/data_tree.h"
#include "foundation/records/hatch_prop.h"
#include "foundation/records/layer_mgr.h"

namespace {

// Flag words of the items (fill and hatch bits with the colour mode in bits 8 to 11).
constexpr unsigned long kFlagHighlightPoint = 256; // colour mode highlight
constexpr unsigned long kFlagBasePoint = 1024;     // colour mode base
constexpr unsigned long kFlagSolidFill = 17;       // fill and outline, colour mode item
constexpr unsigned long kFlagHatchFill = 18;       // hatch and outline
constexpr int kActiveColorMode = 1;
constexpr short kHighlightColorIndex = 7;
constexpr double kDocumentPdSize = 0.0;
constexpr unsigned long kDocumentPdMode = 0xFFFFFFFF;
// Unit -1 (0xFFFFFFFF): the drawing's current unit.
const Qor::lUnit kAnyUnit = static_cast<Qor::lUnit>(-1);

CQorMatrix3d matrixGet(const CQorDataItem* item, const CQorDataKey* key, bool& found) {
    CQorMatrix3d m;
    found = dataItemGet(item, key, static_cast<double(*)[4]>(m));
    return m;
}

} // namespace

bool qor_gdx_image_hole(CQorGDX* gdx, QOR::CDtaFilePointer* object, QOR::CDtaFilePointer* params) {
    if (!gdx)
        return true;
    if (!object) {
        long long name[2] = {0, 0};
        if (qorAppPtr()->entityOfKind(name, L"HOLE", true))
            object = QOR::dtaOpen(3, 3, QOR::CAdsName(name[0], name[1]), nullptr, nullptr);
    }

    CQorString act;
    CQorMatrix3d mtx;
    int cmode = 0;
    bool coord = false;
    if (CQorDataItem* p = QOR::dtaGet(params, nullptr)) {
        const CQorDataKey actKey(L"ACT"), mtxKey(L"MTX"), modeKey(L"CMODE"), coordKey(L"COORD");
        p->get(act, &actKey);
        dataItemGet(p, &mtxKey, static_cast<double(*)[4]>(mtx));
        p->get(cmode, &modeKey);
        p->get(coord, &coordKey);
    }

    CQorDataItem* root = QOR::dtaGet(object, nullptr);
    CQorString draw, partCon, partFill;
    QOR::CHatchProp hatch;
    if (root) {
        const CQorDataKey drawKey(L"\\DRAW"), conKey(L"\\PART_CON"), fillKey(L"\\PART_FILL"),
            nameKey(L"\\HPNAME"), scaleKey(L"\\HPSCALE"), angKey(L"\\HPANG");
        root->get(draw, &drawKey);
        root->get(partCon, &conKey);
        root->get(partFill, &fillKey);
        root->get(hatch.name, &nameKey);
        root->get(hatch.scale, &scaleKey);
        root->get(hatch.angle, &angKey);
    }
    CQorColor contourColour, fillColour;
    QOR::layer_color(contourColour, partCon);
    QOR::layer_color(fillColour, partFill);

    CQorArrayTempl<int> stack;
    CQorArrayTempl<double> solidLine;
    solidLine.append(1.0);
    const CQorDataKey btKey(L"BT"), genKey(L"GEN"), typeKey(L"TYPE"), mtxKey(L"MTX");
    CQorMatrix3d base = mtx;
    const CQorPoint3d basePoint = CQorPoint3d::kOrigin * static_cast<double(*)[4]>(base);

    for (QOR::CDataIterator it(QOR::dtaGet(object, &btKey)); !it.done(); it.next()) {
        CQorDataItem* member = it.item();
        const CQorDataKey* key = member ? member->getKey() : nullptr;
        if (!key || (key->type() != 5005 && key->type() != 5020))
            continue;
        const CQorString memberKey(key->segmentText());
        const bool active = memberKey == act;

        CQorDataItem* gen = member->getItem(&genKey);
        CQorString type;
        if (gen)
            gen->get(type, &typeKey);
        bool found = false;
        CQorMatrix3d local = matrixGet(member, &mtxKey, found);
        if (!found)
            QOR::g_mtx_local(member, static_cast<double(*)[4]>(local), static_cast<Qor::lUnit>(0),
                             kAnyUnit);
        CQorMatrix3d place = mtx * local;

        if (coord && active) {
            const CQorPoint3d p = CQorPoint3d::kOrigin * static_cast<double(*)[4]>(place);
            gdx->imagePt(stack, kFlagHighlightPoint, p, CQorColor(kHighlightColorIndex),
                         CQorMatrix3d(), kDocumentPdSize, kDocumentPdMode, CQorPoint3d::kOrigin);
        }

        CQorArrayTempl<CQorVertexArray> contours;
        if (type.len() > 0) {
            if (type == CQorString(L"OUTLINE"))
                QOR::g_outline(contours[0], gen, kAnyUnit);
        } else {
            dataItemGet(gen, nullptr, contours);
        }

        const int mode = active ? kActiveColorMode : cmode;
        if (type == CQorString(L"DRILL")) {
            QOR::objGen(gen, 0);
            CQorDataItem item(1);
            const CQorDataKey modeKey(L"CMODE");
            dataItemSet(&item, &mtxKey, static_cast<double(*)[4]>(place));
            dataItemSet(&item, &modeKey, mode);
            qorAppPtr()->objImage(gdx, gen, &item);
        } else {
            for (int i = 0; i < contours.len(); ++i) {
                contours[i].transformBy(static_cast<double(*)[4]>(place));
                const CQorVertexArray contour = contours[i];
                gdx->imageVl(stack, static_cast<unsigned long>(mode & 15) << 8, contour,
                             contourColour, CQorMatrix3d(), solidLine, 1.0, 0,
                             CQorPoint3d::kOrigin);
                CQorArrayTempl<CQorVertexArray> region;
                region.append(contour);
                if (draw == CQorString(L"F"))
                    gdx->imageReg(stack, kFlagSolidFill, region, contourColour, CQorMatrix3d(),
                                  solidLine, 1.0, 0, fillColour, QOR::CHatchProp(),
                                  CQorPoint3d::kOrigin);
                if (draw == CQorString(L"S"))
                    gdx->imageReg(stack, kFlagHatchFill, region, contourColour, CQorMatrix3d(),
                                  solidLine, 1.0, 0, fillColour, hatch, CQorPoint3d::kOrigin);
            }
        }
        // Once per member, as callers count the items.
        if (coord)
            gdx->imagePt(stack, kFlagBasePoint, basePoint, CQorColor(), CQorMatrix3d(),
                         kDocumentPdSize, kDocumentPdMode, CQorPoint3d::kOrigin);
    }
    return true;
}
