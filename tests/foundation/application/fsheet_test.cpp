#include "foundation/application/fsheet.h"
#include "foundation/application/g_mtx_local.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_iterator.h"
#include "foundation/data/data_key.h"
#include "foundation/data/dta_file_pointer.h"
#include "foundation/data/resbuf_value.h"
#include "foundation/geometry/qor_geom_fcn.h"
#include "host/sheet_catalog.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const wchar_t* const kSheets = L"" QOR_TEST_DATA_DIR L"/model/sheets.qdt";

class SheetGeometry : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(QOR::fsheetCatalogLoad(kSheets)); }
    void TearDown() override { QOR::fsheetCatalogClear(); }
};

CQorArrayTempl<CQorString> path(std::initializer_list<const wchar_t*> parts) {
    CQorArrayTempl<CQorString> p;
    for (const wchar_t* s : parts)
        p.append(CQorString(s));
    return p;
}

// A sheet item as the sheet image makes it: its definition, thickness, and a
// straight run of the given length.
CQorDataItem sheetItem(const CQorArrayTempl<CQorString>& stack, double s, double length) {
    CQorDataItem item(1);
    const CQorDataKey stackKey(L"STACK"), sKey(L"S"), vlKey(L"VL");
    QOR::dataItemSetChain(&item, &stackKey, QOR::mkResbuf(stack));
    dataItemSet(&item, &sKey, s);
    const CQorVertexArray run(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(length, 0, 0)));
    QOR::dataItemSetChain(&item, &vlKey, QOR::mkResbuf(run));
    return item;
}

double signedArea(const CQorVertexArray& vl) {
    double a = 0.0;
    for (const CQorVertex& v : vl) {
        a += 0.5 * (v.m_start.x * v.m_end.y - v.m_end.x * v.m_start.y);
        if (v.m_bulge != 0.0) {
            const double th = 4.0 * std::atan(v.m_bulge);
            const double r = v.m_start.distanceTo(v.m_end) / (2.0 * std::sin(std::fabs(th) / 2.0));
            a += (th > 0 ? 0.5 : -0.5) * r * r * (std::fabs(th) - std::sin(std::fabs(th)));
        }
    }
    return a;
}

double length(const CQorVertexArray& vl) {
    double l = 0.0;
    for (const CQorVertex& v : vl)
        l += v.bulgLen();
    return l;
}

} // namespace

TEST_F(SheetGeometry, DefinitionsAreFoundByPathAsRootsOfTheirOwn) {
    CQorDataItem* def = QOR::fsheet_get(path({L"FSHEET", L"TRAPEZ"}));
    ASSERT_NE(def, nullptr);
    EXPECT_EQ(def->getParent(), nullptr);
    CQorString calc;
    const CQorDataKey rootCalc(5005, L"", 5005, L"CALC", 0);
    ASSERT_TRUE(def->get(calc, &rootCalc));
    EXPECT_EQ(calc, CQorString(L"SHEET"));
    EXPECT_EQ(QOR::fsheet_get(path({L"FSHEET", L"TRAPEZ"})), def); // the same each time
    EXPECT_EQ(QOR::fsheet_get(path({L"FSHEET", L"NONE"})), nullptr);
    EXPECT_EQ(QOR::fsheet_get(path({L"FSHEET", L"TRAPEZ", L"SEG"})), nullptr); // a value
    EXPECT_EQ(QOR::fsheet_get(path({})), nullptr);
    EXPECT_FALSE(QOR::fsheetCatalogLoad(L"" QOR_TEST_DATA_DIR L"/model/missing.qdt"));
    EXPECT_NE(QOR::fsheet_get(path({L"FSHEET", L"SINGLE"})), nullptr);
}

TEST_F(SheetGeometry, FlatSheetIsARectangleOfItsThicknessWithItsFacesAsCoatLines) {
    const CQorDataItem item = sheetItem(path({L"FSHEET", L"SINGLE"}), 2.0, 150.0);
    CQorArrayTempl<CQorVertexArray> vll;
    CQorVertexArray a, b;
    ASSERT_TRUE(QOR::fsheet_vll_fnc(&item, vll, a, b));
    ASSERT_EQ(vll.len(), 1);
    EXPECT_TRUE(vll[0].isClosed());
    EXPECT_TRUE(vll[0].isContinuous());
    EXPECT_NEAR(signedArea(vll[0]), 300.0, 1e-9);
    ASSERT_EQ(a.len(), 1);
    ASSERT_EQ(b.len(), 1);
    EXPECT_NEAR(a[0].m_start.y, 0.0, 1e-12);
    EXPECT_NEAR(b[0].m_start.y, 2.0, 1e-12);
    EXPECT_NEAR(b[0].m_end.x, 150.0, 1e-12);
}

TEST_F(SheetGeometry, BentRunGetsMitredCorners) {
    CQorDataItem item = sheetItem(path({L"FSHEET", L"SINGLE"}), 1.0, 10.0);
    CQorVertexArray run;
    CQorPoint3dArray pts;
    pts.append(CQorPoint3d(0, 0, 0)).append(CQorPoint3d(10, 0, 0)).append(CQorPoint3d(10, 10, 0));
    run.fromPoints(pts, false);
    const CQorDataKey vlKey(L"VL");
    QOR::dataItemSetChain(&item, &vlKey, QOR::mkResbuf(run));
    CQorArrayTempl<CQorVertexArray> vll;
    CQorVertexArray a, b;
    ASSERT_TRUE(QOR::fsheet_vll_fnc(&item, vll, a, b));
    ASSERT_EQ(b.len(), 2);
    EXPECT_NEAR(b[0].m_end.x, 9.0, 1e-12); // inner corner of the left bend
    EXPECT_NEAR(b[0].m_end.y, 1.0, 1e-12);
    EXPECT_NEAR(signedArea(vll[0]), 10 + 9, 1e-9);
}

TEST_F(SheetGeometry, TrapezoidalSheetCoversTheRunInWholePeriods) {
    const CQorDataItem item = sheetItem(path({L"FSHEET", L"TRAPEZ"}), 0.75, 300.0);
    CQorArrayTempl<CQorVertexArray> vll;
    CQorVertexArray a, b;
    ASSERT_TRUE(QOR::fsheet_vll_fillet(&item, vll, a, b));
    ASSERT_EQ(vll.len(), 1);
    EXPECT_TRUE(vll[0].isClosed());
    EXPECT_TRUE(vll[0].isContinuous());
    CQorPoint3d lo, hi;
    ASSERT_TRUE(a.extents(lo, hi));
    EXPECT_NEAR(hi.x, 400.0, 1e-9); // two periods for 300
    EXPECT_NEAR(hi.y, 35.0, 1e-9);
    // The area of a sheet of thickness t along a line of sharp corners is close to
    // t times the length of its reference face.
    EXPECT_NEAR(signedArea(vll[0]), 0.75 * length(a), 0.75 * 0.75 * 8);
    EXPECT_GT(signedArea(vll[0]), 0.0);
}

TEST_F(SheetGeometry, FilletedProfileIsTangentContinuousAndKeepsTheThickness) {
    const CQorDataItem item = sheetItem(path({L"FSHEET", L"WAVE"}), 1.0, 228.0);
    CQorArrayTempl<CQorVertexArray> vll;
    CQorVertexArray a, b;
    ASSERT_TRUE(QOR::fsheet_vll_fillet(&item, vll, a, b));
    int arcs = 0;
    for (const CQorVertex& v : a)
        arcs += v.isArc() ? 1 : 0;
    EXPECT_EQ(arcs, 5); // three crests and two valleys between the periods
    ASSERT_EQ(a.len(), b.len());
    for (int i = 0; i < a.len(); ++i) {
        // Each piece of the other face lies at the thickness from the reference.
        const CQorPoint3d m = b[i].mid();
        const CQorPoint3d onRef = a[i].lotp(m);
        EXPECT_NEAR(m.distanceTo(onRef), 1.0, 1e-9) << i;
    }
    // The sheet's area is its thickness times the length of its centre line.
    double centre = 0.0;
    for (int i = 0; i < a.len(); ++i)
        centre += (a[i].bulgLen() + b[i].bulgLen()) / 2.0;
    EXPECT_NEAR(signedArea(vll[0]), centre * 1.0, 1e-6);
}

TEST_F(SheetGeometry, ProfiledSheetFailsSoftly) {
    CQorArrayTempl<CQorVertexArray> vll;
    CQorVertexArray a, b;
    EXPECT_FALSE(QOR::fsheet_vll_fillet(nullptr, vll, a, b));
    const CQorDataItem noDef = sheetItem(path({L"FSHEET", L"NONE"}), 1.0, 100.0);
    EXPECT_FALSE(QOR::fsheet_vll_fillet(&noDef, vll, a, b));
    const CQorDataItem flat = sheetItem(path({L"FSHEET", L"SINGLE"}), 1.0, 100.0);
    EXPECT_FALSE(QOR::fsheet_vll_fillet(&flat, vll, a, b)); // no profile
    const CQorDataItem thin = sheetItem(path({L"FSHEET", L"TRAPEZ"}), 0.0, 100.0);
    EXPECT_FALSE(QOR::fsheet_vll_fillet(&thin, vll, a, b));
    EXPECT_FALSE(QOR::fsheet_vll_fnc(&thin, vll, a, b));
    EXPECT_EQ(vll.len(), 0);
    const CQorDataItem huge = sheetItem(path({L"FSHEET", L"TRAPEZ"}), 1.0, 1e300);
    EXPECT_TRUE(QOR::fsheet_vll_fillet(&huge, vll, a, b)); // bounded number of periods
}

namespace {

// The layers of a compound, computed the way the sheet image does: faces first,
// then regions, then the filling between the faces minus the regions.
CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> sandwichLayers(const wchar_t* name) {
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> layers;
    const CQorDataItem* panel = QOR::fsheet_get(path({L"FSHEET", name}));
    EXPECT_NE(panel, nullptr);
    if (panel == nullptr)
        return layers;
    const CQorDataItem item = sheetItem(path({L"FSHEET", name}), 0.0, 1000.0);
    CQorVertexArray topVl, botVl;
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    const CQorDataKey sandwichKey(L"SANDWICH");
    for (QOR::CDataIterator it(panel->getItem(&sandwichKey)); !it.done(); it.next()) {
        CQorDataItem* layer = it.item();
        CQorArrayTempl<CQorString> stack;
        CQorString side, sid, calc;
        const CQorDataKey stackKey(L"STACK"), sideKey(L"SIDE");
        layer->get(stack, &stackKey);
        layer->get(side, &sideKey);
        QOR::CDtaFilePointer* file = QOR::CDtaFilePointer::borrowing(layer);
        EXPECT_TRUE(QOR::fsheet_sid(file, sid));
        delete file;
        const CQorDataKey thickKey(5005, L"THICK", 5005, sid.c_str(), 5005,
                                   side == CQorString(L"BOT") ? L"S_BOT" : L"S", 0);
        double thick = 0.0;
        panel->get(thick, &thickKey);
        const CQorDataItem* layerSheet = QOR::fsheet_get(stack);
        EXPECT_NE(layerSheet, nullptr);
        if (layerSheet == nullptr)
            continue;
        const CQorDataKey calcKey(5005, L"", 5005, L"CALC", 0);
        layerSheet->get(calc, &calcKey);
        CQorDataItem layerData(item);
        const CQorDataKey sKey(L"S"), mtxKey(L"MTX");
        QOR::dataItemSetChain(&layerData, &stackKey, QOR::mkResbuf(stack));
        dataItemSet(&layerData, &sKey, thick);
        QOR::dataItemSetChain(&layerData, &mtxKey, QOR::mkResbuf(QOR::g_mtx_local(layer)));
        CQorArrayTempl<CQorVertexArray> vll;
        CQorVertexArray a, b;
        const CQorDataKey regionKey(L"REGION"), filletKey(L"FILLET_P");
        bool ok = false;
        if (layerSheet->getItem(&regionKey) != nullptr)
            ok = QOR::fsheet_vll_region(&layerData, vll);
        else if (layerSheet->getItem(&filletKey) != nullptr)
            ok = QOR::fsheet_vll_fillet(&layerData, vll, a, b);
        else
            ok = QOR::fsheet_vll_outline(&layerData, topVl, botVl, regions, vll);
        EXPECT_TRUE(ok) << sid.c_str();
        EXPECT_GT(vll.len(), 0) << sid.c_str();
        if (side == CQorString(L"TOP"))
            topVl = vll[0];
        else if (side == CQorString(L"BOT"))
            botVl = vll[0];
        else if (calc == CQorString(L"REGION"))
            regions.append(vll);
        layers.append(vll);
    }
    return layers;
}

// No grid point lies inside two layers, and every layer has points inside it.
void expectNoOverlap(const CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& layers, double top) {
    int inside[4] = {0, 0, 0, 0};
    for (double x = 0.5; x < 1000.0; x += 2.0)
        for (double y = -0.95; y < top; y += 0.1) {
            int count = 0;
            for (int l = 0; l < 4; ++l)
                if (QOR::g_vll_pt_inside(layers[l], CQorPoint3d(x, y, 0)) > 0) {
                    ++count;
                    ++inside[l];
                }
            ASSERT_LE(count, 1) << x << " " << y;
        }
    for (int l = 0; l < 4; ++l)
        EXPECT_GT(inside[l], 0) << l;
}

} // namespace

TEST_F(SheetGeometry, SandwichLayersAreClosedAndDoNotOverlap) {
    const CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> layers = sandwichLayers(L"PANEL");
    ASSERT_EQ(layers.len(), 4);
    ASSERT_EQ(layers[3].len(), 2); // the filling with the gasket as its hole
    for (const CQorArrayTempl<CQorVertexArray>& l : layers)
        for (const CQorVertexArray& vl : l) {
            EXPECT_TRUE(vl.isClosed());
            EXPECT_TRUE(vl.isContinuous());
        }
    expectNoOverlap(layers, 82.0);
    // The filling runs from the bottom face's top to the top face's bottom.
    EXPECT_EQ(QOR::g_vll_pt_inside(layers[3], CQorPoint3d(500, 0.7, 0)), 1);
    EXPECT_EQ(QOR::g_vll_pt_inside(layers[3], CQorPoint3d(500, 79.9, 0)), 1);
    EXPECT_EQ(QOR::g_vll_pt_inside(layers[3], CQorPoint3d(15, 5, 0)), -1); // the gasket
    EXPECT_EQ(QOR::g_vll_pt_inside(layers[2], CQorPoint3d(15, 5, 0)), 1);
}

TEST_F(SheetGeometry, SandwichWithAProfiledTopFaceHasNoOverlapEither) {
    const CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> layers = sandwichLayers(L"PANEL_TRAPEZ");
    ASSERT_EQ(layers.len(), 4);
    ASSERT_EQ(layers[3].len(), 2);
    for (const CQorArrayTempl<CQorVertexArray>& l : layers)
        for (const CQorVertexArray& vl : l) {
            EXPECT_TRUE(vl.isClosed());
            EXPECT_TRUE(vl.isContinuous());
        }
    expectNoOverlap(layers, 117.0);
    // Under a rib of the top face the filling reaches up into it.
    EXPECT_EQ(QOR::g_vll_pt_inside(layers[3], CQorPoint3d(125, 114, 0)), 1);
    EXPECT_EQ(QOR::g_vll_pt_inside(layers[0], CQorPoint3d(125, 115.5, 0)), 1);
}

TEST_F(SheetGeometry, AxisLineCrossesTheSheetAtItsStart) {
    const CQorDataItem item = sheetItem(path({L"FSHEET", L"SINGLE"}), 2.0, 150.0);
    CQorArrayTempl<CQorVertexArray> vll;
    CQorVertexArray a, b, axis;
    ASSERT_TRUE(QOR::fsheet_vll_fnc(&item, vll, a, b));
    ASSERT_TRUE(QOR::fsheet_axis_vl(vll, 2.0, axis));
    ASSERT_EQ(axis.len(), 1);
    EXPECT_EQ(axis[0].m_start.x, 0.0);
    EXPECT_EQ(axis[0].m_start.y, -2.0);
    EXPECT_EQ(axis[0].m_end.y, 4.0);
    EXPECT_FALSE(QOR::fsheet_axis_vl(CQorArrayTempl<CQorVertexArray>(), 2.0, axis));
    EXPECT_EQ(axis.len(), 0);
}

TEST_F(SheetGeometry, SidIsTheIdOrTheLastStackSegment) {
    CQorDataItem layer(1);
    CQorString sid(L"unchanged");
    QOR::CDtaFilePointer* file = QOR::CDtaFilePointer::borrowing(&layer);
    EXPECT_FALSE(QOR::fsheet_sid(file, sid));
    EXPECT_EQ(sid, CQorString(L"unchanged"));
    const CQorDataKey stackKey(L"STACK"), idKey(L"ID");
    QOR::dataItemSetChain(&layer, &stackKey, QOR::mkResbuf(path({L"FSHEET", L"CORE"})));
    ASSERT_TRUE(QOR::fsheet_sid(file, sid));
    EXPECT_EQ(sid, CQorString(L"CORE"));
    dataItemSet(&layer, &idKey, CQorString(L"X1"));
    ASSERT_TRUE(QOR::fsheet_sid(file, sid));
    EXPECT_EQ(sid, CQorString(L"X1"));
    delete file;
    EXPECT_FALSE(QOR::fsheet_sid(nullptr, sid));
}
