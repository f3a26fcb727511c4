// CDataExchange and the DDX_ functions: values both ways, binding of controls,
// failure by result (focus on the failing control, later exchanges skipped).
#include "framework/data_exchange.h"
#include "framework/edit.h"
#include "tests/framework/dialog_fixture.h"

namespace {

class CExchangeDialog : public CDialog {
public:
    CExchangeDialog(CWnd* parent) : CDialog(IDD_TEST_DIALOG, parent) {}
    CEdit editA;
    int number = 7;
    CQorString text = L"start";
    int missingNumber = 0;
    bool withMissing = false;

protected:
    void DoDataExchange(CDataExchange* dx) override {
        DDX_Control(dx, IDC_EDIT_A, editA);
        DDX_Text(dx, IDC_EDIT_A, number);
        if (withMissing)
            DDX_Text(dx, IDD_MISSING, missingNumber);
        DDX_Text(dx, IDC_EDIT_B, text);
    }
};

using DataExchangeTest = DialogFixture;

TEST_F(DataExchangeTest, InitialisationWritesTheMembersIntoTheControls) {
    CExchangeDialog dialog(&owner);
    createModeless(dialog);
    EXPECT_EQ(::GetDlgItem(dialog.m_hWnd, IDC_EDIT_A), dialog.editA.m_hWnd);
    EXPECT_EQ(L"7", windowText(::GetDlgItem(dialog.m_hWnd, IDC_EDIT_A)));
    EXPECT_EQ(L"start", windowText(::GetDlgItem(dialog.m_hWnd, IDC_EDIT_B)));
    dialog.DestroyWindow();
}

TEST_F(DataExchangeTest, SaveReadsNumberWithBlanksAndText) {
    CExchangeDialog dialog(&owner);
    createModeless(dialog);
    ::SetDlgItemTextW(dialog.m_hWnd, IDC_EDIT_A, L"  -42 ");
    ::SetDlgItemTextW(dialog.m_hWnd, IDC_EDIT_B, L"Stahl");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(-42, dialog.number);
    EXPECT_EQ(CQorString(L"Stahl"), dialog.text);
    dialog.DestroyWindow();
}

TEST_F(DataExchangeTest, FailedNumberFocusesItsControlSelectsItsTextAndSkipsTheRest) {
    CExchangeDialog dialog(&owner);
    createModeless(dialog);
    ::SetDlgItemTextW(dialog.m_hWnd, IDC_EDIT_A, L"4x");
    ::SetDlgItemTextW(dialog.m_hWnd, IDC_EDIT_B, L"changed");
    ::SetFocus(::GetDlgItem(dialog.m_hWnd, IDC_EDIT_B));
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(7, dialog.number);
    EXPECT_EQ(CQorString(L"start"), dialog.text);
    EXPECT_EQ(dialog.editA.m_hWnd, ::GetFocus());
    int start = -1;
    int end = -1;
    dialog.editA.GetSel(start, end);
    EXPECT_EQ(0, start);
    EXPECT_EQ(2, end);
    dialog.DestroyWindow();
}

TEST_F(DataExchangeTest, NumberOutOfIntRangeFails) {
    CExchangeDialog dialog(&owner);
    createModeless(dialog);
    ::SetDlgItemTextW(dialog.m_hWnd, IDC_EDIT_A, L"2147483648");
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(7, dialog.number);
    ::SetDlgItemTextW(dialog.m_hWnd, IDC_EDIT_A, L"2147483647");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(2147483647, dialog.number);
    dialog.DestroyWindow();
}

TEST_F(DataExchangeTest, MissingControlFailsTheExchange) {
    CExchangeDialog dialog(&owner);
    createModeless(dialog);
    dialog.withMissing = true;
    ::SetDlgItemTextW(dialog.m_hWnd, IDC_EDIT_A, L"9");
    ::SetDlgItemTextW(dialog.m_hWnd, IDC_EDIT_B, L"after");
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(9, dialog.number);
    EXPECT_EQ(CQorString(L"start"), dialog.text);
    dialog.DestroyWindow();
}

TEST_F(DataExchangeTest, ControlIsBoundOnceAndKeptOnLaterExchanges) {
    CExchangeDialog dialog(&owner);
    createModeless(dialog);
    HWND bound = dialog.editA.m_hWnd;
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(bound, dialog.editA.m_hWnd);
    EXPECT_EQ(&dialog.editA, CWnd::FromHandlePermanent(bound));
    dialog.DestroyWindow();
}

TEST_F(DataExchangeTest, UpdateDataWithoutWindowFails) {
    CExchangeDialog dialog(&owner);
    EXPECT_FALSE(dialog.UpdateData(TRUE));
}

} // namespace
