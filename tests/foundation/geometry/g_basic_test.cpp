#include "tests/foundation/geom_test_util.h"

#include <cmath>

using geomtest::expectPointNear;

TEST(GeomBasic, PMinPMaxAreComponentwise) {
    const CQorPoint3d a(1, 5, -2), b(3, -1, 0);
    expectPointNear(QOR::p_min(a, b), CQorPoint3d(1, -1, -2), 0.0);
    expectPointNear(QOR::p_max(a, b), CQorPoint3d(3, 5, 0), 0.0);
}

TEST(GeomBasic, PolarPointAndVector) {
    expectPointNear(QOR::polar(CQorPoint3d(1, 1, 5), kPi / 2, 2.0), CQorPoint3d(1, 3, 5));
    expectPointNear(QOR::polar(CQorPoint3d(0, 0, 0), 0.0, -3.0), CQorPoint3d(-3, 0, 0));
    const CQorVector3d v = QOR::polar(kPi, -2.0);
    EXPECT_NEAR(v.x, 2.0, 1e-15);
    EXPECT_NEAR(v.y, 0.0, 1e-15);
    EXPECT_EQ(v.z, 0.0);
    EXPECT_NEAR(QOR::polar(kPi / 6, 2.0).y, 1.0, 1e-15);
}

TEST(GeomBasic, GAngNormalisesIntoOneTurn) {
    EXPECT_NEAR(QOR::g_ang(-kPi / 2), 1.5 * kPi, 1e-15);
    EXPECT_NEAR(QOR::g_ang(5.0 * kPi), kPi, 1e-14);
    EXPECT_EQ(QOR::g_ang(2.0 * kPi), 0.0);
    EXPECT_EQ(QOR::g_ang(0.0), 0.0);
    EXPECT_NEAR(QOR::g_ang(1.0), 1.0, 0.0);
    EXPECT_LT(QOR::g_ang(-1e-300), 2.0 * kPi);
    EXPECT_TRUE(std::isnan(QOR::g_ang(QOR::nan())));
}

TEST(GeomBasic, NanIsNotFinite) {
    EXPECT_FALSE(std::isfinite(QOR::nan()));
    EXPECT_TRUE(std::isnan(QOR::nan()));
}

TEST(GeomBasic, VxXyDropsZ) {
    CQorVertex v(CQorPoint3d(1, 2, 3), CQorPoint3d(4, 5, 6), 0.5);
    CQorVertex& r = QOR::g_vx_xy(v);
    EXPECT_EQ(&r, &v);
    EXPECT_EQ(v.m_start.z, 0.0);
    EXPECT_EQ(v.m_end.z, 0.0);
    EXPECT_EQ(v.m_end.y, 5.0);
    EXPECT_EQ(v.m_bulge, 0.5);
}

TEST(GeomBasic, OutlineOfUnknownTypeIsEmpty) {
    CQorArrayTempl<double> parm;
    parm.append(1.0);
    for (int type : {-1, 0, 12, 20, 22, 1000})
        EXPECT_EQ(QOR::g_outline(type, CQorVector3d(100, 50, 5), parm).len(), 0) << type;
}

TEST(LineParm, DashGapAndListConstructors) {
    const CQorLineParm a(0.0, -2.5);
    ASSERT_EQ(a.list().len(), 2);
    EXPECT_EQ(a.list()[0], 0.0);
    EXPECT_EQ(a.list()[1], -2.5);
    EXPECT_EQ(a.period(), 2.5);
    CQorArrayTempl<double> l;
    l.append(3.0).append(-1.0).append(0.0).append(-1.0);
    const CQorLineParm b(l);
    EXPECT_EQ(b.list().len(), 4);
    EXPECT_EQ(b.period(), 5.0);
    EXPECT_EQ(CQorLineParm().list().len(), 0);
}
