#include "framework/win_app.h"

#include "framework/module_state.h"

CWinApp::CWinApp(LPCWSTR appName) : m_pszAppName(appName), m_hInstance(AfxGetInstanceHandle()) {
    AfxGetModuleState()->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp() {
    if (AfxGetModuleState()->m_pCurrentWinApp == this)
        AfxGetModuleState()->m_pCurrentWinApp = nullptr;
}

HCURSOR CWinApp::LoadCursor(UINT id) const {
    return AfxLoadCursor(id);
}

HICON CWinApp::LoadIcon(UINT id) const {
    return AfxLoadIcon(id);
}

HCURSOR CWinApp::LoadStandardCursor(LPCWSTR name) const {
    return ::LoadCursorW(nullptr, name);
}

CWinApp* AfxGetApp() {
    return AfxGetModuleState()->m_pCurrentWinApp;
}
