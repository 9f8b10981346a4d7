# `cmake --build BUILD --target package`: the package of Debian. Its dependencies are found by dpkg-shlibdeps.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velmaris)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Velmaris team <team@velmaris.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "heating and cooling energy of a building, a teaching program")
set(CPACK_PACKAGE_DESCRIPTION
"A box-shaped house gets size, roof, windows, insulation, use, climate and
heating. Each step of a slider recalculates the whole year: a monthly heat
balance, an hourly simulation of the indoor temperature, and the way from heat
demand to end and primary energy. Reports, printed pages and charts; 229
climate stations; in German and English.
.
The program velmaris_rechnen does the same for scripts.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/cmake/gleiche_zeit.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The windows and pages are laid out in its letters.
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
# German for the toolkit's own words.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
