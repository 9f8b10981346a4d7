cmake_minimum_required(VERSION 3.22)

# The floors of the house, from the ground up; rooms on one floor stand side by side. A file includes its own folder
# and lower floors. Each finding is one line; any finding fails the test.
set(stockwerke
    "toolkit" "project" "language" "climate" "climate/import" "energy" "calc" "charts" "documents"
    "documents/report documents/print"
    "charts/planes climate/planes energy/planes documents/planes"
    "planes"
    "studies"
    "desktop/platform" "desktop/widgets" "desktop/views desktop/help"
    "desktop console tools"
)
set(gesichter desktop console tools)  # included by themselves and by tests alone

set(hoehe 0)
foreach(stockwerk IN LISTS stockwerke)
    math(EXPR hoehe "${hoehe} + 1")
    separate_arguments(raeume UNIX_COMMAND "${stockwerk}")
    foreach(raum IN LISTS raeume)
        set("hoehe_${raum}" ${hoehe})
    endforeach()
endforeach()

# The room of a file as it is named in an include line: the longest folder of it that has a floor.
function(raum_von datei ergebnis)
    get_filename_component(raum ${datei} DIRECTORY)
    while(raum AND NOT DEFINED "hoehe_${raum}")
        get_filename_component(raum "${raum}" DIRECTORY)
    endwhile()
    set(${ergebnis} "${raum}" PARENT_SCOPE)
endfunction()

set(fund "")
file(GLOB_RECURSE quellen ${QUELLORDNER}/src/*.h ${QUELLORDNER}/src/*.cpp ${QUELLORDNER}/tools/*.h
    ${QUELLORDNER}/tools/*.cpp)
foreach(quelle IN LISTS quellen)
    file(RELATIVE_PATH kurz ${QUELLORDNER} ${quelle})
    string(REGEX REPLACE "^src/" "" kurz ${kurz})
    raum_von(${kurz} raum)
    if(NOT raum)
        list(APPEND fund "${kurz}: stands on no floor")
        continue()
    endif()
    file(STRINGS ${quelle} zeilen ENCODING UTF-8 REGEX "^#include")
    foreach(zeile IN LISTS zeilen)
        if(zeile MATCHES "^#include \"([^\"]+)\"")
            raum_von(${CMAKE_MATCH_1} ziel)
            string(REGEX REPLACE "/.*" "" haus "${ziel}")
            if(NOT ziel)
                list(APPEND fund "${kurz}: not by folder and name: ${zeile}")
            elseif(NOT ziel STREQUAL raum AND NOT hoehe_${ziel} LESS hoehe_${raum})
                list(APPEND fund "${kurz}: points up or beside: ${zeile}")
            elseif(haus IN_LIST gesichter AND NOT raum MATCHES "^${haus}")
                list(APPEND fund "${kurz}: only tests include that: ${zeile}")
            endif()
        elseif(zeile MATCHES "^#include <Q" AND NOT raum MATCHES "^desktop")
            list(APPEND fund "${kurz}: Qt outside desktop: ${zeile}")
        elseif(zeile MATCHES "^#include <(oneapi/)?tbb/" AND NOT kurz STREQUAL "studies/fliessband.cpp")
            list(APPEND fund "${kurz}: threads outside studies/fliessband.cpp: ${zeile}")
        elseif(zeile MATCHES "^#include <(CLI|nlohmann)/" AND NOT raum STREQUAL "console")
            list(APPEND fund "${kurz}: a library of the console outside console: ${zeile}")
        endif()
    endforeach()
endforeach()

list(LENGTH quellen zahl)
if(zahl LESS 300)
    list(APPEND fund "only ${zahl} files were found")
endif()
if(fund)
    list(JOIN fund "\n" text)
    message(FATAL_ERROR "${text}")
endif()
