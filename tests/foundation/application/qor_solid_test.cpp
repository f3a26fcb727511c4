#include "foundation/application/model_services.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"
#include "foundation/geometry/constants.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

namespace {

// The oblique view of the drill image: x along (1, 1, 0), z along (1, -1, 1),
// y = z x x, all of unit length.
CQorMatrix3d obliqueView() {
    CQorVector3d x(1, 1, 0), z(1, -1, 1);
    x.normalize();
    z.normalize();
    CQorMatrix3d v;
    v.setCoordSystem(CQorPoint3d::kOrigin, x, z * x, z);
    return v;
}

CQorMatrix3d viewAlong(const CQorVector3d& z) {
    CQorMatrix3d v;
    v.setToPlaneToWorld(z);
    return v;
}

// The xy box of edges, sampled densely along every piece (arcs in their plane).
void edgeBox(const CQorArrayTempl<CQorVertexArrayEx>& edges, CQorPoint3d& lo, CQorPoint3d& hi) {
    lo = CQorPoint3d(DBL_MAX, DBL_MAX, DBL_MAX);
    hi = CQorPoint3d(-DBL_MAX, -DBL_MAX, -DBL_MAX);
    for (const CQorVertexArrayEx& vl : edges)
        for (const CQorVertex& v : vl)
            for (int i = 0; i <= 4000; ++i) {
                const CQorPoint3d p = v.pointAt(i / 4000.0, vl.normal());
                lo = CQorPoint3d(std::fmin(lo.x, p.x), std::fmin(lo.y, p.y), 0);
                hi = CQorPoint3d(std::fmax(hi.x, p.x), std::fmax(hi.y, p.y), 0);
            }
}

CQor_Solid drill(double dia, double depth, double tip = 118.0) {
    CQor_Solid s;
    EXPECT_TRUE(s.setDrill(dia, depth, tip));
    EXPECT_TRUE(s.solid());
    EXPECT_TRUE(s.evaluate(1));
    return s;
}

} // namespace

TEST(SolidKernel, DrillInTheObliqueViewMatchesTheHandComputedSilhouette) {
    CQor_Solid s = drill(10.0, 20.0);
    CQorArrayTempl<CQorVertexArrayEx> first, second;
    ASSERT_TRUE(s.project(obliqueView(), false, first, second, 1));
    EXPECT_EQ(second.len(), 0);
    // The axis (0, 0, 1) seen in the view is (0, 2 / sqrt 6, 1 / sqrt 3): it
    // runs up the view's y axis, tilted towards the viewer, so the top disc is
    // seen. A circle of radius 5 about it spans x -5 to 5 and y -5/sqrt 3 to
    // 5/sqrt 3 about its centre. The top circle is centred at the origin; the
    // circle at depth 20 at y = -20 * 2 / sqrt 6; the tip's apex, 5 / tan 59
    // degrees further down, at -23.004 * 2 / sqrt 6 = -18.78 lies above the lowest
    // point of that circle, -16.33 - 2.89.
    const double ay = 2.0 / std::sqrt(6.0);
    const double half = 5.0 / std::sqrt(3.0);
    CQorPoint3d lo, hi;
    edgeBox(first, lo, hi);
    EXPECT_NEAR(lo.x, -5.0, 1e-6);
    EXPECT_NEAR(hi.x, 5.0, 1e-6);
    EXPECT_NEAR(hi.y, half, 1e-6);
    EXPECT_NEAR(lo.y, -20.0 * ay - half, 1e-6);
    int circles = 0, silhouettes = 0;
    for (const CQorVertexArrayEx& e : first) {
        circles += e.m_flags == 1 ? 1 : 0;
        silhouettes += e.m_flags == 2 ? 1 : 0;
    }
    EXPECT_EQ(circles, 2); // the whole top circle, the front of the shoulder
    // The tip's faces turn away from a viewer 35.26 degrees above the drill's
    // horizon (their normals point 31 degrees below it): only the cylinder's two
    // lines remain.
    EXPECT_EQ(silhouettes, 2);
}

TEST(SolidKernel, SilhouetteLinesOfTheCylinderAreTangentToTheTopCircle) {
    CQor_Solid s = drill(10.0, 20.0);
    CQorArrayTempl<CQorVertexArrayEx> first, second;
    ASSERT_TRUE(s.project(obliqueView(), false, first, second, 1));
    int found = 0;
    for (const CQorVertexArrayEx& e : first) {
        if (e.m_flags != 2 || e.m_edge != 1) // side 1 is the cylinder
            continue;
        ++found;
        EXPECT_NEAR(std::fabs(e[0].m_start.x), 5.0, 1e-9);
        EXPECT_NEAR(e[0].m_start.x, e[0].m_end.x, 1e-9); // parallel to the axis in view
        EXPECT_NEAR(e[0].m_start.y, 0.0, 1e-9);
        EXPECT_NEAR(e[0].m_end.y, -20.0 * 2.0 / std::sqrt(6.0), 1e-9);
    }
    EXPECT_EQ(found, 2);
}

TEST(SolidKernel, SeenFromAboveOnlyTheTopCircleShows) {
    CQor_Solid s = drill(8.0, 10.0);
    CQorArrayTempl<CQorVertexArrayEx> first, second;
    ASSERT_TRUE(s.project(viewAlong(CQorVector3d(0, 0, 1)), true, first, second, 1));
    ASSERT_EQ(first.len(), 1);
    EXPECT_EQ(first[0].m_edge, 1);
    EXPECT_TRUE(first[0].isClosed());
    CQorPoint3d lo, hi;
    edgeBox(first, lo, hi);
    EXPECT_NEAR(hi.x - lo.x, 8.0, 1e-9);
    EXPECT_NEAR(hi.y - lo.y, 8.0, 1e-9);
    ASSERT_EQ(second.len(), 1); // the shoulder circle is hidden
    EXPECT_EQ(second[0].m_edge, 2);
}

TEST(SolidKernel, SeenFromBelowTheShoulderCircleShowsAndTheTopIsHidden) {
    CQor_Solid s = drill(8.0, 10.0);
    CQorArrayTempl<CQorVertexArrayEx> first, second;
    ASSERT_TRUE(s.project(viewAlong(CQorVector3d(0, 0, -1)), false, first, second, 1));
    ASSERT_EQ(first.len(), 1);
    EXPECT_EQ(first[0].m_edge, 2);
}

TEST(SolidKernel, SideViewShowsHalfCirclesAsStraightExtents) {
    // Looking along -y from +y: the circles are seen edge on, the front halves
    // are visible, and the outline is the rectangle with the tip's triangle.
    CQor_Solid s = drill(10.0, 20.0, 90.0);
    CQorMatrix3d v;
    v.setCoordSystem(CQorPoint3d::kOrigin, CQorVector3d(1, 0, 0), CQorVector3d(0, 0, 1),
                     CQorVector3d(0, -1, 0));
    CQorArrayTempl<CQorVertexArrayEx> first, second;
    ASSERT_TRUE(s.project(v, false, first, second, 1));
    CQorPoint3d lo, hi;
    edgeBox(first, lo, hi);
    EXPECT_NEAR(lo.x, -5.0, 1e-9);
    EXPECT_NEAR(hi.x, 5.0, 1e-9);
    EXPECT_NEAR(hi.y, 0.0, 1e-9);
    EXPECT_NEAR(lo.y, -25.0, 1e-9); // a 90 degree tip is as long as the radius
    int silhouettes = 0;
    for (const CQorVertexArrayEx& e : first)
        silhouettes += e.m_flags == 2 ? 1 : 0;
    EXPECT_EQ(silhouettes, 4); // cylinder and tip, left and right
}

TEST(SolidKernel, EvaluateGivesTheVolume) {
    CQor_Solid s = drill(10.0, 20.0, 90.0);
    EXPECT_NEAR(s.volume(), QOR::kPi * 25 * 20 + QOR::kPi * 25 * 5 / 3.0, 1e-9);
    CQor_Solid flat = drill(10.0, 20.0, 180.0);
    EXPECT_NEAR(flat.volume(), QOR::kPi * 25 * 20, 1e-9);
}

TEST(SolidKernel, CallsOutOfOrderOrWithAnotherModelerFail) {
    CQor_Solid s;
    CQorArrayTempl<CQorVertexArrayEx> first, second;
    first.append(CQorVertexArrayEx());
    EXPECT_FALSE(s.solid());
    EXPECT_FALSE(s.evaluate(1));
    EXPECT_FALSE(s.project(obliqueView(), false, first, second, 1));
    EXPECT_EQ(first.len(), 0);
    ASSERT_TRUE(s.setDrill(10, 20, 118));
    ASSERT_TRUE(s.solid());
    EXPECT_FALSE(s.evaluate(2));
    EXPECT_FALSE(s.project(obliqueView(), false, first, second, 1));
    ASSERT_TRUE(s.evaluate(1));
    EXPECT_FALSE(s.project(obliqueView(), false, first, second, 0));
    CQorMatrix3d singular;
    singular.setToScaling(0.0, CQorPoint3d::kOrigin);
    EXPECT_FALSE(s.project(singular, false, first, second, 1));
    EXPECT_TRUE(s.project(obliqueView(), false, first, second, 1));
}

TEST(SolidKernel, BadProfilesAreRefused) {
    CQor_Solid s;
    EXPECT_FALSE(s.setDrill(0.0, 10.0, 118.0));
    EXPECT_FALSE(s.setDrill(10.0, -1.0, 118.0));
    EXPECT_FALSE(s.setDrill(std::nan(""), 10.0, 118.0));
    CQorArrayTempl<CQorPoint3d> p;
    p.append(CQorPoint3d(5, 0, 0)).append(CQorPoint3d(5, 0, 0));
    s.setRevolved(p);
    EXPECT_FALSE(s.solid());           // heights do not fall
    CQorArrayTempl<CQorPoint3d> waist; // narrower in the middle: not convex
    waist.append(CQorPoint3d(5, 0, 0)).append(CQorPoint3d(2, -5, 0)).append(CQorPoint3d(5, -10, 0));
    s.setRevolved(waist);
    EXPECT_FALSE(s.solid());
    CQorArrayTempl<CQorPoint3d> cone; // a cone standing on its base is fine
    cone.append(CQorPoint3d(0, 10, 0)).append(CQorPoint3d(5, 0, 0));
    s.setRevolved(cone);
    EXPECT_TRUE(s.solid());
}

TEST(ModelObjects, DrillItemHasASolidAndGeneratedLengths) {
    CQorDataItem item(1);
    const CQorDataKey type(L"TYPE"), dia(L"DIA"), depth(L"DEPTH"), len(L"LENGTH");
    dataItemSet(&item, &type, CQorString(L"DRILL"));
    dataItemSet(&item, &dia, 10.0);
    CQor_Solid s;
    EXPECT_FALSE(QOR::objModel(s, &item)); // no depth
    EXPECT_FALSE(QOR::objGen(&item, 0));
    dataItemSet(&item, &depth, 20.0);
    ASSERT_TRUE(QOR::objModel(s, &item));
    EXPECT_TRUE(s.isBuilt());
    ASSERT_TRUE(s.evaluate(1));
    ASSERT_TRUE(QOR::objGen(&item, 0));
    double length = 0.0;
    ASSERT_TRUE(item.get(length, &len));
    EXPECT_NEAR(length, 20.0 + 5.0 / std::tan(59.0 * QOR::kPi / 180.0), 1e-12);
    EXPECT_FALSE(QOR::objModel(s, nullptr));
    EXPECT_FALSE(QOR::objGen(nullptr, 0));
    dataItemSet(&item, &type, CQorString(L"WALL"));
    EXPECT_FALSE(QOR::objModel(s, &item));
}

TEST(ModelObjects, OutlineItemGetsItsContour) {
    CQorDataItem item(1);
    const CQorDataKey type(L"TYPE"), code(L"CODE"), p1(L"P1"), vlKey(L"VL");
    dataItemSet(&item, &type, CQorString(L"OUTLINE"));
    dataItemSet(&item, &code, 3);
    EXPECT_FALSE(QOR::objGen(&item, 0)); // no diameter
    dataItemSet(&item, &p1, 20.0);
    ASSERT_TRUE(QOR::objGen(&item, 0));
    CQorVertexArray vl;
    ASSERT_TRUE(item.get(vl, &vlKey));
    EXPECT_EQ(vl.len(), 2);
}

TEST(SolidKernel, BodyBelowTheResolutionProjectsToNothing) {
    // Radius and depth of 5e-10, below the point tolerance of 1e-9.
    CQor_Solid s = drill(1e-9, 5e-10, 180.0);
    CQorArrayTempl<CQorVertexArrayEx> first, second;
    ASSERT_TRUE(s.project(obliqueView(), true, first, second, 1));
    EXPECT_EQ(first.len(), 0);
    EXPECT_EQ(second.len(), 0);

    // Twice the tolerance is projected.
    CQor_Solid t = drill(4e-9, 2e-9, 180.0);
    ASSERT_TRUE(t.project(obliqueView(), true, first, second, 1));
    EXPECT_GT(first.len(), 0);
}
