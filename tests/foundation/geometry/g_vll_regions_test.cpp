#include "tests/foundation/geom_test_util.h"

using geomtest::rect;

TEST(RegionsPrepare, ClosesOpenDropsEmptyAndZeroPieces) {
    CQorArrayTempl<CQorVertexArray> list;
    CQorVertexArray open;
    open.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(1, 0, 0)));
    open.append(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(1, 0, 0)));
    open.append(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(1, 1, 0)));
    list.append(open);
    list.append(CQorVertexArray());
    list.append(rect(5, 5, 6, 6));
    const auto prepared = QOR::g_vll_regions_prepare(list);
    ASSERT_EQ(prepared.len(), 2);
    EXPECT_EQ(prepared[0].len(), 3);
    EXPECT_TRUE(prepared[0].isClosed());
    EXPECT_EQ(prepared[1].len(), 4);
}

TEST(Regions, NestingMakesOuterContoursAndHoles) {
    CQorArrayTempl<CQorVertexArray> list;
    list.append(rect(0, 0, 10, 10));  // A
    list.append(rect(2, 2, 8, 8));    // B, hole of A
    list.append(rect(4, 4, 6, 6));    // C, island inside B
    list.append(rect(20, 0, 30, 10)); // D
    const auto regions = QOR::g_vll_regions(QOR::g_vll_regions_prepare(list), 4);
    ASSERT_EQ(regions.len(), 3);
    ASSERT_EQ(regions[0].len(), 2);
    EXPECT_EQ(regions[0][1][0].m_start.x, 2.0);
    ASSERT_EQ(regions[1].len(), 1);
    EXPECT_EQ(regions[1][0][0].m_start.x, 4.0);
    ASSERT_EQ(regions[2].len(), 1);
    EXPECT_EQ(regions[2][0][0].m_start.x, 20.0);
    // Mode 4: outer contours positive, holes negative about the normal.
    EXPECT_TRUE(QOR::g_vl_orient(regions[0][0], CQorVector3d::kZAxis));
    EXPECT_FALSE(QOR::g_vl_orient(regions[0][1], CQorVector3d::kZAxis));
    EXPECT_GT(QOR::g_vll_pt_inside(regions[0], CQorPoint3d(1, 1, 0)), 0);
    EXPECT_LT(QOR::g_vll_pt_inside(regions[0], CQorPoint3d(3, 3, 0)), 0);
}

TEST(Regions, HoleOrderDoesNotMatterAndEmptyGivesNone) {
    CQorArrayTempl<CQorVertexArray> list;
    list.append(rect(2, 2, 3, 3));
    list.append(rect(0, 0, 10, 10));
    list.append(geomtest::circle(7, 7, 1));
    const auto regions = QOR::g_vll_regions(list, 4);
    ASSERT_EQ(regions.len(), 1);
    ASSERT_EQ(regions[0].len(), 3);
    EXPECT_EQ(regions[0][0][0].m_start.x, 0.0);
    EXPECT_EQ(QOR::g_vll_regions(CQorArrayTempl<CQorVertexArray>(), 4).len(), 0);
}
