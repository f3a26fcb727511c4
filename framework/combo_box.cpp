#include "framework/combo_box.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

BEGIN_MESSAGE_MAP(CComboBox, CWnd)
ON_WM_DRAWITEM_REFLECT()
ON_WM_MEASUREITEM_REFLECT()
END_MESSAGE_MAP()

int CComboBox::AddString(LPCWSTR text) {
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)));
}

int CComboBox::InsertString(int index, LPCWSTR text) {
    return static_cast<int>(
        SendMessage(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

int CComboBox::DeleteString(int index) {
    return static_cast<int>(SendMessage(CB_DELETESTRING, static_cast<WPARAM>(index)));
}

void CComboBox::ResetContent() {
    SendMessage(CB_RESETCONTENT);
}

int CComboBox::GetCount() const {
    return static_cast<int>(SendMessage(CB_GETCOUNT));
}

int CComboBox::GetCurSel() const {
    return static_cast<int>(SendMessage(CB_GETCURSEL));
}

int CComboBox::SetCurSel(int index) {
    return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index)));
}

int CComboBox::GetLBText(int index, LPWSTR buffer) const {
    return static_cast<int>(
        SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer)));
}

int CComboBox::GetLBTextLen(int index) const {
    return static_cast<int>(SendMessage(CB_GETLBTEXTLEN, static_cast<WPARAM>(index)));
}

int CComboBox::FindStringExact(int start, LPCWSTR text) const {
    return static_cast<int>(SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(start),
                                        reinterpret_cast<LPARAM>(text)));
}

int CComboBox::SetItemData(int index, DWORD_PTR data) {
    return static_cast<int>(
        SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
}

DWORD_PTR CComboBox::GetItemData(int index) const {
    return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index)));
}

void CComboBox::ShowDropDown(BOOL show) {
    SendMessage(CB_SHOWDROPDOWN, show);
}

BOOL CComboBox::GetDroppedState() const {
    return SendMessage(CB_GETDROPPEDSTATE) != 0;
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
