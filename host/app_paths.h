// The default host's search paths and help locations, behind QOR::fileFind and
// QOR::help_find (foundation/application/app_files.h).
#pragma once

#include "foundation/base/qor_string.h"

namespace QOR {
namespace host {

// Adds a folder at the end of the application's paths; null or empty is ignored.
QOR_API void appPathAdd(const wchar_t* folder);
// Empties the application's paths.
QOR_API void appPathsClear();

// Registers the help of an application name: a file or an "http" address with
// "<topic>" for the topic. Null or empty location removes the registration.
QOR_API void helpRegister(const wchar_t* app, const wchar_t* location);

// The default host's QOR::fileFind: name itself when that file can be opened for
// reading, otherwise the first folder of the paths that holds it (folder,
// separator, name). False, with out untouched, when there is none.
QOR_API bool appFileFind(CQorString& out, const wchar_t* name);
// The default host's QOR::help_find: the address or file registered for the
// application name (without regard to case), else "<app>.chm" found by
// appFileFind. False when there is none.
QOR_API bool appHelpFind(const wchar_t* app, CQorString& out);

} // namespace host
} // namespace QOR
