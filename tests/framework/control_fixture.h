// The test dialog made modeless, for the tests of the control classes: each binds
// its control of the template with SubclassDlgItem.
#pragma once

#include "tests/framework/dialog_fixture.h"

class ControlFixture : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        createModeless(dialog);
    }
    void TearDown() override {
        dialog.DestroyWindow();
        DialogFixture::TearDown();
    }
    template <class C> void bind(C& control, int id) {
        ASSERT_TRUE(control.SubclassDlgItem(static_cast<UINT>(id), &dialog));
    }
    CDialog dialog{IDD_TEST_DIALOG, nullptr};
};
