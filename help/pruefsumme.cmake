# Copies the compiled help file QUELLE to ZIEL and puts its checksum beside it, as a line that "sha256sum -c" reads.
get_filename_component(zielordner ${ZIEL} DIRECTORY)
get_filename_component(zielname ${ZIEL} NAME)
file(MAKE_DIRECTORY ${zielordner})
file(COPY_FILE ${QUELLE} ${ZIEL})
file(SHA256 ${QUELLE} summe)
file(CONFIGURE OUTPUT ${ZIEL}.sha256 CONTENT "${summe}  ${zielname}\n" NEWLINE_STYLE UNIX)
