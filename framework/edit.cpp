#include "framework/edit.h"

IMPLEMENT_DYNAMIC(CEdit, CWnd)

void CEdit::GetSel(int& start, int& end) const {
    DWORD s = 0;
    DWORD e = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&s), reinterpret_cast<LPARAM>(&e));
    start = static_cast<int>(s);
    end = static_cast<int>(e);
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
    SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
    if (!noScroll)
        SendMessage(EM_SCROLLCARET);
}

void CEdit::ReplaceSel(LPCWSTR text, BOOL canUndo) {
    SendMessage(EM_REPLACESEL, canUndo, reinterpret_cast<LPARAM>(text));
}

BOOL CEdit::GetModify() const {
    return SendMessage(EM_GETMODIFY) != 0;
}

void CEdit::SetModify(BOOL modified) {
    SendMessage(EM_SETMODIFY, modified);
}

void CEdit::LimitText(int chars) {
    SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(chars));
}

UINT CEdit::GetLimitText() const {
    return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT));
}
