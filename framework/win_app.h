// CWinApp: the application object of the library. One global object of a derived
// class is constructed by the static initialisers; the DLL's entry point calls its
// InitInstance at load and ExitInstance at unload.
#pragma once

#include "foundation/base/qor_export.h"

#include <windows.h>

class QOR_API CWinApp {
public:
    // Registers the object as the module's application; appName may be null.
    explicit CWinApp(LPCWSTR appName = nullptr);
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;
    virtual ~CWinApp();

    // False refuses the load of the DLL.
    virtual BOOL InitInstance() { return TRUE; }
    virtual int ExitInstance() { return 0; }

    // A cursor or icon of the resource module (see AfxGetResourceHandle), or null.
    HCURSOR LoadCursor(UINT id) const;
    HICON LoadIcon(UINT id) const;
    // A cursor of the system by its IDC_ number, e.g. IDC_CROSS.
    HCURSOR LoadStandardCursor(LPCWSTR name) const;

    LPCWSTR m_pszAppName = nullptr;
    HINSTANCE m_hInstance = nullptr;
};

// The application object of this module, or null when none was constructed.
QOR_API CWinApp* AfxGetApp();
