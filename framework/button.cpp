#include "framework/button.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

int CButton::GetCheck() const {
    return static_cast<int>(SendMessage(BM_GETCHECK));
}

void CButton::SetCheck(int check) {
    SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

UINT CButton::GetButtonStyle() const {
    return static_cast<UINT>(GetWindowLongPtrW(m_hWnd, GWL_STYLE)) & 0xFFFF;
}

void CButton::SetButtonStyle(UINT style, BOOL redraw) {
    SendMessage(BM_SETSTYLE, style, redraw);
}
