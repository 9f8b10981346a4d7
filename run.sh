#!/usr/bin/env bash
# Installs what is missing, builds the program and runs it: ./run.sh [PROJEKT.vel]
# Opens the window where there is a display, otherwise prints the summary of the project.
set -euo pipefail
aufruf=$PWD
cd "$(dirname "$(readlink -f "$0")")"
. cmake/pakete.sh
pakete_holen $PAKETE_PROGRAMM ${WAYLAND_DISPLAY:+$PAKETE_WAYLAND}
cmake --preset release -DVELMARIS_TESTS=OFF -DVELMARIS_BENCH=OFF -B build/run
cmake --build build/run
projekt=${1:-samples/niedrigenergiehaus.vel}
[ $# -eq 0 ] || [[ $projekt == /* ]] || projekt=$aufruf/$projekt
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    build/run/bin/velmaris "$projekt"
else
    build/run/bin/velmaris_rechnen "$projekt"
fi
