#include "charts/planes/A_Uebersicht.h"

#include "calc/jahressummen.h"
#include "charts/bilanzdiagramme.h"
#include "charts/schema.h"
#include "language/beschriftungen.h"
#include "toolkit/zahlen.h"

namespace velmaris {
namespace {

/// A line with hours and their share of all hours.
std::string stundenzeile(const Anzeige& name, int h, double alle) {
    return "\r" + name.text() + ": " + muster(h, 0) + " h  (" + muster(h / alle * 100, 1) + " %)";
}

std::string stundenzeilen(const A_Uebersicht& ebene, const Betriebsstunden& h, double alle) {
    return stundenzeile(ebene.Label32, h.kalt, alle) + stundenzeile(ebene.Label01, h.komfort, alle) +
           stundenzeile(ebene.Label02, h.heiss, alle);
}

}  // namespace

A_Uebersicht::A_Uebersicht(Sitzung& sitzung, Monatswahl& monatswahl, A_Zoom& zoom)
    : tooltip(sitzung.plattform, ebene.name), sitzung_(sitzung), monatswahl_(monatswahl), zoom_(zoom) {
    const Projekt& p = sitzung.p;
    ebene.zeige(false);
    monatswahl.nimm_auf(monatsleiste, Temperaturen);
    Monatsbilanz.zeichnen = [&p](Zeichenflaeche& bild) { velmaris::MonatsbilanzZeichnen(p, bild); };
    JahrBilanz.zeichnen = [&p](Zeichenflaeche& bild) { JahresbedarfZeichnen(p, bild); };
    UeberGrafik.zeichnen = [&p](Zeichenflaeche& bild) { velmaris::UeberGrafikZeichnen(p, bild); };
    UeberJahr.zeichnen = [&p](Zeichenflaeche& bild) { UeberJahrZeichnen(p, bild); };
    Monatsbilanz.werte = [&p] { return MonatsbilanzWerte(p); };
    JahrBilanz.werte = [&p] { return JahresbedarfWerte(p); };
    UeberGrafik.werte = [&p] { return UeberGrafikWerte(p); };
    UeberJahr.werte = [&p] { return UeberJahrWerte(p); };
    tooltip.folge_monaten(Monatsbilanz, [this](int m) { return tipp_monatsbilanz(m); });
    tooltip.folge_jahr(JahrBilanz, [this] { return tipp_jahrbilanz(); });
    tooltip.folge_monaten(UeberGrafik, [this](int m) { return tipp_uebergrafik(m); });
    tooltip.folge_jahr(UeberJahr, [this] { return tipp_ueberjahr(); });
    Temperaturen.gedrueckt = [this] { zoom_.oeffnen(); };
    Temperaturen.maus_geklickt = [this](double, double) { Temperaturen.gedrueckt(); };
    anordnen();
    laden();
}

void A_Uebersicht::anordnen() {
    constexpr double links = 8;
    constexpr double jahr = links + monatsflaeche_breite + 4;
    constexpr double breite = monatsflaeche_breite + 4 + jahresflaeche_breite;
    Temperaturen.lege({links, 4, breite, 158});
    monatsleiste.verteile({links, 163, breite - 1, 20});
    Monatsbilanz.lege({links, 204, monatsflaeche_breite, chart_hoehe});
    JahrBilanz.lege({jahr, 204, jahresflaeche_breite, chart_hoehe});
    UeberGrafik.lege({links, 362, monatsflaeche_breite, chart_hoehe});
    UeberJahr.lege({jahr, 362, jahresflaeche_breite, chart_hoehe});
}

void A_Uebersicht::laden() {
    beschriften(ebene.name, sitzung_.p.Sprache, {&Label9, &Label1, &Label32, &Label01, &Label02});
    monatsleiste.beschriften(sitzung_.p);
    monatswahl_.markiere();
}

void A_Uebersicht::aktiviert() {
    tooltip.verlassen();
    sitzung_.alles_berechnen();
    monatswahl_.markiere();
}

void A_Uebersicht::MonatsbilanzZeichnen() const {
    Monatsbilanz.neu_zeichnen();
    JahrBilanz.neu_zeichnen();
}

void A_Uebersicht::UeberGrafikZeichnen() const {
    UeberGrafik.neu_zeichnen();
    UeberJahr.neu_zeichnen();
}

void A_Uebersicht::TemperaturDiagrammZeichnen() const {
    Temperaturen.neu_zeichnen();
}

std::string A_Uebersicht::tipp_monatsbilanz(int m) const {
    const Projekt& p = sitzung_.p;
    const Monatswerte& monat = p.Monat(m);
    return tippmonat(p, m) + tippzeile(Label9, double{monat.Qh} / p.f_nutz, kwh_je_monat(p)) +
           tippzeile(Label1, double{monat.Kuehlbedarf} / p.f_nutz, kwh_je_monat(p));
}

std::string A_Uebersicht::tipp_jahrbilanz() const {
    const Projekt& p = sitzung_.p;
    return p.texte.txt_Jahresbilanz + tippzeile(Label9, p.qhs_sum, kwh_je_jahr) +
           tippzeile(Label1, jahreskuehlbedarf(p), kwh_je_jahr);
}

std::string A_Uebersicht::tipp_uebergrafik(int m) const {
    const Projekt& p = sitzung_.p;
    return tippmonat(p, m) + stundenzeilen(*this, betriebsstunden(p, m), p.Monat(m).Tage * double{stunden});
}

std::string A_Uebersicht::tipp_ueberjahr() const {
    const Projekt& p = sitzung_.p;
    return beschriftung(p, {"Jahressumme", "annual sum"}) +
           stundenzeilen(*this, betriebsstunden_im_jahr(p), stunden_im_jahr);
}

}  // namespace velmaris
