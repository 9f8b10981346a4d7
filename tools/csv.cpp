#include "tools/csv.h"

#include "toolkit/textdatei.h"
#include "toolkit/zahlen.h"

#include <cmath>
#include <optional>
#include <utility>

namespace velmaris {
namespace {

std::vector<std::string> zerlegen(std::string_view zeile) {
    std::vector<std::string> felder;
    while (true) {
        const std::size_t komma = zeile.find(',');
        felder.emplace_back(zeile.substr(0, komma));
        if (komma == std::string_view::npos) return felder;
        zeile.remove_prefix(komma + 1);
    }
}

std::shared_ptr<const Csvkopf> kopf_lesen(std::string_view zeile, const std::string& datei,
                                          const std::vector<std::string>& verlangt) {
    Csvkopf kopf{datei, {}};
    for (const std::string& name : zerlegen(zeile)) {
        if (!kopf.spalten.emplace(name, kopf.spalten.size()).second)
            throw Dateifehler(datei, {"die Spalte steht doppelt da", "the column stands there twice"}, 1,
                              name);
    }
    for (const std::string& name : verlangt) {
        if (!kopf.spalten.contains(name))
            throw Dateifehler(datei, {"die Spalte fehlt", "the column is missing"}, 1, name);
    }
    return std::make_shared<const Csvkopf>(std::move(kopf));
}

}  // namespace

Csvzeile::Csvzeile(std::shared_ptr<const Csvkopf> kopf, std::string_view text, int nummer)
    : kopf_(std::move(kopf)), felder_(zerlegen(text)), nummer_(nummer) {
    if (felder_.size() == kopf_->spalten.size()) return;
    const std::string ist = std::to_string(felder_.size());
    const std::string soll = std::to_string(kopf_->spalten.size());
    throw Dateifehler(datei(), {ist + " Spalten statt " + soll, ist + " columns instead of " + soll}, nummer);
}

const std::string& Csvzeile::text(std::string_view spalte) const {
    const std::string& wert = felder_[kopf_->spalten.find(spalte)->second];
    if (wert.empty()) ablehnen(spalte, {"die Angabe fehlt", "the entry is missing"});
    if (wert.front() == ' ' || wert.back() == ' ')
        ablehnen(spalte, {"Leerzeichen am Rand", "blank at the edge"});
    if (wert.find('"') != std::string::npos) ablehnen(spalte, {"Anführungszeichen", "quotation mark"});
    return wert;
}

double Csvzeile::zahl(std::string_view spalte, Grenzen grenzen) const {
    const std::string& wert = text(spalte);
    const std::optional<double> zahl = zahl_pruefen(wert);
    if (!zahl) ablehnen(spalte, {"\"" + wert + "\" ist keine Zahl", "\"" + wert + "\" is no number"});
    if (*zahl < grenzen.von || *zahl > grenzen.bis) {
        const std::string bereich = muster(grenzen.von, 1) + " .. " + muster(grenzen.bis, 1);
        ablehnen(spalte, {wert + " liegt nicht in " + bereich, wert + " is not within " + bereich});
    }
    return *zahl;
}

int Csvzeile::ganzzahl(std::string_view spalte, Grenzen grenzen) const {
    const double wert = zahl(spalte, grenzen);
    if (wert != std::floor(wert))
        ablehnen(spalte, {text(spalte) + " ist keine ganze Zahl", text(spalte) + " is no whole number"});
    return static_cast<int>(wert);
}

void Csvzeile::ablehnen(std::string_view spalte, const Zweisprachig& grund) const {
    throw Dateifehler(datei(), grund, nummer_, std::string(spalte));
}

std::vector<Csvzeile> csv_lesen(std::string_view text, const std::string& datei,
                                const std::vector<std::string>& verlangte_spalten) {
    Zeilenleser leser(text);
    const auto kopfzeile = leser.naechste();
    std::vector<Csvzeile> zeilen;
    if (kopfzeile) {
        const auto kopf = kopf_lesen(*kopfzeile, datei, verlangte_spalten);
        while (const auto zeile = leser.naechste())
            zeilen.emplace_back(kopf, *zeile, leser.zeile());
    }
    if (zeilen.empty())
        throw Dateifehler(datei, {"die Tabelle ist leer", "the table is empty"}, leser.zeile());
    return zeilen;
}

}  // namespace velmaris
