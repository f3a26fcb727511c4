#include "framework/list_ctrl.h"

#include "framework/image_list.h"

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

int CListCtrl::InsertColumn(int column, LPCWSTR heading, int format, int width) {
    LVCOLUMNW col = {};
    col.mask = LVCF_TEXT | LVCF_FMT | LVCF_SUBITEM;
    col.fmt = format;
    col.pszText = const_cast<LPWSTR>(heading);
    col.iSubItem = column;
    if (width >= 0) {
        col.mask |= LVCF_WIDTH;
        col.cx = width;
    }
    return static_cast<int>(SendMessage(LVM_INSERTCOLUMNW, static_cast<WPARAM>(column),
                                        reinterpret_cast<LPARAM>(&col)));
}

int CListCtrl::InsertItem(int item, LPCWSTR text) {
    LVITEMW lvi = {};
    lvi.mask = LVIF_TEXT;
    lvi.iItem = item;
    lvi.pszText = const_cast<LPWSTR>(text);
    return static_cast<int>(SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&lvi)));
}

BOOL CListCtrl::SetItemText(int item, int subItem, LPCWSTR text) {
    LVITEMW lvi = {};
    lvi.iSubItem = subItem;
    lvi.pszText = const_cast<LPWSTR>(text);
    return SendMessage(LVM_SETITEMTEXTW, static_cast<WPARAM>(item),
                       reinterpret_cast<LPARAM>(&lvi)) != 0;
}

int CListCtrl::GetItemText(int item, int subItem, LPWSTR buffer, int count) const {
    if (!buffer || count <= 0)
        return 0;
    LVITEMW lvi = {};
    lvi.iSubItem = subItem;
    lvi.pszText = buffer;
    lvi.cchTextMax = count;
    buffer[0] = L'\0';
    return static_cast<int>(
        SendMessage(LVM_GETITEMTEXTW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&lvi)));
}

int CListCtrl::GetItemCount() const {
    return static_cast<int>(SendMessage(LVM_GETITEMCOUNT));
}

BOOL CListCtrl::DeleteItem(int item) {
    return SendMessage(LVM_DELETEITEM, static_cast<WPARAM>(item)) != 0;
}

BOOL CListCtrl::DeleteAllItems() {
    return SendMessage(LVM_DELETEALLITEMS) != 0;
}

BOOL CListCtrl::SetItemData(int item, DWORD_PTR data) {
    LVITEMW lvi = {};
    lvi.mask = LVIF_PARAM;
    lvi.iItem = item;
    lvi.lParam = static_cast<LPARAM>(data);
    return SendMessage(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&lvi)) != 0;
}

DWORD_PTR CListCtrl::GetItemData(int item) const {
    LVITEMW lvi = {};
    lvi.mask = LVIF_PARAM;
    lvi.iItem = item;
    if (!SendMessage(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&lvi)))
        return 0;
    return static_cast<DWORD_PTR>(lvi.lParam);
}

int CListCtrl::GetNextItem(int item, int flags) const {
    return static_cast<int>(SendMessage(LVM_GETNEXTITEM, static_cast<WPARAM>(item), flags));
}

BOOL CListCtrl::SetItemState(int item, UINT state, UINT mask) {
    LVITEMW lvi = {};
    lvi.state = state;
    lvi.stateMask = mask;
    return SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(item),
                       reinterpret_cast<LPARAM>(&lvi)) != 0;
}

UINT CListCtrl::GetItemState(int item, UINT mask) const {
    return static_cast<UINT>(SendMessage(LVM_GETITEMSTATE, static_cast<WPARAM>(item), mask));
}

BOOL CListCtrl::GetItemRect(int item, LPRECT rect, UINT code) const {
    if (!rect)
        return FALSE;
    rect->left = static_cast<LONG>(code);
    return SendMessage(LVM_GETITEMRECT, static_cast<WPARAM>(item),
                       reinterpret_cast<LPARAM>(rect)) != 0;
}

BOOL CListCtrl::GetSubItemRect(int item, int subItem, int area, RECT& rect) const {
    rect.top = subItem;
    rect.left = area;
    return SendMessage(LVM_GETSUBITEMRECT, static_cast<WPARAM>(item),
                       reinterpret_cast<LPARAM>(&rect)) != 0;
}

BOOL CListCtrl::EnsureVisible(int item, BOOL partialOK) {
    return SendMessage(LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), partialOK) != 0;
}

int CListCtrl::GetTopIndex() const {
    return static_cast<int>(SendMessage(LVM_GETTOPINDEX));
}

DWORD CListCtrl::SetExtendedStyle(DWORD exStyle) {
    return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, exStyle));
}

DWORD CListCtrl::GetExtendedStyle() const {
    return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE));
}

CImageList* CListCtrl::SetImageList(CImageList* list, int which) {
    SendMessage(LVM_SETIMAGELIST, static_cast<WPARAM>(which),
                reinterpret_cast<LPARAM>(list ? list->m_hImageList : nullptr));
    return list;
}
