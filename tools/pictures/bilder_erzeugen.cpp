#include "climate/karten.h"
#include "toolkit/feinbild.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "tools/lauf.h"
#include "tools/pictures/bitmap.h"
#include "tools/pictures/deutschland.h"
#include "tools/pictures/erdkarten.h"
#include "tools/pictures/haus.h"
#include "tools/pictures/postleitzahlen.h"
#include "tools/pictures/sinnbilder.h"

#include <array>
#include <functional>
#include <iostream>
#include <utility>

namespace {

using namespace velmaris;
using namespace velmaris::bilder;
namespace fs = std::filesystem;

/// Draws a picture with so many pixels along a unit.
using Zeichner = std::function<Bild(int feinheit)>;

class Bilderordner {
  public:
    explicit Bilderordner(fs::path ordner) : ordner_(std::move(ordner)) { fs::create_directories(ordner_); }

    /// Writes the picture and its fine edition.
    void schreiben(const std::string& name, const Zeichner& zeichne) const {
        const fs::path datei = ordner_ / (name + ".bmp");
        datei_ersetzen(datei, bitmap(zeichne(1)));
        datei_ersetzen(feines_bild(datei), gepackte_bitmap(zeichne(feinheit_der_bilder)));
    }

  private:
    fs::path ordner_;
};

void karten_schreiben(const fs::path& daten, const Bilderordner& ordner) {
    const auto regionen = regionen_lesen(daten / "regionen_polygone.csv");
    const Flaeche deutschland = umriss_lesen(daten / "germany_umriss.csv");
    for (int region = 0; region <= regionen_anzahl; ++region) {
        ordner.schreiben("klima" + std::to_string(region), [&](int feinheit) {
            return deutschland_bild(regionen, deutschland, region, feinheit);
        });
    }
    const Flaeche laender = umriss_lesen(daten / "europa_land.csv");
    ordner.schreiben("europa", [&](int feinheit) { return europa_bild(laender, feinheit); });
    const Flaeche land = umriss_lesen(daten / "welt_land.csv");
    const std::vector<Strecke> grenzen = linien_lesen(daten / "welt_grenzen.csv");
    constexpr std::array<std::pair<const char*, double>, 2> weltkarten{
        {{"welt", 1}, {"welt_gross", weltvergroesserung}}};
    for (const auto& [name, massstab] : weltkarten)
        ordner.schreiben(name,
                         [&, s = massstab](int feinheit) { return welt_bild(land, grenzen, s, feinheit); });
}

void haeuser_und_sinnbilder_schreiben(const Bilderordner& ordner) {
    for (const Dachform dach : {Dachform::flach, Dachform::first_nord_sued, Dachform::first_ost_west}) {
        ordner.schreiben("haus" + std::to_string(static_cast<int>(dach)),
                         [dach](int feinheit) { return haus_bild(dach, feinheit); });
    }
    ordner.schreiben("sprache_d", sprachbild_deutsch);
    ordner.schreiben("sprache_e", sprachbild_englisch);
    ordner.schreiben("velmaris", programmbild);
}

void alles_schreiben(const fs::path& daten, const fs::path& ziel) {
    const Bilderordner grafiken(ziel / "Grafiken");
    karten_schreiben(daten, grafiken);
    haeuser_und_sinnbilder_schreiben(grafiken);
    datei_ersetzen(ziel / "einrichter.bmp", bitmap(einrichterbild()));
    fs::create_directories(ziel / "klima");
    datei_ersetzen(ziel / "klima" / "plz.txt", postleitzahlen_text(daten / "plz_region.csv"));
}

}  // namespace

/// Makes the delivered pictures (folder Grafiken), the one of the installer for Windows and the post code
/// table (folder klima) below the second argument from the facts in the folder of the first one.
int main(int anzahl, char** argumente) {
    if (anzahl != 3) {
        std::cerr << "usage: bilder_erzeugen DATA_FOLDER TARGET_FOLDER\n";
        return 2;
    }
    return erzeugerlauf("bilder_erzeugen", [&] { alles_schreiben(argumente[1], argumente[2]); });
}
