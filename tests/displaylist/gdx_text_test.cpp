#include "text/glyph_table.h"
#include "text/text_layout_p.h"
#include "text/text_to_regl.h"

#include "foundation/data/resbuf_value.h"
#include "foundation/data_tree.h"
#include "foundation/geometry.h"
#include "gdx_test_util.h"
#include "host/default_app.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Regions = CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>;

// A closed rectangle, clockwise (as glyphs are stored).
CQorVertexArray cwRect(double x0, double y0, double x1, double y1) {
    CQorVertexArray vl = rect(x0, y0, x1, y1);
    vl.revert();
    return vl;
}

// Test glyphs: "a" a unit square; "b" a 2 by 1 block followed by a region holding one
// empty contour and a region holding none; "c" an open line; "o" a square with a
// square hole.
Regions fakeGlyph(wchar_t c) {
    Regions g;
    if (c == L'a') {
        g[0][0] = cwRect(0, 0, 1, 1);
    } else if (c == L'b') {
        g[0][0] = cwRect(0, 0, 2, 1);
        g[1][0] = CQorVertexArray();
        g.append(CQorArrayTempl<CQorVertexArray>());
    } else if (c == L'c') {
        g[0][0] = segment(0, 0, 1, 2);
    } else if (c == L'o') {
        g[0][0] = cwRect(0, 0, 1, 1);
        g[0][1] = rect(0.25, 0.25, 0.75, 0.75);
    }
    return g;
}

// Layouts with the test glyphs above.
class GdxText : public ::testing::Test {};

// Text items, laid out with the built-in font.
class GdxTextItem : public ::testing::Test {};

// The box of the first contours of a layout's regions under m.
bool layoutBox(const Regions& regions, CQorMatrix3d m, CQorPoint3d& lo, CQorPoint3d& hi) {
    bool any = false;
    for (const CQorArrayTempl<CQorVertexArray>& region : regions) {
        CQorVertexArray first = region[0];
        if (first.len() == 0)
            continue;
        first.transformBy(static_cast<double(*)[4]>(m));
        CQorPoint3d a, b;
        first.extents(a, b);
        lo = any ? QOR::p_min(lo, a) : a;
        hi = any ? QOR::p_max(hi, b) : b;
        any = true;
    }
    return any;
}

void box(const CQorVertexArray& vl, CQorPoint3d& lo, CQorPoint3d& hi) {
    ASSERT_GT(vl.len(), 0);
    vl.extents(lo, hi);
}

void expectBox(const CQorVertexArray& vl, double x0, double y0, double x1, double y1) {
    CQorPoint3d lo, hi;
    box(vl, lo, hi);
    EXPECT_NEAR(lo.x, x0, 1e-12);
    EXPECT_NEAR(lo.y, y0, 1e-12);
    EXPECT_NEAR(hi.x, x1, 1e-12);
    EXPECT_NEAR(hi.y, y1, 1e-12);
}

CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> layout(const wchar_t* txt, const wchar_t* align,
                                                       CQorPoint3d point = CQorPoint3d()) {
    return QOR::txtLayout(txt, align, point, &fakeGlyph);
}

// Host function stand-ins of the data item form.
int s_calls = 0;
double s_value = 0.0;
short s_firstType = 0;
int answerRegions(resbuf* arguments, QOR::CSmartResbuf& result) {
    ++s_calls;
    s_firstType = arguments ? arguments->restype : 0;
    const resbuf* last = QOR::rbLast(arguments);
    s_value = last && last->restype == QOR::kRtReal ? last->resval.rreal : -1.0;
    Regions regions;
    regions[0][0] = rect(0, 0, 4, 2);
    regions[1][0] = rect(5, 0, 6, 3);
    result.reset(QOR::mkResbuf(regions));
    return QOR::kRtNorm;
}
int answerError(resbuf*, QOR::CSmartResbuf& result) {
    ++s_calls;
    Regions regions;
    regions[0][0] = rect(0, 0, 4, 2);
    result.reset(QOR::mkResbuf(regions));
    return QOR::kRtError;
}
int answerString(resbuf*, QOR::CSmartResbuf& result) {
    ++s_calls;
    result.reset(QOR::rbString(L"no regions"));
    return QOR::kRtNorm;
}
int answerNil(resbuf*, QOR::CSmartResbuf& result) {
    ++s_calls;
    result.reset(QOR::rbNew(QOR::kRtNil));
    return QOR::kRtNorm;
}

class GdxTextHost : public ::testing::Test {
protected:
    void install(QOR::CQorDefaultApp::LispFn fn) {
        m_before = QOR::defaultAppPtr()->lispFunctionSet(L"qor_text_to_regl", fn);
        m_installed = true;
        s_calls = 0;
    }
    void TearDown() override {
        if (m_installed)
            QOR::defaultAppPtr()->lispFunctionSet(L"qor_text_to_regl", m_before);
    }
    CQorDataItem textItem() {
        CQorDataItem dir(1);
        const CQorDataKey key(L"TXT"), other(L"ALIGN");
        dataItemSet(&dir, &key, CQorString(L"ab"));
        dataItemSet(&dir, &other, CQorString(L"CC"));
        return dir;
    }
    QOR::CQorDefaultApp::LispFn m_before = nullptr;
    bool m_installed = false;
};

} // namespace

TEST_F(GdxText, GlyphsFollowEachOtherByInkWidthAndGap) {
    const Regions out = layout(L"aa", L"");
    ASSERT_EQ(out.len(), 2);
    expectBox(out[0][0], 0.0, 0.0, 1.0, 1.0);
    expectBox(out[1][0], 1.5, 0.0, 2.5, 1.0);
}

TEST_F(GdxText, ClosedContoursTurnCounterClockwiseOpenOnesStay) {
    EXPECT_FALSE(QOR::g_vl_orient(fakeGlyph(L'a')[0][0], CQorVector3d::kZAxis));
    const Regions out = layout(L"ac", L"");
    ASSERT_EQ(out.len(), 2);
    EXPECT_TRUE(QOR::g_vl_orient(out[0][0], CQorVector3d::kZAxis));
    // The open line keeps its direction: it still starts at its lower end.
    EXPECT_NEAR(out[1][0][0].m_start.x, 1.5, 1e-12);
    EXPECT_NEAR(out[1][0][0].m_start.y, 0.0, 1e-12);
    EXPECT_NEAR(out[1][0][0].m_end.y, 2.0, 1e-12);
}

TEST_F(GdxText, EmptyRegionsKeepTheExtentsOfTheRegionBefore) {
    // "b": 2 wide; its empty regions leave lo and hi of the block, so the next
    // glyph follows at 2 + 0.5.
    const Regions out = layout(L"ba", L"");
    ASSERT_EQ(out.len(), 4);
    expectBox(out[3][0], 2.5, 0.0, 3.5, 1.0);
    // The region without contours got an empty one when its first contour was read.
    EXPECT_GE(out[2].len(), 1);
    EXPECT_EQ(out[2][0].len(), 0);
}

TEST_F(GdxText, AlignmentShiftsByWidthAndHeight) {
    // "aa": advance 3.0, w = 2.7, h = 1.
    struct Case {
        const wchar_t* align;
        double dx, dy;
    };
    const Case cases[] = {{L"TL", 0.0, -1.0},  {L"TC", -1.35, -1.0}, {L"TR", -2.7, -1.0},
                          {L"CL", 0.0, -0.5},  {L"CC", -1.35, -0.5}, {L"CR", -2.7, -0.5},
                          {L"BC", -1.35, 0.0}, {L"BR", -2.7, 0.0},   {L"BL", 0.0, 0.0},
                          {L"xx", 0.0, 0.0},   {L"", 0.0, 0.0},      {L"cc", 0.0, 0.0},
                          {L"tr", 0.0, 0.0},   {L" CC", 0.0, 0.0}};
    for (const Case& c : cases) {
        const Regions out = layout(L"aa", c.align);
        ASSERT_EQ(out.len(), 2);
        SCOPED_TRACE(testing::Message() << "case dx " << c.dx << " dy " << c.dy << " length "
                                        << CQorString(c.align).len());
        expectBox(out[0][0], c.dx, c.dy, 1.0 + c.dx, 1.0 + c.dy);
        expectBox(out[1][0], 1.5 + c.dx, c.dy, 2.5 + c.dx, 1.0 + c.dy);
    }
}

TEST_F(GdxText, HeightIsAnAbsoluteYThatIncludesTheInsertionPoint) {
    const Regions out = layout(L"a", L"TL", CQorPoint3d(2.0, 3.0, 0.0));
    ASSERT_EQ(out.len(), 1);
    // h = 3 + 1: the glyph ends up below the origin, not below the point.
    expectBox(out[0][0], 2.0, -1.0, 3.0, 0.0);
}

TEST_F(GdxText, HeightNeverFallsBelowZero) {
    const Regions out = layout(L"a", L"TL", CQorPoint3d(0.0, -5.0, 0.0));
    expectBox(out[0][0], 0.0, -5.0, 1.0, -4.0);
}

TEST_F(GdxText, HoleOfASingleLetterStaysBehind) {
    const Regions out = layout(L"o", L"CC");
    ASSERT_EQ(out.len(), 1);
    expectBox(out[0][0], -0.6, -0.5, 0.4, 0.5); // w = 1.2, h = 1
    expectBox(out[0][1], 0.25, 0.25, 0.75, 0.75);
}

TEST_F(GdxText, ShiftReachesAsManyContoursPerRegionAsThereAreRegions) {
    const Regions out = layout(L"ooo", L"CC");
    ASSERT_EQ(out.len(), 3);
    // advance 4.5, w 4.2, h 1: shift (-2.1, -0.5).
    for (int b = 0; b < 3; ++b) {
        const double x = 1.5 * b - 2.1;
        expectBox(out[b][0], x, -0.5, x + 1.0, 0.5);
        expectBox(out[b][1], x + 0.25, -0.25, x + 0.75, 0.25);
        // Element access padded each region to three contours.
        EXPECT_EQ(out[b].len(), 3);
        EXPECT_EQ(out[b][2].len(), 0);
    }
}

TEST_F(GdxText, CharactersWithoutGlyphTakeNoRoom) {
    const Regions spaced = layout(L"a \n\ta", L"");
    const Regions packed = layout(L"aa", L"");
    ASSERT_EQ(spaced.len(), 2);
    expectBox(spaced[1][0], 1.5, 0.0, 2.5, 1.0);
    expectBox(packed[1][0], 1.5, 0.0, 2.5, 1.0);
    EXPECT_EQ(layout(L"", L"CC").len(), 0);
    EXPECT_EQ(layout(L"   ", L"CC").len(), 0);
    EXPECT_EQ(layout(nullptr, nullptr).len(), 0);
    EXPECT_EQ(QOR::txtLayout(L"aa", L"", CQorPoint3d(), nullptr).len(), 0);
}

TEST_F(GdxTextItem, ImageTxtStoresTheItemAndFoldsEveryRegionsFirstContour) {
    CQorGDX gdx = plainDoc();
    CQorMatrix3d m;
    m.setToScaling(2.0, CQorPoint3d());
    gdx.imageTxt(path({4, 1}), 17, L"HO", indexed(3), m, L"BL", CQorPoint3d(1.0, 0.0, 0.0),
                 CQorPoint3d(9.0, 9.0, 0.0));
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_TXT);
    EXPECT_EQ(gdx.flagGet(0), 17ul);
    EXPECT_EQ(gdx.txtGet(0), L"HO");
    EXPECT_EQ(gdx.txtAlignGet(0), L"BL");
    EXPECT_EQ(gdx.txtPointGet(0), CQorPoint3d(1.0, 0.0, 0.0));
    ASSERT_EQ(gdx.linetypeGet(0).len(), 3);
    EXPECT_EQ(gdx.linetypeGet(0)[0], 1.0);
    EXPECT_EQ(gdx.linetypeGet(0)[1], 0.0);
    EXPECT_EQ(gdx.ltscaleGet(0), 0.0);
    EXPECT_EQ(gdx.thicknGet(0), 0);
    CQorVertexArray anchor;
    gdx.geomGet(anchor, 0);
    EXPECT_EQ(anchor.len(), 0); // no anchor without GDX_FLAG_FIXED_SIZE
    Regions regions;
    gdx.geomGet(regions, 0);
    const Regions expected =
        QOR::txtLayout(L"HO", L"BL", CQorPoint3d(1.0, 0.0, 0.0), &get_ascii_from_map);
    ASSERT_GT(expected.len(), 1);
    ASSERT_EQ(regions.len(), expected.len());
    for (int r = 0; r < regions.len(); ++r) {
        ASSERT_EQ(regions[r].len(), expected[r].len()) << r;
        for (int c = 0; c < regions[r].len(); ++c)
            EXPECT_EQ(regions[r][c].len(), expected[r][c].len()) << r << " " << c;
    }
    // "H" begins at the insertion point x = 1 plus its own left bearing; everything is
    // scaled by 2.
    CQorPoint3d lo, hi, elo, ehi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    ASSERT_TRUE(layoutBox(expected, m, elo, ehi));
    EXPECT_NEAR(lo.x, elo.x, 1e-12);
    EXPECT_NEAR(hi.x, ehi.x, 1e-12);
    EXPECT_NEAR(hi.y, ehi.y, 1e-12);
    CQorPoint3d hLo, hHi;
    get_ascii_from_map(L'H')[0][0].extents(hLo, hHi);
    EXPECT_NEAR(lo.x, 2.0 * (1.0 + hLo.x), 1e-12);
}

TEST_F(GdxTextItem, NoExtentsOrFixedSizeLeaveTheCacheOnAdding) {
    for (unsigned long flag : {0x08ul, 0x80ul}) {
        CQorGDX gdx = plainDoc();
        addLine(gdx, {1}, 0, segment(-1, -1, 0.5, 0.5));
        gdx.imageTxt(path({2}), flag, L"HH", indexed(1), CQorMatrix3d(), L"", CQorPoint3d(),
                     CQorPoint3d(7.0, 8.0, 0.0));
        CQorPoint3d lo, hi;
        ASSERT_TRUE(gdx.extmaxGet(lo, hi));
        EXPECT_EQ(hi.x, 0.5) << flag;
        // The setters rebuild by the rules of the rebuild, which passes over them too.
        EXPECT_TRUE(gdx.txtSet(path({2}), L"HHHH"));
        ASSERT_TRUE(gdx.extmaxGet(lo, hi));
        EXPECT_EQ(hi.x, 0.5) << flag;
        if (flag == 0x80ul) {
            CQorVertexArray anchor;
            gdx.geomGet(anchor, 1);
            ASSERT_EQ(anchor.len(), 1);
            EXPECT_EQ(anchor[0].m_start, CQorPoint3d(7.0, 8.0, 0.0));
            EXPECT_EQ(anchor[0].m_end, CQorPoint3d());
            EXPECT_EQ(anchor[0].m_bulge, 0.0);
        }
    }
}

TEST_F(GdxTextItem, SettersLayOutAgainAndRebuildTheExtents) {
    CQorGDX gdx = plainDoc();
    gdx.imageTxt(path({3, 1}), 0, L"H", indexed(1), CQorMatrix3d(), L"", CQorPoint3d(),
                 CQorPoint3d());
    gdx.imageTxt(path({5}), 0, L"H", indexed(1), CQorMatrix3d(), L"", CQorPoint3d(), CQorPoint3d());
    EXPECT_TRUE(gdx.txtSet(path({3}), L"HH"));
    EXPECT_EQ(gdx.txtGet(0), L"HH");
    EXPECT_EQ(gdx.txtGet(1), L"H");
    Regions regions;
    gdx.geomGet(regions, 0);
    const Regions hh = QOR::txtLayout(L"HH", L"", CQorPoint3d(), &get_ascii_from_map);
    EXPECT_EQ(regions.len(), hh.len());
    CQorPoint3d lo, hi, elo, ehi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    ASSERT_TRUE(layoutBox(hh, CQorMatrix3d(), elo, ehi));
    EXPECT_NEAR(hi.x, ehi.x, 1e-12);

    EXPECT_TRUE(gdx.txtAlignSet(path({3}), L"TR"));
    EXPECT_TRUE(gdx.txtAlignSet(path({5}), L"TR"));
    EXPECT_EQ(gdx.txtAlignGet(0), L"TR");
    // Rebuilt, not grown: both texts now end left of the origin and below it.
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    const Regions hhTr = QOR::txtLayout(L"HH", L"TR", CQorPoint3d(), &get_ascii_from_map);
    ASSERT_TRUE(layoutBox(hhTr, CQorMatrix3d(), elo, ehi));
    EXPECT_NEAR(hi.x, ehi.x, 1e-12);
    EXPECT_NEAR(lo.x, elo.x, 1e-12);
    EXPECT_LT(hi.x, 0.0);
    EXPECT_NEAR(hi.y, 0.0, 1e-9);

    gdx.txtPointSet(path({5}), CQorPoint3d(10.0, 0.0, 0.0));
    EXPECT_EQ(gdx.txtPointGet(1), CQorPoint3d(10.0, 0.0, 0.0));
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    const Regions hTr =
        QOR::txtLayout(L"H", L"TR", CQorPoint3d(10.0, 0.0, 0.0), &get_ascii_from_map);
    ASSERT_TRUE(layoutBox(hTr, CQorMatrix3d(), elo, ehi));
    EXPECT_NEAR(hi.x, ehi.x, 1e-12);
    EXPECT_GT(hi.x, 9.0);
}

TEST_F(GdxTextItem, NullStringsChangeNothingUnmatchedPathsStillSucceed) {
    CQorGDX gdx = plainDoc();
    gdx.imageTxt(path({1}), 0, L"a", indexed(1), CQorMatrix3d(), L"CC", CQorPoint3d(),
                 CQorPoint3d());
    EXPECT_FALSE(gdx.txtSet(path({1}), nullptr));
    EXPECT_FALSE(gdx.txtAlignSet(path({1}), nullptr));
    EXPECT_EQ(gdx.txtGet(0), L"a");
    EXPECT_EQ(gdx.txtAlignGet(0), L"CC");
    EXPECT_TRUE(gdx.txtSet(path({9}), L"b"));
    EXPECT_TRUE(gdx.txtAlignSet(path({9}), L"TL"));
    EXPECT_EQ(gdx.txtGet(0), L"a");
    // Reads past the end give the shared default item.
    EXPECT_EQ(gdx.txtGet(5).len(), 0);
    EXPECT_EQ(gdx.txtPointGet(5), CQorPoint3d());
}

TEST_F(GdxTextItem, CharactersOutsideTheFontGiveAnItemWithoutRegions) {
    CQorGDX gdx = plainDoc();
    gdx.imageTxt(path({1}), 0, L"\u4e2d\u6587", indexed(1), CQorMatrix3d(), L"CC", CQorPoint3d(),
                 CQorPoint3d());
    ASSERT_EQ(gdx.lenGet(), 1);
    Regions regions;
    gdx.geomGet(regions, 0);
    EXPECT_EQ(regions.len(), 0);
    CQorPoint3d lo, hi;
    EXPECT_FALSE(gdx.extmaxGet(lo, hi));
}

TEST_F(GdxTextHost, DataItemTextStoresTheHostsRegions) {
    install(&answerRegions);
    CQorGDX gdx = plainDoc();
    const CQorDataItem dir = textItem();
    EXPECT_TRUE(gdx.imageTxt(path({2}), 0x80, &dir, indexed(4), CQorMatrix3d(), 2.5,
                             CQorPoint3d(3.0, 3.0, 0.0)));
    EXPECT_EQ(s_calls, 1);
    EXPECT_EQ(s_value, 2.5);
    EXPECT_EQ(s_firstType, QOR::kRtLb);
    ASSERT_EQ(gdx.lenGet(), 1);
    EXPECT_EQ(gdx.typeGet(0), GDX_TXT);
    EXPECT_EQ(gdx.txtGet(0).len(), 0);
    EXPECT_EQ(gdx.linetypeGet(0).len(), 0);
    Regions regions;
    gdx.geomGet(regions, 0);
    ASSERT_EQ(regions.len(), 2);
    expectBox(regions[1][0], 5, 0, 6, 3);
    CQorVertexArray anchor;
    gdx.geomGet(anchor, 0);
    ASSERT_EQ(anchor.len(), 1);
    CQorPoint3d lo, hi;
    EXPECT_FALSE(gdx.extmaxGet(lo, hi)); // fixed size: not in the extents

    EXPECT_TRUE(gdx.imageTxt(path({3}), 0, &dir, indexed(4), CQorMatrix3d(), 0.0, CQorPoint3d()));
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    EXPECT_EQ(hi, CQorPoint3d(6.0, 3.0, 0.0));
}

TEST_F(GdxTextHost, QorTextToReglEmptiesTheOutputFirst) {
    install(&answerNil);
    Regions regl;
    regl[0][0] = rect(0, 0, 1, 1);
    const CQorDataItem dir = textItem();
    EXPECT_FALSE(qor_text_to_regl(&dir, regl, 1.0));
    EXPECT_EQ(regl.len(), 0);
    EXPECT_FALSE(qor_text_to_regl(nullptr, regl, 1.0));
}

TEST_F(GdxTextHost, NullOrValueItemAddsNothing) {
    install(&answerRegions);
    CQorGDX gdx = plainDoc();
    EXPECT_FALSE(gdx.imageTxt(path({1}), 0, static_cast<const CQorDataItem*>(nullptr), indexed(1),
                              CQorMatrix3d(), 0.0, CQorPoint3d()));
    CQorDataItem value;
    EXPECT_FALSE(
        gdx.imageTxt(path({1}), 0, &value, indexed(1), CQorMatrix3d(), 0.0, CQorPoint3d()));
    EXPECT_EQ(gdx.lenGet(), 0);
    EXPECT_EQ(s_calls, 0);
}

TEST_F(GdxTextHost, OtherStatusOrOtherChainAddsNothing) {
    const CQorDataItem dir = textItem();
    for (QOR::CQorDefaultApp::LispFn fn : {&answerError, &answerString, &answerNil}) {
        install(fn);
        CQorGDX gdx = plainDoc();
        EXPECT_FALSE(
            gdx.imageTxt(path({1}), 0, &dir, indexed(1), CQorMatrix3d(), 0.0, CQorPoint3d()));
        EXPECT_EQ(gdx.lenGet(), 0);
        EXPECT_EQ(s_calls, 1);
        TearDown();
        m_installed = false;
    }
}

TEST_F(GdxTextHost, UnknownHostFunctionAddsNothing) {
    install(nullptr);
    CQorGDX gdx = plainDoc();
    const CQorDataItem dir = textItem();
    EXPECT_FALSE(gdx.imageTxt(path({1}), 0, &dir, indexed(1), CQorMatrix3d(), 0.0, CQorPoint3d()));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST_F(GdxText, LongTextPadsEveryRegionToTheNumberOfRegions) {
    const int n = 612;
    std::wstring text(static_cast<size_t>(n), L'a');
    const Regions out = layout(text.c_str(), L"BR");
    ASSERT_EQ(out.len(), n);
    // advance 1.5 n, w = 1.5 n - 0.3: the last glyph ends at 0.3 - 0.5 = -0.2.
    expectBox(out[n - 1][0], 1.5 * (n - 1) - (1.5 * n - 0.3), 0.0,
              1.5 * (n - 1) + 1.0 - (1.5 * n - 0.3), 1.0);
    expectBox(out[0][0], -(1.5 * n - 0.3), 0.0, 1.0 - (1.5 * n - 0.3), 1.0);
    // Every region is padded with empty contours up to n.
    for (int b = 0; b < n; ++b) {
        ASSERT_EQ(out[b].len(), n) << b;
        EXPECT_EQ(out[b][1].len(), 0) << b;
        EXPECT_EQ(out[b][n - 1].len(), 0) << b;
    }
}
