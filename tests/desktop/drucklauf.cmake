cmake_minimum_required(VERSION 3.22)

# The real program prints without a window: exit status, error stream and the text of each page.
file(REMOVE_RECURSE ${ORDNER})
file(MAKE_DIRECTORY ${ORDNER})
file(WRITE ${ORDNER}/falsch.vel "Velmaris Version 1.0\r\n 10\r\n")
file(WRITE ${ORDNER}/alt.pdf "alt")
file(COPY_FILE ${BEISPIELE}/altes_haus.vel ${ORDNER}/Müllers-Haus.vel)

# No desktop is there, and the one that the environment names is not asked.
function(drucke status fehler)
    execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=DISPLAY --unset=XDG_RUNTIME_DIR LC_ALL=C.UTF-8
        LC_NUMERIC=C QT_QPA_PLATFORM=xcb ${PROGRAMM} ${ARGN}
        RESULT_VARIABLE ist OUTPUT_VARIABLE text ERROR_VARIABLE fehlertext WORKING_DIRECTORY ${ORDNER})
    if(NOT ist EQUAL status OR NOT "${fehlertext}" MATCHES "${fehler}" OR NOT "${text}" STREQUAL "")
        message(SEND_ERROR "${ARGN}: status ${ist}, not ${status}, or no \"${fehler}\" in\n${fehlertext}${text}")
    endif()
endfunction()

execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=DISPLAY ${PROGRAMM} --help
    OUTPUT_VARIABLE hilfe COMMAND_ERROR_IS_FATAL ANY)
if(NOT hilfe MATCHES "velmaris --drucken DATEI.pdf .*--sprache d\\|e\n")
    message(SEND_ERROR "no help:\n${hilfe}")
endif()

drucke(0 "^$" --drucken d.pdf Müllers-Haus.vel)
drucke(0 "^$" --sprache e Müllers-Haus.vel --drucken=e.pdf)
drucke(1 "^fehlt.vel: file not found\n$" --drucken alt.pdf --sprache e fehlt.vel)
drucke(1 "^falsch.vel: [^\n]+\n$" --drucken alt.pdf falsch.vel)
drucke(1 "^kein/neu.pdf: [^\n]+\n$" --drucken kein/neu.pdf Müllers-Haus.vel)
drucke(1 "^\\.: [^\n]+\n$" --drucken . Müllers-Haus.vel)
drucke(2 "^Aufruf" --drucken)
drucke(2 "^Aufruf" --drucken --sprache Müllers-Haus.vel)
drucke(2 "^Aufruf" --drucken alt.pdf)
drucke(2 "^Aufruf" --drucken alt.pdf eins.vel zwei.vel)
drucke(2 "^Aufruf" --drucken alt.pdf --sprache f Müllers-Haus.vel)
drucke(2 "^Aufruf" --drucken alt.pdf --unbekannt Müllers-Haus.vel)
file(READ ${ORDNER}/alt.pdf alt)
if(NOT alt STREQUAL "alt")
    message(SEND_ERROR "a failed print has changed the old file")
endif()

# The rest of the arguments are pieces of page `nummer` (from 1), as regular expressions.
function(seite_hat nummer)
    execute_process(COMMAND pdftotext -layout -enc UTF-8 -f ${nummer} -l ${nummer} ${name}.pdf -
        OUTPUT_VARIABLE seite WORKING_DIRECTORY ${ORDNER} COMMAND_ERROR_IS_FATAL ANY)
    foreach(muster IN ITEMS "^ +VELMaris\n" "Müllers-Haus.vel +- (Seite|Page) ${nummer} / 8 - +[0-9.]+\n" LISTS ARGN)
        if(NOT seite MATCHES "${muster}")
            message(SEND_ERROR "${name}: no \"${muster}\" on page ${nummer}\n${seite}")
        endif()
    endforeach()
endfunction()

set(name d)
seite_hat(1 "Datenblatt \\(Teil 1\\):" "Geometrie: +Skizze:" "Länge der Nord- und Südfassade +11\\.0 m" "Dämmung:"
    "Gebäude:" "Klima:" "Ruhrgebiet und weitere Ballungs-\n +gebiete des Flachlandes" "0,10 W/\\(m² K\\)")
seite_hat(2 "Datenblatt \\(Teil 2\\):" "Nord +Süd +Ost +West" "Energie:" "Energieträger +Heizöl EL")
seite_hat(3 "Ausgabe: Heiz- und Kühlstunden" "Heizstunden in h +744 +672" "Nullenergiestunden in %" "Jahressumme")
seite_hat(4 "Ausgabe: Wärmebilanz" "Summe absolut" "Summe spezifisch" "kWh/\\(m² Monat\\)" "Jahresbilanz")
seite_hat(5 "Ausgabe: Kühlbilanz" "Jahresmittel /" "Dez\\. +Jahressumme" "Kühlgradstunden" "Std\\./Tag")
seite_hat(6 "Ausgabe: Fensterbilanz" "Südabweichung: +0 ?°" "Solare Gewinne durch Fenster")
seite_hat(7 "Ausgabe: Primär- und Endenergiebedarf Heizung" "Endenergie Heizöl" "Primärenergie gesamt" "Strom\n")
seite_hat(8 "Ausgabe: Primär- und Endenergiebedarf Kühlung" "Effizienzfaktor Klimaanlage: +2\\.5 kWh Kühlung/kWh Strom")
set(name e)
seite_hat(1 "Data sheet \\(1\\):" "Geometry: +Sketch:" "Insulation:" "Building:" "Climate:")
seite_hat(2 "Data sheet \\(2\\):" "North +South +East +West" "Energy:" "fuel oil")
seite_hat(3 "Output: Heating and cooling hours" "Zero energy hours in h" "Annual sum")
seite_hat(4 "Output: Heat balance" "Sum absolute" "kWh/\\(m² month\\)")
seite_hat(5 "Output: Cooling balance" "Yearly mean /" "hours/day")
seite_hat(6 "Output: Balance of windows" "Solar gains of windows")
seite_hat(7 "Output: Primary and end energy demand for heating" "electricity")
seite_hat(8 "Output: Primary and end energy demand for cooling" "kWh cooling/kWh electr\\.")

execute_process(COMMAND pdffonts d.pdf OUTPUT_VARIABLE schriften WORKING_DIRECTORY ${ORDNER} COMMAND_ERROR_IS_FATAL ANY)
if(schriften MATCHES "Type 3| no +no| no +yes +no" OR NOT schriften MATCHES "TrueType")
    message(SEND_ERROR "not all texts are embedded as text:\n${schriften}")
endif()
