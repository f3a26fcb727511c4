# Helpers shared by all folders: warnings, sanitizers and the library targets of the layers.

set(QOR_SOURCE_ROOT ${CMAKE_CURRENT_LIST_DIR}/..)

if(QOR_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=address,undefined)
endif()

# Fuzzing builds instrument every library for coverage; only the fuzz programs link
# libFuzzer's own main.
if(QOR_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Warnings are errors in our own code (not in GoogleTest or other imported code).
function(qor_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
endfunction()

# qor_library(name [WINDOWS_ONLY] SOURCES ... DEPS ...)
# One folder, one static library. Without sources the folder is an interface target
# that only carries include paths and dependencies.
function(qor_library name)
    cmake_parse_arguments(ARG "WINDOWS_ONLY" "" "SOURCES;DEPS" ${ARGN})
    if(ARG_WINDOWS_ONLY AND NOT QOR_WINDOWS)
        return()
    endif()
    if(ARG_SOURCES)
        add_library(${name} STATIC ${ARG_SOURCES})
        target_include_directories(${name} PUBLIC ${QOR_SOURCE_ROOT})
        target_link_libraries(${name} PUBLIC ${ARG_DEPS})
        qor_warnings(${name})
        if(QOR_WINDOWS)
            target_compile_definitions(${name} PUBLIC UNICODE _UNICODE WIN32_LEAN_AND_MEAN
                                                      NOMINMAX _WIN32_WINNT=0x0601)
        endif()
    else()
        add_library(${name} INTERFACE)
        target_include_directories(${name} INTERFACE ${QOR_SOURCE_ROOT})
        target_link_libraries(${name} INTERFACE ${ARG_DEPS})
    endif()
    set_property(GLOBAL APPEND PROPERTY QOR_LAYER_LIBRARIES ${name})
endfunction()
