// CPaintDC: the paint context of a window, from BeginPaint to EndPaint.
#pragma once

#include "framework/dc.h"

class CWnd;

// Made in a WM_PAINT handler: the constructor begins the paint (which validates the
// update region), the destructor ends it. Without a window nothing is begun and
// m_hDC stays null.
class QOR_API CPaintDC : public CDC {
public:
    explicit CPaintDC(CWnd* wnd);
    ~CPaintDC() override;

    HWND m_hWnd = nullptr;
    PAINTSTRUCT m_ps = {};
};
