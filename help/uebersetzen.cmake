# Runs the help compiler UEBERSETZER over the project PROJEKT; it writes beside it. It ends well even when a page or
# a link is missing; its messages tell.
get_filename_component(ordner ${PROJEKT} DIRECTORY)
get_filename_component(name ${PROJEKT} NAME_WE)
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
