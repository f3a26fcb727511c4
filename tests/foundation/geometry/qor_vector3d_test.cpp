#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_vector3d.h"
#include "tests/foundation/geom_test_util.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Vector, DefaultIsNull) {
    CQorVector3d v;
    EXPECT_EQ(v.abs(), 0.0);
}

TEST(Vector, SumDifferenceNegationScale) {
    const CQorVector3d a(1.0, 2.0, 3.0), b(4.0, 5.0, 6.0);
    const CQorVector3d s = a + b, d = b - a, n = -a, k = a * 2.0;
    EXPECT_EQ(s.x, 5.0);
    EXPECT_EQ(s.z, 9.0);
    EXPECT_EQ(d.y, 3.0);
    EXPECT_EQ(n.z, -3.0);
    EXPECT_EQ(k.y, 4.0);
}

TEST(Vector, StarOfTwoVectorsIsCrossProduct) {
    const CQorVector3d y = CQorVector3d::kZAxis * CQorVector3d::kXAxis;
    EXPECT_EQ(y.x, 0.0);
    EXPECT_EQ(y.y, 1.0);
    EXPECT_EQ(y.z, 0.0);
    const CQorVector3d c = CQorVector3d(1, 2, 3) * CQorVector3d(4, 5, 6);
    EXPECT_EQ(c.x, -3.0);
    EXPECT_EQ(c.y, 6.0);
    EXPECT_EQ(c.z, -3.0);
}

TEST(Vector, LengthAndNormalize) {
    CQorVector3d v(3.0, 0.0, 4.0);
    EXPECT_DOUBLE_EQ(v.abs(), 5.0);
    v.normalize();
    EXPECT_DOUBLE_EQ(v.x, 0.6);
    EXPECT_DOUBLE_EQ(v.z, 0.8);
    CQorVector3d zero;
    zero.normalize();
    EXPECT_EQ(zero.abs(), 0.0);
}

TEST(Vector, VectorTimesMatrixIgnoresTranslation) {
    CQorMatrix3d m;
    m.setToTranslation(CQorVector3d(10.0, 20.0, 30.0));
    const CQorVector3d v = CQorVector3d(1.0, 2.0, 3.0) * m.m;
    EXPECT_EQ(v.x, 1.0);
    EXPECT_EQ(v.y, 2.0);
    EXPECT_EQ(v.z, 3.0);
    CQorMatrix3d r;
    r.setToRotation(kPi / 2, CQorVector3d::kZAxis, CQorPoint3d(5.0, 5.0, 0.0));
    const CQorVector3d w = CQorVector3d::kXAxis * r.m;
    EXPECT_NEAR(w.x, 0.0, 1e-15);
    EXPECT_NEAR(w.y, 1.0, 1e-15);
}

#if defined(__SANITIZE_ADDRESS__)
#define QOR_SKIP_UNDER_SANITIZER() GTEST_SKIP() << "layout view, rejected by the vptr check"
#else
#define QOR_SKIP_UNDER_SANITIZER() (void)0
#endif

TEST(Vector, AsPointSharesTheCoordinates) {
    QOR_SKIP_UNDER_SANITIZER();
    CQorVector3d v(1.0, 2.0, 3.0);
    v.asPoint().z = 9.0;
    EXPECT_EQ(v.z, 9.0);
}
