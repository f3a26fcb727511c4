// CButton: the check state and style of a button of the test dialog.
#include "framework/button.h"
#include "tests/framework/control_fixture.h"

namespace {

using ButtonTest = ControlFixture;

TEST_F(ButtonTest, ButtonCheckIsSetAndRead) {
    CButton check;
    bind(check, IDC_CHECK);
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    check.SetCheck(BST_CHECKED);
    EXPECT_EQ(BST_CHECKED, check.GetCheck());
    EXPECT_EQ(static_cast<UINT>(BS_AUTOCHECKBOX), check.GetButtonStyle() & 0x0F);
    check.SetCheck(BST_UNCHECKED);
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
}

} // namespace
