// Bitmaps of picture items: files, system icons and this library's icons, the
// background vote and the transparent copy, checked by their pixels.
#include "views/bitmap.h"

#include "framework/bitmap.h"
#include "framework/dc.h"
#include "tests/framework/test_dib.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace {

using Paint = std::function<std::uint32_t(int x, int y)>; // 0x00RRGGBB, or kClear
constexpr std::uint32_t kClear = 0xFF000000u;

std::wstring tempPath(const wchar_t* name) {
    wchar_t dir[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, dir);
    return std::wstring(dir) + name;
}

void writeFile(const std::wstring& path, const std::string& bytes) {
    HANDLE f = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(f, INVALID_HANDLE_VALUE);
    DWORD written = 0;
    WriteFile(f, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(f);
}

void put(std::string& s, std::uint32_t v, int n) {
    for (int k = 0; k < n; ++k)
        s.push_back(static_cast<char>((v >> (8 * k)) & 0xFF));
}

// A 32-bit icon file of size by size pixels: colour where paint gives one,
// transparent (mask bit 1) where it gives kClear.
std::string iconFile(int size, const Paint& paint) {
    std::string image;
    put(image, 40, 4);
    put(image, static_cast<std::uint32_t>(size), 4);
    put(image, static_cast<std::uint32_t>(2 * size), 4);
    put(image, 1, 2);
    put(image, 32, 2);
    for (int k = 0; k < 6; ++k)
        put(image, 0, 4);
    for (int y = size - 1; y >= 0; --y)
        for (int x = 0; x < size; ++x) {
            const std::uint32_t c = paint(x, y);
            put(image, c == kClear ? 0 : (c | 0xFF000000u), 4);
        }
    const int stride = ((size + 31) / 32) * 4;
    for (int y = size - 1; y >= 0; --y) {
        std::string row(static_cast<size_t>(stride), '\0');
        for (int x = 0; x < size; ++x)
            if (paint(x, y) == kClear)
                row[static_cast<size_t>(x / 8)] |= static_cast<char>(0x80 >> (x % 8));
        image += row;
    }
    std::string out;
    put(out, 0, 2);
    put(out, 1, 2);
    put(out, 1, 2);
    put(out, static_cast<std::uint32_t>(size), 1);
    put(out, static_cast<std::uint32_t>(size), 1);
    put(out, 0, 2);
    put(out, 1, 2);
    put(out, 32, 2);
    put(out, static_cast<std::uint32_t>(image.size()), 4);
    put(out, 22, 4);
    return out + image;
}

// A 24-bit bitmap file, rows bottom-up.
std::string bmpFile(int w, int h, const Paint& paint) {
    const int stride = (w * 3 + 3) & ~3;
    std::string out = "BM";
    put(out, static_cast<std::uint32_t>(54 + stride * h), 4);
    put(out, 0, 4);
    put(out, 54, 4);
    put(out, 40, 4);
    put(out, static_cast<std::uint32_t>(w), 4);
    put(out, static_cast<std::uint32_t>(h), 4);
    put(out, 1, 2);
    put(out, 24, 2);
    for (int k = 0; k < 6; ++k)
        put(out, 0, 4);
    for (int y = h - 1; y >= 0; --y) {
        std::string row;
        for (int x = 0; x < w; ++x)
            put(row, paint(x, y), 3);
        row.resize(static_cast<size_t>(stride), '\0');
        out += row;
    }
    return out;
}

// Pixels of a bitmap as 0x00RRGGBB, rows from the top.
struct Pixels {
    int width = 0, height = 0;
    std::vector<std::uint32_t> px;
    explicit Pixels(HBITMAP b) {
        BITMAP bm = {};
        GetObjectW(b, sizeof(bm), &bm);
        width = bm.bmWidth;
        height = bm.bmHeight;
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        px.resize(static_cast<size_t>(width) * static_cast<size_t>(height));
        HDC screen = GetDC(nullptr);
        GetDIBits(screen, b, 0, static_cast<UINT>(height), px.data(), &info, DIB_RGB_COLORS);
        ReleaseDC(nullptr, screen);
    }
    std::uint32_t at(int x, int y) const {
        return px[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)] &
               0xFFFFFF;
    }
};

// A memory context with a 32-bit DIB of w by h selected, filled with a colour.
struct Canvas : TestDib {
    Canvas(int w, int h, COLORREF color) : TestDib(w, h) { fill(color); }
};

// Red with a transparent upper left quarter.
std::uint32_t redWithHole(int x, int y) {
    return (x < 16 && y < 16) ? kClear : 0xFF0000u;
}

std::wstring dllPath() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring p(path);
    return p.substr(0, p.find_last_of(L'\\') + 1) + L"Qor_2016_18_64_Mfc.Dll";
}

} // namespace

TEST(PictureBitmap, IconFileIsFlattenedOnTheBackgroundAndClearsTransparent) {
    const std::wstring path = tempPath(L"qor_pic_red.ico");
    writeFile(path, iconFile(32, redWithHole));
    bool transparent = true;
    HBITMAP b = qor_gdx_image_get_bitmap(CQorString(path.c_str()), 0, 32, 32, transparent,
                                         0x00FF00 /* green, as 0x00BBGGRR */);
    ASSERT_NE(b, nullptr);
    EXPECT_FALSE(transparent);
    Pixels p(b);
    EXPECT_EQ(p.width, 32);
    EXPECT_EQ(p.at(3, 3), 0x00FF00u); // the hole shows the background
    EXPECT_EQ(p.at(20, 20), 0xFF0000u);
    DeleteObject(b);
    DeleteFileW(path.c_str());
}

TEST(PictureBitmap, EndingIcoInCapitalsIsStillAnIcon) {
    const std::wstring path = tempPath(L"QOR_PIC_CAPS.ICO");
    writeFile(path, iconFile(32, redWithHole));
    bool transparent = true;
    HBITMAP b = qor_gdx_image_get_bitmap(CQorString(path.c_str()), 0, 32, 32, transparent,
                                         0xFF0000 /* blue */);
    ASSERT_NE(b, nullptr);
    EXPECT_FALSE(transparent);
    EXPECT_EQ(Pixels(b).at(3, 3), 0x0000FFu);
    DeleteObject(b);
    DeleteFileW(path.c_str());
}

TEST(PictureBitmap, BitmapFileLoadsAtTheAskedSizeAndKeepsTransparent) {
    const std::wstring path = tempPath(L"qor_pic.bmp");
    writeFile(path, bmpFile(8, 6, [](int x, int) { return x < 4 ? 0x0000FFu : 0x00FF00u; }));
    bool transparent = true;
    HBITMAP b = qor_gdx_image_get_bitmap(CQorString(path.c_str()), 0, 16, 12, transparent, 0);
    ASSERT_NE(b, nullptr);
    EXPECT_TRUE(transparent);
    Pixels p(b);
    EXPECT_EQ(p.width, 16);
    EXPECT_EQ(p.height, 12);
    EXPECT_EQ(p.at(1, 1), 0x0000FFu);
    EXPECT_EQ(p.at(14, 10), 0x00FF00u);
    DeleteObject(b);
    DeleteFileW(path.c_str());
}

TEST(PictureBitmap, ExistingFileOfAnotherEndingGivesNull) {
    const std::wstring path = tempPath(L"qor_pic.png");
    writeFile(path, bmpFile(4, 4, [](int, int) { return 0u; }));
    bool transparent = true;
    EXPECT_EQ(qor_gdx_image_get_bitmap(CQorString(path.c_str()), 0, 4, 4, transparent, 0), nullptr);
    EXPECT_TRUE(transparent);
    DeleteFileW(path.c_str());
}

TEST(PictureBitmap, MissingFileGivesNull) {
    bool transparent = true;
    EXPECT_EQ(qor_gdx_image_get_bitmap(CQorString(L"Z:\\no\\such\\picture.ico"), 0, 32, 32,
                                       transparent, 0),
              nullptr);
    EXPECT_TRUE(transparent);
}

TEST(PictureBitmap, EmptyNameTakesASystemIconByNumber) {
    bool transparent = true;
    HBITMAP b = qor_gdx_image_get_bitmap(CQorString(), 32512 /* IDI_APPLICATION */, 32, 32,
                                         transparent, 0xFFFFFF);
    ASSERT_NE(b, nullptr);
    EXPECT_FALSE(transparent);
    EXPECT_GT(Pixels(b).width, 0);
    DeleteObject(b);
}

TEST(PictureBitmap, EmptyNameAndNoSystemIconFallsThroughToThisLibrarysIcons) {
    // Without the library loaded there is nothing to fall through to.
    bool transparent = true;
    ASSERT_EQ(GetModuleHandleW(L"Qor_2016_18_64_Mfc.Dll"), nullptr);
    EXPECT_EQ(qor_gdx_image_get_bitmap(CQorString(), 2002, 32, 32, transparent, 0), nullptr);
    HMODULE dll = LoadLibraryW(dllPath().c_str());
    ASSERT_NE(dll, nullptr);
    transparent = true;
    HBITMAP b = qor_gdx_image_get_bitmap(CQorString(), 2002, 32, 32, transparent, 0xFF00FF);
    ASSERT_NE(b, nullptr);
    EXPECT_FALSE(transparent);
    Pixels p(b);
    EXPECT_EQ(p.width, 32);
    EXPECT_EQ(p.at(10, 20), 0x46608Cu); // the block's steel front face
    EXPECT_EQ(p.at(0, 0), 0xFF00FFu);   // transparent corner in the background colour
    DeleteObject(b);
    FreeLibrary(dll);
}

TEST(PictureBitmap, IconWithoutColourBitmapIsHalfTheMaskHigh) {
    // An icon file of one bit per pixel loads as a monochrome icon: no colour
    // bitmap, mask and image stacked in one bitmap of 32 by 64.
    std::string image;
    put(image, 40, 4);
    put(image, 32, 4);
    put(image, 64, 4);
    put(image, 1, 2);
    put(image, 1, 2);
    for (int k = 0; k < 6; ++k)
        put(image, 0, 4);
    put(image, 0x000000, 4); // palette: black, white
    put(image, 0xFFFFFF, 4);
    image += std::string(32 * 4, '\xFF'); // image: white
    image += std::string(32 * 4, '\0');   // mask: all opaque
    std::string file;
    put(file, 0, 2);
    put(file, 1, 2);
    put(file, 1, 2);
    put(file, 32, 1);
    put(file, 32, 1);
    put(file, 2, 1);
    put(file, 0, 1);
    put(file, 1, 2);
    put(file, 1, 2);
    put(file, static_cast<std::uint32_t>(image.size()), 4);
    put(file, 22, 4);
    const std::wstring path = tempPath(L"qor_pic_mono.ico");
    writeFile(path, file + image);
    HICON mono =
        static_cast<HICON>(LoadImageW(nullptr, path.c_str(), IMAGE_ICON, 32, 32, LR_LOADFROMFILE));
    ASSERT_NE(mono, nullptr);
    ICONINFO info = {};
    ASSERT_TRUE(GetIconInfo(mono, &info));
    EXPECT_EQ(info.hbmColor, nullptr);
    BITMAP mask = {};
    GetObjectW(info.hbmMask, sizeof(mask), &mask);
    EXPECT_EQ(mask.bmHeight, 64);
    DeleteObject(info.hbmMask);
    if (info.hbmColor)
        DeleteObject(info.hbmColor);
    DestroyIcon(mono);
    bool transparent = true;
    HBITMAP b = qor_gdx_image_get_bitmap(CQorString(path.c_str()), 0, 32, 32, transparent, 0);
    DeleteFileW(path.c_str());
    ASSERT_NE(b, nullptr);
    Pixels p(b);
    EXPECT_EQ(p.width, 32);
    EXPECT_EQ(p.height, 32);
    DeleteObject(b);
}

TEST(PictureBitmap, VoteOfFiveDifferentColoursTakesTheLowestValue) {
    Canvas c(9, 9, RGB(200, 200, 200));
    SetPixelV(c.dc, 0, 0, RGB(10, 0, 0));
    SetPixelV(c.dc, 8, 0, RGB(0, 0, 3));
    SetPixelV(c.dc, 0, 8, RGB(0, 7, 0));
    SetPixelV(c.dc, 4, 4, RGB(1, 0, 0));
    SetPixelV(c.dc, 8, 8, RGB(5, 5, 5));
    EXPECT_EQ(QOR::bitmapBkColorVote(c.dc, 9, 9), static_cast<unsigned long>(RGB(1, 0, 0)));
}

TEST(PictureBitmap, VoteTakesTheMostFrequentSample) {
    Canvas c(10, 10, RGB(0, 0, 255));
    SetPixelV(c.dc, 0, 0, RGB(0, 0, 0));
    SetPixelV(c.dc, 4, 4, RGB(0, 0, 0)); // (9 / 2.0) truncated: the middle is (4, 4)
    SetPixelV(c.dc, 5, 5, RGB(9, 9, 9)); // not sampled
    EXPECT_EQ(QOR::bitmapBkColorVote(c.dc, 10, 10), static_cast<unsigned long>(RGB(0, 0, 255)));
}

TEST(PictureBitmap, OneByOneBitmapVotesFiveTimesForItsPixel) {
    Canvas c(1, 1, RGB(12, 34, 56));
    EXPECT_EQ(QOR::bitmapBkColorVote(c.dc, 1, 1), static_cast<unsigned long>(RGB(12, 34, 56)));
}

TEST(PictureBitmap, TransparentCopyLeavesTheBackgroundColourOut) {
    // A 10 by 10 picture: white frame of 2, red inside.
    Canvas pic(10, 10, RGB(255, 255, 255));
    HBRUSH red = CreateSolidBrush(RGB(255, 0, 0));
    RECT inner = {2, 2, 8, 8};
    FillRect(pic.dc, &inner, red);
    DeleteObject(red);
    GdiFlush();
    HBITMAP picture = pic.bitmap;
    SelectObject(pic.dc, pic.old); // the picture must not be selected elsewhere
    Canvas out(20, 20, RGB(0, 0, 255));
    SetBkColor(out.dc, RGB(1, 2, 3));
    SetTextColor(out.dc, RGB(4, 5, 6));
    QOR::bitmapDrawTransparent(out.dc, 5, 5, picture);
    EXPECT_EQ(out.at(5, 5), 0x0000FFu); // frame left out: the blue stays
    EXPECT_EQ(out.at(6, 13), 0x0000FFu);
    EXPECT_EQ(out.at(8, 8), 0xFF0000u); // inside copied
    EXPECT_EQ(out.at(12, 12), 0xFF0000u);
    EXPECT_EQ(out.at(16, 16), 0x0000FFu); // beyond the picture
    // The context's colours are as before.
    EXPECT_EQ(GetBkColor(out.dc), RGB(1, 2, 3));
    EXPECT_EQ(GetTextColor(out.dc), RGB(4, 5, 6));
    pic.old = SelectObject(pic.dc, picture);
}

TEST(PictureBitmap, BkColorOfADeviceContextIsTheVoteOfItsBitmap) {
    Canvas c(9, 9, RGB(7, 8, 9));
    SetPixelV(c.dc, 4, 4, RGB(0, 0, 0));
    BITMAP bm = {};
    GetObjectW(c.bitmap, sizeof(bm), &bm);
    EXPECT_EQ(qor_gdx_picture_bkcolor_get(CDC::FromHandle(c.dc), &bm),
              static_cast<unsigned long>(RGB(7, 8, 9)));
    EXPECT_EQ(qor_gdx_picture_bkcolor_get(nullptr, &bm), 0ul);
    EXPECT_EQ(qor_gdx_picture_bkcolor_get(CDC::FromHandle(c.dc), nullptr), 0ul);
}

TEST(PictureBitmap, TransparentDrawThroughTheWrappersIgnoresTheTwoSizes) {
    Canvas pic(6, 6, RGB(0, 255, 0)); // green background, a red middle
    HBRUSH red = CreateSolidBrush(RGB(255, 0, 0));
    RECT inner = {2, 2, 4, 4};
    FillRect(pic.dc, &inner, red);
    DeleteObject(red);
    GdiFlush();
    HBITMAP picture = pic.bitmap;
    SelectObject(pic.dc, pic.old);
    Canvas out(12, 12, RGB(255, 255, 255));
    // Sizes of 1 by 1 asked for: the whole 6 by 6 picture is drawn all the same.
    qor_gdx_picture_transparent(CDC::FromHandle(out.dc), 3, 3, 1, 1, CBitmap::FromHandle(picture));
    EXPECT_EQ(out.at(3, 3), 0xFFFFFFu); // green left out
    EXPECT_EQ(out.at(5, 5), 0xFF0000u);
    EXPECT_EQ(out.at(6, 6), 0xFF0000u);
    EXPECT_EQ(out.at(8, 8), 0xFFFFFFu);
    qor_gdx_picture_transparent(nullptr, 0, 0, 0, 0, CBitmap::FromHandle(picture));
    qor_gdx_picture_transparent(CDC::FromHandle(out.dc), 0, 0, 0, 0, nullptr);
    EXPECT_EQ(out.at(0, 0), 0xFFFFFFu);
    pic.old = SelectObject(pic.dc, picture);
}
