#include "tests/textlage.h"

#include "planes/Haupt.h"

#include <algorithm>
#include <map>

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
    struct Stueck {
        double links, rechts;
        std::string text;
    };
    Textprobe probe(diagramm.breite, diagramm.hoehe, masse);
    diagramm.bild->zeichnen(probe);
    std::vector<std::string> fehler;
    const auto melde = [&](const std::string& text, const char* was) {
        fehler.push_back(diagramm.bild->name + " \"" + text + "\" " + was);
    };
    std::map<double, std::vector<Stueck>> zeilen;
    for (const Zeichnung& z : probe.alle(Zeichnung::Art::text)) {
        masse.schrift(z.schrift);
        const double links = z.zahlen[0];
        const double oben = z.zahlen[1];
        const double rechts = links + masse.textbreite(z.text);
        if (links < 0 || rechts > diagramm.breite) melde(z.text, "is cut at a side");
        if (oben < 0 || oben + masse.texthoehe(z.text) > diagramm.hoehe)
            melde(z.text, "is cut above or below");
        zeilen[oben].push_back({links, rechts, z.text});
    }
    for (auto& [y, stuecke] : zeilen) {
        std::sort(stuecke.begin(), stuecke.end(),
                  [](const Stueck& a, const Stueck& b) { return a.links < b.links; });
        for (std::size_t i = 1; i < stuecke.size(); ++i)
            if (stuecke[i].links < stuecke[i - 1].rechts + 1) melde(stuecke[i].text, "touches its neighbour");
    }
    return fehler;
}

}  // namespace velmaris::test
