// Owning and borrowed GDI handles and the selection: whether the object is still
// there after the holder goes, judged by GetObjectType (0 for a freed handle).
#include "drawing/win/gdi_handle_p.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

HBITMAP newBitmap() {
    return CreateBitmap(4, 4, 1, 1, nullptr);
}

// Makes a context and a bitmap and gives up before it is done, as a drawing
// routine does when a later step fails; the handles it made are put in made.
bool failHalfway(HDC& dcMade, HBITMAP& bitmapMade) {
    QOR::CQorDc dc(CreateCompatibleDC(nullptr));
    QOR::CQorBitmap bitmap(newBitmap());
    QOR::CQorSelection into(dc.get(), bitmap.get());
    dcMade = dc.get();
    bitmapMade = bitmap.get();
    const QOR::CQorBitmap missing(nullptr);
    if (!missing)
        return false;
    return true;
}

} // namespace

TEST(GdiHandle, AnOwningHandleFreesItsObjectWhenItGoes) {
    HBITMAP raw = newBitmap();
    ASSERT_EQ(GetObjectType(raw), static_cast<DWORD>(OBJ_BITMAP));
    { const QOR::CQorBitmap owned(raw); }
    EXPECT_EQ(GetObjectType(raw), 0u);
}

TEST(GdiHandle, ABorrowedHandleLeavesItsObjectAlone) {
    HBITMAP raw = newBitmap();
    { const QOR::CQorBitmapHandle borrowed(raw); }
    EXPECT_EQ(GetObjectType(raw), static_cast<DWORD>(OBJ_BITMAP));
    DeleteObject(raw);
}

TEST(GdiHandle, ReleaseHandsTheObjectOverAndFreesNothing) {
    HBITMAP raw = newBitmap();
    HBITMAP given = nullptr;
    {
        QOR::CQorBitmap owned(raw);
        given = owned.release();
        EXPECT_EQ(owned.get(), nullptr);
    }
    EXPECT_EQ(given, raw);
    EXPECT_EQ(GetObjectType(raw), static_cast<DWORD>(OBJ_BITMAP));
    DeleteObject(raw);
}

TEST(GdiHandle, ResetFreesTheFormerObjectAndHoldsTheNewOne) {
    HBITMAP first = newBitmap();
    HBITMAP second = newBitmap();
    QOR::CQorBitmap owned(first);
    owned.reset(second);
    EXPECT_EQ(GetObjectType(first), 0u);
    EXPECT_EQ(owned.get(), second);
    EXPECT_EQ(GetObjectType(second), static_cast<DWORD>(OBJ_BITMAP));
}

TEST(GdiHandle, AMovedHandleIsFreedOnceByItsNewHolder) {
    HBITMAP raw = newBitmap();
    QOR::CQorBitmap outer;
    {
        QOR::CQorBitmap inner(raw);
        outer = std::move(inner);
        EXPECT_EQ(inner.get(), nullptr);
    }
    EXPECT_EQ(GetObjectType(raw), static_cast<DWORD>(OBJ_BITMAP));
    outer.reset();
    EXPECT_EQ(GetObjectType(raw), 0u);
}

TEST(GdiHandle, ASelectionPutsTheFormerObjectBackSoTheBitmapCanBeFreed) {
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ before = GetCurrentObject(dc, OBJ_BITMAP);
    HBITMAP raw = newBitmap();
    {
        const QOR::CQorSelection into(dc, raw);
        EXPECT_EQ(GetCurrentObject(dc, OBJ_BITMAP), raw);
    }
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BITMAP), before);
    EXPECT_TRUE(DeleteObject(raw)); // a selected bitmap could not be deleted
    DeleteDC(dc);
}

TEST(GdiHandle, AFailingPathFreesTheContextAndTheBitmapItMade) {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    EXPECT_FALSE(failHalfway(dc, bitmap));
    ASSERT_NE(dc, nullptr);
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(GetObjectType(dc), 0u);
    EXPECT_EQ(GetObjectType(bitmap), 0u);
}

TEST(GdiHandle, AnIconIsDestroyedWhenItsHolderGoes) {
    const BYTE andMask[4 * 4] = {};
    const BYTE xorMask[4 * 4] = {};
    HICON raw = CreateIcon(nullptr, 4, 4, 1, 1, andMask, xorMask);
    ASSERT_NE(raw, nullptr);
    ICONINFO info = {};
    { const QOR::CQorIcon owned(raw); }
    EXPECT_FALSE(GetIconInfo(raw, &info));
}

TEST(GdiHandle, AnEnhancedMetafileIsDeletedWhenItsHolderGoes) {
    HDC recording = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(recording, nullptr);
    HENHMETAFILE raw = CloseEnhMetaFile(recording);
    ASSERT_NE(raw, nullptr);
    ASSERT_EQ(GetObjectType(raw), static_cast<DWORD>(OBJ_ENHMETAFILE));
    { const QOR::CQorEnhMetaFile owned(raw); }
    EXPECT_EQ(GetObjectType(raw), 0u);
}
