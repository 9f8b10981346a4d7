#!/usr/bin/env bash
# Carries out a command with $WINE, in a Wine of its own that is gone afterwards:
#   unter_wine.sh COMMAND ...
set -euo pipefail
WINE=/usr/lib/wine/wine64
WINEPREFIX=$(mktemp -d)
# Nothing of the desktop's own: no menus, no kinds of files, and no questions for what is not needed here.
export WINE WINEPREFIX WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
server=/usr/lib/wine/wineserver64
aufraeumen() {
    "$server" -k || true
    "$server" -w || true
    rm -rf "$WINEPREFIX"
}
trap aufraeumen EXIT
# Its services stay up between two programs; they must not hold the streams of the first one.
"$server" -p >/dev/null 2>&1
"$WINE" wineboot --init >/dev/null 2>&1
"$@"
