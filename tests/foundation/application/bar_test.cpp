#include "foundation/application/bar.h"
#include "foundation/application/fsheet.h"
#include "foundation/application/g_mtx_local.h"
#include "foundation/application/g_outline.h"
#include "foundation/application/model_services.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"
#include "foundation/data/data_text_format.h"
#include "foundation/data/dta_file_pointer.h"
#include "foundation/data/resbuf_value.h"
#include "host/sheet_catalog.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const wchar_t* const kModel = L"" QOR_TEST_DATA_DIR L"/model/demo_model.qdt";

CQorDataItem* loadModel() {
    static CQorDataItem root(1);
    CQorString error;
    EXPECT_TRUE(QOR::dataTextReadFile(kModel, root, error)) << error.c_str();
    return &root;
}

CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> sectionOf(CQorDataItem* item,
                                                          const CQorMatrix3d& mtx) {
    QOR::CDtaFilePointer* file = QOR::CDtaFilePointer::borrowing(item);
    auto regions = QOR::bar_regl(file, mtx);
    delete file;
    return regions;
}

} // namespace

TEST(BarSections, OutlineDataGivesOneRegionTransformed) {
    CQorDataItem* root = loadModel();
    const CQorDataKey key(L"BARS\\B1");
    CQorMatrix3d shift;
    shift.setToTranslation(CQorVector3d(1000, 0, 0));
    const auto regions = sectionOf(root->getItem(&key), shift);
    ASSERT_EQ(regions.len(), 1);
    ASSERT_EQ(regions[0].len(), 1);
    CQorPoint3d lo, hi;
    ASSERT_TRUE(regions[0][0].extents(lo, hi));
    EXPECT_NEAR(lo.x, 950.0, 1e-9);
    EXPECT_NEAR(hi.y, 100.0, 1e-9);
}

TEST(BarSections, LooseContoursAreSortedIntoRegions) {
    CQorDataItem* root = loadModel();
    const CQorDataKey key(L"BARS\\S2");
    const auto regions = sectionOf(root->getItem(&key), CQorMatrix3d());
    ASSERT_EQ(regions.len(), 1);
    EXPECT_EQ(regions[0][0].len(), 4);
}

TEST(BarSections, NothingToReadGivesNoRegion) {
    CQorDataItem empty(1);
    EXPECT_EQ(sectionOf(&empty, CQorMatrix3d()).len(), 0);
    EXPECT_EQ(QOR::bar_regl(nullptr, CQorMatrix3d()).len(), 0);
}

TEST(BarSections, SubBarsAreTheListedKeysThatExistInTheGroup) {
    CQorDataItem* root = loadModel();
    CQorArrayTempl<CQorDataKey> keys;
    ASSERT_TRUE(QOR::bar_bt_subs(keys, root, L"BARS", L"B1"));
    ASSERT_EQ(keys.len(), 2);
    EXPECT_EQ(CQorString(keys[0]), CQorString(L"S1"));
    EXPECT_EQ(CQorString(keys[1]), CQorString(L"S2"));
    const CQorDataKey group(L"BARS");
    EXPECT_NE(root->getItem(&group)->getItem(&keys[0]), nullptr);
    ASSERT_TRUE(QOR::bar_bt_subs(keys, root, L"BARS", L"S1"));
    EXPECT_EQ(keys.len(), 0);
    EXPECT_FALSE(QOR::bar_bt_subs(keys, root, L"BARS", L"NONE"));
    EXPECT_FALSE(QOR::bar_bt_subs(keys, root, L"NONE", L"B1"));
    EXPECT_FALSE(QOR::bar_bt_subs(keys, nullptr, L"BARS", L"B1"));
}

TEST(DemoModel, HoleMembersGiveAnOutlineAndADrillSolid) {
    CQorDataItem* root = loadModel();
    const CQorDataKey act(L"HOLE\\BT\\ACT\\GEN"), drill(L"HOLE\\BT\\D1\\GEN");
    CQorVertexArray vl;
    ASSERT_TRUE(QOR::g_outline(vl, root->getItem(&act), static_cast<Qor::lUnit>(-1)));
    EXPECT_TRUE(vl.isClosed());
    CQor_Solid solid;
    ASSERT_TRUE(QOR::objModel(solid, root->getItem(&drill)));
    ASSERT_TRUE(solid.evaluate(1));
    CQorArrayTempl<CQorVertexArrayEx> first, second;
    ASSERT_TRUE(solid.project(CQorMatrix3d(), false, first, second, 1));
    EXPECT_GT(first.len(), 0);
    const CQorDataKey member(L"HOLE\\BT\\ACT");
    const CQorMatrix3d m = QOR::g_mtx_local(root->getItem(&member));
    EXPECT_EQ(m.m[0][3], 100.0);
}

TEST(DemoModel, SheetsOfTheModelHaveDefinitionsAndContours) {
    ASSERT_TRUE(QOR::fsheetCatalogLoad(L"" QOR_TEST_DATA_DIR L"/model/sheets.qdt"));
    CQorDataItem* root = loadModel();
    for (const wchar_t* name : {L"SHEET_SINGLE", L"SHEET_TRAPEZ", L"SHEET_PANEL"}) {
        const CQorDataKey key(name), stackKey(L"STACK");
        CQorArrayTempl<CQorString> stack;
        ASSERT_TRUE(root->getItem(&key)->get(stack, &stackKey)) << name;
        EXPECT_NE(QOR::fsheet_get(stack), nullptr) << name;
    }
    const CQorDataKey trapez(L"SHEET_TRAPEZ"), vlKey(L"VL");
    CQorDataItem item(*root->getItem(&trapez));
    const CQorVertexArray run(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(300, 0, 0)));
    QOR::dataItemSetChain(&item, &vlKey, QOR::mkResbuf(run));
    CQorArrayTempl<CQorVertexArray> vll;
    CQorVertexArray a, b;
    EXPECT_TRUE(QOR::fsheet_vll_fillet(&item, vll, a, b));
    QOR::fsheetCatalogClear();
}
