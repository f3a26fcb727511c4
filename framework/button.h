// CButton: push buttons, check boxes and radio buttons.
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"

class QOR_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    // BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    int GetCheck() const;
    void SetCheck(int check);
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT style, BOOL redraw = TRUE);
};
