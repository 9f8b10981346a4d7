#include "documents/print/Ausdrucken.h"

#include "documents/print/druckseiten.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cstddef>
#include <ctime>

namespace velmaris {
namespace {

struct Druckseite {
    int ausgabe;  ///< 1..7
    Wort titel;
    void (*drucken)(Blatt&, const Dokumentquelle&);
};

constexpr std::array<Druckseite, 8> seiten{{
    {1, {"Datenblatt (Teil 1):", "Data sheet (1):"}, seite_datenblatt_1},
    {1, {"Datenblatt (Teil 2):", "Data sheet (2):"}, seite_datenblatt_2},
    {2, {"Ausgabe: Heiz- und Kühlstunden", "Output: Heating and cooling hours"}, seite_stunden},
    {3, {"Ausgabe: Wärmebilanz", "Output: Heat balance"}, seite_waermebilanz},
    {4, {"Ausgabe: Kühlbilanz", "Output: Cooling balance"}, seite_kuehlbilanz},
    {5, {"Ausgabe: Fensterbilanz", "Output: Balance of windows"}, seite_fensterbilanz},
    {6,
     {"Ausgabe: Primär- und Endenergiebedarf Heizung", "Output: Primary and end energy demand for heating"},
     seite_heizenergie},
    {7,
     {"Ausgabe: Primär- und Endenergiebedarf Kühlung", "Output: Primary and end energy demand for cooling"},
     seite_kuehlenergie},
}};

bool gewaehlt(const Druckauswahl& auswahl, const Druckseite& seite) {
    return auswahl.at(static_cast<std::size_t>(seite.ausgabe - 1));
}

}  // namespace

int druckseitenzahl(const Druckauswahl& auswahl) {
    return static_cast<int>(std::count_if(seiten.begin(), seiten.end(), [&auswahl](const Druckseite& seite) {
        return gewaehlt(auswahl, seite);
    }));
}

std::string heutiges_datum() {
    const std::time_t jetzt = std::time(nullptr);
    const std::tm heute = *std::localtime(&jetzt);
    return std::to_string(heute.tm_mday) + "." + std::to_string(heute.tm_mon + 1) + "." +
           std::to_string(heute.tm_year + 1900);
}

void Ausdrucken(Drucker& drucker, const Dokumentquelle& quelle, const Druckauswahl& auswahl,
                const std::string& datum) {
    Blatt blatt(drucker, quelle.p.Sprache);
    Seitenfuss fuss{.datei = pfadtext(pfad(quelle.p.Datei).filename()),
                    .datum = datum,
                    .seite = 0,
                    .seiten = druckseitenzahl(auswahl)};
    for (const Druckseite& seite : seiten) {
        if (!gewaehlt(auswahl, seite)) continue;
        if (fuss.seite++ > 0) drucker.NewPage();
        Seitenkopf(blatt, seite.titel.in(blatt.sprache()), fuss);
        seite.drucken(blatt, quelle);
    }
    if (fuss.seiten > 0) drucker.EndDoc();
}

}  // namespace velmaris
