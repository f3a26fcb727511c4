// qor_render: the command-line renderer of the native build. It draws the demo
// documents of the sample model with refresh into enhanced metafiles, written by
// the library's own metafile surface, so pictures can be made without Windows.
//
//     qor_render --model DIR --slides LIB --out DIR
#include "displaylist/gdx.h"
#include "drawing/refresh.h"
#include "foundation/base/utf8.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_text_format.h"
#include "host/install.h"
#include "tools/demo_documents.h"

#include <cstdio>
#include <cstring>
#include <string>

namespace {

// Arguments are UTF-8.
std::wstring widen(const char* text) {
    return QOR::fromUtf8(text, std::strlen(text)).c_str();
}

std::wstring withSlash(std::wstring dir) {
    if (!dir.empty() && dir.back() != L'/')
        dir += L'/';
    return dir;
}

} // namespace

int main(int argc, char** argv) {
    QOR::host::installDefaultHost();
    demo::Inputs in;
    std::wstring outDir;
    for (int k = 1; k + 1 < argc; k += 2) {
        const std::string a = argv[k];
        if (a == "--model")
            in.modelDir = withSlash(widen(argv[k + 1]));
        else if (a == "--slides")
            in.slideLib = widen(argv[k + 1]);
        else if (a == "--out")
            outDir = withSlash(widen(argv[k + 1]));
    }
    if (in.modelDir.empty() || outDir.empty() || argc % 2 == 0) {
        std::fprintf(stderr, "usage: qor_render --model DIR [--slides LIB] --out DIR\n");
        return 2;
    }
    CQorDataItem model(1);
    CQorString error;
    const std::wstring main = in.modelDir + L"demo_model.qdt";
    if (!QOR::dataTextReadFile(main.c_str(), model, error)) {
        std::fprintf(stderr, "qor_render: cannot read %ls: %ls\n", main.c_str(), error.c_str());
        return 1;
    }
    int failed = 0;
    for (int k = 0; k < demo::count(); ++k) {
        CQorGDX gdx;
        const demo::Document d = demo::build(k, model, in, gdx);
        if (!d.built) {
            std::printf("  %-8ls  FAILED: nothing drawn (%s)\n", d.name.c_str(), d.title.c_str());
            ++failed;
            continue;
        }
        const std::wstring file = outDir + d.name + L".emf";
        refresh(&gdx, file.c_str(), 600, 800);
        std::printf("  %-8ls  %4d items  %s\n", d.name.c_str(), d.items, d.title.c_str());
    }
    return failed == 0 ? 0 : 3;
}
