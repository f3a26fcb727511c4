#include "styling/line_pattern.h"

#include "foundation/records/units.h"
#include "styling/dot_length_p.h"

#include "styling_test_util.h"

using styling_test::list;

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>

namespace {

CQorVertexArray segment(double x0, double y0, double z0, double x1, double y1, double z1) {
    return CQorVertexArray(CQorVertex(CQorPoint3d(x0, y0, z0), CQorPoint3d(x1, y1, z1)));
}

std::string dump(const CQorArrayTempl<double>& a) {
    std::ostringstream os;
    os << '[';
    for (int i = 0; i < a.len(); ++i)
        os << (i ? ", " : "") << a[i];
    os << ']';
    return os.str();
}

std::string dump(const CQorVertexArray& vl) {
    std::ostringstream os;
    for (int i = 0; i < vl.len(); ++i)
        os << "(" << vl[i].m_start.x << "," << vl[i].m_start.y << "," << vl[i].m_start.z << ")-("
           << vl[i].m_end.x << "," << vl[i].m_end.y << "," << vl[i].m_end.z << ") b"
           << vl[i].m_bulge << "\n";
    return os.str();
}

void expectList(const CQorArrayTempl<double>& actual, std::initializer_list<double> expected) {
    const CQorArrayTempl<double> e = list(expected);
    ASSERT_EQ(actual.len(), e.len()) << "actual " << dump(actual) << " expected " << dump(e);
    for (int i = 0; i < e.len(); ++i)
        EXPECT_DOUBLE_EQ(actual[i], e[i]) << "at " << i << ": actual " << dump(actual);
}

// Expects the pieces of vl along the x axis to span [from, to] in order.
void expectDashesAlongX(const CQorVertexArray& vl,
                        std::initializer_list<std::pair<double, double>> dashes) {
    ASSERT_EQ(vl.len(), static_cast<int>(dashes.size())) << dump(vl);
    int i = 0;
    for (const auto& d : dashes) {
        EXPECT_NEAR(vl[i].m_start.x, d.first, 1e-12) << "dash " << i << "\n" << dump(vl);
        EXPECT_NEAR(vl[i].m_end.x, d.second, 1e-12) << "dash " << i << "\n" << dump(vl);
        EXPECT_EQ(vl[i].m_start.y, 0.0);
        ++i;
    }
}

// Sets the drawing's unit for one test and puts the old one back.
class UnitScope {
public:
    explicit UnitScope(Qor::lUnit u) : m_before(QOR::acad_unit_set(u)) {}
    ~UnitScope() { QOR::acad_unit_set(m_before); }

private:
    Qor::lUnit m_before;
};

} // namespace

TEST(LinePattern, RotateTurnsLeftByCount) {
    CQorArrayTempl<double> a = list({1, 2, 3, 4});
    QOR::dashArrayRotate(a, 1);
    expectList(a, {2, 3, 4, 1});
    QOR::dashArrayRotate(a, 6);
    expectList(a, {4, 1, 2, 3});
    QOR::dashArrayRotate(a, -1);
    expectList(a, {3, 4, 1, 2});
}

TEST(LinePattern, RotateLeavesShortListsAndCountZeroAlone) {
    CQorArrayTempl<double> one = list({5});
    QOR::dashArrayRotate(one, 3);
    expectList(one, {5});
    CQorArrayTempl<double> two = list({1, -2});
    QOR::dashArrayRotate(two, 0);
    expectList(two, {1, -2});
}

TEST(LinePattern, FlattenDropsEveryVertexIntoXY) {
    CQorVertexArray vl = segment(1, 2, 3, 4, 5, 6);
    vl.append(CQorVertex(CQorPoint3d(4, 5, 6), CQorPoint3d(7, 8, -9), 0.5));
    const CQorVertexArray flat = QOR::vlFlatten(vl);
    ASSERT_EQ(flat.len(), 2);
    EXPECT_EQ(flat[0].m_start.z, 0.0);
    EXPECT_EQ(flat[0].m_end.z, 0.0);
    EXPECT_EQ(flat[1].m_end.z, 0.0);
    EXPECT_EQ(flat[1].m_bulge, 0.5);
    EXPECT_EQ(flat[1].m_end.x, 7.0);
    EXPECT_EQ(vl[0].m_start.z, 3.0) << "the argument is a copy";
}

TEST(LinePattern, PatternOfFewerThanTwoEntriesIsRefusedAndLeavesTheArray) {
    CQorVertexArray vl = segment(0, 0, 1, 10, 0, 1);
    EXPECT_FALSE(qor_gdx_image_vl_measure(vl, list({1.0}), 1));
    EXPECT_FALSE(qor_gdx_image_vl_measure(vl, CQorArrayTempl<double>(), 0));
    ASSERT_EQ(vl.len(), 1);
    EXPECT_EQ(vl[0].m_end.x, 10.0);
    EXPECT_EQ(vl[0].m_end.z, 1.0);
}

TEST(LinePattern, Mode1HalvesTheLongDashAtBothEnds) {
    CQorArrayTempl<double> p = list({1.0, -0.5});
    EXPECT_TRUE(QOR::dashArrayRephase(p));
    expectList(p, {0.5, -0.5, 0.5});
}

TEST(LinePattern, RephaseScanTurnsTheListAndMovesTheIndex) {
    // Step 0 looks at 0.1 (no), the list turns to [-0.2, 1.0, -0.5, 0.1]; step 1
    // looks at index 1 of that, 1.0 followed by -0.5: a hit. Index 0 is halved.
    CQorArrayTempl<double> p = list({0.1, -0.2, 1.0, -0.5});
    EXPECT_TRUE(QOR::dashArrayRephase(p));
    expectList(p, {-0.1, 1.0, -0.5, 0.1, -0.1});
}

TEST(LinePattern, RephaseWithoutLongDashGoesOnceRoundUnchanged) {
    CQorArrayTempl<double> p = list({0.2, -0.1, 0.21, -0.3});
    EXPECT_FALSE(QOR::dashArrayRephase(p));
    expectList(p, {0.2, -0.1, 0.21, -0.3});
}

TEST(LinePattern, RephaseWithLongLastEntryLengthensTheListByReadingPastTheEnd) {
    // [1.0, 0.5]: at index 1 the entry 1.0 is long and the read of index 2 adds a
    // 0.0; this repeats while long entries come round, until a 0.0 reaches the end.
    CQorArrayTempl<double> p = list({1.0, 0.5});
    EXPECT_FALSE(QOR::dashArrayRephase(p));
    expectList(p, {0.0, 1.0, 0.0, 0.0, 0.5});
}

TEST(LinePattern, LengthenedListTakesPartInThePeriod) {
    // The list of the test above, [0, 1, 0, 0, 0.5]: three dots weigh 1.0 each, so
    // the period is 4.5 and a segment of 4.5 is drawn solid, one of 4.6 is not.
    CQorVertexArray solid = segment(0, 0, 2, 4.5, 0, 2);
    ASSERT_TRUE(qor_gdx_image_vl_measure(solid, list({1.0, 0.5}), 1));
    ASSERT_EQ(solid.len(), 1);
    EXPECT_EQ(solid[0].m_end.z, 2.0);
    CQorVertexArray walked = segment(0, 0, 2, 4.6, 0, 2);
    ASSERT_TRUE(qor_gdx_image_vl_measure(walked, list({1.0, 0.5}), 1));
    EXPECT_EQ(walked[0].m_start.z, 0.0) << dump(walked);
}

TEST(LinePattern, Mode1SegmentUpTo1point5StaysOneSolidVertex) {
    CQorVertexArray vl = segment(0, 0, 0, 1.5, 0, 0);
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, -0.5}), 1));
    ASSERT_EQ(vl.len(), 1);
    EXPECT_EQ(vl[0].m_start.x, 0.0);
    EXPECT_EQ(vl[0].m_end.x, 1.5);
}

TEST(LinePattern, Mode1Segment1point6IsWalkedWithAWiderGapThatFitsExactly) {
    // [0.5, -0.6, 0.5]: half dash, gap 0.6, half dash, ending at 1.6.
    CQorVertexArray vl = segment(0, 0, 0, 1.6, 0, 0);
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, -0.5}), 1));
    expectDashesAlongX(vl, {{0.0, 0.5}, {1.1, 1.6}});
}

TEST(LinePattern, Mode2SegmentOf4GrowsTheGapTo1AndEndsOnAGap) {
    // total 1.5, n 2, rest 1.0 over one gap times two repeats: gap -1.0.
    CQorVertexArray vl = segment(0, 0, 0, 4.0, 0, 0);
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, -0.5}), 2));
    expectDashesAlongX(vl, {{0.0, 1.0}, {2.0, 3.0}});
}

TEST(LinePattern, Mode0RunsOnAcrossVertices) {
    CQorVertexArray vl = segment(0, 0, 0, 1.2, 0, 0);
    vl.append(CQorVertex(CQorPoint3d(1.2, 0, 0), CQorPoint3d(3.0, 0, 0)));
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, -0.5}), 0));
    // One run of two vertices: dashes [0, 1] and [1.5, 2.5], the second starting
    // in the second vertex where the gap that began in the first one ends; the
    // walk ends in the gap [2.5, 3.0].
    ASSERT_GE(vl.len(), 2) << dump(vl);
    EXPECT_NEAR(vl[0].m_start.x, 0.0, 1e-12);
    EXPECT_NEAR(vl[0].m_end.x, 1.0, 1e-12);
    EXPECT_NEAR(vl[1].m_start.x, 1.5, 1e-12) << dump(vl);
    EXPECT_NEAR(vl[-1].m_end.x, 2.5, 1e-12) << dump(vl);
}

TEST(LinePattern, Mode0DropsAllVerticesIntoXY) {
    CQorVertexArray vl = segment(0, 0, 5, 1.0, 0, 5);
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({0.25, -0.25}), 0));
    ASSERT_GT(vl.len(), 0);
    for (int i = 0; i < vl.len(); ++i) {
        EXPECT_EQ(vl[i].m_start.z, 0.0);
        EXPECT_EQ(vl[i].m_end.z, 0.0);
    }
}

TEST(LinePattern, OtherModesDropIntoXYExceptTheSolidShortSegment) {
    CQorVertexArray vl = segment(0, 0, 5, 1.0, 0, 5);
    vl.append(CQorVertex(CQorPoint3d(1.0, 0, 5), CQorPoint3d(5.0, 0, 5)));
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, -0.5}), 2));
    ASSERT_GE(vl.len(), 2);
    EXPECT_EQ(vl[0].m_start.z, 5.0) << "the short segment is kept solid with its z";
    EXPECT_EQ(vl[0].m_end.x, 1.0);
    for (int i = 1; i < vl.len(); ++i) {
        EXPECT_EQ(vl[i].m_start.z, 0.0);
        EXPECT_EQ(vl[i].m_end.z, 0.0);
    }
}

TEST(LinePattern, SeveralContinuousPiecesRestartThePattern) {
    // Two pieces of 1.2 with a gap between: each starts with a full dash.
    CQorVertexArray vl = segment(0, 0, 0, 1.2, 0, 0);
    vl.append(CQorVertex(CQorPoint3d(2.0, 0, 0), CQorPoint3d(3.2, 0, 0)));
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, -0.5}), 0));
    expectDashesAlongX(vl, {{0.0, 1.0}, {2.0, 3.0}});
}

TEST(LinePattern, PerVertexModeRestartsAtEachVertex) {
    CQorVertexArray vl = segment(0, 0, 0, 4.0, 0, 0);
    vl.append(CQorVertex(CQorPoint3d(4.0, 0, 0), CQorPoint3d(8.0, 0, 0)));
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, -0.5}), 2));
    expectDashesAlongX(vl, {{0.0, 1.0}, {2.0, 3.0}, {4.0, 5.0}, {6.0, 7.0}});
}

TEST(LinePattern, DotIsTwoTenthsOfAMillimetreAndWeighsOne) {
    UnitScope mm(Qor::unitMillimeters);
    EXPECT_DOUBLE_EQ(QOR::styleDotLength(), 0.2);
    // [0, -1]: period 2.0 by weight, so a segment of 4.0 has n 2 and no rest; the
    // walk itself uses the short dot: dots at 0, 1.2, 2.4, 3.6.
    CQorVertexArray vl = segment(0, 0, 0, 4.0, 0, 0);
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({0.0, -1.0}), 2));
    expectDashesAlongX(vl, {{0.0, 0.2}, {1.2, 1.4}, {2.4, 2.6}, {3.6, 3.8}});
}

TEST(LinePattern, DotLengthFollowsTheDrawingUnit) {
    UnitScope inches(Qor::unitInches);
    const double dot = 0.2 / 25.4;
    EXPECT_NEAR(QOR::styleDotLength(), dot, 1e-15);
    CQorVertexArray vl = segment(0, 0, 0, 4.0, 0, 0);
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({0.0, -1.0}), 2));
    ASSERT_EQ(vl.len(), 4) << dump(vl);
    EXPECT_NEAR(vl[0].m_end.x, dot, 1e-12);
    EXPECT_NEAR(vl[1].m_start.x, dot + 1.0, 1e-12);
}

TEST(LinePattern, CallersPatternStaysAsItWas) {
    const CQorArrayTempl<double> p = list({1.0, -0.5, 0.0, -0.5});
    CQorVertexArray vl = segment(0, 0, 0, 10, 0, 0);
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, p, 1));
    expectList(p, {1.0, -0.5, 0.0, -0.5});
}

TEST(LinePattern, ArcIsExplodedWithTolerancePointOneAndWalked) {
    // Half circle of radius 5 about (5, 0): length 5 pi.
    const CQorVertex arc(CQorPoint3d(0, 0, 3), CQorPoint3d(10, 0, 3), -1.0);
    CQorVertexArray vl(arc);
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, -1.0}), 2));
    ASSERT_GT(vl.len(), 4);
    const CQorPoint3d centre(5, 0, 0);
    for (int i = 0; i < vl.len(); ++i) {
        EXPECT_EQ(vl[i].m_bulge, 0.0);
        EXPECT_EQ(vl[i].m_start.z, 0.0);
        EXPECT_NEAR(vl[i].m_start.distanceTo(centre), 5.0, 0.1 + 1e-9);
        EXPECT_NEAR(vl[i].m_end.distanceTo(centre), 5.0, 0.1 + 1e-9);
    }
}

TEST(LinePattern, PatternWithoutGapsDrawsSolidDashes) {
    CQorVertexArray vl = segment(0, 0, 0, 10, 0, 0);
    ASSERT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, 2.0}), 2));
    double covered = 0.0;
    for (int i = 0; i < vl.len(); ++i)
        covered += vl[i].bulgLen();
    EXPECT_NEAR(covered, 10.0, 1e-9);
}

TEST(LinePattern, EmptyArrayGivesEmptyArray) {
    CQorVertexArray vl;
    EXPECT_TRUE(qor_gdx_image_vl_measure(vl, list({1.0, -0.5}), 1));
    EXPECT_EQ(vl.len(), 0);
}
