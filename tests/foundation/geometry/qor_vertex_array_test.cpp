#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_vertex_array.h"
#include "foundation/geometry/qor_vertex_array_ex.h"
#include "tests/foundation/geom_test_util.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kTanPi8 = std::tan(kPi / 8.0);

void expectPointNear(const CQorPoint3d& a, const CQorPoint3d& b, double tol = 1e-12) {
    EXPECT_NEAR(a.x, b.x, tol) << "x";
    EXPECT_NEAR(a.y, b.y, tol) << "y";
    EXPECT_NEAR(a.z, b.z, tol) << "z";
}

CQorVertexArray unitCircle() {
    CQorVertexArray c;
    c.append(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    c.append(CQorVertex(CQorPoint3d(-1, 0, 0), CQorPoint3d(1, 0, 0), 1.0));
    return c;
}

CQorVertexArray square(double x0, double y0, double x1, double y1) {
    CQorPoint3dArray p;
    p.append(CQorPoint3d(x0, y0, 0))
        .append(CQorPoint3d(x1, y0, 0))
        .append(CQorPoint3d(x1, y1, 0))
        .append(CQorPoint3d(x0, y1, 0));
    CQorVertexArray vl;
    vl.fromPoints(p, true);
    return vl;
}

CQorVertexArray row(double x0, double x1, double y) {
    return CQorVertexArray(CQorVertex(CQorPoint3d(x0, y, 0), CQorPoint3d(x1, y, 0)));
}

} // namespace

TEST(VertexArray, ConstMinusOneIsLastVertex) {
    CQorVertexArray vl = square(0, 0, 1, 1);
    const CQorVertexArray& c = vl;
    expectPointNear(c[-1].m_start, CQorPoint3d(0, 1, 0));
    expectPointNear(c[-1].m_end, CQorPoint3d(0, 0, 0));
    EXPECT_EQ(c[7].m_bulge, 0.0);
    EXPECT_EQ(c.len(), 4);
}

TEST(VertexArray, DefaultNormalIsZAndValidWhenEmpty) {
    CQorVertexArray vl;
    EXPECT_EQ(vl.normal().z, 1.0);
    EXPECT_EQ(vl.len(), 0);
}

TEST(VertexArray, FromPointsClosedAddsClosingPiece) {
    const CQorVertexArray vl = square(0, 0, 2, 1);
    EXPECT_EQ(vl.len(), 4);
    EXPECT_TRUE(vl.isClosed());
    EXPECT_TRUE(vl.isContinuous());
    CQorPoint3dArray p;
    p.append(CQorPoint3d(0, 0, 0)).append(CQorPoint3d(1, 0, 0)).append(CQorPoint3d(0, 0, 0));
    CQorVertexArray twice;
    twice.fromPoints(p, true);
    EXPECT_EQ(twice.len(), 2);
    CQorPoint3dArray one;
    one.append(CQorPoint3d(1, 1, 1));
    EXPECT_EQ(twice.fromPoints(one, true).len(), 0);
}

TEST(VertexArray, IsContinuousFalseWithGap) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(1, 0, 0)));
    vl.append(CQorVertex(CQorPoint3d(2, 0, 0), CQorPoint3d(3, 0, 0)));
    EXPECT_FALSE(vl.isContinuous());
    EXPECT_FALSE(vl.isClosed());
    EXPECT_TRUE(CQorVertexArray().isContinuous());
    EXPECT_FALSE(CQorVertexArray().isClosed());
}

TEST(VertexArray, ClosedAndContinuousUseTheOneTolerance) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(1, 0, 0)));
    vl.append(CQorVertex(CQorPoint3d(1 + 0.5 * QOR::kPointTol, 0, 0), CQorPoint3d(0, 1, 0)));
    vl.append(CQorVertex(CQorPoint3d(0, 1, 0), CQorPoint3d(0, 0.5 * QOR::kPointTol, 0)));
    EXPECT_TRUE(vl.isContinuous());
    EXPECT_TRUE(vl.isClosed());
    vl[2].m_end.y = 3.0 * QOR::kPointTol;
    EXPECT_FALSE(vl.isClosed());
}

TEST(VertexArray, ExtentsIncludeArcExtremes) {
    CQorVertexArray vl(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    CQorPoint3d lo(9, 9, 9), hi(9, 9, 9);
    EXPECT_TRUE(vl.extents(lo, hi));
    expectPointNear(lo, CQorPoint3d(-1, 0, 0));
    expectPointNear(hi, CQorPoint3d(1, 1, 0));
    const CQorVertexArray circle = unitCircle();
    circle.extents(lo, hi);
    expectPointNear(lo, CQorPoint3d(-1, -1, 0));
    expectPointNear(hi, CQorPoint3d(1, 1, 0));
}

TEST(VertexArray, ExtentsOfEmptyArrayAreOriginAndFalse) {
    CQorPoint3d lo(5, 5, 5), hi(6, 6, 6);
    EXPECT_FALSE(CQorVertexArray().extents(lo, hi));
    EXPECT_TRUE(lo == CQorPoint3d::kOrigin);
    EXPECT_TRUE(hi == CQorPoint3d::kOrigin);
}

TEST(VertexArray, MoveTranslatesEveryVertex) {
    CQorVertexArray vl = square(0, 0, 1, 1);
    vl.move(CQorVector3d(2, 3, 4));
    expectPointNear(vl[0].m_start, CQorPoint3d(2, 3, 4));
    expectPointNear(vl[2].m_end, CQorPoint3d(2, 4, 4));
}

TEST(VertexArray, RevertReversesArcsAsSameCurve) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(1, 0, 0)));
    vl.append(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(2, 1, 0), kTanPi8));
    const CQorPoint3d mid = vl[1].mid();
    vl.revert();
    expectPointNear(vl[0].m_start, CQorPoint3d(2, 1, 0));
    expectPointNear(vl[0].m_end, CQorPoint3d(1, 0, 0));
    EXPECT_EQ(vl[0].m_bulge, -kTanPi8);
    expectPointNear(vl[0].mid(), mid);
    expectPointNear(vl[1].m_end, CQorPoint3d(0, 0, 0));
}

TEST(VertexArray, RevertTwiceIsIdentityProperty) {
    std::mt19937 rng(31415u);
    std::uniform_real_distribution<double> u(-100.0, 100.0);
    std::uniform_real_distribution<double> b(-3.0, 3.0);
    for (int n = 0; n < 100; ++n) {
        CQorVertexArray vl;
        CQorPoint3d at(u(rng), u(rng), 0);
        const int count = 1 + n % 9;
        for (int i = 0; i < count; ++i) {
            const CQorPoint3d next(u(rng), u(rng), 0);
            vl.append(CQorVertex(at, next, i % 2 ? b(rng) : 0.0));
            vl[-1].m_attr = std::uint32_t(i);
            at = next;
        }
        CQorVertexArray twice(vl);
        twice.revert().revert();
        ASSERT_EQ(twice.len(), vl.len());
        for (int i = 0; i < vl.len(); ++i) {
            EXPECT_EQ(twice[i].m_start.x, vl[i].m_start.x);
            EXPECT_EQ(twice[i].m_end.y, vl[i].m_end.y);
            EXPECT_EQ(twice[i].m_bulge, vl[i].m_bulge);
            EXPECT_EQ(twice[i].m_attr, vl[i].m_attr);
        }
    }
}

TEST(VertexArray, BreakVertexSplitsArcIntoTwoArcs) {
    CQorVertexArray vl(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    EXPECT_TRUE(vl.breakVertex(0, CQorPoint3d(0, 1, 0)));
    ASSERT_EQ(vl.len(), 2);
    EXPECT_NEAR(vl[0].m_bulge, kTanPi8, 1e-15);
    EXPECT_NEAR(vl[1].m_bulge, kTanPi8, 1e-15);
    EXPECT_TRUE(vl[0].m_end == CQorPoint3d(0, 1, 0));
    EXPECT_TRUE(vl[1].m_start == CQorPoint3d(0, 1, 0));
    EXPECT_TRUE(vl.isContinuous());
}

TEST(VertexArray, BreakVertexAtEndOrOffPieceChangesNothing) {
    CQorVertexArray vl = square(0, 0, 1, 1);
    EXPECT_FALSE(vl.breakVertex(0, CQorPoint3d(1, 0, 0)));
    EXPECT_FALSE(vl.breakVertex(0, CQorPoint3d(0.5, 0.1, 0)));
    EXPECT_FALSE(vl.breakVertex(7, CQorPoint3d(0.5, 0, 0)));
    EXPECT_FALSE(vl.breakVertex(-1, CQorPoint3d(0.5, 0, 0)));
    EXPECT_EQ(vl.len(), 4);
    EXPECT_TRUE(vl.breakVertex(0, CQorPoint3d(0.25, 0, 0)));
    EXPECT_EQ(vl.len(), 5);
    expectPointNear(vl[1].m_start, CQorPoint3d(0.25, 0, 0));
    expectPointNear(vl[1].m_end, CQorPoint3d(1, 0, 0));
}

TEST(VertexArray, PtsOfStraightContinuousArrayGivesSharedPointsOnce) {
    const CQorVertexArray sq = square(0, 0, 1, 1);
    const CQorPoint3dArray p = sq.pts(true, 0.1);
    ASSERT_EQ(p.len(), 5);
    expectPointNear(p[0], CQorPoint3d(0, 0, 0));
    expectPointNear(p[4], CQorPoint3d(0, 0, 0));
    EXPECT_EQ(sq.pts(false, 0.1).len(), 4);
    EXPECT_EQ(CQorVertexArray().pts(true, 0.1).len(), 0);
}

TEST(VertexArray, PtsOfQuarterArcUsesChordTolerance) {
    // Radius 1, tolerance 0.01: a chord may span 2 acos(0.99) = 0.28308 rad, so
    // a quarter circle needs ceil(1.5708 / 0.28308) = 6 chords, 7 points.
    const CQorVertexArray q(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(0, 1, 0), kTanPi8));
    const CQorPoint3dArray p = q.pts(true, 0.01);
    ASSERT_EQ(p.len(), 7);
    for (int i = 0; i < p.len(); ++i) {
        EXPECT_NEAR(p[i].distanceTo(CQorPoint3d::kOrigin), 1.0, 1e-14);
        expectPointNear(p[i], CQorPoint3d(std::cos(i * kPi / 12), std::sin(i * kPi / 12), 0));
    }
}

TEST(VertexArray, PtsWithSmallerToleranceNeverGivesFewerPointsProperty) {
    std::mt19937 rng(271828u);
    std::uniform_real_distribution<double> u(-50.0, 50.0);
    std::uniform_real_distribution<double> b(-4.0, 4.0);
    std::uniform_real_distribution<double> t(1e-4, 5.0);
    for (int n = 0; n < 300; ++n) {
        const CQorVertexArray vl(
            CQorVertex(CQorPoint3d(u(rng), u(rng), 0), CQorPoint3d(u(rng), u(rng), 0), b(rng)));
        double t1 = t(rng), t2 = t(rng);
        if (t2 > t1)
            std::swap(t1, t2);
        EXPECT_GE(vl.pts(true, t2).len(), vl.pts(true, t1).len())
            << "bulge " << vl[0].m_bulge << " tolerances " << t1 << " " << t2;
    }
}

TEST(VertexArray, TransformByMirrorKeepsArcsAndNormal) {
    CQorVertexArray vl(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    CQorMatrix3d device;
    device.setCoordSystem(CQorPoint3d(100, 100, 0), CQorVector3d(10, 0, 0), CQorVector3d(0, -10, 0),
                          CQorVector3d(0, 0, 10));
    const CQorVertexArray copy = vl.getTransformedCopy(device.m);
    EXPECT_EQ(vl[0].m_start.x, 1.0);
    EXPECT_EQ(copy.normal().z, 1.0);
    EXPECT_EQ(copy[0].m_bulge, -1.0);
    CQorPoint3d lo, hi;
    copy.extents(lo, hi);
    // The arc over y = 0 goes to y = 100 - 10 * 1 = 90 at its top.
    expectPointNear(lo, CQorPoint3d(90, 90, 0));
    expectPointNear(hi, CQorPoint3d(110, 100, 0));
    const CQorPoint3dArray p = copy.pts(true, 0.5);
    for (int i = 0; i < p.len(); ++i)
        EXPECT_LE(p[i].y, 100.0 + 1e-12);
}

TEST(VertexArray, TransformByRotationTurnsNormal) {
    CQorVertexArray vl = unitCircle();
    CQorMatrix3d r;
    r.setToRotation(kPi / 2, CQorVector3d::kXAxis, CQorPoint3d::kOrigin);
    vl.transformBy(r.m);
    EXPECT_NEAR(vl.normal().y, -1.0, 1e-15);
    // The circle now lies in the xz plane.
    CQorPoint3d lo, hi;
    vl.extents(lo, hi);
    expectPointNear(lo, CQorPoint3d(-1, 0, -1));
    expectPointNear(hi, CQorPoint3d(1, 0, 1));
}

TEST(VertexArray, IntersectRowWithCircleGivesTwoPointsAlongRow) {
    const CQorVertexArray r = row(-2, 2, 0.5);
    CQorPoint3dArray out;
    EXPECT_TRUE(r.intersectWith(out, unitCircle(), 3));
    ASSERT_EQ(out.len(), 2);
    expectPointNear(out[0], CQorPoint3d(-std::sqrt(0.75), 0.5, 0));
    expectPointNear(out[1], CQorPoint3d(std::sqrt(0.75), 0.5, 0));
    const CQorVertexArray back = row(2, -2, 0.5);
    const CQorPoint3dArray rev = back.intersectWith(unitCircle(), 3);
    ASSERT_EQ(rev.len(), 2);
    EXPECT_GT(rev[0].x, 0.0);
}

TEST(VertexArray, IntersectModeZeroStopsAtFirstCrossing) {
    const CQorVertexArray r = row(-2, 2, 0.5);
    CQorPoint3dArray out;
    EXPECT_TRUE(r.intersectWith(out, unitCircle(), 0));
    EXPECT_EQ(out.len(), 1);
    EXPECT_EQ(row(-2, 2, 1.5).intersectWith(unitCircle(), 0).len(), 0);
    EXPECT_FALSE(row(-2, 2, 1.5).intersectWith(out, unitCircle(), 0));
}

TEST(VertexArray, IntersectTangentRowTouchesOnce) {
    const CQorPoint3dArray p = row(-2, 2, 1.0).intersectWith(unitCircle(), 3);
    ASSERT_EQ(p.len(), 1);
    expectPointNear(p[0], CQorPoint3d(0, 1, 0));
}

TEST(VertexArray, IntersectContourTouchingRowAtVertexGivesOnePoint) {
    CQorPoint3dArray d;
    d.append(CQorPoint3d(0, -1, 0))
        .append(CQorPoint3d(1, 0, 0))
        .append(CQorPoint3d(0, 1, 0))
        .append(CQorPoint3d(-1, 0, 0));
    CQorVertexArray diamond;
    diamond.fromPoints(d, true);
    const CQorPoint3dArray p = row(-2, 2, 1.0).intersectWith(diamond, 3);
    ASSERT_EQ(p.len(), 1);
    expectPointNear(p[0], CQorPoint3d(0, 1, 0));
    // Through two opposite vertices: each is met once.
    const CQorPoint3dArray q = row(-2, 2, 0.0).intersectWith(diamond, 3);
    ASSERT_EQ(q.len(), 2);
    expectPointNear(q[0], CQorPoint3d(-1, 0, 0));
    expectPointNear(q[1], CQorPoint3d(1, 0, 0));
}

TEST(VertexArray, IntersectParallelLinesGiveNothingCollinearGiveOverlapEnds) {
    const CQorVertexArray sq = square(0, 0, 1, 1);
    EXPECT_EQ(row(-1, 2, 1.0 + 1e-6).intersectWith(sq, 3).len(), 0);
    const CQorPoint3dArray p = row(-1, 2, 1.0).intersectWith(sq, 3);
    ASSERT_EQ(p.len(), 2);
    expectPointNear(p[0], CQorPoint3d(0, 1, 0));
    expectPointNear(p[1], CQorPoint3d(1, 1, 0));
}

TEST(VertexArray, IntersectWithEmptyOrZeroLengthIsDefined) {
    EXPECT_EQ(row(-1, 1, 0).intersectWith(CQorVertexArray(), 3).len(), 0);
    EXPECT_EQ(CQorVertexArray().intersectWith(unitCircle(), 3).len(), 0);
    const CQorVertexArray dot(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(1, 0, 0)));
    const CQorPoint3dArray p = dot.intersectWith(unitCircle(), 3);
    ASSERT_EQ(p.len(), 1);
    expectPointNear(p[0], CQorPoint3d(1, 0, 0));
}

TEST(VertexArray, IntersectArcWithArc) {
    // Two upper unit half circles, centres 1 apart, meet at x = 0.5, y = sqrt(0.75);
    // their lower halves would meet at y = -sqrt(0.75), which is on neither arc.
    const CQorVertexArray a(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    const CQorVertexArray b(CQorVertex(CQorPoint3d(2, 0, 0), CQorPoint3d(0, 0, 0), 1.0));
    const CQorPoint3dArray p = a.intersectWith(b, 3);
    ASSERT_EQ(p.len(), 1);
    expectPointNear(p[0], CQorPoint3d(0.5, std::sqrt(0.75), 0));
    // The full circles of the lower halves cross both points.
    const CQorVertexArray lower(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(2, 0, 0), 1.0));
    const CQorPoint3dArray q = unitCircle().intersectWith(lower, 3);
    ASSERT_EQ(q.len(), 1);
    expectPointNear(q[0], CQorPoint3d(0.5, -std::sqrt(0.75), 0));
}

TEST(VertexArray, CopyIsDeepAndKeepsNormal) {
    CQorVertexArray vl = unitCircle();
    vl.normalSet(CQorVector3d(0, 0, -1));
    CQorVertexArray c(vl);
    c[0].m_bulge = 0.0;
    EXPECT_EQ(vl[0].m_bulge, 1.0);
    EXPECT_EQ(c.normal().z, -1.0);
    CQorVertexArray d;
    d = vl;
    EXPECT_EQ(d.normal().z, -1.0);
    d += vl;
    EXPECT_EQ(d.len(), 4);
    CQorVertexArrayEx ex(vl);
    EXPECT_EQ(ex.len(), 2);
    EXPECT_EQ(ex.m_edge, -1);
    EXPECT_EQ(ex.normal().z, -1.0);
}

TEST(VertexArray, MoveTakesVerticesAndNormal) {
    CQorVertexArray vl = unitCircle();
    vl.normalSet(CQorVector3d(0, 0, -1));
    CQorVertexArray moved(std::move(vl));
    EXPECT_EQ(moved.len(), 2);
    EXPECT_EQ(moved.normal().z, -1.0);
    CQorArrayTempl<CQorVertexArray> list;
    for (int i = 0; i < 20; ++i)
        list.append(moved);
    EXPECT_EQ(list[19].len(), 2);
    EXPECT_EQ(list[19].normal().z, -1.0);
}
