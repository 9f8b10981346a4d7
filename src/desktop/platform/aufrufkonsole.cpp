#include "desktop/platform/aufrufkonsole.h"

#include <QByteArray>

#ifdef Q_OS_WIN
#include <cstdio>
#include <windows.h>
#endif

namespace velmaris {

#ifdef Q_OS_WIN

namespace {

void verbinden(DWORD strom, std::FILE* datei) {
    if (GetFileType(GetStdHandle(strom)) == FILE_TYPE_UNKNOWN) std::freopen("CONOUT$", "w", datei);
}

}  // namespace

void konsole_verbinden() {
    if (AttachConsole(ATTACH_PARENT_PROCESS) == 0) return;
    SetConsoleOutputCP(CP_UTF8);
    verbinden(STD_OUTPUT_HANDLE, stdout);
    verbinden(STD_ERROR_HANDLE, stderr);
}

// The usual platform shows nothing as long as there is no window, and knows the fonts.
void ohne_desktop() {}

#else

void konsole_verbinden() {}

void ohne_desktop() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

#endif

}  // namespace velmaris
