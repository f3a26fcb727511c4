#include "framework/paint_dc.h"

#include "framework/wnd.h"

CPaintDC::CPaintDC(CWnd* wnd) {
    if (!wnd || !wnd->m_hWnd)
        return;
    m_hWnd = wnd->m_hWnd;
    Attach(::BeginPaint(m_hWnd, &m_ps));
}

CPaintDC::~CPaintDC() {
    if (!m_hWnd)
        return;
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}
