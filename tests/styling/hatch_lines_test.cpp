#include "styling/hatch_lines.h"

#include "styling_test_util.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using styling_test::rect;
using styling_test::region;

namespace {
using QOR::kPi;
constexpr double kEps = 1e-9;
using Rows = CQorArrayTempl<CQorVertexArray>;
} // namespace

TEST(HatchLines, DotsGridOnARegionTenHighWithStepTwoHasSixRows) {
    const Rows out = qor_gdx_image_reg_hatch(region({rect(0, 0, 10, 10)}), CQorMatrix3d(),
                                             CQorString(L"DOTS"), 2.0, 0.7);
    std::set<double> ys;
    std::set<double> xs;
    for (int i = 0; i < out.len(); ++i) {
        ASSERT_EQ(out[i].len(), 1);
        const CQorVertex& dot = out[i][0];
        EXPECT_NEAR(dot.m_start.distanceTo(dot.m_end), 0.0, kEps) << "each dot is a point";
        ys.insert(std::round(dot.m_start.y * 1e6) / 1e6);
        xs.insert(std::round(dot.m_start.x * 1e6) / 1e6);
        EXPECT_GE(dot.m_start.x, -kEps);
        EXPECT_LE(dot.m_start.x, 10 + kEps);
    }
    EXPECT_EQ(ys, (std::set<double>{0, 2, 4, 6, 8, 10}));
    EXPECT_EQ(xs, (std::set<double>{0, 2, 4, 6, 8, 10})) << "dots step apart from the clip start";
    EXPECT_EQ(out.len(), 36);
}

TEST(HatchLines, DotsIgnoreTheAngle) {
    const Rows a = qor_gdx_image_reg_hatch(region({rect(0, 0, 10, 10)}), CQorMatrix3d(),
                                           CQorString(L"DOTS"), 2.5, 0.0);
    const Rows b = qor_gdx_image_reg_hatch(region({rect(0, 0, 10, 10)}), CQorMatrix3d(),
                                           CQorString(L"DOTS"), 2.5, 1.0);
    ASSERT_EQ(a.len(), b.len());
    for (int i = 0; i < a.len(); ++i)
        EXPECT_EQ(a[i][0].m_start, b[i][0].m_start);
}

TEST(HatchLines, OtherNameAtSizeTenAndStepHalfHasTenRowsStoppingHalfWayUp) {
    const Rows out = qor_gdx_image_reg_hatch(region({rect(0, 0, 10, 10)}), CQorMatrix3d(),
                                             CQorString(L"ANSI31"), 0.5, 0.0);
    ASSERT_EQ(out.len(), 10);
    for (int r = 0; r < 10; ++r) {
        ASSERT_EQ(out[r].len(), 1);
        const CQorVertex& v = out[r][0];
        EXPECT_NEAR(v.m_start.y, 0.5 * r, kEps);
        EXPECT_NEAR(v.m_end.y, 0.5 * r, kEps);
        EXPECT_NEAR(std::fabs(v.m_end.x - v.m_start.x), 10.0, kEps);
    }
}

TEST(HatchLines, RowCountIsTheExtentInWholeUnits) {
    // 7.9 wide and 3 high: the wider extent, 0 to 7.9, truncated: 7 rows.
    const Rows out = qor_gdx_image_reg_hatch(region({rect(0, 0, 7.9, 3)}), CQorMatrix3d(),
                                             CQorString(L"X"), 0.25, 0.0);
    EXPECT_EQ(out.len(), 7);
}

TEST(HatchLines, LinesRunAtTheAngleAndAreClippedToTheRegionAndItsHoles) {
    const double angle = kPi / 4.0;
    const Rows reg = region({rect(0, 0, 20, 20), rect(8, 8, 12, 12)});
    const Rows out = qor_gdx_image_reg_hatch(reg, CQorMatrix3d(), CQorString(L"LINES"), 1.0, angle);
    ASSERT_GT(out.len(), 5);
    for (int i = 0; i < out.len(); ++i) {
        for (int k = 0; k < out[i].len(); ++k) {
            const CQorVertex& v = out[i][k];
            const CQorVector3d d = v.m_end - v.m_start;
            // The row runs from polar(r0, pi - angle) to polar(r0, -angle).
            EXPECT_NEAR(d.x * std::sin(angle) + d.y * std::cos(angle), 0.0, kEps);
            EXPECT_GE(QOR::g_vll_pt_inside(reg, v.mid()), 0);
        }
    }
}

TEST(HatchLines, MatrixTakesRegionInAndRowsOut) {
    CQorMatrix3d shift;
    shift.setToTranslation(CQorVector3d(100, 50, 0));
    const Rows out = qor_gdx_image_reg_hatch(region({rect(100, 50, 110, 60)}), shift,
                                             CQorString(L"X"), 0.5, 0.0);
    ASSERT_EQ(out.len(), 10);
    EXPECT_NEAR(out[0][0].m_start.y, 50.0, kEps);
    EXPECT_NEAR(out[9][0].m_start.y, 54.5, kEps);
}

TEST(HatchLines, GuardDrawsNothingForDotsWithStepZeroOverAHeight) {
    const Rows out = qor_gdx_image_reg_hatch(region({rect(0, 0, 10, 10)}), CQorMatrix3d(),
                                             CQorString(L"DOTS"), 0.0, 0.0);
    EXPECT_EQ(out.len(), 0);
}

TEST(HatchLines, GuardDrawsNoRowsWhenTheRowCountPassesTheIntRange) {
    // 2^31 units wide: one row more than an int counts.
    const Rows out = qor_gdx_image_reg_hatch(region({rect(0, 0, 2147483648.0, 3)}), CQorMatrix3d(),
                                             CQorString(L"X"), 0.25, 0.0);
    EXPECT_EQ(out.len(), 0);
}

TEST(HatchLines, EmptyRegionDrawsNothing) {
    EXPECT_EQ(qor_gdx_image_reg_hatch(Rows(), CQorMatrix3d(), CQorString(L"DOTS"), 1.0, 0.0).len(),
              0);
    EXPECT_EQ(qor_gdx_image_reg_hatch(Rows(), CQorMatrix3d(), CQorString(L"X"), 1.0, 0.0).len(), 0);
}
