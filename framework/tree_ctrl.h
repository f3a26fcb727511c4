// CTreeCtrl: tree view controls.
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"

#include <commctrl.h>

class CImageList;

class QOR_API CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    // The new item, null on failure.
    HTREEITEM InsertItem(LPCWSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    HTREEITEM InsertItem(LPCWSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM after = TVI_LAST);
    BOOL DeleteItem(HTREEITEM item);
    BOOL DeleteAllItems();
    // Copies the item's text to buffer; false when there is no such item.
    BOOL GetItemText(HTREEITEM item, LPWSTR buffer, int count) const;
    BOOL SetItemText(HTREEITEM item, LPCWSTR text);
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data);
    DWORD_PTR GetItemData(HTREEITEM item) const;
    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
    HTREEITEM GetParentItem(HTREEITEM item) const;
    HTREEITEM GetSelectedItem() const;
    BOOL SelectItem(HTREEITEM item);
    // code is TVE_EXPAND, TVE_COLLAPSE or TVE_TOGGLE.
    BOOL Expand(HTREEITEM item, UINT code);
    UINT GetCount() const;
    // which is TVSIL_NORMAL or TVSIL_STATE; the list stays the caller's.
    CImageList* SetImageList(CImageList* list, int which);
    // Sorts the children of sort->hParent with sort->lpfnCompare.
    BOOL SortChildrenCB(LPTVSORTCB sort);
};
