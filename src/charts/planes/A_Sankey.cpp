#include "charts/planes/A_Sankey.h"

#include "charts/c_sankey.h"
#include "charts/sankey_heizen.h"
#include "charts/sankey_kuehlen.h"
#include "language/beschriftungen.h"

namespace velmaris {

A_Sankey::A_Sankey(Sitzung& sitzung) : sitzung_(sitzung) {
    const Projekt& p = sitzung.p;
    ebene.zeige(false);
    Sankey.zeichnen = [&p](Zeichenflaeche& bild) { velmaris::SankeyHeizen(p, bild); };
    Sankey_Kühlen.zeichnen = [&p](Zeichenflaeche& bild) { velmaris::SankeyKuehlen(p, bild); };
    Sankey.werte = [&p] { return SankeyHeizenWerte(p); };
    Sankey_Kühlen.werte = [&p] { return SankeyKuehlenWerte(p); };
    anordnen();
    laden();
}

void A_Sankey::anordnen() {
    constexpr double links = 4;
    constexpr double titel = 15;
    Label1.lege({links, 3, sankey_breite, titel});
    Sankey.lege({links, 18, sankey_breite, sankey_hoehe});
    Label2.lege({links, 253, sankey_breite, titel});
    Sankey_Kühlen.lege({links, 268, sankey_breite, sankey_hoehe});
}

void A_Sankey::laden() {
    beschriften(ebene.name, sitzung_.p.Sprache, {&Label1, &Label2});
}

void A_Sankey::aktiviert() const {
    SankeyHeizen();
    SankeyKuehlen();
}

void A_Sankey::SankeyHeizen() const {
    Sankey.neu_zeichnen();
}

void A_Sankey::SankeyKuehlen() const {
    Sankey_Kühlen.neu_zeichnen();
}

}  // namespace velmaris
