// The file names of the add-on's library family.
#pragma once

#include "foundation/base/qor_string.h"

namespace QOR {

// The release that every member of the family carries in its name.
constexpr const wchar_t* kAppRelease = L"2016_18_64";

// out = "<a>_<release>_<b>.<c>": ("Qor", "Mfc", "Dll") names this library,
// "Qor_2016_18_64_Mfc.Dll". A null part counts as empty.
QOR_API void appFileName(CQorString& out, const wchar_t* a, const wchar_t* b, const wchar_t* c);

} // namespace QOR
