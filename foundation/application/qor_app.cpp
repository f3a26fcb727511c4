#include "foundation/application/qor_app.h"

CQorApp::~CQorApp() = default;

Qor::lFormat CQorApp::lFormatGet() {
    return Qor::formatDecimal;
}

unsigned long CQorApp::viewBkColorGet() {
    return 0x00FFFFFFul;
}

bool CQorApp::objImage(CQorGDX*, CQorDataItem*, CQorDataItem*) {
    return false;
}

bool CQorApp::hatchPatternGet(const wchar_t*, CQorArrayTempl<CQorArrayTempl<double>>& lines) {
    lines.setLogicalLength(0);
    return false;
}

bool CQorApp::entityOfKind(long long*, const wchar_t*, bool) {
    return false;
}

int CQorApp::lispCall(const wchar_t*, resbuf*, QOR::CSmartResbuf& result) {
    result.reset();
    return QOR::kRtError;
}

QOR::CHostServices* CQorApp::hostServices() {
    return nullptr;
}

static CQorApp* s_installed = nullptr;
static CQorApp* s_default = nullptr;

CQorApp* qorAppPtr() {
    if (s_installed)
        return s_installed;
    if (s_default)
        return s_default;
    static CQorApp s_bare;
    return &s_bare;
}

CQorApp* qorAppDefaultSet(CQorApp* app) {
    CQorApp* old = s_default;
    s_default = app;
    return old;
}

CQorApp* qorAppSet(CQorApp* app) {
    CQorApp* old = s_installed;
    s_installed = app;
    return old;
}
