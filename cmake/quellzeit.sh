# What a package needs to be the same bytes each time: one time for all that stands in it, that of the last commit, or
# of the changelog where there is no history; one language, and rights that do not depend on who builds.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -c safe.directory="$PWD" log -1 --format=%ct 2>/dev/null ||
    dpkg-parsechangelog -l tools/packages/changelog -S Timestamp)}
export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C.UTF-8
umask 022
