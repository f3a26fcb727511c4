# Runs clang-format in check mode over every C++ source of the tree.
set(_dirs foundation framework text displaylist styling drawing images slides host views dialogs
          controls appdialogs resources dll tools tests bench)
set(_files)
foreach(_d IN LISTS _dirs)
    file(GLOB_RECURSE _found ${ROOT}/${_d}/*.h ${ROOT}/${_d}/*.cpp)
    list(APPEND _files ${_found})
endforeach()
list(FILTER _files EXCLUDE REGEX "/tests/data/")
execute_process(COMMAND ${CLANG_FORMAT} --dry-run --Werror ${_files} RESULT_VARIABLE _rc)
if(NOT _rc EQUAL 0)
    message(FATAL_ERROR "clang-format finds differences (run: clang-format -i on the files above)")
endif()
