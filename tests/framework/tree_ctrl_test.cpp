// CTreeCtrl: items, relations, sorting, selection and the image list of a tree.
#include "framework/image_list.h"
#include "framework/tree_ctrl.h"
#include "tests/framework/control_fixture.h"

namespace {

using TreeCtrlTest = ControlFixture;

int CALLBACK byData(LPARAM a, LPARAM b, LPARAM) {
    return a < b ? -1 : (a > b ? 1 : 0);
}

TEST_F(TreeCtrlTest, TreeItemsSelectionSortAndImageList) {
    CTreeCtrl tree;
    bind(tree, IDC_TREE);
    HTREEITEM c = tree.InsertItem(L"c");
    HTREEITEM a = tree.InsertItem(L"a");
    HTREEITEM b = tree.InsertItem(L"b", 1, 2);
    HTREEITEM leaf = tree.InsertItem(L"leaf", a);
    ASSERT_NE(nullptr, leaf);
    EXPECT_EQ(4u, tree.GetCount());
    EXPECT_EQ(a, tree.GetParentItem(leaf));
    EXPECT_EQ(leaf, tree.GetChildItem(a));
    tree.SetItemData(c, 3);
    tree.SetItemData(a, 1);
    tree.SetItemData(b, 2);
    EXPECT_EQ(2u, tree.GetItemData(b));

    TVSORTCB sort = {};
    sort.hParent = TVI_ROOT;
    sort.lpfnCompare = &byData;
    EXPECT_TRUE(tree.SortChildrenCB(&sort));
    EXPECT_EQ(a, tree.GetRootItem());
    EXPECT_EQ(b, tree.GetNextSiblingItem(a));
    EXPECT_EQ(c, tree.GetNextSiblingItem(b));
    EXPECT_EQ(nullptr, tree.GetNextSiblingItem(c));

    EXPECT_EQ(nullptr, tree.GetSelectedItem());
    EXPECT_TRUE(tree.SelectItem(b));
    EXPECT_EQ(b, tree.GetSelectedItem());
    wchar_t text[16] = {};
    EXPECT_TRUE(tree.GetItemText(b, text, 16));
    EXPECT_STREQ(L"b", text);
    EXPECT_TRUE(tree.SetItemText(b, L"bee"));
    EXPECT_TRUE(tree.GetItemText(b, text, 16));
    EXPECT_STREQ(L"bee", text);

    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 2));
    EXPECT_EQ(&images, tree.SetImageList(&images, TVSIL_NORMAL));
    EXPECT_EQ(images.m_hImageList,
              reinterpret_cast<HIMAGELIST>(tree.SendMessage(TVM_GETIMAGELIST, TVSIL_NORMAL)));
    tree.SetImageList(nullptr, TVSIL_NORMAL);

    EXPECT_TRUE(tree.DeleteItem(a));
    EXPECT_EQ(2u, tree.GetCount());
    EXPECT_TRUE(tree.DeleteAllItems());
    EXPECT_EQ(0u, tree.GetCount());
}

} // namespace
