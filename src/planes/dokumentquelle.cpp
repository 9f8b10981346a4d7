#include "planes/dokumentquelle.h"

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

Auswahltexte auswahltexte(const Haupt& haupt) {
    const E_Fenster& fenster = haupt.e_fenster;
    return {.Dachraum = haupt.e_daemmung.ogd.text(),
            .untere_Decke = haupt.e_daemmung.ugd.text(),
            .Waermebruecken = waermebruecken(haupt),
            .Aussenwandart = haupt.e_gebaeude.Aussenwandart.text(),
            .Innenwandart = haupt.e_gebaeude.Innenwandart.text(),
            .Fensterart = {{{fenster.nord.typ.text(), fenster.sued.typ.text(), fenster.ost.typ.text(),
                             fenster.west.typ.text()}}}};
}

Gebaeudetexte gebaeudetexte(const A_Klima& k) {
    return {.Umittel = k.anz_Umittel.text(),
            .Tspez = k.anz_Tspez.text(),
            .Vspez = k.anz_Vspez.text(),
            .TVspez = k.anz_TVspez.text(),
            .tau = k.anz_tau.text(),
            .Heizlast = k.anz_Heizlast.text(),
            .heizlast_spez = k.anz_heizlast_spez.text(),
            .kuehllast = k.anz_kuehllast.text(),
            .kuehllast_spez = k.anz_kuehllast_spez.text(),
            .Heizgrenztemp = k.anz_Heizgrenztemp.text(),
            .Heiztage = k.anz_Heiztage.text()};
}

Energietexte energietexte(const E_Energie& e) {
    return {.name = e.kennwerte().name,
            .System = e.Label_System.text(),
            .Uebergabe = e.Label_Übergabe.text(),
            .Energietraeger = e.Label_Energieträger.text(),
            .qhs_sum = e.anz_qhs_sum.text(),
            .q_s = e.anz_q_s.text(),
            .q_d = e.anz_q_d.text(),
            .q_ce = e.anz_q_ce.text(),
            .e_g = e.anz_e_g.text(),
            .q_s_he = e.anz_q_s_he.text(),
            .q_d_he = e.anz_q_d_he.text(),
            .q_g_he = e.anz_q_g_he.text(),
            .q_HE_Energietraeger = e.anz_q_HE_Energieträger.text(),
            .q_HE_Strom = e.anz_q_HE_Strom.text(),
            .Primaerenergiefaktor_Energietraeger = e.anz_Primärenergiefaktor_Energieträger.text(),
            .Primaerenergiefaktor_Strom = e.anz_Primärenergiefaktor_Strom.text(),
            .q_PE_Energietraeger = e.anz_q_PE_Energieträger.text(),
            .q_PE_Strom = e.anz_q_PE_Strom.text()};
}

}  // namespace

Dokumentquelle dokumentquelle(Haupt& haupt) {
    haupt.a_klima.Ausfuellen(haupt.p);
    return {.p = haupt.p,
            .auswahl = auswahltexte(haupt),
            .gebaeude = gebaeudetexte(haupt.a_klima),
            .energie = energietexte(haupt.e_energie)};
}

}  // namespace velmaris
