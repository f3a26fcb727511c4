// Arrays whose plane is not the xy plane: crossings, punching and containment
// work in the plane of the array.
#include "geom_test_util.h"

#include <cmath>

using geomtest::expectPointNear;

namespace {

// The matrix that stands the xy plane up into the xz plane (y goes to z).
CQorMatrix3d standUp() {
    CQorMatrix3d m;
    m.setToRotation(kPi / 2, CQorVector3d::kXAxis, CQorPoint3d::kOrigin);
    return m;
}

} // namespace

TEST(Plane, PunchInTiltedPlaneMatchesPunchInXy) {
    const CQorMatrix3d m = standUp();
    const CQorVertexArray circle = geomtest::circle(0, 0, 1).getTransformedCopy(m.m);
    const CQorVertexArray row = geomtest::line(-2, 0.6, 2, 0.6).getTransformedCopy(m.m);
    EXPECT_NEAR(row.normal().y, -1.0, 1e-15);
    const auto in = QOR::g_vl_punch(row, circle, true);
    ASSERT_EQ(in.len(), 1);
    expectPointNear(in[0][0].m_start, CQorPoint3d(-0.8, 0, 0.6), 1e-14);
    expectPointNear(in[0][0].m_end, CQorPoint3d(0.8, 0, 0.6), 1e-14);
    const CQorPoint3dArray x = row.intersectWith(circle, 3);
    ASSERT_EQ(x.len(), 2);
    expectPointNear(x[0], CQorPoint3d(-0.8, 0, 0.6), 1e-14);
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(circle);
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(0, 0, 0.9)), 1);
    EXPECT_EQ(QOR::g_vll_pt_inside(reg, CQorPoint3d(0.9, 0, 0.9)), -1);
}

TEST(Plane, ArrayFacingDownTurnsArcsTheOtherWay) {
    // The same coordinates with the normal -z: the bulge 1 arcs now run
    // clockwise seen from above, the half circle from (1,0) to (-1,0) passes
    // (0,-1).
    CQorVertexArray half(CQorVertex(CQorPoint3d(1, 0, 0), CQorPoint3d(-1, 0, 0), 1.0));
    half.normalSet(CQorVector3d(0, 0, -1));
    CQorPoint3d lo, hi;
    half.extents(lo, hi);
    expectPointNear(lo, CQorPoint3d(-1, -1, 0));
    expectPointNear(hi, CQorPoint3d(1, 0, 0));
    const CQorPoint3dArray x = geomtest::line(-2, -0.6, 2, -0.6).intersectWith(half, 3);
    ASSERT_EQ(x.len(), 2);
    expectPointNear(x[0], CQorPoint3d(-0.8, -0.6, 0), 1e-14);
    EXPECT_EQ(geomtest::line(-2, 0.6, 2, 0.6).intersectWith(half, 3).len(), 0);
}

TEST(Plane, TransformRoundTripKeepsArcs) {
    CQorVertexArray vl = geomtest::circle(2, 3, 1.5);
    vl[0].m_attr = 5;
    CQorMatrix3d m;
    m.setCoordSystem(CQorPoint3d(1, 2, 3), CQorVector3d(0, 1, 0), CQorVector3d(0, 0, -1),
                     CQorVector3d(1, 0, 0));
    const CQorVertexArray back = vl.getTransformedCopy(m.m).getTransformedCopy(m.inverse().m);
    ASSERT_EQ(back.len(), 2);
    EXPECT_NEAR(back.normal().z, 1.0, 1e-15);
    EXPECT_EQ(back[0].m_attr, 5u);
    for (int i = 0; i < 2; ++i) {
        EXPECT_NEAR(back[i].m_bulge, vl[i].m_bulge, 1e-12);
        expectPointNear(back[i].mid(), vl[i].mid(), 1e-12);
    }
}
