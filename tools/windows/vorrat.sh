# What the programs for Windows are built from and the distribution has as source alone: fetched and built once into
# the folder $VORRAT, by the functions below. Each leaves a mark there, so the next call returns at once; who wants
# it built anew removes the folder.
MINGW=x86_64-w64-mingw32
FREMD=$VORRAT/fremd
# Names of folders must not get into what is built.
GLEICH="-ffile-prefix-map=$VORRAT=."

# Carries out a function whose mark is not there yet; what it prints goes to a file that is shown if it fails.
einmal() {
    local name=$1
    [ -e "$VORRAT/fertig/$name" ] && return
    mkdir -p "$VORRAT/fertig" "$FREMD/include" "$FREMD/lib" "$FREMD/share/cmake"
    echo "Preparing $name for Windows in $VORRAT ..."
    set +e  # for the call alone: as a condition of "if" it would not stop at its faults
    (
        set -e
        "${name}_bereiten"
    ) >"$VORRAT/$name.log" 2>&1
    local ergebnis=$?
    set -e
    if [ $ergebnis -ne 0 ]; then
        tail -n 40 "$VORRAT/$name.log" >&2
        echo "Preparing $name failed; all it said is in $VORRAT/$name.log" >&2
        exit 1
    fi
    touch "$VORRAT/fertig/$name"
}

# A list of source packages of the archives that this machine has binary packages from, apart from its own lists.
quellenliste() {
    [ -e "$VORRAT/apt/conf" ] && return
    mkdir -p "$VORRAT/apt/lists/partial" "$VORRAT/apt/archives/partial"
    apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' | sort -u >"$VORRAT/apt/quellen.list"
    cat >"$VORRAT/apt/conf" <<CONF
Dir::Etc::sourcelist "$VORRAT/apt/quellen.list";
Dir::Etc::sourceparts "-";
Dir::State::lists "$VORRAT/apt/lists";
Dir::Cache::archives "$VORRAT/apt/archives";
Dir::Cache::pkgcache "";
Dir::Cache::srcpkgcache "";
APT::Sandbox::User "root";
CONF
}

# Fetches and unpacks the source that an installed binary package was built from: quelle_holen SOURCE PACKAGE
quelle_holen() {
    local quelle=$1 fassung
    fassung=$(dpkg-query -W -f '${source:Version}' "$2")
    quellenliste
    mkdir -p "$VORRAT/quellen"
    (
        cd "$VORRAT/quellen"
        export APT_CONFIG=$VORRAT/apt/conf
        apt-get update
        apt-get source --download-only "$quelle=$fassung"
        rm -rf "$quelle"
        dpkg-source --no-check -x "${quelle}_${fassung#*:}.dsc" "$quelle"
    )
}

# cmake for Windows: fremd_konfigurieren SOURCE BUILD OPTION ...
fremd_konfigurieren() {
    cmake -G Ninja -S "$1" -B "$2" -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw.cmake" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_C_FLAGS="$GLEICH" -DCMAKE_CXX_FLAGS="$GLEICH" -DBUILD_SHARED_LIBS=OFF "${@:3}"
}

# Libraries of headers alone are taken as they are installed; the compiler must not see the rest of that folder.
kopfdateien_bereiten() {
    cp -r /usr/include/CLI /usr/include/nlohmann "$FREMD/include/"
    cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$FREMD/share/cmake/"
}

onetbb_bereiten() {
    quelle_holen onetbb libtbb-dev
    fremd_konfigurieren "$VORRAT/quellen/onetbb" "$VORRAT/bau/onetbb" -DCMAKE_INSTALL_PREFIX="$FREMD" \
        -DTBB_TEST=OFF -DTBBMALLOC_BUILD=OFF -DTBB_STRICT=OFF
    cmake --build "$VORRAT/bau/onetbb"
    cmake --install "$VORRAT/bau/onetbb"
}

chmlib_bereiten() {
    quelle_holen chmlib libchm-dev
    local ort=$VORRAT/quellen/chmlib/src teil
    mkdir -p "$VORRAT/bau/chmlib"
    for teil in chm_lib lzx; do
        $MINGW-gcc-posix -O2 "$GLEICH" -c "$ort/$teil.c" -o "$VORRAT/bau/chmlib/$teil.o"
    done
    rm -f "$FREMD/lib/libchm.a"
    $MINGW-ar rcsD "$FREMD/lib/libchm.a" "$VORRAT/bau/chmlib/chm_lib.o" "$VORRAT/bau/chmlib/lzx.o"
    cp "$ort/chm_lib.h" "$FREMD/include/"
}

googletest_bereiten() {
    fremd_konfigurieren /usr/src/googletest "$VORRAT/bau/googletest" -DCMAKE_INSTALL_PREFIX="$FREMD"
    cmake --build "$VORRAT/bau/googletest"
    cmake --install "$VORRAT/bau/googletest"
}

# Qt with what the desktop program uses, and nothing from the system: its source has the libraries below itself. The
# folder it believes to be installed in is a made-up one. No tablets: wintab.h is not in the distribution's source.
qt_bereiten() {
    quelle_holen qt6-base qt6-base-dev
    fremd_konfigurieren "$VORRAT/quellen/qt6-base" "$VORRAT/bau/qt" \
        -DCMAKE_INSTALL_PREFIX=/qt -DCMAKE_STAGING_PREFIX="$VORRAT/qt" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
        -DFEATURE_network=OFF -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_testlib=OFF \
        -DFEATURE_concurrent=OFF -DFEATURE_xml=OFF -DFEATURE_androiddeployqt=OFF \
        -DINPUT_opengl=no -DFEATURE_vulkan=OFF -DFEATURE_direct2d1_1=OFF \
        -DFEATURE_tabletevent=OFF -DFEATURE_zstd=OFF -DFEATURE_icu=OFF -DFEATURE_glib=OFF \
        -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF \
        -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF \
        -DFEATURE_system_doubleconversion=OFF
    cmake --build "$VORRAT/bau/qt"
    cmake --install "$VORRAT/bau/qt"
    rm -rf "$VORRAT/bau/qt"
}
