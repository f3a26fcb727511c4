// CDataExchange and the DDX_ functions: moving values between a dialog's
// controls and its members, in DoDataExchange.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/base/qor_string.h"

#include <windows.h>

class CWnd;

// One exchange. A failing DDX_ function calls Fail: the control it prepared gets
// the focus and the exchange is marked failed; every DDX_ function after that does
// nothing, and UpdateData returns false. Nothing is thrown.
class QOR_API CDataExchange {
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate)
        : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog) {}

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
    // The control the last DDX_ function worked on.
    HWND m_idLastControl = nullptr;
    BOOL m_bFailed = FALSE;

    // The dialog's control id, remembered for Fail; null if the dialog has none.
    HWND PrepareCtrl(int id);
    // Marks the exchange failed and gives the focus to the last prepared control.
    void Fail();
};

// Binds control to the dialog's control id (SubclassDlgItem) the first time; fails
// when the dialog has no such control.
QOR_API void DDX_Control(CDataExchange* dx, int id, CWnd& control);
// The control's window text.
QOR_API void DDX_Text(CDataExchange* dx, int id, CQorString& value);
// A decimal integer: on save, surrounding blanks allowed; anything else fails and
// leaves value as it was.
QOR_API void DDX_Text(CDataExchange* dx, int id, int& value);
