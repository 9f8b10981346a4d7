#include "studies/ergebnisse.h"

#include "calc/jahressummen.h"
#include "toolkit/csvleser.h"
#include "toolkit/fehler.h"
#include "toolkit/je.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace velmaris {
namespace {

template <class Zeilen>
auto suchen(const Zeilen& zeilen, std::string_view name) -> decltype(&*zeilen.begin()) {
    const auto treffer =
        std::ranges::find_if(zeilen, [name](const auto& zeile) { return zeile.name == name; });
    return treffer == zeilen.end() ? nullptr : &*treffer;
}

const Monatszeile& mit_jahreswert(const Monatszeile& zeile) {
    if (zeile.jahr != Jahresart::keine) return zeile;
    throw Laufzeitfehler({"die Größe hat keinen Wert des Jahres", "the quantity has no value of the year"},
                         std::string(zeile.name));
}

std::optional<Klimatext> klimatext(std::string_view name) {
    const A_Klima klima;
    const auto anzeigen = klima.anzeigen();
    const auto* const treffer = std::ranges::find(anzeigen, name, [](const Anzeige* a) { return a->name; });
    if (treffer == anzeigen.end()) return std::nullopt;
    return Klimatext{static_cast<std::size_t>(treffer - anzeigen.begin())};
}

Ergebnis ergebnis_suchen(std::string_view name) {
    const std::string text(name);
    if (const Feldzeile* feld = feld_suchen(name)) return {text, feld};
    if (const Monatszeile* zeile = suchen(monatsfelder(), name)) return {text, &mit_jahreswert(*zeile)};
    if (const Kennwertzeile* zeile = suchen(kennwertfelder(), name)) return {text, zeile};
    if (const auto stelle = klimatext(name)) return {text, *stelle};
    const std::string zitat = "\"" + text + "\"";
    throw Laufzeitfehler({zitat + " ist kein Ergebnis (die Namen sind die von --json)",
                          zitat + " is no result (the names are those of --json)"});
}

float feldwert(const Feldzeile& feld, const Projekt& p) {
    return std::visit(Je{[](std::string Projekt::*) { return std::numeric_limits<float>::quiet_NaN(); },
                         [&p](auto zeiger) { return static_cast<float>(p.*zeiger); }},
                      feld.zeiger);
}

void feld_schreiben(Csvtext& tabelle, const Feldzeile& feld, const Projekt& p) {
    std::visit([&](auto zeiger) { tabelle.zelle(p.*zeiger); }, feld.zeiger);
}

}  // namespace

std::vector<Ergebnis> ergebnisse_lesen(std::string_view namen) {
    std::vector<std::string> teile;
    Csvleser{}.zerlegen(namen, teile);
    std::vector<Ergebnis> ergebnisse;
    for (const std::string& teil : teile) {
        const std::string_view name = ohne_blanks(teil);
        if (suchen(ergebnisse, name) != nullptr)
            throw Laufzeitfehler({"das Ergebnis steht zweimal da", "the result is there twice"},
                                 std::string(name));
        ergebnisse.push_back(ergebnis_suchen(name));
    }
    return ergebnisse;
}

bool brauchen_klima(const std::vector<Ergebnis>& ergebnisse) {
    return std::ranges::any_of(ergebnisse,
                               [](const Ergebnis& e) { return std::holds_alternative<Klimatext>(e.quelle); });
}

float ergebniswert(const Ergebnis& ergebnis, const Rechenstand& stand) {
    return std::visit(Je{[&](const Feldzeile* feld) { return feldwert(*feld, stand.p); },
                         [&](const Monatszeile* zeile) { return jahreswert(stand.p, *zeile).value(); },
                         [&](const Kennwertzeile* zeile) { return stand.kennwerte.*zeile->zeiger; },
                         [](Klimatext) { return std::numeric_limits<float>::quiet_NaN(); }},
                      ergebnis.quelle);
}

bool ist_zahl(const Ergebnis& ergebnis) {
    if (const auto* const* feld = std::get_if<const Feldzeile*>(&ergebnis.quelle))
        return !std::holds_alternative<std::string Projekt::*>((*feld)->zeiger);
    return !std::holds_alternative<Klimatext>(ergebnis.quelle);
}

void ergebnis_schreiben(Csvtext& tabelle, const Ergebnis& ergebnis, const Rechenstand& stand) {
    std::visit(Je{[&](const Feldzeile* feld) { feld_schreiben(tabelle, *feld, stand.p); },
                  [&](const Monatszeile* zeile) { tabelle.zelle(jahreswert(stand.p, *zeile).value()); },
                  [&](const Kennwertzeile* zeile) { tabelle.zelle(stand.kennwerte.*zeile->zeiger); },
                  [&](Klimatext text) { tabelle.zelle(stand.klima->anzeigen()[text.stelle]->text()); }},
               ergebnis.quelle);
}

}  // namespace velmaris
