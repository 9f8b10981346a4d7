# The one home of compiler options: every target of the house links velmaris_optionen.
add_library(velmaris_optionen INTERFACE)

# Stored results must not depend on the machine: no fused multiply-add, no fast-math.
if(MSVC)
    target_compile_options(velmaris_optionen INTERFACE /utf-8 /fp:precise /W4 /permissive-)
    if(VELMARIS_WERROR)
        target_compile_options(velmaris_optionen INTERFACE /WX)
    endif()
else()
    target_compile_options(velmaris_optionen INTERFACE
        -ffp-contract=off -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # g++ 12 sees overlapping copies in operator+(const char*, std::string&&) (GCC bug 105651).
        target_compile_options(velmaris_optionen INTERFACE -Wno-restrict)
    endif()
    if(VELMARIS_WERROR)
        target_compile_options(velmaris_optionen INTERFACE -Werror)
    endif()
    # For what is given to others: the same bytes in whatever folder it is built.
    option(VELMARIS_ORTLOS "Keep the names of folders out of the programs" OFF)
    if(VELMARIS_ORTLOS)
        target_compile_options(velmaris_optionen INTERFACE "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
    endif()
endif()

set(VELMARIS_SANITIZE "" CACHE STRING "Sanitizers, for instance address,undefined")
if(VELMARIS_SANITIZE)
    target_compile_options(velmaris_optionen INTERFACE
        -fsanitize=${VELMARIS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(velmaris_optionen INTERFACE -fsanitize=${VELMARIS_SANITIZE})
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
