// CMetaFileDC: recording into an enhanced metafile and closing it.
#include "framework/meta_file_dc.h"
#include "framework/pen.h"

#include <gtest/gtest.h>

#include <vector>

TEST(MetaFileDc, RecordsDrawingAndClosesToAMetafile) {
    CMetaFileDC meta;
    ASSERT_TRUE(meta.CreateEnhanced(nullptr, nullptr, nullptr, nullptr));
    EXPECT_FALSE(meta.CreateEnhanced(nullptr, nullptr, nullptr, nullptr));
    CPen pen(PS_SOLID, 1, RGB(255, 0, 0));
    CPen* old = meta.SelectObject(&pen);
    meta.MoveTo(10, 10);
    meta.LineTo(50, 10);
    meta.SelectObject(old);
    HENHMETAFILE emf = meta.CloseEnhanced();
    ASSERT_NE(emf, nullptr);
    EXPECT_EQ(meta.m_hDC, nullptr);
    EXPECT_EQ(meta.CloseEnhanced(), nullptr);

    UINT size = GetEnhMetaFileBits(emf, 0, nullptr);
    std::vector<BYTE> bytes(size);
    ASSERT_EQ(GetEnhMetaFileBits(emf, size, bytes.data()), size);
    bool moveTo = false, lineTo = false;
    for (UINT at = 0; at + 8 <= size;) {
        const EMR* rec = reinterpret_cast<const EMR*>(bytes.data() + at);
        moveTo |= rec->iType == EMR_MOVETOEX;
        lineTo |= rec->iType == EMR_LINETO;
        if (rec->nSize < 8)
            break;
        at += rec->nSize;
    }
    EXPECT_TRUE(moveTo);
    EXPECT_TRUE(lineTo);
    DeleteEnhMetaFile(emf);
}

TEST(MetaFileDc, BoundsAndDescriptionReachTheHeader) {
    CMetaFileDC meta;
    RECT bounds = {0, 0, 2000, 1000}; // 0.01 mm
    ASSERT_TRUE(meta.CreateEnhanced(nullptr, nullptr, &bounds, L"Qor\0Picture\0"));
    meta.Rectangle(0, 0, 10, 10);
    HENHMETAFILE emf = meta.CloseEnhanced();
    ASSERT_NE(emf, nullptr);
    ENHMETAHEADER header = {};
    ASSERT_EQ(GetEnhMetaFileHeader(emf, sizeof(header), &header), sizeof(header));
    EXPECT_EQ(header.rclFrame.right, 2000);
    EXPECT_EQ(header.rclFrame.bottom, 1000);
    EXPECT_EQ(header.nDescription, 13u); // "Qor", "Picture" and two terminators
    DeleteEnhMetaFile(emf);
}
