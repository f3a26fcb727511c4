// The default host's search paths and help locations, behind QOR::fileFind and
// QOR::help_find (foundation/app_files.h).
#pragma once

#include "foundation/qor_string.h"

namespace QOR {
namespace host {

// Adds a folder at the end of the application's paths; null or empty is ignored.
QOR_API void appPathAdd(const wchar_t* folder);
// Empties the application's paths.
QOR_API void appPathsClear();

// Registers the help of an application name: a file or an "http" address with
// "<topic>" for the topic. Null or empty location removes the registration.
QOR_API void helpRegister(const wchar_t* app, const wchar_t* location);

} // namespace host
} // namespace QOR
