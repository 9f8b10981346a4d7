#!/usr/bin/env bash
# A study on several machines by GNU parallel and ssh: parallel.sh HAUS.vel PLAN.csv ergebnis TEILE [RECHNER]
# RECHNER names the machines for parallel's --sshlogin, "anna,otto,:" for instance (":" is this one, the default). The
# program must be found on each of them; project and plan are brought there, the parts are brought back and joined.
# Relative names only, in a folder below the home folder; the other machines use the one of that name below theirs, and
# then names of files must have no blanks.
set -euo pipefail
[ $# -ge 4 ] || { sed -n 2,6p "$0" >&2; exit 2; }
hier=$(dirname "$(readlink -f "$0")")
parallel --quote --sshlogin "${5:-:}" --jobs 1 --basefile "$1" --basefile "$2" --return "$3_{}.csv" --workdir . --joblog "$3.log" \
    "${VELMARIS:-velmaris_rechnen}" "$1" --plan "$2" --teil "{}/$4" --ausgabe "$3_{}.csv" --fortsetzen ::: $(seq "$4") ||
    echo "some parts have faulty rows or have failed (the column Exitval of $3.log)" >&2
"$hier/zusammenfuegen.sh" "$3" "$4" "$2" "$3.csv"
