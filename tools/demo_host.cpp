// The demo host: a program that uses Qor_2016_18_64_Mfc.Dll the way a host CAD
// program does. It links the import library, reports what the DLL holds, installs
// an application object, and renders the sample model: every document through
// refresh to an enhanced metafile, and a PNG preview of each. With --view it shows a
// model, a slide or a picture in the library's windows instead (tools/demo_viewer.h).
#include <windows.h>

#include "displaylist/gdx.h"
#include "drawing/refresh.h"
#include "foundation/application/qor_app.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_text_format.h"
#include "host/default_app.h"
#include "host/install.h"
#include "tools/demo_documents.h"
#include "tools/demo_preview.h"
#include "tools/demo_viewer.h"

#include <cstdio>
#include <cwchar>
#include <cwctype>
#include <string>

namespace {

const wchar_t kDllName[] = L"Qor_2016_18_64_Mfc.Dll";
// The output size of every document, in device units (pixels of the previews).
constexpr int kWidth = 800;
constexpr int kHeight = 600;

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

void usage() {
    std::fprintf(stderr,
                 "usage: qor_demo_host [--exports] [--model DIR --slides LIB --out DIR]\n"
                 "       qor_demo_host --view FILE [--page N] [--size WxH] [--slides LIB]\n"
                 "                     [--screenshot OUT.png [--click X,Y]] [--timeout SECONDS]\n"
                 "  FILE: a model (.qdt), a slide (.sld), a library member (LIB.slb:NAME)\n"
                 "  or a picture (.bmp, .ico, .jpg, ...)\n");
}

// A whole positive number, or -1.
int positive(const std::wstring& text) {
    if (text.empty() || text.size() > 6)
        return -1;
    int n = 0;
    for (wchar_t c : text) {
        if (!std::iswdigit(c))
            return -1;
        n = n * 10 + (c - L'0');
    }
    return n > 0 ? n : -1;
}

// Renders every demo document to DIR\<name>.emf through refresh, and a PNG preview
// of each beside it. Returns the number of documents that failed.
int renderAll(const demo::Inputs& in, const std::wstring& outDir) {
    CQorDataItem model(1);
    CQorString error;
    const std::wstring main = in.modelDir + L"demo_model.qdt";
    if (!QOR::dataTextReadFile(main.c_str(), model, error)) {
        std::fprintf(stderr, "demo host: cannot read the model %ls: %ls\n", main.c_str(),
                     error.c_str());
        return demo::count();
    }
    int failed = 0;
    for (int k = 0; k < demo::count(); ++k) {
        CQorGDX gdx;
        const demo::Document d = demo::build(k, model, in, gdx);
        const std::wstring emf = outDir + L"\\" + d.name + L".emf";
        const std::wstring png = outDir + L"\\" + d.name + L".png";
        if (!d.built) {
            std::printf("  %-8ls  FAILED: nothing drawn (%s)\n", d.name.c_str(), d.title.c_str());
            ++failed;
            continue;
        }
        refresh(&gdx, emf.c_str(), kHeight, kWidth);
        const bool ok = demo::emfToPng(emf, png, kWidth, kHeight, 0xFFFFFF);
        std::printf("  %-8ls  %4d items  %s%s\n", d.name.c_str(), d.items, d.title.c_str(),
                    ok ? "" : "  (no preview)");
        failed += ok ? 0 : 1;
    }
    return failed;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    // The DLL wired its default host when it loaded; calling the wiring point again
    // changes nothing.
    QOR::host::installDefaultHost();
    bool listExports = false;
    demo::Inputs in;
    std::wstring outDir;
    demo::ViewerOptions view;
    for (int k = 1; k < argc; ++k) {
        const std::wstring a = argv[k];
        const bool more = k + 1 < argc;
        if (a == L"--exports") {
            listExports = true;
        } else if (a == L"--model" && more) {
            in.modelDir = argv[++k];
            if (!in.modelDir.empty() && in.modelDir.back() != L'\\' && in.modelDir.back() != L'/')
                in.modelDir += L'\\';
        } else if (a == L"--slides" && more) {
            in.slideLib = argv[++k];
        } else if (a == L"--out" && more) {
            outDir = argv[++k];
        } else if (a == L"--view" && more) {
            view.name = argv[++k];
        } else if (a == L"--screenshot" && more) {
            view.screenshot = argv[++k];
        } else if (a == L"--page" && more && positive(argv[k + 1]) > 0) {
            view.page = positive(argv[++k]) - 1;
        } else if (a == L"--timeout" && more && positive(argv[k + 1]) > 0) {
            view.timeoutSeconds = positive(argv[++k]);
        } else if (a == L"--click" && more) {
            const std::wstring at = argv[++k];
            const size_t comma = at.find(L',');
            view.clickX = comma == std::wstring::npos ? -1 : positive(at.substr(0, comma));
            view.clickY = comma == std::wstring::npos ? -1 : positive(at.substr(comma + 1));
            if (view.clickX < 0 || view.clickY < 0) {
                usage();
                return 2;
            }
        } else if (a == L"--size" && more) {
            const std::wstring size = argv[++k];
            const size_t x = size.find(L'x');
            view.width = x == std::wstring::npos ? -1 : positive(size.substr(0, x));
            view.height = x == std::wstring::npos ? -1 : positive(size.substr(x + 1));
            if (view.width < 1 || view.height < 1) {
                usage();
                return 2;
            }
        } else {
            usage();
            return 2;
        }
    }

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
    int status = icon && info[0] ? 0 : 2;

    if (!view.name.empty()) {
        qorAppSet(QOR::defaultAppPtr());
        view.slideLib = in.slideLib;
        status = demo::runViewer(view);
        qorAppSet(nullptr);
        FreeLibrary(dll);
        return status;
    }

    if (!in.modelDir.empty() && !outDir.empty()) {
        // The host's application object: here the library's own default.
        qorAppSet(QOR::defaultAppPtr());
        std::printf("documents (%d by %d device units) written to %ls:\n", kWidth, kHeight,
                    outDir.c_str());
        if (renderAll(in, outDir) != 0)
            status = 3;
        qorAppSet(nullptr);
    }
    FreeLibrary(dll);
    return status;
}
