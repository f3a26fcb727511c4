#include "tests/foundation/geom_test_util.h"

#include <cmath>
#include <random>

using geomtest::expectPointNear;

TEST(SplitDif, QuarterArcOfRadiusOneAtOneHundredth) {
    const CQorVertex q(CQorPoint3d(1, 0, 0), CQorPoint3d(0, 1, 0), std::tan(kPi / 8));
    // 2 acos(0.99) = 0.28308 rad per chord; 1.5708 / 0.28308 = 5.55, so 6 chords.
    EXPECT_EQ(QOR::g_vx_split_dif(q, 0.01), 6);
    // Each of the 6 chords keeps the error: r (1 - cos(pi / 24)) = 0.00856.
    EXPECT_LT(1.0 - std::cos(kPi / 24), 0.01);
    EXPECT_GT(1.0 - std::cos(kPi / 20), 0.01);
}

TEST(SplitDif, StraightAndDegenerateInput) {
    EXPECT_EQ(QOR::g_vx_split_dif(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(5, 0, 0)), 0.1), 1);
    const CQorVertex point(CQorPoint3d(1, 1, 0), CQorPoint3d(1, 1, 0), 1.0);
    EXPECT_EQ(QOR::g_vx_split_dif(point, 0.1), 1);
    const CQorVertex half(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0);
    EXPECT_EQ(QOR::g_vx_split_dif(half, 0.0), QOR::kMaxChords);
    EXPECT_EQ(QOR::g_vx_split_dif(half, -1.0), QOR::kMaxChords);
    EXPECT_EQ(QOR::g_vx_split_dif(half, QOR::nan()), QOR::kMaxChords);
    EXPECT_EQ(QOR::g_vx_split_dif(half, 5.0), 1);
    // Tolerance equal to the radius: one chord spans the half circle (sagitta 1).
    EXPECT_EQ(QOR::g_vx_split_dif(half, 1.0), 1);
    // Half the radius: chords of 2 acos(0.5) = 120 degrees, so two for a half.
    EXPECT_EQ(QOR::g_vx_split_dif(half, 0.5), 2);
}

TEST(SplitDif, SmallerToleranceNeverGivesFewerChordsProperty) {
    std::mt19937 rng(4242u);
    std::uniform_real_distribution<double> b(-20.0, 20.0);
    std::uniform_real_distribution<double> l(1e-3, 1e3);
    std::uniform_real_distribution<double> t(1e-6, 10.0);
    for (int n = 0; n < 2000; ++n) {
        const CQorVertex v(CQorPoint3d(0, 0, 0), CQorPoint3d(l(rng), 0, 0), b(rng));
        double t1 = t(rng), t2 = t(rng);
        if (t2 > t1)
            std::swap(t1, t2);
        EXPECT_GE(QOR::g_vx_split_dif(v, t2), QOR::g_vx_split_dif(v, t1));
    }
}

TEST(Expl, ArcBecomesEqualAngleChordsInOrder) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(-2, 0, 0), CQorPoint3d(1, 0, 0)));
    vl.append(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    const CQorVertexArray e = QOR::g_vl_expl(vl, 4);
    ASSERT_EQ(e.len(), 5);
    EXPECT_EQ(e[0].m_start.x, -2.0);
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(e[k + 1].m_bulge, 0.0);
        expectPointNear(e[k + 1].m_start,
                        CQorPoint3d(std::cos(k * kPi / 4), std::sin(k * kPi / 4), 0));
    }
    EXPECT_TRUE(e[4].m_end == CQorPoint3d(-1, 0, 0));
    EXPECT_TRUE(e.isContinuous());
    EXPECT_EQ(QOR::g_vl_expl(vl, 0).len(), 2);
    EXPECT_EQ(QOR::g_vl_expl(CQorVertexArray(), 3).len(), 0);
}

TEST(VlToVll, SplitsAtGapsInOrder) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(1, 0, 0)));
    vl.append(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(1, 1, 0)));
    vl.append(CQorVertex(CQorPoint3d(5, 0, 0), CQorPoint3d(6, 0, 0)));
    vl.normalSet(CQorVector3d(0, 0, -1));
    const CQorArrayTempl<CQorVertexArray> runs = QOR::g_vl_to_vll(vl);
    ASSERT_EQ(runs.len(), 2);
    EXPECT_EQ(runs[0].len(), 2);
    EXPECT_EQ(runs[1].len(), 1);
    EXPECT_EQ(runs[1][0].m_start.x, 5.0);
    EXPECT_EQ(runs[1].normal().z, -1.0);
    EXPECT_EQ(QOR::g_vl_to_vll(CQorVertexArray()).len(), 0);
    EXPECT_EQ(QOR::g_vl_to_vll(geomtest::rect(0, 0, 1, 1)).len(), 1);
}

TEST(Expl, TiltedArcExplodedInItsPlaneComesBackInThatPlane) {
    const CQorVector3d n(0.0, -1.0, 2.0);
    CQorMatrix3d planeToWorld;
    planeToWorld.setToPlaneToWorld(n);
    const CQorMatrix3d worldToPlane = planeToWorld.inverse();
    CQorVertex arc(CQorPoint3d(3, 0, 0), CQorPoint3d(-3, 0, 0), 0.7);
    arc.transformBy(planeToWorld.m);
    arc.m_attr = 9;
    CQorVertex copy = arc;
    copy.transformBy(worldToPlane.m);
    const CQorVertexArray one(copy);
    CQorVertexArray chords = QOR::g_vl_expl(one, QOR::g_vx_split_dif(copy, 0.01));
    chords.transformBy(planeToWorld.m);
    ASSERT_GT(chords.len(), 4);
    expectPointNear(chords[0].m_start, arc.m_start, 1e-12);
    expectPointNear(chords[-1].m_end, arc.m_end, 1e-12);
    CQorVector3d unit = n;
    unit.normalize();
    for (const CQorVertex& c : chords) {
        EXPECT_NEAR((c.m_end - arc.m_start).dot(unit), 0.0, 1e-12);
        EXPECT_TRUE(arc.isPoint(c.m_end, unit));
        EXPECT_EQ(c.m_attr, 9u);
    }
}
