#pragma once

#include "climate/planes/E_Klima.h"
#include "climate/regionen.h"
#include "language/c_Sprache.h"
#include "tests/climate/stationsdatei.h"
#include "tests/hilfen.h"
#include "tests/rekorder_flaeche.h"
#include "tests/testplattform.h"

#include <memory>
#include <string>
#include <vector>

namespace velmaris::test {

/// A scripted desktop whose lots are drawn from a list, over and over, and counted.
class Losplattform : public Testplattform {
  public:
    std::vector<double> lose{0};
    int gezogen = 0;

    double zufall() override { return lose[static_cast<std::size_t>(gezogen++) % lose.size()]; }
};

/// The climate plane over a folder of six stations, of which only the heads exist:
///
/// | World | Europe | File         | Name                 | Place on Europe | on the world |
/// |-------|--------|--------------|----------------------|-----------------|--------------|
/// | 0     | 0      | bremen.met   | Bremen (Deutschland) | 105.0, 92.9     | 339.8, 34.1  |
/// | 1     |        | honolulu.met | Honolulu (USA)       |                 | 60.6, 87.3   |
/// | 2     | 1      | paris.met    | Paris (Frankreich)   | 81.7, 110.9     | 328.9, 41.0  |
/// | 3     | 2      | passau.met   | Passau (Deutschland) | 122.2, 112.2    | 347.7, 41.5  |
/// | 4     |        | tokyo.met    | Tokyo (Japan)        |                 | 559.6, 63.1  |
/// | 5     | 3      | trier.met    | Trier (Deutschland)  | 97.4, 107.2     | 336.2, 39.5  |
///
/// Recalculating is a note of the station that was read; a station whose file is gone is a Dateifehler.
class Klimaprobe {
  public:
    explicit Klimaprobe(const std::string& sprache = "d") {
        ordner.schreibe("klima/bremen.met", kopftext("Bremen (Deutschland)", 53.0, 8.8));
        ordner.schreibe("klima/honolulu.met", kopftext("Honolulu (USA)", 21.3, -157.6));
        ordner.schreibe("klima/paris.met", kopftext("Paris (Frankreich)", 48.9, 2.3));
        ordner.schreibe("klima/passau.met", kopftext("Passau (Deutschland)", 48.6, 13.5));
        ordner.schreibe("klima/tokyo.met", kopftext("Tokyo (Japan)", 35.7, 139.8));
        ordner.schreibe("klima/trier.met", kopftext("Trier (Deutschland)", 49.75, 6.66));
        ordner.schreibe("klima/plz.txt", "282; 1\r\n542; 4\r\n940;11\r\n001; 0\r\n");
        p->AppPfad = ordner.pfad();
        p->Sprache = sprache;
        sprachtexte_setzen(*p);
        regionsdateien_setzen(*p);
        e = std::make_unique<E_Klima>(sitzung, [this] { wetter_laden(); });
    }

    Testordner ordner;
    Losplattform plattform;
    std::unique_ptr<Projekt> p = std::make_unique<Projekt>();
    Sitzung sitzung{*p, plattform, [] {}};
    std::vector<std::string> geladen;  ///< stations in the order of their loading
    std::unique_ptr<E_Klima> e;

    /// Opens a scope on a station, as the reader of a project does, and forgets what that has loaded.
    void oeffne(int bereich, const std::string& klimadatei) {
        p->Klimadatei = klimadatei;
        p->Klimaauswahl = static_cast<std::int16_t>(bereich);
        e->klima_anzeigen();
        p->Geaendert = 0;
        geladen.clear();
    }

    /// A pixel of a station map drawn as it is now.
    [[nodiscard]] static Farbe farbe(const Bildfeld& karte, double x, double y) {
        return RekorderFlaeche(975, 369, karte.zeichnen).lies_punkt(x, y);
    }

  private:
    void wetter_laden() {
        static_cast<void>(inhalt(ordner / ("klima/" + p->Klimadatei)));
        geladen.push_back(p->Klimadatei);
        e->klima_zeigen();
    }
};

}  // namespace velmaris::test
