# GoogleTest from the distribution's source package, built inside each build so the
# native and the Windows build use the same framework.
set(QOR_GOOGLETEST_DIR /usr/src/googletest CACHE PATH "GoogleTest sources")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
add_subdirectory(${QOR_GOOGLETEST_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
include(GoogleTest)

# Where tests find their data files; Windows programs under Wine see the Linux file
# system as drive Z:.
get_filename_component(_qor_root ${CMAKE_CURRENT_LIST_DIR}/.. ABSOLUTE)
if(CMAKE_CROSSCOMPILING AND QOR_WINDOWS)
    set(QOR_TEST_DATA_DIR "Z:${_qor_root}/tests/data")
else()
    set(QOR_TEST_DATA_DIR "${_qor_root}/tests/data")
endif()

# qor_test(name [THROUGH_DLL] SOURCES ... LIBS ...)
# A test program whose tests ctest lists one by one. Under Wine the listing runs at
# test time, so a build never needs Wine. Its main wires the library as the DLL does
# at load (tests/test_main.cpp); THROUGH_DLL programs reach the library through the
# DLL, which wires itself, and take GoogleTest's own main.
function(qor_test name)
    cmake_parse_arguments(ARG "THROUGH_DLL" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    if(ARG_THROUGH_DLL)
        target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gmock GTest::gtest_main)
    else()
        target_link_libraries(${name} PRIVATE ${ARG_LIBS} qor_test_main GTest::gmock)
    endif()
    target_include_directories(${name} PRIVATE ${QOR_SOURCE_ROOT})
    target_compile_definitions(${name} PRIVATE QOR_TEST_DATA_DIR="${QOR_TEST_DATA_DIR}")
    qor_warnings(${name})
    if(CMAKE_CROSSCOMPILING)
        gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
                             PROPERTIES TIMEOUT 300)
    else()
        gtest_discover_tests(${name} PROPERTIES TIMEOUT 300)
    endif()
endfunction()

# qor_fuzz_target(name SOURCES ... LIBS ...)
# A fuzz target: sources defining LLVMFuzzerTestOneInput. With QOR_FUZZ (clang) it
# becomes a libFuzzer program; in every build it also becomes the test
# Fuzz.<name>ReplaysCorpus, which feeds each file of tests/fuzz/corpus/<name>/ to the
# entry point, so found crashes stay fixed in both builds.
function(qor_fuzz_target name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    if(QOR_FUZZ)
        add_executable(${name}_fuzzer ${ARG_SOURCES})
        target_link_libraries(${name}_fuzzer PRIVATE ${ARG_LIBS})
        target_compile_options(${name}_fuzzer PRIVATE -fsanitize=fuzzer)
        target_link_options(${name}_fuzzer PRIVATE -fsanitize=fuzzer)
        qor_warnings(${name}_fuzzer)
    endif()
    add_executable(${name}_replay ${ARG_SOURCES} ${_qor_root}/tests/fuzz/replay_main.cpp)
    target_link_libraries(${name}_replay PRIVATE ${ARG_LIBS})
    target_include_directories(${name}_replay PRIVATE ${_qor_root})
    qor_warnings(${name}_replay)
    add_test(NAME Fuzz.${name}ReplaysCorpus
             COMMAND ${name}_replay "${QOR_TEST_DATA_DIR}/../fuzz/corpus/${name}")
    set_tests_properties(Fuzz.${name}ReplaysCorpus PROPERTIES TIMEOUT 300)
endfunction()
