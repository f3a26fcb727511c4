// CListBox: list boxes. An owner-drawn one draws and measures its items in the
// virtual DrawItem and MeasureItem, reached by reflection from the parent.
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"

class QOR_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    // The index of the new item; LB_ERR or LB_ERRSPACE on failure.
    int AddString(LPCWSTR text);
    int InsertString(int index, LPCWSTR text);
    int DeleteString(int index);
    void ResetContent();
    int GetCount() const;
    // LB_ERR when nothing is selected (or the list allows several selections).
    int GetCurSel() const;
    int SetCurSel(int index);
    // Copies item index's text to buffer (GetTextLen + 1 characters); the length or LB_ERR.
    int GetText(int index, LPWSTR buffer) const;
    int GetTextLen(int index) const;
    int SetItemData(int index, DWORD_PTR data);
    DWORD_PTR GetItemData(int index) const;

    virtual void DrawItem(LPDRAWITEMSTRUCT item);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT item);

    DECLARE_MESSAGE_MAP()
};
