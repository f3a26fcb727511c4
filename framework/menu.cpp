#include "framework/menu.h"

#include "framework/wnd.h"

const CRuntimeClass* CMenu::GetThisClass() {
    static const CRuntimeClass record = {"CMenu", static_cast<int>(sizeof(CMenu)), nullptr};
    return &record;
}

const CRuntimeClass* CMenu::GetRuntimeClass() const {
    return GetThisClass();
}

CMenu::~CMenu() {
    DestroyMenu();
}

BOOL CMenu::CreatePopupMenu() {
    if (m_hMenu)
        return FALSE;
    m_hMenu = ::CreatePopupMenu();
    return m_hMenu != nullptr;
}

BOOL CMenu::AppendMenu(UINT flags, UINT_PTR id, LPCWSTR text) {
    return m_hMenu ? ::AppendMenuW(m_hMenu, flags, id, text) : FALSE;
}

int CMenu::GetMenuItemCount() const {
    return m_hMenu ? ::GetMenuItemCount(m_hMenu) : -1;
}

UINT CMenu::GetMenuItemID(int position) const {
    return m_hMenu ? ::GetMenuItemID(m_hMenu, position) : static_cast<UINT>(-1);
}

int CMenu::GetMenuString(UINT item, LPWSTR buffer, int count, UINT flags) const {
    return m_hMenu ? ::GetMenuStringW(m_hMenu, item, buffer, count, flags) : 0;
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT rect) {
    if (!m_hMenu || !owner)
        return FALSE;
    return ::TrackPopupMenu(m_hMenu, flags, x, y, 0, owner->m_hWnd, rect);
}

BOOL CMenu::DestroyMenu() {
    if (!m_hMenu)
        return FALSE;
    BOOL done = ::DestroyMenu(m_hMenu);
    m_hMenu = nullptr;
    return done;
}

HMENU CMenu::Detach() {
    HMENU menu = m_hMenu;
    m_hMenu = nullptr;
    return menu;
}
