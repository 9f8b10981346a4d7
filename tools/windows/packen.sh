# What is given to others: the folder of the programs, a zip of it, and the installer. Everything in it has the time
# $SOURCE_DATE_EPOCH, so that two builds are equal.
VERSION=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/CMakeCache.txt)
ORDNER=$PWD/build/windows/velmaris-$VERSION
AUSGABE=$PWD/build/windows/velmaris-$VERSION

fassung() {
    dpkg-query -W -f '${source:Version}' "$1"
}

# Licences of what is linked in, and where its source is.
lizenzen_sammeln() {
    local ziel=$ORDNER/Lizenzen quellen=$VORRAT/quellen
    mkdir -p "$ziel"
    cp "$quellen/qt6-base/LICENSES/LGPL-3.0-only.txt" "$ziel/LGPL-3.txt"
    cp "$quellen/qt6-base/LICENSES/GPL-3.0-only.txt" "$ziel/GPL-3.txt"
    cp "$quellen/qt6-base/debian/copyright" "$ziel/Qt.txt"
    cp "$quellen/chmlib/COPYING" "$ziel/LGPL-2.1.txt"
    cp "$quellen/chmlib/debian/copyright" "$ziel/CHMLib.txt"
    cp "$quellen/onetbb/LICENSE.txt" "$ziel/oneTBB.txt"
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$ziel/GCC.txt"
    cp /usr/share/doc/mingw-w64-common/copyright "$ziel/MinGW-w64.txt"
    # What it says of shared libraries holds for the package of Debian alone.
    sed '/^ The programs are linked/,/^ \.$/d' tools/packages/copyright >"$ziel/Velmaris.txt"
    sed -e "s/@VERSION@/$VERSION/" -e "s/@QT@/$(fassung qt6-base-dev)/" -e "s/@CHMLIB@/$(fassung libchm-dev)/" \
        -e "s/@ONETBB@/$(fassung libtbb-dev)/" tools/windows/quellen.txt | unix2dos_zeilen >"$ziel/Quellen.txt"
}

unix2dos_zeilen() {
    sed 's/$/\r/'
}

programmordner_fuellen() {
    rm -rf "$ORDNER"
    cmake --install build/windows --prefix "$ORDNER"
    lizenzen_sammeln
    # German for the toolkit's own words, and where it finds them.
    mkdir -p "$ORDNER/translations"
    cp /usr/share/qt6/translations/qtbase_de.qm "$ORDNER/translations/"
    printf '[Paths]\r\nPrefix=.\r\nTranslations=translations\r\n' >"$ORDNER/qt.conf"
    chmod -R u=rwX,go=rX "$ORDNER"
    find "$ORDNER" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
}

zip_packen() {
    rm -f "$AUSGABE.zip"
    (cd "$ORDNER/.." && find "velmaris-$VERSION" | sort | zip -X -9 -q -@ "$AUSGABE.zip")
}

# The uninstaller removes what the installer brought, and nothing else.
dateiliste_schreiben() {
    echo '!macro dateien_entfernen'
    (cd "$ORDNER" && find . -type f | sort | sed 's|^\./||; s|/|\\|g; s|.*|    Delete "$INSTDIR\\&"|')
    echo '!macroend'
    echo '!macro ordner_entfernen'
    (cd "$ORDNER" && find . -mindepth 1 -type d | sort -r | sed 's|^\./||; s|/|\\|g; s|.*|    RMDir "$INSTDIR\\&"|')
    echo '!macroend'
}

installer_packen() {
    dateiliste_schreiben >build/windows/dateien.nsh
    cp "$DATEN/einrichter.bmp" build/windows/
    touch -d "@$SOURCE_DATE_EPOCH" build/windows/einrichter.bmp
    makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$VERSION" -DNUMMER="$VERSION.0.0" -DORDNER="$ORDNER" \
        -DKILOBYTE="$(du -sk --apparent-size "$ORDNER" | cut -f1)" -DICO="$PWD/build/windows/velmaris.ico" -DBILD="$PWD/build/windows/einrichter.bmp" \
        -DDATEILISTE="$PWD/build/windows/dateien.nsh" -DZIEL="$AUSGABE-setup.exe" tools/windows/velmaris.nsi
}
