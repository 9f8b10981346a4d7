#include "desktop/programm.h"
#include "desktop/startfenster.h"
#include "desktop/stil.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <exception>

namespace {

using namespace velmaris;

/// The command line behind the program's name, as one text.
std::string befehlstext() {
    return QCoreApplication::arguments().mid(1).join(u' ').toStdString();
}

int ausfuehren() {
    const Befehlszeile befehlszeile(befehlstext());
    const std::filesystem::path ordner =
        QFileInfo(QCoreApplication::applicationDirPath()).filesystemFilePath();
    const std::string sprache =
        sprache_bestimmen(befehlszeile, ordner, [&] { return sprachfenster(ordner); });
    Programm programm(ordner, sprache, befehlszeile);
    programm.starten();
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication::setDesktopSettingsAware(false);
    QApplication anwendung(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velmaris"));
    QApplication::setQuitOnLastWindowClosed(false);
    velmaris::stil_setzen();
    velmaris::dateigrenze_melden();
    velmaris::dezimalzeichen_setzen(velmaris::dezimalzeichen_der_umgebung());
    try {
        return ausfuehren();
    } catch (const std::exception& fehler) {
        QMessageBox::critical(nullptr, QStringLiteral("Velmaris"), QString::fromUtf8(fehler.what()));
        return 1;
    }
}
