// The message-map macros of dialogs: control notifications by code and id, and the
// window messages WM_SYSCOMMAND, WM_HELP and WM_SHOWWINDOW, each unpacked into its
// handler's arguments, with real messages to the test dialog.
#include "framework/combo_box.h"
#include "tests/framework/dialog_fixture.h"

#include <vector>

namespace {

class CMapDialog : public CDialog {
public:
    CMapDialog(CWnd* parent) : CDialog(IDD_TEST_DIALOG, parent) {}
    std::vector<std::string> log;
    UINT sysId = 0;
    LPARAM sysParam = 0;
    int helpCtrl = 0;
    std::vector<std::pair<BOOL, UINT>> shows;

    void OnComboSelChange() { log.push_back("CBN_SELCHANGE"); }
    void OnComboSelEndOk() { log.push_back("CBN_SELENDOK"); }
    void OnComboSetFocus() { log.push_back("CBN_SETFOCUS"); }
    void OnComboKillFocus() { log.push_back("CBN_KILLFOCUS"); }
    void OnEditSetFocus() { log.push_back("EN_SETFOCUS"); }
    void OnCheckClicked() { log.push_back("BN_CLICKED"); }
    void OnSysCommand(UINT id, LPARAM lParam) {
        sysId = id;
        sysParam = lParam;
    }
    BOOL OnHelpInfo(HELPINFO* info) {
        helpCtrl = info->iCtrlId;
        return TRUE;
    }
    void OnShowWindow(BOOL show, UINT status) {
        shows.push_back({show, status});
        CDialog::OnShowWindow(show, status);
    }

protected:
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMapDialog, CDialog)
// void OnComboSelChange()
ON_CBN_SELCHANGE(IDC_COMBO, &CMapDialog::OnComboSelChange)
// void OnComboSelEndOk()
ON_CBN_SELENDOK(IDC_COMBO, &CMapDialog::OnComboSelEndOk)
// void OnComboSetFocus()
ON_CBN_SETFOCUS(IDC_COMBO, &CMapDialog::OnComboSetFocus)
// void OnComboKillFocus()
ON_CBN_KILLFOCUS(IDC_COMBO, &CMapDialog::OnComboKillFocus)
// void OnEditSetFocus()
ON_EN_SETFOCUS(IDC_EDIT_A, &CMapDialog::OnEditSetFocus)
// void OnCheckClicked()
ON_BN_CLICKED(IDC_CHECK, &CMapDialog::OnCheckClicked)
ON_WM_SYSCOMMAND()
ON_WM_HELPINFO()
ON_WM_SHOWWINDOW()
END_MESSAGE_MAP()

class MessageMapTest : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        ASSERT_TRUE(dialog.Create(IDD_TEST_DIALOG, &owner));
        // Creation gave the first edit the focus (EN_SETFOCUS): no part of the tests.
        dialog.log.clear();
    }
    void TearDown() override {
        dialog.DestroyWindow();
        DialogFixture::TearDown();
    }
    CMapDialog dialog{&owner};
};

using Log = std::vector<std::string>;

TEST_F(MessageMapTest, ShowWindowGivesShowAndStatus) {
    dialog.ShowWindow(SW_SHOW);
    dialog.ShowWindow(SW_HIDE);
    const std::vector<std::pair<BOOL, UINT>> expected = {{TRUE, 0}, {FALSE, 0}};
    EXPECT_EQ(expected, dialog.shows);
}

TEST_F(MessageMapTest, ComboKeyDownSelectsTheNextItemAndNotifiesInOrder) {
    HWND combo = ::GetDlgItem(dialog.m_hWnd, IDC_COMBO);
    ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"a"));
    ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"b"));
    ::SendMessageW(combo, CB_SETCURSEL, 0, 0);
    dialog.ShowWindow(SW_SHOW);
    ::SetFocus(combo);
    ::SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 0);
    ::SetFocus(::GetDlgItem(dialog.m_hWnd, IDC_EDIT_A));
    const Log expected = {"CBN_SETFOCUS", "CBN_SELENDOK", "CBN_SELCHANGE", "CBN_KILLFOCUS",
                          "EN_SETFOCUS"};
    EXPECT_EQ(expected, dialog.log);
    EXPECT_EQ(1, ::SendMessageW(combo, CB_GETCURSEL, 0, 0));
}

TEST_F(MessageMapTest, CheckBoxClickIsACommandOfItsId) {
    HWND check = ::GetDlgItem(dialog.m_hWnd, IDC_CHECK);
    ::SendMessageW(check, BM_CLICK, 0, 0);
    EXPECT_EQ(Log{"BN_CLICKED"}, dialog.log);
    EXPECT_EQ(BST_CHECKED, ::SendMessageW(check, BM_GETCHECK, 0, 0));
}

TEST_F(MessageMapTest, SysCommandGivesIdAndParameter) {
    dialog.SendMessage(WM_SYSCOMMAND, SC_CONTEXTHELP, MAKELPARAM(12, 34));
    EXPECT_EQ(static_cast<UINT>(SC_CONTEXTHELP), dialog.sysId);
    EXPECT_EQ(MAKELPARAM(12, 34), dialog.sysParam);
}

TEST_F(MessageMapTest, HelpInfoGivesTheControl) {
    HELPINFO info = {};
    info.cbSize = sizeof(info);
    info.iContextType = HELPINFO_WINDOW;
    info.iCtrlId = IDC_EDIT_B;
    info.hItemHandle = ::GetDlgItem(dialog.m_hWnd, IDC_EDIT_B);
    EXPECT_EQ(TRUE, dialog.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)));
    EXPECT_EQ(IDC_EDIT_B, dialog.helpCtrl);
}

} // namespace
