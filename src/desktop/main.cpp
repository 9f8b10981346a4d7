#include "desktop/drucklauf.h"
#include "desktop/platform/aufrufkonsole.h"
#include "desktop/platform/stil.h"
#include "desktop/programm.h"
#include "desktop/startfenster.h"
#include "toolkit/programmordner.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <algorithm>
#include <exception>
#include <iostream>
#include <new>
#include <string_view>

namespace {

using namespace velmaris;

/// The command line behind the program's name, as one text.
std::string befehlstext() {
    return QCoreApplication::arguments().mid(1).join(u' ').toStdString();
}

std::filesystem::path programmordner() {
    return programmordner_bestimmen(QFileInfo(QCoreApplication::applicationDirPath()).filesystemFilePath());
}

int ausfuehren() {
    const Befehlszeile befehlszeile(befehlstext());
    const std::filesystem::path ordner = programmordner();
    symbol_setzen(ordner);
    const std::string sprache = sprache_bestimmen(befehlszeile, ordner, QtPlattform::benutzerordner(),
                                                  [&] { return sprachfenster(ordner); });
    Programm programm(ordner, sprache, befehlszeile);
    programm.starten();
    return QApplication::exec();
}

int mit_fenster(int argc, char** argv) {
    QApplication::setDesktopSettingsAware(false);
    const QApplication anwendung(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velmaris"));
    QApplication::setDesktopFileName(QStringLiteral("velmaris"));
    QApplication::setQuitOnLastWindowClosed(false);
    stil_setzen();
    try {
        return ausfuehren();
    } catch (const std::exception& fehler) {
        QMessageBox::critical(nullptr, QStringLiteral("Velmaris"), QString::fromUtf8(fehler.what()));
        return 1;
    }
}

int ohne_fenster(int argc, char** argv) {
    konsole_verbinden();
    ohne_desktop();
    // The error stream is for what is wrong with the project, not with the desktop that is not there.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QGuiApplication anwendung(argc, argv);
    try {
        return drucklauf(QCoreApplication::arguments(), programmordner(), std::cerr);
    } catch (const std::bad_alloc&) {
        std::cerr << "nicht genug Speicher / not enough memory\n";
    } catch (const std::exception& fehler) {
        std::cerr << fehler.what() << '\n';
    }
    return 1;
}

bool verlangt_hilfe(int argc, const char* const* argv) {
    return std::any_of(argv + 1, argv + argc,
                       [](std::string_view wort) { return wort == "--help" || wort == "-h"; });
}

}  // namespace

int main(int argc, char** argv) {
    if (verlangt_hilfe(argc, argv)) {
        konsole_verbinden();
        std::cout << hilfetext(aufruf_des_programms, worte_der_befehlszeile());
        return 0;
    }
    dateigrenze_melden();
    dezimalzeichen_setzen(dezimalzeichen_der_umgebung());
    return ist_drucklauf(argc, argv) ? ohne_fenster(argc, argv) : mit_fenster(argc, argv);
}
