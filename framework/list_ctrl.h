// CListCtrl: list view controls (report view with columns).
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"

#include <commctrl.h>

class CImageList;

class QOR_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)

public:
    // The index of the new column, -1 on failure; format is LVCFMT_LEFT and friends.
    int InsertColumn(int column, LPCWSTR heading, int format = LVCFMT_LEFT, int width = -1);
    // The index of the new item, -1 on failure.
    int InsertItem(int item, LPCWSTR text);
    BOOL SetItemText(int item, int subItem, LPCWSTR text);
    // Copies the text to buffer; its length.
    int GetItemText(int item, int subItem, LPWSTR buffer, int count) const;
    int GetItemCount() const;
    BOOL DeleteItem(int item);
    BOOL DeleteAllItems();
    BOOL SetItemData(int item, DWORD_PTR data);
    DWORD_PTR GetItemData(int item) const;
    // The next item after item (-1: from the start) with the LVNI_ flags, or -1.
    int GetNextItem(int item, int flags) const;
    BOOL SetItemState(int item, UINT state, UINT mask);
    UINT GetItemState(int item, UINT mask) const;
    // code is LVIR_BOUNDS, LVIR_ICON, LVIR_LABEL or LVIR_SELECTBOUNDS.
    BOOL GetItemRect(int item, LPRECT rect, UINT code) const;
    // The rectangle of one column of an item (subItem 0: the whole item).
    BOOL GetSubItemRect(int item, int subItem, int area, RECT& rect) const;
    BOOL EnsureVisible(int item, BOOL partialOK);
    int GetTopIndex() const;
    DWORD SetExtendedStyle(DWORD exStyle);
    DWORD GetExtendedStyle() const;
    // The list keeps using the image list; it stays the caller's.
    CImageList* SetImageList(CImageList* list, int which);
};
