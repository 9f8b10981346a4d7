#include "desktop/platform/hilfeleser.h"
#include "desktop/platform/qt_text.h"
#include "toolkit/text.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace velmaris {
namespace {

bool betrachter_starten(const QString& datei, [[maybe_unused]] const std::string& seite) {
#ifdef Q_OS_WIN
    return QProcess::startDetached(
        QStringLiteral("hh.exe"),
        {QLatin1String("ms-its:") + QDir::toNativeSeparators(datei) + QLatin1String("::") + qtext(seite)});
#else
    return QDesktopServices::openUrl(QUrl::fromLocalFile(datei));
#endif
}

}  // namespace

Dateifehler hilfe_beschaedigt(const std::filesystem::path& datei) {
    return {pfadtext(datei), {"Die Hilfedatei ist beschädigt.", "The help file is damaged."}};
}

void hilfe_fremd_zeigen(const std::filesystem::path& datei, const std::string& seite) {
    if (!betrachter_starten(QFileInfo(datei).absoluteFilePath(), seite))
        throw Dateifehler(pfadtext(datei), {"Kein Programm zeigt diese Hilfedatei.",
                                            "There is no program that shows this help file."});
}

}  // namespace velmaris
