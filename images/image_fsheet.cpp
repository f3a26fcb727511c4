#include "images/image_fsheet.h"

#include "displaylist/gdx.h"
#include "foundation/application/model_services.h"
#include "foundation/data/resbuf_value.h"
#include "foundation/data_tree.h"
#include "foundation/records/color_value.h"
#include "foundation/records/hatch_prop.h"
#include "foundation/records/layer_mgr.h"

#include <cmath>
#include <memory>

namespace {

using FilePtr = std::unique_ptr<QOR::CDtaFilePointer>;
using Contours = CQorArrayTempl<CQorVertexArray>;

// Flag words: outline only; fill and outline (both colour mode item); the base
// point in colour mode base.
constexpr unsigned long kFlagOutline = 16;
constexpr unsigned long kFlagFill = 17;
constexpr unsigned long kFlagBasePoint = 1024;
// Point size and style that take the document's defaults.
constexpr double kDocumentPdSize = 0.0;
constexpr unsigned long kDocumentPdMode = 0xFFFFFFFF;
// Segments shown when the sheet's definition gives no number, or when a fixed
// extract is asked for.
constexpr double kDefaultSegments = 1.5;
// Without segments the picture shows this many times the sheet's "D".
constexpr double kLengthPerD = 5.0;
// More centre lines than this are not drawn, whatever number of segments the data
// gives (the sheet geometry repeats a profile no more often either).
constexpr int kMaxCentreLines = 10001;

// The colour of a layer of the drawing; the default colour (none) for a layer
// the drawing does not have.
CQorColor layerColour(const CQorString& name) {
    QOR::CLayerProp prop;
    const CQorLayerMgr layers;
    return layers.physLayerPropGet(name.c_str(), prop) ? prop.color : CQorColor();
}

bool hasItem(const CQorDataItem* dir, const wchar_t* name) {
    const CQorDataKey key(name);
    return dir->getItem(&key) != nullptr;
}

CQorString stringAt(const CQorDataItem* item, const wchar_t* path, const wchar_t* fallback) {
    CQorString s(fallback);
    const CQorDataKey key(path);
    item->get(s, &key);
    return s;
}

class SheetImage {
public:
    SheetImage(CQorGDX* gdx, CQorDataItem& item, const CQorDataItem* sheet)
        : m_gdx(gdx), m_item(item), m_sheet(sheet) {
        m_solidLine.append(1.0);
    }

    // Reads the keys of the sheet's data and of the parameters, and writes the run
    // of the picture into the data as "VL".
    void read(const CQorDataItem* params) {
        const CQorDataKey dKey(L"D"), sKey(L"S"), axisKey(L"AXIS"), coatKey(L"COATLINE"),
            hatchKey(L"IS_HATCH2"), surface1Key(L"SURFACE\\1"), surface2Key(L"SURFACE\\2");
        m_item.get(m_d, &dKey);
        m_item.get(m_s, &sKey);
        m_partCon = stringAt(&m_item, L"PART_CON", L"0");
        m_partCen = stringAt(&m_item, L"PART_CEN", L"0");
        m_partFill = stringAt(&m_item, L"PART_FILL", m_partCon.c_str());
        m_item.get(m_axis, &axisKey);
        m_item.get(m_coatline, &coatKey);
        m_item.get(m_isHatch2, &hatchKey);
        m_draw = stringAt(&m_item, L"DRAW", L"");
        if (m_coatline) {
            m_hasCoat1 = dataItemGet(&m_item, &surface1Key, m_coat1);
            m_hasCoat2 = dataItemGet(&m_item, &surface2Key, m_coat2);
        }
        CQorString segm(L"F");
        if (params != nullptr) {
            const CQorDataKey segmKey(L"SEGM"), coordKey(L"COORD");
            params->get(segm, &segmKey);
            params->get(m_coord, &coordKey);
        }

        const CQorDataKey segKey(L"SEG"), nKey(L"N");
        m_sheet->get(m_seg, &segKey);
        if (segm != L"S")
            m_sheet->get(m_n, &nKey);
        const double length =
            m_n != 0.0 && m_seg != 0.0 ? m_n * m_seg : std::fabs(m_d) * kLengthPerD;
        CQorVertexArray run;
        run.append(CQorVertex(CQorPoint3d::kOrigin, CQorPoint3d(length, 0.0, 0.0), 0.0));
        const CQorDataKey vlKey(L"VL");
        QOR::dataItemSetChain(&m_item, &vlKey, QOR::mkResbuf(run));
    }

    bool isCompound() const { return stringAt(m_sheet, L"\\CALC", L"") == L"COMPOUND"; }

    void drawSingle() {
        Contours vll;
        CQorVertexArray coatA, coatB;
        if (hasItem(m_sheet, L"FILLET_P") || hasItem(m_sheet, L"POINTS"))
            QOR::fsheet_vll_fillet(&m_item, vll, coatA, coatB);
        else
            QOR::fsheet_vll_fnc(&m_item, vll, coatA, coatB);
        CQorColor contourColour = layerColour(m_partCon);
        const CQorColor fillColour = layerColour(m_partFill);
        contourLoop(vll, contourColour, fillColour);
        if (m_coatline) {
            if (m_hasCoat1)
                line(coatA, m_coat1);
            if (m_hasCoat2)
                line(coatB, m_coat2);
        }
        basePoint(vll);
        if (m_axis)
            centreLines(vll, m_s, contourColour);
    }

    void drawCompound() {
        CQorVertexArray topVl, botVl;
        CQorArrayTempl<Contours> regions;
        const CQorDataKey sandwichKey(L"SANDWICH");
        for (QOR::CDataIterator it(m_sheet->getItem(&sandwichKey)); !it.done(); it.next())
            drawLayer(it.item(), topVl, botVl, regions);
    }

private:
    // One layer of a compound. The faces and the region layers that come before a
    // filling layer of calculation "OUTLINE" are what it is built between.
    void drawLayer(const CQorDataItem* layer, CQorVertexArray& topVl, CQorVertexArray& botVl,
                   CQorArrayTempl<Contours>& regions) {
        CQorArrayTempl<CQorString> layerStack;
        const CQorDataKey stackKey(L"STACK"), sKey(L"S"), mtxKey(L"MTX");
        layer->get(layerStack, &stackKey);
        const CQorString side = stringAt(layer, L"SIDE", L"");
        const FilePtr layerFile(QOR::dtaOpen(QOR::QorDtaMemory, 3, nullptr, layer));
        CQorString sid;
        QOR::fsheet_sid(layerFile.get(), sid);

        double thick = 0.0;
        const CQorDataKey thickKey(5005, L"THICK", 5005, sid.c_str(), 5005,
                                   side == L"BOT" ? L"S_BOT" : L"S", 0);
        m_sheet->get(thick, &thickKey);
        const CQorMatrix3d local = QOR::g_mtx_local(layer);
        const CQorDataItem* layerSheet = QOR::fsheet_get(layerStack);
        if (layerSheet == nullptr || !layerSheet->isDir())
            return;

        const CQorString calc = stringAt(layerSheet, L"\\CALC", L"");
        CQorDataItem layerData(m_item);
        QOR::dataItemSetChain(&layerData, &stackKey, QOR::mkResbuf(layerStack));
        dataItemSet(&layerData, &sKey, thick);
        QOR::dataItemSetChain(&layerData, &mtxKey, QOR::mkResbuf(local));

        Contours vll;
        CQorVertexArray coatA, coatB;
        if (hasItem(layerSheet, L"REGION"))
            QOR::fsheet_vll_region(&layerData, vll);
        else if (hasItem(layerSheet, L"FILLET_P"))
            QOR::fsheet_vll_fillet(&layerData, vll, coatA, coatB);
        else if (calc == L"OUTLINE" && topVl.len() > 0 && botVl.len() > 0)
            QOR::fsheet_vll_outline(&layerData, topVl, botVl, regions, vll);

        const CQorString type = stringAt(layerSheet, L"\\TYPE", L"");
        const CQorDataItem* partSource =
            type == L"GASKET" || type == L"INSULATION" ? nullptr : &layerData;

        // A face without contours still gets one, empty: it is what the following
        // layers are built from, and it is drawn as it is.
        if (side == L"TOP")
            topVl = vll[0];
        else if (side == L"BOT")
            botVl = vll[0];
        else if (calc == L"REGION")
            regions.append(vll);

        if (calc == L"REGION" || calc == L"OUTLINE") {
            drawFilling(vll, partSource);
            return;
        }
        CQorColor contourColour = layerColour(m_partCon);
        const CQorColor fillColour = layerColour(m_partFill);
        contourLoop(vll, contourColour, fillColour);
        if (side == L"TOP") {
            if (m_axis)
                centreLines(vll, thick, contourColour);
            if (m_coatline && m_hasCoat1)
                line(coatA, m_coat1);
            basePoint(vll);
        } else if (side == L"BOT") {
            // The bottom face's coat line is its reference face as well.
            if (m_coatline && m_hasCoat2)
                line(coatA, m_coat2);
        }
    }

    // A filling layer: all its contours as one region. Gaskets and insulation are
    // drawn on layer "0"; other fillings on the sheet's own layers.
    void drawFilling(const Contours& vll, const CQorDataItem* partSource) {
        const bool ownLayers = partSource != nullptr && partSource->isDir();
        const CQorColor contourColour =
            layerColour(ownLayers ? stringAt(partSource, L"PART_CON", L"0") : CQorString(L"0"));
        if (m_isHatch2) {
            const CQorColor fillColour = layerColour(
                ownLayers ? stringAt(partSource, L"PART_FILL", L"0") : CQorString(L"0"));
            m_gdx->imageReg(m_stack, kFlagFill, vll, contourColour, CQorMatrix3d(), m_solidLine,
                            1.0, 0, fillColour, QOR::CHatchProp(), CQorPoint3d::kOrigin);
        } else {
            m_gdx->imageReg(m_stack, kFlagOutline, vll, CQorColor(), CQorMatrix3d(), m_solidLine,
                            1.0, 0, CQorColor(), QOR::CHatchProp(), CQorPoint3d::kOrigin);
        }
    }

    // Each contour as a line, or with "DRAW" "L" or "S" as a filled region: "L"
    // fills in the contour's colour (the default fill colour has no index), "S" in
    // the fill colour.
    void contourLoop(Contours& vll, const CQorColor& contourColour, const CQorColor& fillColour) {
        const bool fillL = m_draw == L"L";
        const bool fillS = m_draw == L"S";
        for (int i = 0; i < vll.len(); ++i) {
            if (fillL || fillS) {
                Contours region;
                region.append(vll[i]);
                m_gdx->imageReg(m_stack, kFlagFill, region, contourColour, CQorMatrix3d(),
                                m_solidLine, 1.0, 0, fillL ? CQorColor() : fillColour,
                                QOR::CHatchProp(), CQorPoint3d::kOrigin);
            } else {
                line(vll[i], contourColour);
            }
        }
    }

    void line(const CQorVertexArray& vl, const CQorColor& colour) {
        m_gdx->imageVl(m_stack, 0, vl, colour, CQorMatrix3d(), m_solidLine, 1.0, 0,
                       CQorPoint3d::kOrigin);
    }

    void basePoint(const Contours& vll) {
        if (m_coord && vll.len() > 0)
            m_gdx->imagePt(m_stack, kFlagBasePoint, CQorPoint3d::kOrigin, CQorColor(),
                           CQorMatrix3d(), kDocumentPdSize, kDocumentPdMode, CQorPoint3d::kOrigin);
    }

    // One centre line per segment, N + 1 of them for a whole number N, at the
    // segment starts; the layer "PART_CEN" gives their colour, where the drawing
    // has it, and becomes the contour colour from then on.
    void centreLines(const Contours& vll, double thickness, CQorColor& contourColour) {
        CQorVertexArray axis;
        QOR::fsheet_axis_vl(vll, thickness, axis);
        QOR::CLayerProp prop;
        const CQorLayerMgr layers;
        if (layers.physLayerPropGet(m_partCen.c_str(), prop))
            contourColour = prop.color;
        for (int i = 0; i < kMaxCentreLines && m_n + 1.0 > i; ++i) {
            CQorVertexArray moved = axis;
            moved.move(CQorVector3d(m_seg * i, 0.0, 0.0));
            line(moved, contourColour);
        }
    }

    CQorGDX* m_gdx;
    CQorDataItem& m_item;
    const CQorDataItem* m_sheet;
    const CQorArrayTempl<int> m_stack; // the sheet's items belong to no group
    CQorArrayTempl<double> m_solidLine;

    double m_d = 0.0;
    double m_s = 0.0;
    CQorString m_partCon, m_partCen, m_partFill, m_draw;
    bool m_axis = false;
    bool m_coatline = false;
    bool m_isHatch2 = false;
    bool m_coord = false;
    bool m_hasCoat1 = false;
    bool m_hasCoat2 = false;
    CQorColor m_coat1, m_coat2;
    double m_seg = 0.0;
    double m_n = kDefaultSegments;
};

} // namespace

bool qor_gdx_image_fsheet(CQorGDX* gdx, QOR::CDtaFilePointer* object,
                          QOR::CDtaFilePointer* params) {
    if (gdx == nullptr || object == nullptr)
        return false;
    const FilePtr file(object->lobjGet(nullptr, false));
    if (!file || file->root() == nullptr)
        return false;
    // The run of the picture is written into the data handed to the geometry, so
    // the drawing works on a copy.
    CQorDataItem item(*file->root());
    CQorArrayTempl<CQorString> stack;
    const CQorDataKey stackKey(L"STACK");
    item.get(stack, &stackKey);
    const CQorDataItem* sheet = QOR::fsheet_get(stack);
    if (sheet == nullptr || !sheet->isDir())
        return false;

    SheetImage image(gdx, item, sheet);
    image.read(QOR::dtaGet(params, nullptr));
    if (image.isCompound())
        image.drawCompound();
    else
        image.drawSingle();
    return true;
}
