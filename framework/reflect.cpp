// Reflection of control notifications to the control's own object.
#include "framework/wnd.h"

namespace {

// The control a notification of the parent is about, or null.
HWND notifyingChild(HWND parent, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        // Menus and accelerators send no control handle.
        return reinterpret_cast<HWND>(lParam);
    case WM_NOTIFY: {
        const NMHDR* header = reinterpret_cast<const NMHDR*>(lParam);
        return header ? header->hwndFrom : nullptr;
    }
    case WM_DRAWITEM: {
        const DRAWITEMSTRUCT* item = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        return item && item->CtlType != ODT_MENU ? item->hwndItem : nullptr;
    }
    case WM_MEASUREITEM: {
        const MEASUREITEMSTRUCT* item = reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam);
        return item && item->CtlType != ODT_MENU
                   ? ::GetDlgItem(parent, static_cast<int>(item->CtlID))
                   : nullptr;
    }
    default:
        (void)wParam;
        return nullptr;
    }
}

} // namespace

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    return OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, result);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    HWND child = notifyingChild(m_hWnd, message, wParam, lParam);
    if (!child || child == m_hWnd)
        return FALSE;
    CWnd* control = FromHandlePermanent(child);
    return control ? control->OnChildNotify(message, wParam, lParam, result) : FALSE;
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}
