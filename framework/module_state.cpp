#include "framework/module_state.h"

namespace {
HINSTANCE s_resourceHandle = nullptr;
} // namespace

HINSTANCE AfxGetInstanceHandle() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&AfxGetInstanceHandle), &module);
    return module;
}

HINSTANCE AfxGetResourceHandle() {
    return s_resourceHandle ? s_resourceHandle : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE module) {
    s_resourceHandle = module;
}
