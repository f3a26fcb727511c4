// CWnd: binding, message maps, default processing, subclassing, focus, capture and
// the handle map, with real windows and real messages under the test's own thread.
#include "framework/paint_dc.h"
#include "framework/wnd.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr UINT kPickMsg = WM_APP + 7;
constexpr UINT kChildId = 1234;

// Runs every message waiting for this thread.
void pump() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

class CBaseTestWnd : public CWnd {
public:
    std::vector<std::string> log;
    UINT lastFlags = 0;
    CPoint lastPoint;
    LRESULT appResult = 55;
    bool throwOnMove = false;
    int postNcDestroy = 0;
    std::vector<UINT> early; // the first messages seen

    void OnLButtonDown(UINT flags, CPoint point) {
        log.push_back("base lbuttondown");
        lastFlags = flags;
        lastPoint = point;
    }
    void OnLButtonUp(UINT flags, CPoint point) {
        log.push_back("base lbuttonup");
        CWnd::OnLButtonUp(flags, point);
    }
    void OnMouseMove(UINT, CPoint) {
        if (throwOnMove)
            throw 1;
        log.push_back("move");
    }
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point) {
        log.push_back("wheel " + std::to_string(delta));
        lastFlags = flags;
        lastPoint = point;
        return TRUE;
    }
    LRESULT OnApp(WPARAM w, LPARAM l) {
        log.push_back("app " + std::to_string(w) + " " + std::to_string(l));
        return appResult;
    }
    void OnOk() { log.push_back("command ok"); }
    void OnPaint() {
        CPaintDC dc(this);
        log.push_back(dc.m_hDC ? "paint" : "paint without dc");
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (early.size() < 3)
            early.push_back(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { ++postNcDestroy; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBaseTestWnd, CWnd)
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_MESSAGE(kPickMsg, &CBaseTestWnd::OnApp)
ON_COMMAND(IDOK, &CBaseTestWnd::OnOk)
END_MESSAGE_MAP()

// Replaces one handler of its base and adds one; the rest comes from the base's map.
class CDerivedTestWnd : public CBaseTestWnd {
public:
    void OnLButtonDown(UINT, CPoint) { log.push_back("derived lbuttondown"); }
    void OnMButtonDown(UINT, CPoint) { log.push_back("derived mbuttondown"); }

protected:
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDerivedTestWnd, CBaseTestWnd)
ON_WM_LBUTTONDOWN()
ON_WM_MBUTTONDOWN()
END_MESSAGE_MAP()

// Counts the characters that pass through before default processing.
class CCharCounter : public CWnd {
public:
    int chars = 0;
    LRESULT OnChar(WPARAM, LPARAM) {
        ++chars;
        return Default();
    }

protected:
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCharCounter, CWnd)
ON_MESSAGE(WM_CHAR, &CCharCounter::OnChar)
END_MESSAGE_MAP()

class WndTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(top.CreateEx(0, nullptr, L"top", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                 CRect(0, 0, 300, 200), nullptr, 0));
        ASSERT_TRUE(child.Create(nullptr, L"child", WS_CHILD | WS_VISIBLE, CRect(10, 20, 110, 70),
                                 &top, kChildId));
        pump();
        // What showing the windows sent (paints, moves) is no part of the tests.
        top.log.clear();
        child.log.clear();
    }
    void TearDown() override {
        child.DestroyWindow();
        top.DestroyWindow();
        pump();
        CWnd::DeleteTempMap();
    }
    CBaseTestWnd top;
    CDerivedTestWnd child;
};

} // namespace

TEST_F(WndTest, CreatedWindowsAreInTheHandleMap) {
    EXPECT_EQ(CWnd::FromHandle(top.m_hWnd), &top);
    EXPECT_EQ(CWnd::FromHandlePermanent(child.m_hWnd), &child);
    EXPECT_EQ(child.GetParent(), &top);
    EXPECT_EQ(top.GetDlgItem(kChildId), &child);
    EXPECT_EQ(child.GetDlgCtrlID(), static_cast<int>(kChildId));
}

TEST_F(WndTest, WindowIsBoundFromItsFirstMessage) {
    ASSERT_FALSE(child.early.empty());
    // Creation starts with WM_GETMINMAXINFO for an overlapped window and WM_NCCREATE
    // for a child; both reach the object.
    EXPECT_EQ(child.early[0], static_cast<UINT>(WM_NCCREATE));
    EXPECT_TRUE(top.early[0] == WM_GETMINMAXINFO || top.early[0] == WM_NCCREATE);
}

TEST_F(WndTest, ChildClientRectHasTheCreatedSize) {
    CRect r;
    child.GetClientRect(&r);
    EXPECT_EQ(r, CRect(0, 0, 100, 50));
}

TEST_F(WndTest, MouseMessageUnpacksFlagsAndSignedPoint) {
    child.SendMessage(WM_LBUTTONUP, MK_SHIFT, MAKELPARAM(-3, 40));
    ASSERT_EQ(child.log.size(), 1u);
    EXPECT_EQ(child.log[0], "base lbuttonup");
    top.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_MBUTTON, MAKELPARAM(-5, 7));
    EXPECT_EQ(top.lastFlags, static_cast<UINT>(MK_LBUTTON | MK_MBUTTON));
    EXPECT_EQ(top.lastPoint, CPoint(-5, 7));
}

TEST_F(WndTest, DerivedMapEntryWinsAndBaseEntriesStillServe) {
    child.SendMessage(WM_LBUTTONDOWN, 0, 0);
    child.SendMessage(WM_MBUTTONDOWN, 0, 0);
    child.SendMessage(WM_MOUSEMOVE, 0, 0);
    std::vector<std::string> expected = {"derived lbuttondown", "derived mbuttondown", "move"};
    EXPECT_EQ(child.log, expected);
}

TEST_F(WndTest, WheelUnpacksKeysDeltaAndScreenPoint) {
    top.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-240)),
                    MAKELPARAM(500, 600));
    ASSERT_EQ(top.log.size(), 1u);
    EXPECT_EQ(top.log[0], "wheel -240");
    EXPECT_EQ(top.lastFlags, static_cast<UINT>(MK_CONTROL));
    EXPECT_EQ(top.lastPoint, CPoint(500, 600));
}

TEST_F(WndTest, OnMessageEntryGetsParametersAndGivesItsResult) {
    EXPECT_EQ(top.SendMessage(kPickMsg, 0, 3), 55);
    ASSERT_EQ(top.log.size(), 1u);
    EXPECT_EQ(top.log[0], "app 0 3");
}

TEST_F(WndTest, PostedMessageArrivesThroughTheQueue) {
    EXPECT_TRUE(top.PostMessage(kPickMsg, 1, 2));
    EXPECT_TRUE(top.log.empty());
    pump();
    ASSERT_EQ(top.log.size(), 1u);
    EXPECT_EQ(top.log[0], "app 1 2");
}

TEST_F(WndTest, CommandEntryMatchesIdAndCode) {
    top.SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    top.SendMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    top.SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, EN_CHANGE), 0);
    std::vector<std::string> expected = {"command ok"};
    EXPECT_EQ(top.log, expected);
}

TEST_F(WndTest, UnhandledMessageGetsDefaultProcessing) {
    top.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"renamed"));
    wchar_t text[32] = {};
    top.GetWindowText(text, 32);
    EXPECT_STREQ(text, L"renamed");
}

TEST_F(WndTest, ExceptionInAHandlerDoesNotLeaveTheWindowProcedure) {
    top.throwOnMove = true;
    EXPECT_EQ(top.SendMessage(WM_MOUSEMOVE, 0, 0), 0);
    top.throwOnMove = false;
    top.SendMessage(WM_MOUSEMOVE, 0, 0);
    ASSERT_EQ(top.log.size(), 1u);
    EXPECT_EQ(top.log[0], "move");
}

TEST_F(WndTest, PaintDcValidatesTheUpdateRegion) {
    top.Invalidate();
    EXPECT_TRUE(GetUpdateRect(top.m_hWnd, nullptr, FALSE));
    top.UpdateWindow();
    ASSERT_FALSE(top.log.empty());
    EXPECT_EQ(top.log.back(), "paint");
    EXPECT_FALSE(GetUpdateRect(top.m_hWnd, nullptr, FALSE));
}

TEST_F(WndTest, InvalidateRectMarksOnlyThatPart) {
    top.UpdateWindow();
    CRect part(5, 6, 25, 16);
    top.InvalidateRect(&part, FALSE);
    RECT update = {};
    ASSERT_TRUE(GetUpdateRect(top.m_hWnd, &update, FALSE));
    EXPECT_EQ(CRect(update), part);
}

TEST_F(WndTest, CaptureGoesToTheWindowAndBack) {
    child.SetCapture();
    EXPECT_EQ(CWnd::GetCapture(), &child);
    ReleaseCapture();
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
}

TEST_F(WndTest, FocusGoesToTheChild) {
    top.SetFocus();
    CWnd* former = child.SetFocus();
    EXPECT_EQ(former, &top);
    EXPECT_EQ(CWnd::GetFocus(), &child);
}

TEST_F(WndTest, ScreenToClientIsTheInverseOfClientToScreen) {
    CPoint p(3, 4);
    child.ClientToScreen(&p);
    child.ScreenToClient(&p);
    EXPECT_EQ(p, CPoint(3, 4));
    CPoint origin(0, 0);
    child.ClientToScreen(&origin);
    CPoint topOrigin(0, 0);
    top.ClientToScreen(&topOrigin);
    EXPECT_EQ(origin - topOrigin, CPoint(10, 20));
}

TEST_F(WndTest, DestroyedWindowIsUnboundAndToldSo) {
    HWND h = child.m_hWnd;
    EXPECT_TRUE(child.DestroyWindow());
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(child.postNcDestroy, 1);
    EXPECT_EQ(CWnd::FromHandlePermanent(h), nullptr);
}

TEST_F(WndTest, ObjectGoingDestroysItsWindow) {
    HWND h = nullptr;
    {
        CWnd inner;
        ASSERT_TRUE(inner.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &top, 9));
        h = inner.m_hWnd;
    }
    EXPECT_FALSE(IsWindow(h));
}

TEST_F(WndTest, ChildWithoutParentIsRefused) {
    CWnd orphan;
    EXPECT_FALSE(orphan.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), nullptr, 1));
    EXPECT_EQ(orphan.m_hWnd, nullptr);
    CWnd badClass;
    EXPECT_FALSE(
        badClass.Create(L"NoSuchClassAnywhere", L"", WS_CHILD, CRect(0, 0, 5, 5), &top, 1));
    EXPECT_EQ(badClass.m_hWnd, nullptr);
}

TEST_F(WndTest, ForeignWindowGetsOneTemporaryObject) {
    HWND raw = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, top.m_hWnd,
                               reinterpret_cast<HMENU>(77), nullptr, nullptr);
    ASSERT_NE(raw, nullptr);
    CWnd* a = CWnd::FromHandle(raw);
    EXPECT_EQ(top.GetDlgItem(77), a);
    EXPECT_EQ(CWnd::FromHandlePermanent(raw), nullptr);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(IsWindow(raw)); // temporaries never destroy
    DestroyWindow(raw);
}

TEST_F(WndTest, SubclassedControlRoutesThroughTheMapAndKeepsItsOwnBehaviour) {
    HWND edit = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 80, 20, top.m_hWnd,
                                reinterpret_cast<HMENU>(55), nullptr, nullptr);
    ASSERT_NE(edit, nullptr);
    WNDPROC original = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(edit, GWLP_WNDPROC));
    CCharCounter counter;
    ASSERT_TRUE(counter.SubclassDlgItem(55, &top));
    EXPECT_EQ(top.GetDlgItem(55), &counter);
    counter.SendMessage(WM_CHAR, L'a', 1);
    counter.SendMessage(WM_CHAR, L'b', 1);
    EXPECT_EQ(counter.chars, 2);
    wchar_t text[8] = {};
    counter.GetWindowText(text, 8);
    EXPECT_STREQ(text, L"ab"); // the edit control's own procedure did the typing

    EXPECT_EQ(counter.UnsubclassWindow(), edit);
    EXPECT_EQ(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(edit, GWLP_WNDPROC)), original);
    SendMessageW(edit, WM_CHAR, L'c', 1);
    EXPECT_EQ(counter.chars, 2);
    DestroyWindow(edit);
}

TEST_F(WndTest, SubclassOfAMissingItemFails) {
    CWnd w;
    EXPECT_FALSE(w.SubclassDlgItem(4711, &top));
    EXPECT_FALSE(w.SubclassDlgItem(1, nullptr));
    EXPECT_FALSE(w.SubclassWindow(top.m_hWnd)); // bound to another object already
}

// --- Temporary wrappers and the depth of dispatch.

namespace {

constexpr UINT kGrabMsg = WM_APP + 20;  // takes a temporary of control 77
constexpr UINT kOuterMsg = WM_APP + 21; // takes one of 77, then sends kInnerMsg
constexpr UINT kInnerMsg = WM_APP + 22; // takes one of control 78
constexpr UINT kParentMsg = WM_APP + 23;

// Takes wrappers inside its handlers and notes what the map holds meanwhile.
class CTempProbe : public CWnd {
public:
    CWnd* grabbed = nullptr;
    CWnd* parentSeen = nullptr;
    int countInside = -1;
    int countAfterNested = -1;
    bool outerStillSame = false;
    HWND outerHandleAfterNested = nullptr;

    LRESULT OnGrab(WPARAM, LPARAM) {
        grabbed = GetDlgItem(77);
        countInside = CWnd::TempMapSize();
        return 0;
    }
    LRESULT OnOuter(WPARAM, LPARAM) {
        CWnd* outer = GetDlgItem(77);
        SendMessage(kInnerMsg);
        countAfterNested = CWnd::TempMapSize();
        outerStillSame = GetDlgItem(77) == outer;
        outerHandleAfterNested = outer->m_hWnd;
        return 0;
    }
    LRESULT OnInner(WPARAM, LPARAM) {
        GetDlgItem(78);
        return 0;
    }
    LRESULT OnParent(WPARAM, LPARAM) {
        parentSeen = GetParent();
        return 0;
    }

protected:
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTempProbe, CWnd)
ON_MESSAGE(kGrabMsg, &CTempProbe::OnGrab)
ON_MESSAGE(kOuterMsg, &CTempProbe::OnOuter)
ON_MESSAGE(kInnerMsg, &CTempProbe::OnInner)
ON_MESSAGE(kParentMsg, &CTempProbe::OnParent)
END_MESSAGE_MAP()

// A probe inside the test's top window with two controls nobody wraps, 77 and 78.
class Wnd : public WndTest {
protected:
    void SetUp() override {
        WndTest::SetUp();
        ASSERT_TRUE(probe.Create(nullptr, L"probe", WS_CHILD, CRect(0, 0, 50, 50), &top, kProbeId));
        for (int id : {77, 78})
            ASSERT_NE(CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, probe.m_hWnd,
                                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr,
                                      nullptr),
                      nullptr);
        CWnd::DeleteTempMap();
    }
    void TearDown() override {
        probe.DestroyWindow();
        WndTest::TearDown();
    }
    static constexpr UINT kProbeId = 99;
    CTempProbe probe;
};

} // namespace

TEST_F(Wnd, TemporaryWrappersAreFreedWhenTheOutermostDispatchReturns) {
    probe.SendMessage(kGrabMsg);
    ASSERT_NE(probe.grabbed, nullptr);
    EXPECT_EQ(probe.countInside, 1);
    EXPECT_EQ(CWnd::TempMapSize(), 0);
    // The handle itself lives on; only its wrapper went.
    EXPECT_TRUE(IsWindow(GetDlgItem(probe.m_hWnd, 77)));
}

TEST_F(Wnd, TemporaryWrappersAreFreedAfterAQueuedMessageIsDispatched) {
    probe.PostMessage(kGrabMsg);
    pump();
    EXPECT_EQ(probe.countInside, 1);
    EXPECT_EQ(CWnd::TempMapSize(), 0);
}

TEST_F(Wnd, PermanentWrappersStayWhenTheOutermostDispatchReturns) {
    probe.SendMessage(kParentMsg);
    EXPECT_EQ(probe.parentSeen, &top);
    EXPECT_EQ(CWnd::TempMapSize(), 0);
    EXPECT_EQ(CWnd::FromHandlePermanent(top.m_hWnd), &top);
    EXPECT_EQ(CWnd::FromHandlePermanent(probe.m_hWnd), &probe);
    EXPECT_TRUE(IsWindow(top.m_hWnd));
    EXPECT_EQ(top.GetDlgItem(static_cast<int>(kProbeId)), &probe);
}

TEST_F(Wnd, ANestedDispatchDoesNotFreeTheOuterHandlersTemporaries) {
    probe.SendMessage(kOuterMsg);
    EXPECT_EQ(probe.countAfterNested, 2); // 77 of the outer handler, 78 of the inner one
    EXPECT_TRUE(probe.outerStillSame);
    EXPECT_EQ(probe.outerHandleAfterNested, GetDlgItem(probe.m_hWnd, 77));
    EXPECT_EQ(CWnd::TempMapSize(), 0);
}

TEST_F(Wnd, ATemporaryTakenOutsideAnyMessageLivesUntilTheNextDispatchReturns) {
    CWnd* outside = probe.GetDlgItem(77);
    ASSERT_NE(outside, nullptr);
    EXPECT_EQ(CWnd::TempMapSize(), 1);
    EXPECT_EQ(probe.GetDlgItem(77), outside);
    probe.SendMessage(kParentMsg);
    EXPECT_EQ(CWnd::TempMapSize(), 0);
}
