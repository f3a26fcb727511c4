// CQorDplistImage painting through GDI: pixels of the window after real WM_PAINT
// messages, and the window's image against the painter's own on a DIB section.
#include "views/dplist_image.h"

#include "drawing/item_painter_p.h"
#include "drawing/refresh.h"
#include "drawing/win/gdi_surface_p.h"
#include "tests/drawing/painter_test_util.h"
#include "tests/views/view_test_util.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

// A window of 110 by 110 over the view box (0,0)-(100,100): after a fit, a world
// point (x, y) lands on the pixel (x + 5, 105 - y).
constexpr int kSide = 110;
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(255, 0, 0);   // colour index 1
constexpr COLORREF kGreen = RGB(0, 255, 0); // colour index 3
constexpr COLORREF kSky = RGB(0, 128, 255);

CPoint px(double x, double y) {
    return CPoint(static_cast<int>(x) + 5, 105 - static_cast<int>(y));
}

class DplistImagePaintTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(createPicture(parent, image, kSide, kSide));
        pumpSome();
        parent.picks.clear();
    }
    void TearDown() override { destroyPicture(parent, image); }
    // Attaches and fits gdx, paints and reads the client area back.
    void show(CQorGDX& gdx) {
        image.set_dpList(&gdx);
        image.zoomExtents();
        image.UpdateWindow();
        grabClient(image.m_hWnd, shot);
    }
    void wheel(short delta, CPoint at) {
        image.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)),
                          screenPoint(image, at.x, at.y));
        image.UpdateWindow();
        grabClient(image.m_hWnd, shot);
    }

    CTestParent parent;
    CQorDplistImage image;
    TestDib shot{kSide, kSide};
};

// The square (x0, y0)-(x1, y1) of pixels, all in color.
bool allOf(const TestDib& dib, int x0, int y0, int x1, int y1, COLORREF color) {
    for (int y = y0; y <= y1; ++y)
        for (int x = x0; x <= x1; ++x)
            if (dib.ref(x, y) != color)
                return false;
    return true;
}

} // namespace

TEST_F(DplistImagePaintTest, ALineInTheBackgroundColourIsDrawnInTheInverseColour) {
    CQorGDX gdx = boxDoc();
    gdx.backColorSet(ole(kSky));
    addVl(gdx, segment(0, 50, 100, 50), ole(kSky));
    show(gdx);
    const COLORREF inverse = kSky ^ 0xFFFFFF;
    EXPECT_EQ(shot.ref(px(20, 50).x, px(20, 50).y), inverse);
    EXPECT_EQ(shot.ref(px(80, 50).x, px(80, 50).y), inverse);
    EXPECT_EQ(shot.ref(px(50, 60).x, px(50, 60).y), kSky);
}

TEST_F(DplistImagePaintTest, AnItemOfModeZeroWithoutIndexFillsWithTheLineColour) {
    CQorGDX gdx = boxDoc();                   // white
    CQorColor byValue = ole(RGB(10, 20, 30)); // no index: drawn as the inverse of white
    gdx.imageReg(path({1}), GDX_FLAG_FILL, region(rect(20, 20, 60, 60)), byValue, CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, indexed(5), QOR::CHatchProp(), CQorPoint3d());
    show(gdx);
    const CPoint inside = px(40, 40);
    EXPECT_EQ(shot.ref(inside.x, inside.y), RGB(0, 0, 0));
    EXPECT_EQ(shot.ref(px(70, 70).x, px(70, 70).y), kWhite);
}

TEST_F(DplistImagePaintTest, ZoomingOutAHatchedRegionTurnsItSolidAtRows2Point3Apart) {
    CQorGDX gdx = boxDoc();
    // Horizontal rows 4.6 apart ("DENSE" has rows 1/64 apart at scale 1).
    gdx.imageReg(path({1}), GDX_FLAG_HATCH, region(rect(0, 0, 40, 40)), indexed(1), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, indexed(3),
                 QOR::CHatchProp(L"DENSE", 0.0, 64.0 * 4.6, false), CQorPoint3d());
    show(gdx);
    const CPoint centre = px(20, 20);
    // Each notch back scales by 1 / 1.2 about the centre: rows 3.83, 3.19, 2.66 apart
    // are still rows, with the background between them...
    for (int notch = 1; notch <= 3; ++notch) {
        wheel(-120, centre);
        int green = 0, white = 0;
        for (int y = centre.y - 4; y <= centre.y + 4; ++y) {
            green += shot.ref(centre.x, y) == kGreen ? 1 : 0;
            white += shot.ref(centre.x, y) == kWhite ? 1 : 0;
        }
        EXPECT_GT(green, 0) << "notch " << notch;
        EXPECT_GT(white, 0) << "notch " << notch;
    }
    // ...and 2.22 apart is the solid fill.
    wheel(-120, centre);
    EXPECT_TRUE(allOf(shot, centre.x - 3, centre.y - 3, centre.x + 3, centre.y + 3, kGreen));
}

TEST_F(DplistImagePaintTest, AHoleInAGlyphStaysClearAndTheNextGlyphIsNotClippedByIt) {
    CQorGDX gdx = boxDoc();
    CQorDisplayItem glyphs;
    glyphs.type = GDX_TXT;
    glyphs.color = indexed(1);
    glyphs.linetype = pattern({1.0});
    CQorArrayTempl<CQorVertexArray> ring;
    ring.append(rect(10, 10, 30, 30));
    ring.append(rect(15, 15, 25, 25));
    glyphs.regionList.append(ring);
    glyphs.regionList.append(region(rect(18, 40, 40, 60))); // under the hole's columns
    CQorArrayTempl<CQorDisplayItem> items;
    items.append(glyphs);
    ASSERT_TRUE(gdx.addDisplayList(items));
    show(gdx);
    EXPECT_EQ(shot.ref(px(20, 20).x, px(20, 20).y), kWhite); // the hole
    EXPECT_EQ(shot.ref(px(12, 20).x, px(12, 20).y), kRed);   // the ring
    EXPECT_EQ(shot.ref(px(20, 50).x, px(20, 50).y), kRed);   // the next glyph, full
    EXPECT_EQ(shot.ref(px(35, 50).x, px(35, 50).y), kRed);
}

TEST_F(DplistImagePaintTest, TheWindowShowsWhatThePainterDrawsOnADibSection) {
    CQorGDX gdx = boxDoc();
    gdx.backColorSet(ole(RGB(30, 40, 50)));
    addVl(gdx, rect(10, 10, 50, 50), indexed(1), pattern({1.0, 1.0, 1.0}));
    gdx.imageReg(path({2}), GDX_FLAG_FILL | GDX_FLAG_HATCH, region(rect(55, 10, 95, 40)),
                 indexed(2), CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 2, indexed(4),
                 QOR::CHatchProp(L"DENSE", 0.0, 256.0, false), CQorPoint3d());
    gdx.imageReg(path({3}), GDX_FLAG_HATCH, region(rect(55, 50, 95, 90)), indexed(5),
                 CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1, indexed(6),
                 QOR::CHatchProp(L"DENSE", 0.5, 512.0, false), CQorPoint3d());
    gdx.imagePt(path({4}), 0, CQorPoint3d(30, 80, 0), indexed(3), CQorMatrix3d(), 5.0, 64,
                CQorPoint3d());
    addVl(gdx, segment(0, 95, 100, 95), ole(RGB(30, 40, 50)));
    show(gdx);
    image.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), screenPoint(image, 40, 60));
    image.UpdateWindow();
    grabClient(image.m_hWnd, shot);

    // The same frame by hand: clip, null pen, background, then the painter.
    CQorGDX copy = gdx;
    TestDib expected(kSide, kSide);
    HRGN clip = CreateRectRgn(0, 0, kSide, kSide);
    SelectClipRgn(expected.dc, clip);
    DeleteObject(clip);
    HGDIOBJ oldPen = SelectObject(expected.dc, GetStockObject(NULL_PEN));
    SetBkColor(expected.dc, copy.backColorGet().oleColor());
    RECT all = {0, 0, kSide, kSide};
    ExtTextOutW(expected.dc, 0, 0, ETO_OPAQUE, &all, nullptr, 0, nullptr);
    {
        QOR::CQorGdiSurface surface(expected.dc);
        QOR::CQorItemPainter painter(surface, QOR::CQorPaintPolicy::screen());
        painter.paintScreen(copy, kSide, kSide);
    }
    SelectObject(expected.dc, oldPen);

    int differ = 0;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            if (shot.at(x, y) != expected.at(x, y) && differ++ < 5)
                ADD_FAILURE() << "pixel " << x << "," << y << ": window " << std::hex
                              << shot.at(x, y) << ", painter " << expected.at(x, y);
    EXPECT_EQ(differ, 0);
    // Not a blank picture on both sides: the background and the items are there.
    EXPECT_EQ(shot.ref(1, 1), RGB(30, 40, 50));
    int drawn = 0;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            drawn += shot.ref(x, y) != RGB(30, 40, 50) ? 1 : 0;
    EXPECT_GT(drawn, 1000);
}

namespace {

void putLe(std::string& s, std::uint32_t v, int n) {
    for (int k = 0; k < n; ++k)
        s.push_back(static_cast<char>((v >> (8 * k)) & 0xFF));
}

// A 24-bit bitmap file of w by h: red in the left half, blue in the right.
std::string halvesBmp(int w, int h) {
    const int stride = (w * 3 + 3) & ~3;
    std::string out = "BM";
    putLe(out, static_cast<std::uint32_t>(54 + stride * h), 4);
    putLe(out, 0, 4);
    putLe(out, 54, 4);
    putLe(out, 40, 4);
    putLe(out, static_cast<std::uint32_t>(w), 4);
    putLe(out, static_cast<std::uint32_t>(h), 4);
    putLe(out, 1, 2);
    putLe(out, 24, 2);
    for (int k = 0; k < 6; ++k)
        putLe(out, 0, 4);
    for (int y = 0; y < h; ++y) {
        std::string row;
        for (int x = 0; x < w; ++x)
            putLe(row, x < w / 2 ? 0xFF0000u : 0x0000FFu, 3); // 0x00RRGGBB as B, G, R
        row.resize(static_cast<size_t>(stride), '\0');
        out += row;
    }
    return out;
}

std::wstring tempPath(const wchar_t* name) {
    wchar_t dir[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, dir);
    return std::wstring(dir) + name;
}

bool writeFile(const std::wstring& path, const std::string& bytes) {
    HANDLE f = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (f == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    WriteFile(f, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(f);
    return written == bytes.size();
}

// The metafile of refresh played into a white DIB at the device coordinates it
// was recorded at (its bounds mapped onto themselves).
bool playRefresh(CQorGDX& gdx, TestDib& out) {
    const std::wstring file = tempPath(L"qor_dplist_picture.emf");
    DeleteFileW(file.c_str());
    refresh(&gdx, file.c_str(), out.height, out.width);
    HENHMETAFILE emf = GetEnhMetaFileW(file.c_str());
    DeleteFileW(file.c_str());
    if (!emf)
        return false;
    out.fill(kWhite);
    ENHMETAHEADER h = {};
    GetEnhMetaFileHeader(emf, sizeof(h), &h);
    RECT target = {h.rclBounds.left, h.rclBounds.top, h.rclBounds.right, h.rclBounds.bottom};
    PlayEnhMetaFile(out.dc, emf, &target);
    GdiFlush();
    DeleteEnhMetaFile(emf);
    return true;
}

} // namespace

// Defect: the window's painter had no picture loader, so picture items showed in
// the metafile of refresh but never on the screen.
TEST_F(DplistImagePaintTest, PictureItemsAreDrawnOnScreenAsInTheMetafile) {
    const std::wstring bmp = tempPath(L"qor_dplist_picture.bmp");
    ASSERT_TRUE(writeFile(bmp, halvesBmp(20, 10)));
    CQorGDX gdx = boxDoc(); // white
    // Device corners (30, 40)-(50, 50): red over x 30..39, blue over x 40..49.
    gdx.imagePicture(path({1}), 0, bmp.c_str(), 0, CQorPoint3d(30, 40, 0), CQorPoint3d(50, 50, 0));
    show(gdx);
    TestDib played(kSide, kSide);
    ASSERT_TRUE(playRefresh(gdx, played));
    DeleteFileW(bmp.c_str());

    EXPECT_EQ(shot.ref(31, 41), kRed);
    EXPECT_EQ(shot.ref(38, 48), kRed);
    EXPECT_EQ(shot.ref(41, 41), RGB(0, 0, 255));
    EXPECT_EQ(shot.ref(48, 48), RGB(0, 0, 255));
    EXPECT_EQ(shot.ref(25, 45), kWhite);
    EXPECT_EQ(shot.ref(55, 45), kWhite);
    // The same pixels at the same place in the metafile.
    int differing = 0;
    for (int y = 40; y < 50; ++y)
        for (int x = 30; x < 50; ++x)
            if (shot.ref(x, y) != played.ref(x, y))
                ++differing;
    EXPECT_EQ(differing, 0);
    EXPECT_EQ(played.ref(31, 41), kRed);
    EXPECT_EQ(played.ref(48, 48), RGB(0, 0, 255));
}
