#include "foundation/geometry/constants.h"
#include "foundation/geometry/qor_point3d_array.h"

#include <gtest/gtest.h>

TEST(PointArray, IndexOfFindsEqualPointOrNegative) {
    CQorPoint3dArray a;
    a.append(CQorPoint3d(1, 0, 0)).append(CQorPoint3d(2, 0, 0));
    EXPECT_EQ(a.indexOf(CQorPoint3d(2, 0, 0)), 1);
    EXPECT_EQ(a.indexOf(CQorPoint3d(2 + 0.5 * QOR::kPointTol, 0, 0)), 1);
    EXPECT_LT(a.indexOf(CQorPoint3d(3, 0, 0)), 0);
    EXPECT_LT(CQorPoint3dArray().indexOf(CQorPoint3d()), 0);
}

TEST(PointArray, SortAlongDirection) {
    CQorPoint3dArray a;
    a.append(CQorPoint3d(3, 1, 0)).append(CQorPoint3d(1, 5, 0)).append(CQorPoint3d(2, -4, 0));
    CQorPoint3dArray& r = a.sort(CQorVector3d(-1, 0, 0));
    EXPECT_EQ(&r, &a);
    EXPECT_EQ(a[0].x, 3.0);
    EXPECT_EQ(a[1].x, 2.0);
    EXPECT_EQ(a[2].x, 1.0);
    a.sort(CQorVector3d(0, 2, 0));
    EXPECT_EQ(a[0].y, -4.0);
    EXPECT_EQ(a[2].y, 5.0);
}

TEST(PointArray, SortKeepsOrderOfEqualProjectionsAndIgnoresNullDirection) {
    CQorPoint3dArray a;
    a.append(CQorPoint3d(0, 2, 0)).append(CQorPoint3d(0, 1, 0)).append(CQorPoint3d(-1, 3, 0));
    a.sort(CQorVector3d(1, 0, 0));
    EXPECT_EQ(a[0].x, -1.0);
    EXPECT_EQ(a[1].y, 2.0);
    EXPECT_EQ(a[2].y, 1.0);
    a.sort(CQorVector3d());
    EXPECT_EQ(a[0].x, -1.0);
}

TEST(PointArray, CopyIsDeepAndIndexingFollowsArrayRules) {
    CQorPoint3dArray a;
    a[2] = CQorPoint3d(1, 2, 3);
    EXPECT_EQ(a.len(), 3);
    CQorPoint3dArray b(a);
    b[2].x = 9.0;
    EXPECT_EQ(a[2].x, 1.0);
    const CQorPoint3dArray& c = a;
    EXPECT_EQ(c[-1].z, 3.0);
    EXPECT_EQ(c[10].x, 0.0);
    EXPECT_EQ(c.len(), 3);
    a += b;
    EXPECT_EQ(a.len(), 6);
    EXPECT_EQ(a[5].x, 9.0);
}
