#include "climate/planes/E_Zoom_Klima.h"

#include "climate/karten.h"
#include "language/beschriftungen.h"

namespace velmaris {
namespace {

constexpr double toleranz = 2;

}  // namespace

E_Zoom_Klima::E_Zoom_Klima(Sitzung& sitzung, const std::vector<Station>& stationen, Auswahlliste& ziel)
    : ziel_(ziel),
      karte_{.plattform = sitzung.plattform,
             .stationen = stationen,
             .massstab = weltvergroesserung,
             .toleranz = toleranz,
             .karte = Picture1,
             .liste = Klimaregionwahl2,
             .MausRegion = MausRegion,
             .farbe = kartenfarbe} {
    const std::string& sprache = sitzung.p.Sprache;
    ebene.schreibe(beschriftung(ebene.name, fenstertitel, sprache));
    beschriften<Knopf>(ebene.name, sprache, {&Command1, &Command2});
    ebene.zeige(false);
    Picture1.lade(sitzung.p.AppPfad / "Grafiken" / "welt_gross.bmp");
    Picture1.titel = ebene.text();
    Picture1.einzeln = {.breite = weltgroesse.breite * weltvergroesserung,
                        .hoehe = weltgroesse.hoehe * weltvergroesserung};
    karte_.verbinden();
    Klimaregionwahl2.gewaehlt = [this] { Picture1.neu_zeichnen(); };
    Command1.gedrueckt = [this] { bestaetigen(); };
    Command2.gedrueckt = [this] { ebene.zeige(false); };
}

void E_Zoom_Klima::oeffnen() {
    Klimaregionwahl2.fuelle(ziel_.eintraege());
    Klimaregionwahl2.markiere(ziel_.index());
    MausRegion.schreibe({});
    Picture1.neu_zeichnen();
    ebene.zeige(true);
}

/// Without a selection there is nothing to take over.
void E_Zoom_Klima::bestaetigen() {
    ebene.zeige(false);
    if (Klimaregionwahl2.index() >= 0) ziel_.setze(Klimaregionwahl2.index());
}

}  // namespace velmaris
