#include "charts/planes/monatswahl.h"

#include "charts/temperaturdiagramm.h"
#include "toolkit/zahlen.h"

namespace velmaris {

void Monatswahl::nimm_auf(Monatsleiste& leiste, Bildfeld& temperaturen) {
    leiste.gewaehlt = [this](int m) { Monatsbutton_Click(m); };
    temperaturen.zeichnen = [&p = p_](Zeichenflaeche& bild) { TemperaturDiagrammZeichnen(p, bild); };
    temperaturen.werte = [&p = p_] { return TemperaturDiagrammWerte(p); };
    teilnehmer_.push_back({&leiste, &temperaturen});
}

void Monatswahl::Monatsbutton_Click(int m) {
    p_.Monat_Uebersicht = i16(m, "Monat_Uebersicht");
    markiere();
    for (const Teilnehmer& teilnehmer : teilnehmer_)
        teilnehmer.temperaturen->neu_zeichnen();
}

void Monatswahl::markiere() const {
    for (const Teilnehmer& teilnehmer : teilnehmer_)
        teilnehmer.leiste->markiere(p_.Monat_Uebersicht);
}

}  // namespace velmaris
