# Toolchain for Windows programs from Linux: mingw-w64 with posix threads, as the package
# g++-mingw-w64-x86-64-posix brings it. The programs need no runtime library beside them, and two builds of the
# same sources are equal byte for byte.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${MINGW}-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT "-s")

# Headers and libraries of the host must not reach the compiler; VELMARIS_WINDOWS names the folder with what was
# built for Windows (tools/windows).
set(CMAKE_FIND_ROOT_PATH /usr/${MINGW} ${VELMARIS_WINDOWS}/fremd ${VELMARIS_WINDOWS}/qt)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VELMARIS_WINDOWS)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
