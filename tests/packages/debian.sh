#!/usr/bin/env bash
# debian.sh PACKAGE.deb [FOLDER]: tries the package as a new user would, in a bare Debian 12 that it makes in FOLDER
# (build/debian/probe). Needs root and debootstrap; takes some minutes and about 1.5 GB. Each step prints what it
# found; pictures of the windows lie in FOLDER/bilder. Ends with 1 at the first step that fails.
set -euo pipefail
paket=$(readlink -f "$1")
ordner=${2:-build/debian/probe}
mkdir -p "$ordner/bilder"
ordner=$(readlink -f "$ordner")
wurzel=$ordner/debian
version=$(dpkg-deb -f "$paket" Version)

schritt() { printf '\n== %s (%s s)\n' "$*" "$SECONDS"; }
scheitern() { echo "FAILED: $*" >&2; exit 1; }
innen() { chroot "$wurzel" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
# As a user without rights, from the home folder, on the screen that stands in the chroot.
als_anna() { innen setpriv --reuid=1000 --regid=1000 --clear-groups env HOME=/home/anna DISPLAY=:51 XDG_DATA_DIRS=/usr/share bash -ec "cd; $1"; }
bild() { als_anna "xwd -root -silent" >"$ordner/bilder/$1.xwd"; convert "$ordner/bilder/$1.xwd" "$ordner/bilder/$1.png" 2>/dev/null || true; }
# Waits for a window whose title fits, at most 40 s.
fenster() { als_anna "timeout 40 xdotool search --sync --onlyvisible --name '$1'" | head -1 | grep . || scheitern "no window $1"; }

# Ends the programs that run in this chroot, and no others.
programm_beenden() {
    local id
    for id in $(pgrep -x velmaris); do
        [ "$(readlink "/proc/$id/root")" != "$wurzel" ] || kill "$id"
    done
}

aufraeumen() {
    local id
    programm_beenden
    for id in $(cat "$ordner/xvfb.pid" 2>/dev/null); do kill "$id" 2>/dev/null || true; done
    sleep 1
    umount "$wurzel/proc" 2>/dev/null || true
}
trap aufraeumen EXIT

schritt "bare Debian"
umount "$wurzel/proc" 2>/dev/null || true
rm -rf "$wurzel" "$ordner/xvfb.pid"
[ -d "$ordner/basis" ] || debootstrap --variant=minbase bookworm "$ordner/basis" >"$ordner/debootstrap.log"
cp -a "$ordner/basis" "$wurzel"
mount -t proc proc "$wurzel/proc"
cp /etc/resolv.conf "$wurzel/etc/resolv.conf"
innen apt-get update -qq
# What stands for the desktop: a screen, something that sees windows and presses keys, and the opener of files.
innen apt-get install -y -qq --no-install-recommends xvfb x11-apps xdotool xdg-utils desktop-file-utils shared-mime-info libfile-mimeinfo-perl >"$ordner/apt.log" 2>&1
innen useradd --create-home --uid 1000 anna
touch "$ordner/vorher"
dateien() { (cd "$wurzel" && find . -xdev -path ./proc -prune -o -path ./home -prune -o -path ./root -prune -o -path ./tmp -prune -o -path ./var -prune -o \( -type f -o -type l -o -type d \) -iname '*velmaris*' -print; grep -rlI velmaris usr/share/applications usr/share/mime etc 2>/dev/null || true) | sort; }
[ -z "$(dateien)" ] || scheitern "the bare system knows the program"

schritt "an older build, by apt"
alt=$ordner/velmaris_alt.deb
rm -rf "$ordner/umbau" && dpkg-deb -R "$paket" "$ordner/umbau"
sed -i 's/^Version: .*/Version: 3.1/' "$ordner/umbau/DEBIAN/control"
rm "$ordner/umbau/usr/share/velmaris/klima/hamburg.met"
sed -i '\|klima/hamburg.met$|d' "$ordner/umbau/DEBIAN/md5sums"
touch "$ordner/umbau/usr/share/velmaris/veraltet.txt"
dpkg-deb --root-owner-group -Zxz -z1 -b "$ordner/umbau" "$alt" >/dev/null
cp "$alt" "$paket" "$wurzel/tmp/"
vor=$(innen dpkg-query -W | wc -l)
innen apt-get install -y "/tmp/$(basename "$alt")" >>"$ordner/apt.log" 2>&1 || { tail "$ordner/apt.log"; scheitern "apt"; }
echo "packages that came with it: $(($(innen dpkg-query -W | wc -l) - vor - 1))"

schritt "upgraded over it"
als_anna "velmaris_rechnen --neu mein.vel --sprache e"
innen apt-get install -y "/tmp/$(basename "$paket")" >>"$ordner/apt.log" 2>&1 || { tail "$ordner/apt.log"; scheitern "apt"; }
[ "$(innen dpkg-query -W -f '${Version} ${db:Status-Abbrev}' velmaris | tr -d ' ')" = "${version}ii" ] || scheitern "not upgraded"
innen dpkg --verify velmaris | grep . && scheitern "files differ from the package"
[ ! -e "$wurzel/usr/share/velmaris/veraltet.txt" ] || scheitern "a file of the older build stayed"
innen du -sk /usr/share/velmaris | sed 's/\t/ KB in /'
innen dpkg -s velmaris | grep -E '^(Version|Installed-Size|Depends|Recommends)'

schritt "the console program, as a user without rights"
als_anna "velmaris_rechnen --sprache e /usr/share/velmaris/beispiele/altes_haus.vel | head -4"
als_anna "velmaris --drucken haus.pdf --sprache d /usr/share/velmaris/beispiele/glasbuero.vel"
[ -s "$wurzel/home/anna/haus.pdf" ] || scheitern "nothing was printed"

schritt "a station of one's own"
awk 'BEGIN { print "LOCATION,Probeort,-,DEU,made,000000,50.00,10.00,1.0,300.0"
    split("DESIGN CONDITIONS,0;TYPICAL/EXTREME PERIODS,0;GROUND TEMPERATURES,0;HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0;COMMENTS 1,;COMMENTS 2,;DATA PERIODS,1,1,Data,Sunday,1/1,12/31", kopf, ";")
    for (i = 1; i <= 7; ++i) print kopf[i]
    split("31 28 31 30 31 30 31 31 30 31 30 31", tage, " ")
    for (m = 1; m <= 12; ++m) for (t = 1; t <= tage[m]; ++t) for (h = 1; h <= 24; ++h) {
        g = (h > 8 && h < 17) ? 200 : 0
        printf "1995,%d,%d,%d,60,A7A7*9?9,%.1f,1.5,80,95000,0,1415,280,%d,0,%d,0,0,0,0,250,2.1,5,5,10,7777,9,999999999,0,0.05,0,88,0.2,0,0\n", m, t, h, 10 - 10 * cos((m - 1) * 0.52), g, g / 2
    } }' >"$wurzel/home/anna/probe.epw"
als_anna "velmaris_rechnen --sprache e --import ~/probe.epw --name probe"
[ -s "$wurzel/home/anna/.local/share/Velmaris/klima/probe.met" ] || scheitern "the station is not in the user's folder"
als_anna "sed 's/^hamburg.met/probe.met/' /usr/share/velmaris/beispiele/altes_haus.vel > probe.vel; velmaris_rechnen --sprache e probe.vel | sed -n 2p"
als_anna "velmaris_rechnen --sprache e probe.vel" | grep -q Probeort || scheitern "the project does not find the station"
innen velmaris_rechnen --sprache e --import /home/anna/probe.epw --name probe
[ ! -e "$wurzel/usr/share/velmaris/klima/probe.met" ] || scheitern "root has written into the shared folder"

schritt "the window, for the first time"
innen bash -c 'Xvfb :51 -screen 0 1280x800x24 >/dev/null 2>&1 & echo $!' >"$ordner/xvfb.pid"
sleep 2
als_anna 'velmaris >start.log 2>&1 &'
id=$(fenster 'Sprache|language')
sleep 1
bild sprachwahl
als_anna "xdotool mousemove --window $id 75 60 click 1"
fenster '^Velmaris$' >/dev/null
sleep 1
bild startfenster
fenster '^Velmaris - ' >/dev/null
sleep 2
bild hauptfenster
cat "$wurzel/home/anna/.local/share/Velmaris/klima/typ.dat"
programm_beenden
sleep 1

schritt "a project by its kind"
als_anna 'cp probe.vel "Annas Häuschen.vel"; cp probe.vel ohne_endung'
for datei in "Annas Häuschen.vel" ohne_endung; do
    als_anna "xdg-mime query filetype '$datei'" | grep -x application/x-velmaris || scheitern "not recognised: $datei"
done
als_anna "xdg-mime query default application/x-velmaris" | grep -x velmaris.desktop
als_anna 'xdg-open "Annas Häuschen.vel" >oeffnen.log 2>&1 &'
fenster 'Velmaris - ANNAS H' >/dev/null
sleep 2
bild xdg_open
programm_beenden
sleep 1

schritt "removed and purged"
for weg in remove purge; do
    innen apt-get install -y "/tmp/$(basename "$paket")" >>"$ordner/apt.log" 2>&1
    innen apt-get "$weg" -y velmaris >>"$ordner/apt.log" 2>&1
    rest=$(dateien; find "$wurzel/var" -iname '*velmaris*' -not -path '*/apt/*')
    [ -z "$rest" ] || scheitern "$weg leaves behind: $rest"
done
(cd "$wurzel/home/anna" && find . -type f -newer "$ordner/vorher" -not -name '.bash*' | sort | head -20)
[ -s "$wurzel/home/anna/.local/share/Velmaris/klima/probe.met" ] || scheitern "the user's station is gone"
schritt "all went well"
