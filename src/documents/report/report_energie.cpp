#include "calc/jahressummen.h"
#include "documents/report/reportseiten.h"
#include "energy/energiebilanz.h"
#include "toolkit/zahlen.h"

#include <array>
#include <string>

namespace velmaris {
namespace {

using Zellen = Reporttext::Zellen;

constexpr std::string_view einheit = " kWh/(m² a)";
constexpr Wort jahressumme{"Jahressumme", "Yearly sum"};

/// A label with the carrier behind it.
struct Traegerwort {
    std::string de;
    std::string en;

    Traegerwort(const Wort& wort, std::string_view traeger)
        : de(std::string(wort.de).append(traeger)), en(std::string(wort.en).append(traeger)) {}
    [[nodiscard]] Wort wort() const { return {de, en}; }
};

void waerme(Reporttext& text, const Energietexte& e, std::string_view traeger) {
    text.gruppe({"Wärme", "Heat"});
    text.unterreihe({"Heizwärmebedarf", "Heat energy demand"}, e.qhs_sum, einheit);
    text.unterreihe({"Verluste bei der Wärmespeicherung", "Losses of the heat storage"}, e.q_s, einheit);
    text.unterreihe({"Wärmeverluste bei der Verteilung", "Heat losses from the distribution"}, e.q_d,
                    einheit);
    text.unterreihe({"Verluste bei der Übergabe an die Räume", "Looses at the transmission to the rooms"},
                    e.q_ce, einheit);
    text.unterreihe({"Aufwandszahl der Wärmeerzeugung", "Expense number of heat generation"}, e.e_g);
    text.zeile_anhaengen("");
    text.unterreihe(Traegerwort({"Endenergiebedarf ", "End energy demand "}, traeger).wort(),
                    e.q_HE_Energietraeger, einheit);
}

void hilfsenergie(Reporttext& text, const Energietexte& e) {
    text.gruppe({"Hilfsenergie (Strom)", "Auxiliary energy (electricity)"});
    text.unterreihe({"Hilfsenergiebedarf zur Wärmeerzeugung", "Auxiliary energy for heat generation"},
                    e.q_g_he, einheit);
    text.unterreihe({"Hilfsenergiebedarf zur Wärmespeicherung", "Auxiliary energy for heat storage"},
                    e.q_s_he, einheit);
    text.unterreihe({"Hilfsenergiebedarf zur Wärmeverteilung", "Auxiliary energy for heat distribution"},
                    e.q_d_he, einheit);
    text.zeile_anhaengen("");
    text.unterreihe(
        {"Endenergiebedarf Hilfsenergie (Strom)", "End energy demand auxiliary energy (electricity)"},
        e.q_HE_Strom, einheit);
}

constexpr Wort faktor_strom{"Primärenergiefaktor Strom", "Primary energy factor electricity"};

/// Carrier and auxiliary electricity apart.
void energien_getrennt(Reporttext& text, const Energietexte& e, std::string_view traeger) {
    waerme(text, e, traeger);
    text.unterreihe(Traegerwort({"Primärenergiefaktor ", "Primary energy factor "}, traeger).wort(),
                    e.Primaerenergiefaktor_Energietraeger);
    text.unterreihe(Traegerwort({"Primärenergiebedarf ", "Primary energy demand "}, traeger).wort(),
                    e.q_PE_Energietraeger, einheit);
    hilfsenergie(text, e);
    text.unterreihe(faktor_strom, e.Primaerenergiefaktor_Strom);
    text.unterreihe(
        {"Primärenergiebedarf Hilfsenergie (Strom)", "Primary energy demand auxiliary energy (electricity)"},
        e.q_PE_Strom, einheit);
}

/// With an electric carrier all primary energy is that of electricity.
void energien_elektrisch(Reporttext& text, const Energietexte& e, std::string_view traeger) {
    waerme(text, e, traeger);
    hilfsenergie(text, e);
    text.zeile_anhaengen("");
    text.reihe(faktor_strom, e.Primaerenergiefaktor_Strom);
    text.reihe({"Primärenergiebedarf Strom", "Primary energy demand electricity"}, e.q_PE_Energietraeger,
               einheit);
}

/// End and primary energy of the year times a share.
Zellen energiezellen(const Projekt& p, double anteil, bool elektrisch) {
    const double ende = double{p.q_HE_Strom} + p.q_HE_Energietraeger;
    const double primaer = double{p.q_PE_Strom} + p.q_PE_Energietraeger;
    if (elektrisch) return {muster(anteil * ende, 1), muster(anteil * primaer, 1)};
    return {muster(anteil * p.q_HE_Energietraeger, 1),
            muster(anteil * p.q_HE_Strom, 1),
            muster(anteil * ende, 1),
            muster(anteil * p.q_PE_Energietraeger, 1),
            muster(anteil * p.q_PE_Strom, 1),
            muster(anteil * primaer, 1)};
}

void monate_elektrisch(Reporttext& text, const Projekt& p) {
    constexpr std::array<Wort, 3> kopf{{
        {R"( \tab Endenergiebedarf \tab Primärenergiebedarf)",
         R"( \tab End energy demand \tab Primary energy demand)"},
        {R"( \tab Strom \tab Strom)", R"( \tab electricity \tab electricity)"},
        {R"( \tab in kWh/m² \tab in kWh/m²)", R"( \tab in kWh/m² \tab in kWh/m²)"},
    }};
    text.monatstabelle(p, tabstopps::zwei, kopf,
                       [&p](int m) { return energiezellen(p, heizanteil(p, m), true); });
}

void monate_getrennt(Reporttext& text, const Projekt& p, std::string_view traeger) {
    const auto traegerzeile = [traeger](std::string_view rest) {
        std::string zeile;
        for (int i = 0; i < 2; ++i)
            zeile.append(R"( \tab )").append(traeger).append(rest);
        return zeile;
    };
    constexpr std::string_view einheiten =
        R"( \tab in kWh/m² \tab in kWh/m² \tab in kWh/m² \tab in kWh/m² \tab in kWh/m² \tab in kWh/m²)";
    const std::string de = traegerzeile(R"( \tab Strom \tab gesamt)");
    const std::string en = traegerzeile(R"( \tab electricity \tab total)");
    const std::array<Wort, 4> kopf{{
        {R"( \tab Endenergie- \tab Endenergie- \tab Endenergie- \tab Primärener- \tab Primärener- \tab Primärener-)",
         R"( \tab End energy \tab End energy \tab End energy \tab Primary \tab Primary \tab Primary )"},
        {R"( \tab bedarf \tab bedarf \tab bedarf \tab giebedarf \tab giebedarf \tab giebedarf)",
         R"( \tab demand \tab demand \tab demand \tab demand \tab demand \tab demand)"},
        {de, en},
        {einheiten, einheiten},
    }};
    text.monatstabelle(p, tabstopps::sechs, kopf,
                       [&p](int m) { return energiezellen(p, heizanteil(p, m), false); });
}

}  // namespace

void report_heizenergie(Reporttext& text, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    const Kurzname& name = quelle.energie.name;
    const std::string_view traeger = name.in(text.sprache());
    text.seitenkopf({"Ausgabe: Primär- und Endenergiebedarf Heizung",
                     "Output: Primary and end energy demand for heating"});
    text.abschnitt({"Energiebedarf der Heizungsanlage", "Energy demand of the heating system"});
    text.block(tabstopps::werte);
    if (name.elektrisch()) {
        energien_elektrisch(text, quelle.energie, traeger);
    } else {
        energien_getrennt(text, quelle.energie, traeger);
    }
    text.zeile_anhaengen("");
    if (name.elektrisch()) {
        monate_elektrisch(text, p);
    } else {
        monate_getrennt(text, p, traeger);
    }
    text.jahreszeile(jahressumme, energiezellen(p, 1, name.elektrisch()));
}

void report_kuehlenergie(Reporttext& text, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    constexpr std::array<Wort, 2> kopf{{
        {R"( \tab Kühlbedarf \tab Kühlenergiebedarf \tab Primärenergiebedarf)",
         R"( \tab Cooling demand \tab End energy demand for cooling \tab Primary energy demand)"},
        {R"( \tab in kWh/m² \tab in kWh/m² \tab in kWh/m²)",
         R"( \tab in kWh/m² \tab in kWh/m² \tab in kWh/m²)"},
    }};
    const auto zellen = [](double bedarf, const Kuehlenergie& strom) -> Zellen {
        return {muster(bedarf, 1), muster(strom.Endenergie, 1), muster(strom.Primaerenergie, 1)};
    };
    text.seitenkopf({"Ausgabe: Primär- und Endenergiebedarf Kühlung",
                     "Output: Primary and end energy demand for cooling"});
    text.abschnitt({"Energiebedarf der Kühlanlage", "Energy demand of the cooling system"});
    text.block(tabstopps::werte);
    text.reihe({"Effizienzfaktor der Klimaanlage", "Efficiency factor of the air conditioning"},
               muster(p.Klimaeffizienz, 1),
               Wort{" kWh Kühlung/ kWh Strom", " kWh cooling/ kWh electricity"}.in(text.sprache()));
    text.zeile_anhaengen("");
    text.monatstabelle(p, tabstopps::drei, kopf,
                       [&](int m) { return zellen(monatskuehlbedarf(p, m), kuehlenergie(p, m)); });
    text.tabellenlinie();
    text.jahreszeile(jahressumme, zellen(jahreskuehlbedarf(p), kuehlenergie_im_jahr(p)));
}

}  // namespace velmaris
