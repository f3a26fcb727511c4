#include "displaylist/gdx.h"
#include "displaylist/view_setup.h"

#include "gdx_test_util.h"

#include <gtest/gtest.h>

namespace {

CQorPoint3d apply(const CQorMatrix3d& m, const CQorPoint3d& p) {
    CQorPoint3d out(p);
    out *= m;
    return out;
}

void expectNear(const CQorPoint3d& p, double x, double y, double z) {
    EXPECT_NEAR(p.x, x, 1e-9);
    EXPECT_NEAR(p.y, y, 1e-9);
    EXPECT_NEAR(p.z, z, 1e-9);
}

} // namespace

TEST(View, ZeroSizeFitsInto320By240) {
    const CQorMatrix3d m = getViewMtx(CQorPoint3d(0, 0, 0), CQorPoint3d(320, 240, 0), 0, 0, 0.0);
    expectNear(apply(m, CQorPoint3d(0, 0, 0)), 0, 240, 0);
    expectNear(apply(m, CQorPoint3d(320, 240, 0)), 320, 0, 0);
}

TEST(View, MarginIsMeasuredOnTheLongerSideAndTheBoxIsCentred) {
    // Box (0,0)-(100,50) in 100 by 100: m = 5, box (-5,-5)-(105,55), s = 100 / 110,
    // and the box moves down by (110 - 60) / 2 = 25 units to sit in the middle.
    const double s = 100.0 / 110.0;
    const CQorMatrix3d m =
        getViewMtx(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 50, 0), 100, 100, 0.05);
    expectNear(apply(m, CQorPoint3d(0, 0, 0)), s * 5, 100 - s * 30, 0);
    expectNear(apply(m, CQorPoint3d(100, 50, 0)), s * 105, 100 - s * 80, 0);
    expectNear(apply(m, CQorPoint3d(-5, -30, 2)), 0, 100, 2 * s);
}

TEST(View, EqualCornersGiveTheIdentity) {
    const CQorPoint3d p(3, 4, 5);
    const CQorMatrix3d m = getViewMtx(p, p, 100, 100, 0.05);
    expectNear(apply(m, CQorPoint3d(7, 8, 9)), 7, 8, 9);
    const CQorMatrix3d flat =
        getViewMtx(CQorPoint3d(0, 0, 0), CQorPoint3d(0, 10, 0), 100, 100, 0.0);
    expectNear(apply(flat, CQorPoint3d(7, 8, 9)), 7, 8, 9);
}

TEST(View, FlatBoxInOneDirectionStillFitsThroughItsMargin) {
    const CQorMatrix3d m = getViewMtx(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 0, 0), 100, 100, 0.05);
    const CQorPoint3d left = apply(m, CQorPoint3d(0, 0, 0));
    const CQorPoint3d right = apply(m, CQorPoint3d(100, 0, 0));
    EXPECT_NEAR(right.x - left.x, 100 * 100.0 / 110.0, 1e-9);
    EXPECT_NEAR(left.y, 50.0, 1e-9);
}

TEST(View, ExtMaxViewGetFallsBackOnTheCachedExtents) {
    CQorGDX gdx = plainDoc();
    CQorPoint3d lo(9, 9, 9), hi(9, 9, 9);
    EXPECT_FALSE(gdx.extMaxViewGet(lo, hi));
    expectNear(lo, 9, 9, 9);
    addLine(gdx, {1}, 0, segment(1, 2, 3, 4));
    EXPECT_TRUE(gdx.extMaxViewGet(lo, hi));
    expectNear(lo, 1, 2, 0);
    expectNear(hi, 3, 4, 0);
    gdx.extMaxViewSet(CQorPoint3d(-1, -1, 0), CQorPoint3d(10, 10, 0));
    EXPECT_TRUE(gdx.extMaxViewGet(lo, hi));
    expectNear(lo, -1, -1, 0);
    expectNear(hi, 10, 10, 0);
}

TEST(View, FreezingAnEmptyDocumentPutsTheBoxOutOfForce) {
    CQorGDX gdx = plainDoc();
    gdx.extMaxViewSet(CQorPoint3d(1, 1, 1), CQorPoint3d(2, 2, 2));
    gdx.extMaxViewSet();
    CQorPoint3d lo(9, 9, 9), hi(9, 9, 9);
    EXPECT_FALSE(gdx.extMaxViewGet(lo, hi));
    expectNear(hi, 9, 9, 9);
    addLine(gdx, {1}, 0, segment(0, 0, 5, 5));
    gdx.extMaxViewSet();
    gdx.clear(path({1}));
    EXPECT_TRUE(gdx.extMaxViewGet(lo, hi));
    expectNear(hi, 5, 5, 0);
}

TEST(View, ExtentsAreKeptInViewedSpace) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 10, 0));
    addLine(gdx, {2}, 0, segment(0, 0, 0, 10));
    CQorPoint3d lo, hi, lo2, hi2;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    EXPECT_TRUE(gdx.viewDirectionSet(L"SW"));
    ASSERT_TRUE(gdx.extmaxGet(lo2, hi2));
    EXPECT_FALSE(lo == lo2 && hi == hi2);
}

TEST(View, UnknownDirectionNameKeepsTheView) {
    CQorGDX gdx = plainDoc();
    ASSERT_TRUE(gdx.viewDirectionSet(L"N"));
    const CQorMatrix3d before = gdx.viewDirectionMtxGet();
    EXPECT_FALSE(gdx.viewDirectionSet(L"XY"));
    const CQorPoint3d probe(1, 2, 3);
    EXPECT_EQ(apply(gdx.viewDirectionMtxGet(), probe), apply(before, probe));
    const CQorVector3d v = qor_gdx_view_vdir_get(L"XY");
    EXPECT_EQ(v.x, 0.0);
    EXPECT_EQ(v.y, 0.0);
    EXPECT_EQ(v.z, 0.0);
}

TEST(View, CompassTableHasEastAndWestOppositeToTheDiagonals) {
    EXPECT_EQ(qor_gdx_view_vdir_get(L"O").x, -1.0);
    EXPECT_EQ(qor_gdx_view_vdir_get(L"W").x, 1.0);
    EXPECT_EQ(qor_gdx_view_vdir_get(L"NO").x, 1.0);
    EXPECT_EQ(qor_gdx_view_vdir_get(L"SW").x, -1.0);
    EXPECT_EQ(qor_gdx_view_vdir_get(L"S").y, -1.0);
    EXPECT_EQ(qor_gdx_view_vdir_get(L"P").z, 1.0);
}

TEST(View, PlanViewIsTheIdentity) {
    CQorGDX gdx = plainDoc();
    ASSERT_TRUE(gdx.viewDirectionSet(L"P"));
    expectNear(apply(gdx.viewDirectionMtxGet(), CQorPoint3d(1, 2, 3)), 1, 2, 3);
}

TEST(View, ExcludedRegionDoesNotWidenWhileHiddenDoes) {
    CQorGDX gdx = plainDoc();
    addRegion(gdx, {1}, 0, region(rect(0, 0, 1, 1)));
    addRegion(gdx, {2}, GDX_FLAG_NO_EXT, region(rect(0, 0, 50, 50)));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    expectNear(hi, 1, 1, 0);
    addRegion(gdx, {3}, GDX_FLAG_HIDDEN, region(rect(0, 0, 20, 20)));
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    expectNear(hi, 20, 20, 0);
}

TEST(View, DevicePointGoesBackToTheWorld) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 100, 50));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    gdx.viewMtxSet(getViewMtx(lo, hi, 200, 300, 0.05));
    const CQorPoint3d world(30, 20, 0);
    const CQorPoint3d device = apply(gdx.viewMtxGet(), world);
    expectNear(gdx.imagePtWc(device), 30, 20, 0);
}

TEST(View, DevicePointGoesBackToTheWorldUnderAViewDirection) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(0, 0, 100, 50));
    ASSERT_TRUE(gdx.viewDirectionSet(L"NO"));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    gdx.viewMtxSet(getViewMtx(lo, hi, 200, 300, 0.05));
    const CQorPoint3d world(30, 20, 7);
    const CQorPoint3d device =
        apply(gdx.viewMtxGet() * gdx.projMtxGet() * gdx.viewDirectionMtxGet(), world);
    expectNear(gdx.imagePtWc(device), 30, 20, 7);
}

TEST(View, ProjectionIsUndoneBeforeTheViewOnTheWayBack) {
    CQorGDX gdx = plainDoc();
    CQorMatrix3d proj, view;
    proj.setToTranslation(CQorVector3d(10, 0, 0));
    view.setToScaling(2.0, CQorPoint3d::kOrigin);
    gdx.projMtxSet(proj);
    gdx.viewMtxSet(view);
    // Forward, world 0 lands on 2 * (0 + 10) = 20. The way back takes 10 off first and
    // then halves: 5, not the exact inverse 0.
    const CQorPoint3d back = gdx.imagePtWc(CQorPoint3d(20, 0, 0));
    EXPECT_NEAR(back.x, 5.0, 1e-12);
}

TEST(View, GroupExtentsFoldIntoThePresetBox) {
    CQorGDX gdx = plainDoc();
    addLine(gdx, {1}, 0, segment(5, 5, 6, 7));
    addLine(gdx, {2}, 0, segment(50, 50, 60, 60));
    CQorPoint3d lo, hi;
    EXPECT_TRUE(gdx.extmaxGet(path({1}), lo, hi));
    expectNear(lo, 0, 0, 0); // the preset origin stays inside
    expectNear(hi, 6, 7, 0);
    EXPECT_FALSE(gdx.extmaxGet(path({3}), lo, hi));
    EXPECT_FALSE(gdx.extmaxGet(CQorArrayTempl<int>(), lo, hi));
}

TEST(View, PictureInAGroupCountsWithoutABox) {
    CQorGDX gdx = plainDoc();
    gdx.imagePicture(path({1}), 0, L"a.bmp", 1, CQorPoint3d(), CQorPoint3d(5, 5, 0));
    CQorPoint3d lo, hi;
    EXPECT_TRUE(gdx.extmaxGet(path({1}), lo, hi));
    // Nothing was measured: the untouched start box folds away against the preset.
    expectNear(lo, 0, 0, 0);
    expectNear(hi, 0, 0, 0);
}

TEST(View, DevicePointGoesBackUnderEveryCompassDirection) {
    const wchar_t* const names[] = {L"P", L"N", L"S", L"O", L"W", L"NO", L"NW", L"SO", L"SW"};
    for (const wchar_t* name : names) {
        CQorGDX gdx = plainDoc();
        addLine(gdx, {1}, 0, segment(-20, 5, 100, 50));
        addPoint(gdx, {2}, 0, CQorPoint3d(10, 10, 30));
        ASSERT_TRUE(gdx.viewDirectionSet(name));
        CQorPoint3d lo, hi;
        ASSERT_TRUE(gdx.extmaxGet(lo, hi));
        gdx.viewMtxSet(getViewMtx(lo, hi, 480, 640, 0.05));
        CQorMatrix3d zoom;
        zoom.setToScaling(1.5, CQorPoint3d(320, 240, 0));
        gdx.zoomMtxSet(zoom);
        const CQorPoint3d world(12, -7, 4);
        const CQorPoint3d device = apply(gdx.zoomMtxGet() * gdx.viewMtxGet() * gdx.projMtxGet() *
                                             gdx.viewDirectionMtxGet(),
                                         world);
        const CQorPoint3d back = gdx.imagePtWc(device);
        EXPECT_NEAR(back.x, 12, 1e-9) << "direction " << CQorString(name).len();
        EXPECT_NEAR(back.y, -7, 1e-9);
        EXPECT_NEAR(back.z, 4, 1e-9);
    }
}
