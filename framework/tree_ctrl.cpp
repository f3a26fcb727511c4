#include "framework/tree_ctrl.h"

#include "framework/image_list.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

namespace {
HTREEITEM nextItem(const CTreeCtrl& tree, HTREEITEM item, UINT code) {
    return reinterpret_cast<HTREEITEM>(
        tree.SendMessage(TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
}
} // namespace

HTREEITEM CTreeCtrl::InsertItem(LPCWSTR text, HTREEITEM parent, HTREEITEM after) {
    TVINSERTSTRUCTW ins = {};
    ins.hParent = parent;
    ins.hInsertAfter = after;
    ins.item.mask = TVIF_TEXT;
    ins.item.pszText = const_cast<LPWSTR>(text);
    return reinterpret_cast<HTREEITEM>(
        SendMessage(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&ins)));
}

HTREEITEM CTreeCtrl::InsertItem(LPCWSTR text, int image, int selectedImage, HTREEITEM parent,
                                HTREEITEM after) {
    TVINSERTSTRUCTW ins = {};
    ins.hParent = parent;
    ins.hInsertAfter = after;
    ins.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    ins.item.pszText = const_cast<LPWSTR>(text);
    ins.item.iImage = image;
    ins.item.iSelectedImage = selectedImage;
    return reinterpret_cast<HTREEITEM>(
        SendMessage(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&ins)));
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM item) {
    return SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CTreeCtrl::DeleteAllItems() {
    return SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)) != 0;
}

BOOL CTreeCtrl::GetItemText(HTREEITEM item, LPWSTR buffer, int count) const {
    if (!buffer || count <= 0)
        return FALSE;
    buffer[0] = L'\0';
    TVITEMW tvi = {};
    tvi.mask = TVIF_TEXT;
    tvi.hItem = item;
    tvi.pszText = buffer;
    tvi.cchTextMax = count;
    return SendMessage(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&tvi)) != 0;
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCWSTR text) {
    TVITEMW tvi = {};
    tvi.mask = TVIF_TEXT;
    tvi.hItem = item;
    tvi.pszText = const_cast<LPWSTR>(text);
    return SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&tvi)) != 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data) {
    TVITEMW tvi = {};
    tvi.mask = TVIF_PARAM;
    tvi.hItem = item;
    tvi.lParam = static_cast<LPARAM>(data);
    return SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&tvi)) != 0;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const {
    TVITEMW tvi = {};
    tvi.mask = TVIF_PARAM;
    tvi.hItem = item;
    if (!SendMessage(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&tvi)))
        return 0;
    return static_cast<DWORD_PTR>(tvi.lParam);
}

HTREEITEM CTreeCtrl::GetRootItem() const {
    return nextItem(*this, nullptr, TVGN_ROOT);
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const {
    return nextItem(*this, item, TVGN_CHILD);
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const {
    return nextItem(*this, item, TVGN_NEXT);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const {
    return nextItem(*this, item, TVGN_PARENT);
}

HTREEITEM CTreeCtrl::GetSelectedItem() const {
    return nextItem(*this, nullptr, TVGN_CARET);
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item) {
    return SendMessage(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code) {
    return SendMessage(TVM_EXPAND, code, reinterpret_cast<LPARAM>(item)) != 0;
}

UINT CTreeCtrl::GetCount() const {
    return static_cast<UINT>(SendMessage(TVM_GETCOUNT));
}

CImageList* CTreeCtrl::SetImageList(CImageList* list, int which) {
    SendMessage(TVM_SETIMAGELIST, static_cast<WPARAM>(which),
                reinterpret_cast<LPARAM>(list ? list->m_hImageList : nullptr));
    return list;
}

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB sort) {
    return SendMessage(TVM_SORTCHILDRENCB, 0, reinterpret_cast<LPARAM>(sort)) != 0;
}
