# Cross-compilation to Windows x64 with MinGW-w64 (POSIX thread model).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(_prefix x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${_prefix}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${_prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# libgcc, libstdc++ and winpthread go into every program and the DLL, so nothing
# needs MinGW's runtime DLLs at load time.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
