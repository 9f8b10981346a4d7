#include "calc/jahressummen.h"
#include "documents/fassadenwerte.h"
#include "documents/print/druckdiagramme.h"
#include "documents/print/druckseiten.h"
#include "documents/print/drucktabelle.h"
#include "documents/print/zeichnung_haus.h"
#include "toolkit/zahlen.h"

#include <array>
#include <string>
#include <vector>

namespace velmaris {
namespace {

constexpr std::array<Wort, 2> jahr{{{"Jahr", "Year"}, {"", ""}}};

/// Hours of one class, and their share of all hours.
void stundenzeilen(std::vector<Tabellenzeile>& zeilen, const Projekt& p, std::string_view sprache,
                   const Wort& name, std::int16_t Monatswerte::*art) {
    const std::string vorn(name.in(sprache));
    const double summe = summe_der_monate(p, art);
    zeilen.push_back({vorn + " in h", [&p, art](int m) { return 1.0 * (p.Monat(m).*art); }, summe, 0});
    zeilen.push_back({vorn + " in %",
                      [&p, art](int m) { return 100.0 * (p.Monat(m).*art) / (p.Monat(m).Tage * stunden); },
                      100 * summe / stunden_im_jahr, 1});
}

// --- The table of the heat balance, a row for each month ---

constexpr double bilanz_schrift = 8;
constexpr double bilanz_zeile = 4.1;
constexpr double bilanz_name = 26;
constexpr double summenabstand = 1.2;

/// Right edge of column i (0..6).
constexpr double bilanzanker(std::size_t i) {
    return 66 + 18.0 * static_cast<double>(i);
}

struct Bilanzspalte {
    Wort oben;
    Wort unten;
    Wort einheit;
};

constexpr Wort kwh{"in kWh", "in kWh"};

constexpr std::array<Bilanzspalte, 7> bilanzspalten{{
    {{"Transm.-", "Transm."}, {"verluste", "losses"}, kwh},
    {{"Lüftungs-", "Ventil."}, {"verluste", "losses"}, kwh},
    {{"Verluste", "Total"}, {"gesamt", "losses"}, kwh},
    {{"Interne", "Internal"}, {"Gewinne", "gains"}, kwh},
    {{"Solare", "Solar"}, {"Gewinne", "gains"}, kwh},
    {{"Nutzungs-", "Usability"}, {"faktor", "factor"}, {"", ""}},
    {{"Heizwärme-", "Heat energy"}, {"bedarf", "demand"}, kwh},
}};

constexpr std::size_t faktorspalte = 5;

/// The values of a row; the factor may be missing.
struct Bilanzwerte {
    std::array<double, 7> werte;
    bool mit_faktor;
    int stellen;
};

double bilanzzeile(Blatt& blatt, double y, std::string_view name, const Bilanzwerte& zeile) {
    blatt.text(bilanz_name, y, name);
    for (std::size_t i = 0; i < zeile.werte.size(); ++i) {
        if (i != faktorspalte) {
            blatt.DruckeWert(zeile.werte[i], bilanzanker(i), zeile.stellen, y);
        } else if (zeile.mit_faktor) {
            blatt.DruckeWert(zeile.werte[i], bilanzanker(i), 2, y);
        }
    }
    return y + bilanz_zeile;
}

double bilanzkopf(Blatt& blatt, double y) {
    blatt.regel(y);
    y += 0.6;
    for (std::size_t i = 0; i < bilanzspalten.size(); ++i) {
        const Bilanzspalte& spalte = bilanzspalten[i];
        blatt.DruckeText(spalte.oben.in(blatt.sprache()), bilanzanker(i), y);
        blatt.DruckeText(spalte.unten.in(blatt.sprache()), bilanzanker(i), y + bilanz_zeile);
        blatt.DruckeText(spalte.einheit.in(blatt.sprache()), bilanzanker(i), y + 2 * bilanz_zeile);
    }
    y += 3 * bilanz_zeile;
    blatt.doppelregel(y);
    return y + 1.6;
}

void bilanztabelle(Blatt& blatt, double y, const Projekt& p) {
    blatt.schrift({.groesse = bilanz_schrift});
    y = bilanzkopf(blatt, y);
    int m = 0;
    for (const Wort& haelfte : monate_der_tabellen) {
        for (const std::string_view name : worte(haelfte.in(blatt.sprache()))) {
            const Monatswerte& monat = p.Monat(++m);
            const double verluste = double{monat.Qt} + monat.Qv;
            y = bilanzzeile(
                blatt, y, name,
                {{monat.Qt, monat.Qv, verluste, monat.Qi_genutzt, monat.Qs_genutzt, monat.Nutzgrad, monat.Qh},
                 true,
                 0});
        }
    }
    y = bilanzzeile(blatt, y + summenabstand, Wort{"Summe absolut", "Sum absolute"}.in(blatt.sprache()),
                    {{p.qtr, p.qinf, double{p.qtr} + p.qinf, p.qi, p.qsol, 0, p.qh}, false, 0});
    y = bilanzzeile(blatt, y, Wort{"Summe spezifisch", "Sum specific"}.in(blatt.sprache()),
                    {{p.qtrs, p.qinfs, p.qverl_s, p.qis, p.qsols, 0, p.qhs_sum}, false, 1});
    blatt.regel(y);
    blatt.DruckeText(Wort{"Summe spezifisch in kWh/m^2", "Sum specific in kWh/m^2"}.in(blatt.sprache()),
                     bilanzanker(bilanzspalten.size() - 1), y + 0.8);
}

// --- The table of the windows' balance, a column for each facade ---

/// Right edge of the column of a facade, over its bars in the diagram.
constexpr double fensteranker(Wandseite seite) {
    return 76 + 30.0 * static_cast<double>(platz(seite));
}

void fensterbilanz(Blatt& blatt, double y, const Projekt& p) {
    constexpr double zeilenhoehe = 5;
    constexpr double name = 26;
    struct Zeile {
        Wort name;
        JeWandseite<double> werte;
    };
    const JeWandseite<double> gewinne = fenstergewinne(p);
    const JeWandseite<double> verluste = fensterverluste(p);
    JeWandseite<double> bilanz;
    for (const Wandseite seite : wandseiten)
        bilanz[seite] = gewinne[seite] - verluste[seite];
    blatt.schrift({});
    blatt.regel(y);
    y += 0.6;
    blatt.text(name, y, "in kWh/a");
    for (const Wandseite seite : wandseiten)
        blatt.DruckeText(fassadennamen[seite].in(blatt.sprache()), fensteranker(seite), y);
    y += zeilenhoehe;
    blatt.doppelregel(y);
    y += 1.6;
    for (const Zeile& zeile : {Zeile{{"Solare Gewinne", "Solar gains"}, gewinne},
                               {{"Transm.-Verluste", "Transm. losses"}, verluste},
                               {{"Bilanz", "Balance"}, bilanz}}) {
        blatt.text(name, y, zeile.name);
        for (const Wandseite seite : wandseiten)
            blatt.DruckeWert(zeile.werte[seite], fensteranker(seite), 0, y);
        y += zeilenhoehe;
    }
    blatt.regel(y);
}

}  // namespace

void seite_stunden(Blatt& blatt, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    std::vector<Tabellenzeile> zeilen;
    stundenzeilen(zeilen, p, blatt.sprache(), {"Heizstunden", "Heating hours"}, &Monatswerte::Stunden_kalt);
    stundenzeilen(zeilen, p, blatt.sprache(), {"Nullenergiestunden", "Zero energy hours"},
                  &Monatswerte::Stunden_komfort);
    stundenzeilen(zeilen, p, blatt.sprache(), {"Kühlstunden", "Cooling hours"}, &Monatswerte::Stunden_heiss);
    monatstabelle_drucken(blatt, 53, {.jahr = jahr}, zeilen);
    Diagramm_Stunden(blatt, p);
}

void seite_waermebilanz(Blatt& blatt, const Dokumentquelle& quelle) {
    bilanztabelle(blatt, 52, quelle.p);
    Diagramm_Monatbilanz(blatt, quelle.p);
    Diagramm_Jahresbilanz(blatt, quelle.p);
    Legende_Bilanz(blatt);
}

void seite_kuehlbilanz(Blatt& blatt, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    const auto name = [&blatt](const Wort& wort) { return std::string(wort.in(blatt.sprache())); };
    const std::array<Tabellenzeile, 4> zeilen{{
        {name({"Kühlbedarf in kWh/m²", "Cooling demand in kWh/m²"}),
         [&p](int m) { return monatskuehlbedarf(p, m); }, jahreskuehlbedarf(p), 1},
        {name({"Kühlbedarf in kWh", "Cooling demand in kWh"}), [&p](int m) { return p.Monat(m).Kuehlbedarf; },
         summe_der_monate(p, &Monatswerte::Kuehlbedarf), 0},
        {name({"Überwärmung in Std./Tag", "Overheating in hours/day"}),
         [&p](int m) { return tagesstunden(p, m); }, tagesstunden_im_jahr(p), 1},
        {name({"Kühlgradstunden in Kh", "Cooling degree hours in Kh"}),
         [&p](int m) { return p.Monat(m).Kuehlgradstunden; },
         summe_der_monate(p, &Monatswerte::Kuehlgradstunden), 0},
    }};
    monatstabelle_drucken(
        blatt, 58,
        {.jahr = {{{"Jahresmittel /", "Yearly mean /"}, {"Jahressumme", "Yearly sum"}}}, .zeilenhoehe = 6},
        zeilen);
    Diagramm_Kuehlen(blatt, p);
}

void seite_fensterbilanz(Blatt& blatt, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    blatt.schrift({});
    blatt.text(30, 73, Wort{"Südabweichung:", "Deviation from south:"});
    blatt.text(75, 73, muster(p.orient, 0) + " °");
    Diagramm_Orientierung(blatt, p);
    fensterbilanz(blatt, 102, p);
    Diagramm_Fenster(blatt, p);
}

}  // namespace velmaris
