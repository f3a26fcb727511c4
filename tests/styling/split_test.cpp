#include "styling/split.h"

#include "styling_test_util.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using QOR::kPi;

// A half circle of the given arc length from the origin along +x, in the xy plane.
CQorVertex halfCircle(double length) {
    const double diameter = 2.0 * length / kPi;
    return CQorVertex(CQorPoint3d(0.0, 0.0, 0.0), CQorPoint3d(diameter, 0.0, 0.0), 1.0);
}

void expectSameVertex(const CQorVertex& a, const CQorVertex& b) {
    EXPECT_EQ(a.m_start.x, b.m_start.x);
    EXPECT_EQ(a.m_start.y, b.m_start.y);
    EXPECT_EQ(a.m_start.z, b.m_start.z);
    EXPECT_EQ(a.m_end.x, b.m_end.x);
    EXPECT_EQ(a.m_end.y, b.m_end.y);
    EXPECT_EQ(a.m_end.z, b.m_end.z);
    EXPECT_EQ(a.m_bulge, b.m_bulge);
    EXPECT_EQ(a.m_attr, b.m_attr);
}

} // namespace

TEST(Split, EmptyArrayGivesEmptyArray) {
    EXPECT_EQ(qor_gdx_image_vl_split(CQorVertexArray()).len(), 0);
}

TEST(Split, EmptyListGivesEmptyList) {
    EXPECT_EQ(qor_gdx_image_reg_split(CQorArrayTempl<CQorVertexArray>()).len(), 0);
}

TEST(Split, EmptyContourInTheMiddleStaysAtItsIndex) {
    CQorVertexArray arc(halfCircle(10.0));
    const auto in = styling_test::region({styling_test::rect(0, 0, 1, 1), CQorVertexArray(), arc});
    const auto out = qor_gdx_image_reg_split(in);
    ASSERT_EQ(out.len(), 3);
    EXPECT_EQ(out[0].len(), 4);
    EXPECT_EQ(out[1].len(), 0);
    EXPECT_GT(out[2].len(), 1);
}

TEST(Split, StraightVerticesComeBackBitIdenticalWithAttributes) {
    CQorVertexArray vl;
    CQorVertex a(CQorPoint3d(0.1, 0.2, 0.3), CQorPoint3d(1.7, -2.9, 4.1));
    a.m_attr = 0xDEADBEEF;
    CQorVertex b(CQorPoint3d(1.7, -2.9, 4.1), CQorPoint3d(1.0 / 3.0, 2.0 / 7.0, 5.5));
    b.m_attr = 7;
    vl.append(a).append(b);
    vl.normalSet(CQorVector3d(1.0, 1.0, 1.0).normalize());
    const CQorVertexArray out = qor_gdx_image_vl_split(vl);
    ASSERT_EQ(out.len(), 2);
    expectSameVertex(out[0], a);
    expectSameVertex(out[1], b);
}

TEST(Split, ToleranceTableSwitchesAtLengthFour) {
    EXPECT_EQ(QOR::splitTolerance(3.999), 0.01);
    EXPECT_EQ(QOR::splitTolerance(4.0), 0.05);
    EXPECT_EQ(QOR::splitTolerance(0.0), 0.01);
    EXPECT_EQ(QOR::splitTolerance(1000.0), 0.05);
}

TEST(Split, ArcOfLength3999UsesTolerance001) {
    const CQorVertex arc = halfCircle(3.999);
    ASSERT_NEAR(arc.bulgLen(), 3.999, 1e-12);
    const int fine = QOR::g_vx_split_dif(arc, 0.01);
    const int coarse = QOR::g_vx_split_dif(arc, 0.05);
    ASSERT_NE(fine, coarse) << "the two tolerances must be told apart by the count";
    const CQorVertexArray out = qor_gdx_image_vl_split(CQorVertexArray(arc));
    EXPECT_EQ(out.len(), fine);
}

TEST(Split, ArcOfLength4UsesTolerance005) {
    const CQorVertex arc = halfCircle(4.0);
    ASSERT_NEAR(arc.bulgLen(), 4.0, 1e-12);
    // The exact length may come out a hair below 4.0; the table decides on it.
    const int expected = QOR::g_vx_split_dif(arc, QOR::splitTolerance(arc.bulgLen()));
    EXPECT_EQ(expected, QOR::g_vx_split_dif(arc, arc.bulgLen() < 4.0 ? 0.01 : 0.05));
    const int fine = QOR::g_vx_split_dif(arc, 0.01);
    const int coarse = QOR::g_vx_split_dif(arc, 0.05);
    ASSERT_NE(fine, coarse);
    const CQorVertexArray out = qor_gdx_image_vl_split(CQorVertexArray(arc));
    EXPECT_EQ(out.len(), expected);
    if (arc.bulgLen() >= 4.0) {
        EXPECT_EQ(out.len(), coarse);
    }
}

TEST(Split, ChordsRunFromArcStartToArcEndInOrder) {
    const CQorVertex arc(CQorPoint3d(2.0, 0.0, 0.0), CQorPoint3d(-2.0, 0.0, 0.0), 1.0);
    const CQorVertexArray out = qor_gdx_image_vl_split(CQorVertexArray(arc));
    ASSERT_GT(out.len(), 2);
    EXPECT_TRUE(out.isContinuous());
    EXPECT_NEAR(out[0].m_start.distanceTo(arc.m_start), 0.0, 1e-12);
    EXPECT_NEAR(out[-1].m_end.distanceTo(arc.m_end), 0.0, 1e-12);
    for (int i = 0; i < out.len(); ++i) {
        EXPECT_EQ(out[i].m_bulge, 0.0);
        // Counter-clockwise half circle about the origin: chords above the x axis.
        EXPECT_GE(out[i].m_end.y, -1e-12);
        EXPECT_NEAR(out[i].m_end.distanceTo(CQorPoint3d()), 2.0, 1e-9);
    }
}

TEST(Split, TiltedArcGivesChordsInTheSamePlane) {
    // A quarter arc of radius 5 in the plane x + y + z = 0 direction normal (1,1,1).
    CQorVector3d n(1.0, 1.0, 1.0);
    n.normalize();
    CQorMatrix3d toWorld;
    toWorld.setToPlaneToWorld(n);
    CQorVertex planar(CQorPoint3d(5.0, 0.0, 2.0), CQorPoint3d(0.0, 5.0, 2.0), std::tan(kPi / 8.0));
    planar.m_attr = 3;
    CQorVertexArray vl(planar);
    vl.transformBy(toWorld);
    ASSERT_NEAR(vl.normal().x, n.x, 1e-12);
    const CQorVertex arc = vl[0];

    const CQorVertexArray out = qor_gdx_image_vl_split(vl);
    ASSERT_GT(out.len(), 1);
    EXPECT_NEAR(out[0].m_start.distanceTo(arc.m_start), 0.0, 1e-9);
    EXPECT_NEAR(out[-1].m_end.distanceTo(arc.m_end), 0.0, 1e-9);
    const double planeOffset = (arc.m_start - CQorPoint3d()).dot(n);
    for (int i = 0; i < out.len(); ++i) {
        EXPECT_EQ(out[i].m_bulge, 0.0);
        EXPECT_NEAR((out[i].m_start - CQorPoint3d()).dot(n), planeOffset, 1e-9);
        EXPECT_NEAR((out[i].m_end - CQorPoint3d()).dot(n), planeOffset, 1e-9);
        if (i > 0) {
            EXPECT_NEAR(out[i].m_start.distanceTo(out[i - 1].m_end), 0.0, 1e-9);
        }
    }
    // Length 5 * pi / 2 > 4: the coarse tolerance, counted in the arc's own plane.
    EXPECT_EQ(out.len(), QOR::g_vx_split_dif(planar, 0.05));
}

TEST(Split, RegionContoursEachUseTheirOwnNormal) {
    CQorVertexArray flat(halfCircle(10.0));
    CQorVertexArray tilted(halfCircle(10.0));
    CQorMatrix3d toWorld;
    toWorld.setToPlaneToWorld(CQorVector3d(0.0, 1.0, 0.0));
    tilted.transformBy(toWorld);
    const auto out = qor_gdx_image_reg_split(styling_test::region({flat, tilted}));
    ASSERT_EQ(out.len(), 2);
    EXPECT_EQ(out[0].len(), out[1].len());
    for (int i = 0; i < out[1].len(); ++i) {
        EXPECT_NEAR(out[1][i].m_start.y, tilted[0].m_start.y, 1e-9);
        EXPECT_NEAR(out[0][i].m_start.z, 0.0, 1e-12);
    }
}
