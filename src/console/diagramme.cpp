#include "console/diagramme.h"

#include "charts/geometriebilder.h"
#include "language/beschriftungen.h"
#include "toolkit/fehler.h"
#include "toolkit/svg_flaeche.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <functional>
#include <string>
#include <system_error>
#include <vector>

namespace velmaris {
namespace {

/// A chart surface with the size that it has where no plane has laid it out.
struct Diagramm {
    const Feld& ebene;
    const Bildfeld& bild;
    double breite = 0;
    double hoehe = 0;
    Farbe hintergrund = farben::weiss;
    std::function<void(Zeichenflaeche&)> beschriften = {};  ///< what the plane shows beside the surface
};

/// The figures around the A/V bar: the building's at the height of its value, those of the bodies
/// of the same volume at theirs.
void av_beschriften(const Projekt& p, Zeichenflaeche& bild) {
    constexpr double balken_links = 42, balken_rechts = 58, halbe_zeile = 6;
    struct Koerper {
        const char* wort;
        const std::string& wert;
        double av;
    };
    const AVTexte texte = av_texte(p);
    bild.schrift({});
    bild.text(balken_links - bild.textbreite(texte.av_anz), texte.av_oben, texte.av_anz);
    for (const Koerper& k : {Koerper{"Label11", texte.AV_Tetraeder, av_tetraeder},
                             {"Label34", texte.AV_Wuerfel, av_wuerfel},
                             {"Label35", texte.AV_Kugel, av_kugel}}) {
        bild.text(balken_rechts, av_hoehe(k.av) - halbe_zeile,
                  k.wert + " " + beschriftung("E_Geometrie", k.wort, p.Sprache));
    }
}

std::vector<Diagramm> diagramme(const Haupt& haupt) {
    const E_Geometrie& geometrie = haupt.e_geometrie;
    const E_Energie& energie = haupt.e_energie;
    const A_Uebersicht& uebersicht = haupt.a_uebersicht;
    const A_Heizen& heizen = haupt.a_heizen;
    const A_Kuehlen& kuehlen = haupt.a_kuehlen;
    std::vector<Diagramm> alle{
        {geometrie.ebene,
         geometrie.AV_Picture,
         140,
         132,
         {240, 240, 240},
         [&haupt](Zeichenflaeche& bild) { av_beschriften(haupt.p, bild); }},
        {geometrie.ebene, geometrie.Picture1, 80, 80},
        {energie.ebene, energie.Picture2, 80, 60},
        {energie.ebene, energie.Picture3, 80, 60},
        {energie.ebene, energie.Monatsübersicht_Energieträger, 330, 118},
    };
    const auto dazu = [&alle](const Feld& ebene, std::initializer_list<const Bildfeld*> bilder) {
        for (const Bildfeld* bild : bilder)
            alle.push_back({ebene, *bild});
    };
    dazu(uebersicht.ebene, {&uebersicht.Temperaturen, &uebersicht.Monatsbilanz, &uebersicht.JahrBilanz,
                            &uebersicht.UeberGrafik, &uebersicht.UeberJahr});
    dazu(heizen.ebene,
         {&heizen.Heizbilanz, &heizen.JahrBilanz, &heizen.NutzungsgradMonat, &heizen.NutzungsgradJahr,
          &heizen.Gewinne_N, &heizen.Verluste_N, &heizen.Gewinne_S, &heizen.Verluste_S, &heizen.Gewinne_O,
          &heizen.Verluste_O, &heizen.Gewinne_W, &heizen.Verluste_W});
    dazu(kuehlen.ebene,
         {&kuehlen.StundenProTagMonat, &kuehlen.StundenProTagJahr, &kuehlen.KuehlbedarfMonat,
          &kuehlen.KuehlbedarfJahr, &kuehlen.KuehlGradStundenMonat, &kuehlen.KuehlGradStundenJahr});
    dazu(haupt.a_sankey.ebene, {&haupt.a_sankey.Sankey, &haupt.a_sankey.Sankey_Kühlen});
    return alle;
}

std::string svg(const Diagramm& diagramm) {
    const auto& lage = diagramm.bild.lage();
    SvgFlaeche flaeche(lage ? lage->breite : diagramm.breite, lage ? lage->hoehe : diagramm.hoehe,
                       diagramm.hintergrund);
    flaeche.Cls();
    diagramm.bild.zeichnen(flaeche);
    if (diagramm.beschriften) diagramm.beschriften(flaeche);
    return flaeche.svg();
}

}  // namespace

void diagramme_schreiben(const Haupt& haupt, const std::filesystem::path& ordner) {
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    if (fehler) {
        throw Dateifehler(pfadtext(ordner),
                          {"der Ordner kann nicht angelegt werden", "the folder cannot be made"});
    }
    for (const Diagramm& diagramm : diagramme(haupt)) {
        datei_ersetzen(ordner / pfad(diagramm.ebene.name + "_" + diagramm.bild.name + ".svg"), svg(diagramm));
    }
}

}  // namespace velmaris
