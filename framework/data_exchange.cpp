#include "framework/data_exchange.h"

#include "framework/wnd.h"

#include <cwchar>
#include <string>

HWND CDataExchange::PrepareCtrl(int id) {
    HWND control = m_pDlgWnd ? ::GetDlgItem(m_pDlgWnd->m_hWnd, id) : nullptr;
    m_idLastControl = control;
    return control;
}

void CDataExchange::Fail() {
    m_bFailed = TRUE;
    if (m_idLastControl) {
        ::SetFocus(m_idLastControl);
        // An edit's whole text is selected so the user can type over it.
        wchar_t cls[16] = {};
        ::GetClassNameW(m_idLastControl, cls, 16);
        if (_wcsicmp(cls, L"Edit") == 0)
            ::SendMessageW(m_idLastControl, EM_SETSEL, 0, -1);
    }
}

namespace {

std::wstring windowText(HWND hWnd) {
    int n = ::GetWindowTextLengthW(hWnd);
    std::wstring text(static_cast<size_t>(n) + 1, L'\0');
    int got = ::GetWindowTextW(hWnd, &text[0], n + 1);
    text.resize(static_cast<size_t>(got > 0 ? got : 0));
    return text;
}

} // namespace

void DDX_Control(CDataExchange* dx, int id, CWnd& control) {
    if (!dx || dx->m_bFailed || control.m_hWnd)
        return;
    if (!dx->PrepareCtrl(id) || !control.SubclassDlgItem(static_cast<UINT>(id), dx->m_pDlgWnd))
        dx->Fail();
}

void DDX_Text(CDataExchange* dx, int id, CQorString& value) {
    if (!dx || dx->m_bFailed)
        return;
    HWND control = dx->PrepareCtrl(id);
    if (!control) {
        dx->Fail();
        return;
    }
    if (dx->m_bSaveAndValidate)
        value = windowText(control).c_str();
    else
        ::SetWindowTextW(control, value.c_str());
}

void DDX_Text(CDataExchange* dx, int id, int& value) {
    if (!dx || dx->m_bFailed)
        return;
    HWND control = dx->PrepareCtrl(id);
    if (!control) {
        dx->Fail();
        return;
    }
    if (!dx->m_bSaveAndValidate) {
        ::SetWindowTextW(control, std::to_wstring(value).c_str());
        return;
    }
    std::wstring text = windowText(control);
    const wchar_t* p = text.c_str();
    while (*p == L' ' || *p == L'\t')
        ++p;
    wchar_t* end = nullptr;
    errno = 0;
    long long parsed = std::wcstoll(p, &end, 10);
    if (end == p || errno == ERANGE || parsed < INT_MIN || parsed > INT_MAX) {
        dx->Fail();
        return;
    }
    while (*end == L' ' || *end == L'\t')
        ++end;
    if (*end) {
        dx->Fail();
        return;
    }
    value = static_cast<int>(parsed);
}
