#!/usr/bin/env bash
# Joins the parts of a study: zusammenfuegen.sh STAMM TEILE PLAN.csv|ZEILEN GANZ.csv
# STAMM_1.csv to STAMM_N.csv become GANZ.csv, which is written only if no part, no row and no end of a row is missing.
set -euo pipefail
[ $# -eq 4 ] || { sed -n 2,3p "$0" >&2; exit 2; }
stamm=$1 teile=$2 zeilen=$3 ganz=$4
[ ! -f "$zeilen" ] || zeilen=$(awk 'END { print NR - 1 }' "$zeilen")
dateien=()
for ((i = 1; i <= teile; ++i)); do
    [ -f "${stamm}_$i.csv" ] || { echo "${stamm}_$i.csv is missing" >&2; exit 1; }
    dateien+=("${stamm}_$i.csv")
done
awk -F, -v zeilen="$zeilen" '
    function fehlt(was) { print FILENAME ", line " FNR ": " was > "/dev/stderr"; kaputt = 1; exit 1 }
    !/\r$/ { fehlt("the row is not whole") }
    FNR == 1 && NR == 1 { kopf = $0; print; next }
    FNR == 1 { if ($0 != kopf) fehlt("another head than that of the first part"); next }
    $1 != nr + 1 { fehlt("row " $1 " follows row " nr + 0) }
    { nr = $1; print }
    END { if (!kaputt && nr != zeilen) fehlt("the last row is " nr + 0 ", not " zeilen) }
' "${dateien[@]}" > "$ganz.neu" || { rm -f "$ganz.neu"; exit 1; }
mv "$ganz.neu" "$ganz"
