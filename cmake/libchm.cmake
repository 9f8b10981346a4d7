# The reader of compiled help files as target velmaris_libchm. The library brings neither a CMake package nor a
# pkg-config file of its own, so header and library are looked for by name.
find_path(VELMARIS_LIBCHM_ORDNER chm_lib.h)
find_library(VELMARIS_LIBCHM chm)
mark_as_advanced(VELMARIS_LIBCHM_ORDNER VELMARIS_LIBCHM)
if(NOT VELMARIS_LIBCHM_ORDNER OR NOT VELMARIS_LIBCHM)
    message(WARNING "libchm is missing (package libchm-dev), so the program will leave its help to the system's viewer")
    return()
endif()
add_library(velmaris_libchm INTERFACE)
target_include_directories(velmaris_libchm SYSTEM INTERFACE ${VELMARIS_LIBCHM_ORDNER})
target_link_libraries(velmaris_libchm INTERFACE ${VELMARIS_LIBCHM})
