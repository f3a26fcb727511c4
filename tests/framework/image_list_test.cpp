// CImageList: creation, adding icons and bitmaps, ownership of the list.
#include "framework/image_list.h"

#include <gtest/gtest.h>

namespace {

TEST(ImageList, AddsIconsAndBitmapsInOrder) {
    CImageList list;
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 4));
    EXPECT_FALSE(list.Create(16, 16, ILC_COLOR32, 0, 4));
    HICON icon = LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_APPLICATION));
    EXPECT_EQ(0, list.Add(icon));
    EXPECT_EQ(1, list.Add(icon));
    HDC screen = GetDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 32, 16);
    ReleaseDC(nullptr, screen);
    // A bitmap twice as wide as one image adds two images.
    EXPECT_EQ(2, list.Add(bitmap, nullptr));
    DeleteObject(bitmap);
    EXPECT_EQ(4, list.GetImageCount());
    int cx = 0;
    int cy = 0;
    EXPECT_TRUE(ImageList_GetIconSize(list, &cx, &cy));
    EXPECT_EQ(16, cx);
    EXPECT_EQ(16, cy);
}

TEST(ImageList, WithoutListNothingIsAdded) {
    CImageList list;
    EXPECT_EQ(-1, list.Add(LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_APPLICATION))));
    EXPECT_EQ(0, list.GetImageCount());
    EXPECT_FALSE(list.DeleteImageList());
}

TEST(ImageList, DetachedListOutlivesTheObject) {
    HIMAGELIST handle = nullptr;
    {
        CImageList list;
        ASSERT_TRUE(list.Create(8, 8, ILC_COLOR32, 1, 1));
        handle = list.Detach();
        EXPECT_EQ(nullptr, list.m_hImageList);
    }
    EXPECT_EQ(0, ImageList_GetImageCount(handle));
    EXPECT_TRUE(ImageList_Destroy(handle));
}

TEST(ImageList, RunTimeClassIsCImageList) {
    CImageList list;
    EXPECT_STREQ("CImageList", list.GetRuntimeClass()->m_lpszClassName);
    EXPECT_TRUE(list.IsKindOf(RUNTIME_CLASS(CImageList)));
}

} // namespace
