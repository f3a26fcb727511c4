// CListBox: items, selection, texts and item data of a list box.
#include "framework/list_box.h"
#include "tests/framework/control_fixture.h"

namespace {

using ListBoxTest = ControlFixture;

TEST_F(ListBoxTest, ListBoxItemsSelectionTextAndData) {
    CListBox list;
    bind(list, IDC_LIST);
    EXPECT_EQ(0, list.AddString(L"one"));
    EXPECT_EQ(1, list.AddString(L"two"));
    EXPECT_EQ(0, list.InsertString(0, L"zero"));
    EXPECT_EQ(3, list.GetCount());
    EXPECT_EQ(LB_ERR, list.GetCurSel());
    EXPECT_NE(LB_ERR, list.SetCurSel(1));
    EXPECT_EQ(1, list.GetCurSel());
    wchar_t text[32] = {};
    EXPECT_EQ(3, list.GetTextLen(1));
    EXPECT_EQ(3, list.GetText(1, text));
    EXPECT_STREQ(L"one", text);
    EXPECT_NE(LB_ERR, list.SetItemData(2, 99));
    EXPECT_EQ(99u, list.GetItemData(2));
    EXPECT_EQ(2, list.DeleteString(0));
    list.ResetContent();
    EXPECT_EQ(0, list.GetCount());
}

} // namespace
