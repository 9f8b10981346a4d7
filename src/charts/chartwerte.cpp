#include "charts/chartwerte.h"

#include "language/beschriftungen.h"

#include <utility>

namespace velmaris {
namespace {

constexpr Wort pro_monat{" pro Monat", " per month"};
constexpr Wort im_jahr{" im Jahr", " per year"};
constexpr Wort groesse{"Größe", "quantity"};
constexpr Wort wert{"Wert", "value"};

std::string titeltext(const Projekt& p, const Wort& titel, const Wort& zeitraum) {
    return std::string(titel.in(p.Sprache)).append(zeitraum.in(p.Sprache));
}

}  // namespace

std::vector<Wertespalte> chartspalten(const Projekt& p, std::string_view fenster,
                                      std::initializer_list<std::string_view> felder,
                                      const std::string& einheit) {
    std::vector<Wertespalte> spalten;
    for (const std::string_view feld : felder)
        spalten.push_back({blosser_name(beschriftung(fenster, feld, p.Sprache)), einheit});
    return spalten;
}

Wertetafel monatstafel(const Projekt& p, const Wort& titel, std::vector<Wertespalte> spalten,
                       const std::function<std::vector<double>(int m)>& werte) {
    Wertetafel tafel{.titel = titeltext(p, titel, pro_monat),
                     .zeilenkopf = {p.texte.txt_Monat},
                     .spalten = std::move(spalten),
                     .zeilen = {},
                     .sprache = p.Sprache};
    for (int m = 1; m <= monate; ++m)
        tafel.zeilen.push_back({.namen = {p.Monat(m).Name}, .werte = werte(m)});
    return tafel;
}

Wertetafel jahrestafel(const Projekt& p, const Wort& titel, std::vector<Wertespalte> spalten,
                       std::vector<double> werte) {
    return {.titel = titeltext(p, titel, im_jahr),
            .zeilenkopf = {},
            .spalten = std::move(spalten),
            .zeilen = {{.namen = {}, .werte = std::move(werte)}},
            .sprache = p.Sprache};
}

Wertetafel groessentafel(const Projekt& p, std::string titel, std::vector<Wertezeile> zeilen,
                         const std::string& einheit) {
    return {.titel = std::move(titel),
            .zeilenkopf = {std::string(groesse.in(p.Sprache))},
            .spalten = {{std::string(wert.in(p.Sprache)), einheit}},
            .zeilen = std::move(zeilen),
            .sprache = p.Sprache};
}

}  // namespace velmaris
