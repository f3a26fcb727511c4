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

TEST(Dll, CursorTwoThousandSixLoadsWithItsHotSpotInTheMiddle) {
    Loaded l;
    ASSERT_NE(l.dll, nullptr);
    HCURSOR cursor = LoadCursorW(l.dll, MAKEINTRESOURCEW(2006));
    ASSERT_NE(cursor, nullptr);
    ICONINFO info = {};
    ASSERT_TRUE(GetIconInfo(cursor, &info));
    EXPECT_FALSE(info.fIcon);
    EXPECT_EQ(info.xHotspot, 15u);
    EXPECT_EQ(info.yHotspot, 15u);
    // A monochrome cursor: the mask holds the AND and the XOR image, one above the other.
    BITMAP bm = {};
    GetObjectW(info.hbmMask, sizeof(bm), &bm);
    EXPECT_EQ(bm.bmWidth, 32);
    EXPECT_EQ(bm.bmHeight, 64);
    if (info.hbmColor)
        DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    DestroyCursor(cursor);
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
