#include "framework/dialog.h"

#include "framework/common_controls.h"
#include "framework/data_exchange.h"
#include "framework/module_state.h"
#include "framework/wnd_create_scope_p.h"

#include <commctrl.h>

namespace {

// The dialog procedure under the framework's window procedure: everything the
// object does not handle goes on to the dialog class's own processing.
INT_PTR CALLBACK dialogProc(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

} // namespace

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
// void OnOK()
ON_COMMAND(IDOK, &CDialog::OnOK)
// void OnCancel()
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(UINT templateId, CWnd* parent) : m_nIDTemplate(templateId), m_pParentWnd(parent) {}

HWND CDialog::createFromTemplate(UINT templateId, HWND parent) {
    AfxInitCommonControls();
    HINSTANCE module = AfxGetResourceHandle();
    HRSRC found =
        ::FindResourceW(module, MAKEINTRESOURCEW(templateId), reinterpret_cast<LPCWSTR>(RT_DIALOG));
    HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    const DLGTEMPLATE* dlgTemplate =
        loaded ? static_cast<const DLGTEMPLATE*>(::LockResource(loaded)) : nullptr;
    if (!dlgTemplate)
        return nullptr;
    HWND made = nullptr;
    {
        CWndCreateScope binding(this);
        made = ::CreateDialogIndirectParamW(module, dlgTemplate, parent, &dialogProc, 0);
    }
    if (!made) {
        // A dialog refused during its creation is gone already.
        if (m_hWnd)
            Detach();
        m_pfnSuper = nullptr;
        return nullptr;
    }
    return m_hWnd == made ? made : nullptr;
}

INT_PTR CDialog::DoModal() {
    if (m_hWnd)
        return -1;
    HWND owner = m_pParentWnd ? m_pParentWnd->m_hWnd : nullptr;
    if (owner)
        owner = ::GetAncestor(owner, GA_ROOT);
    bool disabledOwner = false;
    if (owner && ::IsWindowEnabled(owner)) {
        ::EnableWindow(owner, FALSE);
        disabledOwner = true;
    }
    m_endModal = false;
    m_modalResult = -1;
    if (!createFromTemplate(m_nIDTemplate, owner)) {
        if (disabledOwner)
            ::EnableWindow(owner, TRUE);
        return -1;
    }
    if (!m_endModal && !::IsWindowVisible(m_hWnd))
        ::ShowWindow(m_hWnd, SW_SHOWNORMAL);

    m_inModalLoop = true;
    MSG msg;
    while (!m_endModal && m_hWnd) {
        BOOL got = ::GetMessageW(&msg, nullptr, 0, 0);
        if (got == 0) {
            // WM_QUIT ends the loop and stays for the loop outside.
            ::PostQuitMessage(static_cast<int>(msg.wParam));
            break;
        }
        if (got == -1)
            break;
        if (!PreTranslateInput(&msg)) {
            ::TranslateMessage(&msg);
            ::DispatchMessageW(&msg);
        }
    }
    m_inModalLoop = false;

    HWND dialog = m_hWnd;
    if (dialog)
        ::SetWindowPos(dialog, nullptr, 0, 0, 0, 0,
                       SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    if (disabledOwner) {
        ::EnableWindow(owner, TRUE);
        if (dialog && ::GetActiveWindow() == dialog)
            ::SetActiveWindow(owner);
    }
    if (m_hWnd)
        DestroyWindow();
    return m_modalResult;
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
    if (m_hWnd)
        return FALSE;
    m_nIDTemplate = templateId;
    m_pParentWnd = parent;
    return createFromTemplate(templateId, parent ? parent->m_hWnd : nullptr) != nullptr;
}

void CDialog::EndDialog(int result) {
    if (m_inModalLoop) {
        m_modalResult = result;
        m_endModal = true;
        // Wakes the loop should it wait for a message.
        ::PostMessageW(m_hWnd, WM_NULL, 0, 0);
    } else if (m_hWnd) {
        ::ShowWindow(m_hWnd, SW_HIDE);
    }
}

BOOL CDialog::UpdateData(BOOL saveAndValidate) {
    if (!m_hWnd)
        return FALSE;
    CDataExchange dx(this, saveAndValidate);
    DoDataExchange(&dx);
    return !dx.m_bFailed;
}

void CDialog::DoDataExchange(CDataExchange*) {}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CDialog::PreTranslateInput(MSG* msg) {
    for (HWND h = msg->hwnd; h; h = ::GetParent(h)) {
        CWnd* wnd = FromHandlePermanent(h);
        if (wnd && wnd->PreTranslateMessage(msg))
            return TRUE;
        if (h == m_hWnd)
            break;
    }
    return m_hWnd && ::IsDialogMessageW(m_hWnd, msg);
}

LRESULT CDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        return OnInitDialog();
    return CWnd::WindowProc(message, wParam, lParam);
}

BOOL CDialog::EnableToolTips(BOOL enable) {
    if (!m_hWnd)
        return FALSE;
    if (!m_toolTip || !::IsWindow(m_toolTip)) {
        if (!enable)
            return TRUE;
        AfxInitCommonControls();
        m_toolTip = ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0,
                                      0, 0, m_hWnd, nullptr, AfxGetInstanceHandle(), nullptr);
        if (!m_toolTip)
            return FALSE;
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            TTTOOLINFOW tool = {};
            tool.cbSize = sizeof(tool);
            tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
            tool.hwnd = m_hWnd;
            tool.uId = reinterpret_cast<UINT_PTR>(child);
            tool.lpszText = LPSTR_TEXTCALLBACKW;
            ::SendMessageW(m_toolTip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        }
    }
    ::SendMessageW(m_toolTip, TTM_ACTIVATE, enable, 0);
    return TRUE;
}
