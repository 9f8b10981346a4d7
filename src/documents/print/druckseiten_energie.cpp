#include "calc/jahressummen.h"
#include "documents/print/druckdiagramme.h"
#include "documents/print/druckseiten.h"
#include "documents/print/drucktabelle.h"
#include "energy/energiebilanz.h"
#include "toolkit/zahlen.h"

#include <array>
#include <string>
#include <vector>

namespace velmaris {
namespace {

constexpr double seitenanfang = 52;
constexpr double zeilenhoehe = 4.5;
constexpr double name = 30;
constexpr double wertanker = 132;
constexpr double einheit_links = 134;
constexpr std::string_view je_jahr = "kWh/(m² a)";
constexpr std::array<Wort, 2> jahr{{{"Jahr", "Year"}, {"", ""}}};
constexpr Wort im_monat{"in kWh/m²", "in kWh/m²"};

/// Rows of names with right-aligned values and units behind, from the top down.
class Werteliste {
  public:
    Werteliste(Blatt& blatt, double y) : blatt_(blatt), y_(y) { blatt.schrift({}); }

    void namenszeile(std::string_view text, std::string_view wert, std::string_view einheit = {}) {
        blatt_.text(name, y_, text);
        blatt_.DruckeText(wert, wertanker, y_);
        if (!einheit.empty()) blatt_.text(einheit_links, y_, einheit);
        y_ += zeilenhoehe;
    }
    void zeile(const Wort& text, std::string_view wert, std::string_view einheit = {}) {
        namenszeile(text.in(blatt_.sprache()), wert, einheit);
    }
    void abstand() { y_ += zeilenhoehe / 2; }

    [[nodiscard]] double y() const { return y_; }

  private:
    Blatt& blatt_;
    double y_;
};

std::string mit_traeger(const Wort& wort, const Kurzname& traeger, std::string_view sprache) {
    return std::string(wort.in(sprache)) + " " + std::string(traeger.in(sprache));
}

double heizwerte(Blatt& blatt, const Energietexte& e) {
    const Kurzname& traeger = e.name;
    const std::string_view sprache = blatt.sprache();
    Werteliste liste(blatt, seitenanfang);
    liste.zeile({"Heizwärmebedarf", "Heat energy demand"}, e.qhs_sum, je_jahr);
    liste.zeile({"Verluste bei der Wärmespeicherung", "Losses of the heat storage"}, e.q_s, je_jahr);
    liste.zeile({"Wärmeverluste bei der Verteilung", "Heat losses from the distribution"}, e.q_d, je_jahr);
    liste.zeile({"Verluste bei der Übergabe an die Räume", "Losses at the transmission to the rooms"}, e.q_ce,
                je_jahr);
    liste.zeile({"Aufwandszahl der Wärmeerzeugung", "Expense number of heat generation"}, e.e_g);
    liste.abstand();
    liste.namenszeile(mit_traeger({"Endenergiebedarf", "End energy demand"}, traeger, sprache),
                      e.q_HE_Energietraeger, je_jahr);
    if (!traeger.elektrisch()) {
        liste.namenszeile(mit_traeger({"Primärenergiefaktor", "Primary energy factor"}, traeger, sprache),
                          e.Primaerenergiefaktor_Energietraeger);
        liste.namenszeile(mit_traeger({"Primärenergiebedarf", "Primary energy demand"}, traeger, sprache),
                          e.q_PE_Energietraeger, je_jahr);
    }
    liste.abstand();
    liste.zeile(
        {"Hilfsenergie (Strom) zur Wärmeerzeugung", "Auxiliary energy (electricity) for heat generation"},
        e.q_g_he, je_jahr);
    liste.zeile(
        {"Hilfsenergie (Strom) zur Wärmespeicherung", "Auxiliary energy (electricity) for heat storage"},
        e.q_s_he, je_jahr);
    liste.zeile(
        {"Hilfsenergie (Strom) zur Wärmeverteilung", "Auxiliary energy (electricity) for heat distribution"},
        e.q_d_he, je_jahr);
    liste.zeile({"Endenergiebedarf Hilfsenergie (Strom)", "End energy demand auxiliary energy (electricity)"},
                e.q_HE_Strom, je_jahr);
    liste.zeile({"Primärenergiefaktor Strom", "Primary energy factor electricity"},
                e.Primaerenergiefaktor_Strom);
    if (traeger.elektrisch()) {
        liste.zeile({"Primärenergiebedarf Strom", "Primary energy demand electricity"}, e.q_PE_Energietraeger,
                    je_jahr);
    } else {
        liste.zeile({"Primärenergiebedarf Hilfsenergie (Strom)",
                     "Primary energy demand auxiliary energy (electricity)"},
                    e.q_PE_Strom, je_jahr);
    }
    return liste.y();
}

std::vector<Tabellenzeile> heizzeilen(const Projekt& p, const Kurzname& traeger, std::string_view sprache) {
    constexpr Wort ende{"Endenergie", "End energy"};
    constexpr Wort primaer{"Primärenergie", "Primary energy"};
    constexpr Kurzname gesamt{"gesamt", "total"};
    std::vector<Tabellenzeile> zeilen;
    const auto zeile = [&](const Wort& art, const Kurzname& wovon, double im_jahr) {
        zeilen.push_back({mit_traeger(art, wovon, sprache),
                          [&p, im_jahr](int m) { return heizanteil(p, m) * im_jahr; }, im_jahr});
    };
    const auto zeilen_der_art = [&](const Wort& art, double vom_traeger, double vom_strom) {
        if (!traeger.elektrisch()) zeile(art, traeger, vom_traeger);
        if (!traeger.elektrisch()) zeile(art, strom_name, vom_strom);
        zeile(art, traeger.elektrisch() ? traeger : gesamt, vom_traeger + vom_strom);
    };
    zeilen_der_art(ende, p.q_HE_Energietraeger, p.q_HE_Strom);
    zeilen_der_art(primaer, p.q_PE_Energietraeger, p.q_PE_Strom);
    return zeilen;
}

}  // namespace

void seite_heizenergie(Blatt& blatt, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    const double unten = heizwerte(blatt, quelle.energie);
    monatstabelle_drucken(blatt, unten + 3,
                          {.einheit = im_monat, .jahr = jahr, .zeilenhoehe = 4.4, .schrift = 8.5},
                          heizzeilen(p, quelle.energie.name, blatt.sprache()));
    Diagramm_Heizenergie(blatt, p);
}

void seite_kuehlenergie(Blatt& blatt, const Dokumentquelle& quelle) {
    const Projekt& p = quelle.p;
    const double bedarf = jahreskuehlbedarf(p);
    const Kuehlenergie strom = kuehlenergie_im_jahr(p);
    Werteliste liste(blatt, seitenanfang);
    liste.zeile({"Effizienzfaktor Klimaanlage:", "Efficiency factor of the air conditioning:"},
                muster(p.Klimaeffizienz, 1),
                Wort{"kWh Kühlung/kWh Strom", "kWh cooling/kWh electr."}.in(blatt.sprache()));
    liste.abstand();
    liste.zeile({"Kühlbedarf", "Cooling demand"}, muster(bedarf, 1), je_jahr);
    liste.zeile({"Kühlenergiebedarf (Strom)", "End energy demand for cooling (electricity)"},
                muster(strom.Endenergie, 1), je_jahr);
    liste.zeile({"Primärenergiefaktor Strom", "Primary energy factor electricity"},
                muster(f_p_Kuehlstrom, 1));
    liste.zeile({"Primärenergiebedarf", "Primary energy demand"}, muster(strom.Primaerenergie, 1), je_jahr);
    const auto text = [&blatt](const Wort& wort) { return std::string(wort.in(blatt.sprache())); };
    const std::array<Tabellenzeile, 3> zeilen{{
        {text({"Kühlbedarf", "Cooling demand"}), [&p](int m) { return monatskuehlbedarf(p, m); }, bedarf},
        {text({"Kühlenergiebedarf", "End energy demand"}),
         [&p](int m) { return kuehlenergie(p, m).Endenergie; }, strom.Endenergie},
        {text({"Primärenergiebedarf", "Primary energy demand"}),
         [&p](int m) { return kuehlenergie(p, m).Primaerenergie; }, strom.Primaerenergie},
    }};
    monatstabelle_drucken(blatt, 95, {.einheit = im_monat, .jahr = jahr, .zeilenhoehe = 6}, zeilen);
    Diagramm_Kühlenergie(blatt, p);
}

}  // namespace velmaris
