// Finding the application's files: data files along its paths, help files.
#pragma once

#include "foundation/qor_string.h"

namespace QOR {

// Locates a file: name itself when that file can be opened for reading,
// otherwise the first folder of the application's paths that holds it (folder,
// separator, name). out is the path found; false, with out untouched, when there
// is none or name is null or empty. The default host's paths are set with
// QOR::host::appPathAdd (foundation/host/app_files.h).
QOR_API bool fileFind(CQorString& out, const wchar_t* name);

// The help of an application name ("Qor" for this library): a file, or an
// address beginning with "http" in which "<topic>" stands for the topic. An
// address or file registered with QOR::host::helpRegister comes first; otherwise
// the file "<app>.chm" along the application's paths. False when there is none.
QOR_API bool help_find(const wchar_t* app, CQorString& out);

} // namespace QOR
