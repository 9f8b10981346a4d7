#include "studies/wertereihe.h"

#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"

#include <array>
#include <cmath>
#include <variant>

namespace velmaris {
namespace {

/// What a step may miss the end by, as a part of it: decimal fractions are no exact binary numbers.
constexpr double spiel = 1e-6;

std::vector<std::string_view> geteilt(std::string_view text, char trennung) {
    std::vector<std::string_view> teile;
    for (std::size_t ende = 0; (ende = text.find(trennung)) != std::string_view::npos;
         text.remove_prefix(ende + 1))
        teile.push_back(text.substr(0, ende));
    teile.push_back(text);
    return teile;
}

bool ist_text(const Feldzeile& feld) {
    return std::holds_alternative<std::string Projekt::*>(feld.zeiger);
}

double zahl(std::string_view text, const Feldzeile& feld) {
    if (const auto wert = zahl_pruefen(text)) return *wert;
    const std::string zitat = "\"" + std::string(text) + "\"";
    throw Laufzeitfehler({"keine Zahl: " + zitat, "not a number: " + zitat}, std::string(feld.name));
}

}  // namespace

const Feldzeile& eingabe_suchen(std::string_view name) {
    const Feldzeile* const feld = feld_suchen(name);
    const std::string zitat = "\"" + std::string(name) + "\"";
    if (feld == nullptr)
        throw Laufzeitfehler({zitat + " ist keine Eingabe eines Projekts (die Namen sind die von --json)",
                              zitat + " is no input of a project (the names are those of --json)"});
    if (feld->zeile == 0)
        throw Laufzeitfehler({zitat + " ist keine Eingabe, sondern folgt aus den Eingaben",
                              zitat + " is no input, it follows from the inputs"});
    return *feld;
}

Wertereihe::Wertereihe(std::string_view text) {
    const std::size_t gleich = text.find('=');
    if (gleich == std::string_view::npos)
        throw Laufzeitfehler({"erwartet wird NAME=VON:BIS:SCHRITT oder NAME=a,b,c",
                              "NAME=FROM:TO:STEP or NAME=a,b,c is expected"});
    feld_ = &eingabe_suchen(text.substr(0, gleich));
    const std::string_view werte = text.substr(gleich + 1);
    if (werte.find(':') != std::string_view::npos && !ist_text(*feld_)) {
        schritte_lesen(werte);
    } else {
        liste_lesen(werte);
    }
}

void Wertereihe::schritte_lesen(std::string_view text) {
    const std::string name(feld_->name);
    const std::vector<std::string_view> teile = geteilt(text, ':');
    if (teile.size() != 3)
        throw Laufzeitfehler(
            {"ein Bereich hat die Form VON:BIS:SCHRITT", "a range has the form FROM:TO:STEP"}, name);
    von_ = zahl(teile[0], *feld_);
    const double bis = zahl(teile[1], *feld_);
    schritt_ = zahl(teile[2], *feld_);
    if (schritt_ == 0) throw Laufzeitfehler({"der Schritt ist 0", "the step is 0"}, name);
    const double schritte = (bis - von_) / schritt_;
    if (!(schritte >= 0))
        throw Laufzeitfehler({"der Schritt führt von BIS weg; sein Vorzeichen ist falsch",
                              "the step leads away from TO; its sign is wrong"},
                             name);
    if (schritte >= static_cast<double>(hoechste_zeilenzahl))
        throw Laufzeitfehler({"mehr als 1000000000 Werte", "more than 1000000000 values"}, name);
    anzahl_ = static_cast<std::uint64_t>(std::floor(schritte + spiel)) + 1;
}

void Wertereihe::liste_lesen(std::string_view text) {
    for (const std::string_view wert : geteilt(text, ',')) {
        if (wert.find_first_not_of(" \t") == std::string_view::npos)
            throw Laufzeitfehler({"ein Wert ist leer", "a value is empty"}, std::string(feld_->name));
        if (!ist_text(*feld_)) static_cast<void>(zahl(wert, *feld_));
        liste_.emplace_back(wert);
    }
    anzahl_ = liste_.size();
}

std::string Wertereihe::wert(std::uint64_t i) const {
    if (!liste_.empty()) return liste_[i];
    return kuerzeste(f32(von_ + static_cast<double>(i) * schritt_));
}

}  // namespace velmaris
