#include "planes/reportquelle.h"

#include "language/beschriftungen.h"
#include "planes/Haupt.h"
#include "toolkit/zahlen.h"

#include <string>

namespace velmaris {
namespace {

/// The option that is set; a surcharge that no option stands for is shown as such.
std::string waermebruecken(const Haupt& haupt) {
    if (const auto option = haupt.e_daemmung.Waermebruecken_opt.gesetzt())
        return beschriftung("E_Daemmung", "Waermebruecken_opt" + std::to_string(*option), haupt.p.Sprache);
    return muster(haupt.p.Waermebruecken, 2) + " W/(m² K)";
}

}  // namespace

Reportquelle reportquelle(Haupt& haupt) {
    haupt.a_klima.Ausfuellen(haupt.p);
    const E_Fenster& fenster = haupt.e_fenster;
    return {.p = haupt.p,
            .a_klima = haupt.a_klima,
            .e_energie = haupt.e_energie,
            .auswahl = {.Dachraum = haupt.e_daemmung.ogd.text(),
                        .untere_Decke = haupt.e_daemmung.ugd.text(),
                        .Waermebruecken = waermebruecken(haupt),
                        .Aussenwandart = haupt.e_gebaeude.Aussenwandart.text(),
                        .Innenwandart = haupt.e_gebaeude.Innenwandart.text(),
                        .Fensterart = {fenster.nord.typ.text(), fenster.sued.typ.text(),
                                       fenster.ost.typ.text(), fenster.west.typ.text()}}};
}

}  // namespace velmaris
