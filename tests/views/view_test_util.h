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

// A visible top-level parent of 400 by 300 and, in its upper left corner, picture
// as its child of width by height with the id kPictureId. False if either fails.
inline bool createPicture(CTestParent& parent, CWnd& picture, int width, int height) {
    return parent.CreateEx(0, nullptr, L"parent", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                           CRect(0, 0, 400, 300), nullptr, 0) &&
           picture.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &parent,
                          kPictureId);
}

// Dispatches what waits in the queue, at most limit messages: a window that leaves
// its paint invalid would otherwise get WM_PAINT for ever.
inline void pumpSome(int limit = 200) {
    MSG msg;
    for (int i = 0; i < limit && PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE); ++i) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

// Destroys both windows and lets their last messages run.
inline void destroyPicture(CTestParent& parent, CWnd& picture) {
    picture.DestroyWindow();
    parent.DestroyWindow();
    pumpSome();
    CWnd::DeleteTempMap();
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
