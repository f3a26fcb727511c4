// QOR::CPicture as a child window under Wine: pictures loaded from real files by
// the platform's picture service, painted, zoomed and panned by real messages, and
// copied to the clipboard.
#include "slides/win/picture.h"

#include "win_test_util.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kGreen = RGB(0, 255, 0);

std::wstring tempPath(const wchar_t* prefix) {
    wchar_t dir[MAX_PATH] = {}, path[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, dir);
    GetTempFileNameW(dir, prefix, 0, path);
    return path;
}

void writeFile(const std::wstring& path, const std::vector<unsigned char>& bytes) {
    FILE* f = _wfopen(path.c_str(), L"wb");
    ASSERT_NE(f, nullptr);
    fwrite(bytes.data(), 1, bytes.size(), f);
    fclose(f);
}

void put(std::vector<unsigned char>& b, unsigned v, int bytes) {
    for (int k = 0; k < bytes; ++k)
        b.push_back(static_cast<unsigned char>(v >> (8 * k)));
}

// A 24-bit .bmp file of w by h pixels: the left half red, the right half blue.
std::wstring writeBmp(int w, int h) {
    const int stride = (w * 3 + 3) & ~3;
    std::vector<unsigned char> b;
    put(b, 0x4D42, 2);
    put(b, 54 + stride * h, 4);
    put(b, 0, 4);
    put(b, 54, 4);
    put(b, 40, 4);
    put(b, w, 4);
    put(b, h, 4);
    put(b, 1, 2);
    put(b, 24, 2);
    put(b, 0, 4);
    put(b, stride * h, 4);
    put(b, 3780, 4);
    put(b, 3780, 4);
    put(b, 0, 4);
    put(b, 0, 4);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const bool left = x < w / 2;
            b.push_back(left ? 0 : 255); // blue
            b.push_back(0);              // green
            b.push_back(left ? 255 : 0); // red
        }
        for (int k = w * 3; k < stride; ++k)
            b.push_back(0);
    }
    const std::wstring path = tempPath(L"bmp");
    writeFile(path, b);
    return path;
}

// Counts the message boxes titled "CPicture::LoadImage" of this thread, keeps the
// text of the last one and closes each as soon as it shows.
struct MessageBoxCatcher {
    static int count;
    static std::wstring text;
    static HHOOK hook;
    static LRESULT CALLBACK proc(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HCBT_ACTIVATE) {
            HWND box = reinterpret_cast<HWND>(wParam);
            wchar_t caption[64] = {};
            GetWindowTextW(box, caption, 64);
            if (std::wstring(caption) == L"CPicture::LoadImage") {
                ++count;
                wchar_t body[300] = {};
                GetDlgItemTextW(box, 0xFFFF, body, 300);
                text = body;
            }
            PostMessageW(box, WM_COMMAND, IDOK, 0);
        }
        return CallNextHookEx(hook, code, wParam, lParam);
    }
    MessageBoxCatcher() {
        count = 0;
        text.clear();
        hook = SetWindowsHookExW(WH_CBT, proc, nullptr, GetCurrentThreadId());
    }
    ~MessageBoxCatcher() { UnhookWindowsHookEx(hook); }
};
int MessageBoxCatcher::count = 0;
std::wstring MessageBoxCatcher::text;
HHOOK MessageBoxCatcher::hook = nullptr;

class PictureTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { OleInitialize(nullptr); }
    void SetUp() override {
        ASSERT_TRUE(top.wnd.m_hWnd);
        ASSERT_TRUE(
            pic.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &top.wnd, 100));
        pic.SetBackColor(kGreen);
    }
    void TearDown() override {
        for (const std::wstring& f : files)
            DeleteFileW(f.c_str());
    }
    void load(int w, int h) {
        files.push_back(writeBmp(w, h));
        ASSERT_TRUE(pic.LoadImageW(files.back().c_str()));
        ASSERT_TRUE(pic.hasPicture());
    }
    // A wheel message at the client point (x, y), sent as the system sends it: the
    // point in screen coordinates.
    void wheel(int delta, int x, int y) {
        POINT p = {x, y};
        ClientToScreen(pic.m_hWnd, &p);
        pic.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<short>(delta)),
                        MAKELPARAM(p.x, p.y));
    }

    wintest::TopWindow top;
    QOR::CPicture pic;
    std::vector<std::wstring> files;
};

} // namespace

TEST_F(PictureTest, SmallerPictureIsCentredAtItsNaturalSize) {
    load(40, 20);
    EXPECT_EQ(pic.pixelSize().cx, 40);
    EXPECT_EQ(pic.pixelSize().cy, 20);
    EXPECT_EQ(pic.offset().x, 80);
    EXPECT_EQ(pic.offset().y, 40);
    EXPECT_DOUBLE_EQ(pic.zoom(), 1.0);
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(85, 50), kRed);
    EXPECT_EQ(px.at(115, 50), kBlue);
    EXPECT_EQ(px.at(75, 50), kGreen) << "background left of the picture";
    EXPECT_EQ(px.at(100, 35), kGreen) << "background above the picture";
    EXPECT_EQ(px.at(100, 61), kGreen) << "background below the picture";
}

TEST_F(PictureTest, PictureTwiceAsWideAsTheWindowFitsWithOffsetXZero) {
    load(400, 100);
    EXPECT_EQ(pic.offset().x, 0);
    EXPECT_EQ(pic.offset().y, 25);
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(50, 50), kRed);
    EXPECT_EQ(px.at(150, 50), kBlue);
    EXPECT_EQ(px.at(100, 10), kGreen);
    EXPECT_EQ(px.at(100, 90), kGreen);
}

TEST_F(PictureTest, WheelZoomAtTheWindowsCentreKeepsThePicturesCentreThere) {
    load(40, 20);
    wheel(120, 100, 50);
    EXPECT_DOUBLE_EQ(pic.zoom(), 1.5);
    EXPECT_EQ(pic.offset().x, 70);
    EXPECT_EQ(pic.offset().y, 35);
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(98, 50), kRed);
    EXPECT_EQ(px.at(101, 50), kBlue);
    EXPECT_EQ(px.at(72, 37), kRed) << "corner of the grown picture";
    EXPECT_EQ(px.at(68, 50), kGreen);
}

TEST_F(PictureTest, ResetAfterZoomAndPanReturnsToTheFit) {
    load(40, 20);
    wheel(120, 10, 10);
    pic.SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(10, 10));
    pic.SendMessage(WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(40, 30));
    pic.SendMessage(WM_MBUTTONUP, 0, MAKELPARAM(40, 30));
    ASSERT_NE(pic.offset().x, 80);
    pic.Reset();
    EXPECT_DOUBLE_EQ(pic.zoom(), 1.0);
    EXPECT_EQ(pic.offset().x, 80);
    EXPECT_EQ(pic.offset().y, 40);
    EXPECT_EQ(wintest::WindowPixels(pic.m_hWnd).at(85, 50), kRed);
}

TEST_F(PictureTest, WheelDeltaOfExactlyZeroCountsAsZoomOut) {
    load(40, 20);
    wheel(0, 100, 50);
    EXPECT_DOUBLE_EQ(pic.zoom(), 1.0 / 1.5);
    // (80 - 100) / 1.5 + 100 = 86.67 and (40 - 50) / 1.5 + 50 = 43.3, truncated.
    EXPECT_EQ(pic.offset().x, 86);
    EXPECT_EQ(pic.offset().y, 43);
}

TEST_F(PictureTest, PictureAboveZoom20DoesNotGrowButCanBeMadeSmaller) {
    load(40, 20);
    while (pic.zoom() <= 20.0)
        wheel(120, 100, 50);
    const double most = pic.zoom();
    EXPECT_GT(most, 20.0);
    const QOR::PicturePoint at = pic.offset();
    wheel(120, 100, 50);
    EXPECT_DOUBLE_EQ(pic.zoom(), most);
    EXPECT_EQ(pic.offset().x, at.x);
    wheel(-120, 100, 50);
    EXPECT_DOUBLE_EQ(pic.zoom(), most / 1.5);
}

TEST_F(PictureTest, ZoomBelowOneHalfDoesNotShrinkFurther) {
    load(40, 20);
    while (pic.zoom() >= 0.5)
        wheel(-120, 100, 50);
    const double least = pic.zoom();
    wheel(-120, 100, 50);
    EXPECT_DOUBLE_EQ(pic.zoom(), least);
    wheel(120, 100, 50);
    EXPECT_DOUBLE_EQ(pic.zoom(), least * 1.5);
}

TEST_F(PictureTest, MiddleButtonPansWithTheMouseCaptured) {
    load(40, 20);
    pic.SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(10, 10));
    EXPECT_EQ(GetCapture(), pic.m_hWnd);
    EXPECT_EQ(GetFocus(), pic.m_hWnd);
    pic.SendMessage(WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(30, 15));
    EXPECT_EQ(pic.offset().x, 100);
    EXPECT_EQ(pic.offset().y, 45);
    pic.SendMessage(WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(0, 0));
    EXPECT_EQ(pic.offset().x, 70);
    EXPECT_EQ(pic.offset().y, 30);
    pic.SendMessage(WM_MBUTTONUP, 0, MAKELPARAM(0, 0));
    EXPECT_NE(GetCapture(), pic.m_hWnd);
    // Without the middle button a move pans nothing.
    pic.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(50, 50));
    EXPECT_EQ(pic.offset().x, 70);
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(75, 40), kRed);
    EXPECT_EQ(px.at(105, 40), kBlue);
}

TEST_F(PictureTest, BadFileWithLastErrorZeroShowsNothingAndStillReturnsTrue) {
    load(40, 20);
    MessageBoxCatcher boxes;
    // A name the picture service refuses by its syntax: it fails without an error
    // number of the system.
    SetLastError(0);
    EXPECT_TRUE(pic.LoadImageW(L"z"));
    EXPECT_FALSE(pic.hasPicture());
    EXPECT_EQ(MessageBoxCatcher::count, 0);
    EXPECT_EQ(wintest::WindowPixels(pic.m_hWnd).at(100, 50), kGreen);
}

TEST_F(PictureTest, MissingFileShowsTheSystemsTextAndReturnsTrue) {
    MessageBoxCatcher boxes;
    const std::wstring missing = tempPath(L"mis") + L".none.bmp";
    EXPECT_TRUE(pic.LoadImageW(missing.c_str()));
    EXPECT_FALSE(pic.hasPicture());
    EXPECT_EQ(MessageBoxCatcher::count, 1);
    EXPECT_FALSE(MessageBoxCatcher::text.empty());
}

TEST_F(PictureTest, NullPathReturnsFalseAndKeepsThePicture) {
    load(40, 20);
    EXPECT_FALSE(pic.LoadImageW(nullptr));
    EXPECT_TRUE(pic.hasPicture());
}

TEST_F(PictureTest, CopyPutsThePictureAtItsNaturalSizeOnTheClipboard) {
    ClipboardLock lock;
    load(40, 20);
    wheel(120, 10, 10); // zoom and pan play no part in the copy
    wintest::clearClipboard();
    ASSERT_TRUE(pic.Copy());
    HENHMETAFILE mf = wintest::clipboardMetafile();
    ASSERT_NE(mf, nullptr);
    EXPECT_FALSE(wintest::records(mf).empty());
    ENHMETAHEADER head = {};
    GetEnhMetaFileHeader(mf, sizeof head, &head);
    const RECT all = {head.rclBounds.left, head.rclBounds.top, head.rclBounds.right + 1,
                      head.rclBounds.bottom + 1};
    EXPECT_EQ(all.right - all.left, 40);
    EXPECT_EQ(all.bottom - all.top, 20);
    TestDib dib(40, 20);
    PlayEnhMetaFile(dib.dc, mf, &all);
    EXPECT_EQ(dib.ref(5, 10), kRed);
    EXPECT_EQ(dib.ref(35, 10), kBlue);
    DeleteEnhMetaFile(mf);
}

TEST_F(PictureTest, CopyWithoutPictureIsRefused) {
    EXPECT_FALSE(pic.Copy());
}

TEST_F(PictureTest, TransparentWindowIsFilledWithTheButtonFace) {
    load(40, 20);
    SetWindowLongPtrW(pic.m_hWnd, GWL_EXSTYLE, WS_EX_TRANSPARENT);
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(5, 5), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(px.at(85, 50), kRed);
}

TEST_F(PictureTest, WithoutPictureZoomAndPanShowOnlyTheBackground) {
    wheel(120, 100, 50);
    pic.SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(10, 10));
    pic.SendMessage(WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(30, 15));
    pic.SendMessage(WM_MBUTTONUP, 0, MAKELPARAM(30, 15));
    pic.Reset();
    const wintest::WindowPixels px(pic.m_hWnd);
    EXPECT_EQ(px.at(100, 50), kGreen);
    EXPECT_EQ(px.at(5, 5), kGreen);
}

TEST_F(PictureTest, SubclassedStaticControlNotifiesItsParent) {
    HWND stat = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 120, 50, 50,
                                top.wnd.m_hWnd, reinterpret_cast<HMENU>(7), nullptr, nullptr);
    ASSERT_NE(stat, nullptr);
    EXPECT_FALSE(GetWindowLongPtrW(stat, GWL_STYLE) & SS_NOTIFY);
    QOR::CPicture sub;
    ASSERT_TRUE(sub.SubclassWindow(stat));
    EXPECT_TRUE(GetWindowLongPtrW(stat, GWL_STYLE) & SS_NOTIFY);
}

TEST(PictureClass, IsADynamicClassKnownByNameAndBase) {
    QOR::CPicture pic;
    const CWnd& asWnd = pic;
    EXPECT_EQ(asWnd.GetRuntimeClass(), RUNTIME_CLASS(QOR::CPicture));
    EXPECT_STREQ(asWnd.GetRuntimeClass()->m_lpszClassName, "CPicture");
    EXPECT_EQ(RUNTIME_CLASS(QOR::CPicture)->m_nObjectSize, static_cast<int>(sizeof(QOR::CPicture)));
    EXPECT_TRUE(pic.IsKindOf(RUNTIME_CLASS(QOR::CPicture)));
    EXPECT_TRUE(pic.IsKindOf(RUNTIME_CLASS(CWnd)));
    CWnd plain;
    EXPECT_FALSE(plain.IsKindOf(RUNTIME_CLASS(QOR::CPicture)));
}
