// Windows for the view tests: a parent that records the pick messages of its
// picture controls, a message pump that cannot spin on an unvalidated paint, and
// pixels read back from a window.
#pragma once

#include "framework/wnd.h"
#include "tests/framework/test_dib.h"

#include <vector>

constexpr UINT kPictureId = 1200;

struct Posted {
    WPARAM wParam;
    LPARAM lParam;
};

class CTestParent : public CWnd {
public:
    std::vector<Posted> picks;
    LRESULT OnPicked(WPARAM w, LPARAM l) {
        picks.push_back(Posted{w, l});
        return 0;
    }

protected:
    DECLARE_MESSAGE_MAP()
};

// Dispatches what waits in the queue, at most limit messages: a window that leaves
// its paint invalid would otherwise get WM_PAINT for ever.
inline void pumpSome(int limit = 200) {
    MSG msg;
    for (int i = 0; i < limit && PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE); ++i) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

// The client area of a window as it is on the screen now, into dib.
inline void grabClient(HWND hWnd, TestDib& dib) {
    HDC dc = GetDC(hWnd);
    BitBlt(dib.dc, 0, 0, dib.width, dib.height, dc, 0, 0, SRCCOPY);
    ReleaseDC(hWnd, dc);
    GdiFlush();
}

// WM_MOUSEWHEEL carries its point in screen coordinates.
inline LPARAM screenPoint(const CWnd& wnd, int x, int y) {
    POINT p = {x, y};
    ClientToScreen(wnd.m_hWnd, &p);
    return MAKELPARAM(p.x, p.y);
}
