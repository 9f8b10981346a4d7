#!/usr/bin/env bash
# The installer and the desktop program under Wine, with mouse and keys: desktop.sh SETUP.EXE FOLDER-FOR-PICTURES.
# Runs below unter_wine.sh. Needs xvfb, openbox, xdotool, xclip, imagemagick, poppler-utils.
set -euo pipefail
setup=$1
bilder=$2
mkdir -p "$bilder"
rm -f "$bilder"/*
laufwerk=$WINEPREFIX/drive_c
eigene="$laufwerk/Häuser ß"
mkdir -p "$eigene"

scheitern() {
    import -window root "$bilder/fehler.png" || true
    cp -r "$eigene" "$bilder/" || true
    echo "FAILED: $*" >&2
    exit 1
}

bildschirm=:$((41 + RANDOM % 9))
Xvfb $bildschirm -screen 0 1280x960x24 >/dev/null 2>&1 &
xvfb=$!
trap 'kill $xvfb 2>/dev/null || true' EXIT
export DISPLAY=$bildschirm
sleep 2
openbox >/dev/null 2>&1 &

bild() { sleep "${2:-1}" && import -window root "$bilder/$1.png"; }
taste() { xdotool key --delay 60 "$@" && sleep 1; }
# By the clipboard, since Wine loses letters that the keyboard at hand does not have.
fuege_ein() {
    printf %s "$1" | xclip -selection clipboard -in
    sleep 1
    taste ctrl+a
    taste ctrl+v
}
# A window by its name, as soon as it is there, in front.
fenster() {
    local id
    for _ in $(seq 60); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) || true
        [ -z "$id" ] || break
        sleep 1
    done
    [ -n "$id" ] || scheitern "no window $1"
    sleep 1
    xdotool windowactivate --sync "$id" >/dev/null 2>&1 || true
    sleep 1
    echo "$id"
}
kein_fenster() {
    for _ in $(seq 20); do
        xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 || return 0
        sleep 0.5
    done
    scheitern "window $1 is still there"
}
# A click at a place of a window, as if the window were of that size: klick_in WINDOW WIDTH HEIGHT X Y
klick_in() {
    local WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$1" | grep -E '^(WIDTH|HEIGHT)=')"
    xdotool mousemove --window "$1" $(($4 * WIDTH / $2)) $(($5 * HEIGHT / $3)) sleep 0.3 click 1
    sleep 1
}
klick() { klick_in "$haupt" 1200 851 "$1" "$2"; }
datei() {
    for _ in $(seq 20); do
        [ -s "$1" ] && return
        sleep 0.5
    done
    scheitern "$1 was not written"
}

worte() {
    pdftotext -layout "$1" "$WINEPREFIX/worte.txt"
    grep -q "$2" "$WINEPREFIX/worte.txt"
}

# For all, since this Wine looks for kinds of files there alone.
"$WINE" "$setup" /S /AllUsers >/dev/null 2>&1 || scheitern "the installer ended with $?"
ordner=$(dirname "$(find "$laufwerk" -name velmaris.exe)")
[ -e "$ordner/klima/trier.met" ] && [ -n "$(find "$laufwerk" -name Velmaris.lnk)" ] || scheitern "not installed whole"
echo "installed: $(du -sh --apparent-size "$ordner" | cut -f1)"

# The program from its folder, and its main window.
starten() {
    (cd "$ordner" && exec "$WINE" velmaris.exe "$@" >/dev/null 2>&1) &
}
hauptfenster() {
    haupt=$(fenster '^Velmaris - ')
    sleep 3
}
# Keys go to it again after a window of the system was there.
nach_vorn() {
    xdotool windowactivate --sync "$haupt" >/dev/null 2>&1 || true
    sleep 1
}
beenden() {
    nach_vorn
    taste ctrl+q
    kein_fenster '^Velmaris'
}

# The first start asks for the language and shows its window for ten seconds or a click.
starten
id=$(fenster 'Sprache / Language')
bild sprachwahl
xdotool mousemove --window "$id" 104 100 sleep 0.3 click 1
id=$(fenster '^Velmaris$')
bild startfenster
taste Return
hauptfenster
[ -e "$ordner/klima/typ.dat" ] || scheitern "the language was not kept"

# The planes, by the mouse.
x=44
for ebene in geometrie fenster daemmung gebaeude klima energie; do
    klick $x 48
    bild "ebene_$ebene"
    x=$((x + 87))
done
klick 44 48
x=595
for ebene in uebersicht klima_gebaeude heizen kuehlen energiefluesse; do
    klick $x 816
    bild "ausgabe_$ebene"
    x=$((x + 134))
done
klick 595 816

# A slider by mouse and keys, then saved under a name with umlauts.
klick 488 417
klick 488 417
nach_vorn
taste ctrl+shift+s
fenster 'Speichern unter' >/dev/null
fuege_ein 'C:\Häuser ß\Büro ä.vel'
bild speichern
taste Return
datei "$eigene/Büro ä.vel"
laenge=$(sed -n 2p "$eigene/Büro ä.vel" | tr -d '\r ')
[ "$laenge" != 10 ] || scheitern "the slider moved nothing"
grep -c $'\r$' "$eigene/Büro ä.vel" >/dev/null || scheitern "the project has no line ends of its own"

# The report, saved.
nach_vorn
taste alt+r
taste r
id=$(fenster 'Velmaris - Report')
bild report
eval "$(xdotool getwindowgeometry --shell "$id")"
xdotool mousemove --window "$id" $((WIDTH - 330)) $((HEIGHT - 33)) sleep 0.3 click 1
fenster 'Speichern unter' >/dev/null
fuege_ein 'C:\Häuser ß\Bericht é.rtf'
taste Return
datei "$eigene/Bericht é.rtf"
xdotool mousemove --window "$id" $((WIDTH - 116)) $((HEIGHT - 33)) sleep 0.3 click 1
kein_fenster 'Velmaris - Report'

# Two kinds of pages as PDF.
nach_vorn
taste ctrl+p
id=$(fenster '^Drucken$')
for y in 152 224; do
    klick_in "$id" 714 455 36 $y
done
bild drucken
klick_in "$id" 714 455 483 426
fenster 'Speichern unter' >/dev/null
fuege_ein 'C:\Häuser ß\Druck ö.pdf'
taste Return
datei "$eigene/Druck ö.pdf"
worte "$eigene/Druck ö.pdf" 'Grundfläche\|Nutzfläche' || scheitern "the PDF has no words"
pdftoppm -r 60 -png "$eigene/Druck ö.pdf" "$bilder/druck"

# The help in its own window.
nach_vorn
taste F1
id=$(fenster 'Hilfe')
bild hilfe 2
xdotool windowclose "$id" || true
sleep 1

# In English from the next start on, which opens a project by its name as a double click does.
nach_vorn
taste alt+e
taste s
taste e
bild sprache_gewechselt
taste Return
beenden
grep -q e "$ordner/klima/typ.dat" || scheitern "the language was not changed"
(cd "$laufwerk" && exec "$WINE" start /unix "$eigene/Büro ä.vel" >/dev/null 2>&1) &
id=$(fenster '^Velmaris$')
taste Return
hauptfenster
bild englisch
[[ $(xdotool getwindowname "$haupt") =~ [Bb][Üü][Rr][Oo] ]] || [[ $(xdotool getwindowname "$haupt") = *.VEL ]] || scheitern "the project was not opened: $(xdotool getwindowname "$haupt")"
beenden

# Printed without a window.
(cd "$eigene" && "$WINE" "$ordner/velmaris.exe" --drucken 'alles ü.pdf' 'Büro ä.vel' 2>/dev/null)
datei "$eigene/alles ü.pdf"
worte "$eigene/alles ü.pdf" 'Heat balance\|Wärmebilanz' || scheitern "the printed pages have no words"

# Away, but for what the user put there.
touch "$ordner/klima/eigene.met"
"$WINE" "$ordner/entfernen.exe" /S >/dev/null 2>&1
for _ in $(seq 40); do
    [ -e "$ordner/velmaris.exe" ] || break
    sleep 0.5
done
rest=$(cd "$ordner" && find . -type f)
[ "$rest" = ./klima/eigene.met ] || scheitern "left in the folder: $rest"
[ -z "$(find "$laufwerk" -name Velmaris.lnk)" ] || scheitern "the entry in the start menu is left"
! "$WINE" reg query 'HKLM\Software\Classes\.vel' >/dev/null 2>&1 || scheitern "the kind of file is left"
echo "installed, used and removed; $(ls "$bilder" | wc -l) pictures in $bilder"
