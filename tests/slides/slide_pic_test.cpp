// QOR::CSlidePic as a child window under Wine: real paints read back as pixels, the
// metafile of CreateEnhMetaFileW and the clipboard read back as records.
#include "slides/win/slide_pic.h"

#include "foundation/records/color_palette.h"
#include "slide_test_util.h"
#include "slides/slide_decoder.h"
#include "win_test_util.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

using slidetest::Bytes;
using slidetest::level2Header;
using slidetest::putVector;
using slidetest::putVertex;
using slidetest::putWord;

namespace {

// Client 101 by 81 for a slide of high X 100 and high Y 80: scale 1 and no offset,
// so slide (x, y) lands on window (x, 80 - y).
constexpr int kClientW = 101;
constexpr int kClientH = 81;
constexpr UINT kSlideId = 301;

// Red line at window row 40, colour 7 line at window row 60, green box from (50, 10)
// to (80, 30).
Bytes testSlide() {
    Bytes b = level2Header(100, 80);
    putWord(b, 0xFF01);
    putVector(b, 10, 40, 90, 40);
    putWord(b, 0xFF07);
    putVector(b, 10, 20, 90, 20);
    putWord(b, 0xFF03);
    putWord(b, 0xFD00);
    putWord(b, 4);
    putWord(b, 0);
    putVertex(b, 50, 50);
    putVertex(b, 80, 50);
    putVertex(b, 80, 70);
    putVertex(b, 50, 70);
    putVertex(b, 50, 0xFFFF); // closing record
    putWord(b, 0xFC00);
    return b;
}

std::wstring testFile(const char* name) {
    const std::string p = std::string(QOR_TEST_DATA_DIR) + "/slides/" + name;
    return std::wstring(p.begin(), p.end());
}

class SlidePicTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(top.wnd.m_hWnd);
        ASSERT_TRUE(pic.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, kClientW, kClientH),
                               &top.wnd, 100));
    }
    void showBytes(Bytes b) { pic.show(b.data(), static_cast<int>(b.size())); }
    std::vector<wintest::Record> metafileOf(const CRect& rect) {
        HENHMETAFILE mf = pic.CreateEnhMetaFileW(rect);
        EXPECT_NE(mf, nullptr);
        std::vector<wintest::Record> recs = wintest::records(mf);
        DeleteEnhMetaFile(mf);
        return recs;
    }
    std::vector<wintest::Record> metafileOf() {
        return metafileOf(CRect(0, 0, kClientW, kClientH));
    }

    wintest::TopWindow top;
    QOR::CSlidePic pic;
};

// The colours of the pens created in the metafile, in order.
std::vector<COLORREF> penColours(const std::vector<wintest::Record>& recs) {
    std::vector<COLORREF> out;
    for (const wintest::Record& r : recs)
        if (r.type == EMR_CREATEPEN) // ihPen, style, width (x, y), colour
            out.push_back(static_cast<COLORREF>(r.i32(16)));
    return out;
}

} // namespace

TEST_F(SlidePicTest, PaintFillsTheBackgroundAndDrawsTheSlideFitted) {
    showBytes(testSlide());
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(5, 75), QOR::acadRGB(0)) << "background of index 0";
    EXPECT_EQ(px.at(50, 40), QOR::acadRGB(1)) << "red vector";
    EXPECT_EQ(px.at(50, 60), QOR::acadRGB(7)) << "colour 7 stays white on black";
    EXPECT_EQ(px.at(65, 20), QOR::acadRGB(3)) << "inside the green fill";
    EXPECT_EQ(px.at(5, 40), QOR::acadRGB(0)) << "left of the vector";
    long cx = 0, cy = 0;
    ASSERT_TRUE(pic.getSize(cx, cy));
    EXPECT_EQ(cx, 100);
    EXPECT_EQ(cy, 80);
    EXPECT_DOUBLE_EQ(pic.scale(), 1.0);
}

TEST_F(SlidePicTest, WithoutSlideThePaintShowsTheButtonFace) {
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(40, 40), GetSysColor(COLOR_BTNFACE));
    long cx = 0, cy = 0;
    EXPECT_FALSE(pic.getSize(cx, cy));
}

TEST_F(SlidePicTest, TransparentWindowKeepsWhatWasUnderIt) {
    showBytes(testSlide());
    pic.SetBkColor(5);
    EXPECT_EQ(wintest::WindowPixels(pic.m_hWnd).at(5, 75), QOR::acadRGB(5));
    SetWindowLongPtrW(pic.m_hWnd, GWL_EXSTYLE, WS_EX_TRANSPARENT);
    pic.SetBkColor(2);
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(5, 75), QOR::acadRGB(5)) << "no new background";
    EXPECT_EQ(px.at(50, 40), QOR::acadRGB(1)) << "the slide is drawn";
}

TEST_F(SlidePicTest, BackgroundIndexSevenTurnsColourSevenBlack) {
    showBytes(testSlide());
    EXPECT_EQ(pic.SetBkColor(7), 1);
    EXPECT_EQ(pic.BackColor(), 7);
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(5, 75), QOR::acadRGB(7)) << "white background";
    EXPECT_EQ(px.at(50, 60), QOR::acadRGB(0)) << "colour 7 drawn black";
    EXPECT_EQ(px.at(50, 40), QOR::acadRGB(1)) << "other colours stay";
}

TEST_F(SlidePicTest, MetafileDrawsColourSevenBlackAndKeepsTheBackgroundIndex) {
    showBytes(testSlide());
    pic.SetBkColor(2);
    const std::vector<wintest::Record> recs = metafileOf();
    EXPECT_EQ(pic.BackColor(), 2);
    EXPECT_EQ(penColours(recs),
              (std::vector<COLORREF>{QOR::acadRGB(1), QOR::acadRGB(0), QOR::acadRGB(3)}));
    EXPECT_EQ(wintest::countOf(recs, EMR_LINETO), 2);
    EXPECT_EQ(wintest::countOf(recs, EMR_POLYGON16) + wintest::countOf(recs, EMR_POLYGON), 1);
}

TEST_F(SlidePicTest, ColourRecordsGivePensOfThePalette) {
    Bytes b = level2Header(100, 80);
    const int indices[] = {8, 9, 11, 12, 19, 30, 250, 251, 255};
    for (int i : indices)
        putWord(b, 0xFF00 | i);
    showBytes(b);
    const std::vector<COLORREF> expected = {
        RGB(127, 127, 127), RGB(191, 191, 191), RGB(255, 127, 127),
        RGB(165, 0, 0),     RGB(51, 25, 25),    RGB(255, 127, 0),
        RGB(84, 84, 84),    RGB(119, 119, 119), RGB(255, 255, 255)};
    EXPECT_EQ(penColours(metafileOf()), expected);
}

TEST_F(SlidePicTest, CutSlideDrawsWhatCameBefore) {
    const Bytes whole = testSlide();
    // Cut after the second colour record: the first vector only.
    showBytes(Bytes(whole.begin(), whole.begin() + 31 + 2 + 8 + 2));
    std::vector<wintest::Record> recs = metafileOf();
    EXPECT_EQ(wintest::countOf(recs, EMR_LINETO), 1);
    EXPECT_EQ(penColours(recs), (std::vector<COLORREF>{QOR::acadRGB(1), QOR::acadRGB(0)}));
    // Cut inside the fill's vertices: both vectors stand, and the window still paints.
    showBytes(Bytes(whole.begin(), whole.begin() + 31 + 2 + 8 + 2 + 8 + 2 + 6 + 7));
    recs = metafileOf();
    EXPECT_EQ(wintest::countOf(recs, EMR_LINETO), 2);
    EXPECT_EQ(wintest::WindowPixels(pic.m_hWnd).at(50, 40), QOR::acadRGB(1));
}

TEST_F(SlidePicTest, HighByte0x80StopsTheDrawing) {
    Bytes b = level2Header(100, 80);
    putVector(b, 10, 40, 90, 40);
    putWord(b, 0x8000);
    putVector(b, 10, 20, 90, 20);
    showBytes(b);
    EXPECT_EQ(wintest::countOf(metafileOf(), EMR_LINETO), 1);
}

TEST_F(SlidePicTest, FillOfVertexCountOneIsItsStartPointClosedUponItself) {
    Bytes b = level2Header(100, 80);
    putWord(b, 0xFD00);
    putWord(b, 1);
    putWord(b, 0);
    putVertex(b, 30, 50);
    putVertex(b, 0, 0); // closing record
    putWord(b, 0xFC00);
    showBytes(b);
    bool found = false;
    for (const wintest::Record& r : metafileOf()) {
        if (r.type != EMR_POLYGON16)
            continue;
        found = true;
        // rclBounds (16 bytes), cpts, then the points as pairs of shorts.
        ASSERT_EQ(r.i32(16), 2);
        EXPECT_EQ(r.i16(20), 30);
        EXPECT_EQ(r.i16(22), 30);
        EXPECT_EQ(r.i16(24), 30);
        EXPECT_EQ(r.i16(26), 30);
    }
    EXPECT_TRUE(found);
}

TEST_F(SlidePicTest, LastLibraryEntryTakesItsLengthFromTheFile) {
    const std::wstring lib = testFile("mylib.slb");
    ASSERT_TRUE(pic.show(L"slide2", lib.c_str()));
    // The same bytes decoded on their own: from the entry's offset to the file's end.
    const Bytes all = slidetest::readTestFile("mylib.slb");
    ASSERT_EQ(all.size(), 338u);
    slidetest::CRecordingSink sink;
    QOR::CSlideDecoder dec;
    ASSERT_TRUE(dec.decode(all.data() + 209, all.size() - 209, sink));
    int lines = 0;
    for (const std::string& c : sink.calls)
        lines += c[0] == 'L' ? 1 : 0;
    ASSERT_GT(lines, 0);
    EXPECT_EQ(wintest::countOf(metafileOf(), EMR_LINETO), lines);

    // A library cut short cuts its last slide with it.
    wchar_t dir[MAX_PATH] = {}, path[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, dir);
    GetTempFileNameW(dir, L"slb", 0, path);
    FILE* f = _wfopen(path, L"wb");
    ASSERT_NE(f, nullptr);
    fwrite(all.data(), 1, 209 + 40, f);
    fclose(f);
    ASSERT_TRUE(pic.show(L"SLIDE2", path));
    EXPECT_LT(wintest::countOf(metafileOf(), EMR_LINETO), lines);
    DeleteFileW(path);
}

TEST_F(SlidePicTest, ShowOfAMissingFileOrNameDropsTheSlide) {
    ASSERT_TRUE(pic.show(testFile("slide_up.sld").c_str(), nullptr));
    EXPECT_TRUE(pic.hasSlide());
    EXPECT_FALSE(pic.show(testFile("no_such.sld").c_str(), nullptr));
    EXPECT_FALSE(pic.hasSlide());
    ASSERT_TRUE(pic.show(L"slide1", testFile("mylib.slb").c_str()));
    EXPECT_FALSE(pic.show(L"NONE", testFile("mylib.slb").c_str()));
    EXPECT_FALSE(pic.hasSlide());
    EXPECT_FALSE(pic.show(nullptr, nullptr));
    pic.show(nullptr, 5);
    EXPECT_FALSE(pic.hasSlide());
}

TEST_F(SlidePicTest, ShowInvalidatesTheWindowWithErase) {
    wintest::WindowPixels settle(pic.m_hWnd);
    EXPECT_FALSE(GetUpdateRect(pic.m_hWnd, nullptr, FALSE));
    showBytes(testSlide());
    EXPECT_TRUE(GetUpdateRect(pic.m_hWnd, nullptr, FALSE));
}

TEST_F(SlidePicTest, LoadSlideReadsTheResourceOfTheModule) {
    EXPECT_TRUE(pic.LoadSlide(kSlideId, L"SLD"));
    EXPECT_TRUE(pic.hasSlide());
    EXPECT_EQ(wintest::countOf(metafileOf(), EMR_LINETO) > 0, true);
    EXPECT_FALSE(pic.LoadSlide(kSlideId + 1, L"SLD"));
    EXPECT_FALSE(pic.LoadSlide(kSlideId, L"NOSUCHTYPE"));
}

TEST_F(SlidePicTest, CopyPutsTheSlideOnTheClipboardAsFormat14) {
    ClipboardLock lock;
    showBytes(testSlide());
    wintest::WindowPixels painted(pic.m_hWnd); // decodes once: width and height known
    wintest::clearClipboard();
    ASSERT_TRUE(pic.Copy());
    HENHMETAFILE mf = wintest::clipboardMetafile();
    ASSERT_NE(mf, nullptr);
    const std::vector<wintest::Record> recs = wintest::records(mf);
    DeleteEnhMetaFile(mf);
    EXPECT_EQ(wintest::countOf(recs, EMR_LINETO), 2);
    EXPECT_EQ(penColours(recs).size(), 3u);
    EXPECT_EQ(penColours(recs)[1], QOR::acadRGB(0));
}

TEST_F(SlidePicTest, LevelOneSlideReadsTheByteOrderTheWindowLeft) {
    const Bytes two = level2Header(100, 80);
    Bytes one(two.begin(), two.begin() + 23);
    one[18] = 1;
    one.insert(one.end(), 11, 0);
    // A fresh window reads the high X and Y of a level-1 slide big-endian.
    showBytes(one);
    metafileOf();
    long cx = 0, cy = 0;
    ASSERT_TRUE(pic.getSize(cx, cy));
    EXPECT_EQ(cx, 100 * 256);
    // After a little-endian level-2 slide, the window keeps its test number.
    showBytes(two);
    metafileOf();
    EXPECT_EQ(pic.testWord(), QOR::kSlideTestLittle);
    showBytes(one);
    metafileOf();
    ASSERT_TRUE(pic.getSize(cx, cy));
    EXPECT_EQ(cx, 100);
    EXPECT_EQ(cy, 80);
}

TEST_F(SlidePicTest, WrongLevelDrawsNothingButThePaintFillsTheBackground) {
    Bytes b = testSlide();
    b[18] = 3;
    showBytes(b);
    pic.SetBkColor(4);
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(50, 40), QOR::acadRGB(4));
    EXPECT_EQ(wintest::countOf(metafileOf(), EMR_LINETO), 0);
}

TEST_F(SlidePicTest, SlideIsFittedAndCentredWithItsAspect) {
    showBytes(testSlide());
    pic.MoveWindow(0, 0, 201, 101);
    wintest::WindowPixels px(pic.m_hWnd);
    // W 200, H 100: scale min(2, 1.25) = 1.25; offset x (200 - 125) >> 1 = 37.
    EXPECT_DOUBLE_EQ(pic.scale(), 1.25);
    EXPECT_EQ(pic.offsetX(), 37);
    EXPECT_EQ(pic.offsetY(), 0);
    // Slide (10, 40): x 10 * 1.25 + 37 = 49, y (80 - 40) * 1.25 = 50.
    EXPECT_EQ(px.at(49, 50), QOR::acadRGB(1));
    EXPECT_EQ(px.at(30, 50), QOR::acadRGB(0));
}

TEST_F(SlidePicTest, PaintClipboardMessageIsTakenAndDrawsNothing) {
    showBytes(testSlide());
    EXPECT_EQ(pic.SendMessage(WM_PAINTCLIPBOARD, 0, 0), 0);
}
