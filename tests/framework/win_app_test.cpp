// CWinApp and the module state: the application object registers itself, resources
// load from the library's module, AFX_MANAGE_STATE restores what it switched.
#include "framework/module_state.h"
#include "framework/win_app.h"

#include <gtest/gtest.h>

namespace {

class CTestApp : public CWinApp {
public:
    CTestApp() : CWinApp(L"TestApp") {}
    BOOL InitInstance() override {
        ++inits;
        return TRUE;
    }
    int inits = 0;
};

} // namespace

TEST(WinApp, ConstructedApplicationIsTheModulesApplicationUntilItGoes) {
    EXPECT_EQ(AfxGetApp(), nullptr); // the test program constructs none of its own
    {
        CTestApp app;
        EXPECT_EQ(AfxGetApp(), &app);
        EXPECT_STREQ(AfxGetApp()->m_pszAppName, L"TestApp");
        EXPECT_EQ(app.m_hInstance, AfxGetInstanceHandle());
        EXPECT_TRUE(AfxGetApp()->InitInstance());
        EXPECT_EQ(app.inits, 1);
    }
    EXPECT_EQ(AfxGetApp(), nullptr);
}

TEST(WinApp, StandardCursorLoadsAndMissingResourceGivesNull) {
    CWinApp app;
    EXPECT_NE(app.LoadStandardCursor(reinterpret_cast<LPCWSTR>(IDC_CROSS)), nullptr);
    // The test program carries no resources of the library.
    EXPECT_EQ(app.LoadCursor(2006), nullptr);
    EXPECT_EQ(app.LoadIcon(2000), nullptr);
}

TEST(ModuleState, ManageStateSwitchesToTheLibraryAndRestores) {
    HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
    AfxSetResourceHandle(kernel);
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
    }
    EXPECT_EQ(AfxGetResourceHandle(), kernel);
    AfxSetResourceHandle(nullptr);
}
