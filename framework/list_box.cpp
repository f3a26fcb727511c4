#include "framework/list_box.h"

IMPLEMENT_DYNAMIC(CListBox, CWnd)

BEGIN_MESSAGE_MAP(CListBox, CWnd)
ON_WM_DRAWITEM_REFLECT()
ON_WM_MEASUREITEM_REFLECT()
END_MESSAGE_MAP()

int CListBox::AddString(LPCWSTR text) {
    return static_cast<int>(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CListBox::InsertString(int index, LPCWSTR text) {
    return static_cast<int>(
        SendMessage(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

int CListBox::DeleteString(int index) {
    return static_cast<int>(SendMessage(LB_DELETESTRING, static_cast<WPARAM>(index)));
}

void CListBox::ResetContent() {
    SendMessage(LB_RESETCONTENT);
}

int CListBox::GetCount() const {
    return static_cast<int>(SendMessage(LB_GETCOUNT));
}

int CListBox::GetCurSel() const {
    return static_cast<int>(SendMessage(LB_GETCURSEL));
}

int CListBox::SetCurSel(int index) {
    return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(index)));
}

int CListBox::GetText(int index, LPWSTR buffer) const {
    return static_cast<int>(
        SendMessage(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer)));
}

int CListBox::GetTextLen(int index) const {
    return static_cast<int>(SendMessage(LB_GETTEXTLEN, static_cast<WPARAM>(index)));
}

int CListBox::SetItemData(int index, DWORD_PTR data) {
    return static_cast<int>(
        SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
}

DWORD_PTR CListBox::GetItemData(int index) const {
    return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(index)));
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
