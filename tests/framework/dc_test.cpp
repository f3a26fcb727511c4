// CDC and the GDI wrappers drawing into a DIB section: pixels read back at chosen places.
#include "framework/bitmap.h"
#include "framework/brush.h"
#include "framework/dc.h"
#include "framework/pen.h"
#include "framework/rgn.h"
#include "tests/framework/test_dib.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kGreen = RGB(0, 255, 0);

// A CDC borrowing the DIB's context for the length of a test.
struct BorrowedDC {
    CDC dc;
    explicit BorrowedDC(TestDib& dib) { dc.Attach(dib.dc); }
    ~BorrowedDC() { dc.Detach(); }
};

} // namespace

TEST(Dc, RectangleDrawsPenOutlineAndBrushInside) {
    TestDib dib(40, 40);
    dib.fill(kWhite);
    BorrowedDC b(dib);
    CPen pen(PS_SOLID, 1, kRed);
    CBrush brush(kBlue);
    CPen* oldPen = b.dc.SelectObject(&pen);
    CBrush* oldBrush = b.dc.SelectObject(&brush);
    ASSERT_NE(oldPen, nullptr);
    ASSERT_NE(oldBrush, nullptr);
    EXPECT_TRUE(b.dc.Rectangle(10, 10, 20, 20));
    EXPECT_EQ(dib.ref(10, 10), kRed);  // outline, top left
    EXPECT_EQ(dib.ref(19, 15), kRed);  // right edge is x2 - 1
    EXPECT_EQ(dib.ref(15, 15), kBlue); // inside
    EXPECT_EQ(dib.ref(20, 15), kWhite);
    b.dc.SelectObject(oldPen);
    b.dc.SelectObject(oldBrush);
}

TEST(Dc, MoveToLineToLeavesTheEndPixelOut) {
    TestDib dib(20, 20);
    dib.fill(kWhite);
    BorrowedDC b(dib);
    CPen pen(PS_SOLID, 1, kRed);
    CPen* old = b.dc.SelectObject(&pen);
    CPoint before = b.dc.MoveTo(2, 5);
    EXPECT_EQ(before, CPoint(0, 0));
    EXPECT_TRUE(b.dc.LineTo(10, 5));
    EXPECT_EQ(dib.ref(2, 5), kRed);
    EXPECT_EQ(dib.ref(9, 5), kRed);
    EXPECT_EQ(dib.ref(10, 5), kWhite);
    EXPECT_EQ(b.dc.MoveTo(0, 0), CPoint(10, 5));
    b.dc.SelectObject(old);
}

TEST(Dc, EllipseFillsItsCentreAndNotItsCorner) {
    TestDib dib(30, 30);
    dib.fill(kWhite);
    BorrowedDC b(dib);
    CBrush brush(kGreen);
    CBrush* old = b.dc.SelectObject(&brush);
    b.dc.SelectStockObject(NULL_PEN);
    EXPECT_TRUE(b.dc.Ellipse(0, 0, 30, 30));
    EXPECT_EQ(dib.ref(15, 15), kGreen);
    EXPECT_EQ(dib.ref(1, 1), kWhite);
    b.dc.SelectObject(old);
}

TEST(Dc, PolygonFillModeDecidesTheInnerPartOfASelfOverlap) {
    // The same square twice: alternate leaves it empty (even crossings), winding fills it.
    const POINT twice[] = {{5, 5}, {25, 5}, {25, 25}, {5, 25}, {5, 5}, {25, 5}, {25, 25}, {5, 25}};
    for (int mode : {ALTERNATE, WINDING}) {
        TestDib dib(30, 30);
        dib.fill(kWhite);
        BorrowedDC b(dib);
        CBrush brush(kBlue);
        CBrush* old = b.dc.SelectObject(&brush);
        b.dc.SelectStockObject(NULL_PEN);
        b.dc.SetPolyFillMode(mode);
        EXPECT_EQ(b.dc.GetPolyFillMode(), mode);
        EXPECT_TRUE(b.dc.Polygon(twice, 8));
        EXPECT_EQ(dib.ref(15, 15), mode == WINDING ? kBlue : kWhite) << "mode " << mode;
        b.dc.SelectObject(old);
    }
}

TEST(Dc, PolygonOfOnePointIsRefused) {
    TestDib dib(10, 10);
    BorrowedDC b(dib);
    const POINT one[] = {{1, 1}};
    EXPECT_FALSE(b.dc.Polygon(one, 1));
    EXPECT_FALSE(b.dc.Polygon(nullptr, 4));
}

TEST(Dc, FillSolidRectFillsAndLeavesTheBackgroundColourSet) {
    TestDib dib(20, 20);
    dib.fill(kWhite);
    BorrowedDC b(dib);
    b.dc.SetBkColor(kGreen);
    b.dc.FillSolidRect(2, 3, 5, 4, kRed);
    EXPECT_EQ(dib.ref(2, 3), kRed);
    EXPECT_EQ(dib.ref(6, 6), kRed);
    EXPECT_EQ(dib.ref(7, 6), kWhite);
    EXPECT_EQ(dib.ref(6, 7), kWhite);
    EXPECT_EQ(b.dc.GetBkColor(), kRed);
}

TEST(Dc, SetBkColorAndSetTextColorReturnTheFormerColour) {
    TestDib dib(4, 4);
    BorrowedDC b(dib);
    b.dc.SetBkColor(kRed);
    EXPECT_EQ(b.dc.SetBkColor(kBlue), kRed);
    EXPECT_EQ(b.dc.GetBkColor(), kBlue);
    b.dc.SetTextColor(kGreen);
    EXPECT_EQ(b.dc.SetTextColor(kRed), kGreen);
    EXPECT_EQ(b.dc.GetTextColor(), kRed);
}

TEST(Dc, SetPixelAndGetPixelRoundTrip) {
    TestDib dib(8, 8);
    dib.fill(kWhite);
    BorrowedDC b(dib);
    b.dc.SetPixel(3, 4, kBlue);
    EXPECT_EQ(dib.ref(3, 4), kBlue);
    EXPECT_EQ(b.dc.GetPixel(3, 4), kBlue);
    EXPECT_EQ(b.dc.GetPixel(4, 4), kWhite);
    EXPECT_EQ(b.dc.GetPixel(100, 100), CLR_INVALID);
}

TEST(Dc, BitBltCopiesFromACompatibleMemoryContext) {
    TestDib dib(20, 20);
    dib.fill(kWhite);
    BorrowedDC target(dib);
    CDC mem;
    ASSERT_TRUE(mem.CreateCompatibleDC(&target.dc));
    CBitmap bmp;
    ASSERT_TRUE(bmp.CreateCompatibleBitmap(&target.dc, 10, 10));
    CBitmap* old = mem.SelectObject(&bmp);
    ASSERT_NE(old, nullptr);
    mem.FillSolidRect(0, 0, 10, 10, kRed);
    mem.SetPixel(0, 0, kBlue);
    EXPECT_TRUE(target.dc.BitBlt(5, 5, 10, 10, &mem, 0, 0, SRCCOPY));
    EXPECT_EQ(dib.ref(5, 5), kBlue);
    EXPECT_EQ(dib.ref(14, 14), kRed);
    EXPECT_EQ(dib.ref(15, 15), kWhite);
    EXPECT_EQ(dib.ref(4, 4), kWhite);
    mem.SelectObject(old);
}

TEST(Dc, ClipDifferenceKeepsAPolygonHoleClear) {
    TestDib dib(30, 30);
    dib.fill(kWhite);
    BorrowedDC b(dib);
    CRgn all;
    ASSERT_TRUE(all.CreateRectRgn(0, 0, 30, 30));
    b.dc.SelectClipRgn(&all);
    const POINT hole[] = {{10, 10}, {20, 10}, {20, 20}, {10, 20}};
    CRgn holeRgn;
    ASSERT_TRUE(holeRgn.CreatePolygonRgn(hole, 4, ALTERNATE));
    EXPECT_NE(b.dc.SelectClipRgn(&holeRgn, RGN_DIFF), ERROR);
    b.dc.FillSolidRect(0, 0, 30, 30, kRed);
    EXPECT_EQ(dib.ref(15, 15), kWhite);
    EXPECT_EQ(dib.ref(5, 5), kRed);
    // Selecting the rectangle again lifts the hole.
    b.dc.SelectClipRgn(&all);
    b.dc.FillSolidRect(0, 0, 30, 30, kBlue);
    EXPECT_EQ(dib.ref(15, 15), kBlue);
}

TEST(Dc, SelectStockObjectGivesBackTheWrapperSelectedBefore) {
    TestDib dib(4, 4);
    BorrowedDC b(dib);
    CPen pen(PS_SOLID, 3, kRed);
    b.dc.SelectObject(&pen);
    CGdiObject* former = b.dc.SelectStockObject(NULL_PEN);
    EXPECT_EQ(former, &pen); // the permanent wrapper, not a temporary
    CGdiObject* nullPen = b.dc.SelectStockObject(BLACK_PEN);
    ASSERT_NE(nullPen, nullptr);
    EXPECT_EQ(nullPen->m_hObject, GetStockObject(NULL_PEN));
}

TEST(Dc, FromHandleOfAnUnknownContextIsOneBorrowingTemporary) {
    HDC raw = CreateCompatibleDC(nullptr);
    CDC* a = CDC::FromHandle(raw);
    CDC* b = CDC::FromHandle(raw);
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a, b);
    CDC::DeleteTempMap();
    // The temporary did not delete the context.
    EXPECT_NE(GetDeviceCaps(raw, BITSPIXEL), 0);
    EXPECT_TRUE(DeleteDC(raw));
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
}

TEST(Dc, CreateCompatibleDcOwnsAndDeletesItsContext) {
    HDC made = nullptr;
    {
        CDC mem;
        ASSERT_TRUE(mem.CreateCompatibleDC(nullptr));
        made = mem.m_hDC;
        EXPECT_EQ(CDC::FromHandle(made), &mem);
        EXPECT_FALSE(mem.CreateCompatibleDC(nullptr)); // holds one already
    }
    EXPECT_EQ(GetObjectType(made), 0u);
}
