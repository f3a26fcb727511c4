#include "framework/tab_ctrl.h"

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

LONG CTabCtrl::InsertItem(int item, LPCWSTR text) {
    TCITEMW tci = {};
    tci.mask = TCIF_TEXT;
    tci.pszText = const_cast<LPWSTR>(text);
    return static_cast<LONG>(
        SendMessage(TCM_INSERTITEMW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&tci)));
}

BOOL CTabCtrl::DeleteItem(int item) {
    return SendMessage(TCM_DELETEITEM, static_cast<WPARAM>(item)) != 0;
}

BOOL CTabCtrl::DeleteAllItems() {
    return SendMessage(TCM_DELETEALLITEMS) != 0;
}

int CTabCtrl::GetItemCount() const {
    return static_cast<int>(SendMessage(TCM_GETITEMCOUNT));
}

int CTabCtrl::GetCurSel() const {
    return static_cast<int>(SendMessage(TCM_GETCURSEL));
}

int CTabCtrl::SetCurSel(int item) {
    return static_cast<int>(SendMessage(TCM_SETCURSEL, static_cast<WPARAM>(item)));
}

BOOL CTabCtrl::GetItemText(int item, LPWSTR buffer, int count) const {
    if (!buffer || count <= 0)
        return FALSE;
    buffer[0] = L'\0';
    TCITEMW tci = {};
    tci.mask = TCIF_TEXT;
    tci.pszText = buffer;
    tci.cchTextMax = count;
    return SendMessage(TCM_GETITEMW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&tci)) !=
           0;
}

BOOL CTabCtrl::GetItemRect(int item, LPRECT rect) const {
    return rect && SendMessage(TCM_GETITEMRECT, static_cast<WPARAM>(item),
                               reinterpret_cast<LPARAM>(rect)) != 0;
}

void CTabCtrl::AdjustRect(BOOL larger, LPRECT rect) {
    if (rect)
        SendMessage(TCM_ADJUSTRECT, larger, reinterpret_cast<LPARAM>(rect));
}
