#include "studies/jahresergebnisse.h"

#include "calc/jahressummen.h"
#include "energy/energiebilanz.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace velmaris {
namespace {

/// Hours of the year in degC: largest and mean value.
template <class Stunden>
double groesste_temperatur(const Stunden& reihe) {
    double groesste = -std::numeric_limits<double>::infinity();
    fuer_jede_stunde(
        [&](int m, int d, int h, int) { groesste = std::max(groesste, double{reihe(m, d, h)}); });
    return groesste;
}

template <class Stunden>
double mittlere_temperatur(const Stunden& reihe) {
    double summe = 0;
    int zahl = 0;
    fuer_jede_stunde([&](int m, int d, int h, int) {
        summe += reihe(m, d, h);
        ++zahl;
    });
    return summe / zahl;
}

constexpr const char* je_flaeche = "kWh/(m² a)";

}  // namespace

const Ergebniszeile ergebnis_heizen{
    {"Heizwärmebedarf", "heat energy demand"}, je_flaeche, 1, heizwaermebedarf};

const Ergebniszeile ergebnis_kuehlen{{"Kühlbedarf", "cooling demand"}, je_flaeche, 1, jahreskuehlbedarf};

const Ergebniszeile ergebnis_primaer_heizen{
    {"Primärenergie Heizung", "primary energy for heating"}, je_flaeche, 1, [](const Projekt& p) {
        return double{p.q_PE_Energietraeger} + p.q_PE_Strom;
    }};

const Ergebniszeile ergebnis_primaer_kuehlen{
    {"Primärenergie Kühlung", "primary energy for cooling"}, je_flaeche, 1, [](const Projekt& p) {
        return kuehlenergie_im_jahr(p).Primaerenergie;
    }};

const Ergebniszeile ergebnis_primaer{
    {"Primärenergie", "primary energy"}, je_flaeche, 1, [](const Projekt& p) {
        return ergebnis_primaer_heizen.wert(p) + ergebnis_primaer_kuehlen.wert(p);
    }};

std::span<const Ergebniszeile> jahresergebnisse() {
    static const std::vector<Ergebniszeile> zeilen{
        ergebnis_heizen,
        ergebnis_kuehlen,
        {{"Endenergie Heizung", "end energy for heating"},
         je_flaeche,
         1,
         [](const Projekt& p) { return double{p.q_HE_Energietraeger} + p.q_HE_Strom; }},
        {{"Endenergie Kühlung", "end energy for cooling"},
         je_flaeche,
         1,
         [](const Projekt& p) { return kuehlenergie_im_jahr(p).Endenergie; }},
        ergebnis_primaer_heizen,
        ergebnis_primaer_kuehlen,
        {{"Maximale Heizlast", "maximum heating load"},
         "kW",
         1,
         [](const Projekt& p) { return double{p.Heizlast_max}; }},
        {{"Maximale Kühllast", "maximum cooling load"},
         "kW",
         1,
         [](const Projekt& p) { return double{p.Kuehllast_max}; }},
        {{"Heizstunden", "heating hours"},
         "h",
         0,
         [](const Projekt& p) { return double(betriebsstunden_im_jahr(p).kalt); }},
        {{"Nullenergiestunden", "zero energy hours"},
         "h",
         0,
         [](const Projekt& p) { return double(betriebsstunden_im_jahr(p).komfort); }},
        {{"Kühlstunden", "cooling hours"},
         "h",
         0,
         [](const Projekt& p) { return double(betriebsstunden_im_jahr(p).heiss); }},
        {{"Kühlgradstunden", "cooling degree hours"},
         "Kh",
         0,
         [](const Projekt& p) { return summe_der_monate(p, &Monatswerte::Kuehlgradstunden); }},
        {{"Höchste freie Raumtemperatur", "highest free-running room temperature"},
         "°C",
         1,
         [](const Projekt& p) { return groesste_temperatur(p.T_frei); }},
        {{"Mittlere freie Raumtemperatur", "mean free-running room temperature"},
         "°C",
         1,
         [](const Projekt& p) { return mittlere_temperatur(p.T_frei); }},
        {{"Mittlere geregelte Raumtemperatur", "mean controlled room temperature"},
         "°C",
         1,
         [](const Projekt& p) { return mittlere_temperatur(p.T_regel); }},
        {{"Zeitkonstante", "time constant"}, "h", 1, [](const Projekt& p) { return p.tau / 3600.0; }},
    };
    return zeilen;
}

}  // namespace velmaris
