// Entry point of Qor_2016_18_64_Mfc.Dll. Static initialisers have run by the time
// the loader calls it; nothing else happens at load or unload.
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH)
        DisableThreadLibraryCalls(module);
    return TRUE;
}
