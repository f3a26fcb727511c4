// The export macro of the library.
//
// Building the library (the default) marks exported classes and functions with
// __declspec(dllexport) on Windows; a host that links the import library defines
// QOR_USE_DLL to get __declspec(dllimport). Native builds only set visibility.
#pragma once

#if defined(_WIN32)
#if defined(QOR_USE_DLL)
#define QOR_API __declspec(dllimport)
#else
#define QOR_API __declspec(dllexport)
#endif
#else
#define QOR_API __attribute__((visibility("default")))
#endif
