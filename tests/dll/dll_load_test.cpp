// Loads the built DLL as a host does (LoadLibraryW at run time) and reads its
// resources and exports.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace {

std::wstring dllPath() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring p(path);
    return p.substr(0, p.find_last_of(L'\\') + 1) + L"Qor_2016_18_64_Mfc.Dll";
}

struct Loaded {
    HMODULE dll = LoadLibraryW(dllPath().c_str());
    ~Loaded() {
        if (dll)
            FreeLibrary(dll);
    }
};

} // namespace

TEST(Dll, LoadsWithLoadLibraryW) {
    Loaded l;
    ASSERT_NE(l.dll, nullptr) << "error " << GetLastError();
    wchar_t name[MAX_PATH] = {};
    GetModuleFileNameW(l.dll, name, MAX_PATH);
    std::wstring n(name);
    EXPECT_EQ(n.substr(n.find_last_of(L'\\') + 1), L"Qor_2016_18_64_Mfc.Dll");
}

TEST(Dll, StringOneIsTheInfoMenuEntry) {
    Loaded l;
    ASSERT_NE(l.dll, nullptr);
    wchar_t text[64] = {};
    ASSERT_GT(LoadStringW(l.dll, 1, text, 64), 0);
    EXPECT_STREQ(text, L"Inf&o...");
}

TEST(Dll, IconTwoThousandLoadsInBothSizes) {
    Loaded l;
    ASSERT_NE(l.dll, nullptr);
    HICON big =
        static_cast<HICON>(LoadImageW(l.dll, MAKEINTRESOURCEW(2000), IMAGE_ICON, 32, 32, 0));
    HICON small =
        static_cast<HICON>(LoadImageW(l.dll, MAKEINTRESOURCEW(2000), IMAGE_ICON, 16, 16, 0));
    EXPECT_NE(big, nullptr);
    EXPECT_NE(small, nullptr);
    ICONINFO info = {};
    ASSERT_TRUE(GetIconInfo(big, &info));
    BITMAP bm = {};
    GetObjectW(info.hbmColor, sizeof(bm), &bm);
    EXPECT_EQ(bm.bmWidth, 32);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    DestroyIcon(big);
    DestroyIcon(small);
}

TEST(Dll, PanCursorTwoThousandSixHasItsHotSpotInTheMiddle) {
    Loaded l;
    ASSERT_NE(l.dll, nullptr);
    HCURSOR pan = LoadCursorW(l.dll, MAKEINTRESOURCEW(2006));
    ASSERT_NE(pan, nullptr);
    ICONINFO info = {};
    ASSERT_TRUE(GetIconInfo(pan, &info));
    EXPECT_FALSE(info.fIcon);
    EXPECT_EQ(info.xHotspot, 16u);
    EXPECT_EQ(info.yHotspot, 16u);
    if (info.hbmColor)
        DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
}

TEST(Dll, ExportedFunctionIsReachableByName) {
    Loaded l;
    ASSERT_NE(l.dll, nullptr);
    // AfxGetResourceHandle() as MinGW mangles it.
    using Fn = HINSTANCE (*)();
    auto fn = reinterpret_cast<Fn>(
        reinterpret_cast<void*>(GetProcAddress(l.dll, "_Z20AfxGetResourceHandlev")));
    ASSERT_NE(fn, nullptr);
    EXPECT_EQ(fn(), l.dll);
}

namespace {

// The colour of pixel (x, y) of a 32 px icon of the DLL drawn on magenta:
// 0x00RRGGBB, or 0xFF00FF where the icon is transparent.
DWORD iconPixel(HMODULE dll, int id, int x, int y) {
    HICON icon = static_cast<HICON>(LoadImageW(dll, MAKEINTRESOURCEW(id), IMAGE_ICON, 32, 32, 0));
    if (!icon)
        return 0xFFFFFFFF;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = 32;
    info.bmiHeader.biHeight = -32;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    HDC dc = CreateCompatibleDC(nullptr);
    void* raw = nullptr;
    HBITMAP bmp = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &raw, nullptr, 0);
    HGDIOBJ old = SelectObject(dc, bmp);
    HBRUSH magenta = CreateSolidBrush(RGB(255, 0, 255));
    RECT all = {0, 0, 32, 32};
    FillRect(dc, &all, magenta);
    DrawIconEx(dc, 0, 0, icon, 32, 32, 0, nullptr, DI_NORMAL);
    GdiFlush();
    const DWORD px = static_cast<DWORD*>(raw)[y * 32 + x] & 0xFFFFFF;
    SelectObject(dc, old);
    DeleteObject(bmp);
    DeleteObject(magenta);
    DeleteDC(dc);
    DestroyIcon(icon);
    return px;
}

} // namespace

TEST(Dll, MaterialTreeIconsShowAGroupABlockAndAShadowBlock) {
    Loaded l;
    ASSERT_NE(l.dll, nullptr);
    // 2001: the front sheet is light grey, the corner above it transparent.
    EXPECT_EQ(iconPixel(l.dll, 2001, 10, 20), 0xD7D7D7u);
    EXPECT_EQ(iconPixel(l.dll, 2001, 1, 1), 0xFF00FFu);
    // 2002: the block's front face in steel blue.
    EXPECT_EQ(iconPixel(l.dll, 2002, 10, 20), 0x46608Cu);
    // 2003: the shadow block is pale where 2002 is steel.
    EXPECT_EQ(iconPixel(l.dll, 2003, 10, 21), 0xB9C3D2u);
    EXPECT_EQ(iconPixel(l.dll, 2003, 0, 31), 0xFF00FFu);
}

TEST(Dll, LabelIconsDifferInTheirNumberOfLines) {
    Loaded l;
    ASSERT_NE(l.dll, nullptr);
    // Both tags carry the middle line; only the multi-line one has a first line.
    EXPECT_EQ(iconPixel(l.dll, 2004, 20, 15), 0x282828u);
    EXPECT_EQ(iconPixel(l.dll, 2005, 20, 15), 0x282828u);
    EXPECT_EQ(iconPixel(l.dll, 2004, 20, 11), 0xFAF8EBu);
    EXPECT_EQ(iconPixel(l.dll, 2005, 20, 11), 0x282828u);
}
