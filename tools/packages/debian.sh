#!/usr/bin/env bash
# Installs what is missing and makes the Debian package build/debian/velmaris_VERSION_ARCHITECTURE.deb. The same
# source gives the same bytes, in whatever folder it is built.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. cmake/pakete.sh
[ ! -e .git ] || PAKETE_DEBIAN+=" git"
pakete_holen $PAKETE_PROGRAMM $PAKETE_DEBIAN

. cmake/quellzeit.sh
# The distribution's flags for hardening; cmake knows best about speed, and about folders with blanks in their names.
export DEB_BUILD_MAINT_OPTIONS="hardening=+all reproducible=-all" DEB_CXXFLAGS_MAINT_STRIP="-g -O2"

cmake -S . -B build/debian -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELMARIS_SYSTEMORDNER=ON -DVELMARIS_ORTLOS=ON \
    -DVELMARIS_TESTS=OFF -DVELMARIS_BENCH=OFF \
    -DCMAKE_CXX_FLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)" \
    -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)"
cmake --build build/debian
cmake --build build/debian --target package
ls -l "$PWD"/build/debian/*.deb
