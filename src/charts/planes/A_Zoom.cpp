#include "charts/planes/A_Zoom.h"

#include "toolkit/fehler.h"

namespace velmaris {

A_Zoom::A_Zoom(Sitzung& sitzung, Monatswahl& wahl) : sitzung_(sitzung), monatswahl_(wahl) {
    ebene.zeige(false);
    wahl.nimm_auf(monatsleiste, Temperaturen);
    Command_Schliessen.gedrueckt = [this] { ebene.zeige(false); };
    laden();
}

void A_Zoom::laden() {
    Command_Schliessen.schreibe(Zweisprachig{"Schließen", "Close"}.in(sitzung_.p.Sprache));
    monatsleiste.beschriften(sitzung_.p);
}

void A_Zoom::oeffnen() {
    monatswahl_.markiere();
    TemperaturDiagrammZeichnen();
    ebene.zeige(true);
}

void A_Zoom::anordnen(double breite, double hoehe) {
    constexpr double knopfhoehe = 22;
    monatsleiste.verteile({.links = 0, .oben = 0, .breite = breite, .hoehe = knopfhoehe});
    monatswahl_.markiere();
    Temperaturen.lege({.links = 8, .oben = knopfhoehe, .breite = breite - 16, .hoehe = hoehe - 56});
    Command_Schliessen.lege({.links = breite - 144, .oben = hoehe - 33, .breite = 136, .hoehe = 25});
}

void A_Zoom::TemperaturDiagrammZeichnen() const {
    Temperaturen.neu_zeichnen();
}

}  // namespace velmaris
