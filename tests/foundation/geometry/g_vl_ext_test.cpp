#include "tests/foundation/geom_test_util.h"

#include <cmath>

using geomtest::expectPointNear;

TEST(ExtMax, AngleZeroIsTheExtents) {
    const CQorPoint3dArray e = QOR::g_vl_extmax(geomtest::rect(0, 0, 2, 1), 0.0);
    ASSERT_EQ(e.len(), 2);
    expectPointNear(e[0], CQorPoint3d(0, 0, 0));
    expectPointNear(e[1], CQorPoint3d(2, 1, 0));
}

TEST(ExtMax, TurnedFrameCornersAreWorldPoints) {
    // In the frame turned by 90 degrees the rectangle spans x' in [0, 1] and
    // y' in [-2, 0]; its low corner (0, -2) is the world point (2, 0).
    const CQorPoint3dArray e = QOR::g_vl_extmax(geomtest::rect(0, 0, 2, 1), kPi / 2);
    expectPointNear(e[0], CQorPoint3d(2, 0, 0));
    expectPointNear(e[1], CQorPoint3d(0, 1, 0));
    const CQorPoint3dArray c = QOR::g_vl_extmax(geomtest::circle(0, 0, 1), kPi / 4);
    EXPECT_NEAR(c[0].distanceTo(c[1]), 2.0 * std::sqrt(2.0), 1e-12);
}

TEST(ExtMax, EmptyArrayGivesOrigins) {
    const CQorPoint3dArray e = QOR::g_vl_extmax(CQorVertexArray(), 0.3);
    ASSERT_EQ(e.len(), 2);
    EXPECT_TRUE(e[0] == CQorPoint3d::kOrigin);
    EXPECT_TRUE(e[1] == CQorPoint3d::kOrigin);
}

TEST(ExtRect, BoxGrownByOffsetAsClosedCounterClockwiseArray) {
    const CQorVertexArray r = QOR::g_vl_extrect(geomtest::circle(1, 1, 1), 0.5);
    ASSERT_EQ(r.len(), 4);
    EXPECT_TRUE(r.isClosed());
    expectPointNear(r[0].m_start, CQorPoint3d(-0.5, -0.5, 0));
    expectPointNear(r[2].m_start, CQorPoint3d(2.5, 2.5, 0));
    EXPECT_TRUE(QOR::g_vl_orient(r, CQorVector3d::kZAxis));
    EXPECT_EQ(QOR::g_vl_extrect(CQorVertexArray(), 1.0).len(), 0);
}

TEST(Orient, CounterClockwiseSquareTurnsPositivelyAboutZ) {
    CQorVertexArray sq = geomtest::rect(0, 0, 1, 1);
    EXPECT_TRUE(QOR::g_vl_orient(sq, CQorVector3d::kZAxis));
    EXPECT_FALSE(QOR::g_vl_orient(sq, CQorVector3d(0, 0, -1)));
    sq.revert();
    EXPECT_FALSE(QOR::g_vl_orient(sq, CQorVector3d::kZAxis));
}

TEST(Orient, ArcsCountWhereChordsGiveNoArea) {
    // Half disc above the x axis: the chords enclose nothing, the arc does.
    CQorVertexArray d;
    d.append(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    d.append(CQorVertex(CQorPoint3d(-1, 0, 0), CQorPoint3d(1, 0, 0)));
    EXPECT_TRUE(QOR::g_vl_orient(d, CQorVector3d::kZAxis));
    d.revert();
    EXPECT_FALSE(QOR::g_vl_orient(d, CQorVector3d::kZAxis));
    CQorVertexArray cw = geomtest::circle(0, 0, 1);
    cw.revert();
    EXPECT_FALSE(QOR::g_vl_orient(cw, CQorVector3d::kZAxis));
}

TEST(Orient, DegenerateArraysAreNotPositive) {
    EXPECT_FALSE(QOR::g_vl_orient(CQorVertexArray(), CQorVector3d::kZAxis));
    EXPECT_FALSE(QOR::g_vl_orient(geomtest::line(0, 0, 1, 0), CQorVector3d::kZAxis));
}
