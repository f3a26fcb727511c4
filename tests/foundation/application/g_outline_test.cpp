#include "foundation/application/g_outline.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"
#include "tests/foundation/geom_test_util.h"

#include <cmath>
#include <cstdint>

namespace {

constexpr double kCorner = 1.0 - kPi / 4.0; // area between a square corner and its fillet

// Signed area of a contour, straight pieces by the shoelace sum and each arc
// adding the segment between its chord and the arc.
double signedArea(const CQorVertexArray& vl) {
    double a = 0.0;
    for (int i = 0; i < vl.len(); ++i) {
        const CQorVertex& v = vl[i];
        a += 0.5 * (v.m_start.x * v.m_end.y - v.m_end.x * v.m_start.y);
        if (v.m_bulge != 0.0) {
            const double theta = 4.0 * std::atan(v.m_bulge);
            const double c = v.m_start.distanceTo(v.m_end);
            const double r = c / (2.0 * std::sin(std::fabs(theta) / 2.0));
            const double seg = 0.5 * r * r * (std::fabs(theta) - std::sin(std::fabs(theta)));
            a += theta > 0.0 ? seg : -seg;
        }
    }
    return a;
}

CQorArrayTempl<double> parms(std::initializer_list<double> values) {
    CQorArrayTempl<double> p;
    for (double v : values)
        p.append(v);
    return p;
}

CQorVertexArray outline(int code, std::initializer_list<double> values) {
    return QOR::g_outline(code, CQorVector3d(), parms(values));
}

void expectClosedContinuous(const CQorVertexArray& vl) {
    ASSERT_GT(vl.len(), 0);
    EXPECT_TRUE(vl.isContinuous());
    EXPECT_TRUE(vl.isClosed());
}

void expectArea(const CQorVertexArray& vl, double expected) {
    expectClosedContinuous(vl);
    EXPECT_NEAR(signedArea(vl), expected, expected * 1e-3);
}

} // namespace

TEST(GOutline, FlatBarIsItsRectangleAtTwoSizes) {
    expectArea(outline(QOR::kOutlineFlat, {100, 10}), 1000.0);
    expectArea(outline(QOR::kOutlineFlat, {30, 5}), 150.0);
}

TEST(GOutline, RoundBarIsTwoHalfCircleArcs) {
    const CQorVertexArray vl = outline(QOR::kOutlineRound, {50});
    ASSERT_EQ(vl.len(), 2);
    EXPECT_EQ(vl[0].m_bulge, 1.0);
    expectArea(vl, kPi * 25 * 25);
    expectArea(outline(QOR::kOutlineRound, {12}), kPi * 36);
}

TEST(GOutline, TubeEnclosesOnlyTheWall) {
    expectArea(outline(QOR::kOutlineTube, {114.3, 6.3}), kPi / 4 * (114.3 * 114.3 - 101.7 * 101.7));
    expectArea(outline(QOR::kOutlineTube, {21.3, 2.0}), kPi / 4 * (21.3 * 21.3 - 17.3 * 17.3));
}

TEST(GOutline, EqualAngleHasRootAndToeFillets) {
    // L 100x10, r1 12, r2 6: two legs minus the overlap, plus the root fillet,
    // minus the two toe roundings.
    const CQorVertexArray vl = outline(QOR::kOutlineAngleEqual, {100, 10, 12, 6});
    expectArea(vl, 10 * 190 + 144 * kCorner - 2 * 36 * kCorner);
    int arcs = 0;
    for (const CQorVertex& v : vl)
        arcs += v.isArc() ? 1 : 0;
    EXPECT_EQ(arcs, 3);
    expectArea(outline(QOR::kOutlineAngleEqual, {50, 5, 7, 3.5}),
               5 * 95 + 49 * kCorner - 2 * 3.5 * 3.5 * kCorner);
}

TEST(GOutline, UnequalAngleArea) {
    expectArea(outline(QOR::kOutlineAngleUnequal, {100, 50, 8, 9, 4.5}),
               8 * (100 + 50 - 8) + 81 * kCorner - 2 * 4.5 * 4.5 * kCorner);
}

TEST(GOutline, IBeamAreaAtTwoSizes) {
    // IPE 200 and IPE 400: flanges, web, four root fillets.
    expectArea(outline(QOR::kOutlineIBeam, {200, 100, 5.6, 8.5, 12}),
               2 * 100 * 8.5 + (200 - 17) * 5.6 + 4 * 144 * kCorner);
    expectArea(outline(QOR::kOutlineIBeam, {400, 180, 8.6, 13.5, 21}),
               2 * 180 * 13.5 + (400 - 27) * 8.6 + 4 * 441 * kCorner);
}

TEST(GOutline, HBeamChannelTeeAndHollowSectionAreas) {
    expectArea(outline(QOR::kOutlineHBeam, {200, 200, 9, 15, 18}),
               2 * 200 * 15 + 170 * 9 + 4 * 324 * kCorner);
    expectArea(outline(QOR::kOutlineChannel, {200, 75, 8.5, 11.5, 12}),
               2 * 75 * 11.5 + (200 - 23) * 8.5 + 2 * 144 * kCorner);
    expectArea(outline(QOR::kOutlineTee, {100, 100, 11, 11}),
               100 * 11 + 89 * 11 + 2 * 121 * kCorner);
    // 120x80x5, outer radius 10, inner 5.
    expectArea(outline(QOR::kOutlineRhs, {120, 80, 5, 10}),
               (120 * 80 - 4 * 100 * kCorner) - (110 * 70 - 4 * 25 * kCorner));
    expectArea(outline(QOR::kOutlineSquare, {50, 5}), 2500 - 4 * 25 * kCorner);
}

TEST(GOutline, BentPlateAtRightAngleIsAnAngleWithoutFillets) {
    expectArea(outline(QOR::kOutlineBentPlate, {100, 80, 90, 5}), 5 * (100 + 80 - 5));
    // At 60 degrees: the two strips overlap in a rhombus-like corner piece.
    const double t = 5, a = 100, b = 80, th = kPi / 3;
    const double s = t * (1 + std::cos(th)) / std::sin(th);
    // Polygon O, A, A', I, B', B by the shoelace sum, computed by hand here.
    const double ix = t * std::sin(th) + s * std::cos(th), iy = t;
    const double bx = b * std::cos(th), by = b * std::sin(th);
    const double bpx = bx + t * std::sin(th), bpy = by - t * std::cos(th);
    const double xs[] = {0, a, a, ix, bpx, bx};
    const double ys[] = {0, 0, t, iy, bpy, by};
    double area = 0;
    for (int i = 0; i < 6; ++i)
        area += 0.5 * (xs[i] * ys[(i + 1) % 6] - xs[(i + 1) % 6] * ys[i]);
    expectArea(outline(QOR::kOutlineBentPlate, {a, b, 60, t}), area);
}

TEST(GOutline, NegativeLegMirrorsTheAngleAndKeepsItsArea) {
    const CQorVertexArray pos = outline(QOR::kOutlineAngleEqual, {100, 10, 12, 6});
    const CQorVertexArray neg = outline(QOR::kOutlineAngleEqual, {-100, 10, 12, 6});
    expectArea(neg, signedArea(pos));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(neg.extents(lo, hi));
    EXPECT_NEAR(lo.x, -100.0, 1e-9);
    EXPECT_NEAR(hi.x, 0.0, 1e-9);
    const CQorVertexArray tee = outline(QOR::kOutlineTee, {-100, 100, 11, 11});
    ASSERT_TRUE(tee.extents(lo, hi));
    EXPECT_NEAR(hi.y, 100.0, 1e-9);
    EXPECT_GT(signedArea(tee), 0.0);
}

TEST(GOutline, BaseMovesTheSection) {
    const CQorVertexArray vl =
        QOR::g_outline(QOR::kOutlineFlat, CQorVector3d(50, 5, 0), parms({100, 10}));
    CQorPoint3d lo, hi;
    ASSERT_TRUE(vl.extents(lo, hi));
    geomtest::expectPointNear(lo, CQorPoint3d(0, 0, 0), 1e-12);
    geomtest::expectPointNear(hi, CQorPoint3d(100, 10, 0), 1e-12);
}

TEST(GOutline, ImpossibleDimensionsGiveNoOutline) {
    EXPECT_EQ(outline(QOR::kOutlineFlat, {}).len(), 0);
    EXPECT_EQ(outline(QOR::kOutlineFlat, {100}).len(), 0);
    EXPECT_EQ(outline(QOR::kOutlineTube, {20, 10}).len(), 0);                   // no inside
    EXPECT_EQ(outline(QOR::kOutlineAngleEqual, {10, 10}).len(), 0);             // thickness = leg
    EXPECT_EQ(outline(QOR::kOutlineIBeam, {20, 100, 5, 10}).len(), 0);          // flanges fill it
    EXPECT_EQ(outline(QOR::kOutlineIBeam, {200, 100, 5.6, 8.5, 100}).len(), 0); // fillet
    EXPECT_EQ(outline(QOR::kOutlineBentPlate, {100, 100, 180, 5}).len(), 0);
    EXPECT_EQ(outline(QOR::kOutlineBentPlate, {100, 100, 0, 5}).len(), 0);
    EXPECT_EQ(outline(QOR::kOutlineRound, {std::nan("")}).len(), 0);
    EXPECT_EQ(outline(QOR::kOutlineFlat, {100, HUGE_VAL}).len(), 0);
}

TEST(GOutline, ItemFormReadsCodeParametersBaseAndUnit) {
    CQorDataItem item(1);
    const CQorDataKey code(L"CODE"), p1(L"P1"), p2(L"P2"), unit(L"UNIT");
    CQorVertexArray vl;
    EXPECT_FALSE(QOR::g_outline(vl, &item, Qor::unitMillimeters));
    EXPECT_FALSE(QOR::g_outline(vl, nullptr, Qor::unitMillimeters));
    dataItemSet(&item, &code, 1);
    dataItemSet(&item, &p1, 10.0);
    dataItemSet(&item, &p2, 1.0);
    dataItemSet(&item, &unit, static_cast<int>(Qor::unitCentimeters));
    ASSERT_TRUE(QOR::g_outline(vl, &item, Qor::unitMillimeters));
    EXPECT_NEAR(signedArea(vl), 100.0 * 10.0, 1e-9);
    dataItemSet(&item, &code, 99);
    EXPECT_FALSE(QOR::g_outline(vl, &item, Qor::unitMillimeters));
    EXPECT_EQ(vl.len(), 0);
}

TEST(GOutline, SeededRandomParametersGiveNothingOrAClosedPositiveContour) {
    std::uint64_t seed = 0x9E3779B97F4A7C15ull;
    auto next = [&seed]() {
        seed ^= seed << 13;
        seed ^= seed >> 7;
        seed ^= seed << 17;
        return static_cast<double>(seed % 100000) / 1000.0 - 10.0; // -10 to 90
    };
    int built = 0;
    for (int round = 0; round < 2000; ++round)
        for (int code : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 21}) {
            const CQorVertexArray vl =
                outline(code, {next(), next(), next(), next(), next(), next()});
            if (vl.len() == 0)
                continue;
            ++built;
            ASSERT_TRUE(vl.isClosed()) << code;
            ASSERT_TRUE(vl.isContinuous()) << code;
            ASSERT_GT(signedArea(vl), 0.0) << code;
        }
    EXPECT_GT(built, 1000); // many of them are real sections
}
