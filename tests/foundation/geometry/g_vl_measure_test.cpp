#include "tests/foundation/geom_test_util.h"

#include <cmath>

using geomtest::expectPointNear;
using geomtest::line;

TEST(Measure, DashGapOnStraightLine) {
    const auto runs = QOR::g_vl_measure(line(0, 0, 10, 0), 1.0, CQorLineParm(2.0, -1.0));
    ASSERT_EQ(runs.len(), 4);
    const double from[] = {0, 3, 6, 9}, to[] = {2, 5, 8, 10};
    for (int i = 0; i < 4; ++i) {
        ASSERT_EQ(runs[i].len(), 1);
        EXPECT_NEAR(runs[i][0].m_start.x, from[i], 1e-12);
        EXPECT_NEAR(runs[i][0].m_end.x, to[i], 1e-12);
    }
}

TEST(Measure, FactorScalesThePattern) {
    const auto runs = QOR::g_vl_measure(line(0, 0, 10, 0), 2.0, CQorLineParm(2.0, -1.0));
    ASSERT_EQ(runs.len(), 2);
    EXPECT_NEAR(runs[1][0].m_start.x, 6.0, 1e-12);
    EXPECT_NEAR(runs[1][0].m_end.x, 10.0, 1e-12);
}

TEST(Measure, ZeroDashGivesPointSizedVerticesIncludingTheEnd) {
    const auto runs = QOR::g_vl_measure(line(0, 0, 3, 0), 1.0, CQorLineParm(0.0, -1.0));
    ASSERT_EQ(runs.len(), 4);
    for (int i = 0; i < 4; ++i) {
        ASSERT_EQ(runs[i].len(), 1);
        EXPECT_TRUE(runs[i][0].m_start == runs[i][0].m_end);
        EXPECT_NEAR(runs[i][0].m_start.x, double(i), 1e-12);
    }
}

TEST(Measure, DashRunsAcrossACornerAsOneArray) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(2, 0, 0)));
    vl.append(CQorVertex(CQorPoint3d(2, 0, 0), CQorPoint3d(2, 2, 0)));
    const auto runs = QOR::g_vl_measure(vl, 1.0, CQorLineParm(3.0, -1.0));
    ASSERT_EQ(runs.len(), 1);
    ASSERT_EQ(runs[0].len(), 2);
    expectPointNear(runs[0][1].m_start, CQorPoint3d(2, 0, 0));
    expectPointNear(runs[0][1].m_end, CQorPoint3d(2, 1, 0));
}

TEST(Measure, ArcDashesStayArcsWithExactLength) {
    const CQorVertexArray half(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    const auto runs = QOR::g_vl_measure(half, 1.0, CQorLineParm(kPi / 2, -kPi / 4));
    // Dashes over [0, pi/2] and [3 pi/4, pi].
    ASSERT_EQ(runs.len(), 2);
    EXPECT_NEAR(runs[0][0].m_bulge, std::tan(kPi / 8), 1e-15);
    expectPointNear(runs[0][0].m_end, CQorPoint3d(0, 1, 0));
    EXPECT_NEAR(runs[1][0].bulgLen(), kPi / 4, 1e-14);
    expectPointNear(runs[1][0].m_start, CQorPoint3d(std::cos(0.75 * kPi), std::sin(0.75 * kPi), 0));
    expectPointNear(runs[1][0].m_end, CQorPoint3d(-1, 0, 0));
}

TEST(Measure, DashedArraysAreNotContinuous) {
    const auto runs = QOR::g_vl_measure(line(0, 0, 10, 0), 1.0, CQorLineParm(2.0, -1.0));
    CQorVertexArray all;
    for (const CQorVertexArray& r : runs)
        all += r;
    EXPECT_EQ(all.len(), 4);
    EXPECT_FALSE(all.isContinuous());
}

TEST(Measure, EmptyOrZeroPatternGivesTheInput) {
    const CQorVertexArray vl = geomtest::rect(0, 0, 2, 1);
    auto runs = QOR::g_vl_measure(vl, 1.0, CQorLineParm());
    ASSERT_EQ(runs.len(), 1);
    EXPECT_EQ(runs[0].len(), 4);
    runs = QOR::g_vl_measure(vl, 1.0, CQorLineParm(0.0, 0.0));
    ASSERT_EQ(runs.len(), 1);
    EXPECT_EQ(QOR::g_vl_measure(CQorVertexArray(), 1.0, CQorLineParm(1.0, -1.0)).len(), 0);
}

TEST(Measure, GapInInputEndsTheDash) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(1, 0, 0)));
    vl.append(CQorVertex(CQorPoint3d(5, 0, 0), CQorPoint3d(6, 0, 0)));
    const auto runs = QOR::g_vl_measure(vl, 1.0, CQorLineParm(1.5, -0.25));
    // The first dash covers [0, 1] of the first vertex and goes on for 0.5 on the
    // second, as an array of its own.
    ASSERT_EQ(runs.len(), 3);
    EXPECT_NEAR(runs[1][0].m_start.x, 5.0, 1e-12);
    EXPECT_NEAR(runs[1][0].m_end.x, 5.5, 1e-12);
    EXPECT_NEAR(runs[2][0].m_start.x, 5.75, 1e-12);
    EXPECT_NEAR(runs[2][0].m_end.x, 6.0, 1e-12);
}

TEST(Measure, GuardStopsTheWalkAfterFourMillionEntries) {
    // 10^12 entries would fit; the walk stops after 4,000,000: 2,000,000 dashes.
    const auto runs = QOR::g_vl_measure(line(0, 0, 1e9, 0), 1.0, CQorLineParm(1e-3, -1e-3));
    ASSERT_EQ(runs.len(), 2000000);
    EXPECT_EQ(runs[0][0].m_start.x, 0.0);
    EXPECT_NEAR(runs[1999999][0].m_end.x, 3999.999, 1e-6);
}

TEST(Measure, PatternThatFitsTheLengthEndsOnItsLastDash) {
    CQorArrayTempl<double> p;
    p.append(0.5).append(-0.6).append(0.5);
    const auto runs = QOR::g_vl_measure(line(0, 0, 1.6, 0), 1.0, CQorLineParm(p));
    ASSERT_EQ(runs.len(), 2);
    EXPECT_NEAR(runs[1][0].m_start.x, 1.1, 1e-12);
    EXPECT_EQ(runs[1][0].m_end.x, 1.6);
    // The wrapped-around first dash would start at the very end: nothing drawn.
    CQorArrayTempl<double> q;
    q.append(1.0).append(-1.0);
    const auto four = QOR::g_vl_measure(line(0, 0, 4, 0), 1.0, CQorLineParm(q));
    ASSERT_EQ(four.len(), 2);
    EXPECT_NEAR(four[1][0].m_end.x, 3.0, 1e-12);
}
