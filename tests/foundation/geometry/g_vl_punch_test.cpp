#include "tests/foundation/geom_test_util.h"

#include <cmath>
#include <random>

using geomtest::expectPointNear;
using geomtest::line;
using geomtest::rect;
using geomtest::totalLength;

namespace {

CQorArrayTempl<CQorVertexArray> squareWithHole() {
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(rect(0, 0, 10, 10));
    CQorVertexArray hole = rect(4, 4, 6, 6);
    hole.revert();
    reg.append(hole);
    return reg;
}

} // namespace

TEST(Punch, RowThroughSquareInsideAndOutside) {
    const CQorVertexArray sq = rect(0, 0, 2, 2);
    const auto in = QOR::g_vl_punch(line(-1, 1, 3, 1), sq, true);
    ASSERT_EQ(in.len(), 1);
    ASSERT_EQ(in[0].len(), 1);
    expectPointNear(in[0][0].m_start, CQorPoint3d(0, 1, 0));
    expectPointNear(in[0][0].m_end, CQorPoint3d(2, 1, 0));
    const auto out = QOR::g_vl_punch(line(-1, 1, 3, 1), sq, false);
    ASSERT_EQ(out.len(), 2);
    expectPointNear(out[0][0].m_end, CQorPoint3d(0, 1, 0));
    expectPointNear(out[1][0].m_start, CQorPoint3d(2, 1, 0));
}

TEST(Punch, ArcPiecesStayArcs) {
    // Half circle of radius 2 against the square [0, 3] x [0, 3]: the first
    // quarter lies inside, the second outside.
    const CQorVertexArray arc(CQorVertex(CQorPoint3d(2, 0, 0), CQorPoint3d(-2, 0, 0), 1.0));
    const auto in = QOR::g_vl_punch(arc, rect(0, 0, 3, 3), true);
    ASSERT_EQ(in.len(), 1);
    ASSERT_EQ(in[0].len(), 1);
    EXPECT_NEAR(in[0][0].m_bulge, std::tan(kPi / 8), 1e-14);
    expectPointNear(in[0][0].m_end, CQorPoint3d(0, 2, 0));
    EXPECT_NEAR(in[0][0].bulgLen(), kPi, 1e-13);
    const auto out = QOR::g_vl_punch(arc, rect(0, 0, 3, 3), false);
    ASSERT_EQ(out.len(), 1);
    EXPECT_NEAR(out[0][0].m_bulge, std::tan(kPi / 8), 1e-14);
    expectPointNear(out[0][0].m_end, CQorPoint3d(-2, 0, 0));
}

TEST(Punch, RowAgainstCircleCutsAtExactCrossings) {
    const auto in = QOR::g_vl_punch(line(-2, 0.6, 2, 0.6), geomtest::circle(0, 0, 1), true);
    ASSERT_EQ(in.len(), 1);
    expectPointNear(in[0][0].m_start, CQorPoint3d(-0.8, 0.6, 0), 1e-14);
    expectPointNear(in[0][0].m_end, CQorPoint3d(0.8, 0.6, 0), 1e-14);
}

TEST(Punch, RowAlongAnEdgeCountsAsInside) {
    const auto in = QOR::g_vl_punch(line(-1, 0, 3, 0), rect(0, 0, 2, 2), true);
    ASSERT_EQ(in.len(), 1);
    expectPointNear(in[0][0].m_start, CQorPoint3d(0, 0, 0));
    expectPointNear(in[0][0].m_end, CQorPoint3d(2, 0, 0));
}

TEST(Punch, ContourTouchingRowAtVertexKeepsNothingInside) {
    CQorPoint3dArray d;
    d.append(CQorPoint3d(0, -1, 0))
        .append(CQorPoint3d(1, 0, 0))
        .append(CQorPoint3d(0, 1, 0))
        .append(CQorPoint3d(-1, 0, 0));
    CQorVertexArray diamond;
    diamond.fromPoints(d, true);
    EXPECT_EQ(QOR::g_vl_punch(line(-2, 1, 2, 1), diamond, true).len(), 0);
    const auto out = QOR::g_vl_punch(line(-2, 1, 2, 1), diamond, false);
    EXPECT_NEAR(totalLength(out), 4.0, 1e-12);
}

TEST(Punch, DegenerateInputGivesDefinedResults) {
    const CQorVertexArray sq = rect(0, 0, 2, 2);
    EXPECT_EQ(QOR::g_vl_punch(CQorVertexArray(), sq, true).len(), 0);
    EXPECT_EQ(QOR::g_vl_punch(line(0, 1, 1, 1), CQorVertexArray(), true).len(), 0);
    EXPECT_EQ(QOR::g_vl_punch(line(0, 1, 1, 1), CQorVertexArray(), false).len(), 1);
    // A point-sized vertex (a dot of a dash pattern) is kept where it lies.
    const CQorVertexArray dot(CQorVertex(CQorPoint3d(1, 1, 0), CQorPoint3d(1, 1, 0)));
    EXPECT_EQ(QOR::g_vl_punch(dot, sq, true).len(), 1);
    EXPECT_EQ(QOR::g_vl_punch(dot, sq, false).len(), 0);
    // Coincident points in the contour do no harm.
    CQorVertexArray twice = sq;
    twice.insertAt(1, CQorVertex(CQorPoint3d(2, 0, 0), CQorPoint3d(2, 0, 0)));
    EXPECT_NEAR(totalLength(QOR::g_vl_punch(line(-1, 1, 3, 1), twice, true)), 2.0, 1e-12);
}

TEST(Punch, InsideAndOutsideTogetherCoverTheInputProperty) {
    std::mt19937 rng(1618u);
    std::uniform_real_distribution<double> u(-10.0, 10.0);
    std::uniform_real_distribution<double> bu(-1.5, 1.5);
    std::uniform_real_distribution<double> ang(0.0, 2 * kPi);
    for (int n = 0; n < 200; ++n) {
        // A star-shaped contour around the origin with some arcs.
        CQorPoint3dArray pts;
        const int k = 3 + n % 12;
        for (int i = 0; i < k; ++i) {
            const double a = 2 * kPi * i / k, r = 2.0 + std::fabs(u(rng)) * 0.5;
            pts.append(CQorPoint3d(r * std::cos(a), r * std::sin(a), 0));
        }
        CQorVertexArray contour;
        contour.fromPoints(pts, true);
        for (int i = 0; i < contour.len(); i += 2)
            contour[i].m_bulge = 0.3 * bu(rng);
        // A polyline with straight and arc pieces.
        CQorVertexArray vl;
        CQorPoint3d at(u(rng), u(rng), 0);
        for (int i = 0; i < 1 + n % 5; ++i) {
            const CQorPoint3d next(u(rng), u(rng), 0);
            vl.append(CQorVertex(at, next, i % 2 ? bu(rng) : 0.0));
            at = next;
        }
        double whole = 0.0;
        for (const CQorVertex& v : vl)
            whole += v.bulgLen();
        const auto in = QOR::g_vl_punch(vl, contour, true);
        const auto out = QOR::g_vl_punch(vl, contour, false);
        EXPECT_NEAR(totalLength(in) + totalLength(out), whole, 1e-9 * whole) << "case " << n;
        for (const CQorVertexArray& piece : in)
            for (const CQorVertex& v : piece) {
                CQorArrayTempl<CQorVertexArray> reg;
                reg.append(contour);
                EXPECT_GE(QOR::g_vll_pt_inside(reg, v.mid()), 0) << "case " << n;
            }
    }
}

TEST(PunchReg, HoleIsKeptClear) {
    const auto in = QOR::g_vl_punch_reg(line(-1, 5, 11, 5), squareWithHole(), true);
    ASSERT_EQ(in.len(), 2);
    expectPointNear(in[0][0].m_start, CQorPoint3d(0, 5, 0));
    expectPointNear(in[0][0].m_end, CQorPoint3d(4, 5, 0));
    expectPointNear(in[1][0].m_start, CQorPoint3d(6, 5, 0));
    expectPointNear(in[1][0].m_end, CQorPoint3d(10, 5, 0));
    const auto out = QOR::g_vl_punch_reg(line(-1, 5, 11, 5), squareWithHole(), false);
    EXPECT_EQ(out.len(), 3);
    EXPECT_NEAR(totalLength(out), 4.0, 1e-12);
}

TEST(PunchReg, RowAlongHoleEdgeStaysInside) {
    const auto in = QOR::g_vl_punch_reg(line(-1, 4, 11, 4), squareWithHole(), true);
    ASSERT_EQ(in.len(), 1);
    EXPECT_EQ(in[0].len(), 3);
    EXPECT_NEAR(totalLength(in), 10.0, 1e-12);
    EXPECT_TRUE(in[0].isContinuous());
}

TEST(PunchReg, EmptyRegionListHasNoInside) {
    EXPECT_EQ(QOR::g_vl_punch_reg(line(0, 0, 1, 0), CQorArrayTempl<CQorVertexArray>(), true).len(),
              0);
}

TEST(PtInside, RegionWithHole) {
    const auto reg = squareWithHole();
    EXPECT_GT(QOR::g_vll_pt_inside(reg, CQorPoint3d(1, 1, 0)), 0);
    EXPECT_LE(QOR::g_vll_pt_inside(reg, CQorPoint3d(5, 5, 0)), 0);
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(5, 5, 0)), -1);
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(4, 5, 0)), 0);
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(0, 3, 0)), 0);
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(20, 0, 0)), -1);
    EXPECT_EQ(QOR::g_vll_pt_inside(CQorArrayTempl<CQorVertexArray>(), CQorPoint3d()), -1);
}

TEST(PtInside, ArcsBoundTheRegionExactly) {
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(geomtest::circle(0, 0, 1));
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(0, 0.99, 0)), 1);
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(0.71, 0.71, 0)), -1);
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(0.7, 0.7, 0)), 1);
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(std::sqrt(0.5), std::sqrt(0.5), 0)), 0);
    // A contour with an arc bulging inward.
    CQorVertexArray bite = rect(0, 0, 4, 4);
    bite[1].m_bulge = -1.0; // right edge, from (4, 0) to (4, 4), bends to x = 2
    CQorArrayTempl<CQorVertexArray> r2;
    r2.append(bite);
    EXPECT_EQ(QOR::g_vll_pt_inside(r2, CQorPoint3d(3, 2, 0)), -1);
    EXPECT_EQ(QOR::g_vll_pt_inside(r2, CQorPoint3d(1.5, 2, 0)), 1);
    EXPECT_EQ(QOR::g_vll_pt_inside(r2, CQorPoint3d(3.9, 0.1, 0)), -1);
    EXPECT_EQ(QOR::g_vll_pt_inside(r2, CQorPoint3d(3.0, 0.05, 0)), 1);
}

TEST(Cut, PartBetweenTwoPointsInArrayDirection) {
    CQorVertexArray r =
        QOR::g_vl_cut(line(0, 0, 10, 0), CQorPoint3d(7, 0, 0), CQorPoint3d(2, 0, 0));
    ASSERT_EQ(r.len(), 1);
    expectPointNear(r[0].m_start, CQorPoint3d(2, 0, 0));
    expectPointNear(r[0].m_end, CQorPoint3d(7, 0, 0));
    CQorVertexArray l;
    l.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(2, 0, 0)));
    l.append(CQorVertex(CQorPoint3d(2, 0, 0), CQorPoint3d(2, 2, 0)));
    r = QOR::g_vl_cut(l, CQorPoint3d(1, 0, 0), CQorPoint3d(2, 1, 0));
    ASSERT_EQ(r.len(), 2);
    expectPointNear(r[0].m_start, CQorPoint3d(1, 0, 0));
    expectPointNear(r[1].m_end, CQorPoint3d(2, 1, 0));
}

TEST(Cut, ArcPartIsArc) {
    const CQorVertexArray half(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    const double h = std::sqrt(0.5);
    const CQorVertexArray r = QOR::g_vl_cut(half, CQorPoint3d(h, h, 0), CQorPoint3d(-h, h, 0));
    ASSERT_EQ(r.len(), 1);
    EXPECT_NEAR(r[0].m_bulge, std::tan(kPi / 8), 1e-14);
    EXPECT_NEAR(r[0].bulgLen(), kPi / 2, 1e-14);
}

TEST(Cut, PointOffArrayGivesEmptyEqualPointsGiveAPoint) {
    EXPECT_EQ(QOR::g_vl_cut(line(0, 0, 10, 0), CQorPoint3d(1, 1, 0), CQorPoint3d(2, 0, 0)).len(),
              0);
    const CQorVertexArray p =
        QOR::g_vl_cut(line(0, 0, 10, 0), CQorPoint3d(3, 0, 0), CQorPoint3d(3, 0, 0));
    ASSERT_EQ(p.len(), 1);
    EXPECT_TRUE(p[0].m_start == p[0].m_end);
    EXPECT_EQ(QOR::g_vl_cut(CQorVertexArray(), CQorPoint3d(), CQorPoint3d()).len(), 0);
}

TEST(Punch, CrossingWithinToleranceOfAnEndMakesNoSliver) {
    const CQorVertexArray sq = rect(0, 0, 2, 2);
    const auto in = QOR::g_vl_punch(line(-1, 1, 2 + 1e-12, 1), sq, true);
    ASSERT_EQ(in.len(), 1);
    ASSERT_EQ(in[0].len(), 1);
    EXPECT_NEAR(in[0][0].m_end.x, 2.0, 1e-11);
    const auto out = QOR::g_vl_punch(line(-1, 1, 2 + 1e-12, 1), sq, false);
    ASSERT_EQ(out.len(), 1);
    EXPECT_NEAR(out[0][0].m_end.x, 0.0, 0.0);
}

TEST(Punch, NotFiniteCoordinatesEndWithoutCrash) {
    const double n = QOR::nan();
    const CQorVertexArray bad(CQorVertex(CQorPoint3d(n, 1, 0), CQorPoint3d(3, n, 0), 0.5));
    const CQorVertexArray sq = rect(0, 0, 2, 2);
    const auto in = QOR::g_vl_punch(bad, sq, true);
    const auto out = QOR::g_vl_punch(bad, sq, false);
    EXPECT_LE(in.len() + out.len(), 1);
    EXPECT_EQ(bad.intersectWith(sq, 3).len(), 0);
    EXPECT_EQ(sq.intersectWith(bad, 3).len(), 0);
    const auto dashes = QOR::g_vl_measure(bad, 1.0, CQorLineParm(1.0, -1.0));
    EXPECT_EQ(dashes.len(), 0);
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(bad);
    EXPECT_LE(QOR::g_vll_pt_inside(reg, CQorPoint3d(1, 1, 0)), 0);
}

TEST(Intersect, CrossingsLieOnBothAndModesAgreeProperty) {
    std::mt19937 rng(99991u);
    std::uniform_real_distribution<double> u(-5.0, 5.0);
    std::uniform_real_distribution<double> bu(-2.0, 2.0);
    for (int n = 0; n < 300; ++n) {
        CQorPoint3dArray pts;
        for (int i = 0; i < 3 + n % 7; ++i)
            pts.append(CQorPoint3d(u(rng), u(rng), 0));
        CQorVertexArray contour;
        contour.fromPoints(pts, true);
        for (int i = 0; i < contour.len(); ++i)
            if (i % 3 == 1)
                contour[i].m_bulge = bu(rng);
        CQorVertexArray vl(CQorVertex(CQorPoint3d(u(rng), u(rng), 0),
                                      CQorPoint3d(u(rng), u(rng), 0), n % 2 ? bu(rng) : 0.0));
        const CQorPoint3dArray all = vl.intersectWith(contour, 3);
        const CQorPoint3dArray first = vl.intersectWith(contour, 0);
        EXPECT_EQ(all.len() > 0, first.len() > 0) << "case " << n;
        EXPECT_LE(first.len(), 1);
        for (const CQorPoint3d& p : all) {
            EXPECT_TRUE(vl[0].isPoint(p)) << "case " << n;
            bool onContour = false;
            for (const CQorVertex& v : contour)
                onContour = onContour || v.isPoint(p);
            EXPECT_TRUE(onContour) << "case " << n;
        }
        // Ordered along the piece.
        for (int i = 1; i < all.len(); ++i)
            EXPECT_LE(vl[0].paramOf(all[i - 1]), vl[0].paramOf(all[i]) + 1e-12) << "case " << n;
    }
}

TEST(Punch, HugeBulgeIsDefined) {
    const CQorVertexArray huge(CQorVertex(CQorPoint3d(0, 1, 0), CQorPoint3d(1, 1, 0), 1e300));
    const auto in = QOR::g_vl_punch(huge, rect(0, 0, 2, 2), true);
    const auto out = QOR::g_vl_punch(huge, rect(0, 0, 2, 2), false);
    EXPECT_LE(in.len() + out.len(), 2);
    EXPECT_GE(QOR::g_vx_split_dif(huge[0], 0.1), 1);
}

TEST(PunchReg, ScanRowsOfARingHaveExactChordLengths) {
    // Ring of radius 10 with a hole of radius 3, both of arcs; one row per
    // integer y as the scan-line fill does.
    CQorArrayTempl<CQorVertexArray> ring;
    ring.append(geomtest::circle(0, 0, 10));
    CQorVertexArray hole = geomtest::circle(0, 0, 3);
    hole.revert();
    ring.append(hole);
    for (int y = -10; y < 10; ++y) {
        const double yy = y + 0.5;
        const auto in = QOR::g_vl_punch_reg(line(-11, yy, 11, yy), ring, true);
        double expect = 2.0 * std::sqrt(100.0 - yy * yy);
        int pieces = 1;
        if (std::fabs(yy) < 3.0) {
            expect -= 2.0 * std::sqrt(9.0 - yy * yy);
            pieces = 2;
        }
        EXPECT_EQ(in.len(), pieces) << "row " << yy;
        EXPECT_NEAR(totalLength(in), expect, 1e-12) << "row " << yy;
    }
}

TEST(PunchReg, RowOnTheChordOfTwoHalfCirclesIsInsideAndItsDotsToo) {
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(geomtest::circle(0, 0, 5));
    const auto in = QOR::g_vl_punch_reg(line(-6, 0, 6, 0), reg, true);
    ASSERT_EQ(in.len(), 1);
    const auto dots = QOR::g_vl_measure(in[0], 1.0, CQorLineParm(0.0, -1.0));
    // Dots at x = -5, -4, ..., 5.
    ASSERT_EQ(dots.len(), 11);
    for (int i = 0; i < dots.len(); ++i) {
        EXPECT_NEAR(dots[i][0].m_start.x, -5.0 + i, 1e-12);
        EXPECT_GE(QOR::g_vll_pt_inside(reg, dots[i][0].m_start), 0);
    }
}

TEST(PtInside, ArcContourAgreesWithFineChordPolygonProperty) {
    std::mt19937 rng(7777u);
    std::uniform_real_distribution<double> u(-6.0, 6.0);
    std::uniform_real_distribution<double> bu(-1.2, 1.2);
    int compared = 0;
    for (int n = 0; n < 60; ++n) {
        CQorPoint3dArray pts;
        const int k = 3 + n % 6;
        for (int i = 0; i < k; ++i) {
            const double a = 2 * kPi * i / k;
            pts.append(CQorPoint3d(4 * std::cos(a), 4 * std::sin(a), 0));
        }
        CQorVertexArray contour;
        contour.fromPoints(pts, true);
        for (CQorVertex& v : contour)
            v.m_bulge = 0.5 * bu(rng);
        CQorArrayTempl<CQorVertexArray> exact, fine;
        exact.append(contour);
        fine.append(QOR::g_vl_expl(contour, 512));
        for (int q = 0; q < 200; ++q) {
            // Rows through the joints and the circle centres are the hard cases,
            // so half of the points sit on the y of a vertex.
            const double y = q % 2 ? contour[q % k].m_start.y : u(rng);
            const CQorPoint3d p(u(rng), y, 0);
            double d = 1e9;
            for (const CQorVertex& v : contour)
                d = std::min(d, v.lotp(p).distanceTo(p));
            if (d < 0.01)
                continue;
            ++compared;
            EXPECT_EQ(QOR::g_vll_pt_inside(exact, p), QOR::g_vll_pt_inside(fine, p))
                << "case " << n << " point " << p.x << " " << p.y;
        }
    }
    EXPECT_GT(compared, 5000);
}

TEST(Punch, GridContoursWithDegeneraciesStillCoverTheRowProperty) {
    // Integer coordinates make rows run along edges, through vertices and over
    // repeated points; the pieces must still add up to the row.
    std::mt19937 rng(5150u);
    std::uniform_int_distribution<int> g(0, 6);
    for (int n = 0; n < 400; ++n) {
        CQorPoint3dArray pts;
        for (int i = 0; i < 3 + n % 8; ++i)
            pts.append(CQorPoint3d(g(rng), g(rng), 0));
        CQorVertexArray contour;
        contour.fromPoints(pts, true);
        if (n % 3 == 0 && contour.len() > 0)
            contour[0].m_bulge = 0.5;
        const double y = g(rng);
        const CQorVertexArray r = line(-1, y, 8, y);
        CQorArrayTempl<CQorVertexArray> reg;
        reg.append(contour);
        const double in = totalLength(QOR::g_vl_punch_reg(r, reg, true));
        const double out = totalLength(QOR::g_vl_punch_reg(r, reg, false));
        EXPECT_NEAR(in + out, 9.0, 1e-9) << "case " << n;
        EXPECT_NEAR(totalLength(QOR::g_vl_punch(r, contour, true)), in, 1e-9) << "case " << n;
    }
}
