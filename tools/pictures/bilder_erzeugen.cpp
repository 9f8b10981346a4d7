#include "climate/karten.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "tools/lauf.h"
#include "tools/pictures/deutschland.h"
#include "tools/pictures/erdkarten.h"
#include "tools/pictures/haus.h"
#include "tools/pictures/postleitzahlen.h"
#include "tools/pictures/sinnbilder.h"

#include <iostream>

namespace {

using namespace velmaris;
using namespace velmaris::bilder;
namespace fs = std::filesystem;

class Bilderordner {
  public:
    explicit Bilderordner(fs::path ordner) : ordner_(std::move(ordner)) { fs::create_directories(ordner_); }

    void schreiben(const std::string& name, const Bild& bild) const {
        datei_ersetzen(ordner_ / (name + ".bmp"), bild.bmp());
    }

  private:
    fs::path ordner_;
};

void karten_schreiben(const fs::path& daten, const Bilderordner& ordner) {
    const auto regionen = regionen_lesen(daten / "regionen_polygone.csv");
    const Flaeche deutschland = umriss_lesen(daten / "germany_umriss.csv");
    for (int region = 0; region <= regionen_anzahl; ++region) {
        ordner.schreiben("klima" + std::to_string(region), deutschland_bild(regionen, deutschland, region));
    }
    ordner.schreiben("europa", europa_bild(umriss_lesen(daten / "europa_land.csv")));
    const Flaeche land = umriss_lesen(daten / "welt_land.csv");
    const std::vector<Strecke> grenzen = linien_lesen(daten / "welt_grenzen.csv");
    ordner.schreiben("welt", welt_bild(land, grenzen, 1));
    ordner.schreiben("welt_gross", welt_bild(land, grenzen, weltvergroesserung));
}

void haeuser_und_sinnbilder_schreiben(const Bilderordner& ordner) {
    for (const Dachform dach : {Dachform::flach, Dachform::first_nord_sued, Dachform::first_ost_west}) {
        ordner.schreiben("haus" + std::to_string(static_cast<int>(dach)), haus_bild(dach));
    }
    ordner.schreiben("sprache_d", sprachbild_deutsch());
    ordner.schreiben("sprache_e", sprachbild_englisch());
    ordner.schreiben("velmaris", programmbild());
}

void alles_schreiben(const fs::path& daten, const fs::path& ziel) {
    const Bilderordner grafiken(ziel / "Grafiken");
    karten_schreiben(daten, grafiken);
    haeuser_und_sinnbilder_schreiben(grafiken);
    fs::create_directories(ziel / "klima");
    datei_ersetzen(ziel / "klima" / "plz.txt", postleitzahlen_text(daten / "plz_region.csv"));
}

}  // namespace

/// Makes the delivered pictures (folder Grafiken) and the post code table (folder klima) below the second
/// argument from the facts in the folder of the first one.
int main(int anzahl, char** argumente) {
    if (anzahl != 3) {
        std::cerr << "usage: bilder_erzeugen DATA_FOLDER TARGET_FOLDER\n";
        return 2;
    }
    return erzeugerlauf("bilder_erzeugen", [&] { alles_schreiben(argumente[1], argumente[2]); });
}
