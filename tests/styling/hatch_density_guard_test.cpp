#include "styling/hatch_density_guard.h"

#include "styling_test_util.h"

#include <gtest/gtest.h>

using styling_test::PatternHost;
using styling_test::rect;
using styling_test::region;

namespace {

CQorMatrix3d scaling(double f) {
    CQorMatrix3d m;
    m.setToScaling(f, CQorPoint3d());
    return m;
}

bool guard(const wchar_t* name, double width, double height, double scale, double device) {
    return qor_gdx_pattern_test(region({rect(0, 0, width, height)}),
                                QOR::CHatchProp(name, 0.0, scale, false), scaling(device));
}

} // namespace

TEST(PatternGuard, NinetyFiveRowsOrMoreFail) {
    PatternHost host;
    host.add(L"ROWS", {{0, 0, 0, 0, 1.0}});
    EXPECT_TRUE(guard(L"ROWS", 10, 94.9, 1.0, 10.0));
    EXPECT_FALSE(guard(L"ROWS", 10, 95.0, 1.0, 10.0));
    EXPECT_FALSE(guard(L"ROWS", 10, 200.0, 1.0, 10.0));
    // Scale widens the rows: 190 high at scale 2 is again 95 rows.
    EXPECT_FALSE(guard(L"ROWS", 10, 190.0, 2.0, 10.0));
    EXPECT_TRUE(guard(L"ROWS", 10, 189.0, 2.0, 10.0));
}

TEST(PatternGuard, RowDistanceOf2point3DeviceUnitsOrLessFails) {
    PatternHost host;
    host.add(L"ROWS", {{0, 0, 0, 0, 1.0}});
    EXPECT_FALSE(guard(L"ROWS", 10, 10, 1.0, 2.3));
    EXPECT_TRUE(guard(L"ROWS", 10, 10, 1.0, 2.31));
    EXPECT_FALSE(guard(L"ROWS", 10, 10, 0.5, 4.6));
    EXPECT_TRUE(guard(L"ROWS", 10, 10, 0.5, 4.7));
}

TEST(PatternGuard, ShiftAlongTheLineCountsLikeARowDistance) {
    PatternHost host;
    host.add(L"SHIFT", {{0, 0, 0, 0.1, 1.0}});
    // Width 10 over shift 0.1 gives 100.
    EXPECT_FALSE(guard(L"SHIFT", 10, 10, 1.0, 100.0));
    EXPECT_TRUE(guard(L"SHIFT", 9, 10, 1.0, 100.0));
    // The shift is also the smallest distance: 0.1 * 20 = 2.0 device units.
    EXPECT_FALSE(guard(L"SHIFT", 1, 1, 1.0, 20.0));
}

TEST(PatternGuard, NegativeRatiosCannotRaiseTheMost) {
    PatternHost host;
    host.add(L"NEG", {{0, 0, 0, -0.01, -0.01}});
    EXPECT_TRUE(guard(L"NEG", 10, 10, 1.0, 1000.0));
}

TEST(PatternGuard, FamilyDirectionIsTheFrameOfTheRatios) {
    PatternHost host;
    host.add(L"UPRIGHT", {{90, 0, 0, 0, 1.0}});
    // Rows of lines at 90 degrees count across the width.
    EXPECT_FALSE(guard(L"UPRIGHT", 100, 10, 1.0, 10.0));
    EXPECT_TRUE(guard(L"UPRIGHT", 10, 100, 1.0, 10.0));
}

TEST(PatternGuard, UnknownNameIsAcceptedUnlessTheMatrixFlattensX) {
    PatternHost host;
    EXPECT_TRUE(guard(L"NO_SUCH", 10, 10, 1.0, 1.0));
    EXPECT_TRUE(guard(L"NO_SUCH", 10, 10, 1.0, 1e-6));
    CQorMatrix3d flat;
    flat.setCoordSystem(CQorPoint3d(), CQorVector3d(), CQorVector3d(0, 1, 0),
                        CQorVector3d(0, 0, 1));
    EXPECT_FALSE(qor_gdx_pattern_test(region({rect(0, 0, 1, 1)}),
                                      QOR::CHatchProp(L"NO_SUCH", 0, 1, false), flat));
}

TEST(PatternGuard, UserNamesHaveNoTableHere) {
    PatternHost host;
    // "_USER" at a row distance of 0.001 would be far too dense, but the guard only
    // knows the host's tables.
    EXPECT_TRUE(guard(L"_USER", 100, 100, 0.001, 1.0));
}

TEST(PatternGuard, ScaleZeroFails) {
    PatternHost host;
    host.add(L"ROWS", {{0, 0, 0, 0.5, 1.0}});
    EXPECT_FALSE(guard(L"ROWS", 10, 10, 0.0, 10.0));
}

TEST(PatternGuard, EmptyRegionPassesAFinePattern) {
    PatternHost host;
    host.add(L"ROWS", {{0, 0, 0, 0, 1.0}});
    EXPECT_TRUE(qor_gdx_pattern_test(CQorArrayTempl<CQorVertexArray>(),
                                     QOR::CHatchProp(L"ROWS", 0, 1, false), scaling(10.0)));
}

TEST(PatternGuard, DefaultHostPatternsAtTheirUsualScales) {
    // The default host's ANSI31 has rows 1/8 apart: over a 100 unit square at
    // scale 1 there are 1131 rows on the diagonal frame; at scale 20 it passes.
    const auto reg = region({rect(0, 0, 100, 100)});
    EXPECT_FALSE(qor_gdx_pattern_test(reg, QOR::CHatchProp(L"ANSI31", 0, 1.0, false), scaling(1)));
    EXPECT_TRUE(qor_gdx_pattern_test(reg, QOR::CHatchProp(L"ANSI31", 0, 20.0, false), scaling(1)));
}
