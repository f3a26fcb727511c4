#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_vertex.h"
#include "tests/foundation/geom_test_util.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const double kTanPi8 = std::tan(kPi / 8.0);

void expectPointNear(const CQorPoint3d& a, const CQorPoint3d& b, double tol = 1e-12) {
    EXPECT_NEAR(a.x, b.x, tol) << "x";
    EXPECT_NEAR(a.y, b.y, tol) << "y";
    EXPECT_NEAR(a.z, b.z, tol) << "z";
}

} // namespace

TEST(Vertex, DefaultIsAllZero) {
    CQorVertex v;
    EXPECT_TRUE(v.m_start == CQorPoint3d::kOrigin);
    EXPECT_TRUE(v.m_end == CQorPoint3d::kOrigin);
    EXPECT_EQ(v.m_bulge, 0.0);
    EXPECT_EQ(v.m_attr, 0u);
    EXPECT_FALSE(v.isArc());
}

TEST(Vertex, PositiveBulgeOneIsCounterClockwiseHalfCircle) {
    const CQorVertex v(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0);
    expectPointNear(v.mid(), CQorPoint3d(0, 1, 0));
    CQorPoint3d c;
    double r = 0.0;
    ASSERT_TRUE(v.arcCentre(c, r));
    expectPointNear(c, CQorPoint3d(0, 0, 0));
    EXPECT_NEAR(r, 1.0, 1e-15);
    EXPECT_NEAR(v.bulgLen(), kPi, 1e-14);
    EXPECT_NEAR(v.sweep(), kPi, 1e-15);
    const CQorVertex cw(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), -1.0);
    expectPointNear(cw.mid(), CQorPoint3d(0, -1, 0));
}

TEST(Vertex, QuarterArcMidAndLength) {
    const CQorVertex v(CQorPoint3d(1, 0, 0), CQorPoint3d(0, 1, 0), kTanPi8);
    expectPointNear(v.mid(), CQorPoint3d(std::sqrt(0.5), std::sqrt(0.5), 0));
    EXPECT_NEAR(v.bulgLen(), kPi / 2.0, 1e-14);
    expectPointNear(v.pointAt(1.0 / 3.0), CQorPoint3d(std::cos(kPi / 6), std::sin(kPi / 6), 0));
}

TEST(Vertex, ArcAboutNegativeNormalTurnsTheOtherWay) {
    const CQorVertex v(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0);
    expectPointNear(v.mid(CQorVector3d(0, 0, -1)), CQorPoint3d(0, -1, 0));
}

TEST(Vertex, StraightPieceLengthAndMid) {
    const CQorVertex v(CQorPoint3d(0, 0, 0), CQorPoint3d(3, 4, 0));
    EXPECT_EQ(v.bulgLen(), 5.0);
    expectPointNear(v.mid(), CQorPoint3d(1.5, 2, 0));
}

TEST(Vertex, IsPointIncludesEndsAndRejectsOtherSide) {
    const CQorVertex v(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0);
    EXPECT_TRUE(v.isPoint(CQorPoint3d(0, 1, 0)));
    EXPECT_TRUE(v.isPoint(CQorPoint3d(1, 0, 0)));
    EXPECT_TRUE(v.isPoint(CQorPoint3d(-1, 0, 0)));
    EXPECT_FALSE(v.isPoint(CQorPoint3d(0, -1, 0)));
    EXPECT_FALSE(v.isPoint(CQorPoint3d(0, 1.001, 0)));
    EXPECT_FALSE(v.isPoint(CQorPoint3d(0, 1, 0.5)));
    const CQorVertex s(CQorPoint3d(0, 0, 0), CQorPoint3d(2, 0, 0));
    EXPECT_TRUE(s.isPoint(CQorPoint3d(1, 0.5 * QOR::kPointTol, 0)));
    EXPECT_FALSE(s.isPoint(CQorPoint3d(1, 2 * QOR::kPointTol, 0)));
    EXPECT_FALSE(s.isPoint(CQorPoint3d(2.1, 0, 0)));
}

TEST(Vertex, LotpIsFootOrNearerEnd) {
    const CQorVertex s(CQorPoint3d(0, 0, 0), CQorPoint3d(2, 0, 0));
    expectPointNear(s.lotp(CQorPoint3d(1.5, 3, 0)), CQorPoint3d(1.5, 0, 0));
    expectPointNear(s.lotp(CQorPoint3d(-4, 3, 0)), CQorPoint3d(0, 0, 0));
    const CQorVertex a(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0);
    expectPointNear(a.lotp(CQorPoint3d(0, 5, 0)), CQorPoint3d(0, 1, 0));
    expectPointNear(a.lotp(CQorPoint3d(3, 3, 0)), CQorPoint3d(std::sqrt(0.5), std::sqrt(0.5), 0));
    expectPointNear(a.lotp(CQorPoint3d(0.5, -5, 0)), CQorPoint3d(1, 0, 0));
}

TEST(Vertex, TransformByMirrorKeepsTheSameCurve) {
    CQorVertex v(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0);
    CQorMatrix3d mirror;
    mirror.setCoordSystem(CQorPoint3d(0, 0, 0), CQorVector3d(1, 0, 0), CQorVector3d(0, -1, 0),
                          CQorVector3d(0, 0, 1));
    v.transformBy(mirror.m);
    EXPECT_EQ(v.m_bulge, -1.0);
    expectPointNear(v.mid(), CQorPoint3d(0, -1, 0));
}

TEST(Vertex, TransformByRotationKeepsBulgeExactly) {
    CQorVertex v(CQorPoint3d(1, 0, 0), CQorPoint3d(0, 1, 0), kTanPi8);
    v.m_attr = 77;
    CQorMatrix3d r;
    r.setToRotation(0.3, CQorVector3d::kZAxis, CQorPoint3d(2, 2, 0));
    const CQorPoint3d expectedMid = v.mid() * r.m;
    v.transformBy(r.m);
    EXPECT_EQ(v.m_bulge, kTanPi8);
    EXPECT_EQ(v.m_attr, 77u);
    expectPointNear(v.mid(), expectedMid);
}

TEST(Vertex, TransformByUnevenScaleKeepsIncludedAngle) {
    CQorVertex v(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0);
    CQorMatrix3d m;
    m.setCoordSystem(CQorPoint3d(0, 0, 0), CQorVector3d(2, 0, 0), CQorVector3d(0, 0.5, 0),
                     CQorVector3d(0, 0, 1));
    v.transformBy(m.m);
    EXPECT_EQ(v.m_bulge, 1.0);
    expectPointNear(v.m_start, CQorPoint3d(2, 0, 0));
    expectPointNear(v.mid(), CQorPoint3d(0, 2, 0));
}

TEST(Vertex, RotationIntoOwnPlaneKeepsBulgeAndLength) {
    // An arc in a tilted plane, measured after bringing it into the xy plane.
    CQorMatrix3d planeToWorld;
    planeToWorld.setToPlaneToWorld(CQorVector3d(1, 1, 1));
    const CQorMatrix3d worldToPlane = planeToWorld.inverse();
    CQorVertex flat(CQorPoint3d(1, 0, 0), CQorPoint3d(0, 1, 0), kTanPi8);
    CQorVertex tilted = flat;
    tilted.transformBy(planeToWorld.m);
    EXPECT_EQ(tilted.m_bulge, kTanPi8);
    CQorVertex back = tilted;
    back.transformBy(worldToPlane.m);
    EXPECT_EQ(back.m_bulge, kTanPi8);
    EXPECT_NEAR(back.bulgLen(), kPi / 2, 1e-14);
    expectPointNear(back.m_start, flat.m_start, 1e-15);
    expectPointNear(back.mid(), flat.mid(), 1e-15);
    // The tilted arc's middle, taken about the plane's normal, is the image of
    // the flat arc's middle.
    expectPointNear(tilted.mid(planeToWorld.axis(2)), flat.mid() * planeToWorld.m, 1e-15);
}

TEST(Vertex, SubPieceOfArcIsArcOfSameCircle) {
    const CQorVertex v(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0);
    const CQorVertex q = v.subPiece(0.0, 0.5);
    expectPointNear(q.m_end, CQorPoint3d(0, 1, 0));
    EXPECT_NEAR(q.m_bulge, kTanPi8, 1e-15);
    const CQorVertex back = v.subPiece(0.5, 0.0);
    EXPECT_NEAR(back.m_bulge, -kTanPi8, 1e-15);
    EXPECT_NEAR(v.paramOf(CQorPoint3d(0, 1, 0)), 0.5, 1e-15);
    EXPECT_NEAR(v.paramOf(CQorPoint3d(1, 0, 0)), 0.0, 0.0);
}

TEST(Vertex, ZeroLengthArcIsAPoint) {
    const CQorVertex v(CQorPoint3d(1, 1, 0), CQorPoint3d(1, 1, 0), 0.5);
    EXPECT_EQ(v.bulgLen(), 0.0);
    expectPointNear(v.mid(), CQorPoint3d(1, 1, 0));
    EXPECT_TRUE(v.isPoint(CQorPoint3d(1, 1, 0)));
    CQorPoint3d c;
    double r;
    EXPECT_FALSE(v.arcCentre(c, r));
}
