# `cmake --install BUILD --prefix FOLDER`: one folder with the programs and what they read beside them, which can be
# moved as a whole; or, for a package of the system, programs and data in the folders that they share with others.
option(VELMARIS_SYSTEMORDNER "Install into bin and share, as a package does" OFF)
if(VELMARIS_SYSTEMORDNER)
    include(GNUInstallDirs)
    set(programmziel ${CMAKE_INSTALL_BINDIR})
    set(datenziel ${CMAKE_INSTALL_DATAROOTDIR}/velmaris)  # the program looks for ../share/velmaris
    # Whatever the umask of the builder.
    set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
else()
    set(programmziel .)
    set(datenziel .)
endif()

foreach(programm IN ITEMS velmaris velmaris_rechnen)
    if(TARGET ${programm})
        install(TARGETS ${programm} RUNTIME DESTINATION ${programmziel})
    endif()
endforeach()
install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/klima ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Grafiken
    DESTINATION ${datenziel}
    OPTIONAL
    PATTERN typ.dat EXCLUDE)  # the language that somebody chose in the build tree
foreach(sprache IN ITEMS d e)
    set(hilfedatei ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Velmaris_${sprache}.chm)
    install(FILES ${hilfedatei} ${hilfedatei}.sha256 DESTINATION ${datenziel} OPTIONAL)
endforeach()
install(DIRECTORY samples/ DESTINATION ${datenziel}/beispiele
    PATTERN *.sh PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# The build tree has them beside the program as well, where its dialogs offer them.
file(GLOB beispiele CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/samples ${CMAKE_SOURCE_DIR}/samples/*.vel)
foreach(beispiel IN LISTS beispiele)
    configure_file(samples/${beispiel} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/beispiele/${beispiel} COPYONLY)
endforeach()

if(VELMARIS_SYSTEMORDNER)
    add_subdirectory(tools/packages)
    include(cmake/debian.cmake)
endif()
