cmake_minimum_required(VERSION 3.22)

file(REMOVE_RECURSE ${ORDNER} ${ORDNER}_umgezogen)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BAU} --prefix ${ORDNER}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${ORDNER} ${ORDNER}_umgezogen)
set(teile klima/plz.txt Grafiken/haus0.bmp Grafiken/haus0@4.bmp)
if(EXISTS ${BAU}/bin/Velmaris_d.chm)
    list(APPEND teile Velmaris_d.chm Velmaris_d.chm.sha256 Velmaris_e.chm Velmaris_e.chm.sha256)
endif()
foreach(teil IN LISTS teile)
    if(NOT EXISTS ${ORDNER}_umgezogen/${teil})
        message(SEND_ERROR "${teil} was not installed")
    endif()
endforeach()
execute_process(COMMAND ${ORDNER}_umgezogen/velmaris_rechnen ${ORDNER}_umgezogen/beispiele/altes_haus.vel
    RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE text)
if(NOT status EQUAL 0)
    message(SEND_ERROR "the installed program ended with ${status}\n${text}")
endif()

# The same with programs and data apart, as a package has them.
set(geteilt ${ORDNER}_geteilt)
file(REMOVE_RECURSE ${geteilt})
file(MAKE_DIRECTORY ${geteilt}/bin ${geteilt}/share)
file(RENAME ${ORDNER}_umgezogen ${geteilt}/share/velmaris)
file(RENAME ${geteilt}/share/velmaris/velmaris_rechnen ${geteilt}/bin/velmaris_rechnen)
string(REPEAT "1\t1\t5.0\t0\t0\t0\n" 8760 stunden)
file(WRITE ${geteilt}/meteonorm.txt "Bern\n46.95,7.43,565,-1\nStandard\ndy\th\tTa\tG_Gh\tG_Dh\tG_Bh\n${stunden}")
execute_process(COMMAND ${CMAKE_COMMAND} -E env XDG_DATA_HOME=${geteilt}/eigen
        ${geteilt}/bin/velmaris_rechnen --import ${geteilt}/meteonorm.txt --name neu --land Schweiz
        ${geteilt}/share/velmaris/beispiele/altes_haus.vel
    RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE text)
if(NOT status EQUAL 0 OR NOT EXISTS ${geteilt}/eigen/Velmaris/klima/neu.met)
    message(SEND_ERROR "apart from its data the program ended with ${status}, or stored a station with them\n${text}")
endif()
