cmake_minimum_required(VERSION 3.22)

file(REMOVE_RECURSE ${ORDNER} ${ORDNER}_umgezogen)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BAU} --prefix ${ORDNER}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${ORDNER} ${ORDNER}_umgezogen)
foreach(teil IN ITEMS klima/plz.txt Grafiken/haus0.bmp)
    if(NOT EXISTS ${ORDNER}_umgezogen/${teil})
        message(SEND_ERROR "${teil} was not installed")
    endif()
endforeach()
execute_process(COMMAND ${ORDNER}_umgezogen/velmaris_rechnen ${ORDNER}_umgezogen/beispiele/altes_haus.vel
    RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE text)
if(NOT status EQUAL 0)
    message(SEND_ERROR "the installed program ended with ${status}\n${text}")
endif()
