#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests. Works from any folder.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
. cmake/pakete.sh
[ "${CI:-}" = true ] || PAKETE_TESTS_CI=
pakete_holen $PAKETE_PROGRAMM $PAKETE_TESTS $PAKETE_TESTS_CI
# Warnings are errors here, not for somebody who builds with a newer compiler than ours.
cmake --preset release -DVELMARIS_WERROR=ON
cmake --build --preset release
ctest --preset release -j "$(nproc)"
command -v soffice >/dev/null || {
    echo "Note: soffice is not installed, so no office has opened the saved report and the tables."
    echo "CI=true ./test.sh installs it first."
}
# Four minutes of work more, so only where tests run unattended.
if [ "${CI:-}" = true ] && command -v x86_64-w64-mingw32-g++-posix >/dev/null && [ -x /usr/lib/wine/wine64 ]; then
    tools/windows/build.sh --console --data build/release/bin
    tests/windows/unter_wine.sh python3 tests/windows/gleiche_ergebnisse.py build/release/bin/velmaris_rechnen \
        build/windows/bin/velmaris_rechnen.exe samples build/windows/vergleich 0
else
    echo "Note: the console program for Windows was NOT CHECKED; that takes CI=true, mingw-w64 and wine64."
fi
