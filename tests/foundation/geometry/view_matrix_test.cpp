#include "foundation/geometry/view_matrix.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

void expectVectorNear(const CQorVector3d& a, const CQorVector3d& b, double tol = 1e-12) {
    EXPECT_NEAR(a.x, b.x, tol) << "x";
    EXPECT_NEAR(a.y, b.y, tol) << "y";
    EXPECT_NEAR(a.z, b.z, tol) << "z";
}

void expectPointNear(const CQorPoint3d& a, const CQorPoint3d& b, double tol = 1e-12) {
    EXPECT_NEAR(a.x, b.x, tol) << "x";
    EXPECT_NEAR(a.y, b.y, tol) << "y";
    EXPECT_NEAR(a.z, b.z, tol) << "z";
}

CQorVector3d turn(const CQorVector3d& v, const CQorMatrix3d& m) {
    return v * static_cast<const double(*)[4]>(m.m);
}

CQorPoint3d move(const CQorPoint3d& p, const CQorMatrix3d& m) {
    return p * static_cast<const double(*)[4]>(m.m);
}

} // namespace

TEST(ViewMatrix, PlanViewIsTheIdentity) {
    const CQorMatrix3d m = QOR::g_mtx_view(CQorVector3d::kZAxis, CQorPoint3d(5, 6, 7), true);
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            EXPECT_EQ(m.m[i][j], i == j ? 1.0 : 0.0) << i << "," << j;
}

TEST(ViewMatrix, LengthOfTheDirectionDoesNotMatter) {
    const CQorMatrix3d a = QOR::g_mtx_view(CQorVector3d(0, 0, 5), CQorPoint3d(), true);
    const CQorMatrix3d b = QOR::g_mtx_view(CQorVector3d(-2, -2, 2), CQorPoint3d(), true);
    const CQorMatrix3d c = QOR::g_mtx_view(CQorVector3d(-1, -1, 1), CQorPoint3d(), true);
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            EXPECT_EQ(a.m[i][j], i == j ? 1.0 : 0.0);
            EXPECT_NEAR(b.m[i][j], c.m[i][j], 1e-15);
        }
    }
}

TEST(ViewMatrix, ZAxisPointsToTheViewer) {
    const CQorVector3d dir(2, -3, 4);
    const CQorMatrix3d m = QOR::g_mtx_view(dir, CQorPoint3d(), true);
    const double len = std::sqrt(29.0);
    expectVectorNear(turn(dir, m), CQorVector3d(0, 0, len));
}

TEST(ViewMatrix, FrontViewFromTheSouthShowsXRightAndZUp) {
    const CQorMatrix3d m = QOR::g_mtx_view(CQorVector3d(0, -1, 0), CQorPoint3d(), true);
    expectVectorNear(turn(CQorVector3d::kXAxis, m), CQorVector3d(1, 0, 0));
    expectVectorNear(turn(CQorVector3d::kZAxis, m), CQorVector3d(0, 1, 0));
    expectVectorNear(turn(CQorVector3d::kYAxis, m), CQorVector3d(0, 0, -1));
}

TEST(ViewMatrix, ViewFromTheEastShowsNorthToTheRight) {
    const CQorMatrix3d m = QOR::g_mtx_view(CQorVector3d::kXAxis, CQorPoint3d(), true);
    expectVectorNear(turn(CQorVector3d::kYAxis, m), CQorVector3d(1, 0, 0));
    expectVectorNear(turn(CQorVector3d::kZAxis, m), CQorVector3d(0, 1, 0));
}

TEST(ViewMatrix, SouthWestIsoViewHandComputed) {
    // x = (1, -1, 0) / sqrt 2, y = (1, 1, 2) / sqrt 6, z = (-1, -1, 1) / sqrt 3.
    const CQorMatrix3d m = QOR::g_mtx_view(CQorVector3d(-1, -1, 1), CQorPoint3d(), true);
    const double r2 = std::sqrt(2.0), r3 = std::sqrt(3.0), r6 = std::sqrt(6.0);
    expectVectorNear(turn(CQorVector3d::kXAxis, m), CQorVector3d(1 / r2, 1 / r6, -1 / r3));
    expectVectorNear(turn(CQorVector3d::kYAxis, m), CQorVector3d(-1 / r2, 1 / r6, -1 / r3));
    expectVectorNear(turn(CQorVector3d::kZAxis, m), CQorVector3d(0, 2 / r6, 1 / r3));
}

TEST(ViewMatrix, ViewFromBelowKeepsXAndTurnsYAndZ) {
    const CQorMatrix3d m = QOR::g_mtx_view(CQorVector3d(0, 0, -3), CQorPoint3d(), true);
    expectVectorNear(turn(CQorVector3d::kXAxis, m), CQorVector3d(1, 0, 0));
    expectVectorNear(turn(CQorVector3d::kYAxis, m), CQorVector3d(0, -1, 0));
    expectVectorNear(turn(CQorVector3d::kZAxis, m), CQorVector3d(0, 0, -1));
}

TEST(ViewMatrix, NullDirectionIsThePlanView) {
    const CQorMatrix3d m = QOR::g_mtx_view(CQorVector3d(), CQorPoint3d(1, 2, 3), true);
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            EXPECT_EQ(m.m[i][j], i == j ? 1.0 : 0.0);
}

TEST(ViewMatrix, OriginKeepsItsPlaceOrBecomesZero) {
    const CQorPoint3d origin(10, 20, 30);
    const CQorVector3d dir(1, 1, 1);
    expectPointNear(move(origin, QOR::g_mtx_view(dir, origin, true)), origin, 1e-12);
    expectPointNear(move(origin, QOR::g_mtx_view(dir, origin, false)), CQorPoint3d(), 1e-12);
    const CQorMatrix3d plan = QOR::g_mtx_view(CQorVector3d::kZAxis, origin, false);
    expectPointNear(move(CQorPoint3d(11, 20, 30), plan), CQorPoint3d(1, 0, 0));
}

TEST(ViewMatrix, ResultIsARotationForSeededDirections) {
    std::mt19937 rng(42);
    std::uniform_real_distribution<double> d(-1.0, 1.0);
    for (int i = 0; i < 500; ++i) {
        const CQorVector3d dir(d(rng), d(rng), d(rng));
        const CQorMatrix3d m = QOR::g_mtx_view(dir, CQorPoint3d(), true);
        EXPECT_NEAR(m.det3(), 1.0, 1e-12);
        // Orthonormal rows.
        for (int a = 0; a < 3; ++a) {
            for (int b = 0; b < 3; ++b) {
                const double dot =
                    m.m[a][0] * m.m[b][0] + m.m[a][1] * m.m[b][1] + m.m[a][2] * m.m[b][2];
                EXPECT_NEAR(dot, a == b ? 1.0 : 0.0, 1e-12);
            }
        }
        // The x axis of the view is horizontal: world z shows upright.
        EXPECT_NEAR(m.m[0][2], 0.0, 1e-12);
        EXPECT_GE(m.m[1][2], 0.0);
    }
}
