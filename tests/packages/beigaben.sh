#!/usr/bin/env bash
# beigaben.sh PROGRAM MANUALS DATA: checks the manual pages and the completion against the program's help, and the
# menu entry, the kind of file and the icons by the desktop's own tools. A tool that is missing is told at the end.
set -uo pipefail
programm=$1 anleitungen=$2 daten=$3
fehler=0
fehlend=()
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT

# soll NAME COMMAND...: the command must end well and say nothing.
soll() {
    local name=$1 ausgabe
    shift
    if ! command -v "$1" >/dev/null; then
        fehlend+=("$1")
    elif ! ausgabe=$("$@" 2>&1) || [ -n "$ausgabe" ]; then
        echo "$name: $ausgabe"
        fehler=1
    fi
}

# The words that stand in $COMPREPLY after a line was typed; the last word is the one to complete.
vorschlaege() {
    COMP_WORDS=(velmaris_rechnen "$@")
    COMP_CWORD=$#
    COMPREPLY=()
    _velmaris_rechnen
    printf '%s\n' "${COMPREPLY[@]}" | sort | paste -sd' '
}

gleich() {
    [ "$2" = "$3" ] || { echo "$1: \"$2\" instead of \"$3\""; fehler=1; }
}

compopt() { :; }  # there is no line to edit
# shellcheck disable=SC1091
. "$anleitungen/velmaris_rechnen"
optionen=$("$programm" --help | grep -oE '^ +-[-a-z,]+' | tr -d ' ' | tr ',' '\n' | sort)
[ "$(wc -l <<<"$optionen")" -gt 20 ] || { echo "the help lists too few options"; fehler=1; }
gleich "options" "$(vorschlaege -)" "$(paste -sd' ' <<<"$optionen")"
gleich "letters" "$(vorschlaege --sprache '')" "d e"
gleich "behind =" "$(vorschlaege --bericht-seite = 7)" "7"
gleich "inputs" "$(vorschlaege --variiere Troom)" "Troom="
mkdir -p "$ordner/unter" && touch "$ordner"/{a.vel,b.VEL,c.txt,d.csv}
gleich "projects" "$(vorschlaege "$ordner/")" "$ordner/a.vel $ordner/b.VEL $ordner/unter"
gleich "tables" "$(vorschlaege --csv "$ordner/")" "$ordner/d.csv $ordner/unter"
gleich "folders" "$(vorschlaege --diagramme "$ordner/")" "$ordner/unter"

for seite in "$anleitungen"/*.1 "$anleitungen"/de/*.1; do
    soll "$seite" groff -man -Kutf8 -Tutf8 -ww -z "$seite"
done
for sprache in "" de/; do
    while read -r option; do
        grep -qF -- "${option//-/\\-}" "$anleitungen/${sprache}velmaris_rechnen.1" ||
            { echo "$option is not in the manual"; fehler=1; }
    done <<<"$optionen"
done

# This one tells of success.
if command -v appstreamcli >/dev/null; then
    appstreamcli validate --no-net "$daten"/*.metainfo.xml >"$ordner/metainfo" || { cat "$ordner/metainfo"; fehler=1; }
else
    fehlend+=(appstreamcli)
fi
soll "menu entry" desktop-file-validate "$daten/velmaris.desktop"
mkdir -p "$ordner/mime/packages" && cp "$daten/velmaris.xml" "$ordner/mime/packages"
export XDG_DATA_DIRS=$ordner
soll "kind of file" update-mime-database "$ordner/mime"
for bild in "$daten"/icons/*.svg; do
    soll "$bild" rsvg-convert --output "$ordner/bild.png" "$bild"
done
[ $fehler -eq 0 ] && [ ${#fehlend[@]} -gt 0 ] && echo "NOT CHECKED, missing: ${fehlend[*]}"
exit $fehler
