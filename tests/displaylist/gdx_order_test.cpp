#include "displaylist/gdx.h"
#include "displaylist/view_setup.h"

#include "gdx_test_util.h"

#include <gtest/gtest.h>

namespace {

int topGroup(const CQorGDX& gdx, int i) {
    CQorArrayTempl<int> s;
    gdx.itemStackGet(s, i);
    return s[0];
}

} // namespace

TEST(Order, SingleItemIsLeftAloneAndCanStillBePicked) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {4}, 0, segment(0, 0, 100, 0));
    const CQorDisplayItem* before = gdx.getDisplayList().data();
    gdx.displListSort();
    EXPECT_EQ(gdx.getDisplayList().data(), before);
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(50, 3, 0)), 4);
}

TEST(Order, PlainRegionsGoUnderLinesAndKeepTheirOrder) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 1, 1));
    addRegion(gdx, {2}, 0, region(rect(0, 0, 1, 1)));
    addRegion(gdx, {3}, 0, region(rect(0, 0, 1, 1)));
    gdx.displListSort();
    EXPECT_EQ(topGroup(gdx, 0), 2);
    EXPECT_EQ(topGroup(gdx, 1), 3);
    EXPECT_EQ(topGroup(gdx, 2), 1);
}

TEST(Order, ListInLayerOrderIsNotCopied) {
    CQorGDX gdx = plainDoc();
    addRegion(gdx, {1}, 0, region(rect(0, 0, 1, 1)));
    addLine(gdx, {2}, 0, segment(0, 0, 1, 1));
    addLine(gdx, {3}, 0x200, segment(0, 0, 1, 1));
    gdx.imagePicture(path({4}), 0x100, L"p.bmp", 1, CQorPoint3d(), CQorPoint3d());
    const CQorDisplayItem* before = gdx.getDisplayList().data();
    gdx.displListSort();
    EXPECT_EQ(gdx.getDisplayList().data(), before);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(topGroup(gdx, i), i + 1);
}

TEST(Order, HighlightedRegionLiesBetweenReferLineAndHighlightedLine) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0x100, segment(0, 0, 1, 1));        // highlighted line: 5
    addRegion(gdx, {2}, 0x100, region(rect(0, 0, 1, 1))); // highlighted region: 4
    addLine(gdx, {3}, 0x200, segment(0, 0, 1, 1));        // refer line: 3
    gdx.displListSort();
    EXPECT_EQ(topGroup(gdx, 0), 3);
    EXPECT_EQ(topGroup(gdx, 1), 2);
    EXPECT_EQ(topGroup(gdx, 2), 1);
}

TEST(Order, ModeSixSortsWithPlainItemsAndPicturesGoLast) {
    CQorGDX gdx = plainDoc();
    gdx.imagePicture(path({1}), 0, L"p.bmp", 1, CQorPoint3d(), CQorPoint3d());
    addLine(gdx, {2}, 0x600, segment(0, 0, 1, 1));
    addRegion(gdx, {3}, 0x600, region(rect(0, 0, 1, 1)));
    addLine(gdx, {4}, 0x100, segment(0, 0, 1, 1));
    gdx.displListSort();
    EXPECT_EQ(topGroup(gdx, 0), 3); // region, mode 6: bottom layer
    EXPECT_EQ(topGroup(gdx, 1), 2); // line, mode 6: with plain lines
    EXPECT_EQ(topGroup(gdx, 2), 4); // highlighted line
    EXPECT_EQ(topGroup(gdx, 3), 1); // picture over all
}

TEST(Pick, OverlappingLinesAnswerWithTheOneDrawnLast) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 100, 0));
    addLine(gdx, {2}, 0, segment(0, 0, 100, 0));
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(50, 1, 0)), 2);
}

TEST(Pick, ReversalStaysSoTheNextPickGivesTheOtherGroup) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 100, 0));
    addLine(gdx, {2}, 0, segment(0, 0, 100, 0));
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(50, 0, 0)), 2);
    EXPECT_EQ(topGroup(gdx, 0), 2);
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(50, 0, 0)), 1);
}

TEST(Pick, ToleranceOfFiveIsInclusive) {
    CQorGDX gdx = plainDoc();
    addPoint(gdx, {7}, 0, CQorPoint3d(10, 10, 0));
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(13, 14, 0)), 7); // exactly 5 away
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(13, 14.01, 0)), -1);
}

TEST(Pick, OnlyTheOuterEdgeOfARegionIsHit) {
    CQorGDX gdx = plainDoc();
    CQorArrayTempl<CQorVertexArray> withHole = region(rect(0, 0, 100, 100));
    withHole.append(rect(40, 40, 60, 60));
    addRegion(gdx, {3}, 0, withHole);
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(40, 50, 0)), -1); // on the hole
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(20, 20, 0)), -1); // inside
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(0, 50, 0)), 3);   // on the outer edge
}

TEST(Pick, TextAndPicturesAreNeverReturned) {
    CQorGDX gdx = plainDoc();
    gdx.imagePicture(path({1}), 0, L"p.bmp", 1, CQorPoint3d(0, 0, 0), CQorPoint3d(10, 10, 0));
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(0, 0, 0)), -1);
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(5, 5, 0)), -1);
}

TEST(Pick, HiddenItemsAreFoundAndTheItemMatrixCounts) {
    CQorGDX gdx = plainDoc();
    CQorMatrix3d shift;
    shift.setToTranslation(CQorVector3d(0, 100, 0));
    gdx.imageVl(path({9}), GDX_FLAG_HIDDEN, segment(0, 0, 10, 0), indexed(1), shift,
                CQorArrayTempl<double>(), 1.0, 1, CQorPoint3d());
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(5, 0, 0)), -1);
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(5, 100, 0)), 9);
}

TEST(Pick, DevicePointGoesThroughTheViewFirst) {
    CQorGDX gdx = plainDoc();
    addPoint(gdx, {5}, 0, CQorPoint3d(10, 10, 0));
    CQorMatrix3d view;
    view.setToScaling(10.0, CQorPoint3d::kOrigin);
    gdx.viewMtxSet(view);
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(100, 130, 0)), 5); // world (10, 13)
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(10, 13, 0)), -1);
}

TEST(Pick, ItemWithoutStackAnswersZero) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {}, 0, segment(0, 0, 10, 0));
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(5, 0, 0)), 0);
}

TEST(Pick, ThroughAFittedViewAndAZoom) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 100, 0));
    addLine(gdx, {2}, 0, segment(0, 100, 100, 100));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    gdx.viewMtxSet(getViewMtx(lo, hi, 200, 200, 0.05));
    CQorMatrix3d zoom;
    zoom.setToScaling(2.0, CQorPoint3d(100, 100, 0));
    gdx.zoomMtxSet(zoom);
    // World (50, 100) lies on line 2; find its device point through the chain.
    CQorPoint3d onTwo(50, 100, 0);
    onTwo *= gdx.zoomMtxGet() * gdx.viewMtxGet();
    EXPECT_EQ(gdx.imageItemGet(onTwo), 2);
    CQorPoint3d between(50, 50, 0);
    between *= gdx.zoomMtxGet() * gdx.viewMtxGet();
    EXPECT_EQ(gdx.imageItemGet(between), -1);
}

TEST(Order, MixedListComesOutInTheSixLayers) {
    CQorGDX gdx = plainDoc();
    gdx.imagePicture(path({1}), 0, L"p.bmp", 1, CQorPoint3d(), CQorPoint3d()); // 6
    addLine(gdx, {2}, 0x100, segment(0, 0, 1, 1));                             // 5
    addRegion(gdx, {3}, 0x100, region(rect(0, 0, 1, 1)));                      // 4
    addPoint(gdx, {4}, 0x200, CQorPoint3d());                                  // 3
    addLine(gdx, {5}, 0x400, segment(0, 0, 1, 1));                             // 2
    addRegion(gdx, {6}, 0x200, region(rect(0, 0, 1, 1)));                      // 3
    addRegion(gdx, {7}, 0xF00, region(rect(0, 0, 1, 1)));                      // 1
    addPoint(gdx, {8}, 0, CQorPoint3d());                                      // 2
    gdx.displListSort();
    const int expected[] = {7, 5, 8, 4, 6, 3, 2, 1};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(topGroup(gdx, i), expected[i]) << "position " << i;
}

TEST(Pick, ArcOfAMirroredContourIsHitOnItsOwnSide) {
    // A half circle from (0, 0) to (100, 0) in a contour whose normal is -Z: seen from
    // +Z it bulges to +Y, the mirror image of the same vertex under +Z.
    CQorVertexArray mirrored;
    mirrored.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 0, 0), 1.0));
    mirrored.normalSet(CQorVector3d(0, 0, -1));
    CQorGDX gdx = plainDoc();
    gdx.imageVl(path({6}), 0, mirrored, indexed(1), CQorMatrix3d(), CQorArrayTempl<double>(), 1.0,
                1, CQorPoint3d());
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(50, 52, 0)), 6);   // 2 off the bulge
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(50, -52, 0)), -1); // same distance, other side

    // The same vertex under +Z bulges the other way.
    CQorVertexArray plain;
    plain.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 0, 0), 1.0));
    CQorGDX other = plainDoc();
    other.imageVl(path({7}), 0, plain, indexed(1), CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1,
                  CQorPoint3d());
    EXPECT_EQ(other.imageItemGet(CQorPoint3d(50, -52, 0)), 7);
    EXPECT_EQ(other.imageItemGet(CQorPoint3d(50, 52, 0)), -1);
}

TEST(Pick, TextItemsAreNeverPicked) {
    // "H" ten units high: its left stem is the band x 1.55932 to 1.78305.
    CQorMatrix3d tenfold;
    tenfold.setToScaling(10.0, CQorPoint3d());
    CQorGDX gdx = plainDoc();
    gdx.imageTxt(path({8}), 0, L"H", indexed(1), tenfold, L"BL", CQorPoint3d(), CQorPoint3d());
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(1.6, 5, 0)), -1);     // on the stem's outline
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(1.55932, 0, 0)), -1); // on a corner
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(0, 0, 0)), -1);       // on the insertion point

    // A line along the same stem is found at the same place.
    addLine(gdx, {9}, 0, segment(1.55932, 0, 1.55932, 10));
    EXPECT_EQ(gdx.imageItemGet(CQorPoint3d(1.6, 5, 0)), 9);
}
