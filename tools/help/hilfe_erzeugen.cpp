#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"
#include "tools/help/chmprojekt.h"
#include "tools/help/seitenbau.h"
#include "tools/lauf.h"

#include <iostream>

namespace {

using namespace velmaris;
using namespace velmaris::hilfe;
namespace fs = std::filesystem;

void hilfe_schreiben(const std::string& sprache, const fs::path& quelle, const fs::path& ziel) {
    const Inhalt inhalt = inhalt_lesen(quelle, sprache);
    fs::create_directories(ziel);
    for (const Seite* seite : alle_seiten(inhalt))
        datei_ersetzen(ziel / pfad(seite->name + ".html"), seite_bauen(inhalt, *seite, sprache));
    datei_ersetzen(ziel / "stil.css", bytes_lesen(quelle / "stil.css", hoechste_quellgroesse));
    const std::string name = hilfename(sprache);
    datei_ersetzen(ziel / (name + ".hhc"), nach_windows1252(chm_inhalt(inhalt)));
    datei_ersetzen(ziel / (name + ".hhk"), nach_windows1252(chm_stichworte(inhalt)));
    datei_ersetzen(ziel / (name + ".hhp"), nach_windows1252(chm_projekt(inhalt, sprache)));
}

}  // namespace

/// Makes the pages of the help in the language of the first argument ("d" or "e"), and what the help compiler
/// needs beside them, in the folder of the third argument from the folder of the second one.
int main(int anzahl, char** argumente) {
    const std::string sprache = anzahl == 4 ? argumente[1] : "";
    if (!bekannte_sprache(sprache)) {
        std::cerr << "usage: hilfe_erzeugen d|e SOURCE_FOLDER TARGET_FOLDER\n";
        return 2;
    }
    dezimalzeichen_setzen(englisch(sprache) ? '.' : ',');
    return erzeugerlauf("hilfe_erzeugen", [&] { hilfe_schreiben(sprache, argumente[2], argumente[3]); });
}
