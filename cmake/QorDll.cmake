# Qor_2016_18_64_Mfc.Dll: the objects of every layer's library in one DLL, with the
# resources and the entry point. Only symbols marked QOR_API are exported.
if(NOT QOR_WINDOWS)
    return()
endif()

add_library(Qor_2016_18_64_Mfc SHARED ${QOR_SOURCE_ROOT}/dll/dll_main.cpp)
get_property(_qor_layers GLOBAL PROPERTY QOR_LAYER_LIBRARIES)
set(_qor_archives)
foreach(_lib IN LISTS _qor_layers)
    get_target_property(_type ${_lib} TYPE)
    if(_type STREQUAL "STATIC_LIBRARY")
        list(APPEND _qor_archives ${_lib})
    endif()
endforeach()
# A DLL exports what its objects define, referenced or not: every object of every
# layer goes in. Linking the archives as well brings their system libraries along.
foreach(_lib IN LISTS _qor_archives)
    target_sources(Qor_2016_18_64_Mfc PRIVATE $<TARGET_OBJECTS:${_lib}>)
endforeach()
target_link_libraries(Qor_2016_18_64_Mfc PRIVATE ${_qor_archives} qor_resources)
qor_warnings(Qor_2016_18_64_Mfc)
set_target_properties(Qor_2016_18_64_Mfc PROPERTIES
    PREFIX ""
    OUTPUT_NAME "Qor_2016_18_64_Mfc"
    SUFFIX ".Dll"
    IMPORT_PREFIX ""
    IMPORT_SUFFIX ".lib")
