#include "styling/hatch.h"
#include "styling/hatch_crossings_p.h"

#include "styling_test_util.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>

using styling_test::PatternHost;
using styling_test::polygon;
using styling_test::rect;
using styling_test::region;

namespace {

using QOR::kPi;
constexpr double kEps = 1e-9;
using Rows = CQorArrayTempl<CQorVertexArray>;

std::string dump(const Rows& rows) {
    std::ostringstream os;
    for (int r = 0; r < rows.len(); ++r) {
        os << "row " << r << ":";
        for (int i = 0; i < rows[r].len(); ++i)
            os << " (" << rows[r][i].m_start.x << "," << rows[r][i].m_start.y << ")-("
               << rows[r][i].m_end.x << "," << rows[r][i].m_end.y << ")";
        os << "\n";
    }
    return os.str();
}

Rows hatch(const Rows& regions, const wchar_t* name, double angle, double scale, bool cross,
           const CQorMatrix3d& mtx = CQorMatrix3d()) {
    return qor_gdx_image_reg_hatch2(regions, mtx, QOR::CHatchProp(name, angle, scale, cross));
}

void expectPiece(const CQorVertex& v, double x0, double y0, double x1, double y1) {
    EXPECT_NEAR(v.m_start.x, x0, kEps);
    EXPECT_NEAR(v.m_start.y, y0, kEps);
    EXPECT_NEAR(v.m_end.x, x1, kEps);
    EXPECT_NEAR(v.m_end.y, y1, kEps);
    EXPECT_EQ(v.m_bulge, 0.0);
}

void expectSameRows(const Rows& a, const Rows& b) {
    ASSERT_EQ(a.len(), b.len()) << dump(a) << "against\n" << dump(b);
    for (int r = 0; r < a.len(); ++r) {
        ASSERT_EQ(a[r].len(), b[r].len()) << "row " << r << "\n" << dump(a) << dump(b);
        for (int i = 0; i < a[r].len(); ++i) {
            EXPECT_NEAR(a[r][i].m_start.distanceTo(b[r][i].m_start), 0.0, kEps);
            EXPECT_NEAR(a[r][i].m_end.distanceTo(b[r][i].m_end), 0.0, kEps);
        }
    }
}

// Rows along x of a 10 by 10 square, one span each, from x = 10 to x = 0.
void expectFullRowsAt(const Rows& rows, std::initializer_list<double> ys) {
    ASSERT_EQ(rows.len(), static_cast<int>(ys.size())) << dump(rows);
    int r = 0;
    for (double y : ys) {
        ASSERT_EQ(rows[r].len(), 1) << dump(rows);
        expectPiece(rows[r][0], 10.0, y, 0.0, y);
        ++r;
    }
}

} // namespace

TEST(Hatch, UserRowsOnASquareHandComputed) {
    // "_USER" at scale 2: rows 2 apart through the origin; the crossings are sorted
    // against the direction of the row, so each span runs from x = 10 to x = 0.
    expectFullRowsAt(hatch(region({rect(0, 0, 10, 10)}), L"_USER", 0.0, 2.0, false),
                     {0, 2, 4, 6, 8, 10});
}

TEST(Hatch, ShortUserNameMeansTheSame) {
    expectSameRows(hatch(region({rect(0, 0, 10, 10)}), L"_U", 0.3, 1.5, false),
                   hatch(region({rect(0, 0, 10, 10)}), L"_USER", 0.3, 1.5, false));
}

TEST(Hatch, EmptyRegionGivesNoRows) {
    CQorArrayTempl<QOR::HatchFamilyStats> stats;
    const Rows rows =
        QOR::hatchRegion2(Rows(), CQorMatrix3d(), QOR::CHatchProp(L"_USER", 0, 1, false), &stats);
    EXPECT_EQ(rows.len(), 0);
    ASSERT_EQ(stats.len(), 1);
    EXPECT_EQ(stats[0].rowsOut, 0);
}

TEST(Hatch, OnePointRegionGivesNoRowsOnceTheBudgetIsUsed) {
    const CQorPoint3d p(3.0, 4.0, 0.0);
    CQorArrayTempl<QOR::HatchFamilyStats> stats;
    const Rows rows = QOR::hatchRegion2(region({CQorVertexArray(CQorVertex(p, p))}), CQorMatrix3d(),
                                        QOR::CHatchProp(L"_USER", 0, 1, false), &stats);
    EXPECT_EQ(rows.len(), 0);
    ASSERT_EQ(stats.len(), 1);
    EXPECT_EQ(stats[0].halfLen, 0.0);
    EXPECT_EQ(stats[0].rows, 1);
    EXPECT_EQ(stats[0].limit, 20);
    EXPECT_EQ(stats[0].ascentSteps, 60);
    EXPECT_TRUE(stats[0].budgetRanOut);
}

TEST(Hatch, UserCrossGivesTwoFamiliesAtRightAnglesTurnedFamilyFirst) {
    const Rows rows = hatch(region({rect(0, 0, 10, 10)}), L"_USER", 0.0, 2.0, true);
    ASSERT_EQ(rows.len(), 12) << dump(rows);
    for (int r = 0; r < 6; ++r) {
        ASSERT_EQ(rows[r].len(), 1);
        const CQorVertex& v = rows[r][0];
        EXPECT_NEAR(v.m_start.x, v.m_end.x, kEps) << "turned family first\n" << dump(rows);
        EXPECT_NEAR(std::fabs(v.m_start.y - v.m_end.y), 10.0, kEps);
    }
    for (int r = 6; r < 12; ++r) {
        ASSERT_EQ(rows[r].len(), 1);
        expectPiece(rows[r][0], 10.0, 2.0 * (r - 6), 0.0, 2.0 * (r - 6));
    }
}

TEST(Hatch, NamedPatternWithCrossGivesTheSameAsWithout) {
    PatternHost host;
    host.add(L"TWO", {{30, 0, 0, 0, 1.5}, {120, 0.2, 0.1, 0.4, 2.0, 1.0, -0.5}});
    const Rows reg = region({rect(0, 0, 10, 10), rect(2, 2, 4, 5)});
    const Rows plain = hatch(reg, L"TWO", 0.2, 1.0, false);
    ASSERT_GT(plain.len(), 0);
    expectSameRows(hatch(reg, L"TWO", 0.2, 1.0, true), plain);
}

TEST(Hatch, NegativeRowDistanceWithReversedShiftGivesTheSameRows) {
    PatternHost host;
    host.add(L"UP", {{20, 0.1, 0.2, 0.3, 1.0, 0.5, -0.25}});
    host.add(L"DOWN", {{20, 0.1, 0.2, -0.3, -1.0, 0.5, -0.25}});
    const Rows reg = region({polygon({{0, 0}, {9, 1}, {8, 7}, {1, 9}})});
    const Rows up = hatch(reg, L"UP", 0.0, 1.0, false);
    ASSERT_GT(up.len(), 3);
    expectSameRows(hatch(reg, L"DOWN", 0.0, 1.0, false), up);
}

TEST(Hatch, SquareWithSquareHoleGivesTwoSpansInTheHolesHeight) {
    const Rows rows =
        hatch(region({rect(0, 0, 10, 10), rect(3, 3, 6, 6)}), L"_USER", 0.0, 1.0, false);
    ASSERT_EQ(rows.len(), 11) << dump(rows);
    for (int y = 0; y <= 10; ++y) {
        if (y >= 3 && y <= 6) {
            ASSERT_EQ(rows[y].len(), 2) << dump(rows);
            expectPiece(rows[y][0], 10, y, 6, y);
            expectPiece(rows[y][1], 3, y, 0, y);
        } else {
            ASSERT_EQ(rows[y].len(), 1) << dump(rows);
            expectPiece(rows[y][0], 10, y, 0, y);
        }
    }
}

TEST(Hatch, OddCrossingCountDropsTheRow) {
    // A notch from the top whose tip (5, 5) touches the row y = 5: that row meets
    // the contour at x = 0, 5 and 10, three times, and is dropped; y = 4 and y = 6
    // are there.
    const Rows reg =
        region({polygon({{0, 0}, {10, 0}, {10, 10}, {7, 10}, {5, 5}, {3, 10}, {0, 10}})});
    const QOR::CHatchProp prop(L"_USER", 0.0, 1.0, false);
    const CQorArrayTempl<CQorVertexArray> local = reg;
    const CQorVertexArray row5(CQorVertex(CQorPoint3d(-50, 5, 0), CQorPoint3d(50, 5, 0)));
    EXPECT_EQ(QOR::hatchLineCrossings(local, row5).len(), 0);

    const Rows rows = qor_gdx_image_reg_hatch2(reg, CQorMatrix3d(), prop);
    bool seen4 = false;
    bool seen6 = false;
    for (int r = 0; r < rows.len(); ++r) {
        const double y = rows[r][0].m_start.y;
        EXPECT_GT(std::fabs(y - 5.0), 0.5) << "the row at y = 5 must be missing\n" << dump(rows);
        if (std::fabs(y - 4.0) < kEps) {
            seen4 = true;
            ASSERT_EQ(rows[r].len(), 1);
            expectPiece(rows[r][0], 10, 4, 0, 4);
        }
        if (std::fabs(y - 6.0) < kEps) {
            seen6 = true;
            ASSERT_EQ(rows[r].len(), 2) << dump(rows);
            expectPiece(rows[r][0], 10, 6, 5.4, 6);
            expectPiece(rows[r][1], 4.6, 6, 0, 6);
        }
    }
    EXPECT_TRUE(seen4) << dump(rows);
    EXPECT_TRUE(seen6) << dump(rows);
}

TEST(Hatch, CrossingsAreSortedAgainstTheRowAndTakenOnce) {
    const Rows reg = region({rect(0, 0, 10, 10), rect(3, 3, 6, 6)});
    const CQorVertexArray row(CQorVertex(CQorPoint3d(-50, 4, 0), CQorPoint3d(50, 4, 0)));
    const CQorPoint3dArray c = QOR::hatchLineCrossings(reg, row);
    ASSERT_EQ(c.len(), 4);
    EXPECT_NEAR(c[0].x, 10.0, kEps);
    EXPECT_NEAR(c[1].x, 6.0, kEps);
    EXPECT_NEAR(c[2].x, 3.0, kEps);
    EXPECT_NEAR(c[3].x, 0.0, kEps);
    // Along a shared edge, the two contours meet the row at the same points once.
    const Rows twice = region({rect(0, 0, 10, 10), rect(0, 0, 10, 10)});
    const CQorVertexArray mid(CQorVertex(CQorPoint3d(-50, 5, 0), CQorPoint3d(50, 5, 0)));
    EXPECT_EQ(QOR::hatchLineCrossings(twice, mid).len(), 2);
}

TEST(Hatch, Family45AtScale2HasRowsTwoApartDashesTwoAndGapsOne) {
    PatternHost host;
    host.add(L"D45", {{45, 0, 0, 0, 1, 1, -0.5}});
    const Rows rows = hatch(region({rect(0, 0, 6, 6)}), L"D45", 0.0, 2.0, false);
    ASSERT_EQ(rows.len(), 5) << dump(rows);
    const double s = std::sqrt(0.5);
    // The row through the origin: dashes of 2.0 from the corner, gaps of 1.0, the
    // last dash cut at the corner (6, 6) after 2.0 of its length.
    ASSERT_EQ(rows[2].len(), 3) << dump(rows);
    expectPiece(rows[2][0], 0, 0, 2 * s, 2 * s);
    expectPiece(rows[2][1], 3 * s, 3 * s, 5 * s, 5 * s);
    expectPiece(rows[2][2], 6 * s, 6 * s, 8 * s, 8 * s);
    for (int r = 0; r < rows.len(); ++r) {
        // Signed distance of each row from the origin, across the rows: 2 (r - 2).
        for (int i = 0; i < rows[r].len(); ++i) {
            const CQorVertex& v = rows[r][i];
            const double offset = (v.m_start.y - v.m_start.x) * s;
            EXPECT_NEAR(offset, 2.0 * (r - 2), kEps) << dump(rows);
            EXPECT_NEAR((v.m_end.y - v.m_end.x) * s, offset, kEps);
            EXPECT_LE(v.bulgLen(), 2.0 + kEps);
            const bool onEdge = v.m_start.x < kEps || v.m_start.y < kEps || v.m_end.x > 6 - kEps ||
                                v.m_end.y > 6 - kEps;
            if (!onEdge) {
                EXPECT_NEAR(v.bulgLen(), 2.0, kEps) << "an inner dash is whole";
            }
            for (double c : {v.m_start.x, v.m_start.y, v.m_end.x, v.m_end.y}) {
                EXPECT_GE(c, -kEps);
                EXPECT_LE(c, 6.0 + kEps);
            }
            if (i > 0) {
                EXPECT_NEAR(rows[r][i - 1].m_end.distanceTo(v.m_start), 1.0, kEps) << dump(rows);
            }
        }
    }
    // Dashes cut by the square's edges keep the part inside: row 0 lies on
    // y = x - 5.657 and meets the square in (5.657, 0) to (6, 0.343).
    ASSERT_EQ(rows[0].len(), 1);
    expectPiece(rows[0][0], 8 * s, 0, 6, 6 - 8 * s);
}

TEST(Hatch, HatchAngleTurnsTheRowsAboutTheOrigin) {
    const double a = kPi / 6.0;
    const Rows rows = hatch(region({rect(-5, -5, 5, 5)}), L"_USER", a, 1.0, false);
    ASSERT_GT(rows.len(), 10);
    const CQorVector3d across(-std::sin(a), std::cos(a), 0.0);
    for (int r = 0; r < rows.len(); ++r) {
        const CQorVertex& v = rows[r][0];
        const CQorVector3d d = v.m_end - v.m_start;
        EXPECT_NEAR(d.dot(across), 0.0, kEps) << "rows run at the hatch angle";
        const double offset = (v.m_start - CQorPoint3d()).dot(across);
        EXPECT_NEAR(offset, std::round(offset), kEps) << "rows 1.0 apart through the origin";
        if (r > 0) {
            const double before = (rows[r - 1][0].m_start - CQorPoint3d()).dot(across);
            EXPECT_NEAR(offset - before, 1.0, kEps);
        }
    }
}

TEST(Hatch, MatrixPlacesTheHatchFrame) {
    CQorMatrix3d shift;
    shift.setToTranslation(CQorVector3d(0.0, 0.5, 0.0));
    const Rows rows = hatch(region({rect(0, 0, 10, 10)}), L"_USER", 0.0, 1.0, false, shift);
    expectFullRowsAt(rows, {0.5, 1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 8.5, 9.5});
}

TEST(Hatch, MirroringMatrixStillHatchesTheRegion) {
    CQorMatrix3d mirror;
    mirror.setCoordSystem(CQorPoint3d(), CQorVector3d(1, 0, 0), CQorVector3d(0, -1, 0),
                          CQorVector3d(0, 0, 1));
    const Rows rows = hatch(region({rect(0, 0, 10, 10)}), L"_USER", 0.0, 2.0, false, mirror);
    ASSERT_EQ(rows.len(), 6) << dump(rows);
    for (int r = 0; r < rows.len(); ++r)
        EXPECT_NEAR(std::fabs(rows[r][0].m_start.x - rows[r][0].m_end.x), 10.0, kEps);
}

TEST(Hatch, UnknownNameGivesNoRows) {
    PatternHost host;
    EXPECT_EQ(hatch(region({rect(0, 0, 10, 10)}), L"NO_SUCH", 0.0, 1.0, true).len(), 0);
}

TEST(Hatch, FamilyWithoutRowDistanceOrTooShortGivesNothing) {
    PatternHost host;
    host.add(L"FLAT", {{0, 0, 0, 0.5, 0.0}});
    host.add(L"SHORT", {{0, 0, 0}});
    for (const wchar_t* name : {L"FLAT", L"SHORT"}) {
        CQorArrayTempl<QOR::HatchFamilyStats> stats;
        const Rows rows = QOR::hatchRegion2(region({rect(0, 0, 10, 10)}), CQorMatrix3d(),
                                            QOR::CHatchProp(name, 0, 1, false), &stats);
        EXPECT_EQ(rows.len(), 0);
        ASSERT_EQ(stats.len(), 1);
        EXPECT_EQ(stats[0].limit, 0);
        EXPECT_EQ(stats[0].ascentSteps, 0);
    }
}

TEST(Hatch, ScaleZeroGivesNothing) {
    EXPECT_EQ(hatch(region({rect(0, 0, 10, 10)}), L"_USER", 0.0, 0.0, false).len(), 0);
}

TEST(Hatch, RowBudgetIsTwentyPerRowAndTheAscentThreeTimesThat) {
    CQorArrayTempl<QOR::HatchFamilyStats> stats;
    const Rows rows = QOR::hatchRegion2(region({rect(0, 0, 10, 10)}), CQorMatrix3d(),
                                        QOR::CHatchProp(L"_USER", 0, 1, false), &stats);
    ASSERT_EQ(stats.len(), 1);
    // Diagonal 14.14 over row distance 1, plus 1, truncated.
    EXPECT_EQ(stats[0].rows, 15);
    EXPECT_EQ(stats[0].limit, 300);
    EXPECT_EQ(stats[0].descentSteps, 1);
    EXPECT_EQ(stats[0].ascentSteps, 12) << "11 rows and the miss above them";
    EXPECT_EQ(stats[0].rowsOut, rows.len());
    EXPECT_FALSE(stats[0].budgetRanOut);
}

TEST(Hatch, SeedHalfLengthIsFifteenDiagonalsWithoutDashes) {
    CQorArrayTempl<QOR::HatchFamilyStats> stats;
    QOR::hatchRegion2(region({rect(0, 0, 3, 4)}), CQorMatrix3d(),
                      QOR::CHatchProp(L"_USER", 0, 1, false), &stats);
    ASSERT_EQ(stats.len(), 1);
    EXPECT_DOUBLE_EQ(stats[0].halfLen, 75.0);
}

TEST(Hatch, SeedHalfLengthIsWholePeriodsTimesTwentyWithDashes) {
    PatternHost host;
    host.add(L"DASH", {{0, 0, 0, 0, 1, 0.75, -0.25}});
    CQorArrayTempl<QOR::HatchFamilyStats> stats;
    // Diagonal 5, period 2 * 1.0 at scale 2: m = 2, half length (2 + 1) * 2 * 20.
    QOR::hatchRegion2(region({rect(0, 0, 3, 4)}), CQorMatrix3d(),
                      QOR::CHatchProp(L"DASH", 0, 2.0, false), &stats);
    ASSERT_EQ(stats.len(), 1);
    EXPECT_DOUBLE_EQ(stats[0].halfLen, 120.0);
}

TEST(Hatch, GravelUsesItsOwnSeedFactorsAndBudget) {
    PatternHost host;
    host.add(L"GRAVEL", {{0, 0, 0, 0, 1, 0.75, -0.25}});
    host.add(L"NOT_GRAVEL", {{0, 0, 0, 0, 1, 0.75, -0.25}});
    const Rows reg = region({rect(0, 0, 3, 4)});
    struct Case {
        const wchar_t* name;
        double scale;
        double halfLen;
        long long budget;
    };
    // Diagonal 5. Scale 0.5: period 0.5, m 10; scale 2: period 2, m 2.
    const Case cases[] = {
        {L"GRAVEL", 0.5, 11 * 0.5 * 200.0, 200},
        {L"GRAVEL", 2.0, 3 * 2.0 * 150.0, 20},
        {L"NOT_GRAVEL", 0.5, 11 * 0.5 * 20.0, 20},
    };
    for (const Case& c : cases) {
        CQorArrayTempl<QOR::HatchFamilyStats> stats;
        QOR::hatchRegion2(reg, CQorMatrix3d(), QOR::CHatchProp(c.name, 0, c.scale, false), &stats);
        ASSERT_EQ(stats.len(), 1);
        EXPECT_DOUBLE_EQ(stats[0].halfLen, c.halfLen);
        EXPECT_EQ(stats[0].limit, stats[0].rows * c.budget);
    }
}

TEST(Hatch, DotsOfTheDashListAreDrawnAsPoints) {
    PatternHost host;
    host.add(L"DOTTY", {{0, 0, 0, 0, 1, 0, -1}});
    const Rows rows = hatch(region({rect(0, 0, 10, 10)}), L"DOTTY", 0.0, 1.0, false);
    ASSERT_EQ(rows.len(), 11) << dump(rows);
    for (int r = 0; r < rows.len(); ++r) {
        ASSERT_GT(rows[r].len(), 3);
        for (int i = 0; i < rows[r].len(); ++i) {
            const CQorVertex& v = rows[r][i];
            EXPECT_LE(v.bulgLen(), 0.2 + kEps) << "a dot is at most its drawn length";
            EXPECT_GE(v.m_start.x, -kEps);
            EXPECT_LE(v.m_end.x, 10 + kEps);
        }
    }
}

TEST(Hatch, OpenContourIsNotOrientedButStillCrossed) {
    CQorArrayTempl<CQorVertexArray> list = region({rect(0, 0, 10, 10)});
    list[0].revert();
    CQorVertexArray open;
    open.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(10, 0, 0)));
    open.append(CQorVertex(CQorPoint3d(10, 0, 0), CQorPoint3d(10, 10, 0)));
    list.append(open);
    QOR::g_vll_orient(list, CQorVector3d::kZAxis);
    EXPECT_TRUE(QOR::g_vl_orient(list[0], CQorVector3d::kZAxis));
    EXPECT_EQ(list[1][0].m_start.x, 0.0) << "the open contour keeps its direction";
}

TEST(Hatch, TurnedRowsCanMissARegionAwayFromTheOrigin) {
    // The descents look for the region below the seed before the turn by the hatch
    // angle; turned by 180 degrees, rows that rise in the family frame fall in the
    // world, so the ascent walks away from a region above the origin until its
    // budget is used up, and nothing is drawn.
    CQorArrayTempl<QOR::HatchFamilyStats> stats;
    const Rows rows = QOR::hatchRegion2(region({rect(0, 5, 10, 15)}), CQorMatrix3d(),
                                        QOR::CHatchProp(L"_USER", kPi, 1.0, false), &stats);
    EXPECT_EQ(rows.len(), 0);
    ASSERT_EQ(stats.len(), 1);
    EXPECT_TRUE(stats[0].budgetRanOut);
    EXPECT_EQ(stats[0].ascentSteps, 3 * stats[0].limit);
    // The same region hatched at angle 0 is found.
    EXPECT_EQ(hatch(region({rect(0, 5, 10, 15)}), L"_USER", 0.0, 1.0, false).len(), 11);
}

TEST(Hatch, ClipIsOnePassAgainstTheFirstContourSoANarrowHoleCanBeCrossed) {
    // Dashes 3 long with gaps of 1 from x = 0: the dash [4, 7] of the row y = 5
    // reaches over the hole from x = 4.9 to 5.1. For the span from 10 to 5.1 it is
    // broken at 5.1 and its half [4, 5.1] has its middle inside the region, so it
    // is kept; the final clip only looks at the outer contour and keeps it whole.
    PatternHost host;
    host.add(L"LONG", {{0, 0, 0, 0, 1, 3, -1}});
    const Rows reg = region({rect(0, 0, 10, 10), rect(4.9, 2, 5.1, 8)});
    const Rows rows = hatch(reg, L"LONG", 0.0, 1.0, false);
    bool crossed = false;
    for (int r = 0; r < rows.len(); ++r) {
        for (int i = 0; i < rows[r].len(); ++i) {
            const CQorVertex& v = rows[r][i];
            if (std::fabs(v.m_start.y - 5.0) < kEps && std::fabs(v.m_start.x - 4.0) < kEps &&
                std::fabs(v.m_end.x - 5.1) < kEps)
                crossed = true;
        }
    }
    EXPECT_TRUE(crossed) << dump(rows);
    // The row y = 1 below the hole has the same dash whole.
    ASSERT_GT(rows.len(), 1);
    ASSERT_EQ(rows[1].len(), 3) << dump(rows);
    expectPiece(rows[1][1], 4, 1, 7, 1);
}

TEST(Hatch, GuardStopsTheFirstDescentAfterFourMillionSteps) {
    // Base points 3,999,900 and 4,000,100 rows above a region 10 high.
    PatternHost host;
    host.add(L"NEAR", {{0, 0, 3999900.0, 0, 1.0}});
    host.add(L"FAR", {{0, 0, 4000100.0, 0, 1.0}});
    CQorArrayTempl<QOR::HatchFamilyStats> stats;
    const Rows near = QOR::hatchRegion2(region({rect(0, 0, 10, 10)}), CQorMatrix3d(),
                                        QOR::CHatchProp(L"NEAR", 0, 1, false), &stats);
    ASSERT_EQ(stats.len(), 1);
    EXPECT_EQ(stats[0].firstDescentSteps, 3999900);
    EXPECT_EQ(near.len(), 11);

    stats.setLogicalLength(0);
    const Rows far = QOR::hatchRegion2(region({rect(0, 0, 10, 10)}), CQorMatrix3d(),
                                       QOR::CHatchProp(L"FAR", 0, 1, false), &stats);
    ASSERT_EQ(stats.len(), 1);
    EXPECT_EQ(stats[0].firstDescentSteps, QOR::kHatchFirstDescentMostSteps);
    EXPECT_EQ(stats[0].firstDescentSteps, 4000000);
    // The descent stopped 100 rows above the region; the rows budget does not reach it.
    EXPECT_EQ(far.len(), 0);
}
