#include "host/wall_image.h"

#include "displaylist/display_item.h"
#include "images/image_registry.h"
#include "images/image_wall.h"
#include "tests/images/image_test_data.h"

#include <gtest/gtest.h>

using namespace imagetest;

namespace {

using Rows = std::vector<std::vector<double>>;

const std::string kLine = "\"VL\" = ([0.0 0.0 1.0] ([0.0 0.0 0.0] [1000.0 0.0 0.0] 0.0 0))\n";

// The y range of a region item's first contour.
void yRange(const CQorGDX& gdx, int i, double& lo, double& hi) {
    CQorPoint3d a, b;
    ASSERT_TRUE(regionOf(gdx, i)[0].extents(a, b));
    lo = a.y;
    hi = b.y;
}

} // namespace

TEST(HostWallImage, NullGdxOrNoLineIsFalse) {
    FilePtr wall = open("\"SN\" {\n1 {\n\"S\" = 10.0\n}\n}\n");
    FilePtr params = open("\"COORD\" = 1\n");
    CQorGDX gdx = emptyDoc();
    EXPECT_FALSE(qorHostWallImage(nullptr, wall.get(), params.get()));
    EXPECT_FALSE(qorHostWallImage(&gdx, wall.get(), params.get()));
    EXPECT_FALSE(qorHostWallImage(&gdx, nullptr, nullptr));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(HostWallImage, ShellsAreBandsOneBesideTheOtherWithTheActiveOneHighlighted) {
    FilePtr wall = open("\"SN\" {\n1 {\n\"S\" = 10.0\n}\n2 {\n\"S\" = 50.0\n}\n"
                        "3 {\n\"S\" = 0.0\n}\n4 {\n\"S\" = 5.0\n}\n}\n");
    FilePtr params = open(kLine + "\"ACT\" = 2\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qorHostWallImage(&gdx, wall.get(), params.get()));
    // Shell 3 has no thickness and no band.
    ASSERT_EQ(gdx.lenGet(), 3);
    const int numbers[] = {1, 2, 4};
    const unsigned long flags[] = {16, 272, 16};
    const double bounds[][2] = {{0.0, 10.0}, {10.0, 60.0}, {60.0, 65.0}};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(gdx.typeGet(i), GDX_REG) << i;
        EXPECT_EQ(stackOf(gdx, i), std::vector<int>{numbers[i]}) << i;
        EXPECT_EQ(gdx.flagGet(i), flags[i]) << i;
        double lo = 0.0, hi = 0.0;
        yRange(gdx, i, lo, hi);
        EXPECT_DOUBLE_EQ(lo, bounds[i][0]) << i;
        EXPECT_DOUBLE_EQ(hi, bounds[i][1]) << i;
    }
}

TEST(HostWallImage, WallWithoutShellsIsItsOwnLineWithTheBasePoint) {
    FilePtr wall = open(kLine);
    FilePtr params = open("\"COORD\" = 1\n");
    CQorGDX gdx = emptyDoc();
    ASSERT_TRUE(qorHostWallImage(&gdx, wall.get(), params.get()));
    ASSERT_EQ(gdx.lenGet(), 2);
    EXPECT_EQ(gdx.typeGet(0), GDX_VL);
    EXPECT_EQ(pieces(lineOf(gdx, 0)), (Rows{{0.0, 0.0, 1000.0, 0.0, 0.0}}));
    EXPECT_EQ(gdx.typeGet(1), GDX_PT);
    EXPECT_EQ(gdx.flagGet(1), 1024ul);
}

TEST(HostWallImage, SampleWallThroughTheWallEditImage) {
    FilePtr sample = openSample(L"wall.qdt");
    ASSERT_NE(sample, nullptr);
    const CQorDataKey stateKey(L"CONFIG\\*WALL_EDIT*");
    const CQorDataItem* state = QOR::dtaGet(sample.get(), &stateKey);
    ASSERT_NE(state, nullptr);
    *QOR::cfg_dir_make(L"*WALL_EDIT*") = *state;
    setGdxImageFcn(L"WALL", qorHostWallImage);
    FilePtr object = part(sample, L"OBJECT");
    CQorGDX gdx = emptyDoc();
    const bool drawn = qor_wall_edit_image(&gdx, object.get());
    setGdxImageFcn(L"WALL", nullptr);
    *QOR::cfg_dir_make(L"*WALL_EDIT*") = CQorDataItem(1);
    ASSERT_TRUE(drawn);
    // Plasterboard, insulation (the active shell), plasterboard, base point.
    ASSERT_EQ(gdx.lenGet(), 4);
    const unsigned long flags[] = {16, 272, 16, 1024};
    const double bounds[][2] = {{0.0, 12.5}, {12.5, 87.5}, {87.5, 100.0}};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(gdx.flagGet(i), flags[i]) << i;
        EXPECT_EQ(stackOf(gdx, i), std::vector<int>{i + 1}) << i;
        double lo = 0.0, hi = 0.0;
        yRange(gdx, i, lo, hi);
        EXPECT_DOUBLE_EQ(lo, bounds[i][0]) << i;
        EXPECT_DOUBLE_EQ(hi, bounds[i][1]) << i;
        CQorPoint3d a, b;
        ASSERT_TRUE(regionOf(gdx, i)[0].extents(a, b));
        EXPECT_DOUBLE_EQ(b.x, 5000.0) << i;
    }
    EXPECT_EQ(gdx.flagGet(3), flags[3]);
}
