# What a program brings for Windows: icons, version, and the manifest that says how it is to be run.
if(NOT WIN32)
    return()
endif()
enable_language(RC)
find_program(VELMARIS_RSVG rsvg-convert DOC "Draws the icons")
find_program(VELMARIS_ICOTOOL icotool DOC "Packs the icons")

# An icon file of a drawing, small sizes from their own drawing; says its name in `ergebnis`, nothing where the
# programs for it are missing.
function(velmaris_ico name ergebnis)
    set(${ergebnis} "" PARENT_SCOPE)
    if(NOT VELMARIS_RSVG OR NOT VELMARIS_ICOTOOL)
        message(WARNING "rsvg-convert or icotool is missing, so the programs will have no icons of their own. "
                        "Install the packages librsvg2-bin and icoutils and configure again.")
        return()
    endif()
    set(bilder)
    foreach(groesse IN ITEMS 16 20 24 32 40 48 64 256)
        set(zeichnung ${CMAKE_SOURCE_DIR}/tools/packages/icons/${name}.svg)
        if(groesse LESS_EQUAL 24)
            set(zeichnung ${CMAKE_SOURCE_DIR}/tools/packages/icons/${name}-klein.svg)
        endif()
        set(bild ${CMAKE_CURRENT_BINARY_DIR}/${name}-${groesse}.png)
        add_custom_command(OUTPUT ${bild}
            COMMAND ${VELMARIS_RSVG} -w ${groesse} -h ${groesse} -o ${bild} ${zeichnung}
            DEPENDS ${zeichnung} VERBATIM)
        list(APPEND bilder ${bild})
    endforeach()
    set(ico ${CMAKE_BINARY_DIR}/${name}.ico)
    list(POP_BACK bilder gross)
    add_custom_command(OUTPUT ${ico}
        COMMAND ${VELMARIS_ICOTOOL} -c -o ${ico} ${bilder} --raw=${gross}
        DEPENDS ${bilder} ${gross} VERBATIM)
    add_custom_target(ico_${name} DEPENDS ${ico})
    set(${ergebnis} ${ico} PARENT_SCOPE)
endfunction()

velmaris_ico(velmaris VELMARIS_ICO)
velmaris_ico(application-x-velmaris VELMARIS_DATEI_ICO)

# Gives a program its version under that description, the manifest, and the icons: its own first, then that of
# project files.
function(velmaris_beilagen ziel BESCHREIBUNG)
    set(BILDZEILEN)
    if(VELMARIS_ICO)
        set(BILDZEILEN "1 ICON \"${VELMARIS_ICO}\"\n2 ICON \"${VELMARIS_DATEI_ICO}\"")
    endif()
    set(MANIFEST ${CMAKE_BINARY_DIR}/velmaris.manifest)
    configure_file(${CMAKE_SOURCE_DIR}/tools/windows/velmaris.manifest.in ${MANIFEST} @ONLY)
    string(REPLACE "." "," nummer ${PROJECT_VERSION})
    set(VERSION_MIT_KOMMAS ${nummer},0,0)
    set(ZIEL ${ziel})
    set(rc ${CMAKE_CURRENT_BINARY_DIR}/${ziel}.rc)
    configure_file(${CMAKE_SOURCE_DIR}/tools/windows/beilagen.rc.in ${rc} @ONLY)
    target_sources(${ziel} PRIVATE ${rc})
    set_source_files_properties(${rc} PROPERTIES
        OBJECT_DEPENDS "${VELMARIS_ICO};${VELMARIS_DATEI_ICO};${MANIFEST}")
    if(VELMARIS_ICO)
        add_dependencies(${ziel} ico_velmaris ico_application-x-velmaris)
    endif()
    if(MSVC)
        target_link_options(${ziel} PRIVATE /MANIFEST:NO)
    endif()
endfunction()
