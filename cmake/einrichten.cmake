# `cmake --install BUILD --prefix FOLDER`: one folder with the programs and what they read beside them. It can be
# moved as a whole.
foreach(programm IN ITEMS velmaris velmaris_rechnen)
    if(TARGET ${programm})
        install(TARGETS ${programm} RUNTIME DESTINATION .)
    endif()
endforeach()
install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/klima ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Grafiken DESTINATION .
    OPTIONAL
    PATTERN typ.dat EXCLUDE)  # the language that somebody chose in the build tree
foreach(sprache IN ITEMS d e)
    set(hilfedatei ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Velmaris_${sprache}.chm)
    install(FILES ${hilfedatei} ${hilfedatei}.sha256 DESTINATION . OPTIONAL)
endforeach()
install(DIRECTORY samples/ DESTINATION beispiele)

# The build tree has them beside the program as well, where its dialogs offer them.
file(GLOB beispiele CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/samples ${CMAKE_SOURCE_DIR}/samples/*.vel)
foreach(beispiel IN LISTS beispiele)
    configure_file(samples/${beispiel} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/beispiele/${beispiel} COPYONLY)
endforeach()
