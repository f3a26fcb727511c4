// The item painter with the screen's policy on the recording surface: the frame of
// a window's paint and every way the screen draws otherwise than the metafile.
#include "drawing/item_painter_p.h"
#include "foundation/geometry/qor_geom_fcn.h"
#include "painter_test_util.h"
#include "styling/line_pattern.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

using QOR::CQorItemPainter;
using QOR::CQorPaintPolicy;
using QOR::CQorRecordingSurface;

namespace {

// The box document with the view a fit to 110 by 110 gives it: (x, y) lands on
// (x + 5, 105 - y), as in the metafile.
CQorGDX fittedDoc() {
    CQorGDX gdx = boxDoc();
    gdx.viewMtxSet(CQorItemPainter::matrices(gdx, 110, 110).view);
    return gdx;
}

// A screen paint into a buffer whose background colour is bufferBack.
Calls screen(CQorGDX& gdx, int h = 110, int w = 110, unsigned long bufferBack = 0xFFFFFF) {
    CQorRecordingSurface rec;
    rec.bkColorSet(bufferBack);
    rec.clear();
    CQorItemPainter painter(rec, CQorPaintPolicy::screen());
    painter.paintScreen(gdx, h, w);
    return rec.text();
}

Calls metafile(CQorGDX& gdx, int h = 110, int w = 110) {
    CQorRecordingSurface rec;
    CQorItemPainter painter(rec, CQorPaintPolicy::metafile());
    painter.paint(gdx, h, w);
    return rec.text();
}

// The screen's item calls: from the first pen, without the background colour put
// back at the end.
Calls screenItems(CQorGDX& gdx) {
    Calls calls = itemCalls(screen(gdx));
    if (!calls.empty() && calls.back().rfind("bk ", 0) == 0)
        calls.pop_back();
    return calls;
}

// Every call is a pixel in color; the number of them.
int pixelsIn(const Calls& calls, const char* color) {
    int n = 0;
    for (const std::string& c : calls) {
        int x = 0, y = 0;
        char col[16] = {0};
        if (std::sscanf(c.c_str(), "pixel %d %d %15s", &x, &y, col) == 3) {
            EXPECT_STREQ(col, color) << c;
            ++n;
        }
    }
    return n;
}

void addRegionItem(CQorGDX& gdx, unsigned long flag, const CQorArrayTempl<CQorVertexArray>& regs,
                   const CQorColor& color, const CQorColor& fcolor,
                   const QOR::CHatchProp& hatch = QOR::CHatchProp(), int thickn = 1) {
    gdx.imageReg(path({1}), flag, regs, color, CQorMatrix3d(), CQorArrayTempl<double>(), 1.0,
                 thickn, fcolor, hatch, CQorPoint3d());
}

bool sameMatrix(const CQorMatrix3d& a, const CQorMatrix3d& b) {
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            if (a.m[r][c] != b.m[r][c])
                return false;
    return true;
}

CQorMatrix3d scaling(double f, const CQorPoint3d& about) {
    CQorMatrix3d m;
    m.setToScaling(f, about);
    return m;
}

} // namespace

// --- The frame of the paint.

TEST(ItemPainterScreen, DrawsWithTheDocumentsBackgroundAndPutsTheBuffersBack) {
    CQorGDX gdx = fittedDoc();
    gdx.backColorSet(ole(0x336699));
    addVl(gdx, segment(10, 10, 50, 10), indexed(1));
    EXPECT_EQ(screen(gdx, 110, 110, 0x123456), (Calls{"bk 336699", "pen 1 0000ff", "move 15 95",
                                                      "line 55 95", "pen free", "bk 123456"}));
}

TEST(ItemPainterScreen, EmptyListDrawsNothing) {
    CQorGDX gdx = fittedDoc();
    const CQorMatrix3d view = gdx.viewMtxGet();
    EXPECT_TRUE(screen(gdx).empty());
    EXPECT_TRUE(sameMatrix(gdx.viewMtxGet(), view));
}

TEST(ItemPainterScreen, NeverFittedListIsDrawnWithTheViewItHas) {
    CQorGDX gdx = boxDoc();
    addVl(gdx, segment(10, 10, 50, 10), indexed(1));
    // The identity view: item coordinates are device coordinates.
    EXPECT_EQ(screenItems(gdx), (Calls{"pen 1 0000ff", "move 10 10", "line 50 10", "pen free"}));
    EXPECT_TRUE(sameMatrix(gdx.viewMtxGet(), CQorMatrix3d()));
}

TEST(ItemPainterScreen, ResizedWindowWithoutFitKeepsTheOldView) {
    CQorGDX gdx = fittedDoc();
    addVl(gdx, segment(10, 10, 50, 10), indexed(1));
    const CQorMatrix3d view = gdx.viewMtxGet();
    const Calls small = itemCalls(screen(gdx, 110, 110));
    const Calls large = itemCalls(screen(gdx, 200, 300));
    EXPECT_EQ(large, small);
    EXPECT_EQ(large[1], "move 15 95");
    EXPECT_TRUE(sameMatrix(gdx.viewMtxGet(), view));
    // The metafile fits the same document to its own size and writes that view.
    metafile(gdx, 200, 300);
    EXPECT_FALSE(sameMatrix(gdx.viewMtxGet(), view));
}

TEST(ItemPainterScreen, ZoomOfTheDocumentActsAsItStands) {
    CQorGDX gdx = fittedDoc();
    gdx.zoomMtxSet(scaling(2.0, CQorPoint3d(0, 0, 0)));
    addVl(gdx, segment(10, 10, 50, 10), indexed(1));
    EXPECT_EQ(screenItems(gdx), (Calls{"pen 1 0000ff", "move 30 190", "line 110 190", "pen free"}));
}

TEST(ItemPainterScreen, FixedSizeLineKeepsItsSizeUnderZoom) {
    const auto draw = [](double zoomFactor) {
        CQorGDX gdx = fittedDoc();
        gdx.zoomMtxSet(scaling(zoomFactor, CQorPoint3d(55, 55, 0)));
        // One unit of the unit square is 100 device units (110 / 1.1).
        addVl(gdx, segment(0, 0, 0.1, 0), indexed(1), CQorArrayTempl<double>(), GDX_FLAG_FIXED_SIZE,
              CQorPoint3d(50, 50, 0));
        return screenItems(gdx);
    };
    EXPECT_EQ(draw(1.0), (Calls{"pen 1 0000ff", "move 55 55", "line 65 55", "pen free"}));
    EXPECT_EQ(draw(3.0), draw(1.0));
}

TEST(ItemPainterScreen, ListIsSortedIntoItsLayersBeforeDrawing) {
    CQorGDX gdx = fittedDoc();
    addVl(gdx, segment(10, 10, 50, 10), indexed(1));
    addRegionItem(gdx, GDX_FLAG_FILL, region(rect(10, 10, 50, 13)), indexed(2), indexed(3));
    const Calls calls = screen(gdx);
    // The region (bottom layer) comes first although it was added last.
    EXPECT_EQ(gdx.getDisplayList()[0].type, GDX_REG);
    ASSERT_GE(calls.size(), 2u);
    EXPECT_EQ(calls[1], "pen 1 00ffff");
}

TEST(ItemPainterScreen, HiddenItemIsSkipped) {
    CQorGDX gdx = fittedDoc();
    addVl(gdx, segment(10, 10, 50, 10), indexed(1), CQorArrayTempl<double>(), GDX_FLAG_HIDDEN);
    EXPECT_EQ(screen(gdx), (Calls{"bk ffffff", "bk ffffff"}));
}

// --- Colours.

TEST(ItemPainterScreen, LineInTheBackgroundColourIsDrawnInverted) {
    CQorGDX gdx = fittedDoc();
    gdx.backColorSet(ole(0x0000ff));
    addVl(gdx, segment(10, 10, 50, 10), indexed(1));
    EXPECT_EQ(screenItems(gdx)[0], "pen 1 ffff00");
    // The metafile keeps it as it is: only white is corrected there.
    EXPECT_EQ(itemCalls(metafile(gdx))[0], "pen 1 0000ff");
}

TEST(ItemPainterScreen, WhiteLineStaysWhiteOnADarkBackground) {
    CQorGDX gdx = fittedDoc();
    gdx.backColorSet(ole(0x000000));
    addVl(gdx, segment(10, 10, 50, 10), indexed(7));
    EXPECT_EQ(screenItems(gdx)[0], "pen 1 ffffff");
    EXPECT_EQ(itemCalls(metafile(gdx))[0], "pen 1 000000");
}

TEST(ItemPainterScreen, WhiteLineOnWhiteIsInvertedToBlack) {
    CQorGDX gdx = fittedDoc();
    addVl(gdx, segment(10, 10, 50, 10), indexed(7));
    EXPECT_EQ(screenItems(gdx)[0], "pen 1 000000");
}

TEST(ItemPainterScreen, ColourIsComparedWithTheSurfacesPresentBackground) {
    CQorGDX gdx = fittedDoc();
    addVl(gdx, segment(10, 10, 50, 10), indexed(1));
    CQorRecordingSurface rec;
    CQorItemPainter painter(rec, CQorPaintPolicy::screen());
    EXPECT_EQ(painter.lineColor(gdx, 0), 0x0000FFul);
    rec.bkColorSet(0x0000FF);
    EXPECT_EQ(painter.lineColor(gdx, 0), 0xFFFF00ul);
}

TEST(ItemPainterScreen, NoIndexInModeZeroFillsWithTheLineColourWhateverItsFcolor) {
    CQorGDX gdx = fittedDoc();
    addRegionItem(gdx, GDX_FLAG_FILL, region(rect(10, 10, 50, 13)), CQorColor(), indexed(3));
    // No colour on white is the inverse of the background: black.
    EXPECT_EQ(screenItems(gdx), (Calls{"pen 1 000000", "bk ffffff", "brush 000000", "fillmode 1",
                                       "poly 15 95 55 95 55 95 55 92 55 92 15 92 15 92 15 95",
                                       "brush free", "clip 0 0 110 110", "pen free"}));
    // The metafile fills such an item with its fcolor.
    EXPECT_EQ(itemCalls(metafile(gdx))[1], "pen 1 00ff00");
}

TEST(ItemPainterScreen, FillColourEqualToTheBackgroundIsInverted) {
    CQorGDX gdx = fittedDoc();
    gdx.backColorSet(ole(0x00ff00));
    addRegionItem(gdx, GDX_FLAG_FILL, region(rect(10, 10, 50, 13)), indexed(1), indexed(3));
    EXPECT_EQ(callsStarting(screen(gdx), "brush "), (Calls{"brush ff00ff", "brush free"}));
}

TEST(ItemPainterScreen, FillColourIndexZeroMeansTheLineColour) {
    CQorGDX gdx = fittedDoc();
    addRegionItem(gdx, GDX_FLAG_FILL, region(rect(10, 10, 50, 13)), indexed(1), indexed(0));
    EXPECT_EQ(callsStarting(screen(gdx), "brush "), (Calls{"brush 0000ff", "brush free"}));
}

// --- Line patterns and dots.

TEST(ItemPainterScreen, MeasureOfAnEmptyOrShortPatternLeavesTheLineSolid) {
    for (const CQorArrayTempl<double>& lt : {pattern({1.0}), pattern({5.0})}) {
        CQorGDX gdx = fittedDoc();
        addVl(gdx, segment(10, 10, 50, 10), indexed(1), lt);
        EXPECT_EQ(screenItems(gdx),
                  (Calls{"pen 1 0000ff", "move 15 95", "line 55 95", "pen free"}));
        EXPECT_EQ(screenItems(gdx), itemCalls(metafile(gdx)));
    }
}

TEST(ItemPainterScreen, ClosedButBrokenArrayIsSolidOnlyInTheMetafile) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(10, 0, 0)));
    vl.append(CQorVertex(CQorPoint3d(10, 5, 0), CQorPoint3d(0, 0, 0)));
    ASSERT_TRUE(vl.isClosed());
    ASSERT_FALSE(vl.isContinuous());
    CQorRecordingSurface rec;
    EXPECT_FALSE(CQorItemPainter(rec, CQorPaintPolicy::screen()).isSolid(vl));
    EXPECT_TRUE(CQorItemPainter(rec, CQorPaintPolicy::metafile()).isSolid(vl));
    EXPECT_TRUE(CQorItemPainter(rec, CQorPaintPolicy::screen()).isSolid(rect(0, 0, 1, 1)));
}

TEST(ItemPainterScreen, ClosedContourWithBrokenPatternPiecesGivesSinglePixels) {
    CQorGDX gdx = fittedDoc();
    addVl(gdx, rect(10, 10, 50, 50), indexed(1), pattern({1.0, 1.0, 1.0}));
    CQorRecordingSurface probe;
    const CQorItemPainter sizes(probe, CQorPaintPolicy::screen());
    // The pieces the pattern leaves: closed (the pattern ends where it began) but
    // broken, so not continuous.
    CQorVertexArray pieces = rect(10, 10, 50, 50);
    qor_gdx_image_vl_measure(
        pieces, CQorItemPainter::workingPattern(pattern({1.0, 1.0, 1.0}), 1.0, sizes.dotLength()),
        1);
    ASSERT_TRUE(pieces.isClosed());
    ASSERT_FALSE(pieces.isContinuous());
    int dots = 0;
    for (int k = 0; k < pieces.len(); ++k)
        dots += pieces[k].m_start.distanceTo(pieces[k].m_end) < sizes.dotLimit() ? 1 : 0;
    ASSERT_GT(dots, 0);

    const Calls onScreen = screenItems(gdx);
    EXPECT_EQ(pixelsIn(onScreen, "0000ff"), dots);
    // The metafile takes the closed array as solid: no dot at all, short lines only.
    const Calls inFile = itemCalls(metafile(gdx));
    EXPECT_EQ(callsStarting(inFile, "pixel").size(), 0u);
    EXPECT_EQ(callsStarting(inFile, "move").size(), static_cast<size_t>(pieces.len()));
    EXPECT_EQ(callsStarting(onScreen, "move").size(), static_cast<size_t>(pieces.len() - dots));
}

TEST(ItemPainterScreen, ZeroPatternEntryIsAPixelInTheLineColour) {
    CQorGDX gdx = fittedDoc();
    addVl(gdx, segment(10, 50, 90, 50), indexed(1), pattern({0.0, 0.0, 1.0}));
    const Calls calls = screenItems(gdx);
    EXPECT_GT(pixelsIn(calls, "0000ff"), 5);
    EXPECT_TRUE(callsStarting(calls, "move").empty());
    EXPECT_TRUE(callsStarting(calls, "line").empty());
    for (const std::string& c : callsStarting(calls, "pixel")) {
        int x = 0, y = 0;
        ASSERT_EQ(std::sscanf(c.c_str(), "pixel %d %d", &x, &y), 2);
        EXPECT_EQ(y, 55);
        EXPECT_GE(x, 15);
        EXPECT_LE(x, 95);
    }
}

TEST(ItemPainterScreen, DotsHatchIsPixelsInTheFillColour) {
    CQorGDX gdx = fittedDoc();
    // Scale 80: rows 5 apart, each shifted by 2.5, dots 5 apart along a row.
    addRegionItem(gdx, GDX_FLAG_HATCH, region(rect(10, 10, 50, 30)), indexed(1), indexed(3),
                  QOR::CHatchProp(L"DOTS", 0.0, 80.0, false));
    const Calls calls = screenItems(gdx);
    EXPECT_EQ(calls[1], "pen 1 00ff00");
    EXPECT_GT(pixelsIn(calls, "00ff00"), 10);
    EXPECT_TRUE(callsStarting(calls, "poly").empty());
}

// --- Points.

namespace {
Calls screenPoint(unsigned long mode, double size) {
    CQorGDX gdx = fittedDoc();
    gdx.imagePt(path({1}), 0, CQorPoint3d(50, 50, 0), indexed(1), CQorMatrix3d(), size, mode,
                CQorPoint3d());
    const Calls all = screenItems(gdx);
    // Without the item's pen (first) and its release (last).
    return Calls(all.begin() + 1, all.end() - 1);
}
} // namespace

TEST(ItemPainterScreen, PointMode8IsASolidRectFillInTheLineColour) {
    EXPECT_EQ(screenPoint(8 | 32 | 2, 20.0),
              (Calls{"pen 1 0000ff", "brush hollow", "fillrect 45 45 65 65 0000ff", "brush free",
                     "pen free"}));
}

TEST(ItemPainterScreen, PointMode8OddSizeStartsAtTheShiftedHalf) {
    // px 7, h 3: from (52, 52), seven units wide.
    EXPECT_EQ(screenPoint(8, 7.0),
              (Calls{"pen 1 0000ff", "brush hollow", "fillrect 52 52 59 59 0000ff", "brush free",
                     "pen free"}));
}

TEST(ItemPainterScreen, PointMode64OddSizeHasTheLowCornerNearerByOne) {
    // px 21: h 10, q 10; the low corner is 9 away.
    EXPECT_EQ(screenPoint(65, 21.0), (Calls{"pen 1 0000ff", "brush hollow", "rect 65 65 46 46",
                                            "brush free", "pen free"}));
}

TEST(ItemPainterScreen, PointMode64EvenSizeKeepsBothCorners) {
    EXPECT_EQ(screenPoint(65, 20.0), (Calls{"pen 1 0000ff", "brush hollow", "rect 65 65 45 45",
                                            "brush free", "pen free"}));
}

TEST(ItemPainterScreen, PointMode64NegativeOddSize) {
    // px -5: h -3 and q -2, so the corners are (52, 52) and (58, 58).
    EXPECT_EQ(screenPoint(64 | 1, -5.0), (Calls{"pen 1 0000ff", "brush hollow", "rect 52 52 58 58",
                                                "brush free", "pen free"}));
}

TEST(ItemPainterScreen, OtherPointModesDrawAsInTheMetafile) {
    for (unsigned long mode : {0ul, 1ul, 3ul, 4ul, 33ul, 34ul}) {
        CQorGDX gdx = fittedDoc();
        gdx.imagePt(path({1}), 0, CQorPoint3d(50, 50, 0), indexed(1), CQorMatrix3d(), 20.0, mode,
                    CQorPoint3d());
        EXPECT_EQ(screenItems(gdx), itemCalls(metafile(gdx))) << "mode " << mode;
    }
}

// --- Regions.

TEST(ItemPainterScreen, SolidRegionIsOnePolygonEdgedByTheItemsPen) {
    CQorGDX gdx = fittedDoc();
    addRegionItem(gdx, GDX_FLAG_FILL, region(rect(10, 10, 50, 13)), indexed(1), indexed(3),
                  QOR::CHatchProp(), 3);
    EXPECT_EQ(screenItems(gdx), (Calls{"pen 3 0000ff", "bk ffffff", "brush 00ff00", "fillmode 1",
                                       "poly 15 95 55 95 55 95 55 92 55 92 15 92 15 92 15 95",
                                       "brush free", "clip 0 0 110 110", "pen free"}));
}

TEST(ItemPainterScreen, RegionHolesAreTakenOutOfTheClipAndTheClipIsRestored) {
    CQorGDX gdx = fittedDoc();
    CQorArrayTempl<CQorVertexArray> ring = region(rect(10, 10, 50, 50));
    ring.append(rect(20, 20, 30, 30));
    addRegionItem(gdx, GDX_FLAG_FILL, ring, indexed(1), indexed(3));
    EXPECT_EQ(screenItems(gdx), (Calls{"pen 1 0000ff", "clipout 25 85 35 85 35 75 25 75 25 85",
                                       "bk ffffff", "brush 00ff00", "fillmode 1",
                                       "poly 15 95 55 95 55 95 55 55 55 55 15 55 15 55 15 95",
                                       "brush free", "clip 0 0 110 110", "pen free"}));
}

TEST(ItemPainterScreen, RegionWithoutContoursFillsNothing) {
    CQorGDX gdx = fittedDoc();
    addRegionItem(gdx, GDX_FLAG_FILL | GDX_FLAG_OUTLINE, CQorArrayTempl<CQorVertexArray>(),
                  indexed(1), indexed(3));
    const Calls calls = screen(gdx);
    EXPECT_TRUE(callsStarting(calls, "poly").empty());
    EXPECT_TRUE(callsStarting(calls, "clip").empty());
}

TEST(ItemPainterScreen, HatchRowsHaveAThinPenInTheFillColour) {
    CQorGDX gdx = fittedDoc();
    addRegionItem(gdx, GDX_FLAG_HATCH, region(rect(10, 12, 50, 28)), indexed(1), indexed(3),
                  QOR::CHatchProp(L"_USER", 0.0, 5.0, false), 3);
    // Rows at y 15, 20 and 25 of the item: device rows 90, 85 and 80.
    EXPECT_EQ(screenItems(gdx),
              (Calls{"pen 3 0000ff", "pen 1 00ff00", "move 55 90", "line 15 90", "move 55 85",
                     "line 15 85", "move 55 80", "line 15 80", "pen free", "pen free"}));
}

TEST(ItemPainterScreen, FillAndHatchTogetherIsTheSolidFillAlone) {
    CQorGDX gdx = fittedDoc();
    addRegionItem(gdx, GDX_FLAG_FILL | GDX_FLAG_HATCH, region(rect(10, 12, 50, 28)), indexed(1),
                  indexed(3), QOR::CHatchProp(L"_USER", 0.0, 5.0, false));
    const Calls onScreen = screenItems(gdx);
    EXPECT_EQ(callsStarting(onScreen, "poly").size(), 1u);
    EXPECT_TRUE(callsStarting(onScreen, "move").empty());
    // The metafile strokes its rows over the scan lines: device row 85 as a scan
    // line from the left and as a hatch row from the right.
    EXPECT_EQ(countOf(itemCalls(metafile(gdx)), "line 15 85"), 1);
    EXPECT_EQ(countOf(itemCalls(metafile(gdx)), "line 55 85"), 1);
}

TEST(ItemPainterScreen, HatchDensityTestTakesTheViewDirectionIn) {
    CQorGDX gdx = fittedDoc();
    gdx.viewDirectionMtxSet(scaling(0.5, CQorPoint3d(0, 0, 0)));
    gdx.viewMtxSet(CQorItemPainter::matrices(gdx, 110, 110).view);
    // DENSE at 256: rows 4 apart, 4 device units through item mtx * M, but 2 with the view
    // direction's half scale as well, which is too dense.
    addRegionItem(gdx, GDX_FLAG_HATCH, region(rect(10, 10, 50, 30)), indexed(1), indexed(3),
                  QOR::CHatchProp(L"DENSE", 0.0, 256.0, false));
    const Calls onScreen = screenItems(gdx);
    EXPECT_EQ(callsStarting(onScreen, "poly").size(), 1u);
    EXPECT_TRUE(callsStarting(onScreen, "move").empty());
    const Calls inFile = itemCalls(metafile(gdx));
    EXPECT_FALSE(callsStarting(inFile, "move").empty());
}

namespace {
// A hatched square under a zoom about the origin: true when it came out as the
// solid polygon, false when as hatch rows.
// DENSE has one family of horizontal rows 1/64 apart: at scale 64 * d they are d
// apart.
QOR::CHatchProp rowsApart(double d) {
    return QOR::CHatchProp(L"DENSE", 0.0, 64.0 * d, false);
}

bool hatchTurnedSolid(double side, double rowDist, double zoom) {
    CQorGDX gdx = fittedDoc();
    gdx.zoomMtxSet(scaling(zoom, CQorPoint3d(0, 0, 0)));
    addRegionItem(gdx, GDX_FLAG_HATCH, region(rect(0, 0, side, side)), indexed(1), indexed(3),
                  rowsApart(rowDist));
    const Calls calls = screenItems(gdx);
    const bool polygon = callsStarting(calls, "poly").size() == 1;
    const bool rows = !callsStarting(calls, "move").empty();
    EXPECT_NE(polygon, rows);
    return polygon;
}
} // namespace

TEST(ItemPainterScreen, ZoomedOutHatchTurnsSolidAtRowsOf2Point3DeviceUnits) {
    // Rows 4.6 apart: at zoom 0.5 they are 2.3 device units apart.
    EXPECT_FALSE(hatchTurnedSolid(40.0, 4.6, 1.0));
    EXPECT_FALSE(hatchTurnedSolid(40.0, 4.6, 0.51));
    EXPECT_TRUE(hatchTurnedSolid(40.0, 4.6, 0.5));
    EXPECT_TRUE(hatchTurnedSolid(40.0, 4.6, 0.25));
}

TEST(ItemPainterScreen, HatchNeedingNinetyFiveRowsTurnsSolid) {
    // Rows 3 apart: 94 rows over 282, 95 over 285.
    EXPECT_FALSE(hatchTurnedSolid(282.0, 3.0, 1.0));
    EXPECT_TRUE(hatchTurnedSolid(285.0, 3.0, 1.0));
}

// --- Text.

TEST(ItemPainterScreen, GlyphHoleStaysClearAndTheNextGlyphIsNotClipped) {
    CQorGDX gdx = fittedDoc();
    CQorArrayTempl<CQorDisplayItem> items;
    items.append(glyphItem());
    ASSERT_TRUE(gdx.addDisplayList(items));
    const Calls calls = screen(gdx);
    Calls clips;
    for (const std::string& c : calls)
        if (c.rfind("clip", 0) == 0 || c.rfind("poly", 0) == 0 || c.rfind("brush ", 0) == 0)
            clips.push_back(c);
    // The hole's points come vertex by vertex, as the outer contour's do.
    EXPECT_EQ(clips, (Calls{"clipout 20 90 25 90 25 90 25 85 25 85 20 85 20 85 20 90",
                            "brush 0000ff", "poly 15 95 35 95 35 95 35 75 35 75 15 75 15 75 15 95",
                            "brush free", "clip 0 0 110 110", "brush 0000ff",
                            "poly 45 95 55 95 55 95 55 75 55 75 45 75 45 75 45 95", "brush free",
                            "clip 0 0 110 110"}));
}

namespace {
// A half disc of radius r about (30, 50): the arc, then the diameter back.
CQorDisplayItem halfDisc(double r) {
    CQorDisplayItem item;
    item.type = GDX_TXT;
    item.color = indexed(1);
    item.linetype = pattern({1.0});
    CQorVertexArray shape;
    shape.append(CQorVertex(CQorPoint3d(30 - r, 50, 0), CQorPoint3d(30 + r, 50, 0), 1.0));
    shape.append(CQorVertex(CQorPoint3d(30 + r, 50, 0), CQorPoint3d(30 - r, 50, 0), 0.0));
    item.regionList.append(region(shape));
    return item;
}

size_t polygonPoints(const Calls& calls) {
    const Calls polys = callsStarting(calls, "poly ");
    EXPECT_EQ(polys.size(), 1u);
    if (polys.empty())
        return 0;
    size_t words = 0;
    for (char ch : polys[0])
        words += ch == ' ' ? 1 : 0;
    return words / 2;
}
} // namespace

TEST(ItemPainterScreen, GlyphArcsAreExplodedInItemUnitsBeforeDrawing) {
    const CQorDisplayItem item = halfDisc(10.0);
    const int chords = QOR::g_vx_split_dif(item.regionList[0][0][0], 0.1);
    ASSERT_GT(chords, 4);
    const auto drawn = [&item](double zoom, bool onScreen) {
        CQorGDX gdx = fittedDoc();
        gdx.zoomMtxSet(scaling(zoom, CQorPoint3d(0, 0, 0)));
        CQorArrayTempl<CQorDisplayItem> items;
        items.append(item);
        EXPECT_TRUE(gdx.addDisplayList(items));
        return onScreen ? screen(gdx) : metafile(gdx);
    };
    // Every chord gives its start and end, the diameter two more points.
    const size_t expected = 2 * static_cast<size_t>(chords) + 2;
    EXPECT_EQ(polygonPoints(drawn(1.0, true)), expected);
    // The chords are counted in item units, so the zoom does not change them.
    EXPECT_EQ(polygonPoints(drawn(4.0, true)), expected);
    // The metafile flattens the arc in device units at its own tolerance.
    EXPECT_NE(polygonPoints(drawn(1.0, false)), expected);
    // The outline strokes one short line per chord and one for the diameter.
    EXPECT_EQ(callsStarting(drawn(1.0, true), "line").size(), static_cast<size_t>(chords) + 1);
}

// --- Pictures.

namespace {
struct Request {
    int calls = 0;
    bool transparent = true;
    unsigned long back = 0;
};
Request g_asked;

bool recordRequest(const CQorString&, int, int, int, bool transparent, unsigned long back,
                   QOR::DeviceBitmap& out) {
    ++g_asked.calls;
    g_asked.transparent = transparent;
    g_asked.back = back;
    out.width = 1;
    out.height = 1;
    out.pixels.assign(1, 0);
    return true;
}

Calls screenPicture(unsigned long flag) {
    CQorGDX gdx = fittedDoc();
    gdx.backColorSet(ole(0x336699));
    gdx.imagePicture(path({1}), flag, L"logo", 3, CQorPoint3d(10.9, 10, 0),
                     CQorPoint3d(40, 30.5, 0));
    CQorRecordingSurface rec;
    CQorItemPainter painter(rec, CQorPaintPolicy::screen());
    painter.pictureLoaderSet(recordRequest);
    painter.paintScreen(gdx, 110, 120);
    return rec.text();
}
} // namespace

TEST(ItemPainterScreen, PictureBackgroundIsTheDocumentsAndTransparencyIsIgnored) {
    g_asked = Request();
    EXPECT_EQ(callsStarting(screenPicture(GDX_FLAG_PIC_TRANSPARENT), "blit"),
              (Calls{"blit 10 10 29 20"}));
    EXPECT_EQ(g_asked.calls, 1);
    EXPECT_FALSE(g_asked.transparent);
    EXPECT_EQ(g_asked.back, 0x336699ul);
}

TEST(ItemPainterScreen, WindowPictureCoversTheClientArea) {
    g_asked = Request();
    EXPECT_EQ(callsStarting(screenPicture(GDX_FLAG_PIC_WINDOW), "blit"),
              (Calls{"blit 0 0 120 110"}));
    EXPECT_EQ(g_asked.calls, 1);
}
