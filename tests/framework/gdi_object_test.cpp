// CGdiObject and its kinds: ownership, the handle map and the creating operations.
#include "framework/bitmap.h"
#include "framework/brush.h"
#include "framework/dc.h"
#include "framework/pen.h"
#include "framework/rgn.h"

#include <gtest/gtest.h>

TEST(GdiObject, OwningWrapperDeletesItsHandle) {
    HGDIOBJ h = nullptr;
    {
        CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
        h = pen.m_hObject;
        ASSERT_NE(h, nullptr);
        EXPECT_EQ(static_cast<DWORD>(GetObjectType(h)), static_cast<DWORD>(OBJ_PEN));
    }
    EXPECT_EQ(GetObjectType(h), 0u);
}

TEST(GdiObject, DetachGivesUpOwnership) {
    HGDIOBJ h = nullptr;
    {
        CBrush brush(RGB(9, 9, 9));
        h = brush.Detach();
        EXPECT_EQ(brush.m_hObject, nullptr);
    }
    EXPECT_EQ(static_cast<DWORD>(GetObjectType(h)), static_cast<DWORD>(OBJ_BRUSH));
    EXPECT_TRUE(DeleteObject(h));
}

TEST(GdiObject, FromHandleGivesThePermanentWrapper) {
    CRgn rgn;
    ASSERT_TRUE(rgn.CreateRectRgn(0, 0, 5, 5));
    EXPECT_EQ(CGdiObject::FromHandle(rgn.m_hObject), &rgn);
    EXPECT_EQ(CRgn::FromHandle(rgn), &rgn);
}

TEST(GdiObject, FromHandleOfAForeignHandleIsATemporaryOfItsKind) {
    CGdiObject::DeleteTempMap();
    HGDIOBJ stockPen = GetStockObject(BLACK_PEN);
    CGdiObject* a = CGdiObject::FromHandle(stockPen);
    CGdiObject* b = CGdiObject::FromHandle(stockPen);
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a, b);
    EXPECT_NE(dynamic_cast<CPen*>(a), nullptr);
    EXPECT_NE(dynamic_cast<CBrush*>(CGdiObject::FromHandle(GetStockObject(WHITE_BRUSH))), nullptr);
    EXPECT_EQ(CGdiObject::TempMapSize(), 2);
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(CGdiObject::TempMapSize(), 0);
    // The stock pen is untouched by the temporary going.
    EXPECT_EQ(static_cast<DWORD>(GetObjectType(stockPen)), static_cast<DWORD>(OBJ_PEN));
    EXPECT_EQ(CGdiObject::FromHandle(nullptr), nullptr);
}

TEST(GdiObject, AttachRefusesASecondHandle) {
    CPen pen;
    EXPECT_FALSE(pen.Attach(nullptr));
    ASSERT_TRUE(pen.CreatePen(PS_SOLID, 1, 0));
    HPEN other = CreatePen(PS_SOLID, 1, 0);
    EXPECT_FALSE(pen.Attach(other));
    DeleteObject(other);
    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_FALSE(pen.DeleteObject());
}

TEST(GdiObject, PenKeepsItsWidthAndColour) {
    CPen pen(PS_SOLID, 4, RGB(10, 20, 30));
    LOGPEN lp = {};
    ASSERT_EQ(pen.GetObject(sizeof(lp), &lp), static_cast<int>(sizeof(lp)));
    EXPECT_EQ(lp.lopnWidth.x, 4);
    EXPECT_EQ(lp.lopnColor, RGB(10, 20, 30));
}

TEST(GdiObject, HollowBrushByIndirectCreation) {
    LOGBRUSH lb = {BS_HOLLOW, 0, 0};
    CBrush brush;
    ASSERT_TRUE(brush.CreateBrushIndirect(&lb));
    LOGBRUSH back = {};
    ASSERT_GT(brush.GetObject(sizeof(back), &back), 0);
    EXPECT_EQ(back.lbStyle, static_cast<UINT>(BS_HOLLOW));
    CBrush none;
    EXPECT_FALSE(none.CreateBrushIndirect(nullptr));
}

TEST(GdiObject, PolygonRegionHoldsItsInsideOnly) {
    const POINT tri[] = {{0, 0}, {20, 0}, {0, 20}};
    CRgn rgn;
    ASSERT_TRUE(rgn.CreatePolygonRgn(tri, 3, ALTERNATE));
    EXPECT_TRUE(rgn.PtInRegion(2, 2));
    EXPECT_FALSE(rgn.PtInRegion(18, 18));
    CRgn bad;
    EXPECT_FALSE(bad.CreatePolygonRgn(tri, 1, ALTERNATE));
    EXPECT_EQ(bad.m_hObject, nullptr);
}

TEST(GdiObject, CombineRgnDifference) {
    CRgn a, b, out;
    ASSERT_TRUE(a.CreateRectRgn(0, 0, 10, 10));
    ASSERT_TRUE(b.CreateRectRgn(0, 0, 5, 10));
    ASSERT_TRUE(out.CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(out.CombineRgn(&a, &b, RGN_DIFF), SIMPLEREGION);
    EXPECT_FALSE(out.PtInRegion(2, 2));
    EXPECT_TRUE(out.PtInRegion(7, 2));
}

TEST(GdiObject, CompatibleBitmapHasTheAskedSize) {
    CDC screen;
    ASSERT_TRUE(screen.CreateCompatibleDC(nullptr));
    CBitmap bmp;
    ASSERT_TRUE(bmp.CreateCompatibleBitmap(&screen, 17, 9));
    BITMAP info = {};
    ASSERT_GT(bmp.GetBitmap(&info), 0);
    EXPECT_EQ(info.bmWidth, 17);
    EXPECT_EQ(info.bmHeight, 9);
    CBitmap none;
    EXPECT_FALSE(none.CreateCompatibleBitmap(nullptr, 4, 4));
    EXPECT_EQ(none.GetBitmap(&info), 0);
}

TEST(GdiObject, MonochromeBitmapHasOnePlaneOfOneBit) {
    CBitmap bmp;
    ASSERT_TRUE(bmp.CreateBitmap(8, 3, 1, 1, nullptr));
    BITMAP info = {};
    ASSERT_GT(bmp.GetBitmap(&info), 0);
    EXPECT_EQ(info.bmWidth, 8);
    EXPECT_EQ(info.bmHeight, 3);
    EXPECT_EQ(info.bmPlanes, 1);
    EXPECT_EQ(info.bmBitsPixel, 1);
}
