#include "framework/module_state.h"

namespace {
AFX_MODULE_STATE s_moduleState;
} // namespace

HINSTANCE AfxGetInstanceHandle() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&AfxGetInstanceHandle), &module);
    return module;
}

HINSTANCE AfxGetResourceHandle() {
    return s_moduleState.m_hCurrentResourceHandle ? s_moduleState.m_hCurrentResourceHandle
                                                  : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE module) {
    s_moduleState.m_hCurrentResourceHandle = module;
}

AFX_MODULE_STATE* AfxGetModuleState() {
    return &s_moduleState;
}

AFX_MODULE_STATE* AfxGetStaticModuleState() {
    return &s_moduleState;
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state)
    : m_state(state ? state : &s_moduleState), m_savedResource(m_state->m_hCurrentResourceHandle) {
    m_state->m_hCurrentResourceHandle = nullptr;
}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2() {
    m_state->m_hCurrentResourceHandle = m_savedResource;
}

HCURSOR AfxLoadCursor(UINT id) {
    return LoadCursorW(AfxGetResourceHandle(), MAKEINTRESOURCEW(id));
}

HICON AfxLoadIcon(UINT id) {
    return LoadIconW(AfxGetResourceHandle(), MAKEINTRESOURCEW(id));
}
