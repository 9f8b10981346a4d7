#include "tests/textlage.h"

#include "planes/Haupt.h"

namespace velmaris::test {

void Textprobe::schrift(const Schrift& schrift) {
    RekorderFlaeche::schrift(schrift);
    masse_.schrift(schrift);
}

std::vector<Diagramm> diagramme(Haupt& haupt) {
    A_Uebersicht& u = haupt.a_uebersicht;
    A_Heizen& h = haupt.a_heizen;
    A_Kuehlen& k = haupt.a_kuehlen;
    E_Energie& e = haupt.e_energie;
    std::vector<Diagramm> alle{{&haupt.a_zoom.Temperaturen, 768, 444},
                               {&haupt.a_zoom.Temperaturen, 384, 184},
                               {&e.Monatsübersicht_Energieträger, 330, 114},
                               {&e.Picture2, 80, 64},
                               {&e.Picture3, 80, 64}};
    for (const Bildfeld* bild :
         {&u.Temperaturen, &u.Monatsbilanz, &u.JahrBilanz, &u.UeberGrafik, &u.UeberJahr, &h.Heizbilanz,
          &h.JahrBilanz, &h.NutzungsgradMonat, &h.NutzungsgradJahr, &k.StundenProTagMonat,
          &k.StundenProTagJahr, &k.KuehlbedarfMonat, &k.KuehlbedarfJahr, &k.KuehlGradStundenMonat,
          &k.KuehlGradStundenJahr, &haupt.a_sankey.Sankey, &haupt.a_sankey.Sankey_Kühlen})
        alle.push_back({bild, bild->lage()->breite, bild->lage()->hoehe});
    return alle;
}

std::vector<std::string> textfehler(const Diagramm& diagramm, Zeichenflaeche& masse) {
    constexpr double ueberstand = 2;  // letters leave the edges of their lines free
    struct Kasten {
        double links, oben, rechts, unten;
    };
    Textprobe probe(diagramm.breite, diagramm.hoehe, masse);
    diagramm.bild->zeichnen(probe);
    std::vector<std::string> fehler;
    std::vector<Kasten> kaesten;
    for (const Zeichnung& z : probe.alle(Zeichnung::Art::text)) {
        const auto melde = [&](const char* was) {
            fehler.push_back(diagramm.bild->name + " \"" + z.text + "\" " + was);
        };
        masse.schrift(z.schrift);
        const double x = z.zahlen[0];
        const double y = z.zahlen[1];
        const Kasten k{x, y, x + masse.textbreite(z.text), y + masse.texthoehe(z.text)};
        if (k.links < 0 || k.rechts > diagramm.breite) melde("is cut at a side");
        if (k.oben < 0 || k.unten > diagramm.hoehe) melde("is cut above or below");
        for (const Kasten& a : kaesten) {
            if (k.links < a.rechts + 1 && a.links < k.rechts + 1 && k.oben < a.unten - ueberstand &&
                a.oben < k.unten - ueberstand)
                melde("touches another");
        }
        kaesten.push_back(k);
    }
    return fehler;
}

}  // namespace velmaris::test
