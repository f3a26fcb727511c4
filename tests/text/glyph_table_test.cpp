#include "text/glyph_table.h"

#include "foundation/geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <map>
#include <set>

namespace {

using Glyph = CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>;

struct Pt {
    double x, y;
};

// Expects the contour to start at each given point in order, closing back.
void expectContour(const CQorVertexArray& vl, std::initializer_list<Pt> pts) {
    ASSERT_EQ(vl.len(), static_cast<int>(pts.size()));
    int i = 0;
    for (const Pt& p : pts) {
        EXPECT_EQ(vl[i].m_start.x, p.x) << "vertex " << i;
        EXPECT_EQ(vl[i].m_start.y, p.y) << "vertex " << i;
        const CQorVertex& before = vl[(i + vl.len() - 1) % vl.len()];
        EXPECT_EQ(before.m_end.x, p.x) << "end of vertex before " << i;
        EXPECT_EQ(before.m_end.y, p.y) << "end of vertex before " << i;
        ++i;
    }
}

int nonEmptyRegions(const Glyph& g) {
    int n = 0;
    for (const auto& region : g)
        if (region.len() > 0 && region[0].len() > 0)
            ++n;
    return n;
}

int nonEmptyContours(const CQorArrayTempl<CQorVertexArray>& region) {
    int n = 0;
    for (const CQorVertexArray& c : region)
        if (c.len() > 0)
            ++n;
    return n;
}

void boxOf(const CQorVertexArray& vl, CQorPoint3d& lo, CQorPoint3d& hi) {
    ASSERT_TRUE(vl.extents(lo, hi));
}

void glyphBox(const Glyph& g, CQorPoint3d& lo, CQorPoint3d& hi) {
    bool first = true;
    for (const auto& region : g)
        for (const CQorVertexArray& c : region) {
            if (c.len() == 0)
                continue;
            CQorPoint3d a, b;
            c.extents(a, b);
            lo = first ? a : QOR::p_min(lo, a);
            hi = first ? b : QOR::p_max(hi, b);
            first = false;
        }
}

// The characters of the table: 33 to 126 but 96, and the fourteen above.
std::set<unsigned> expectedKeys() {
    std::set<unsigned> keys;
    for (unsigned c = 33; c <= 126; ++c)
        if (c != 96)
            keys.insert(c);
    for (unsigned c :
         {177u, 178u, 179u, 186u, 188u, 189u, 190u, 196u, 228u, 214u, 246u, 220u, 252u, 223u})
        keys.insert(c);
    return keys;
}

} // namespace

TEST(GlyphTable, BlankHasNoGlyph) {
    EXPECT_EQ(get_ascii_from_map(L' ').len(), 0);
}

TEST(GlyphTable, GraveAccentHasNoGlyph) {
    EXPECT_EQ(get_ascii_from_map(static_cast<wchar_t>(96)).len(), 0);
}

TEST(GlyphTable, ControlCharactersAndLettersAboveHaveNoGlyph) {
    for (unsigned c : {0u, 9u, 10u, 13u, 31u, 127u, 160u, 191u, 233u, 255u, 0x20ACu})
        EXPECT_EQ(get_ascii_from_map(static_cast<wchar_t>(c)).len(), 0) << c;
}

TEST(GlyphTable, OpenBracketDrawsTheLowBar) {
    const Glyph g = get_ascii_from_map(L'[');
    ASSERT_EQ(g.len(), 1);
    ASSERT_EQ(g[0].len(), 1);
    ASSERT_EQ(g[0][0].len(), 4);
    CQorPoint3d lo, hi;
    boxOf(g[0][0], lo, hi);
    EXPECT_NEAR(lo.x, 0.1668, 5e-5);
    EXPECT_NEAR(hi.x, 0.8332, 5e-5);
    EXPECT_NEAR(lo.y, -0.1769, 5e-5);
    EXPECT_NEAR(hi.y, -0.1546, 5e-5);
    EXPECT_NEAR(hi.y - lo.y, 0.022373, 1e-9);
}

TEST(GlyphTable, UnderscoreIsTheShortSlantedTick) {
    const Glyph g = get_ascii_from_map(L'_');
    ASSERT_EQ(nonEmptyRegions(g), 1);
    ASSERT_EQ(g[0][0].len(), 4);
    CQorPoint3d lo, hi;
    boxOf(g[0][0], lo, hi);
    EXPECT_NEAR(lo.x, 0.1573, 5e-5);
    EXPECT_NEAR(hi.x, 0.3431, 5e-5);
    EXPECT_NEAR(lo.y, 0.661, 5e-4);
    EXPECT_NEAR(hi.y, 1.0054, 5e-5);
    // Slanted: the bottom edge lies left of the top edge.
    EXPECT_LT(g[0][0][0].m_start.x, 0.2);
    EXPECT_GT(g[0][0][2].m_start.x, 0.3);
}

TEST(GlyphTable, ClosingBracketAndBackslashAreWhereTheirKeysSay) {
    CQorPoint3d lo, hi;
    glyphBox(get_ascii_from_map(L']'), lo, hi);
    EXPECT_NEAR(hi.y, 1.0, 1e-9);
    EXPECT_LT(lo.y, -0.1);
    const Glyph backslash = get_ascii_from_map(L'\\');
    ASSERT_EQ(nonEmptyRegions(backslash), 1);
    glyphBox(backslash, lo, hi);
    EXPECT_NEAR(lo.y, 0.0, 1e-9);
    EXPECT_NEAR(hi.y, 1.0, 1e-9);
}

TEST(GlyphTable, UmlautAHasThreeRegionsTheFirstWithTwoContours) {
    const Glyph g = get_ascii_from_map(static_cast<wchar_t>(228));
    EXPECT_EQ(nonEmptyRegions(g), 3);
    ASSERT_GE(g.len(), 3);
    EXPECT_EQ(g[0].len(), 2);
    EXPECT_EQ(nonEmptyContours(g[0]), 2);
    EXPECT_EQ(nonEmptyContours(g[1]), 1);
    EXPECT_EQ(nonEmptyContours(g[2]), 1);
}

TEST(GlyphTable, TwoCallsGiveIndependentCopies) {
    Glyph a = get_ascii_from_map(L'H');
    const Glyph b = get_ascii_from_map(L'H');
    const int contours = b[0].len();
    a[0][0].move(CQorVector3d(5.0, 0.0, 0.0));
    a[0].append(CQorVertexArray());
    a.append(CQorArrayTempl<CQorVertexArray>());
    EXPECT_EQ(b[0][0][0].m_start.x, 0.844746);
    EXPECT_EQ(b[0].len(), contours);
    const Glyph c = get_ascii_from_map(L'H');
    EXPECT_EQ(c[0][0][0].m_start.x, 0.844746);
    EXPECT_EQ(c[0].len(), contours);
    EXPECT_EQ(c.len(), b.len());
}

TEST(GlyphTable, FullStopIsTheGivenOutline) {
    const Glyph g = get_ascii_from_map(L'.');
    ASSERT_GE(g.len(), 1);
    expectContour(g[0][0],
                  {{0.178305, 0.0}, {0.155932, 0.0}, {0.155932, 0.16678}, {0.178305, 0.16678}});
    EXPECT_EQ(nonEmptyRegions(g), 1);
    EXPECT_EQ(nonEmptyContours(g[0]), 1);
}

TEST(GlyphTable, CapitalHIsTheGivenOutline) {
    const Glyph g = get_ascii_from_map(L'H');
    ASSERT_EQ(g.len(), 1);
    EXPECT_EQ(nonEmptyContours(g[0]), 1);
    expectContour(g[0][0], {{0.844746, 0.0},
                            {0.822373, 0.0},
                            {0.822373, 0.488814},
                            {0.178305, 0.488814},
                            {0.178305, 0.0},
                            {0.155932, 0.0},
                            {0.155932, 1.0},
                            {0.178305, 1.0},
                            {0.178305, 0.511186},
                            {0.822373, 0.511186},
                            {0.822373, 1.0},
                            {0.844746, 1.0}});
}

TEST(GlyphTable, CapitalIIsTheGivenOutline) {
    const Glyph g = get_ascii_from_map(L'I');
    ASSERT_GE(g.len(), 1);
    expectContour(g[0][0], {{0.500339, -0.0101695},
                            {0.16678, -0.0101695},
                            {0.16678, 0.0115254},
                            {0.322712, 0.0115254},
                            {0.322712, 0.989153},
                            {0.16678, 0.989153},
                            {0.16678, 1.01085},
                            {0.500339, 1.01085},
                            {0.500339, 0.989153},
                            {0.344407, 0.989153},
                            {0.344407, 0.0115254},
                            {0.500339, 0.0115254}});
    EXPECT_EQ(nonEmptyContours(g[0]), 1);
}

TEST(GlyphTable, HasExactlyTheListedCharacters) {
    const std::set<unsigned> expected = expectedKeys();
    ASSERT_EQ(expected.size(), 107u);
    std::set<unsigned> found;
    for (unsigned c = 0; c < 0x3000; ++c)
        if (get_ascii_from_map(static_cast<wchar_t>(c)).len() > 0)
            found.insert(c);
    EXPECT_EQ(found, expected);
}

// Every contour: straight pieces, continuous, closed, in the plane z = 0; the outer
// contour of a region clockwise, its holes counter-clockwise.
TEST(GlyphTable, EveryContourIsClosedStraightContinuousAndOrientedAsStored) {
    int contours = 0;
    for (unsigned key : expectedKeys()) {
        const Glyph g = get_ascii_from_map(static_cast<wchar_t>(key));
        ASSERT_GT(nonEmptyRegions(g), 0) << key;
        for (int r = 0; r < g.len(); ++r) {
            for (int k = 0; k < g[r].len(); ++k) {
                const CQorVertexArray& c = g[r][k];
                if (c.len() == 0)
                    continue;
                ++contours;
                EXPECT_GE(c.len(), 3) << key << " " << r << " " << k;
                EXPECT_TRUE(c.isClosed()) << key << " " << r << " " << k;
                EXPECT_TRUE(c.isContinuous()) << key << " " << r << " " << k;
                for (const CQorVertex& v : c) {
                    EXPECT_EQ(v.m_bulge, 0.0) << key;
                    EXPECT_EQ(v.m_start.z, 0.0) << key;
                    EXPECT_EQ(v.m_end.z, 0.0) << key;
                }
                const bool ccw = QOR::g_vl_orient(c, CQorVector3d::kZAxis);
                const bool cw = QOR::g_vl_orient(c, -CQorVector3d::kZAxis);
                if (k == 0)
                    EXPECT_TRUE(cw) << "outer contour of " << key << " region " << r;
                else
                    EXPECT_TRUE(ccw) << "hole " << k << " of " << key << " region " << r;
            }
            // Empty contours only trail the real ones.
            bool seenEmpty = false;
            for (const CQorVertexArray& c : g[r]) {
                if (c.len() == 0)
                    seenEmpty = true;
                else
                    EXPECT_FALSE(seenEmpty) << "real contour after an empty one in " << key;
            }
        }
    }
    EXPECT_GT(contours, 107);
}

TEST(GlyphTable, InkStaysInTheGlyphCell) {
    double lowest = 0.0, widest = 0.0;
    for (unsigned key : expectedKeys()) {
        CQorPoint3d lo, hi;
        glyphBox(get_ascii_from_map(static_cast<wchar_t>(key)), lo, hi);
        EXPECT_GE(lo.x, 0.14) << key;
        EXPECT_LE(lo.x, 0.17) << key;
        EXPECT_LE(hi.x, 1.17763 + 1e-9) << key;
        EXPECT_GE(lo.y, -0.343729) << key;
        EXPECT_LE(hi.y, 1.3) << key;
        lowest = std::min(lowest, lo.y);
        widest = std::max(widest, hi.x);
    }
    EXPECT_EQ(lowest, -0.343729);
    EXPECT_NEAR(widest, 1.17763, 1e-9);
}

// The frame of the glyph cell, row by row.

TEST(GlyphFrame, BaselineIsYZeroWhereFlatLettersStand) {
    for (wchar_t c : {L'E', L'F', L'H', L'L', L'T', L'Z'}) {
        CQorPoint3d lo, hi;
        glyphBox(get_ascii_from_map(c), lo, hi);
        EXPECT_EQ(lo.y, 0.0) << static_cast<int>(c);
    }
}

TEST(GlyphFrame, FlatCapitalHSpansYZeroToOne) {
    for (wchar_t c : {L'E', L'F', L'H', L'L', L'T', L'Z'}) {
        CQorPoint3d lo, hi;
        glyphBox(get_ascii_from_map(c), lo, hi);
        EXPECT_EQ(lo.y, 0.0) << static_cast<int>(c);
        EXPECT_EQ(hi.y, 1.0) << static_cast<int>(c);
    }
}

TEST(GlyphFrame, RoundAndSerifedOBAndIOvershootFromMinus0point0101695To1point01085) {
    for (wchar_t c : {L'O', L'B', L'I'}) {
        CQorPoint3d lo, hi;
        glyphBox(get_ascii_from_map(c), lo, hi);
        EXPECT_EQ(lo.y, -0.0101695) << static_cast<int>(c);
        EXPECT_EQ(hi.y, 1.01085) << static_cast<int>(c);
    }
}

TEST(GlyphFrame, StemOfSmallIIs0point6664HighAndRoundLowerCaseReaches0point678) {
    CQorPoint3d lo, hi;
    boxOf(get_ascii_from_map(L'i')[0][0], lo, hi);
    EXPECT_EQ(lo.y, 0.0);
    EXPECT_EQ(hi.y, 0.6664);
    // With the overshoot, to 0.678 at three digits.
    for (wchar_t c : {L'a', L'c', L'e', L'o', L's'}) {
        glyphBox(get_ascii_from_map(c), lo, hi);
        EXPECT_EQ(std::round(hi.y * 1000.0) / 1000.0, 0.678) << static_cast<int>(c);
    }
}

TEST(GlyphFrame, LowestPointIsMinus0point343729AndOnlyGJAndYReachIt) {
    std::set<unsigned> reaching;
    double lowest = 0.0;
    for (unsigned key : expectedKeys()) {
        CQorPoint3d lo, hi;
        glyphBox(get_ascii_from_map(static_cast<wchar_t>(key)), lo, hi);
        lowest = std::min(lowest, lo.y);
        if (lo.y == -0.343729)
            reaching.insert(key);
    }
    EXPECT_EQ(lowest, -0.343729);
    EXPECT_EQ(reaching, (std::set<unsigned>{L'g', L'j', L'y'}));
}

TEST(GlyphFrame, LeftBearingLiesBetween0point14And0point17MostOften0point155932) {
    std::map<double, int> count;
    for (unsigned key : expectedKeys()) {
        CQorPoint3d lo, hi;
        glyphBox(get_ascii_from_map(static_cast<wchar_t>(key)), lo, hi);
        EXPECT_GE(lo.x, 0.14) << key;
        EXPECT_LE(lo.x, 0.17) << key;
        ++count[lo.x];
    }
    const auto most = std::max_element(count.begin(), count.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    EXPECT_EQ(most->first, 0.155932);
    // The serifed "I" begins at 0.16678.
    CQorPoint3d lo, hi;
    glyphBox(get_ascii_from_map(L'I'), lo, hi);
    EXPECT_EQ(lo.x, 0.16678);
}

TEST(GlyphFrame, RightEdgeOfMostGlyphsIs0point844746) {
    std::map<double, int> count;
    for (unsigned key : expectedKeys()) {
        CQorPoint3d lo, hi;
        glyphBox(get_ascii_from_map(static_cast<wchar_t>(key)), lo, hi);
        ++count[hi.x];
    }
    const auto most = std::max_element(count.begin(), count.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    EXPECT_EQ(most->first, 0.844746);
}

TEST(GlyphFrame, WidestGlyphsAreVAndWTo1point17763) {
    std::set<unsigned> widest;
    for (unsigned key : expectedKeys()) {
        CQorPoint3d lo, hi;
        glyphBox(get_ascii_from_map(static_cast<wchar_t>(key)), lo, hi);
        EXPECT_LE(hi.x, 1.17763) << key;
        if (hi.x == 1.17763)
            widest.insert(key);
    }
    EXPECT_EQ(widest, (std::set<unsigned>{L'V', L'W'}));
}

TEST(GlyphFrame, StrokeWidthIs0point022373FromX0point155932To0point178305) {
    CQorPoint3d lo, hi;
    glyphBox(get_ascii_from_map(L'.'), lo, hi);
    EXPECT_EQ(lo.x, 0.155932);
    EXPECT_EQ(hi.x, 0.178305);
    EXPECT_NEAR(hi.x - lo.x, 0.022373, 1e-15);
}

TEST(GlyphFrame, ZIsZeroEverywhere) {
    for (unsigned key : expectedKeys())
        for (const auto& region : get_ascii_from_map(static_cast<wchar_t>(key)))
            for (const CQorVertexArray& c : region)
                for (const CQorVertex& v : c) {
                    ASSERT_EQ(v.m_start.z, 0.0) << key;
                    ASSERT_EQ(v.m_end.z, 0.0) << key;
                }
}

TEST(GlyphTable, StemOfSmallIHasTheXHeight) {
    const Glyph g = get_ascii_from_map(L'i');
    EXPECT_EQ(nonEmptyRegions(g), 2);
    CQorPoint3d lo, hi;
    boxOf(g[0][0], lo, hi);
    EXPECT_NEAR(lo.y, 0.0, 1e-9);
    EXPECT_NEAR(hi.y, 0.6664, 1e-9);
    EXPECT_NEAR(hi.x - lo.x, 0.022373, 1e-6);
}

TEST(GlyphTable, LettersWithHolesStoreThemAfterTheOuterContour) {
    for (wchar_t c : {L'A', L'O', L'D', L'o', L'b', L'0'}) {
        const Glyph g = get_ascii_from_map(c);
        EXPECT_EQ(nonEmptyContours(g[0]), 2) << static_cast<int>(c);
    }
    EXPECT_EQ(nonEmptyContours(get_ascii_from_map(L'B')[0]), 3);
    EXPECT_EQ(nonEmptyContours(get_ascii_from_map(L'8')[0]), 3);
}

// A builder keeps its scratch glyph: a character after one with more contours
// carries the emptied ones.
TEST(GlyphTable, EntriesCarryTheEmptiedContoursOfTheirBuilder) {
    const Glyph o = get_ascii_from_map(L'O'); // after "B" with its two holes
    ASSERT_EQ(o.len(), 1);
    EXPECT_EQ(o[0].len(), 3);
    EXPECT_EQ(o[0][2].len(), 0);
    const Glyph full = get_ascii_from_map(L'.'); // the last of the first builder
    int empty = 0;
    for (const auto& region : full)
        for (const CQorVertexArray& c : region)
            empty += c.len() == 0 ? 1 : 0;
    EXPECT_GT(empty, 0);
    // The first character of a builder has nothing trailing.
    const Glyph a = get_ascii_from_map(L'A');
    EXPECT_EQ(a.len(), 1);
    EXPECT_EQ(a[0].len(), 2);
}
