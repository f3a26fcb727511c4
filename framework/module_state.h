// The module state of the library: which module's resources dialogs, icons,
// cursors and strings load from, and the application object.
#pragma once

#include "foundation/base/qor_export.h"

#include <windows.h>

class CWinApp;

// The module (DLL, or the program that links the library statically) that holds
// this code. Found from the address of this code, so it is right before DllMain runs.
QOR_API HINSTANCE AfxGetInstanceHandle();

// The module resources load from; the instance handle until set otherwise.
QOR_API HINSTANCE AfxGetResourceHandle();
QOR_API void AfxSetResourceHandle(HINSTANCE module);

// The state of this module. There is one: the library's own.
struct AFX_MODULE_STATE {
    // Null until set: AfxGetResourceHandle then gives the instance handle.
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    // The application object constructed in this module, or null.
    CWinApp* m_pCurrentWinApp = nullptr;
};

QOR_API AFX_MODULE_STATE* AfxGetModuleState();
// The state an exported entry point switches to (the same single state here).
QOR_API AFX_MODULE_STATE* AfxGetStaticModuleState();

// For the life of the object, resources load from this library's own module; the
// resource handle set before comes back at the end of the scope. Entry points that
// show dialogs or load cursors begin with AFX_MANAGE_STATE(AfxGetStaticModuleState()).
class QOR_API AFX_MAINTAIN_STATE2 {
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state);
    ~AFX_MAINTAIN_STATE2();
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

private:
    AFX_MODULE_STATE* m_state;
    HINSTANCE m_savedResource;
};

#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE2 _ctlState(p);

// Loads a cursor or icon resource of the given number from the resource module;
// null when it has none.
QOR_API HCURSOR AfxLoadCursor(UINT id);
QOR_API HICON AfxLoadIcon(UINT id);
