#include "tests/textlage.h"

#include "planes/Haupt.h"
#include "tests/rekorder_flaeche.h"

#include <tuple>

namespace velmaris::test {
namespace {

/// Records what is drawn, with the letters of another surface.
struct Textprobe : RekorderFlaeche {
    Textprobe(double breite, double hoehe, Zeichenflaeche& m) : RekorderFlaeche(breite, hoehe), masse(m) {}

    void schrift(const Schrift& s) override { RekorderFlaeche::schrift(s), masse.schrift(s); }
    [[nodiscard]] double textbreite(std::string_view text) const override { return masse.textbreite(text); }
    [[nodiscard]] double texthoehe(std::string_view text) const override { return masse.texthoehe(text); }

    Zeichenflaeche& masse;
};

struct Kasten {
    double links, oben, rechts, unten;
};

bool beruehren(const Kasten& a, const Kasten& b) {
    constexpr double ueberstand = 2;  // letters leave the edges of their lines free
    return a.links < b.rechts + 1 && b.links < a.rechts + 1 && a.oben < b.unten - ueberstand &&
           b.oben < a.unten - ueberstand;
}

/// A chart with the width and height of its surface.
using Diagramm = std::tuple<const Bildfeld*, double, double>;

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
        alle.emplace_back(bild, bild->lage()->breite, bild->lage()->hoehe);
    return alle;
}

}  // namespace

std::vector<std::string> textfehler(const std::function<void(Zeichenflaeche&)>& zeichnen, double breite,
                                    double hoehe, Zeichenflaeche& masse) {
    std::vector<std::string> fehler;
    Textprobe probe(breite, hoehe, masse);
    zeichnen(probe);
    std::vector<Kasten> kaesten;
    for (const Zeichnung& z : probe.alle(Zeichnung::Art::text)) {
        masse.schrift(z.schrift);
        const double x = z.zahlen[0];
        const double y = z.zahlen[1];
        const Kasten k{x, y, x + masse.textbreite(z.text), y + masse.texthoehe(z.text)};
        const std::string text = "\"" + z.text + "\" ";
        if (x < 0 || y < 0 || k.rechts > breite || k.unten > hoehe) fehler.push_back(text + "is cut");
        for (const Kasten& anderer : kaesten)
            if (beruehren(k, anderer)) fehler.push_back(text + "touches another");
        kaesten.push_back(k);
    }
    return fehler;
}

std::vector<std::string> textfehler(Haupt& haupt, Zeichenflaeche& masse) {
    std::vector<std::string> fehler;
    for (const auto& [bild, breite, hoehe] : diagramme(haupt)) {
        for (const std::string& text : textfehler(bild->zeichnen, breite, hoehe, masse))
            fehler.push_back(bild->name + " " + text);
    }
    return fehler;
}

}  // namespace velmaris::test
