#include "foundation/application/app_file_name.h"

namespace QOR {

void appFileName(CQorString& out, const wchar_t* a, const wchar_t* b, const wchar_t* c) {
    CQorString name(a ? a : L"");
    name += L"_";
    name += kAppRelease;
    name += L"_";
    name += b ? b : L"";
    name += L".";
    name += c ? c : L"";
    out = name;
}

} // namespace QOR
