// The picture window's geometry: fit, pixel size, wheel zoom, with hand-computed values.
#include "slides/picture_geometry_p.h"

#include <gtest/gtest.h>

#include <cmath>

using QOR::PicturePoint;
using QOR::PictureSize;

TEST(PictureGeometry, SmallerPictureIsCentredAtItsNaturalSize) {
    EXPECT_DOUBLE_EQ(QOR::pictureFitScale(PictureSize{40, 20}, PictureSize{200, 100}), 1.0);
    const PicturePoint o = QOR::pictureFitOffset(PictureSize{40, 20}, PictureSize{200, 100});
    EXPECT_EQ(o.x, 80);
    EXPECT_EQ(o.y, 40);
}

TEST(PictureGeometry, PictureTwiceAsWideFitsWithOffsetXZero) {
    EXPECT_DOUBLE_EQ(QOR::pictureFitScale(PictureSize{400, 100}, PictureSize{200, 100}), 2.0);
    const PicturePoint o = QOR::pictureFitOffset(PictureSize{400, 100}, PictureSize{200, 100});
    EXPECT_EQ(o.x, 0);
    EXPECT_EQ(o.y, 25);
}

TEST(PictureGeometry, TallerSideDecidesTheScale) {
    // 90 / 30 = 3 beats 100 / 200.
    EXPECT_DOUBLE_EQ(QOR::pictureFitScale(PictureSize{100, 90}, PictureSize{200, 30}), 3.0);
    const PicturePoint o = QOR::pictureFitOffset(PictureSize{100, 90}, PictureSize{200, 30});
    // (200 - 33.33) * 0.5 = 83.3 and (30 - 30) * 0.5 = 0.
    EXPECT_EQ(o.x, 83);
    EXPECT_EQ(o.y, 0);
}

TEST(PictureGeometry, EmptyClientAreaGivesAnInfiniteScaleNotNaN) {
    const double s = QOR::pictureFitScale(PictureSize{40, 20}, PictureSize{0, 0});
    EXPECT_TRUE(std::isinf(s));
    EXPECT_DOUBLE_EQ(QOR::pictureFitScale(PictureSize{0, 0}, PictureSize{0, 0}), 1.0);
    const PicturePoint o = QOR::pictureFitOffset(PictureSize{40, 20}, PictureSize{0, 0});
    EXPECT_EQ(o.x, 0);
    EXPECT_EQ(o.y, 0);
}

TEST(PictureGeometry, HimetricSizeBecomesRoundedPixels) {
    // 1058 * 96 = 101568, + 1270 = 102838, / 2540 = 40.49: 40.
    const PictureSize p = QOR::picturePixelSize(PictureSize{1058, 529}, 96, 96);
    EXPECT_EQ(p.cx, 40);
    EXPECT_EQ(p.cy, 20);
    // 2540 at 120 dpi is exactly 120.
    EXPECT_EQ(QOR::picturePixelSize(PictureSize{2540, 2540}, 120, 72).cy, 72);
}

TEST(PictureGeometry, WheelZoomAtTheCentreKeepsTheCentre) {
    double zoom = 1.0;
    PicturePoint o{80, 40};
    ASSERT_TRUE(QOR::pictureWheelZoom(zoom, o, PicturePoint{100, 50}, 120));
    EXPECT_DOUBLE_EQ(zoom, 1.5);
    EXPECT_EQ(o.x, 70); // the 60 wide picture from 70 has its centre at 100
    EXPECT_EQ(o.y, 35);
}

TEST(PictureGeometry, DeltaOfZeroZoomsOut) {
    double zoom = 1.0;
    PicturePoint o{80, 40};
    ASSERT_TRUE(QOR::pictureWheelZoom(zoom, o, PicturePoint{100, 50}, 0));
    EXPECT_DOUBLE_EQ(zoom, 1.0 / 1.5);
    EXPECT_EQ(o.x, 86);
    EXPECT_EQ(o.y, 43);
}

TEST(PictureGeometry, AtZoom20Point5NoFurtherGrowthButShrinking) {
    double zoom = 20.5;
    PicturePoint o{10, 10};
    EXPECT_FALSE(QOR::pictureWheelZoom(zoom, o, PicturePoint{0, 0}, 120));
    EXPECT_DOUBLE_EQ(zoom, 20.5);
    EXPECT_EQ(o.x, 10);
    EXPECT_TRUE(QOR::pictureWheelZoom(zoom, o, PicturePoint{0, 0}, -120));
    EXPECT_DOUBLE_EQ(zoom, 20.5 / 1.5);
    // At exactly 20 one step still goes in, past the limit.
    zoom = 20.0;
    EXPECT_TRUE(QOR::pictureWheelZoom(zoom, o, PicturePoint{0, 0}, 1));
    EXPECT_DOUBLE_EQ(zoom, 30.0);
}

TEST(PictureGeometry, BelowOneHalfNoFurtherShrinking) {
    double zoom = 0.49;
    PicturePoint o{10, 10};
    EXPECT_FALSE(QOR::pictureWheelZoom(zoom, o, PicturePoint{0, 0}, -1));
    EXPECT_DOUBLE_EQ(zoom, 0.49);
    zoom = 0.5;
    EXPECT_TRUE(QOR::pictureWheelZoom(zoom, o, PicturePoint{0, 0}, -1));
    EXPECT_DOUBLE_EQ(zoom, 0.5 / 1.5);
}
