// Entry point of Qor_2016_18_64_Mfc.Dll, and the library's one wiring point. At load
// the embedded default host becomes the default application object and the bitmap
// previews become the painters' picture loader; then the application object, if the
// library has one (static initialisers constructed it), is started. It is ended at
// unload.
#include "framework/win_app.h"
#include "host/install.h"
#include "views/bitmap.h"

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
        QOR::host::installDefaultHost();
        QOR::pictureLoaderInstall();
        if (CWinApp* app = AfxGetApp())
            return app->InitInstance();
    } else if (reason == DLL_PROCESS_DETACH) {
        if (CWinApp* app = AfxGetApp())
            app->ExitInstance();
    }
    return TRUE;
}
