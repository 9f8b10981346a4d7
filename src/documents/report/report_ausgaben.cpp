#include "calc/jahressummen.h"
#include "documents/report/reportseiten.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <string>

namespace velmaris {
namespace {

using Zellen = Reporttext::Zellen;

constexpr Wort jahressumme{"Jahressumme", "Yearly sum"};

/// One hundredth of the hours of a year.
constexpr double stunden_je_prozent = 87.6;

void bedarf(Reporttext& text, const Projekt& p) {
    constexpr std::array<Wort, 2> kopf{{
        {R"( \tab Heizwärmebedarf \tab Kühlbedarf)", R"( \tab Heat energy demand \tab Cooling demand)"},
        {R"( \tab in kWh/m² \tab in kWh/m²)", R"( \tab in kWh/m² \tab in kWh/m²)"},
    }};
    const auto zellen = [&p](double heizen, double kuehlen) -> Zellen {
        return {muster(heizen / p.f_nutz, 1), muster(kuehlen / p.f_nutz, 1)};
    };
    text.abschnitt({"Heizwärme- und Kühlbedarf", "Heat energy and cooling demand"});
    text.monatstabelle(p, tabstopps::zwei, kopf,
                       [&](int m) { return zellen(p.Monat(m).Qh, p.Monat(m).Kuehlbedarf); });
    text.tabellenlinie();
    text.jahreszeile(jahressumme, zellen(summe_der_monate(p, &Monatswerte::Qh),
                                         summe_der_monate(p, &Monatswerte::Kuehlbedarf)));
}

void betriebsstunden(Reporttext& text, const Projekt& p) {
    constexpr std::array<Wort, 2> kopf{{
        {R"( \tab Heizstunden \tab Nullenergiestunden \tab Kühlstunden)",
         R"( \tab Heating hours \tab Zero energy hours \tab Cooling hours)"},
        {R"( \tab in Stunden \tab in Stunden \tab in Stunden)",
         R"( \tab in hours \tab in hours \tab in hours)"},
    }};
    text.abschnitt({"Heiz- und Kühlstunden", "Heating and cooling hours"});
    text.monatstabelle(p, tabstopps::drei, kopf, [&p](int m) -> Zellen {
        const Monatswerte& monat = p.Monat(m);
        return {std::to_string(monat.Stunden_kalt), std::to_string(monat.Stunden_komfort),
                std::to_string(monat.Stunden_heiss)};
    });
    const Betriebsstunden jahr = betriebsstunden_im_jahr(p);
    const auto anteil = [](double stunden_der_art) {
        return muster(stunden_der_art / stunden_je_prozent, 1);
    };
    text.jahreszeile({"Summe (in Std.)", "Sum (in hours)"},
                     {zahltext(jahr.kalt), zahltext(jahr.komfort), zahltext(jahr.heiss)});
    text.jahreszeile({"Summe (in %)", "Sum (in %)"},
                     {anteil(jahr.kalt), anteil(jahr.komfort), anteil(jahr.heiss)});
}

void klimadaten(Reporttext& text, const Projekt& p) {
    constexpr std::array<Wort, 2> kopf{{
        {R"( \tab Mitteltemperatur \tab Temperaturmaximum \tab Temperaturminimum)",
         R"( \tab Mean temperature \tab Maximum temperature \tab Minimum temperature)"},
        {R"( \tab in °C \tab in °C \tab in °C)", R"( \tab in °C \tab in °C \tab in °C)"},
    }};
    double jahresmittel = 0;
    text.abschnitt({"Klimadaten", "Climate data"});
    text.monatstabelle(p, tabstopps::drei, kopf, [&](int m) -> Zellen {
        double summe = 0;
        double hoechste = -1000;
        double tiefste = 1000;
        fuer_jede_stunde_des_monats(m, 1, [&](int monat, int d, int h, int) {
            const double Ta = p.Wetter(monat, d, h).Ta;
            summe += Ta;
            jahresmittel += Ta / stunden_im_jahr;
            hoechste = std::max(hoechste, Ta);
            tiefste = std::min(tiefste, Ta);
        });
        return {muster(summe / (p.Monat(m).Tage * stunden), 1), muster(hoechste, 1), muster(tiefste, 1)};
    });
    text.tabellenlinie();
    text.jahreszeile({"Jahresmittel ", "Yearly mean "}, {muster(jahresmittel, 1)});
}

void gebaeudedaten(Reporttext& text, const Gebaeudetexte& k) {
    struct Zeile {
        Wort name;
        const std::string& wert;
        Wort einheit;
    };
    const std::array<Zeile, 11> zeilen{{
        {{"Mittlerer U-Wert", "Mean U value"}, k.Umittel, {" W/(m² K)", " W/(m² K)"}},
        {{"Spezifische Transmissionsverluste", "Specific transmission losses"}, k.Tspez, {" W/K", " W/K"}},
        {{"Spezifische Lüftungsverluste", "Specific ventilation losses"}, k.Vspez, {" W/K", " W/K"}},
        {{"Summe spezifische Verluste", "Sum specific losses"}, k.TVspez, {" W/K", " W/K"}},
        {{"Thermische Trägheit", "Thermal inertia"}, k.tau, {" Stunden", " hours"}},
        {{"Maximale Heizlast", "Maximum heating load"}, k.Heizlast, {" kW", " kW"}},
        {{"Maximale spezifische Heizlast", "Maximum specific heating load"},
         k.heizlast_spez,
         {" W/m²", " W/m²"}},
        {{"Maximale Kühllast", "Maximum cooling load"}, k.kuehllast, {" kW", " kW"}},
        {{"Maximale spezifische Kühllast", "Maximum specific cooling load"},
         k.kuehllast_spez,
         {" W/m²", " W/m²"}},
        {{"Heizgrenztemperatur", "Limit temperature for heating"}, k.Heizgrenztemp, {"°C", "°C"}},
        // The unit has no English form.
        {{"Effektive Heiztage", "Effective heating days"}, k.Heiztage, {" Tage", " Tage"}},
    }};
    text.abschnitt({"Gebäudedaten", "Building data"});
    text.block(tabstopps::werte);
    for (const Zeile& zeile : zeilen)
        text.reihe(zeile.name, zeile.wert, zeile.einheit.in(text.sprache()));
}

/// The two head lines that the tables of the heat balance share; "Tramsmis-" is spelled as ever.
constexpr Wort bilanzkopf_1{
    R"( \tab Tramsmis- \tab Lüftungs- \tab Interne \tab Solare \tab Nutzungs- \tab Heizwärme-)",
    R"( \tab Transm. \tab Ventil. \tab Internal \tab Solar \tab Usability \tab Heat energy)"};
constexpr Wort bilanzkopf_2{
    R"( \tab sionsverl. \tab verluste \tab Gewinne \tab Gewinne \tab faktor \tab bedarf)",
    R"( \tab losses \tab losses \tab Gains \tab Gains \tab factor \tab demand)"};

/// The year's values of a balance; the factor has none.
void bilanzsumme(Reporttext& text, int stellen, float qt, float qv, float qi, float qs, float qh) {
    text.jahreszeile({"Jahressumme ", "Yearly sum "},
                     {muster(qt, stellen), muster(qv, stellen), muster(qi, stellen), muster(qs, stellen), " ",
                      muster(qh, stellen)});
}

/// A heat balance of the months: energies by the divisor with that many decimals.
void bilanztabelle(Reporttext& text, const Projekt& p, const Wort& einheiten, double teiler, int stellen) {
    const std::array<Wort, 3> kopf{bilanzkopf_1, bilanzkopf_2, einheiten};
    text.monatstabelle(p, tabstopps::sechs, kopf, [&](int m) -> Zellen {
        const Monatswerte& monat = p.Monat(m);
        const auto energie = [&](float wert) { return muster(wert / teiler, stellen); };
        return {energie(monat.Qt),         energie(monat.Qv),         energie(monat.Qi_genutzt),
                energie(monat.Qs_genutzt), muster(monat.Nutzgrad, 2), energie(monat.Qh)};
    });
}

void kuehlbilanz(Reporttext& text, const Projekt& p) {
    constexpr std::array<Wort, 3> kopf{{
        {R"( \tab Kühlbedarf \tab Kühlbedarf \tab Durchschnittliche \tab Kühlgradstunden)",
         R"( \tab Cooling demand \tab Cooling demand \tab Mean \tab Cooling degree)"},
        {R"( \tab spezifisch \tab absolut \tab Überwärmung)",
         R"( \tab specific \tab absolute \tab overheating \tab hours)"},
        {R"( \tab in kWh/m² \tab in kWh \tab in Stunden/Tag \tab in Kh)",
         R"( \tab in kWh/m² \tab in kWh \tab in hours/day \tab in Kh)"},
    }};
    const auto zellen = [&p](double bedarf, const std::string& ueberwaermung, double gradstunden) -> Zellen {
        return {muster(bedarf / p.f_nutz, 1), muster(bedarf, 0), ueberwaermung, muster(gradstunden, 1)};
    };
    text.abschnitt({"Kühlbedarf und Überwärmung", "Cooling demand and overheating"});
    text.monatstabelle(p, tabstopps::vier, kopf, [&](int m) {
        const Monatswerte& monat = p.Monat(m);
        return zellen(monat.Kuehlbedarf, muster(tagesstunden(p, m), 1), monat.Kuehlgradstunden);
    });
    text.jahreszeile(jahressumme, zellen(summe_der_monate(p, &Monatswerte::Kuehlbedarf), " ",
                                         summe_der_monate(p, &Monatswerte::Kuehlgradstunden)));
}

}  // namespace

void report_uebersicht(Reporttext& text, const Dokumentquelle& quelle) {
    text.seitenkopf({"Ausgabe: Übersicht", "Output: Overview"});
    bedarf(text, quelle.p);
    betriebsstunden(text, quelle.p);
}

void report_klima(Reporttext& text, const Dokumentquelle& quelle) {
    text.seitenkopf({"Ausgabe: Klima- und Gebäudedaten", "Output: Climate and building data"});
    klimadaten(text, quelle.p);
    gebaeudedaten(text, quelle.gebaeude);
}

void report_waermebilanz(Reporttext& text, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    constexpr std::string_view je_flaeche =
        R"( \tab in kWh/m² \tab in kWh/m² \tab in kWh/m² \tab in kWh/m² \tab \tab in kWh/m²)";
    constexpr std::string_view absolut =
        R"( \tab in kWh \tab in kWh \tab in kWh \tab in kWh \tab \tab in kWh)";
    text.seitenkopf({"Ausgabe: Wärmebilanz", "Output: Heat balance"});
    text.abschnitt({"Spezifisch (pro m² Nutzfläche)", "Specific (per m² useful area)"});
    bilanztabelle(text, p, {je_flaeche, je_flaeche}, p.f_nutz, 1);
    text.tabellenlinie();
    bilanzsumme(text, 1, p.qtrs, p.qinfs, p.qis, p.qsols, p.qhs_sum);
    text.abschnitt({"Absolut (gesamtes Gebäude)", "Absolute (total building)"});
    bilanztabelle(text, p, {absolut, absolut}, 1, 0);
    bilanzsumme(text, 0, p.qtr, p.qinf, p.qi, p.qsol, p.qh);
}

void report_kuehlbilanz(Reporttext& text, const Dokumentquelle& quelle) {
    text.seitenkopf({"Ausgabe: Kühlbilanz", "Output: Cooling balance"});
    kuehlbilanz(text, quelle.p);
}

}  // namespace velmaris
