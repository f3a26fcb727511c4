// refresh in the Windows build: the metafile GDI recorded, read back with GDI's
// record enumeration and played into a bitmap, and the clipboard.
#include "drawing/refresh.h"
#include "foundation/records/hatch_prop.h"
#include "tests/displaylist/gdx_test_util.h"
#include "tests/framework/clipboard_lock.h"
#include "tests/framework/test_dib.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr int kSize = 110;

// The view box (0,0)-(100,100) in a 110 by 110 output: (x, y) lands on
// (x + 5, 105 - y).
CQorGDX boxDoc() {
    CQorGDX gdx = plainDoc();
    gdx.extMaxViewSet(CQorPoint3d(0, 0, 0), CQorPoint3d(100, 100, 0));
    return gdx;
}

std::wstring tempFile(const wchar_t* name) {
    wchar_t dir[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, dir);
    return std::wstring(dir) + name;
}

int CALLBACK collectTypes(HDC, HANDLETABLE*, const ENHMETARECORD* rec, int, LPARAM out) {
    reinterpret_cast<std::vector<DWORD>*>(out)->push_back(rec->iType);
    return 1;
}

std::vector<DWORD> typesOf(HENHMETAFILE emf) {
    std::vector<DWORD> out;
    EnumEnhMetaFile(nullptr, emf, collectTypes, &out, nullptr);
    return out;
}

// A white bitmap of the output's size with the metafile played into it at the
// device coordinates it was drawn at.
struct Played : TestDib {
    explicit Played(HENHMETAFILE emf) : TestDib(kSize, kSize) {
        fill(RGB(255, 255, 255));
        ENHMETAHEADER h = {};
        GetEnhMetaFileHeader(emf, sizeof(h), &h);
        // Playback maps the frame, which GDI derived from the bounds as the
        // distance from the first to the last pixel, onto the target: a target of
        // that same distance plays at scale 1.
        RECT target = {h.rclBounds.left, h.rclBounds.top, h.rclBounds.right, h.rclBounds.bottom};
        PlayEnhMetaFile(dc, emf, &target);
        GdiFlush();
    }
    bool dark(int x, int y) const { return at(x, y) == 0; }
    // Black within one pixel of (x, y): playback may place a row one off.
    bool darkNear(int x, int y) const {
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                if (dark(x + dx, y + dy))
                    return true;
        return false;
    }
};

// refresh to a temporary file, loaded back.
HENHMETAFILE refreshToFile(CQorGDX& gdx, const wchar_t* name) {
    const std::wstring file = tempFile(name);
    DeleteFileW(file.c_str());
    refresh(&gdx, file.c_str(), kSize, kSize);
    HENHMETAFILE emf = GetEnhMetaFileW(file.c_str());
    DeleteFileW(file.c_str());
    return emf;
}

int emfFilesInWorkingFolder() {
    WIN32_FIND_DATAW data;
    HANDLE h = FindFirstFileW(L"*", &data);
    int n = 0;
    if (h == INVALID_HANDLE_VALUE)
        return 0;
    do
        ++n;
    while (FindNextFileW(h, &data));
    FindClose(h);
    return n;
}

void putTextOnClipboard(const wchar_t* text) {
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    const size_t bytes = (wcslen(text) + 1) * sizeof(wchar_t);
    HGLOBAL mem = GlobalAlloc(GMEM_MOVEABLE, bytes);
    memcpy(GlobalLock(mem), text, bytes);
    GlobalUnlock(mem);
    SetClipboardData(CF_UNICODETEXT, mem);
    CloseClipboard();
}

} // namespace

TEST(RefreshGdi, NullFileLaysTheMetafileOnTheClipboardInFormat14) {
    ClipboardLock lock;
    putTextOnClipboard(L"before");
    const int filesBefore = emfFilesInWorkingFolder();
    CQorGDX gdx = boxDoc();
    addLine(gdx, {1}, 0, segment(10, 50, 90, 50));
    refresh(&gdx, nullptr, kSize, kSize);
    EXPECT_EQ(emfFilesInWorkingFolder(), filesBefore); // no file made
    ASSERT_TRUE(OpenClipboard(nullptr));
    EXPECT_TRUE(IsClipboardFormatAvailable(14));
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_UNICODETEXT) &&
                 !IsClipboardFormatAvailable(14)); // emptied before the metafile went on
    HENHMETAFILE emf = static_cast<HENHMETAFILE>(GetClipboardData(CF_ENHMETAFILE));
    ASSERT_NE(emf, nullptr);
    const std::vector<DWORD> types = typesOf(emf);
    CloseClipboard();
    EXPECT_EQ(types, (std::vector<DWORD>{EMR_HEADER, EMR_EXTSELECTCLIPRGN, EMR_CREATEPEN,
                                         EMR_SELECTOBJECT, EMR_MOVETOEX, EMR_LINETO,
                                         EMR_SELECTOBJECT, EMR_DELETEOBJECT, EMR_EOF}));
}

TEST(RefreshGdi, FileGetsTheMetafileAndTheClipboardStaysAsItWas) {
    ClipboardLock lock;
    putTextOnClipboard(L"kept");
    CQorGDX gdx = boxDoc();
    addLine(gdx, {1}, 0, segment(10, 50, 90, 50));
    HENHMETAFILE emf = refreshToFile(gdx, L"qor_refresh_file.emf");
    ASSERT_NE(emf, nullptr);
    EXPECT_EQ(typesOf(emf).size(), 9u);
    DeleteEnhMetaFile(emf);
    ASSERT_TRUE(OpenClipboard(nullptr));
    EXPECT_FALSE(IsClipboardFormatAvailable(14));
    HANDLE text = GetClipboardData(CF_UNICODETEXT);
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(static_cast<const wchar_t*>(GlobalLock(text)), L"kept");
    GlobalUnlock(text);
    CloseClipboard();
}

TEST(RefreshGdi, EmptyDocumentGivesAMetafileWithNothingDrawn) {
    CQorGDX gdx = plainDoc();
    HENHMETAFILE emf = refreshToFile(gdx, L"qor_refresh_empty.emf");
    ASSERT_NE(emf, nullptr);
    EXPECT_EQ(typesOf(emf), (std::vector<DWORD>{EMR_HEADER, EMR_EXTSELECTCLIPRGN, EMR_EOF}));
    ENHMETAHEADER h = {};
    GetEnhMetaFileHeader(emf, sizeof(h), &h);
    EXPECT_LT(h.rclBounds.right, h.rclBounds.left); // empty bounds
    DeleteEnhMetaFile(emf);
}

TEST(RefreshGdi, WhiteLinePlaysBlack) {
    CQorGDX gdx = boxDoc();
    CQorColor white;
    white.setOleColor(0xFFFFFF);
    // A box of white lines, so that the bounds are known: (10,10)-(90,90) lands on
    // (15,15)-(95,95).
    gdx.imageVl(path({1}), 0, rect(10, 10, 90, 90), white, CQorMatrix3d(), CQorArrayTempl<double>(),
                1.0, 1, CQorPoint3d());
    HENHMETAFILE emf = refreshToFile(gdx, L"qor_refresh_white.emf");
    ASSERT_NE(emf, nullptr);
    Played p(emf);
    DeleteEnhMetaFile(emf);
    int black = 0;
    for (int x = 20; x < 90; ++x)
        black += p.darkNear(x, 55) ? 0 : (p.darkNear(x, 15) ? 1 : 0);
    EXPECT_EQ(black, 70); // the whole top side is black, not white
    EXPECT_EQ(p.at(55, 55), 0xFFFFFFu);
}

TEST(RefreshGdi, HatchedSquareShowsRowsAtTheHatchSpacing) {
    CQorGDX gdx = boxDoc();
    // Horizontal rows: the 45 degree pattern turned by -45 degrees, 0.125 * 40 = 5
    // drawing units apart, and an outline so that the bounds are the square.
    const QOR::CHatchProp hatch(L"ANSI31", -std::atan(1.0), 40.0, false);
    gdx.imageReg(path({1}), 0x02 | 0x10, region(rect(10, 30, 90, 90)), indexed(7), CQorMatrix3d(),
                 CQorArrayTempl<double>(), 1.0, 1, indexed(7), hatch, CQorPoint3d());
    HENHMETAFILE emf = refreshToFile(gdx, L"qor_refresh_hatch.emf");
    ASSERT_NE(emf, nullptr);
    Played p(emf);
    DeleteEnhMetaFile(emf);
    // Down the column of x = 50 (device 55), inside the square (device rows 16 to 74).
    std::vector<int> rows;
    for (int y = 17; y < 74; ++y)
        if (p.dark(55, y) && !p.dark(55, y - 1))
            rows.push_back(y);
    ASSERT_GE(rows.size(), 10u);
    std::string all;
    for (int r : rows)
        all += std::to_string(r) + " ";
    for (size_t k = 1; k < rows.size(); ++k)
        EXPECT_EQ(rows[k] - rows[k - 1], 5) << all;
}

TEST(RefreshGdi, GlyphHoleStaysClearAndTheNextGlyphIsWhole) {
    CQorGDX gdx = boxDoc();
    CQorDisplayItem item;
    item.type = GDX_TXT;
    item.color = indexed(7);
    item.linetype.append(1.0);
    CQorArrayTempl<CQorVertexArray> ring;
    ring.append(rect(10, 10, 50, 90)); // an "O": outer contour and its hole
    ring.append(rect(20, 20, 40, 80));
    item.regionList.append(ring);
    item.regionList.append(region(rect(60, 10, 90, 90))); // a filled block after it
    CQorArrayTempl<CQorDisplayItem> items;
    items.append(item);
    ASSERT_TRUE(gdx.addDisplayList(items));
    HENHMETAFILE emf = refreshToFile(gdx, L"qor_refresh_glyph.emf");
    ASSERT_NE(emf, nullptr);
    Played p(emf);
    DeleteEnhMetaFile(emf);
    EXPECT_TRUE(p.dark(20, 55));        // the ring, filled
    EXPECT_EQ(p.at(35, 55), 0xFFFFFFu); // the hole, clear
    EXPECT_TRUE(p.dark(80, 55));        // the block, not clipped by the hole
    EXPECT_TRUE(p.dark(70, 25) && p.dark(90, 85));
}

TEST(RefreshGdi, FixedSizeItemKeepsItsSizeUnderAZoom) {
    // Dark pixels on device row y after a refresh under a zoom about the middle.
    const auto darkOnRow = [](double zoomFactor, int y) {
        CQorGDX gdx = boxDoc();
        CQorMatrix3d zoom;
        zoom.setToScaling(zoomFactor, CQorPoint3d(55, 55, 0));
        gdx.zoomMtxSet(zoom);
        // One unit of a fixed-size item is 100 device units and its anchor (50, 50)
        // lands on the middle (55, 55), which the zoom keeps. A fixed-size frame of
        // the whole output fixes the bounds; the fixed line is 30 units long on
        // row 55; an ordinary line of 20 on row 60 grows with the zoom.
        const CQorPoint3d anchor(50, 50, 0);
        gdx.imageVl(path({1}), GDX_FLAG_FIXED_SIZE, rect(-0.55, -0.54, 0.54, 0.55), indexed(7),
                    CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1, anchor);
        gdx.imageVl(path({2}), GDX_FLAG_FIXED_SIZE, segment(0, 0, 0.3, 0), indexed(7),
                    CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1, anchor);
        gdx.imageVl(path({3}), 0, segment(40, 45, 60, 45), indexed(7), CQorMatrix3d(),
                    CQorArrayTempl<double>(), 1.0, 1, CQorPoint3d());
        HENHMETAFILE emf = refreshToFile(gdx, L"qor_refresh_fixed.emf");
        if (!emf)
            return -1;
        Played p(emf);
        DeleteEnhMetaFile(emf);
        int n = 0;
        for (int x = 2; x < kSize - 2; ++x)
            n += p.dark(x, y) ? 1 : 0;
        return n;
    };
    const int fixedPlain = darkOnRow(1.0, 55);
    EXPECT_GE(fixedPlain, 29);
    EXPECT_LE(fixedPlain, 31);
    EXPECT_EQ(darkOnRow(3.0, 55), fixedPlain);
    // The ordinary line: 20 device units, then 60 on row 55 + 3 * 5.
    EXPECT_NEAR(darkOnRow(1.0, 60), 20, 1);
    EXPECT_NEAR(darkOnRow(3.0, 70), 60, 1);
}
