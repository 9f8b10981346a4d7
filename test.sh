#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests. Works from any folder.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
. cmake/pakete.sh
pakete_holen $PAKETE_PROGRAMM $PAKETE_TESTS
cmake --preset release
cmake --build --preset release
ctest --preset release -j "$(nproc)"
