#include "foundation/geometry/qor_matrix3d.h"
#include "tests/foundation/geom_test_util.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

void expectPointNear(const CQorPoint3d& a, const CQorPoint3d& b, double tol = 1e-12) {
    EXPECT_NEAR(a.x, b.x, tol) << "x";
    EXPECT_NEAR(a.y, b.y, tol) << "y";
    EXPECT_NEAR(a.z, b.z, tol) << "z";
}

void expectMatrixNear(const CQorMatrix3d& a, const CQorMatrix3d& b, double tol) {
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            EXPECT_NEAR(a.m[i][j], b.m[i][j], tol) << "at " << i << "," << j;
}

} // namespace

TEST(Matrix, DefaultIsIdentity) {
    CQorMatrix3d m;
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            EXPECT_EQ(m.m[i][j], i == j ? 1.0 : 0.0);
    expectMatrixNear(m, CQorMatrix3d::kIdentity, 0.0);
}

TEST(Matrix, StorageIsRowMajorWithTranslationInColumnThree) {
    CQorMatrix3d t;
    t.setToTranslation(CQorVector3d(1.0, 2.0, 3.0));
    const double(&v)[4][4] = t;
    EXPECT_EQ(v[0][3], 1.0);
    EXPECT_EQ(v[1][3], 2.0);
    EXPECT_EQ(v[2][3], 3.0);
    EXPECT_EQ(v[3][3], 1.0);
    const CQorVector3d tr = t.translation();
    EXPECT_EQ(tr.y, 2.0);
}

TEST(Matrix, ProductAppliesRightOperandFirst) {
    CQorMatrix3d t, r;
    t.setToTranslation(CQorVector3d(10.0, 0.0, 0.0));
    r.setToRotation(kPi / 2, CQorVector3d::kZAxis, CQorPoint3d::kOrigin);
    // (t * r): rotate (1,0,0) to (0,1,0), then translate to (10,1,0).
    expectPointNear(CQorPoint3d(1, 0, 0) * (t * r).m, CQorPoint3d(10, 1, 0));
    // (r * t): translate to (11,0,0), then rotate to (0,11,0).
    expectPointNear(CQorPoint3d(1, 0, 0) * (r * t).m, CQorPoint3d(0, 11, 0));
    CQorMatrix3d a = t;
    a *= r;
    expectMatrixNear(a, t * r, 0.0);
}

TEST(Matrix, ScalingAboutCentreKeepsCentre) {
    CQorMatrix3d s;
    s.setToScaling(3.0, CQorPoint3d(1.0, 1.0, 1.0));
    expectPointNear(CQorPoint3d(1, 1, 1) * s.m, CQorPoint3d(1, 1, 1));
    expectPointNear(CQorPoint3d(2, 1, 0) * s.m, CQorPoint3d(4, 1, -2));
}

TEST(Matrix, RotationAboutAxisThroughCentre) {
    CQorMatrix3d r;
    r.setToRotation(kPi / 2, CQorVector3d::kZAxis, CQorPoint3d(1.0, 0.0, 0.0));
    expectPointNear(CQorPoint3d(2, 0, 5) * r.m, CQorPoint3d(1, 1, 5));
    r.setToRotation(2.0 * kPi / 3.0, CQorVector3d(1, 1, 1), CQorPoint3d::kOrigin);
    // A third of a turn about the diagonal cycles the axes.
    expectPointNear(CQorPoint3d(1, 0, 0) * r.m, CQorPoint3d(0, 1, 0));
    r.setToRotation(1.0, CQorVector3d(), CQorPoint3d(3, 3, 3));
    expectMatrixNear(r, CQorMatrix3d::kIdentity, 0.0);
}

TEST(Matrix, SetCoordSystemMapsUnitVectorsAndOrigin) {
    CQorMatrix3d m;
    m.setCoordSystem(CQorPoint3d(1, 2, 3), CQorVector3d(0, 2, 0), CQorVector3d(-1, 0, 0),
                     CQorVector3d(0, 0, 1));
    expectPointNear(CQorPoint3d(0, 0, 0) * m.m, CQorPoint3d(1, 2, 3));
    expectPointNear(CQorPoint3d(1, 0, 0) * m.m, CQorPoint3d(1, 4, 3));
    expectPointNear(CQorPoint3d(0, 1, 0) * m.m, CQorPoint3d(0, 2, 3));
    EXPECT_EQ(m.axis(0).y, 2.0);
    EXPECT_EQ(m.axis(1).x, -1.0);
    EXPECT_EQ(m.axis(2).z, 1.0);
    EXPECT_EQ(m.axis(3).abs(), 0.0);
}

TEST(Matrix, SetCoordSystemWithNegativeYIsLeftHandedAndInverseUndoesIt) {
    CQorMatrix3d m;
    m.setCoordSystem(CQorPoint3d(5, -2, 1), CQorVector3d(1, 0, 0), CQorVector3d(0, -1, 0),
                     CQorVector3d(0, 0, 1));
    EXPECT_LT(m.det3(), 0.0);
    const CQorMatrix3d inv = m.inverse();
    expectMatrixNear(m * inv, CQorMatrix3d::kIdentity, 1e-15);
    const CQorPoint3d p(3.0, 4.0, -7.0);
    expectPointNear((p * m.m) * inv.m, p);
    expectPointNear(p * m.m, CQorPoint3d(8.0, -6.0, -6.0));
}

TEST(Matrix, InverseOfLeftHandedFramesUndoesThemProperty) {
    std::mt19937 rng(20261122u);
    std::uniform_real_distribution<double> u(-10.0, 10.0);
    for (int n = 0; n < 200; ++n) {
        const CQorVector3d x(u(rng), u(rng), u(rng));
        CQorVector3d y(u(rng), u(rng), u(rng));
        // Left-handed: z against the cross product of x and y.
        const CQorVector3d z = -(x * y) * (1.0 / (x * y).abs()) * (1.0 + std::fabs(u(rng)));
        CQorMatrix3d m;
        m.setCoordSystem(CQorPoint3d(u(rng), u(rng), u(rng)), x, y, z);
        ASSERT_LT(m.det3(), 0.0);
        const CQorMatrix3d inv = m.inverse();
        const CQorPoint3d p(u(rng), u(rng), u(rng));
        const CQorPoint3d back = (p * m.m) * inv.m;
        const double scale = 1e-9 * (1.0 + x.abs() * y.abs());
        EXPECT_NEAR(back.x, p.x, scale);
        EXPECT_NEAR(back.y, p.y, scale);
        EXPECT_NEAR(back.z, p.z, scale);
    }
}

TEST(Matrix, SingularInverseIsIdentityAndNotReported) {
    CQorMatrix3d s;
    s.setToScaling(0.0, CQorPoint3d::kOrigin);
    expectMatrixNear(s.inverse(), CQorMatrix3d::kIdentity, 0.0);
}

TEST(Matrix, PlaneToWorldTakesZToNormalAndInverseFlattens) {
    CQorMatrix3d m;
    m.setToPlaneToWorld(CQorVector3d::kZAxis);
    expectMatrixNear(m, CQorMatrix3d::kIdentity, 0.0);
    const CQorVector3d n(1.0, 2.0, 2.0);
    m.setToPlaneToWorld(n);
    const CQorVector3d z = m.axis(2);
    EXPECT_NEAR(z.x, 1.0 / 3.0, 1e-15);
    EXPECT_NEAR(z.y, 2.0 / 3.0, 1e-15);
    EXPECT_NEAR(z.z, 2.0 / 3.0, 1e-15);
    EXPECT_GT(m.det3(), 0.0);
    EXPECT_NEAR(m.axis(0).dot(z), 0.0, 1e-15);
    // A point of the plane through the origin comes to z = 0.
    const CQorPoint3d inPlane = CQorPoint3d(0, 0, 0) + m.axis(0) * 3.0 + m.axis(1) * 2.0;
    EXPECT_NEAR((inPlane * m.inverse().m).z, 0.0, 1e-14);
    m.setToPlaneToWorld(CQorVector3d(0, 0, -2));
    EXPECT_NEAR(m.axis(2).z, -1.0, 1e-15);
    EXPECT_GT(m.det3(), 0.0);
}

TEST(Matrix, ConvertsToTheValuesThatTransformingOperationsTake) {
    CQorMatrix3d t;
    t.setToTranslation(CQorVector3d(1.0, 2.0, 3.0));
    const CQorMatrix3d& c = t;
    expectPointNear(CQorPoint3d(0, 0, 0) * c, CQorPoint3d(1, 2, 3));
    const CQorVector3d v = CQorVector3d(1, 0, 0) * c;
    EXPECT_EQ(v.x, 1.0);
    EXPECT_EQ(v.y, 0.0);
    CQorPoint3d p(1, 1, 1);
    p *= t;
    expectPointNear(p, CQorPoint3d(2, 3, 4));
    double(&values)[4][4] = t;
    values[0][3] = 5.0;
    EXPECT_EQ(t.translation().x, 5.0);
}
