#include "host/text_function.h"

#include "displaylist/gdx.h"
#include "foundation/application.h"
#include "foundation/data/resbuf_value.h"
#include "foundation/data_tree.h"
#include "foundation/geometry.h"
#include "text/glyph_table.h"
#include "text/text_layout_p.h"
#include "text/text_to_regl.h"

#include <gtest/gtest.h>

namespace {

using Regions = CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>;

CQorGDX doc() {
    CQorColor white;
    white.setOleColor(0xFFFFFF);
    return CQorGDX(white, CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
}

CQorArrayTempl<int> path1() {
    CQorArrayTempl<int> p;
    p.append(1);
    return p;
}

Regions textItem(const wchar_t* txt, const wchar_t* align, unsigned long flag = 0,
                 CQorPoint3d point = CQorPoint3d()) {
    CQorGDX gdx = doc();
    gdx.imageTxt(path1(), flag, txt, CQorColor(), CQorMatrix3d(), align, point, CQorPoint3d());
    Regions out;
    gdx.geomGet(out, 0);
    return out;
}

void box(const CQorVertexArray& vl, CQorPoint3d& lo, CQorPoint3d& hi) {
    ASSERT_GT(vl.len(), 0);
    vl.extents(lo, hi);
}

// Same vertices, each moved by (dx, dy); the direction may have been turned.
void expectMoved(const CQorVertexArray& moved, const CQorVertexArray& original, double dx,
                 double dy) {
    CQorPoint3d a, b, c, d;
    box(moved, a, b);
    box(original, c, d);
    EXPECT_NEAR(a.x, c.x + dx, 1e-12);
    EXPECT_NEAR(a.y, c.y + dy, 1e-12);
    EXPECT_NEAR(b.x, d.x + dx, 1e-12);
    EXPECT_NEAR(b.y, d.y + dy, 1e-12);
    EXPECT_EQ(moved.len(), original.len());
}

bool sameRegions(const Regions& a, const Regions& b) {
    if (a.len() != b.len())
        return false;
    for (int r = 0; r < a.len(); ++r) {
        if (a[r].len() != b[r].len())
            return false;
        for (int k = 0; k < a[r].len(); ++k) {
            if (a[r][k].len() != b[r][k].len())
                return false;
            for (int v = 0; v < a[r][k].len(); ++v)
                if (a[r][k][v].m_start != b[r][k][v].m_start ||
                    a[r][k][v].m_end != b[r][k][v].m_end)
                    return false;
        }
    }
    return true;
}

double inkWidth(wchar_t c) {
    const Regions g = get_ascii_from_map(c);
    CQorPoint3d lo, hi, a, b;
    g[0][0].extents(lo, hi);
    for (int r = 1; r < g.len(); ++r)
        if (g[r].len() > 0 && g[r][0].len() > 0) {
            g[r][0].extents(a, b);
            lo = QOR::p_min(lo, a);
            hi = QOR::p_max(hi, b);
        }
    return hi.x - lo.x;
}

} // namespace

TEST(TextLayout, EmptyTextGivesNoRegions) {
    EXPECT_EQ(textItem(L"", L"CC").len(), 0);
    CQorGDX gdx = doc();
    gdx.imageTxt(path1(), 0, L"", CQorColor(), CQorMatrix3d(), L"TR", CQorPoint3d(), CQorPoint3d());
    CQorPoint3d lo, hi;
    EXPECT_FALSE(gdx.extmaxGet(lo, hi)); // w = -0.3 moved nothing and added nothing
}

TEST(TextLayout, TextOfBlanksGivesNoRegions) {
    EXPECT_EQ(textItem(L"    ", L"BL").len(), 0);
    EXPECT_EQ(textItem(L" \n ", L"TC").len(), 0);
}

TEST(TextLayout, BlankBetweenLettersLaysOutLikeTheLettersAlone) {
    EXPECT_TRUE(sameRegions(textItem(L"H I", L"CC"), textItem(L"HI", L"CC")));
    EXPECT_TRUE(sameRegions(textItem(L" A  B ", L""), textItem(L"AB", L"")));
}

TEST(TextLayout, TopCentreOfHShiftsByHalfItsWidth) {
    const Regions out = textItem(L"H", L"TC");
    ASSERT_EQ(out.len(), 1);
    // w = 0.688814 + 0.5 - 0.3 = 0.888814: shift X -0.444407; h = 1.0.
    CQorPoint3d lo, hi;
    box(out[0][0], lo, hi);
    EXPECT_NEAR(lo.x, 0.155932 - 0.444407, 1e-12);
    EXPECT_NEAR(hi.x, 0.844746 - 0.444407, 1e-12);
    EXPECT_NEAR(lo.y, -1.0, 1e-12);
    EXPECT_NEAR(hi.y, 0.0, 1e-12);
    // Turned counter-clockwise by the layout.
    EXPECT_TRUE(QOR::g_vl_orient(out[0][0], CQorVector3d::kZAxis));
}

TEST(TextLayout, BottomLeftUnknownAndEmptyAlignmentsShiftNothing) {
    const Regions plain = get_ascii_from_map(L'H');
    for (const wchar_t* align : {L"BL", L"xx", L""}) {
        const Regions out = textItem(L"H", align);
        ASSERT_EQ(out.len(), 1);
        expectMoved(out[0][0], plain[0][0], 0.0, 0.0);
    }
}

TEST(TextLayout, LowerCaseAlignmentShiftsNothing) {
    const Regions plain = get_ascii_from_map(L'H');
    for (const wchar_t* align : {L"tc", L"cc", L"Tr", L"br"}) {
        const Regions out = textItem(L"H", align);
        expectMoved(out[0][0], plain[0][0], 0.0, 0.0);
    }
}

TEST(TextLayout, CentredOAloneMovesItsOuterContourButNotItsHole) {
    const Regions plain = get_ascii_from_map(L'O');
    ASSERT_GE(plain[0].len(), 2);
    CQorPoint3d lo, hi;
    box(plain[0][0], lo, hi);
    const double w = (hi.x - lo.x) + 0.5 - 0.3;
    const Regions out = textItem(L"O", L"CC");
    ASSERT_EQ(out.len(), 1);
    expectMoved(out[0][0], plain[0][0], -0.5 * w, -0.5 * hi.y);
    expectMoved(out[0][1], plain[0][1], 0.0, 0.0);
}

TEST(TextLayout, CentredTextOfThreeRegionsMovesUpToThreeContoursPerRegion) {
    const Regions plain = get_ascii_from_map(L'O');
    CQorPoint3d lo, hi;
    box(plain[0][0], lo, hi);
    const double step = (hi.x - lo.x) + 0.5;
    const double w = 3 * step - 0.3;
    const Regions out = textItem(L"OOO", L"CC");
    ASSERT_EQ(out.len(), 3);
    for (int b = 0; b < 3; ++b) {
        expectMoved(out[b][0], plain[0][0], b * step - 0.5 * w, -0.5 * hi.y);
        expectMoved(out[b][1], plain[0][1], b * step - 0.5 * w, -0.5 * hi.y);
    }
}

TEST(TextLayout, NarrowLetterAdvancesByItsInkWidthAndTheGap) {
    EXPECT_NEAR(inkWidth(L'I'), 0.333559, 1e-12);
    const Regions out = textItem(L"IH", L"");
    ASSERT_GE(out.len(), 2);
    CQorPoint3d lo, hi;
    box(out[1][0], lo, hi);
    EXPECT_NEAR(lo.x, 0.833559 + 0.155932, 1e-12);
}

TEST(TextLayout, TopRightOfHIAtAPointIsHandComputed) {
    // H advances 1.188814, I 0.833559: w = 1.722373. h = 3 + 1.01085 (the I's top).
    const Regions out = textItem(L"HI", L"TR", 0, CQorPoint3d(2.0, 3.0, 0.0));
    ASSERT_GE(out.len(), 2);
    CQorPoint3d lo, hi;
    box(out[0][0], lo, hi);
    EXPECT_NEAR(lo.x, 2.0 + 0.155932 - 1.722373, 1e-12);
    EXPECT_NEAR(hi.y, 3.0 + 1.0 - 4.01085, 1e-12);
    box(out[out.len() - 1][0], lo, hi);
    EXPECT_NEAR(lo.x, 2.0 + 1.188814 + 0.16678 - 1.722373, 1e-12);
    EXPECT_NEAR(hi.x, 2.0 + 1.188814 + 0.500339 - 1.722373, 1e-12);
    EXPECT_NEAR(hi.y, 0.0, 1e-12);
    EXPECT_NEAR(lo.y, 3.0 - 0.0101695 - 4.01085, 1e-12);
}

TEST(TextLayout, ExtentsOfAnItemAreThoseOfItsGlyphs) {
    CQorGDX gdx = doc();
    CQorMatrix3d m;
    m.setToScaling(2.5, CQorPoint3d());
    gdx.imageTxt(path1(), 0, L"H", CQorColor(), m, L"", CQorPoint3d(), CQorPoint3d());
    CQorPoint3d lo, hi;
    ASSERT_TRUE(gdx.extmaxGet(lo, hi));
    EXPECT_NEAR(lo.x, 2.5 * 0.155932, 1e-12);
    EXPECT_NEAR(hi.x, 2.5 * 0.844746, 1e-12);
    EXPECT_NEAR(lo.y, 0.0, 1e-12);
    EXPECT_NEAR(hi.y, 2.5, 1e-12);
}

TEST(TextLayout, NoExtentsAndFixedSizeFlagsLeaveTheCacheOnAdding) {
    for (unsigned long flag : {0x08ul, 0x80ul}) {
        CQorGDX gdx = doc();
        gdx.imageTxt(path1(), flag, L"HEB 200", CQorColor(), CQorMatrix3d(), L"CC", CQorPoint3d(),
                     CQorPoint3d());
        CQorPoint3d lo, hi;
        EXPECT_FALSE(gdx.extmaxGet(lo, hi)) << flag;
        EXPECT_TRUE(gdx.txtSet(path1(), L"Blech 2,5 mm"));
        EXPECT_FALSE(gdx.extmaxGet(lo, hi)) << flag;
        EXPECT_TRUE(gdx.propSet(path1(), GDX_PROP_EXT_ON));
        EXPECT_EQ(gdx.extmaxGet(lo, hi), flag == 0x08ul) << flag;
    }
}

TEST(TextLayout, DataItemWithNullPointerAddsNothing) {
    CQorGDX gdx = doc();
    EXPECT_FALSE(gdx.imageTxt(path1(), 0, static_cast<const CQorDataItem*>(nullptr), CQorColor(),
                              CQorMatrix3d(), 1.0, CQorPoint3d()));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(TextLayout, DefaultHostLaysOutTheDataItemsText) {
    CQorDataItem dir(1);
    const CQorDataKey txt(L"TXT"), align(L"ALIGN"), other(L"LAYER");
    dataItemSet(&dir, &other, CQorString(L"TEXT"));
    dataItemSet(&dir, &txt, CQorString(L"HEB 200"));
    dataItemSet(&dir, &align, CQorString(L"CC"));
    Regions regl;
    ASSERT_TRUE(qor_text_to_regl(&dir, regl, 0.0));
    const Regions expected = QOR::txtLayout(L"HEB 200", L"CC", CQorPoint3d(), &get_ascii_from_map);
    EXPECT_TRUE(sameRegions(regl, expected));

    CQorGDX gdx = doc();
    ASSERT_TRUE(gdx.imageTxt(path1(), 0, &dir, CQorColor(), CQorMatrix3d(), 0.0, CQorPoint3d()));
    Regions stored;
    gdx.geomGet(stored, 0);
    EXPECT_TRUE(sameRegions(stored, expected));
}

TEST(TextLayout, DefaultHostWritesTheValueWhenTheItemHasNoText) {
    CQorDataItem dir(1);
    const CQorDataKey key(L"LAYER"); // one entry: the item comes as a single pair
    dataItemSet(&dir, &key, CQorString(L"DIM"));
    Regions regl;
    ASSERT_TRUE(qor_text_to_regl(&dir, regl, 2.5));
    EXPECT_TRUE(sameRegions(regl, QOR::txtLayout(L"2.5", L"", CQorPoint3d(), &get_ascii_from_map)));
}

TEST(TextLayout, DefaultHostAnswersNothingForTextWithoutGlyphs) {
    CQorDataItem dir(1);
    const CQorDataKey key(L"TXT");
    dataItemSet(&dir, &key, CQorString(L"   "));
    Regions regl;
    EXPECT_FALSE(qor_text_to_regl(&dir, regl, 1.0));
    CQorGDX gdx = doc();
    EXPECT_FALSE(gdx.imageTxt(path1(), 0, &dir, CQorColor(), CQorMatrix3d(), 1.0, CQorPoint3d()));
    EXPECT_EQ(gdx.lenGet(), 0);
}

TEST(TextLayout, DefaultHostRejectsArgumentsOfAnotherForm) {
    QOR::CSmartResbuf result;
    EXPECT_EQ(qorHostTextToRegl(nullptr, result), QOR::kRtError);
    QOR::CSmartResbuf text(QOR::rbString(L"H"));
    EXPECT_EQ(qorHostTextToRegl(text, result), QOR::kRtError);
    QOR::CSmartResbuf listOnly(QOR::rbToList(QOR::rbString(L"H")));
    EXPECT_EQ(qorHostTextToRegl(listOnly, result), QOR::kRtError);
    QOR::CSmartResbuf good(QOR::rbToList(nullptr));
    good.append(QOR::mkResbuf(7.0, QOR::kRtReal));
    EXPECT_EQ(qorHostTextToRegl(good, result), QOR::kRtNorm);
    Regions regl;
    resbuf* chain = result;
    ASSERT_TRUE(QOR::fromRb(regl, chain, 0));
    EXPECT_TRUE(sameRegions(regl, QOR::txtLayout(L"7", L"", CQorPoint3d(), &get_ascii_from_map)));
}

TEST(TextLayout, SampleTextsUseOnlyTheirGlyphs) {
    // "äöü ÄÖÜ ß": each umlaut has three regions, the ß one; blanks none.
    const wchar_t sample[] = {0xE4, 0xF6, 0xFC, L' ', 0xC4, 0xD6, 0xDC, L' ', 0xDF, 0};
    const Regions out = textItem(sample, L"BL");
    int expected = 0;
    for (const wchar_t* c = sample; *c; ++c)
        expected += get_ascii_from_map(*c).len();
    EXPECT_EQ(out.len(), expected);
    const wchar_t plusMinus[] = {0xB1, L' ', L'0', L',', L'5', 0};
    EXPECT_GT(textItem(plusMinus, L"CC").len(), 3);
}
