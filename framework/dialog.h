// CDialog: a dialog window made from a template among the resources of the
// resource module (AfxGetResourceHandle), modal in the framework's own loop or
// modeless (pages of a tab).
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/wnd.h"

class CDataExchange;

// Modal: DoModal disables the owner, makes the dialog from its template (bound to
// this object from its first message on) and runs the loop until EndDialog. Each
// message of the loop is offered to PreTranslateMessage of the window it is for,
// then of each parent up to the dialog, then to IsDialogMessage (Tab, Enter,
// Escape, mnemonics), and only then translated and dispatched. At the end the
// owner is enabled again, the dialog destroyed and EndDialog's result returned.
//
// WM_INITDIALOG calls OnInitDialog, whose default exchanges data into the controls
// (UpdateData(FALSE)) and answers TRUE (the first control gets the focus). IDOK
// calls OnOK (UpdateData(TRUE), then EndDialog(IDOK) when that succeeded), IDCANCEL
// OnCancel (EndDialog(IDCANCEL)).
class QOR_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog() = default;
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);

    // IDOK, IDCANCEL or what EndDialog was given; -1 when the template could not
    // be found or the dialog not be made.
    virtual INT_PTR DoModal();
    // Modeless, as a child or popup of parent; false when it could not be made.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    // Ends the modal loop with result; a modeless dialog is only hidden.
    void EndDialog(int result);

    // Moves data between the controls and the members (save: from the controls).
    // False when an exchange failed: the failing control then has the focus.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* msg) override;

    UINT m_nIDHelp = 0;
    UINT m_nIDTemplate = 0;
    CWnd* m_pParentWnd = nullptr;

    // Tool tips for the dialog's controls. Each control that exists now becomes a
    // tool whose text the tip control asks for when it is shown: a WM_NOTIFY with
    // TTN_NEEDTEXTW to the dialog, whose idFrom is the control's window handle
    // (TTF_IDISHWND set in the NMTTDISPINFOW), answered through ON_NOTIFY_EX_RANGE.
    // False when the tip control could not be made; disabling keeps the control
    // but deactivates it.
    BOOL EnableToolTips(BOOL enable = TRUE);
    // The tip control, null before EnableToolTips.
    HWND GetToolTipHwnd() const { return m_toolTip; }

    // True while DoModal's loop runs.
    bool IsInModalLoop() const { return m_inModalLoop; }

protected:
    virtual void OnOK();
    virtual void OnCancel();
    virtual void DoDataExchange(CDataExchange* dx);

    // Offers msg to PreTranslateMessage of its window and each parent up to this
    // dialog, then to IsDialogMessage; true when one of them took it.
    BOOL PreTranslateInput(MSG* msg);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Handlers of the message-map macros; each gives default processing.
    void OnSysCommand(UINT, LPARAM) { Default(); }
    BOOL OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }
    void OnShowWindow(BOOL, UINT) { Default(); }

    DECLARE_MESSAGE_MAP()

private:
    HWND createFromTemplate(UINT templateId, HWND parent);
    HWND m_toolTip = nullptr;
    bool m_inModalLoop = false;
    bool m_endModal = false;
    int m_modalResult = -1;
};
