// Every public header as a host includes it (imports from the DLL), and calls that
// go through the import library.
#include <windows.h>

#include "public_headers.h"

#include <gtest/gtest.h>

TEST(HostHeaders, EveryPublicHeaderCompilesForAHostAndCallsReachTheDll) {
    // The application object and a display list document, both from the DLL.
    ASSERT_NE(qorAppPtr(), nullptr);
    CQorGDX gdx;
    CQorArrayTempl<int> stack;
    stack.append(1);
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(0, 0, 0), CQorPoint3d(10, 0, 0), 0.0));
    gdx.imageVl(stack, 0, vl, CQorColor(), CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1,
                CQorPoint3d());
    EXPECT_EQ(gdx.lenGet(), 1);
    // The function came from the loaded DLL, not from a copy in this program.
    HMODULE dll = GetModuleHandleW(L"Qor_2016_18_64_Mfc.Dll");
    ASSERT_NE(dll, nullptr);
    EXPECT_NE(GetProcAddress(dll, "_Z9qorAppPtrv"), nullptr);
}
