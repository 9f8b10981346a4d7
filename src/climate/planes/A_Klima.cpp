#include "climate/planes/A_Klima.h"

#include "calc/gebaeudekennwerte.h"
#include "calc/heizgrenze.h"
#include "charts/chartwerte.h"
#include "climate/jahreswerte.h"
#include "climate/regionen.h"
#include "language/beschriftungen.h"
#include "project/klimabereich.h"
#include "toolkit/zahlen.h"

#include <array>

namespace velmaris {
namespace {

std::string klimaname(const Projekt& p) {
    if (!im_bereich(p, Klimabereich::deutschland)) return p.Stationsname;
    const int region = region_der_station(p);
    return "Region " + (region > 0 ? std::string(klimaregion(region).text) : p.Stationsname);
}

/// A load in kW on the usable floor, W/m2.
double watt_je_flaeche(const Projekt& p, double kilowatt) {
    return kilowatt * 1000 / p.f_nutz;
}

/// The row of the figure whose captions end in that name.
Wertezeile figur(const Projekt& p, const std::string& name, double wert) {
    return {.namen = {blosser_name(beschriftung("A_Klima", "Label_" + name, p.Sprache))},
            .werte = {wert},
            .einheit = beschriftung("A_Klima", "Einheit_" + name, p.Sprache)};
}

Wertezeile wortfigur(const Projekt& p, const std::string& name, const std::string& wort) {
    return {.namen = {beschriftung("A_Klima", "Label_" + name, p.Sprache)}, .werte = {}, .text = wort};
}

}  // namespace

Wertetafel A_Klima::klimawerte(const Projekt& p) {
    const Jahreswerte jahr = jahreswerte(p);
    const Monatswerte& warm = p.Monat(jahr.waermster_monat);
    const Monatswerte& kalt = p.Monat(jahr.kaeltester_monat);
    return groessentafel(
        p, beschriftung("A_Klima", "Frame1", p.Sprache) + " " + klimaname(p),
        {figur(p, "MaxJahrTemp", jahr.Ta_max), figur(p, "MaxMonatTemp", warm.Tmittel),
         wortfigur(p, "MaxMonatName", warm.Name), figur(p, "MittelJahrTemp", jahr.mittel),
         figur(p, "MinMonatTemp", kalt.Tmittel), wortfigur(p, "MinMonatName", kalt.Name),
         figur(p, "MinJahrTemp", jahr.Ta_min), figur(p, "Heizgradtage", heizgrenze(p).Heizgradtage)});
}

Wertetafel A_Klima::gebaeudewerte(const Projekt& p) {
    const Gebaeudekennwerte werte = gebaeudekennwerte(p);
    const Heizgrenze grenze = heizgrenze(p);
    return groessentafel(
        p, beschriftung("A_Klima", "Frame2", p.Sprache),
        {figur(p, "Umittel", werte.Umittel), figur(p, "Tspez", werte.Tspez), figur(p, "Vspez", werte.Vspez),
         figur(p, "TVspez", werte.TVspez), figur(p, "tau", werte.tau), figur(p, "Heizlast", p.Heizlast_max),
         figur(p, "heizlast_spez", watt_je_flaeche(p, p.Heizlast_max)),
         figur(p, "kuehllast", p.Kuehllast_max),
         figur(p, "kuehllast_spez", watt_je_flaeche(p, p.Kuehllast_max)),
         figur(p, "Heizgrenztemp", grenze.Temperatur), figur(p, "Heiztage", grenze.Heiztage)});
}

void A_Klima::stationswerte_zeigen(const Projekt& p) {
    const Jahreswerte jahr = jahreswerte(p);
    const Monatswerte& warm = p.Monat(jahr.waermster_monat);
    const Monatswerte& kalt = p.Monat(jahr.kaeltester_monat);
    anz_klimaregion.schreibe(klimaname(p));
    anz_MaxMonatName.schreibe(warm.Name);
    anz_MaxMonatTemp.schreibe(muster(warm.Tmittel, 1));
    anz_MinMonatName.schreibe(kalt.Name);
    anz_MinMonatTemp.schreibe(muster(kalt.Tmittel, 1));
    anz_MittelJahrTemp.schreibe(muster(jahr.mittel, 1));
    anz_MaxJahrTemp.schreibe(muster(jahr.Ta_max, 1));
    anz_MinJahrTemp.schreibe(muster(jahr.Ta_min, 1));
}

void A_Klima::kennwerte_zeigen(const Projekt& p) {
    const Gebaeudekennwerte werte = gebaeudekennwerte(p);
    anz_tau.schreibe(muster(werte.tau, 1));
    anz_Vspez.schreibe(muster(werte.Vspez, 1));
    anz_Tspez.schreibe(muster(werte.Tspez, 1));
    anz_Umittel.schreibe(muster(werte.Umittel, 2));
    anz_TVspez.schreibe(muster(werte.TVspez, 1));
}

void A_Klima::Ausfuellen(const Projekt& p) {
    anz_Heizlast.schreibe(muster(p.Heizlast_max, 1));
    anz_heizlast_spez.schreibe(muster(watt_je_flaeche(p, p.Heizlast_max), 1));
    anz_kuehllast.schreibe(muster(p.Kuehllast_max, 1));
    anz_kuehllast_spez.schreibe(muster(watt_je_flaeche(p, p.Kuehllast_max), 1));
    heizgrenztemperatur(p);
}

void A_Klima::heizgrenztemperatur(const Projekt& p) {
    const Heizgrenze grenze = heizgrenze(p);
    anz_Heizgrenztemp.schreibe(muster(grenze.Temperatur, 1));
    anz_Heiztage.schreibe(std::to_string(grenze.Heiztage));
    anz_Heizgradtage.schreibe(muster(grenze.Heizgradtage, 0));
}

std::array<const Anzeige*, 20> A_Klima::anzeigen() const {
    return {
        &anz_klimaregion,    &anz_MaxMonatName,   &anz_MinMonatName,  &anz_MaxMonatTemp, &anz_MinMonatTemp,
        &anz_MittelJahrTemp, &anz_MaxJahrTemp,    &anz_MinJahrTemp,   &anz_tau,          &anz_Vspez,
        &anz_Tspez,          &anz_Umittel,        &anz_TVspez,        &anz_Heizlast,     &anz_heizlast_spez,
        &anz_kuehllast,      &anz_kuehllast_spez, &anz_Heizgrenztemp, &anz_Heiztage,     &anz_Heizgradtage};
}

}  // namespace velmaris
