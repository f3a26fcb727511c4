// CListCtrl: columns, items, texts, states and rectangles of a report view.
#include "framework/list_ctrl.h"
#include "tests/framework/control_fixture.h"

namespace {

using ListCtrlTest = ControlFixture;

TEST_F(ListCtrlTest, ListCtrlColumnsItemsTextsAndRectangles) {
    CListCtrl list;
    bind(list, IDC_LISTVIEW);
    EXPECT_EQ(0, list.InsertColumn(0, L"Name", LVCFMT_LEFT, 60));
    EXPECT_EQ(1, list.InsertColumn(1, L"Value", LVCFMT_LEFT, 45));
    EXPECT_EQ(0, list.InsertItem(0, L"first"));
    EXPECT_EQ(1, list.InsertItem(1, L"second"));
    EXPECT_TRUE(list.SetItemText(1, 1, L"2.5"));
    EXPECT_EQ(2, list.GetItemCount());
    wchar_t text[32] = {};
    EXPECT_EQ(3, list.GetItemText(1, 1, text, 32));
    EXPECT_STREQ(L"2.5", text);
    EXPECT_EQ(5, list.GetItemText(0, 0, text, 32));
    EXPECT_STREQ(L"first", text);
    EXPECT_TRUE(list.SetItemData(1, 12345));
    EXPECT_EQ(12345u, list.GetItemData(1));

    CRect item0;
    CRect item1;
    ASSERT_TRUE(list.GetItemRect(0, &item0, LVIR_BOUNDS));
    ASSERT_TRUE(list.GetItemRect(1, &item1, LVIR_BOUNDS));
    EXPECT_EQ(item0.bottom, item1.top);
    EXPECT_EQ(item0.Height(), item1.Height());
    CRect sub;
    ASSERT_TRUE(list.GetSubItemRect(1, 1, LVIR_BOUNDS, sub));
    EXPECT_EQ(item1.left + 60, sub.left);
    EXPECT_EQ(item1.left + 105, sub.right);
    EXPECT_EQ(item1.top, sub.top);
    EXPECT_TRUE(list.EnsureVisible(1, FALSE));
    EXPECT_EQ(0, list.GetTopIndex());

    EXPECT_TRUE(list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ(static_cast<UINT>(LVIS_SELECTED), list.GetItemState(1, LVIS_SELECTED));
    EXPECT_EQ(1, list.GetNextItem(-1, LVNI_SELECTED));
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    EXPECT_EQ(static_cast<DWORD>(LVS_EX_FULLROWSELECT), list.GetExtendedStyle());
    EXPECT_TRUE(list.DeleteItem(0));
    EXPECT_EQ(1, list.GetItemCount());
    EXPECT_TRUE(list.DeleteAllItems());
    EXPECT_EQ(0, list.GetItemCount());
}

} // namespace
