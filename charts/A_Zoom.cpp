#include "charts/A_Zoom.h"

#include "charts/temperaturdiagramm.h"
#include "toolkit/fehler.h"
#include "toolkit/zahlen.h"

namespace velmaris {

A_Zoom::A_Zoom(Sitzung& sitzung) : sitzung_(sitzung) {
    ebene.zeige(false);
    Temperaturen.zeichnen = [&p = sitzung.p](Zeichenflaeche& bild) { TemperaturDiagrammZeichnen(p, bild); };
    monatsleiste.gewaehlt = [this](int m) { Monatsbutton_Click(m); };
    Command_Schliessen.gedrueckt = [this] { ebene.zeige(false); };
    laden();
}

void A_Zoom::laden() {
    Command_Schliessen.schreibe(Zweisprachig{"Schließen", "Close"}.in(sitzung_.p.Sprache));
    monatsleiste.beschriften(sitzung_.p);
}

void A_Zoom::oeffnen() {
    monatsleiste.markiere(sitzung_.p.Monat_Uebersicht);
    ebene.zeige(true);
}

void A_Zoom::anordnen(double breite, double hoehe) {
    constexpr double knopfhoehe = 22;
    monatsleiste.verteile({.links = 0, .oben = 0, .breite = breite, .hoehe = knopfhoehe});
    monatsleiste.markiere(sitzung_.p.Monat_Uebersicht);
    Temperaturen.lege({.links = 8, .oben = knopfhoehe, .breite = breite - 16, .hoehe = hoehe - 56});
    Command_Schliessen.lege({.links = breite - 144, .oben = hoehe - 33, .breite = 136, .hoehe = 25});
}

void A_Zoom::Monatsbutton_Click(int m) {
    sitzung_.p.Monat_Uebersicht = i16(m, "Monat_Uebersicht");
    monatsleiste.markiere(m);
    Temperaturen.neu_zeichnen();
}

}  // namespace velmaris
