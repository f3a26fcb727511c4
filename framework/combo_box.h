// CComboBox: combo boxes. An owner-drawn one draws and measures its items in the
// virtual DrawItem and MeasureItem, reached by reflection from the parent.
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"

class QOR_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    // The index of the new item; CB_ERR or CB_ERRSPACE on failure.
    int AddString(LPCWSTR text);
    int InsertString(int index, LPCWSTR text);
    // The number of items left.
    int DeleteString(int index);
    void ResetContent();
    int GetCount() const;
    // CB_ERR when nothing is selected.
    int GetCurSel() const;
    // -1 clears the selection; CB_ERR when index is out of range.
    int SetCurSel(int index);
    // Copies item index's text to buffer (which must hold GetLBTextLen + 1); the
    // length, or CB_ERR.
    int GetLBText(int index, LPWSTR buffer) const;
    int GetLBTextLen(int index) const;
    // The item whose whole text equals text (case ignored) after start; CB_ERR if none.
    int FindStringExact(int start, LPCWSTR text) const;
    int SetItemData(int index, DWORD_PTR data);
    // CB_ERR for an index out of range.
    DWORD_PTR GetItemData(int index) const;
    void ShowDropDown(BOOL show = TRUE);
    BOOL GetDroppedState() const;

    virtual void DrawItem(LPDRAWITEMSTRUCT item);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT item);

    DECLARE_MESSAGE_MAP()
};
