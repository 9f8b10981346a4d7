# A generator that is built for another system cannot run here, so the data come from a build for this machine, where
# targets of the same names make them.
set(VELMARIS_FERTIGE_DATEN "" CACHE PATH "Folder bin of a build for this machine: where a cross build takes its data")
set(quelle ${VELMARIS_FERTIGE_DATEN})
set(ziel ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
set(hilfedateien)
foreach(sprache IN ITEMS d e)
    list(APPEND hilfedateien ${quelle}/Velmaris_${sprache}.chm ${quelle}/Velmaris_${sprache}.chm.sha256)
endforeach()
add_custom_target(velmaris_klimadaten ALL
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${quelle}/klima ${ziel}/klima VERBATIM)
add_custom_target(velmaris_grafiken ALL
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${quelle}/Grafiken ${ziel}/Grafiken VERBATIM)
add_custom_target(velmaris_hilfe ALL
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${hilfedateien} ${ziel} VERBATIM)
