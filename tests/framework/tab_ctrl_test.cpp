// CTabCtrl: tabs, selection, rectangles and deletion.
#include "framework/tab_ctrl.h"
#include "tests/framework/control_fixture.h"

namespace {

using TabCtrlTest = ControlFixture;

TEST_F(TabCtrlTest, TabItemsSelectionRectanglesAndDeletion) {
    CTabCtrl tab;
    bind(tab, IDC_TAB);
    EXPECT_EQ(0, tab.InsertItem(0, L"One"));
    EXPECT_EQ(1, tab.InsertItem(1, L"Two"));
    EXPECT_EQ(0, tab.InsertItem(0, L"Zero"));
    EXPECT_EQ(3, tab.GetItemCount());
    CRect first;
    CRect second;
    ASSERT_TRUE(tab.GetItemRect(0, &first));
    ASSERT_TRUE(tab.GetItemRect(1, &second));
    EXPECT_EQ(first.top, second.top);
    EXPECT_EQ(first.bottom, second.bottom);
    EXPECT_LT(first.left, second.left);
    // The first tab was selected; inserting before it keeps it selected.
    EXPECT_EQ(1, tab.GetCurSel());
    EXPECT_EQ(1, tab.SetCurSel(2));
    EXPECT_EQ(2, tab.GetCurSel());
    EXPECT_EQ(-1, tab.SetCurSel(5));
    wchar_t text[16] = {};
    EXPECT_TRUE(tab.GetItemText(1, text, 16));
    EXPECT_STREQ(L"One", text);
    EXPECT_FALSE(tab.GetItemRect(9, &first));
    EXPECT_TRUE(tab.DeleteItem(0));
    EXPECT_EQ(2, tab.GetItemCount());
    EXPECT_TRUE(tab.GetItemText(0, text, 16));
    EXPECT_STREQ(L"One", text);
    EXPECT_TRUE(tab.DeleteAllItems());
    EXPECT_EQ(0, tab.GetItemCount());
}

} // namespace
