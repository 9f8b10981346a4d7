# The distribution's packages that the house is built from (Debian 12, Ubuntu 24.04), and how to get them.
PAKETE_PROGRAMM="cmake ninja-build g++ pkg-config libcli11-dev nlohmann-json3-dev libtbb-dev qt6-base-dev qt6-qpa-plugins qt6-translations-l10n fonts-liberation fp-utils libchm-dev"
# Where the desktop speaks Wayland, so that the program need not go through its X server.
PAKETE_WAYLAND="qt6-wayland"
PAKETE_TESTS="libgtest-dev libgmock-dev libbenchmark-dev poppler-utils python3 parallel desktop-file-utils shared-mime-info groff-base librsvg2-bin appstream"
# For the package that tools/packages/debian.sh makes.
PAKETE_DEBIAN="dpkg-dev file gzip librsvg2-bin"
# For the programs, the installer and the zip that tools/windows/build.sh makes; Qt for Windows is built with its tools.
PAKETE_WINDOWS="g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 mingw-w64-x86-64-dev dpkg-dev nsis zip librsvg2-bin icoutils"
# An office that opens the saved report and the tables; about 300 MB, so it is fetched only where tests run unattended.
PAKETE_TESTS_CI="libreoffice-writer-nogui libreoffice-calc-nogui"

# Installs those of the packages that are missing; says what to do where that is not possible.
pakete_holen() {
    local fehlend=() paket
    for paket in "$@"; do
        dpkg-query -W -f '${Status}' "$paket" 2>/dev/null | grep -q '^install ok installed$' || fehlend+=("$paket")
    done
    [ ${#fehlend[@]} -eq 0 ] && return
    local als=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing: ${fehlend[*]}" >&2
            echo "Install them as root (apt-get install ${fehlend[*]}), or install sudo." >&2
            exit 1
        fi
        als=(sudo)
    fi
    "${als[@]}" apt-get update
    "${als[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${fehlend[@]}"
}
