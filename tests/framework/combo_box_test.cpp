// CComboBox: items, selection, texts and item data of a drop-down list.
#include "framework/combo_box.h"
#include "tests/framework/control_fixture.h"

namespace {

using ComboBoxTest = ControlFixture;

TEST_F(ComboBoxTest, ComboItemsSelectionTextAndData) {
    CComboBox combo;
    bind(combo, IDC_COMBO);
    EXPECT_EQ(0, combo.AddString(L"alpha"));
    EXPECT_EQ(1, combo.AddString(L"beta"));
    EXPECT_EQ(1, combo.InsertString(1, L"between"));
    EXPECT_EQ(3, combo.GetCount());
    EXPECT_EQ(CB_ERR, combo.GetCurSel());
    EXPECT_EQ(2, combo.SetCurSel(2));
    EXPECT_EQ(2, combo.GetCurSel());
    EXPECT_EQ(CB_ERR, combo.SetCurSel(7));
    wchar_t text[32] = {};
    EXPECT_EQ(7, combo.GetLBTextLen(1));
    EXPECT_EQ(7, combo.GetLBText(1, text));
    EXPECT_STREQ(L"between", text);
    EXPECT_NE(CB_ERR, combo.SetItemData(0, 4711));
    EXPECT_EQ(4711u, combo.GetItemData(0));
    EXPECT_EQ(2, combo.FindStringExact(-1, L"BETA"));
    EXPECT_EQ(CB_ERR, combo.FindStringExact(-1, L"bet"));
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_EQ(2, combo.DeleteString(0));
    EXPECT_EQ(0, combo.FindStringExact(-1, L"between"));
    combo.ResetContent();
    EXPECT_EQ(0, combo.GetCount());
}

} // namespace
