// CEdit: selection, replacement, modify flag and text limit of an edit control.
#include "framework/edit.h"
#include "tests/framework/control_fixture.h"

namespace {

using EditTest = ControlFixture;

TEST_F(EditTest, EditSelectionModifyFlagAndLimit) {
    CEdit edit;
    bind(edit, IDC_EDIT_A);
    edit.SetWindowText(L"hello world");
    edit.SetSel(2, 5);
    int start = -1;
    int end = -1;
    edit.GetSel(start, end);
    EXPECT_EQ(2, start);
    EXPECT_EQ(5, end);
    edit.ReplaceSel(L"XY");
    EXPECT_EQ(L"heXY world", windowText(edit.m_hWnd));
    edit.GetSel(start, end);
    EXPECT_EQ(4, start);
    EXPECT_EQ(4, end);
    edit.SetModify(FALSE);
    EXPECT_FALSE(edit.GetModify());
    edit.SetModify();
    EXPECT_TRUE(edit.GetModify());
    edit.LimitText(6);
    EXPECT_EQ(6u, edit.GetLimitText());
}
TEST_F(EditTest, EditTypedTextStopsAtTheLimitAndSetsTheModifyFlag) {
    CEdit edit;
    bind(edit, IDC_EDIT_A);
    edit.SetWindowText(L"");
    edit.SetModify(FALSE);
    edit.LimitText(3);
    for (wchar_t c : std::wstring(L"abcde"))
        edit.SendMessage(WM_CHAR, c, 1);
    EXPECT_EQ(L"abc", windowText(edit.m_hWnd));
    EXPECT_TRUE(edit.GetModify());
}

} // namespace
