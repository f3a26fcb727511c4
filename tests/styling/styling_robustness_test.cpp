// Input that no caller should pass still ends quickly and without harm.
#include "styling/hatch.h"
#include "styling/hatch_density_guard.h"
#include "styling/hatch_lines.h"
#include "styling/line_pattern.h"
#include "styling/split.h"

#include "styling_test_util.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using styling_test::list;
using styling_test::PatternHost;
using styling_test::rect;
using styling_test::region;

namespace {
const double kNan = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();
} // namespace

TEST(StylingRobustness, HatchWithScaleOrAngleNotFiniteEnds) {
    PatternHost host;
    host.add(L"DASH", {{0, 0, 0, 0.3, 1, 0.5, -0.25, 0, -0.25}});
    const auto reg = region({rect(0, 0, 10, 10)});
    for (double scale : {kNan, kInf, -kInf, -1.0, 1e-300}) {
        for (double angle : {0.0, kNan, kInf}) {
            for (const wchar_t* name : {L"_USER", L"DASH"}) {
                const auto rows = qor_gdx_image_reg_hatch2(
                    reg, CQorMatrix3d(), QOR::CHatchProp(name, angle, scale, true));
                for (int r = 0; r < rows.len(); ++r)
                    for (int i = 0; i < rows[r].len(); ++i) {
                        EXPECT_TRUE(std::isfinite(rows[r][i].m_start.x));
                    }
                qor_gdx_pattern_test(reg, QOR::CHatchProp(name, angle, scale, false),
                                     CQorMatrix3d());
            }
        }
    }
}

TEST(StylingRobustness, HatchOfCoordinatesNotFiniteGivesNoRows) {
    PatternHost host;
    host.add(L"DASH", {{0, 0, 0, 0.3, 1, 0.5, -0.25}});
    for (double bad : {kNan, kInf, 1e300}) {
        const auto reg = region({rect(0, 0, bad, 10)});
        for (const wchar_t* name : {L"_USER", L"DASH"}) {
            const auto rows =
                qor_gdx_image_reg_hatch2(reg, CQorMatrix3d(), QOR::CHatchProp(name, 0, 1, false));
            if (bad != 1e300) {
                EXPECT_EQ(rows.len(), 0);
            }
        }
        qor_gdx_image_reg_hatch(reg, CQorMatrix3d(), CQorString(L"DOTS"), 1.0, 0.0);
        qor_gdx_image_reg_hatch(reg, CQorMatrix3d(), CQorString(L"X"), 1.0, 0.0);
    }
}

TEST(StylingRobustness, SingularMatrixDoesNotBreakTheHatch) {
    CQorMatrix3d flat;
    flat.setCoordSystem(CQorPoint3d(), CQorVector3d(), CQorVector3d(), CQorVector3d());
    const auto rows = qor_gdx_image_reg_hatch2(region({rect(0, 0, 10, 10)}), flat,
                                               QOR::CHatchProp(L"_USER", 0, 1, false));
    for (int r = 0; r < rows.len(); ++r)
        EXPECT_GT(rows[r].len(), 0);
}

TEST(StylingRobustness, LinePatternWithEntriesNotFiniteEnds) {
    for (double bad : {kNan, kInf, -kInf, 1e-300, -1e-300}) {
        for (int mode : {0, 1, 2}) {
            CQorVertexArray vl(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(5, 0, 0)));
            EXPECT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, bad}), mode));
            CQorVertexArray vl2(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(5, 0, 0)));
            EXPECT_TRUE(qor_gdx_image_vl_measure(vl2, list({bad, -0.5}), mode));
        }
    }
}

TEST(StylingRobustness, SplitOfArcsNotFiniteEnds) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(kNan, 0, 0), 0.5));
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(1, 0, 0), kInf));
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(0, 0, 0), 0.5));
    const CQorVertexArray out = qor_gdx_image_vl_split(vl);
    EXPECT_GE(out.len(), 3);
}
