// CQorDplistImage under real messages: the paint frame, fitting, wheel zoom about
// the pointer, panning with the middle button and picking with the left button.
#include "views/dplist_image.h"

#include "displaylist/view_setup.h"
#include "tests/displaylist/gdx_test_util.h"
#include "tests/views/view_test_util.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr int kW = 200;
constexpr int kH = 100;
constexpr COLORREF kBack = RGB(0, 128, 255);

// Keeps the calls of one paint after the window has let go of its surface.
class CKeptRecording : public QOR::CQorRecordingSurface {
public:
    explicit CKeptRecording(std::vector<std::string>* out) : m_out(out) {}
    ~CKeptRecording() override { *m_out = text(); }

private:
    std::vector<std::string>* m_out;
};

// Opens the window's state to the tests and records the items of each paint.
class CProbeImage : public CQorDplistImage {
public:
    std::vector<std::string> paintCalls;
    int paints = 0;

    const CQorMatrix3d& zoom() const { return zoomMtx; }
    double baseX() const { return panBaseX; }
    double baseY() const { return panBaseY; }
    CPoint start() const { return panStart; }
    HCURSOR crossCursor() const { return cursorCross; }

protected:
    std::unique_ptr<QOR::CQorDrawSurface> surfaceMake(CDC&) override {
        ++paints;
        return std::make_unique<CKeptRecording>(&paintCalls);
    }
};

CQorGDX docOfBack(COLORREF back) {
    CQorGDX gdx = plainDoc();
    CQorColor c;
    c.setOleColor(back);
    gdx.backColorSet(c);
    return gdx;
}

// Two squares side by side, in groups 0 and 4, filled: (0,0)-(40,40) and (60,0)-(100,40).
// Picking finds an item near its outline (within 5 world units).
CQorGDX twoSquares() {
    CQorGDX gdx = docOfBack(kBack);
    addRegion(gdx, {0, 2}, GDX_FLAG_FILL, region(rect(0, 0, 40, 40)));
    addRegion(gdx, {4}, GDX_FLAG_FILL, region(rect(60, 0, 100, 40)));
    return gdx;
}

// Where the document puts a world point on the device.
CPoint deviceOf(const CQorGDX& gdx, double x, double y) {
    const CQorMatrix3d m =
        gdx.zoomMtxGet() * gdx.viewMtxGet() * gdx.projMtxGet() * gdx.viewDirectionMtxGet();
    const CQorPoint3d d = CQorPoint3d(x, y, 0) * m;
    return CPoint(QOR::devTrunc(d.x), QOR::devTrunc(d.y));
}

class DplistImageTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(createPicture(parent, image, kW, kH));
        pumpSome();
        parent.picks.clear();
    }
    void TearDown() override { destroyPicture(parent, image); }
    void send(UINT msg, WPARAM w, int x, int y) { image.SendMessage(msg, w, MAKELPARAM(x, y)); }
    void click(int x, int y) {
        send(WM_LBUTTONDOWN, MK_LBUTTON, x, y);
        send(WM_LBUTTONUP, 0, x, y);
        pumpSome();
    }
    void wheel(short delta, int x, int y, WORD keys = 0) {
        image.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(keys, static_cast<WORD>(delta)),
                          screenPoint(image, x, y));
    }

    CTestParent parent;
    CProbeImage image;
};

void expectTranslation(const CQorMatrix3d& m, double x, double y) {
    EXPECT_NEAR(m.m[0][3], x, 1e-9);
    EXPECT_NEAR(m.m[1][3], y, 1e-9);
}

} // namespace

// --- The paint frame.

TEST_F(DplistImageTest, WithNoListAttachedTheContentStaysAndThePaintIsNotValidated) {
    HDC dc = GetDC(image.m_hWnd);
    RECT all = {0, 0, kW, kH};
    HBRUSH red = CreateSolidBrush(RGB(255, 0, 0));
    FillRect(dc, &all, red);
    DeleteObject(red);
    ReleaseDC(image.m_hWnd, dc);
    image.InvalidateRect(nullptr, TRUE);
    image.SendMessage(WM_PAINT);
    EXPECT_TRUE(GetUpdateRect(image.m_hWnd, nullptr, FALSE));
    TestDib dib(kW, kH);
    grabClient(image.m_hWnd, dib);
    EXPECT_EQ(dib.ref(5, 5), RGB(255, 0, 0));
    EXPECT_EQ(dib.ref(kW - 1, kH - 1), RGB(255, 0, 0));
    EXPECT_EQ(image.paints, 0);
}

TEST_F(DplistImageTest, AnEmptyListPaintsTheBackgroundColour) {
    CQorGDX gdx = docOfBack(kBack);
    EXPECT_TRUE(image.set_dpList(&gdx));
    EXPECT_TRUE(GetUpdateRect(image.m_hWnd, nullptr, FALSE));
    image.UpdateWindow();
    EXPECT_FALSE(GetUpdateRect(image.m_hWnd, nullptr, FALSE));
    TestDib dib(kW, kH);
    grabClient(image.m_hWnd, dib);
    EXPECT_EQ(dib.ref(0, 0), kBack);
    EXPECT_EQ(dib.ref(kW / 2, kH / 2), kBack);
    EXPECT_EQ(dib.ref(kW - 1, kH - 1), kBack);
    EXPECT_EQ(image.paints, 0); // no items: the painter is not asked
}

TEST_F(DplistImageTest, PaintDrawsTheItemsWithTheDocumentsOwnMatrices) {
    CQorGDX gdx = docOfBack(kBack);
    addLine(gdx, {1}, 0, segment(0, 0, 100, 0));
    image.set_dpList(&gdx);
    image.zoomExtents();
    wheel(120, 50, 40);
    image.UpdateWindow();
    ASSERT_EQ(image.paints, 1);
    const CPoint a = deviceOf(gdx, 0, 0);
    const CPoint b = deviceOf(gdx, 100, 0);
    const std::string move = "move " + std::to_string(a.x) + " " + std::to_string(a.y);
    const std::string line = "line " + std::to_string(b.x) + " " + std::to_string(b.y);
    bool moved = false, lined = false;
    for (const std::string& c : image.paintCalls) {
        moved |= c == move;
        lined |= c == line;
    }
    EXPECT_TRUE(moved) << move;
    EXPECT_TRUE(lined) << line;
}

TEST_F(DplistImageTest, AWindowResizedWithoutAFitKeepsItsViewButNotItsBuffer) {
    CQorGDX gdx = docOfBack(kBack);
    addLine(gdx, {1}, 0, segment(0, 0, 100, 50));
    image.set_dpList(&gdx);
    image.zoomExtents();
    const CQorMatrix3d view = gdx.viewMtxGet();
    image.MoveWindow(0, 0, 300, 150);
    image.UpdateWindow();
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_EQ(gdx.viewMtxGet().m[r][c], view.m[r][c]);
    TestDib dib(300, 150);
    grabClient(image.m_hWnd, dib);
    EXPECT_EQ(dib.ref(299, 149), kBack); // the buffer covers the new size
    EXPECT_EQ(dib.ref(250, 5), kBack);
}

// --- Fitting.

TEST_F(DplistImageTest, ZoomExtentsOnAnEmptyListGivesTheIdentityViewAndAResetZoom) {
    CQorGDX gdx = docOfBack(kBack);
    image.set_dpList(&gdx);
    wheel(120, 10, 10);
    CQorMatrix3d shifted;
    shifted.setToTranslation(CQorVector3d(7, 7, 0));
    gdx.viewMtxSet(shifted);
    image.zoomExtents();
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) {
            const double unit = r == c ? 1.0 : 0.0;
            EXPECT_EQ(gdx.viewMtxGet().m[r][c], unit) << r << "," << c;
            EXPECT_EQ(gdx.zoomMtxGet().m[r][c], unit) << r << "," << c;
            EXPECT_EQ(image.zoom().m[r][c], unit) << r << "," << c;
        }
}

TEST_F(DplistImageTest, ZoomExtentsFitsTheViewBoxIntoTheClientArea) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    image.zoomExtents();
    CQorPoint3d min, max;
    gdx.extMaxViewGet(min, max);
    const CQorMatrix3d expected = getViewMtx(min, max, kH, kW, 0.05);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_EQ(gdx.viewMtxGet().m[r][c], expected.m[r][c]);
    // Box 100 by 40 with margin 5 in 200 by 100: scale 100 / 50 = 2, centred.
    EXPECT_DOUBLE_EQ(gdx.viewMtxGet().m[0][0], 1.8181818181818181);
}

TEST_F(DplistImageTest, SetDpListNeitherFitsNorTouchesTheZoom) {
    CQorGDX first = twoSquares();
    CQorGDX second = twoSquares();
    CQorMatrix3d mark;
    mark.setToTranslation(CQorVector3d(3, 4, 0));
    second.viewMtxSet(mark);
    image.set_dpList(&first);
    wheel(240, 0, 0);
    const double scale = image.zoom().m[0][0];
    EXPECT_FALSE(image.set_dpList(nullptr));
    EXPECT_TRUE(image.set_dpList(&second));
    EXPECT_EQ(image.get_dpList(), &second);
    EXPECT_EQ(image.zoom().m[0][0], scale);
    EXPECT_EQ(second.zoomMtxGet().m[0][0], 1.0); // the list's own zoom until the next step
    EXPECT_EQ(second.viewMtxGet().m[0][3], 3.0);
}

// --- The wheel.

TEST_F(DplistImageTest, WheelForward120ScalesBy1Point2AboutThePointer) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    wheel(120, 50, 40);
    EXPECT_DOUBLE_EQ(image.zoom().m[0][0], 1.2);
    EXPECT_DOUBLE_EQ(image.zoom().m[1][1], 1.2);
    expectTranslation(image.zoom(), -10.0, -8.0); // (1 - 1.2) * (50, 40)
    EXPECT_DOUBLE_EQ(image.baseX(), image.zoom().m[0][3]);
    EXPECT_DOUBLE_EQ(image.baseY(), image.zoom().m[1][3]);
    EXPECT_EQ(gdx.zoomMtxGet().m[0][0], image.zoom().m[0][0]);
    EXPECT_TRUE(GetUpdateRect(image.m_hWnd, nullptr, FALSE));
}

TEST_F(DplistImageTest, WheelBack120ScalesBy1Over1Point2) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    wheel(-120, 50, 40);
    EXPECT_DOUBLE_EQ(image.zoom().m[0][0], 1.0 / 1.2);
    expectTranslation(image.zoom(), (1.0 - 1.0 / 1.2) * 50, (1.0 - 1.0 / 1.2) * 40);
}

TEST_F(DplistImageTest, Wheel240ScalesBy2Point4NotBy1Point2Squared) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    wheel(240, 50, 40);
    EXPECT_DOUBLE_EQ(image.zoom().m[0][0], 2.4);
    expectTranslation(image.zoom(), -70.0, -56.0);
}

TEST_F(DplistImageTest, HighResolutionWheelDelta30ZoomsOutBy0Point3) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    wheel(30, 50, 40);
    EXPECT_DOUBLE_EQ(image.zoom().m[0][0], 0.3);
    expectTranslation(image.zoom(), 35.0, 28.0);
}

TEST_F(DplistImageTest, WheelForwardThenBackRestoresScaleAndTranslation) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    image.zoomExtents();
    wheel(120, 77, 33);
    wheel(-120, 77, 33);
    EXPECT_NEAR(image.zoom().m[0][0], 1.0, 1e-12);
    EXPECT_NEAR(image.zoom().m[1][1], 1.0, 1e-12);
    expectTranslation(image.zoom(), 0.0, 0.0);
}

TEST_F(DplistImageTest, WheelStepsComposeOnTheOutside) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    wheel(120, 0, 0);  // scale 1.2 about the origin
    wheel(240, 10, 0); // then 2.4 about (10, 0): x' = 2.4 * 1.2 x - 14
    EXPECT_NEAR(image.zoom().m[0][0], 2.88, 1e-12);
    expectTranslation(image.zoom(), -14.0, 0.0);
}

TEST_F(DplistImageTest, WheelDuringPanningIsIgnoredAndAnswersZero) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    EXPECT_EQ(
        image.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_MBUTTON, 120), screenPoint(image, 5, 5)), 0);
    EXPECT_EQ(image.zoom().m[0][0], 1.0);
}

TEST_F(DplistImageTest, WheelWithoutAListAnswersOneAndChangesNothing) {
    EXPECT_EQ(image.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), screenPoint(image, 5, 5)), 1);
    EXPECT_EQ(image.zoom().m[0][0], 1.0);
}

TEST_F(DplistImageTest, WheelOfDeltaZeroGuardChangesNothingAndKeepsTheZoomFinite) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    EXPECT_EQ(image.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 0), screenPoint(image, 5, 5)), 1);
    EXPECT_EQ(image.zoom().m[0][0], 1.0);
    EXPECT_TRUE(std::isfinite(gdx.zoomMtxGet().m[0][0]));
}

// --- Panning.

TEST_F(DplistImageTest, MiddleButtonPansWithCaptureAndReleasesIt) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    wheel(120, 50, 40); // translation (-10, -8)
    send(WM_MBUTTONDOWN, MK_MBUTTON, 10, 10);
    EXPECT_EQ(CWnd::GetFocus(), &image);
    EXPECT_EQ(CWnd::GetCapture(), &image);
    EXPECT_EQ(image.start(), CPoint(10, 10));
    EXPECT_DOUBLE_EQ(image.baseX(), -10.0);
    EXPECT_DOUBLE_EQ(image.baseY(), -8.0);
    send(WM_MOUSEMOVE, MK_MBUTTON, 30, 25);
    expectTranslation(image.zoom(), 30 - 10 - 10.0, 25 - 8 - 10.0);
    expectTranslation(gdx.zoomMtxGet(), 10.0, 7.0);
    EXPECT_DOUBLE_EQ(image.zoom().m[0][0], 1.2); // panning keeps the scale
    send(WM_MOUSEMOVE, MK_MBUTTON, 5, 0);
    expectTranslation(image.zoom(), -15.0, -18.0);
    send(WM_MBUTTONUP, 0, 5, 0);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    // Moving without the button does not pan.
    send(WM_MOUSEMOVE, 0, 100, 100);
    expectTranslation(image.zoom(), -15.0, -18.0);
}

TEST_F(DplistImageTest, MovingWithTheMiddleButtonButWithoutFocusDoesNothingButDefault) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    parent.SetFocus();
    HCURSOR arrow = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    SetCursor(arrow);
    image.UpdateWindow();
    send(WM_MOUSEMOVE, MK_MBUTTON, 60, 60);
    expectTranslation(image.zoom(), 0.0, 0.0);
    expectTranslation(gdx.zoomMtxGet(), 0.0, 0.0);
    EXPECT_EQ(GetCursor(), arrow);
    EXPECT_FALSE(GetUpdateRect(image.m_hWnd, nullptr, FALSE)); // no repaint asked
    // With the focus, a move without the button shows the cross.
    image.SetFocus();
    send(WM_MOUSEMOVE, 0, 60, 60);
    EXPECT_EQ(GetCursor(), image.crossCursor());
}

TEST_F(DplistImageTest, MiddleDoubleClickFitsAndRepaints) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    image.UpdateWindow();
    wheel(240, 20, 20);
    image.UpdateWindow();
    send(WM_MBUTTONDOWN, MK_MBUTTON, 20, 20);
    send(WM_MBUTTONUP, 0, 20, 20);
    send(WM_MBUTTONDBLCLK, MK_MBUTTON, 20, 20);
    EXPECT_EQ(image.zoom().m[0][0], 1.0);
    expectTranslation(image.zoom(), 0.0, 0.0);
    CQorPoint3d min, max;
    gdx.extMaxViewGet(min, max);
    EXPECT_EQ(gdx.viewMtxGet().m[0][0], getViewMtx(min, max, kH, kW, 0.05).m[0][0]);
    EXPECT_TRUE(GetUpdateRect(image.m_hWnd, nullptr, FALSE));
}

// --- Picking.

TEST_F(DplistImageTest, ALeftClickOnNothingPostsNoMessage) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    image.zoomExtents();
    const CPoint gap = deviceOf(gdx, 50, 20);
    click(gap.x, gap.y);
    EXPECT_TRUE(parent.picks.empty());
    EXPECT_EQ(CWnd::GetFocus(), &image);
}

TEST_F(DplistImageTest, ALeftClickOnAnItemInGroupZeroPostsZero) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    image.zoomExtents();
    const CPoint p = deviceOf(gdx, 0, 20); // on the left edge of the first
    click(p.x, p.y);
    ASSERT_EQ(parent.picks.size(), 1u);
    EXPECT_EQ(parent.picks[0].wParam, 0u);
    EXPECT_EQ(parent.picks[0].lParam, 0);
}

TEST_F(DplistImageTest, ALeftClickPostsTheTopLevelGroupUnderTheControlsId) {
    CQorGDX gdx = twoSquares();
    image.set_dpList(&gdx);
    image.zoomExtents();
    wheel(120, 100, 50);                     // picking follows the zoom
    const CPoint p = deviceOf(gdx, 100, 20); // on the right edge of the second
    send(WM_LBUTTONDOWN, MK_LBUTTON, p.x, p.y);
    // Posted, not sent: nothing has arrived before the queue runs.
    EXPECT_TRUE(parent.picks.empty());
    MSG msg;
    ASSERT_TRUE(PeekMessageW(&msg, parent.m_hWnd, kPictureId, kPictureId, PM_REMOVE));
    DispatchMessageW(&msg);
    ASSERT_EQ(parent.picks.size(), 1u);
    EXPECT_EQ(parent.picks[0].lParam, 4);
}

TEST_F(DplistImageTest, ALeftClickWithoutAListOnlyTakesTheFocus) {
    parent.SetFocus();
    click(20, 20);
    EXPECT_TRUE(parent.picks.empty());
    EXPECT_EQ(CWnd::GetFocus(), &image);
    EXPECT_EQ(GetCursor(), image.crossCursor());
}
