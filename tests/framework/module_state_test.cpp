#include "framework/module_state.h"

#include <gtest/gtest.h>

TEST(ModuleState, InstanceIsTheModuleHoldingTheLibrary) {
    // Linked statically into this test program, the library lives in the program.
    EXPECT_EQ(AfxGetInstanceHandle(), GetModuleHandleW(nullptr));
}

TEST(ModuleState, ResourceHandleDefaultsToInstanceAndCanBeSwitched) {
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
    HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
    ASSERT_NE(kernel, nullptr);
    AfxSetResourceHandle(kernel);
    EXPECT_EQ(AfxGetResourceHandle(), kernel);
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
}
