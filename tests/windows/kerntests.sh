#!/usr/bin/env bash
# The tests of the kernel, built for Windows: kerntests.sh FOLDER-OF-THE-PROGRAMS. Runs below unter_wine.sh.
set -euo pipefail
ordner=$1
# What these do is not to be had there: links, pipes, rights of a group, and a limit for the size of files.
ohne=$(grep -v '^#' "$(dirname "$0")/ohne_posix.txt" | paste -sd:)
ergebnis=0
for programm in "$ordner"/*_test.exe; do
    printf '%-16s' "$(basename "$programm" .exe)"
    "$WINE" "$programm" --gtest_brief=1 --gtest_filter="-$ohne" 2>&1 | tr -d '\r' >"$WINEPREFIX/ausgabe" || ergebnis=1
    grep -E '^\[  (PASSED|FAILED)|ran\.|Failure' "$WINEPREFIX/ausgabe" | paste -sd' ' || ergebnis=1
done
exit $ergebnis
