// The demo host: loads Qor_2016_18_64_Mfc.Dll at run time with LoadLibraryW, the way
// a host CAD program does, and reports what it found in it.
#include <windows.h>

#include <cstdio>
#include <cwchar>

namespace {

const wchar_t kDllName[] = L"Qor_2016_18_64_Mfc.Dll";

// Counts the named exports of a loaded module by reading its export directory.
int countExports(HMODULE module, bool print) {
    auto* base = reinterpret_cast<const BYTE*>(module);
    auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& dir =
        nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    if (dir.VirtualAddress == 0 || dir.Size == 0)
        return 0;
    auto* exports = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + dir.VirtualAddress);
    auto* names = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);
    for (DWORD i = 0; print && i < exports->NumberOfNames; ++i)
        std::printf("  %s\n", reinterpret_cast<const char*>(base + names[i]));
    return static_cast<int>(exports->NumberOfNames);
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    const bool listExports = argc > 1 && std::wcscmp(argv[1], L"--exports") == 0;

    // Look beside this program first, as a host does for its add-on folder.
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    wchar_t* slash = std::wcsrchr(path, L'\\');
    if (slash)
        slash[1] = 0;
    std::wcsncat(path, kDllName, MAX_PATH - std::wcslen(path) - 1);

    HMODULE dll = LoadLibraryW(path);
    if (!dll) {
        std::fprintf(stderr, "demo host: cannot load %ls (error %lu)\n", path, GetLastError());
        return 1;
    }
    wchar_t loaded[MAX_PATH] = {};
    GetModuleFileNameW(dll, loaded, MAX_PATH);
    std::printf("loaded %ls\n", loaded);

    wchar_t info[64] = {};
    LoadStringW(dll, 1, info, 64);
    std::printf("string 1: \"%ls\"\n", info);
    HICON icon = LoadIconW(dll, MAKEINTRESOURCEW(2000));
    std::printf("icon 2000: %s\n", icon ? "present" : "missing");
    std::printf("named exports: %d\n", countExports(dll, listExports));

    FreeLibrary(dll);
    return icon && info[0] ? 0 : 2;
}
