// CMenu: a popup menu made, filled and read back; ownership of the menu.
#include "framework/menu.h"
#include "framework/wnd.h"

#include <gtest/gtest.h>

namespace {

TEST(Menu, PopupMenuKeepsItsItemsInOrder) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_FALSE(menu.CreatePopupMenu());
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 101, L"&Copy"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.AppendMenu(MF_STRING | MF_GRAYED, 102, L"Paste"));
    EXPECT_EQ(3, menu.GetMenuItemCount());
    EXPECT_EQ(101u, menu.GetMenuItemID(0));
    EXPECT_EQ(102u, menu.GetMenuItemID(2));
    wchar_t text[16] = {};
    EXPECT_EQ(5, menu.GetMenuString(2, text, 16, MF_BYPOSITION));
    EXPECT_STREQ(L"Paste", text);
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), GetMenuState(menu, 102, MF_BYCOMMAND) & MF_GRAYED);
}

TEST(Menu, WithoutMenuOperationsFail) {
    CMenu menu;
    EXPECT_FALSE(menu.AppendMenu(MF_STRING, 1, L"x"));
    EXPECT_EQ(-1, menu.GetMenuItemCount());
    CWnd owner;
    EXPECT_FALSE(menu.TrackPopupMenu(TPM_RETURNCMD, 0, 0, &owner));
    EXPECT_FALSE(menu.DestroyMenu());
}

TEST(Menu, DestroyMenuFreesAndDetachKeeps) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    HMENU handle = menu.Detach();
    EXPECT_EQ(nullptr, menu.m_hMenu);
    EXPECT_TRUE(IsMenu(handle));
    ASSERT_TRUE(menu.CreatePopupMenu());
    HMENU owned = menu.m_hMenu;
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_FALSE(IsMenu(owned));
    EXPECT_TRUE(DestroyMenu(handle));
}

TEST(Menu, RunTimeClassIsCMenu) {
    CMenu menu;
    EXPECT_STREQ("CMenu", menu.GetRuntimeClass()->m_lpszClassName);
    EXPECT_TRUE(menu.IsKindOf(RUNTIME_CLASS(CMenu)));
}

} // namespace
