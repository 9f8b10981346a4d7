#include "console/diagramme.h"

#include "toolkit/bildmitnahme.h"
#include "toolkit/fehler.h"
#include "toolkit/text.h"
#include "toolkit/textdatei.h"

#include <initializer_list>
#include <system_error>
#include <vector>

namespace velmaris {
namespace {

/// A chart and the plane that shows it.
struct Diagramm {
    const Feld& ebene;
    const Bildfeld& bild;
};

std::vector<Diagramm> diagramme(const Haupt& haupt) {
    const E_Geometrie& geometrie = haupt.e_geometrie;
    const E_Energie& energie = haupt.e_energie;
    const A_Uebersicht& uebersicht = haupt.a_uebersicht;
    const A_Heizen& heizen = haupt.a_heizen;
    const A_Kuehlen& kuehlen = haupt.a_kuehlen;
    std::vector<Diagramm> alle;
    const auto dazu = [&alle](const Feld& ebene, std::initializer_list<const Bildfeld*> bilder) {
        for (const Bildfeld* bild : bilder)
            alle.push_back({ebene, *bild});
    };
    dazu(geometrie.ebene, {&geometrie.AV_Picture, &geometrie.Picture1});
    dazu(energie.ebene, {&energie.Picture2, &energie.Picture3, &energie.Monatsübersicht_Energieträger});
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

}  // namespace

void diagramme_schreiben(const Haupt& haupt, const std::filesystem::path& ordner) {
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    if (fehler) {
        throw Dateifehler(pfadtext(ordner),
                          {"der Ordner kann nicht angelegt werden", "the folder cannot be made"});
    }
    for (const Diagramm& diagramm : diagramme(haupt)) {
        datei_ersetzen(ordner / pfad(diagramm.ebene.name + "_" + diagramm.bild.name + ".svg"),
                       svg_bild(diagramm.bild));
    }
}

}  // namespace velmaris
