// Entry point of Qor_2016_18_64_Mfc.Dll. Static initialisers have run by the time
// the loader calls it, so the application object, if the library has one, exists:
// it is started at load and ended at unload.
#include "framework/win_app.h"

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
        if (CWinApp* app = AfxGetApp())
            return app->InitInstance();
    } else if (reason == DLL_PROCESS_DETACH) {
        if (CWinApp* app = AfxGetApp())
            app->ExitInstance();
    }
    return TRUE;
}
