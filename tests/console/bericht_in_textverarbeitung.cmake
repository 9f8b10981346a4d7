cmake_minimum_required(VERSION 3.22)

# A foreign word processor opens the saved report and loses nothing of it: pages, umlauts, tabs.
find_program(SOFFICE soffice)
find_program(PDFTOTEXT pdftotext)
if(NOT SOFFICE OR NOT PDFTOTEXT)
    message("NOT CHECKED: soffice or pdftotext is not installed, so no word processor has opened the report.")
    return()
endif()

file(REMOVE_RECURSE ${ORDNER})
file(MAKE_DIRECTORY ${ORDNER})

function(lauf)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE text
        WORKING_DIRECTORY ${ORDNER} TIMEOUT 120)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN}: ${status}\n${text}")
    endif()
endfunction()

# The text that a page must have, with blanks where the page has tabs.
function(seite_hat nummer)
    list(GET seiten ${nummer} seite)
    foreach(muster IN LISTS ARGN)
        if(NOT seite MATCHES "${muster}")
            message(SEND_ERROR "${name}: no \"${muster}\" on page ${nummer}\n${seite}")
        endif()
    endforeach()
endfunction()

foreach(sprache IN ITEMS d e)
    lauf(${CMAKE_COMMAND} -E env LC_ALL=C ${PROGRAMM} --sprache ${sprache} --bericht ${sprache}.rtf
        ${BEISPIELE}/altes_haus.vel)
endforeach()
string(REPLACE " " "%20" nutzer "file://${ORDNER}/nutzer")
lauf(${CMAKE_COMMAND} -E env HOME=${ORDNER} ${SOFFICE} --headless -env:UserInstallation=${nutzer}
    --convert-to pdf d.rtf e.rtf)

# Reads the pages of a document into the list `seiten`.
string(ASCII 12 seitenende)
macro(lies_seiten dokument)
    set(name ${dokument})
    lauf(${PDFTOTEXT} -layout -enc UTF-8 ${name}.pdf ${name}.txt)
    file(READ ${ORDNER}/${name}.txt text)
    string(REGEX REPLACE "${seitenende}$" "" text "${text}")
    string(REPLACE ";" "," text "${text}")
    string(REPLACE "${seitenende}" ";" seiten "${text}")
    list(LENGTH seiten zahl)
    # Seven pages of the report; its data sheet is longer than a sheet of paper.
    if(NOT zahl EQUAL 8)
        message(SEND_ERROR "${name}.pdf has ${zahl} pages")
    endif()
    foreach(nummer IN ITEMS 0 2 3 4 5 6 7)
        seite_hat(${nummer} "^ +VELMaris\n")
    endforeach()
endmacro()

lies_seiten(d)
seite_hat(0 "Datenblatt\n" "Dämmung:" "Länge der Nord- und Südfassade: +11\\.0 m\n" " W/\\(m² K\\)")
seite_hat(1 "Fenster:" "Heizungssystem: +Niedertemperaturkessel")
seite_hat(2 "Ausgabe: Übersicht\n" "März +[0-9]+\\.[0-9] +0\\.0\n")
seite_hat(4 "Ausgabe: Wärmebilanz\n" "Januar( +[0-9]+\\.[0-9])(( +[0-9]+\\.[0-9])+) +1\\.00 +[0-9]+\\.[0-9]\n")
seite_hat(7 "Primär- und Endenergiebedarf Kühlung\n" "2\\.5 kWh Kühlung/ kWh Strom\n")

lies_seiten(e)
seite_hat(0 "Data sheet\n" "kWhcool / kWhelectr" "Wärmebrücken: +increase")
seite_hat(3 "Effective heating days: +[0-9]+ Tage\n")
