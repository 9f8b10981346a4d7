#!/usr/bin/env bash
# Installs what is missing and makes the programs for Windows on Debian 12: an installer and a zip for memory sticks in
# build/windows. Qt is built once for it, which takes long.
#   --console      velmaris_rechnen.exe alone, without Qt, installer and zip
#   --tests        the tests of the kernel too
#   --data FOLDER  the folder bin of a build for this machine, if its data shall be taken
#   --cache FOLDER where sources and libraries are kept (${XDG_CACHE_HOME:-~/.cache}/velmaris-windows)
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
VORRAT=${XDG_CACHE_HOME:-$HOME/.cache}/velmaris-windows
DATEN=
desktop=ON
tests=OFF
while [ $# -gt 0 ]; do
    case $1 in
        --console) desktop=OFF ;;
        --tests) tests=ON ;;
        --data)
            DATEN=$(readlink -f "${2:?--data needs a folder}")
            shift
            ;;
        --cache)
            mkdir -p "${2:?--cache needs a folder}"
            VORRAT=$(readlink -f "$2")
            shift
            ;;
        *)
            sed -n '2,7s/^# *//p' "$0" >&2
            exit 2
            ;;
    esac
    shift
done
. cmake/pakete.sh
. tools/windows/vorrat.sh
case $VORRAT in
    *[[:space:]]*)
        echo "The libraries cannot be built in a folder with blanks in its name ($VORRAT); name another one with --cache." >&2
        exit 1
        ;;
esac
[ $tests = OFF ] || PAKETE_WINDOWS+=" googletest"
pakete_holen $PAKETE_PROGRAMM $PAKETE_WINDOWS

. cmake/quellzeit.sh

einmal kopfdateien
einmal onetbb
[ $tests = OFF ] || einmal googletest
if [ $desktop = ON ]; then
    einmal chmlib
    einmal qt
fi

# The generators run here, and what they make is taken along.
if [ -z "$DATEN" ]; then
    DATEN=$PWD/build/windows-daten/bin
    cmake -S . -B build/windows-daten -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DVELMARIS_DESKTOP=OFF -DVELMARIS_TESTS=OFF -DVELMARIS_BENCH=OFF
    cmake --build build/windows-daten --target velmaris_klimadaten velmaris_grafiken velmaris_hilfe
fi
cmake -S . -B build/windows -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw.cmake" \
    -DVELMARIS_WINDOWS="$VORRAT" -DVELMARIS_FERTIGE_DATEN="$DATEN" \
    -DVELMARIS_DESKTOP=$desktop -DVELMARIS_TESTS=$tests -DVELMARIS_BENCH=OFF \
    -DVELMARIS_ORTLOS=ON -DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST
cmake --build build/windows
[ $desktop = ON ] || exit 0

. tools/windows/packen.sh
programmordner_fuellen
zip_packen
installer_packen
ls -l "$PWD"/build/windows/*-setup.exe "$PWD"/build/windows/*.zip
