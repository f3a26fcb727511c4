#include "foundation/qor_app.h"

#include "foundation/host/default_app.h"

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

static CQorApp* s_installed = nullptr;

CQorApp* qorAppPtr() {
    return s_installed ? s_installed : QOR::defaultAppPtr();
}

CQorApp* qorAppSet(CQorApp* app) {
    CQorApp* old = s_installed;
    s_installed = app;
    return old;
}
