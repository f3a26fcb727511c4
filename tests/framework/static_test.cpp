// CStatic: the icon of a static control of the test dialog.
#include "framework/static.h"
#include "tests/framework/control_fixture.h"

namespace {

using StaticTest = ControlFixture;

TEST_F(StaticTest, StaticShowsTheIconItIsGiven) {
    CStatic icon;
    bind(icon, IDC_TEST_ICON);
    HICON app = LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_APPLICATION));
    HICON question = LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_QUESTION));
    icon.SetIcon(app);
    EXPECT_EQ(app, icon.GetIcon());
    EXPECT_EQ(app, icon.SetIcon(question));
    EXPECT_EQ(question, icon.GetIcon());
}

} // namespace
