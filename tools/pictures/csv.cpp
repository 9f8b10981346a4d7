#include "tools/pictures/csv.h"

#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <cmath>
#include <utility>

namespace velmaris::bilder {
namespace {

std::vector<std::string> felder(std::string_view zeile) {
    std::vector<std::string> ergebnis;
    for (std::size_t von = 0;;) {
        const std::size_t komma = zeile.find(',', von);
        ergebnis.emplace_back(zeile.substr(von, komma - von));
        if (komma == std::string_view::npos) return ergebnis;
        von = komma + 1;
    }
}

}  // namespace

Tabelle::Tabelle(const std::filesystem::path& datei, std::vector<std::string> spalten)
    : datei_(pfadtext(datei)), spalten_(std::move(spalten)) {
    const std::string bytes = bytes_lesen(datei, hoechste_quellgroesse);
    Zeilenleser leser(bytes);
    const auto kopf = leser.naechste();
    if (!kopf || felder(*kopf) != spalten_) {
        throw Dateifehler(datei_, {"andere Spalten als erwartet", "columns differ from the expected ones"},
                          1);
    }
    while (const auto zeile = leser.naechste()) {
        zeilen_.push_back(felder(*zeile));
        if (zeilen_.back().size() != spalten_.size()) {
            throw Dateifehler(datei_, {"falsche Zahl von Feldern", "wrong number of fields"}, leser.zeile());
        }
    }
}

const std::string& Tabelle::text(std::size_t zeile, std::size_t spalte) const {
    return zeilen_.at(zeile).at(spalte);
}

double Tabelle::zahl(std::size_t zeile, std::size_t spalte, double von, double bis) const {
    const auto wert = zahl_pruefen(text(zeile, spalte));
    if (!wert) ablehnen(zeile, spalte, "keine Zahl", "not a number");
    if (*wert < von || *wert > bis) ablehnen(zeile, spalte, "Zahl außerhalb der Grenzen", "out of range");
    return *wert;
}

int Tabelle::ganzzahl(std::size_t zeile, std::size_t spalte, int von, int bis) const {
    const double wert = zahl(zeile, spalte, von, bis);
    if (wert != std::floor(wert)) ablehnen(zeile, spalte, "keine ganze Zahl", "not a whole number");
    return static_cast<int>(wert);
}

void Tabelle::ablehnen(std::size_t zeile, std::size_t spalte, std::string_view de,
                       std::string_view en) const {
    const std::string inhalt = ": \"" + text(zeile, spalte) + "\"";
    throw Dateifehler(datei_, {std::string(de) + inhalt, std::string(en) + inhalt},
                      static_cast<int>(zeile) + 2, spalten_.at(spalte));
}

}  // namespace velmaris::bilder
