// CEdit: edit controls.
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"

class QOR_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    // The selection as character positions; start == end is the caret.
    void GetSel(int& start, int& end) const;
    // start 0 and end -1 select everything; start -1 removes the selection.
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void ReplaceSel(LPCWSTR text, BOOL canUndo = FALSE);
    BOOL GetModify() const;
    void SetModify(BOOL modified = TRUE);
    // At most chars characters can be typed in; 0 sets the system's maximum.
    void LimitText(int chars = 0);
    UINT GetLimitText() const;
};
