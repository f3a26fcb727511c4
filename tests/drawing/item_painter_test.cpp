// The item painter on the recording surface: exact calls in device integers.
#include "drawing/item_painter_p.h"
#include "painter_test_util.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

using QOR::CQorItemPainter;
using QOR::CQorPaintPolicy;
using QOR::CQorRecordingSurface;

namespace {

Calls paint(CQorGDX& gdx, int h = 110, int w = 110) {
    CQorRecordingSurface rec;
    CQorItemPainter painter(rec, CQorPaintPolicy::metafile());
    painter.paint(gdx, h, w);
    return rec.text();
}

} // namespace

TEST(ItemPainter, ViewOfTheBoxPlacesPointsWithMargin) {
    CQorGDX gdx = boxDoc();
    const QOR::CQorPaintMatrices m = CQorItemPainter::matrices(gdx, 110, 110);
    const CQorPoint3d p = CQorPoint3d(10, 20, 0) * m.base;
    EXPECT_DOUBLE_EQ(p.x, 15.0);
    EXPECT_DOUBLE_EQ(p.y, 85.0);
}

TEST(ItemPainter, PaintReplacesTheDocumentsView) {
    CQorGDX gdx = boxDoc();
    paint(gdx);
    const CQorPoint3d p = CQorPoint3d(0, 0, 0) * gdx.viewMtxGet();
    EXPECT_DOUBLE_EQ(p.x, 5.0);
    EXPECT_DOUBLE_EQ(p.y, 105.0);
}

TEST(ItemPainter, EmptyDocumentOnlySetsTheClip) {
    CQorGDX gdx = plainDoc();
    EXPECT_EQ(paint(gdx, 200, 300), (Calls{"clip 0 0 300 200"}));
    // An equal view box gives the identity view.
    const CQorPoint3d p = CQorPoint3d(7, 9, 0) * gdx.viewMtxGet();
    EXPECT_DOUBLE_EQ(p.x, 7.0);
    EXPECT_DOUBLE_EQ(p.y, 9.0);
}

TEST(ItemPainter, LineIsMovePairsInTruncatedDeviceUnits) {
    CQorGDX gdx = boxDoc();
    addVl(gdx, segment(10.7, 10.2, 50.9, 10.2), indexed(1));
    EXPECT_EQ(paint(gdx),
              (Calls{"clip 0 0 110 110", "pen 1 0000ff", "move 15 94", "line 55 94", "pen free"}));
}

TEST(ItemPainter, WhiteLineComesOutBlack) {
    CQorGDX gdx = boxDoc();
    addVl(gdx, segment(10, 10, 50, 10), indexed(7));
    ASSERT_EQ(gdx.itemColorGet(0), 0xFFFFFFul);
    EXPECT_EQ(itemCalls(paint(gdx)),
              (Calls{"pen 1 000000", "move 15 95", "line 55 95", "pen free"}));
}

TEST(ItemPainter, NoColourOnWhiteBackgroundIsBlack) {
    CQorGDX gdx = boxDoc();
    addVl(gdx, segment(10, 10, 50, 10), CQorColor());
    EXPECT_EQ(itemCalls(paint(gdx))[0], "pen 1 000000");
}

TEST(ItemPainter, NoColourOnBlackBackgroundTurnsFromWhiteToBlack) {
    CQorGDX gdx = boxDoc();
    gdx.backColorSet(ole(0));
    addVl(gdx, segment(10, 10, 50, 10), CQorColor());
    ASSERT_EQ(gdx.itemColorGet(0), 0xFFFFFFul);
    EXPECT_EQ(itemCalls(paint(gdx))[0], "pen 1 000000");
}

TEST(ItemPainter, PatternCodesMapBeforeScaling) {
    const auto wp = [](std::initializer_list<double> lt, double scale) {
        const CQorArrayTempl<double> p = CQorItemPainter::workingPattern(pattern(lt), scale, 0.21);
        std::vector<double> out;
        for (int k = 0; k < p.len(); ++k)
            out.push_back(p[k]);
        return out;
    };
    EXPECT_EQ(wp({1.0, 1.0, 1.0}, 2.0), (std::vector<double>{22.0, -10.0, 0.21, -10.0}));
    EXPECT_EQ(wp({1.0, 1.0, 0.0}, 1.0), (std::vector<double>{10.0, -4.0}));
    EXPECT_EQ(wp({0.0, 0.0, 3.0}, 5.0), (std::vector<double>{0.21, -20.0}));
    EXPECT_TRUE(wp({1.0}, 2.0).empty());
    EXPECT_TRUE(wp({1.0, 0.0, 0.0}, 2.0).empty());
    EXPECT_EQ(wp({2.0, -1.0, 0.0}, 3.0), (std::vector<double>{6.0, -3.0, 0.21}));
}

TEST(ItemPainter, ShortPieceWithDotTestIsOneUnitLine) {
    CQorRecordingSurface rec;
    CQorItemPainter painter(rec, CQorPaintPolicy::metafile());
    CQorVertexArray vl = segment(10.5, 20.5, 10.5 + painter.dotLimit() * 0.5, 20.5);
    CQorMatrix3d d;
    painter.stroke(vl, d, true);
    EXPECT_EQ(rec.text(), (Calls{"move 10 20", "line 11 20"}));
    rec.clear();
    painter.stroke(vl, d, false);
    EXPECT_EQ(countOf(rec.text(), "line 11 20"), 0);
}

TEST(ItemPainter, ZeroPatternEntryIsDrawnAsDots) {
    CQorGDX gdx = boxDoc();
    addVl(gdx, segment(10, 50, 90, 50), indexed(1), pattern({0.0, 0.0, 1.0}));
    const Calls calls = itemCalls(paint(gdx));
    // Every piece is a dot: a move followed by a line one unit to the right.
    int dots = 0;
    for (size_t k = 1; k + 1 < calls.size(); k += 2) {
        int mx = 0, my = 0, lx = 0, ly = 0;
        ASSERT_EQ(std::sscanf(calls[k].c_str(), "move %d %d", &mx, &my), 2) << calls[k];
        ASSERT_EQ(std::sscanf(calls[k + 1].c_str(), "line %d %d", &lx, &ly), 2) << calls[k + 1];
        EXPECT_EQ(lx, mx + 1);
        EXPECT_EQ(ly, my);
        EXPECT_EQ(my, 55);
        ++dots;
    }
    EXPECT_GT(dots, 5);
}

TEST(ItemPainter, ZeroLengthVertexOfClosedContourIsNoDot) {
    CQorGDX gdx = boxDoc();
    CQorVertexArray vl = rect(10, 10, 50, 50);
    vl.append(CQorVertex(CQorPoint3d(10, 10, 0), CQorPoint3d(10, 10, 0)));
    ASSERT_TRUE(vl.isClosed());
    addVl(gdx, vl, indexed(1));
    EXPECT_EQ(countOf(paint(gdx), "line 16 95"), 0);
}

TEST(ItemPainter, ZeroLengthVertexOfBrokenArrayIsDot) {
    CQorGDX gdx = boxDoc();
    CQorVertexArray vl = segment(10, 10, 50, 10);
    vl.append(CQorVertex(CQorPoint3d(60, 10, 0), CQorPoint3d(60, 10, 0)));
    addVl(gdx, vl, indexed(1));
    EXPECT_EQ(itemCalls(paint(gdx)), (Calls{"pen 1 0000ff", "move 15 95", "line 55 95",
                                            "move 65 95", "line 66 95", "pen free"}));
}

namespace {
Calls pointCalls(unsigned long mode, double size) {
    CQorGDX gdx = boxDoc();
    gdx.imagePt(path({1}), 0, CQorPoint3d(50, 50, 0), indexed(1), CQorMatrix3d(), size, mode,
                CQorPoint3d());
    Calls all = itemCalls(paint(gdx));
    // Drop the item pen (first) and its release (last): the point's own calls stay.
    return Calls(all.begin() + 1, all.end() - 1);
}
} // namespace

TEST(ItemPainter, PointNegativeSizeCrossHasHalfSizeMinusFive) {
    EXPECT_EQ(pointCalls(3, -10.0),
              (Calls{"pen 1 0000ff", "brush hollow", "move 55 55", "line 60 60", "move 55 55",
                     "line 60 50", "move 55 55", "line 50 60", "move 55 55", "line 50 50",
                     "brush free", "pen free"}));
}

TEST(ItemPainter, PointNegativeOddSizeShiftsArithmetically) {
    // -5 >> 1 is -3: the tick goes three units down on the device.
    EXPECT_EQ(pointCalls(4, -5.0), (Calls{"pen 1 0000ff", "brush hollow", "move 55 55",
                                          "line 55 58", "brush free", "pen free"}));
}

TEST(ItemPainter, PointNegativeSizeIsTheSameUnderZoom) {
    CQorGDX gdx = boxDoc();
    CQorMatrix3d zoom;
    zoom.setToScaling(3.0, CQorPoint3d(55, 55, 0));
    gdx.zoomMtxSet(zoom);
    gdx.imagePt(path({1}), 0, CQorPoint3d(50, 50, 0), indexed(1), CQorMatrix3d(), -10.0, 2,
                CQorPoint3d());
    const Calls calls = itemCalls(paint(gdx));
    EXPECT_EQ(countOf(calls, "line 55 50"), 1);
    EXPECT_EQ(countOf(calls, "line 60 55"), 1);
}

TEST(ItemPainter, PointModeZeroIsDotOfRadiusOne) {
    EXPECT_EQ(pointCalls(0, 20.0), (Calls{"pen 1 0000ff", "brush hollow", "brush 0000ff",
                                          "ellipse 56 56 54 54", "brush free", "pen free"}));
}

TEST(ItemPainter, PointModeOneDrawsNothing) {
    EXPECT_EQ(pointCalls(1, 20.0),
              (Calls{"pen 1 0000ff", "brush hollow", "brush free", "pen free"}));
}

TEST(ItemPainter, PointMode33IsOnlyACircle) {
    EXPECT_EQ(pointCalls(33, 20.0), (Calls{"pen 1 0000ff", "brush hollow", "ellipse 65 65 45 45",
                                           "brush free", "pen free"}));
}

TEST(ItemPainter, PointMode34IsCircleAndPlus) {
    EXPECT_EQ(pointCalls(34, 20.0),
              (Calls{"pen 1 0000ff", "brush hollow", "ellipse 65 65 45 45", "move 55 55",
                     "line 55 45", "move 55 55", "line 55 65", "move 55 55", "line 65 55",
                     "move 55 55", "line 45 55", "brush free", "pen free"}));
}

TEST(ItemPainter, PointMode8IsFilledSquareOnly) {
    EXPECT_EQ(pointCalls(8 | 32 | 2, 20.0), (Calls{"pen 1 0000ff", "brush hollow", "brush 0000ff",
                                                   "rect 65 65 45 45", "brush free", "pen free"}));
}

TEST(ItemPainter, PointMode64IsSquareFrame) {
    EXPECT_EQ(pointCalls(65, 20.0), (Calls{"pen 1 0000ff", "brush hollow", "rect 65 65 45 45",
                                           "brush free", "pen free"}));
}

TEST(ItemPainter, RegionOutlineOnlyUsesItemPenAndPattern) {
    CQorGDX gdx = boxDoc();
    gdx.imageReg(path({1}), GDX_FLAG_OUTLINE, region(rect(10, 10, 50, 50)), indexed(1),
                 CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 3, indexed(5), QOR::CHatchProp(),
                 CQorPoint3d());
    EXPECT_EQ(itemCalls(paint(gdx)),
              (Calls{"pen 3 0000ff", "pen 3 0000ff", "move 15 95", "line 55 95", "move 55 95",
                     "line 55 55", "move 55 55", "line 15 55", "move 15 55", "line 15 95",
                     "pen free", "pen free"}));
}

TEST(ItemPainter, SolidFillIsOneLinePerDeviceRowInFillColour) {
    CQorGDX gdx = boxDoc();
    gdx.imageReg(path({1}), GDX_FLAG_FILL, region(rect(10, 10, 50, 13)), indexed(1), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, indexed(3), QOR::CHatchProp(), CQorPoint3d());
    // Rows 92, 93, 94 and 95 of the device; 95 is the bottom edge (on the contour).
    EXPECT_EQ(itemCalls(paint(gdx)),
              (Calls{"pen 1 0000ff", "pen 1 00ff00", "move 15 92", "line 55 92", "move 15 93",
                     "line 55 93", "move 15 94", "line 55 94", "pen free", "pen free"}));
}

TEST(ItemPainter, TooDenseHatchIsFilledSolid) {
    CQorGDX gdx = boxDoc();
    // ANSI31 at scale 1 has rows 1/8 apart: far below the least device distance.
    const QOR::CHatchProp dense(L"ANSI31", 0.0, 1.0, false);
    gdx.imageReg(path({1}), GDX_FLAG_HATCH, region(rect(10, 10, 50, 12)), indexed(1),
                 CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1, indexed(3), dense,
                 CQorPoint3d());
    EXPECT_EQ(itemCalls(paint(gdx)),
              (Calls{"pen 1 0000ff", "pen 1 00ff00", "move 15 93", "line 55 93", "move 15 94",
                     "line 55 94", "pen free", "pen free"}));
}

TEST(ItemPainter, FixedSizeLineKeepsItsSizeUnderZoom) {
    const auto draw = [](double zoomFactor) {
        CQorGDX gdx = boxDoc();
        CQorMatrix3d zoom;
        zoom.setToScaling(zoomFactor, CQorPoint3d(55, 55, 0));
        gdx.zoomMtxSet(zoom);
        // Unit-square units: one unit is 100 device units (110 / 1.1).
        addVl(gdx, segment(0, 0, 0.1, 0), indexed(1), CQorArrayTempl<double>(), GDX_FLAG_FIXED_SIZE,
              CQorPoint3d(50, 50, 0));
        return itemCalls(paint(gdx));
    };
    // Anchor (50, 50) at 55, 55 whatever the zoom; the line is ten units long.
    EXPECT_EQ(draw(1.0), (Calls{"pen 1 0000ff", "move 55 55", "line 65 55", "pen free"}));
    EXPECT_EQ(draw(2.0), draw(1.0));
    const Calls moved = [] {
        CQorGDX gdx = boxDoc();
        CQorMatrix3d zoom;
        zoom.setToScaling(2.0, CQorPoint3d(0, 0, 0));
        gdx.zoomMtxSet(zoom);
        addVl(gdx, segment(0, 0, 0.1, 0), indexed(1), CQorArrayTempl<double>(), GDX_FLAG_FIXED_SIZE,
              CQorPoint3d(10, 10, 0));
        return itemCalls(paint(gdx));
    }();
    // Anchor (10, 10) lands at (15, 95) and the zoom about the device origin doubles it.
    EXPECT_EQ(moved, (Calls{"pen 1 0000ff", "move 30 190", "line 40 190", "pen free"}));
}

TEST(ItemPainter, HiddenItemDrawsNothing) {
    CQorGDX gdx = boxDoc();
    addVl(gdx, segment(10, 10, 50, 10), indexed(1), CQorArrayTempl<double>(), GDX_FLAG_HIDDEN);
    EXPECT_EQ(paint(gdx), (Calls{"clip 0 0 110 110"}));
}

TEST(ItemPainter, GlyphHoleClipsOnlyItsOwnGlyph) {
    CQorGDX gdx = boxDoc();
    CQorArrayTempl<CQorDisplayItem> items;
    items.append(glyphItem());
    ASSERT_TRUE(gdx.addDisplayList(items));
    const Calls calls = paint(gdx);
    Calls clips;
    for (const std::string& c : calls)
        if (c.rfind("clip", 0) == 0 || c.rfind("poly", 0) == 0)
            clips.push_back(c);
    EXPECT_EQ(clips,
              (Calls{"clip 0 0 110 110", "clipout 20 90 25 90 25 85 20 85 20 90",
                     "poly 15 95 35 95 35 95 35 75 35 75 15 75 15 75 15 95", "clip 0 0 110 110",
                     "poly 45 95 55 95 55 95 55 75 55 75 45 75 45 75 45 95", "clip 0 0 110 110"}));
    EXPECT_EQ(countOf(calls, "bk ffffff"), 2);
    EXPECT_EQ(countOf(calls, "fillmode 1"), 2);
}

TEST(ItemPainter, UserHatchRowsAreStrokedInFillColour) {
    CQorGDX gdx = boxDoc();
    const QOR::CHatchProp rows(L"_USER", 0.0, 5.0, false);
    gdx.imageReg(path({1}), GDX_FLAG_HATCH, region(rect(10, 12, 50, 28)), indexed(1),
                 CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1, indexed(3), rows, CQorPoint3d());
    // Rows at y 15, 20 and 25 of the item: device rows 90, 85 and 80.
    EXPECT_EQ(itemCalls(paint(gdx)),
              (Calls{"pen 1 0000ff", "pen 1 00ff00", "move 55 90", "line 15 90", "move 55 85",
                     "line 15 85", "move 55 80", "line 15 80", "pen free", "pen free"}));
}

TEST(ItemPainter, FillColourIndexZeroMeansTheLineColour) {
    CQorGDX gdx = boxDoc();
    gdx.imageReg(path({1}), GDX_FLAG_FILL, region(rect(10, 10, 50, 11)), indexed(1), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, indexed(0), QOR::CHatchProp(), CQorPoint3d());
    EXPECT_EQ(itemCalls(paint(gdx))[1], "pen 1 0000ff");
}

TEST(ItemPainter, DeviceCoordinatesTruncateTowardZero) {
    EXPECT_EQ(QOR::devTrunc(2.99), 2);
    EXPECT_EQ(QOR::devTrunc(-2.99), -2);
    EXPECT_EQ(QOR::devTrunc(-0.5), 0);
    EXPECT_EQ(QOR::devTrunc(1e300), INT_MAX);
    EXPECT_EQ(QOR::devTrunc(-1e300), INT_MIN);
    EXPECT_EQ(QOR::devTrunc(std::nan("")), 0);
}

namespace {
struct PictureRequest {
    std::wstring name;
    int number = 0, width = 0, height = 0;
    bool transparent = false;
    unsigned long back = 0;
};
PictureRequest g_request;

bool onePixelPicture(const CQorString& name, int number, int width, int height, bool transparent,
                     unsigned long back, QOR::DeviceBitmap& out) {
    g_request = PictureRequest{
        std::wstring(static_cast<const wchar_t*>(name)), number, width, height, transparent, back};
    out.width = 1;
    out.height = 1;
    out.pixels.assign(1, 0x123456);
    return true;
}

Calls pictureCalls(unsigned long flag, bool withLoader) {
    CQorGDX gdx = boxDoc();
    gdx.imagePicture(path({1}), flag, L"logo", 3, CQorPoint3d(10.9, 10, 0),
                     CQorPoint3d(40, 30.5, 0));
    CQorRecordingSurface rec;
    CQorItemPainter painter(rec, CQorPaintPolicy::metafile());
    if (withLoader)
        painter.pictureLoaderSet(onePixelPicture);
    painter.paint(gdx, 110, 120);
    return itemCalls(rec.text());
}
} // namespace

TEST(ItemPainter, PictureIsCopiedAtItsStoredCorners) {
    g_request = PictureRequest();
    EXPECT_EQ(pictureCalls(GDX_FLAG_PIC_TRANSPARENT, true),
              (Calls{"pen 0 000000", "blit 10 10 29 20", "pen free"}));
    EXPECT_EQ(g_request.name, L"logo");
    EXPECT_EQ(g_request.number, 3);
    EXPECT_EQ(g_request.width, 29);
    EXPECT_EQ(g_request.height, 20);
    EXPECT_TRUE(g_request.transparent);
    EXPECT_EQ(g_request.back, 0xFFFFFFul);
}

TEST(ItemPainter, WindowPictureFillsTheWholeOutputDespiteCorners) {
    g_request = PictureRequest();
    EXPECT_EQ(pictureCalls(GDX_FLAG_PIC_WINDOW, true),
              (Calls{"pen 0 000000", "blit 0 0 120 110", "pen free"}));
    EXPECT_EQ(g_request.width, 120);
    EXPECT_EQ(g_request.height, 110);
    EXPECT_FALSE(g_request.transparent);
}

TEST(ItemPainter, PictureWithoutBitmapDrawsNothing) {
    const Calls calls = pictureCalls(0, false);
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[1], "pen free");
}
