// The module state of the library: which module's resources dialogs, icons,
// cursors and strings load from.
#pragma once

#include "foundation/qor_export.h"

#include <windows.h>

// The module (DLL, or the program that links the library statically) that holds
// this code. Found from the address of this code, so it is right before DllMain runs.
QOR_API HINSTANCE AfxGetInstanceHandle();

// The module resources load from; the instance handle until set otherwise.
QOR_API HINSTANCE AfxGetResourceHandle();
QOR_API void AfxSetResourceHandle(HINSTANCE module);
