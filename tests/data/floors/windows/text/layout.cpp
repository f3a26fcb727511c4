// Portable code with a Windows header.
#include <windows.h>
