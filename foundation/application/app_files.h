// Finding the application's files: data files along its paths, help files.
#pragma once

#include "foundation/base/qor_string.h"

namespace QOR {

// Locates a file: name itself when that file can be opened for reading,
// otherwise the first folder of the application's paths that holds it (folder,
// separator, name), as the host's services find it. out is the path found; false,
// with out untouched, when there is none or name is null or empty.
QOR_API bool fileFind(CQorString& out, const wchar_t* name);

// The help of an application name ("Qor" for this library): a file, or an
// address beginning with "http" in which "<topic>" stands for the topic, as the
// host's services find it. False when there is none or app is null or empty.
QOR_API bool help_find(const wchar_t* app, CQorString& out);

} // namespace QOR
