// CTabCtrl: tab controls.
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"

#include <commctrl.h>

class QOR_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)

public:
    // The index of the new tab, -1 on failure.
    LONG InsertItem(int item, LPCWSTR text);
    BOOL DeleteItem(int item);
    BOOL DeleteAllItems();
    int GetItemCount() const;
    // -1 when no tab is selected.
    int GetCurSel() const;
    // The tab selected before, -1 if none or item is out of range.
    int SetCurSel(int item);
    // Copies the tab's text to buffer; false when there is no such tab.
    BOOL GetItemText(int item, LPWSTR buffer, int count) const;
    BOOL GetItemRect(int item, LPRECT rect) const;
    // larger: the window rectangle for a display rectangle, else the other way.
    void AdjustRect(BOOL larger, LPRECT rect);
};
