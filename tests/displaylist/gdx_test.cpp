#include "displaylist/gdx.h"

#include "gdx_test_util.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

void expectPoint(const CQorPoint3d& p, double x, double y, double z) {
    EXPECT_DOUBLE_EQ(p.x, x);
    EXPECT_DOUBLE_EQ(p.y, y);
    EXPECT_DOUBLE_EQ(p.z, z);
}

} // namespace

TEST(Gdx, EmptyLinetypeIsStoredAsSolid) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 10, 0));
    const CQorArrayTempl<double>& lt = gdx.linetypeGet(0);
    ASSERT_EQ(lt.len(), 1);
    EXPECT_EQ(lt[0], 1.0);
}

TEST(Gdx, GivenLinetypeIsKeptAsItIs) {
    CQorGDX gdx = plainDoc();
    CQorArrayTempl<double> dashed;
    dashed.append(2.0).append(-1.0).append(0.0);
    gdx.imageVl(path({1}), 0, segment(0, 0, 1, 0), indexed(1), CQorMatrix3d(), dashed, 0.5, 3,
                CQorPoint3d());
    EXPECT_EQ(gdx.linetypeGet(0).len(), 3);
    EXPECT_EQ(gdx.ltscaleGet(0), 0.5);
    EXPECT_EQ(gdx.thicknGet(0), 3);
}

TEST(Gdx, PictureWithEqualCornersStoresNoVertexAndNeverTouchesExtents) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 10, 5));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    const CQorPoint3d p(3, 3, 0);
    gdx.imagePicture(path({2}), 0, L"pic.bmp", 7, p, p);
    CQorVertexArray vl;
    gdx.geomGet(vl, 1);
    EXPECT_EQ(vl.len(), 0);
    gdx.imagePicture(path({3}), 0, L"pic.bmp", 7, CQorPoint3d(-100, -100, 0),
                     CQorPoint3d(100, 100, 0));
    gdx.geomGet(vl, 2);
    EXPECT_EQ(vl.len(), 1);
    CQorPoint3d lo2, hi2;
    ASSERT_TRUE(gdx.extmaxGet(lo2, hi2));
    EXPECT_EQ(lo2, lo);
    EXPECT_EQ(hi2, hi);
}

TEST(Gdx, PointWithDocumentStyleFollowsTheDocument) {
    CQorGDX gdx = plainDoc();
    gdx.pdModeSet(34ul);
    gdx.pdSizeSet(2.5);
    addPoint(gdx, {1}, 0, CQorPoint3d(1, 1, 0));
    EXPECT_EQ(gdx.pdModeGet(0), 34ul);
    EXPECT_EQ(gdx.pdSizeGet(0), 2.5);
    gdx.pdModeSet(3ul);
    gdx.pdSizeSet(7.0);
    EXPECT_EQ(gdx.pdModeGet(0), 3ul);
    EXPECT_EQ(gdx.pdSizeGet(0), 7.0);
}

TEST(Gdx, PictureGetWithoutNumberNeedsAName) {
    CQorGDX gdx = plainDoc();
    gdx.imagePicture(path({1}), 0, L"", static_cast<int>(GDX_PICTURE_NONE), CQorPoint3d(),
                     CQorPoint3d());
    gdx.imagePicture(path({2}), 0, L"logo.ico", static_cast<int>(GDX_PICTURE_NONE), CQorPoint3d(),
                     CQorPoint3d());
    CQorString name;
    int number = 0;
    EXPECT_FALSE(gdx.pictureGet(0, name, number));
    EXPECT_TRUE(gdx.pictureGet(1, name, number));
    EXPECT_EQ(name, L"logo.ico");
    EXPECT_EQ(number, 0x7FFFFFFF);
}

TEST(Gdx, ColorModeChangeKeepsLowBitsDropsHighBitsAndKeepsExtents) {
    CQorGDX gdx = plainDoc();
    addRegion(gdx, {3}, 0x1F000 | 0x17, region(rect(0, 0, 4, 4)));
    addRegion(gdx, {3, 1}, 0, region(rect(10, 10, 20, 20)));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    EXPECT_TRUE(gdx.cModeSet(path({3}), QOR::GdxCmAux));
    EXPECT_EQ(gdx.flagGet(0), 0x517ul);
    EXPECT_EQ(gdx.flagGet(1), 0x500ul);
    CQorPoint3d lo2, hi2;
    ASSERT_TRUE(gdx.extmaxGet(lo2, hi2));
    EXPECT_EQ(lo2, lo);
    EXPECT_EQ(hi2, hi);
}

TEST(Gdx, HideKeepsExtentsUntilExtentsAreSwitchedOffToo) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 1, 1));
    addLine(gdx, {2}, 0, segment(50, 50, 60, 60));
    EXPECT_TRUE(gdx.propSet(path({2}), GDX_PROP_HIDE));
    EXPECT_EQ(gdx.flagGet(1) & GDX_FLAG_HIDDEN, GDX_FLAG_HIDDEN);
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    expectPoint(hi, 60, 60, 0);
    EXPECT_TRUE(gdx.propSet(path({2}), GDX_PROP_EXT_OFF));
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    expectPoint(hi, 1, 1, 0);
}

TEST(Gdx, PropSetWithUnknownCodeMatchesAndChangesNothing) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0x10, segment(0, 0, 1, 1));
    EXPECT_TRUE(gdx.propSet(path({1}), 11));
    EXPECT_EQ(gdx.flagGet(0), 0x10ul);
    EXPECT_FALSE(gdx.propSet(path({9}), GDX_PROP_HIDE));
}

TEST(Gdx, RedrawWithEmptyPathReachesEveryItemWhilePropSetSelectsNothing) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 1, 1));
    addLine(gdx, {2, 5}, 0, segment(0, 0, 1, 1));
    addLine(gdx, {}, 0, segment(0, 0, 1, 1));
    EXPECT_FALSE(gdx.propSet(CQorArrayTempl<int>(), GDX_PROP_HIDE));
    EXPECT_EQ(gdx.flagGet(0), 0ul);
    EXPECT_TRUE(gdx.redraw(CQorArrayTempl<int>(), GDX_PROP_HIDE));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(gdx.flagGet(i), static_cast<unsigned long>(GDX_FLAG_HIDDEN)) << "item " << i;
    EXPECT_TRUE(gdx.redraw(path({77}), GDX_PROP_SHOW));
    CQorGDX empty = plainDoc();
    EXPECT_FALSE(empty.redraw(CQorArrayTempl<int>(), GDX_PROP_HIDE));
}

TEST(Gdx, PointStyleSetIsExactWhileColorModeSetIsByPrefix) {
    CQorGDX gdx = plainDoc();
    addPoint(gdx, {3}, 0, CQorPoint3d());
    addPoint(gdx, {3, 1}, 0, CQorPoint3d());
    EXPECT_TRUE(gdx.pdModeSet(path({3}), 35ul));
    EXPECT_TRUE(gdx.pdSizeSet(path({3}), 4.0));
    EXPECT_EQ(gdx.pdModeGet(0), 35ul);
    EXPECT_EQ(gdx.pdSizeGet(0), 4.0);
    EXPECT_EQ(gdx.pdModeGet(1), gdx.pdModeGet());
    EXPECT_EQ(gdx.pdSizeGet(1), gdx.pdSizeGet());
    EXPECT_TRUE(gdx.cModeSet(path({3}), QOR::GdxCmHighlight));
    EXPECT_EQ(gdx.flagGet(0), 0x100ul);
    EXPECT_EQ(gdx.flagGet(1), 0x100ul);
}

TEST(Gdx, StackGetFindsEqualOrZeroPaddedPathsButNoTruePrefix) {
    CQorGDX only31 = plainDoc();
    addLine(only31, {3, 1}, 0, segment(0, 0, 1, 1));
    EXPECT_EQ(only31.stackGet(path({3})), -1);
    CQorGDX with3 = plainDoc();
    addLine(with3, {3}, 0, segment(0, 0, 1, 1));
    EXPECT_EQ(with3.stackGet(path({3})), 0);
    EXPECT_EQ(with3.stackGet(path({3, 0})), 0);
    EXPECT_EQ(with3.stackGet(path({3, 2})), -1);
    EXPECT_EQ(with3.stackGet(CQorArrayTempl<int>()), -1);
    EXPECT_EQ(plainDoc().stackGet(path({3})), -1);
}

TEST(Gdx, StackGetGivesTheGreatestTopLevelGroup) {
    CQorGDX gdx = plainDoc();
    EXPECT_EQ(gdx.stackGet(), 0);
    addLine(gdx, {-4}, 0, segment(0, 0, 1, 1));
    EXPECT_EQ(gdx.stackGet(), 0);
    addLine(gdx, {7, 9}, 0, segment(0, 0, 1, 1));
    addLine(gdx, {2}, 0, segment(0, 0, 1, 1));
    addLine(gdx, {}, 0, segment(0, 0, 1, 1));
    EXPECT_EQ(gdx.stackGet(), 7);
}

TEST(Gdx, MtxSetMovesTheGroupByTheOwnersChange) {
    CQorGDX gdx = plainDoc();
    CQorMatrix3d shift;
    shift.setToTranslation(CQorVector3d(10, 0, 0));
    gdx.imageVl(path({1, 1}), 0, segment(0, 0, 1, 0), indexed(1), shift, CQorArrayTempl<double>(),
                1.0, 1, CQorPoint3d());
    gdx.imageVl(path({1}), 0, segment(0, 0, 1, 0), indexed(1), shift, CQorArrayTempl<double>(), 1.0,
                1, CQorPoint3d());
    CQorMatrix3d target;
    target.setToTranslation(CQorVector3d(10, 5, 0));
    EXPECT_TRUE(gdx.mtxSet(path({1}), target));
    // The owner is item 1 (stack of the path's length): the group moves by (0, 5, 0).
    CQorPoint3d p;
    p *= gdx.mtxGet(0);
    expectPoint(p, 10, 5, 0);
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    expectPoint(lo, 10, 5, 0);
    expectPoint(hi, 11, 5, 0);
}

TEST(Gdx, MtxSetWithoutOwnerOfPathLengthTakesTheLastSelected) {
    CQorGDX gdx = plainDoc();
    CQorMatrix3d a, b;
    a.setToTranslation(CQorVector3d(1, 0, 0));
    b.setToTranslation(CQorVector3d(0, 2, 0));
    gdx.imageVl(path({4, 1}), 0, segment(0, 0, 1, 0), indexed(1), a, CQorArrayTempl<double>(), 1.0,
                1, CQorPoint3d());
    gdx.imageVl(path({4, 2}), 0, segment(0, 0, 1, 0), indexed(1), b, CQorArrayTempl<double>(), 1.0,
                1, CQorPoint3d());
    CQorMatrix3d target;
    target.setToTranslation(CQorVector3d(0, 12, 0));
    EXPECT_TRUE(gdx.mtxSet(path({4}), target));
    // Owner is the last selected item ({4, 2}), moved by (0, 10, 0); the first follows.
    CQorPoint3d p0, p1;
    p0 *= gdx.mtxGet(0);
    p1 *= gdx.mtxGet(1);
    expectPoint(p0, 1, 10, 0);
    expectPoint(p1, 0, 12, 0);
    EXPECT_FALSE(gdx.mtxSet(path({5}), target));
    EXPECT_FALSE(gdx.mtxSet(CQorArrayTempl<int>(), target));
}

TEST(Gdx, ColorTableRejectsModesZeroAndFifteen) {
    CQorGDX gdx = plainDoc();
    EXPECT_FALSE(gdx.ColorTabSet(0, indexed(1)));
    EXPECT_FALSE(gdx.ColorTabSet(15, indexed(1)));
    EXPECT_EQ(gdx.ColorTabLenGet(), 0);
    EXPECT_TRUE(gdx.ColorTabSet(14, indexed(6)));
    EXPECT_GE(gdx.ColorTabLenGet(), 14);
    EXPECT_EQ(gdx.colorTabGet(14).colorIndex(), 6);
    EXPECT_LT(gdx.colorTabGet(40).colorIndex(), 0);
}

TEST(Gdx, ColorTabSetWithANegativeModeWritesTheEntryCountedFromTheEnd) {
    CQorGDX gdx = plainDoc();
    // On an empty table a negative mode writes a scratch element: true, table empty.
    EXPECT_TRUE(gdx.ColorTabSet(-1, indexed(8)));
    EXPECT_EQ(gdx.ColorTabLenGet(), 0);
    for (int mode = 1; mode <= 5; ++mode)
        ASSERT_TRUE(gdx.ColorTabSet(mode, indexed(static_cast<short>(mode))));
    // Mode -1 is entry -2, the second to last (entry 3, mode 4).
    EXPECT_TRUE(gdx.ColorTabSet(-1, indexed(40)));
    EXPECT_EQ(gdx.ColorTabLenGet(), 5);
    EXPECT_EQ(gdx.colorTabGet(4).colorIndex(), 40);
    EXPECT_EQ(gdx.colorTabGet(5).colorIndex(), 5);
    // Mode 0 is entry -1, but mode 0 is refused: the last entry stays.
    EXPECT_FALSE(gdx.ColorTabSet(0, indexed(41)));
    EXPECT_EQ(gdx.colorTabGet(5).colorIndex(), 5);
    // A count that runs past the front lands on the first entry (mode 1).
    EXPECT_TRUE(gdx.ColorTabSet(-7, indexed(42)));
    EXPECT_EQ(gdx.colorTabGet(1).colorIndex(), 42);
    EXPECT_EQ(gdx.ColorTabLenGet(), 5);
}

TEST(Gdx, HatchGetOfMinusOneFailsWhileFlagGetReadsTheLast) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0x10, segment(0, 0, 1, 1));
    addLine(gdx, {2}, 0x20, segment(0, 0, 1, 1));
    QOR::CHatchProp h;
    EXPECT_FALSE(gdx.hatchGet(-1, h));
    EXPECT_FALSE(gdx.hatchGet(2, h));
    EXPECT_TRUE(gdx.hatchGet(1, h));
    EXPECT_EQ(gdx.flagGet(-1), 0x20ul);
    EXPECT_EQ(gdx.flagGet(-2), 0x10ul);
}

TEST(Gdx, AddDisplayListLeavesExtentsUntilTheNextRebuild) {
    CQorGDX source = plainDoc();
    addLine(source, {1}, 0, segment(100, 100, 200, 200));
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 1, 1));
    EXPECT_TRUE(gdx.addDisplayList(source.getDisplayList()));
    EXPECT_FALSE(gdx.addDisplayList(CQorArrayTempl<CQorDisplayItem>()));
    EXPECT_EQ(gdx.lenGet(), 2);
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    expectPoint(hi, 1, 1, 0);
    gdx.propSet(path({1}), GDX_PROP_SHOW); // any flag change rebuilds
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    expectPoint(hi, 200, 200, 0);
}

TEST(Gdx, IncrementalExtentsEqualTheRebuild) {
    CQorGDX gdx = plainDoc();
    CQorMatrix3d turn;
    turn.setToRotation(0.5, CQorVector3d::kZAxis, CQorPoint3d(1, 2, 0));
    gdx.imageVl(path({1}), 0, segment(-3, 4, 8, 1), indexed(1), turn, CQorArrayTempl<double>(), 1.0,
                1, CQorPoint3d());
    addPoint(gdx, {2}, 0, CQorPoint3d(-7, 9, 2));
    addRegion(gdx, {3}, 0, region(rect(5, -6, 9, 0)));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    gdx.propSet(path({1}), GDX_PROP_SHOW);
    CQorPoint3d lo2, hi2;
    ASSERT_TRUE(gdx.extmaxGet(lo2, hi2));
    EXPECT_EQ(lo, lo2);
    EXPECT_EQ(hi, hi2);
    EXPECT_DOUBLE_EQ(lo2.z, 0.0);
    EXPECT_DOUBLE_EQ(hi2.z, 2.0);
}

TEST(Gdx, FixedSizeAndNoExtentItemsDoNotCount) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, GDX_FLAG_FIXED_SIZE, segment(0, 0, 100, 100));
    addLine(gdx, {2}, GDX_FLAG_NO_EXT, segment(0, 0, 100, 100));
    CQorPoint3d lo, hi;
    EXPECT_FALSE(gdx.extmaxGet(lo, hi));
}

TEST(Gdx, FixedSizeItemsKeepTheirAnchor) {
    CQorGDX gdx = plainDoc();
    const CQorPoint3d anchor(4, 5, 6);
    gdx.imageVl(path({1}), GDX_FLAG_FIXED_SIZE, segment(0, 0, 1, 0), indexed(1), CQorMatrix3d(),
                CQorArrayTempl<double>(), 1.0, 1, anchor);
    gdx.imagePt(path({2}), GDX_FLAG_FIXED_SIZE, CQorPoint3d(1, 1, 1), indexed(1), CQorMatrix3d(),
                0.0, 0, anchor);
    gdx.imageVl(path({3}), 0, segment(0, 0, 1, 0), indexed(1), CQorMatrix3d(),
                CQorArrayTempl<double>(), 1.0, 1, anchor);
    CQorPoint3d p;
    gdx.geomGet(p, 0);
    EXPECT_EQ(p, anchor);
    CQorVertexArray vl;
    gdx.geomGet(vl, 1);
    ASSERT_EQ(vl.len(), 1);
    EXPECT_EQ(vl[0].m_start, anchor);
    EXPECT_EQ(vl[0].m_end, CQorPoint3d());
    gdx.geomGet(p, 2);
    EXPECT_EQ(p, CQorPoint3d());
}

TEST(Gdx, RegionFillColourFallsBackToLineColourWithoutIndex) {
    CQorGDX gdx = plainDoc();
    gdx.imageReg(path({1}), GDX_FLAG_FILL, region(rect(0, 0, 1, 1)), indexed(3), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, CQorColor(), QOR::CHatchProp(), CQorPoint3d());
    gdx.imageReg(path({2}), GDX_FLAG_HATCH, region(rect(0, 0, 1, 1)), indexed(3), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, indexed(5), QOR::CHatchProp(), CQorPoint3d());
    gdx.imageReg(path({3}), GDX_FLAG_OUTLINE, region(rect(0, 0, 1, 1)), indexed(3), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, indexed(5), QOR::CHatchProp(), CQorPoint3d());
    EXPECT_EQ(gdx.fcolorGet(0).colorIndex(), 3);
    EXPECT_EQ(gdx.fcolorGet(1).colorIndex(), 5);
    EXPECT_LT(gdx.fcolorGet(2).colorIndex(), 0);
}

TEST(Gdx, ItemColourFollowsTheColourMode) {
    CQorColor back;
    back.setOleColor(0x00102030);
    CQorGDX gdx(back, CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
    CQorColor own;
    own.setOleColor(0x000000FF);
    own.setColorIndex(1);
    gdx.imageVl(path({1}), 0, segment(0, 0, 1, 1), own, CQorMatrix3d(), CQorArrayTempl<double>(),
                1.0, 1, CQorPoint3d());
    gdx.imageVl(path({2}), 0, segment(0, 0, 1, 1), CQorColor(), CQorMatrix3d(),
                CQorArrayTempl<double>(), 1.0, 1, CQorPoint3d());
    gdx.imageVl(path({3}), 0xF00, segment(0, 0, 1, 1), own, CQorMatrix3d(),
                CQorArrayTempl<double>(), 1.0, 1, CQorPoint3d());
    CQorColor table;
    table.setOleColor(0x00ABCDEF);
    gdx.ColorTabSet(4, table);
    gdx.imageVl(path({4}), 0x400, segment(0, 0, 1, 1), own, CQorMatrix3d(),
                CQorArrayTempl<double>(), 1.0, 1, CQorPoint3d());
    EXPECT_EQ(gdx.itemColorGet(0), own.oleColor());
    EXPECT_EQ(gdx.itemColorGet(1), 0x00EFDFCFul);
    EXPECT_EQ(gdx.itemColorGet(2), 0x00EFDFCFul);
    EXPECT_EQ(gdx.itemColorGet(3), 0x00ABCDEFul);
}

TEST(Gdx, RemovingAGroupKeepsTheOrderOfOthers) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 1, 0));
    addLine(gdx, {2}, 0, segment(0, 0, 2, 0));
    addLine(gdx, {3}, 0, segment(0, 0, 3, 0));
    addLine(gdx, {2, 4}, 0, segment(0, 0, 4, 0));
    addLine(gdx, {5}, 0, segment(0, 0, 5, 0));
    EXPECT_TRUE(gdx.clear(path({2})));
    ASSERT_EQ(gdx.lenGet(), 3);
    CQorArrayTempl<int> s;
    const int expected[] = {1, 3, 5};
    for (int i = 0; i < 3; ++i) {
        gdx.itemStackGet(s, i);
        EXPECT_EQ(s[0], expected[i]);
    }
    EXPECT_TRUE(gdx.removeItemStack(path({3})));
    EXPECT_FALSE(gdx.removeItemStack(path({3})));
    EXPECT_EQ(gdx.lenGet(), 2);
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    expectPoint(hi, 5, 0, 0);
}

TEST(Gdx, ClearEmptiesListAndExtentsButKeepsColours) {
    CQorGDX gdx = plainDoc();
    gdx.ColorTabSet(2, indexed(4));
    addLine(gdx, {1}, 0, segment(0, 0, 1, 1));
    gdx.extMaxViewSet(CQorPoint3d(1, 1, 1), CQorPoint3d(2, 2, 2));
    gdx.clear();
    EXPECT_EQ(gdx.lenGet(), 0);
    CQorPoint3d lo(9, 9, 9), hi(9, 9, 9);
    EXPECT_FALSE(gdx.extMaxViewGet(lo, hi));
    expectPoint(lo, 9, 9, 9);
    EXPECT_EQ(gdx.colorTabGet(2).colorIndex(), 4);
}

TEST(Gdx, CopiesAreIndependent) {
    CQorGDX gdx = plainDoc();
    addRegion(gdx, {1}, 0, region(rect(0, 0, 1, 1)));
    CQorGDX copy(gdx);
    copy.propSet(path({1}), GDX_PROP_HIDE);
    copy.ColorTabSet(1, indexed(9));
    EXPECT_EQ(gdx.flagGet(0), 0ul);
    EXPECT_EQ(gdx.ColorTabLenGet(), 0);
    EXPECT_NE(&copy.getDisplayList()[0], &gdx.getDisplayList()[0]);
}

TEST(Gdx, ReadPastTheEndGivesAnEmptyItem) {
    const CQorGDX gdx = plainDoc();
    EXPECT_EQ(gdx.typeGet(0), static_cast<QorDisplayObj>(0));
    EXPECT_EQ(gdx.flagGet(5), 0ul);
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(Gdx, RebuildGivesARegionWithoutContoursOneEmptyContour) {
    CQorGDX gdx = plainDoc();
    addRegion(gdx, {1}, 0, CQorArrayTempl<CQorVertexArray>());
    CQorArrayTempl<CQorVertexArray> regions;
    gdx.geomGet(regions, 0);
    EXPECT_EQ(regions.len(), 0);
    gdx.propSet(path({1}), GDX_PROP_SHOW);
    gdx.geomGet(regions, 0);
    ASSERT_EQ(regions.len(), 1);
    EXPECT_EQ(regions[0].len(), 0);
}

TEST(Gdx, ItemsMoveWithoutThrowingSoGrowthDoesNotCopyThem) {
    static_assert(std::is_nothrow_move_constructible<CQorDisplayItem>::value,
                  "display items move without copying their contours");
    static_assert(std::is_nothrow_move_constructible<CQorString>::value, "strings move");
    CQorGDX gdx = plainDoc();
    addRegion(gdx, {1}, 0, region(rect(0, 0, 1, 1)));
    const CQorVertex* contour = gdx.getDisplayList()[0].regions[0].data();
    for (int i = 0; i < 100; ++i)
        addLine(gdx, {2}, 0, segment(0, 0, 1, 1));
    EXPECT_EQ(gdx.getDisplayList()[0].regions[0].data(), contour);
}
