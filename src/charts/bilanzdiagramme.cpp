#include "charts/bilanzdiagramme.h"

#include "calc/jahressummen.h"
#include "charts/balkenfarben.h"
#include "charts/chartwerte.h"
#include "charts/schema.h"
#include "charts/stufen.h"
#include "language/beschriftungen.h"

#include <algorithm>

namespace velmaris {
namespace {

constexpr int bilanzteile = 5;
constexpr int stundenteile = 4;
constexpr double monatsstunden_schritt = 200;
constexpr double jahresstunden_schritt = 2200;

double fassadenmaximum(const Projekt& p) {
    return std::max({1.0F, p.Fenstergewinn_O, p.Fenstergewinn_S, p.Fenstergewinn_W, p.Fenstergewinn_N,
                     p.Fensterverlust_O, p.Fensterverlust_S, p.Fensterverlust_W, p.Fensterverlust_N});
}

double groesster_verlust(const Projekt& p) {
    double M = 1;
    for (const Monatswerte& monat : p.Monat)
        M = std::max(M, (double{monat.Qt} + monat.Qv) / p.f_nutz);
    return M;
}

constexpr Wort waermebilanz{"Wärmebilanz", "Heat balance"};
constexpr Wort bedarf{"Heizwärme- und Kühlbedarf", "Heat energy and cooling demand"};
constexpr Wort stundenarten{"Heiz-, Nullenergie- und Kühlstunden", "Heating, zero energy and cooling hours"};
constexpr Wort fenster_der_fassaden{"Gewinne und Verluste der Fenster nach Fassaden",
                                    "Gains and losses of the windows by facade"};

std::vector<Wertespalte> bilanzspalten(const Projekt& p, const std::string& einheit) {
    return chartspalten(p, "A_Heizen", {"Label6", "Label5", "Label2", "Label4", "Label3"}, einheit);
}

std::vector<Wertespalte> bedarfsspalten(const Projekt& p, const std::string& einheit) {
    return chartspalten(p, "A_Uebersicht", {"Label9", "Label1"}, einheit);
}

std::vector<Wertespalte> stundenspalten(const Projekt& p) {
    return chartspalten(p, "A_Uebersicht", {"Label32", "Label01", "Label02"}, "h");
}

std::vector<double> stundenwerte(const Betriebsstunden& h) {
    return {static_cast<double>(h.kalt), static_cast<double>(h.komfort), static_cast<double>(h.heiss)};
}

/// The classes by drawing over each other, the full height first.
void stunden_zeichnen(const Balkendiagramm& diagramm, double x1, double x2, const Betriebsstunden& h) {
    const int ohne_kuehlen = h.kalt + h.komfort;
    if (h.heiss > 0) balken_zeichnen(diagramm, x1, x2, ohne_kuehlen + h.heiss, balkenfarben::kuehlen);
    if (h.komfort > 0) balken_zeichnen(diagramm, x1, x2, ohne_kuehlen, balkenfarben::komfort);
    if (h.kalt > 0) balken_zeichnen(diagramm, x1, x2, h.kalt, balkenfarben::heizen);
}

}  // namespace

double groesster_monatsbedarf(const Projekt& p) {
    double M = 0;
    for (const Monatswerte& monat : p.Monat)
        M = std::max({M, double{monat.Qh} / p.f_nutz, double{monat.Kuehlbedarf} / p.f_nutz});
    return M;
}

double groesster_jahresbedarf(const Projekt& p) {
    return std::max(double{p.qhs_sum}, jahreskuehlbedarf(p));
}

double groesster_jahresverlust(const Projekt& p) {
    return p.qverl_s;
}

void FassadenbalkenZeichnen(const Projekt& p, const Fassadenbalken& balken, Zeichenflaeche& bild) {
    const double y = 50 - 50 * double{p.*balken.wert} / fassadenmaximum(p);
    bild.Cls();
    bild.flaeche(1, 49, 8, y, balken.farbe);
    bild.kasten(1, 49, 8, y, farben::schwarz);
}

Wertetafel FassadenbalkenWerte(const Projekt& p) {
    const auto zeile = [&p](const char* name, float gewinn, float verlust) -> Wertezeile {
        return {.namen = {beschriftung("E_Fenster", name, p.Sprache)}, .werte = {gewinn, verlust}};
    };
    return {.titel = std::string(fenster_der_fassaden.in(p.Sprache)),
            .zeilenkopf = {std::string(Wort{"Fassade", "facade"}.in(p.Sprache))},
            .spalten = chartspalten(p, "A_Heizen", {"Label17", "Label18"}, "kWh"),
            .zeilen = {zeile("Label64", p.Fenstergewinn_N, p.Fensterverlust_N),
                       zeile("Label58", p.Fenstergewinn_S, p.Fensterverlust_S),
                       zeile("Label49", p.Fenstergewinn_O, p.Fensterverlust_O),
                       zeile("Label41", p.Fenstergewinn_W, p.Fensterverlust_W)},
            .sprache = p.Sprache};
}

void JahrBilanzZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    JahrBilanzVergleichen(p, bild, groesster_jahresverlust(p));
}

void JahrBilanzVergleichen(const Projekt& p, Zeichenflaeche& bild, double groesster) {
    const Balkendiagramm diagramm{bild, bilanzrahmen, stufen_heizjahr.schritt(groesster), bilanzteile};
    achsen_zeichnen(diagramm, jahresachse);
    jahresname_zeichnen(bild, p.texte.txt_Jahresbilanz);
    bild.text(5, 0, einheit_je_jahr(p));
    stapel_zeichnen(diagramm, 35, 55,
                    {{p.qtrs, balkenfarben::transmission}, {p.qinfs, balkenfarben::lueftung}});
    stapel_zeichnen(
        diagramm, 60, 80,
        {{p.qhs_sum, balkenfarben::heizen}, {p.qis, balkenfarben::intern}, {p.qsols, balkenfarben::solar}});
}

Wertetafel JahrBilanzWerte(const Projekt& p) {
    return jahrestafel(p, waermebilanz, bilanzspalten(p, einheit_je_jahr(p)),
                       {p.qtrs, p.qinfs, p.qhs_sum, p.qis, p.qsols});
}

void HeizbilanzZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    const Balkendiagramm diagramm{bild, bilanzrahmen, stufen_heizmonat.schritt(groesster_verlust(p)),
                                  bilanzteile};
    achsen_zeichnen(diagramm, monatsachse);
    monatsnamen_zeichnen(bild, p);
    bild.text(3, 0, einheit_je_monat(p));
    for (int m = 1; m <= monate; ++m) {
        const Monatswerte& monat = p.Monat(m);
        const double x = monatsspalte(m);
        const auto je_flaeche = [&](float wert) { return double{wert} / p.f_nutz; };
        stapel_zeichnen(diagramm, x, x + 8,
                        {{je_flaeche(monat.Qt), balkenfarben::transmission},
                         {je_flaeche(monat.Qv), balkenfarben::lueftung}});
        stapel_zeichnen(diagramm, x + 10, x + 18,
                        {{je_flaeche(monat.Qh), balkenfarben::heizen},
                         {je_flaeche(monat.Qi_genutzt), balkenfarben::intern},
                         {je_flaeche(monat.Qs_genutzt), balkenfarben::solar}});
    }
}

Wertetafel HeizbilanzWerte(const Projekt& p) {
    return monatstafel(p, waermebilanz, bilanzspalten(p, einheit_je_monat(p)), [&p](int m) {
        const Monatswerte& monat = p.Monat(m);
        std::vector<double> werte{monat.Qt, monat.Qv, monat.Qh, monat.Qi_genutzt, monat.Qs_genutzt};
        for (double& wert : werte)
            wert /= p.f_nutz;
        return werte;
    });
}

void MonatsbilanzZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    MonatsbilanzVergleichen(p, bild, groesster_monatsbedarf(p));
}

void MonatsbilanzVergleichen(const Projekt& p, Zeichenflaeche& bild, double groesster) {
    const Balkendiagramm diagramm{bild, bilanzrahmen, stufen_bedarfsmonat.schritt(groesster), bilanzteile};
    achsen_zeichnen(diagramm, monatsachse);
    monatsnamen_zeichnen(bild, p);
    bild.text(3, 0, einheit_je_monat(p));
    for (int m = 1; m <= monate; ++m) {
        const double heizen = p.Monat(m).Qh;
        const double kuehlen = p.Monat(m).Kuehlbedarf;
        const double x = monatsspalte(m);
        if (heizen > 0) balken_zeichnen(diagramm, x, x + 8, heizen / p.f_nutz, balkenfarben::heizen);
        if (kuehlen > 0) balken_zeichnen(diagramm, x + 10, x + 18, kuehlen / p.f_nutz, balkenfarben::kuehlen);
    }
}

Wertetafel MonatsbilanzWerte(const Projekt& p) {
    return monatstafel(p, bedarf, bedarfsspalten(p, einheit_je_monat(p)), [&p](int m) -> std::vector<double> {
        return {double{p.Monat(m).Qh} / p.f_nutz, monatskuehlbedarf(p, m)};
    });
}

void JahresbedarfZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    JahresbedarfVergleichen(p, bild, groesster_jahresbedarf(p));
}

void JahresbedarfVergleichen(const Projekt& p, Zeichenflaeche& bild, double groesster) {
    const double heizen = p.qhs_sum;
    const double kuehlen = jahreskuehlbedarf(p);
    const Balkendiagramm diagramm{bild, bilanzrahmen, stufen_bedarfsjahr.schritt(groesster), bilanzteile};
    achsen_zeichnen(diagramm, jahresachse);
    jahresname_zeichnen(bild, p.texte.txt_Jahresbilanz);
    bild.text(5, 0, einheit_je_jahr(p));
    balken_zeichnen(diagramm, 35, 55, heizen, balkenfarben::heizen);
    balken_zeichnen(diagramm, 60, 80, kuehlen, balkenfarben::kuehlen);
}

Wertetafel JahresbedarfWerte(const Projekt& p) {
    return jahrestafel(p, bedarf, bedarfsspalten(p, einheit_je_jahr(p)), {p.qhs_sum, jahreskuehlbedarf(p)});
}

void UeberGrafikZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    const Balkendiagramm diagramm{bild, bilanzrahmen, monatsstunden_schritt, stundenteile};
    achsen_zeichnen(diagramm, monatsachse);
    bild.text(10, 0, beschriftung(p, {"Std./Monat", "h/month"}));
    monatsnamen_zeichnen(bild, p, 123);
    for (int m = 1; m <= monate; ++m)
        stunden_zeichnen(diagramm, monatsspalte(m), monatsspalte(m) + 18, betriebsstunden(p, m));
}

Wertetafel UeberGrafikWerte(const Projekt& p) {
    return monatstafel(p, stundenarten, stundenspalten(p),
                       [&p](int m) { return stundenwerte(betriebsstunden(p, m)); });
}

void UeberJahrZeichnen(const Projekt& p, Zeichenflaeche& bild) {
    const Balkendiagramm diagramm{bild, bilanzrahmen, jahresstunden_schritt, stundenteile};
    achsen_zeichnen(diagramm, jahresachse);
    bild.text(22, 123, beschriftung(p, {"Jahressumme", "annual sum"}));
    bild.text(10, 0, beschriftung(p, {"Std.", "h"}));
    stunden_zeichnen(diagramm, 45, 70, betriebsstunden_im_jahr(p));
}

Wertetafel UeberJahrWerte(const Projekt& p) {
    return jahrestafel(p, stundenarten, stundenspalten(p), stundenwerte(betriebsstunden_im_jahr(p)));
}

}  // namespace velmaris
