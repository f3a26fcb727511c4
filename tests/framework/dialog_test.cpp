// CDialog: creation from a template bound from the first message on, the modal
// loop (PreTranslateMessage chain, IsDialogMessage, the disabled owner), OnOK and
// OnCancel, modeless pages.
#include "framework/data_exchange.h"
#include "framework/dialog.h"
#include "framework/edit.h"
#include "tests/framework/dialog_fixture.h"

#include <commctrl.h>

#include <functional>
#include <vector>

namespace {

struct Seen {
    std::string who;
    UINT message;
    WPARAM wParam;
    bool operator==(const Seen& o) const {
        return who == o.who && message == o.message && wParam == o.wParam;
    }
};

std::ostream& operator<<(std::ostream& out, const Seen& s) {
    return out << "{\"" << s.who << "\", 0x" << std::hex << s.message << ", 0x" << s.wParam
               << std::dec << "}";
}

// The edit of the dialog, logging what the loop offers it.
class CLoggingEdit : public CEdit {
public:
    std::vector<Seen>* log = nullptr;
    BOOL swallow = FALSE;
    BOOL PreTranslateMessage(MSG* msg) override {
        if (log && msg->message == WM_KEYDOWN)
            log->push_back({"edit", msg->message, msg->wParam});
        return swallow;
    }
};

constexpr UINT kEndCommand = 4300;

class CTestDialog : public CDialog {
public:
    CTestDialog(CWnd* parent) : CDialog(IDD_TEST_DIALOG, parent) {}

    std::vector<Seen> preTranslated;
    std::vector<UINT> created; // the creation messages, in order
    CLoggingEdit edit;
    std::function<void(CTestDialog&)> onInit;
    BOOL swallowEscape = FALSE;
    int initCount = 0;
    HWND focusAtEnd = nullptr;
    std::pair<int, int> selectionAtEnd{-1, -1};
    BOOL ownerEnabledAtEnd = TRUE;
    bool controlsAtInit = false;
    int value = 5;

    BOOL OnInitDialog() override {
        ++initCount;
        controlsAtInit = ::GetDlgItem(m_hWnd, IDC_EDIT_A) && ::GetDlgItem(m_hWnd, IDOK);
        BOOL result = CDialog::OnInitDialog();
        if (onInit)
            onInit(*this);
        return result;
    }
    BOOL PreTranslateMessage(MSG* msg) override {
        if (msg->message == WM_KEYDOWN) {
            preTranslated.push_back({"dialog", msg->message, msg->wParam});
            if (msg->wParam == VK_ESCAPE && swallowEscape)
                return TRUE;
        }
        return CDialog::PreTranslateMessage(msg);
    }
    void OnEnd() {
        ownerEnabledAtEnd = ::IsWindowEnabled(m_pParentWnd->m_hWnd);
        focusAtEnd = ::GetFocus();
        edit.GetSel(selectionAtEnd.first, selectionAtEnd.second);
        EndDialog(77);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_NCCREATE || message == WM_CREATE || message == WM_SETFONT ||
            message == WM_INITDIALOG)
            created.push_back(message);
        return CDialog::WindowProc(message, wParam, lParam);
    }
    void DoDataExchange(CDataExchange* dx) override {
        DDX_Control(dx, IDC_EDIT_A, edit);
        DDX_Text(dx, IDC_EDIT_A, value);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestDialog, CDialog)
// void OnEnd()
ON_COMMAND(kEndCommand, &CTestDialog::OnEnd)
END_MESSAGE_MAP()

void postKey(HWND hWnd, UINT key) {
    PostMessageW(hWnd, WM_KEYDOWN, key, 1);
}

using DialogTest = DialogFixture;

TEST_F(DialogTest, ModalDialogIsBoundBeforeItsFirstMessagesAndInitialisedOnce) {
    CTestDialog dialog(&owner);
    dialog.onInit = [](CTestDialog& d) { d.PostMessage(WM_COMMAND, kEndCommand); };
    EXPECT_EQ(77, dialog.DoModal());
    const std::vector<UINT> expected = {WM_NCCREATE, WM_CREATE, WM_SETFONT, WM_INITDIALOG};
    EXPECT_EQ(expected, dialog.created);
    EXPECT_EQ(1, dialog.initCount);
    EXPECT_TRUE(dialog.controlsAtInit);
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST_F(DialogTest, OwnerIsDisabledDuringTheLoopAndEnabledAfter) {
    CTestDialog dialog(&owner);
    dialog.onInit = [](CTestDialog& d) { d.PostMessage(WM_COMMAND, kEndCommand); };
    EXPECT_EQ(77, dialog.DoModal());
    EXPECT_FALSE(dialog.ownerEnabledAtEnd);
    EXPECT_TRUE(::IsWindowEnabled(owner.m_hWnd));
}

TEST_F(DialogTest, KeyIsOfferedToTheControlThenTheDialogBeforeIsDialogMessage) {
    CTestDialog dialog(&owner);
    std::vector<Seen> log;
    dialog.onInit = [&log](CTestDialog& d) {
        d.edit.log = &log;
        postKey(d.edit.m_hWnd, VK_F5);
        postKey(d.m_hWnd, VK_F6);
        d.PostMessage(WM_COMMAND, kEndCommand);
    };
    EXPECT_EQ(77, dialog.DoModal());
    const std::vector<Seen> expectedEdit = {{"edit", WM_KEYDOWN, VK_F5}};
    const std::vector<Seen> expectedDialog = {{"dialog", WM_KEYDOWN, VK_F5},
                                              {"dialog", WM_KEYDOWN, VK_F6}};
    EXPECT_EQ(expectedEdit, log);
    EXPECT_EQ(expectedDialog, dialog.preTranslated);
}

TEST_F(DialogTest, ControlThatTakesTheKeyHidesItFromTheDialog) {
    CTestDialog dialog(&owner);
    std::vector<Seen> log;
    dialog.onInit = [&log](CTestDialog& d) {
        d.edit.log = &log;
        d.edit.swallow = TRUE;
        postKey(d.edit.m_hWnd, VK_ESCAPE);
        d.PostMessage(WM_COMMAND, kEndCommand);
    };
    EXPECT_EQ(77, dialog.DoModal());
    EXPECT_EQ(1u, log.size());
    EXPECT_TRUE(dialog.preTranslated.empty());
}

TEST_F(DialogTest, EscapeTakenInPreTranslateMessageDoesNotCancel) {
    CTestDialog dialog(&owner);
    dialog.swallowEscape = TRUE;
    dialog.onInit = [](CTestDialog& d) {
        postKey(d.edit.m_hWnd, VK_ESCAPE);
        d.PostMessage(WM_COMMAND, kEndCommand);
    };
    EXPECT_EQ(77, dialog.DoModal());
}

TEST_F(DialogTest, EscapeLeftToIsDialogMessageCancels) {
    CTestDialog dialog(&owner);
    dialog.onInit = [](CTestDialog& d) {
        postKey(d.edit.m_hWnd, VK_ESCAPE);
        d.PostMessage(WM_COMMAND, kEndCommand);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

TEST_F(DialogTest, EnterEndsWithOkAndSavesTheData) {
    CTestDialog dialog(&owner);
    dialog.onInit = [](CTestDialog& d) {
        d.edit.SetWindowText(L"123");
        postKey(d.edit.m_hWnd, VK_RETURN);
        d.PostMessage(WM_COMMAND, kEndCommand);
    };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(123, dialog.value);
}

TEST_F(DialogTest, OkWithInvalidDataKeepsTheDialogOpenWithTheFocusOnTheControl) {
    CTestDialog dialog(&owner);
    HWND editHwnd = nullptr;
    dialog.onInit = [&](CTestDialog& d) {
        editHwnd = d.edit.m_hWnd;
        d.edit.SetWindowText(L"12x");
        d.PostMessage(WM_COMMAND, IDOK);
        d.PostMessage(WM_COMMAND, kEndCommand);
    };
    EXPECT_EQ(77, dialog.DoModal());
    EXPECT_EQ(5, dialog.value);
    EXPECT_EQ(editHwnd, dialog.focusAtEnd);
    EXPECT_EQ(0, dialog.selectionAtEnd.first);
    EXPECT_EQ(3, dialog.selectionAtEnd.second);
}

TEST_F(DialogTest, ControlKeyStateIsSeenByPreTranslateMessage) {
    class CCtrlDialog : public CTestDialog {
    public:
        using CTestDialog::CTestDialog;
        std::vector<bool> ctrlDown;
        BOOL PreTranslateMessage(MSG* msg) override {
            if (msg->message == WM_KEYDOWN && msg->wParam == VK_TAB)
                ctrlDown.push_back(GetKeyState(VK_CONTROL) < 0);
            return CTestDialog::PreTranslateMessage(msg);
        }
    };
    CCtrlDialog dialog(&owner);
    BYTE saved[256] = {};
    GetKeyboardState(saved);
    dialog.onInit = [](CTestDialog& d) {
        BYTE keys[256] = {};
        GetKeyboardState(keys);
        keys[VK_CONTROL] = 0x80;
        SetKeyboardState(keys);
        postKey(d.edit.m_hWnd, VK_TAB);
        d.PostMessage(WM_COMMAND, kEndCommand);
    };
    EXPECT_EQ(77, dialog.DoModal());
    SetKeyboardState(saved);
    EXPECT_EQ(std::vector<bool>{true}, dialog.ctrlDown);
}

TEST_F(DialogTest, CancelButtonEndsWithCancel) {
    CTestDialog dialog(&owner);
    dialog.onInit = [](CTestDialog& d) {
        d.PostMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                      reinterpret_cast<LPARAM>(::GetDlgItem(d.m_hWnd, IDCANCEL)));
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_TRUE(::IsWindowEnabled(owner.m_hWnd));
}

TEST_F(DialogTest, MissingTemplateGivesMinusOneAndLeavesTheOwnerEnabled) {
    CDialog dialog(IDD_MISSING, &owner);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_TRUE(::IsWindowEnabled(owner.m_hWnd));
}

TEST_F(DialogTest, ModelessPageIsAChildBoundToItsObject) {
    CTestDialog host(&owner);
    createModeless(host);
    CDialog page;
    ASSERT_TRUE(page.Create(IDD_TEST_PAGE, &host));
    EXPECT_EQ(host.m_hWnd, ::GetParent(page.m_hWnd));
    EXPECT_EQ(&page, CWnd::FromHandlePermanent(page.m_hWnd));
    EXPECT_NE(nullptr, ::GetDlgItem(page.m_hWnd, IDC_PAGE_EDIT));
    EXPECT_EQ(WS_CHILD, static_cast<DWORD>(GetWindowLongPtrW(page.m_hWnd, GWL_STYLE)) & WS_CHILD);
    EXPECT_FALSE(page.Create(IDD_TEST_PAGE, &host));
    EXPECT_FALSE(page.IsInModalLoop());
    page.DestroyWindow();
    host.DestroyWindow();
}

TEST_F(DialogTest, EndDialogHidesAModelessDialog) {
    CTestDialog dialog(&owner);
    createModeless(dialog);
    EXPECT_TRUE(dialog.IsWindowVisible());
    dialog.EndDialog(IDOK);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_NE(nullptr, dialog.m_hWnd);
    dialog.DestroyWindow();
}

TEST_F(DialogTest, RunTimeClassIsCDialogDerivedFromCWnd) {
    CDialog dialog;
    EXPECT_STREQ("CDialog", dialog.GetRuntimeClass()->m_lpszClassName);
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_FALSE(CWnd().IsKindOf(RUNTIME_CLASS(CDialog)));
}

} // namespace

namespace {

class CTipDialog : public CDialog {
public:
    CTipDialog(CWnd* parent) : CDialog(IDD_TEST_DIALOG, parent) {}
    std::vector<UINT> asked;
    BOOL OnNeedText(UINT id, NMHDR* header, LRESULT* result) {
        auto* info = reinterpret_cast<NMTTDISPINFOW*>(header);
        if (!(info->uFlags & TTF_IDISHWND))
            return FALSE;
        UINT control = static_cast<UINT>(::GetDlgCtrlID(reinterpret_cast<HWND>(id)));
        asked.push_back(control);
        if (control != IDC_EDIT_B)
            return FALSE;
        wcscpy(info->szText, L"Length of the part");
        *result = 0;
        return TRUE;
    }

protected:
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTipDialog, CDialog)
// BOOL OnNeedText(UINT id, NMHDR* header, LRESULT* result)
ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFFFFFF, &CTipDialog::OnNeedText)
END_MESSAGE_MAP()

TEST_F(DialogTest, ToolTipAsksTheDialogForTheTextOfAControl) {
    CTipDialog dialog(&owner);
    createModeless(dialog);
    ASSERT_TRUE(dialog.EnableToolTips());
    HWND tip = dialog.GetToolTipHwnd();
    ASSERT_NE(nullptr, tip);
    int children = 0;
    for (HWND c = GetWindow(dialog.m_hWnd, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT))
        ++children;
    EXPECT_EQ(children, static_cast<int>(SendMessageW(tip, TTM_GETTOOLCOUNT, 0, 0)));

    wchar_t text[80] = {};
    TTTOOLINFOW tool = {};
    tool.cbSize = sizeof(tool);
    tool.hwnd = dialog.m_hWnd;
    tool.uId = reinterpret_cast<UINT_PTR>(::GetDlgItem(dialog.m_hWnd, IDC_EDIT_B));
    tool.lpszText = text;
    SendMessageW(tip, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
    EXPECT_STREQ(L"Length of the part", text);
    EXPECT_EQ(std::vector<UINT>{IDC_EDIT_B}, dialog.asked);
    dialog.DestroyWindow();
}

} // namespace
