// Proves that the Windows test environment is real GDI: an enhanced metafile is
// recorded, played into a 32-bit DIB section and its pixels are read back.
#include "tests/framework/test_dib.h"

#include <windows.h>

#include <gtest/gtest.h>

using Dib = TestDib;

TEST(WineGdi, MetafileLinePlaysIntoDibSection) {
    // Record: a red line across a 100 by 100 picture.
    RECT frame = {0, 0, 0, 0};
    HDC meta = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(meta, nullptr);
    HPEN pen = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
    HGDIOBJ oldPen = SelectObject(meta, pen);
    MoveToEx(meta, 10, 50, nullptr);
    LineTo(meta, 90, 50);
    SelectObject(meta, oldPen);
    DeleteObject(pen);
    HENHMETAFILE emf = CloseEnhMetaFile(meta);
    ASSERT_NE(emf, nullptr);

    ENHMETAHEADER header = {};
    ASSERT_EQ(GetEnhMetaFileHeader(emf, sizeof(header), &header), sizeof(header));
    EXPECT_EQ(header.dSignature, static_cast<DWORD>(ENHMETA_SIGNATURE));
    EXPECT_GT(header.nRecords, 3u);

    // Play it 1:1 into a white DIB section: the picture's bounds map to the target.
    Dib dib(100, 100);
    ASSERT_NE(dib.bits, nullptr);
    RECT all = {0, 0, 100, 100};
    FillRect(dib.dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    GdiFlush();
    EXPECT_EQ(dib.at(50, 50), 0xFFFFFFu);

    RECT target = {header.rclBounds.left, header.rclBounds.top, header.rclBounds.right + 1,
                   header.rclBounds.bottom + 1};
    frame = target;
    ASSERT_TRUE(PlayEnhMetaFile(dib.dc, emf, &frame));
    GdiFlush();
    DeleteEnhMetaFile(emf);

    int red = 0;
    for (int x = 0; x < 100; ++x)
        if (dib.at(x, 50) == 0xFF0000u)
            ++red;
    EXPECT_GE(red, 70) << "red pixels on row 50";
    EXPECT_EQ(dib.at(50, 20), 0xFFFFFFu);
    EXPECT_EQ(dib.at(50, 80), 0xFFFFFFu);
}
