# GoogleTest from the distribution's source package, built inside each build so the
# native and the Windows build use the same framework.
set(QOR_GOOGLETEST_DIR /usr/src/googletest CACHE PATH "GoogleTest sources")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
add_subdirectory(${QOR_GOOGLETEST_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
include(GoogleTest)

# qor_test(name SOURCES ... LIBS ...)
# A test program whose tests ctest lists one by one. Under Wine the listing runs at
# test time, so a build never needs Wine.
function(qor_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gmock GTest::gtest_main)
    target_include_directories(${name} PRIVATE ${QOR_SOURCE_ROOT})
    target_compile_definitions(${name} PRIVATE QOR_TEST_DATA_DIR="${QOR_SOURCE_ROOT}/tests/data"
                                               QOR_SHARED_DATA_DIR="${QOR_SOURCE_ROOT}/../shared/data")
    qor_warnings(${name})
    if(CMAKE_CROSSCOMPILING)
        gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
                             PROPERTIES TIMEOUT 300)
    else()
        gtest_discover_tests(${name} PROPERTIES TIMEOUT 300)
    endif()
endfunction()
