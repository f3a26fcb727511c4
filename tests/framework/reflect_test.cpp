// Reflection: notifications of a bound control reach the control's own map first
// (ON_CONTROL_REFLECT, ON_NOTIFY_REFLECT, reflected WM_DRAWITEM/WM_MEASUREITEM),
// then the parent's; the _EX forms pass them on. The order of handlers is compared
// with tables, as in Wine's message tests.
#include "framework/combo_box.h"
#include "framework/edit.h"
#include "framework/list_box.h"
#include "framework/tree_ctrl.h"
#include "tests/framework/dialog_fixture.h"

#include <vector>

namespace {

std::vector<std::string>* g_log = nullptr;

void note(const char* what) {
    if (g_log)
        g_log->push_back(what);
}

// Handles EN_CHANGE itself; the parent does not see it.
class CReflectingEdit : public CEdit {
public:
    void OnChange() { note("edit reflected EN_CHANGE"); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CReflectingEdit, CEdit)
// void OnChange()
ON_CONTROL_REFLECT(EN_CHANGE, &CReflectingEdit::OnChange)
END_MESSAGE_MAP()

// Looks at EN_KILLFOCUS and passes it on to the parent.
class CPassingEdit : public CEdit {
public:
    BOOL OnKillFocus() {
        note("edit reflected EN_KILLFOCUS");
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CPassingEdit, CEdit)
// BOOL OnKillFocus()
ON_CONTROL_REFLECT_EX(EN_KILLFOCUS, &CPassingEdit::OnKillFocus)
END_MESSAGE_MAP()

class CDrawingCombo : public CComboBox {
public:
    UINT drawnItem = 99;
    UINT measuredHeight = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override {
        note("combo DrawItem");
        drawnItem = item->itemID;
    }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override {
        note("combo MeasureItem");
        item->itemHeight = 21;
    }
};

class CNotifyTree : public CTreeCtrl {
public:
    BOOL passOn = FALSE;
    BOOL OnSelChanged(NMHDR*, LRESULT* result) {
        note("tree reflected TVN_SELCHANGED");
        *result = 3;
        return !passOn;
    }
    void OnClick(NMHDR*, LRESULT* result) {
        note("tree reflected NM_CLICK");
        *result = 4;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CNotifyTree, CTreeCtrl)
// BOOL OnSelChanged(NMHDR* header, LRESULT* result)
ON_NOTIFY_REFLECT_EX(TVN_SELCHANGEDW, &CNotifyTree::OnSelChanged)
// void OnClick(NMHDR* header, LRESULT* result)
ON_NOTIFY_REFLECT(NM_CLICK, &CNotifyTree::OnClick)
END_MESSAGE_MAP()

class CReflectDialog : public CDialog {
public:
    CReflectDialog(CWnd* parent) : CDialog(IDD_TEST_DIALOG, parent) {}
    CReflectingEdit editA;
    CPassingEdit editB;
    CDrawingCombo combo;
    CNotifyTree tree;

    void OnEditAChange() { note("dialog EN_CHANGE a"); }
    void OnEditBKillFocus() { note("dialog EN_KILLFOCUS b"); }
    void OnListSelChange() { note("dialog LBN_SELCHANGE"); }
    void OnTreeSelChanged(NMHDR*, LRESULT* result) {
        note("dialog TVN_SELCHANGED");
        *result = 5;
    }
    BOOL OnTreeDblClk(UINT id, NMHDR*, LRESULT* result) {
        note(id == IDC_TREE ? "dialog NM_DBLCLK ex tree" : "dialog NM_DBLCLK ex other");
        *result = 6;
        return FALSE;
    }
    void OnTreeDblClkAfter(NMHDR*, LRESULT*) { note("dialog NM_DBLCLK after"); }
    void OnDrawItem(WPARAM, LPARAM) { note("dialog WM_DRAWITEM"); }

protected:
    void DoDataExchange(CDataExchange* dx) override;
    LRESULT OnDrawItemMsg(WPARAM w, LPARAM l) {
        OnDrawItem(w, l);
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

} // namespace

#include "framework/data_exchange.h"

namespace {

void CReflectDialog::DoDataExchange(CDataExchange* dx) {
    DDX_Control(dx, IDC_EDIT_A, editA);
    DDX_Control(dx, IDC_EDIT_B, editB);
    DDX_Control(dx, IDC_COMBO, combo);
    DDX_Control(dx, IDC_TREE, tree);
}

BEGIN_MESSAGE_MAP(CReflectDialog, CDialog)
// void OnEditAChange()
ON_EN_CHANGE(IDC_EDIT_A, &CReflectDialog::OnEditAChange)
// void OnEditBKillFocus()
ON_EN_KILLFOCUS(IDC_EDIT_B, &CReflectDialog::OnEditBKillFocus)
// void OnListSelChange()
ON_LBN_SELCHANGE(IDC_LIST, &CReflectDialog::OnListSelChange)
// void OnTreeSelChanged(NMHDR* header, LRESULT* result)
ON_NOTIFY(TVN_SELCHANGEDW, IDC_TREE, &CReflectDialog::OnTreeSelChanged)
// BOOL OnTreeDblClk(UINT id, NMHDR* header, LRESULT* result)
ON_NOTIFY_EX(NM_DBLCLK, IDC_TREE, &CReflectDialog::OnTreeDblClk)
// void OnTreeDblClkAfter(NMHDR* header, LRESULT* result)
ON_NOTIFY(NM_DBLCLK, IDC_TREE, &CReflectDialog::OnTreeDblClkAfter)
// LRESULT OnDrawItemMsg(WPARAM wParam, LPARAM lParam)
ON_MESSAGE(WM_DRAWITEM, &CReflectDialog::OnDrawItemMsg)
END_MESSAGE_MAP()

class ReflectTest : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        g_log = &log;
        createModeless(dialog);
        log.clear();
    }
    void TearDown() override {
        dialog.DestroyWindow();
        g_log = nullptr;
        DialogFixture::TearDown();
    }
    LRESULT notify(HWND from, UINT code) {
        NMHDR header = {};
        header.hwndFrom = from;
        header.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(from));
        header.code = code;
        return dialog.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }
    std::vector<std::string> log;
    CReflectDialog dialog{&owner};
};

using Log = std::vector<std::string>;

TEST_F(ReflectTest, ControlReflectTakesTheCommandFromTheParent) {
    dialog.editA.SetWindowText(L"typed");
    EXPECT_EQ(Log{"edit reflected EN_CHANGE"}, log);
}

TEST_F(ReflectTest, ControlReflectExReturningFalseReachesTheParentAfterTheControl) {
    dialog.editB.SetFocus();
    log.clear();
    dialog.editA.SetFocus();
    const Log expected = {"edit reflected EN_KILLFOCUS", "dialog EN_KILLFOCUS b"};
    EXPECT_EQ(expected, log);
}

TEST_F(ReflectTest, NotificationOfAnUnboundControlGoesToTheParent) {
    HWND list = ::GetDlgItem(dialog.m_hWnd, IDC_LIST);
    ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"one"));
    // A click is what sends LBN_SELCHANGE; the parent gets it as the list sends it.
    dialog.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_LIST, LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(list));
    EXPECT_EQ(Log{"dialog LBN_SELCHANGE"}, log);
}

TEST_F(ReflectTest, NotifyReflectAnswersForTheControl) {
    EXPECT_EQ(4, notify(dialog.tree.m_hWnd, NM_CLICK));
    EXPECT_EQ(Log{"tree reflected NM_CLICK"}, log);
}

TEST_F(ReflectTest, NotifyReflectExTrueKeepsItFromTheParent) {
    EXPECT_EQ(3, notify(dialog.tree.m_hWnd, TVN_SELCHANGEDW));
    EXPECT_EQ(Log{"tree reflected TVN_SELCHANGED"}, log);
}

TEST_F(ReflectTest, NotifyReflectExFalsePassesItToTheParent) {
    dialog.tree.passOn = TRUE;
    EXPECT_EQ(5, notify(dialog.tree.m_hWnd, TVN_SELCHANGEDW));
    const Log expected = {"tree reflected TVN_SELCHANGED", "dialog TVN_SELCHANGED"};
    EXPECT_EQ(expected, log);
}

TEST_F(ReflectTest, RealSelectionChangeOfTheTreeIsReflected) {
    HTREEITEM first = dialog.tree.InsertItem(L"first");
    HTREEITEM second = dialog.tree.InsertItem(L"second");
    ASSERT_NE(nullptr, first);
    ASSERT_NE(nullptr, second);
    log.clear();
    EXPECT_TRUE(dialog.tree.SelectItem(second));
    EXPECT_EQ(Log{"tree reflected TVN_SELCHANGED"}, log);
}

TEST_F(ReflectTest, NotifyExFalseGoesOnToTheNextEntry) {
    EXPECT_EQ(0, notify(dialog.tree.m_hWnd, NM_DBLCLK));
    const Log expected = {"dialog NM_DBLCLK ex tree", "dialog NM_DBLCLK after"};
    EXPECT_EQ(expected, log);
}

TEST_F(ReflectTest, DrawItemAndMeasureItemReachTheComboFirst) {
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_COMBOBOX;
    draw.CtlID = IDC_COMBO;
    draw.itemID = 2;
    draw.hwndItem = dialog.combo.m_hWnd;
    EXPECT_EQ(TRUE, dialog.SendMessage(WM_DRAWITEM, IDC_COMBO, reinterpret_cast<LPARAM>(&draw)));
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_COMBOBOX;
    measure.CtlID = IDC_COMBO;
    measure.itemHeight = 1;
    EXPECT_EQ(TRUE,
              dialog.SendMessage(WM_MEASUREITEM, IDC_COMBO, reinterpret_cast<LPARAM>(&measure)));
    const Log expected = {"combo DrawItem", "combo MeasureItem"};
    EXPECT_EQ(expected, log);
    EXPECT_EQ(2u, dialog.combo.drawnItem);
    EXPECT_EQ(21u, measure.itemHeight);
}

TEST_F(ReflectTest, DrawItemOfAMenuIsNotReflected) {
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_MENU;
    draw.hwndItem = reinterpret_cast<HWND>(dialog.combo.m_hWnd);
    EXPECT_EQ(TRUE, dialog.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw)));
    EXPECT_EQ(Log{"dialog WM_DRAWITEM"}, log);
}

} // namespace
