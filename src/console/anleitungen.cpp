#include "console/aufruf.h"
#include "console/handbuch.h"
#include "console/vervollstaendigung.h"
#include "toolkit/textdatei.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

using namespace velmaris;
namespace fs = std::filesystem;

void anleitungen_schreiben(const fs::path& ordner, const std::string& version) {
    fs::create_directories(ordner / "de");
    for (const Handbuch& handbuch : handbuecher()) {
        const std::string datei = handbuch.programm + ".1";
        datei_ersetzen(ordner / datei, handbuchseite(handbuch, version, "e"));
        datei_ersetzen(ordner / "de" / datei, handbuchseite(handbuch, version, "d"));
    }
    datei_ersetzen(ordner / "velmaris_rechnen", vervollstaendigung("velmaris_rechnen", worte_des_aufrufs()));
}

}  // namespace

/// Writes the manual pages of both programs, in English and below "de" in German, and the completion of the
/// console program for bash into a folder.
int main(int anzahl, char** argumente) {
    if (anzahl != 3) {
        std::cerr << "usage: anleitungen_erzeugen FOLDER VERSION\n";
        return 2;
    }
    try {
        anleitungen_schreiben(argumente[1], argumente[2]);
        return 0;
    } catch (const std::exception& fehler) {
        std::cerr << "anleitungen_erzeugen: " << fehler.what() << '\n';
        return 1;
    }
}
