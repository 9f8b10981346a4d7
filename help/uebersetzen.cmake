# Runs the help compiler UEBERSETZER over the project PROJEKT and puts the result at ZIEL and its checksum beside it,
# as a line that "sha256sum -c" reads. The compiler writes beside its project, and it ends well even when a page or a
# link is missing; its messages tell.
get_filename_component(ordner ${PROJEKT} DIRECTORY)
get_filename_component(name ${PROJEKT} NAME_WE)
get_filename_component(zielordner ${ZIEL} DIRECTORY)
get_filename_component(zielname ${ZIEL} NAME)
execute_process(
    COMMAND ${UEBERSETZER} --html-scan ${name}.hhp
    WORKING_DIRECTORY ${ordner}
    RESULT_VARIABLE ergebnis
    OUTPUT_VARIABLE meldungen
    ERROR_VARIABLE meldungen
)
if(ergebnis OR meldungen MATCHES "Error:|Warning:" OR NOT EXISTS ${ordner}/${name}.chm)
    message(FATAL_ERROR "The help could not be compiled:\n${meldungen}")
endif()
file(MAKE_DIRECTORY ${zielordner})
file(COPY_FILE ${ordner}/${name}.chm ${ZIEL})
file(SHA256 ${ordner}/${name}.chm summe)
file(CONFIGURE OUTPUT ${ZIEL}.sha256 CONTENT "${summe}  ${zielname}\n" NEWLINE_STYLE UNIX)
