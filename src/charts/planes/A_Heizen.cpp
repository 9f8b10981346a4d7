#include "charts/planes/A_Heizen.h"

#include "calc/jahressummen.h"
#include "charts/balkenfarben.h"
#include "charts/bilanzdiagramme.h"
#include "charts/nutzungsgrad.h"
#include "charts/schema.h"
#include "language/beschriftungen.h"
#include "toolkit/wort.h"
#include "toolkit/zahlen.h"

#include <array>
#include <string_view>

namespace velmaris {
namespace {

struct Fassadenbild {
    Bildfeld A_Heizen::*bild;
    Fassadenbalken balken;
};

constexpr std::array<Fassadenbild, 8> fassadenbilder{{
    {&A_Heizen::Gewinne_N, {&Projekt::Fenstergewinn_N, balkenfarben::solar}},
    {&A_Heizen::Verluste_N, {&Projekt::Fensterverlust_N, balkenfarben::transmission}},
    {&A_Heizen::Gewinne_S, {&Projekt::Fenstergewinn_S, balkenfarben::solar}},
    {&A_Heizen::Verluste_S, {&Projekt::Fensterverlust_S, balkenfarben::transmission}},
    {&A_Heizen::Gewinne_O, {&Projekt::Fenstergewinn_O, balkenfarben::solar}},
    {&A_Heizen::Verluste_O, {&Projekt::Fensterverlust_O, balkenfarben::transmission}},
    {&A_Heizen::Gewinne_W, {&Projekt::Fenstergewinn_W, balkenfarben::solar}},
    {&A_Heizen::Verluste_W, {&Projekt::Fensterverlust_W, balkenfarben::transmission}},
}};

struct Ergebnisfeld {
    Anzeige A_Heizen::*feld;
    float Projekt::*wert;
    int stellen;
};

constexpr std::array<Ergebnisfeld, 10> ergebnisfelder{{
    {&A_Heizen::qsols_anz, &Projekt::qsols, 1},
    {&A_Heizen::qis_anz, &Projekt::qis, 1},
    {&A_Heizen::qh_s_anz, &Projekt::qhs_sum, 1},
    {&A_Heizen::qinfs_anz, &Projekt::qinfs, 1},
    {&A_Heizen::qtrs_anz, &Projekt::qtrs, 1},
    {&A_Heizen::qh_anz, &Projekt::qh, 0},
    {&A_Heizen::qsol_anz, &Projekt::qsol, 0},
    {&A_Heizen::qi_anz, &Projekt::qi, 0},
    {&A_Heizen::qinf_anz, &Projekt::qinf, 0},
    {&A_Heizen::qtr_anz, &Projekt::qtr, 0},
}};

std::string gewinnzeilen(const A_Heizen& ebene, const Gewinne& g, std::string_view einheit) {
    return tippzeile(ebene.Label13, g.solar_genutzt, einheit) +
           tippzeile(ebene.Label11, g.solar - g.solar_genutzt, einheit) +
           tippzeile(ebene.Label12, g.intern_genutzt, einheit) +
           tippzeile(ebene.Label10, g.intern - g.intern_genutzt, einheit);
}

}  // namespace

A_Heizen::A_Heizen(Sitzung& sitzung) : tooltip(sitzung.plattform, ebene.name), sitzung_(sitzung) {
    ebene.zeige(false);
    bilder_verbinden();
    tooltip.folge_monaten(Heizbilanz, [this](int m) { return tipp_heizbilanz(m); });
    tooltip.folge_jahr(JahrBilanz, [this] { return tipp_jahrbilanz(); });
    tooltip.folge_monaten(NutzungsgradMonat, [this](int m) { return tipp_nutzungsgrad_monat(m); });
    tooltip.folge_jahr(NutzungsgradJahr, [this] { return tipp_nutzungsgrad_jahr(); });
    anordnen();
    laden();
}

void A_Heizen::bilder_verbinden() {
    const Projekt& p = sitzung_.p;
    Heizbilanz.zeichnen = [&p](Zeichenflaeche& bild) { velmaris::HeizbilanzZeichnen(p, bild); };
    JahrBilanz.zeichnen = [&p](Zeichenflaeche& bild) { velmaris::JahrBilanzZeichnen(p, bild); };
    NutzungsgradMonat.zeichnen = [&p](Zeichenflaeche& bild) { NutzungsgradMonatZeichnen(p, bild); };
    NutzungsgradJahr.zeichnen = [&p](Zeichenflaeche& bild) { NutzungsgradJahrZeichnen(p, bild); };
    Heizbilanz.werte = [&p] { return HeizbilanzWerte(p); };
    JahrBilanz.werte = [&p] { return JahrBilanzWerte(p); };
    NutzungsgradMonat.werte = [&p] { return NutzungsgradMonatWerte(p); };
    NutzungsgradJahr.werte = [&p] { return NutzungsgradJahrWerte(p); };
    for (const Fassadenbild& f : fassadenbilder) {
        (this->*f.bild).werte = [&p] { return FassadenbalkenWerte(p); };
        (this->*f.bild).zeichnen = [&p, &f](Zeichenflaeche& bild) {
            velmaris::FassadenbalkenZeichnen(p, f.balken, bild);
        };
    }
}

void A_Heizen::anordnen() {
    constexpr double links = 8;
    constexpr double jahr = links + monatsflaeche_breite + 4;
    Heizbilanz.lege({links, 36, monatsflaeche_breite, chart_hoehe});
    JahrBilanz.lege({jahr, 36, jahresflaeche_breite, chart_hoehe});
    NutzungsgradMonat.lege({links, 214, monatsflaeche_breite, chart_hoehe});
    NutzungsgradJahr.lege({jahr, 214, jahresflaeche_breite, chart_hoehe});
    constexpr double paarabstand = 4;
    double x = 312;
    for (const Fassadenbild& f : fassadenbilder) {
        (this->*f.bild).lege({x, 424, fassadenflaeche_breite, fassadenflaeche_hoehe});
        x += fassadenflaeche_breite;
        if (f.balken.farbe == balkenfarben::transmission) x += paarabstand;
    }
}

void A_Heizen::laden() {
    beschriften(
        ebene.name, sitzung_.p.Sprache,
        {&Label1,  &Label6, &Label5, &Label4,  &Label3,  &Label2, &Label15, &Label16, &Label17, &Label18,
         &Label19, &Label8, &Label7, &Label25, &Label21, &Label9, &Label13, &Label11, &Label12, &Label10});
}

void A_Heizen::aktiviert() {
    tooltip.verlassen();
    HeizFelderAusfuellen();
    FassadenbalkenZeichnen();
    JahrBilanzZeichnen();
    HeizbilanzZeichnen();
    NutzungsgradZeichnen();
}

void A_Heizen::HeizFelderAusfuellen() {
    for (const Ergebnisfeld& e : ergebnisfelder)
        (this->*e.feld).schreibe(muster(sitzung_.p.*e.wert, e.stellen) + " ");
}

Wertetafel A_Heizen::jahreswerte() const {
    const Projekt& p = sitzung_.p;
    const auto zeile = [](const Anzeige& wort, float spezifisch, float absolut) -> Wertezeile {
        return {.namen = {blosser_name(wort.text())}, .werte = {spezifisch, absolut}};
    };
    return {
        .titel = blosser_name(Label1.text()),
        .zeilenkopf = {blosser_name(Label1.text())},
        .spalten = {{Zweisprachig{"spezifisch", "specific"}.in(p.Sprache), "kWh/(m² a)"},
                    {Zweisprachig{"absolut", "absolute"}.in(p.Sprache), "kWh/a"}},
        .zeilen = {zeile(Label6, p.qtrs, p.qtr), zeile(Label5, p.qinfs, p.qinf), zeile(Label4, p.qis, p.qi),
                   zeile(Label3, p.qsols, p.qsol), zeile(Label2, p.qhs_sum, p.qh)},
        .sprache = p.Sprache};
}

void A_Heizen::FassadenbalkenZeichnen() const {
    for (const Fassadenbild& f : fassadenbilder)
        (this->*f.bild).neu_zeichnen();
}

void A_Heizen::JahrBilanzZeichnen() const {
    JahrBilanz.neu_zeichnen();
}

void A_Heizen::HeizbilanzZeichnen() const {
    Heizbilanz.neu_zeichnen();
}

void A_Heizen::NutzungsgradZeichnen() const {
    NutzungsgradMonat.neu_zeichnen();
    NutzungsgradJahr.neu_zeichnen();
}

std::string A_Heizen::tipp_heizbilanz(int m) const {
    const Projekt& p = sitzung_.p;
    const Monatswerte& monat = p.Monat(m);
    const auto zeile = [&](const Anzeige& name, float wert) {
        return tippzeile(name, double{wert} / p.f_nutz, kwh_je_monat(p));
    };
    return tippmonat(p, m) + zeile(Label7, monat.Qv) + zeile(Label8, monat.Qt) +
           zeile(Label21, monat.Qs_genutzt) + zeile(Label25, monat.Qi_genutzt) + zeile(Label9, monat.Qh);
}

std::string A_Heizen::tipp_jahrbilanz() const {
    const Projekt& p = sitzung_.p;
    return p.texte.txt_Jahresbilanz + tippzeile(Label7, p.qinfs, kwh_je_jahr) +
           tippzeile(Label8, p.qtrs, kwh_je_jahr) + tippzeile(Label21, p.qsols, kwh_je_jahr) +
           tippzeile(Label25, p.qis, kwh_je_jahr) + tippzeile(Label9, p.qhs_sum, kwh_je_jahr);
}

std::string A_Heizen::tipp_nutzungsgrad_monat(int m) const {
    const Projekt& p = sitzung_.p;
    return tippmonat(p, m) + gewinnzeilen(*this, gewinne(p, m), kwh_je_monat(p));
}

std::string A_Heizen::tipp_nutzungsgrad_jahr() const {
    const Projekt& p = sitzung_.p;
    return p.texte.txt_Jahresbilanz + gewinnzeilen(*this, gewinne_im_jahr(p), kwh_je_jahr);
}

}  // namespace velmaris
