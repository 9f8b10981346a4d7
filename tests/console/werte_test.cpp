#include "console/ausgabe_json.h"
#include "tests/testprogramm.h"
#include "toolkit/zahlen.h"

#include <cmath>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace velmaris {
namespace {

using Zellen = std::vector<std::string>;

Zellen zerlegt(const std::string& text, char trennung) {
    Zellen teile;
    std::istringstream rest(text);
    for (std::string teil; std::getline(rest, teil, trennung);)
        teile.push_back(teil);
    return teile;
}

/// A number of the JSON output, of month m (1..12) or in month 0 the sum of the months.
double zahl(const Json& json, int m, const std::string& name) {
    if (std::isdigit(name.front()) != 0) return std::stod(name);
    if (json.contains(name)) return json[name].get<double>();
    double summe = 0;
    for (int i = 1; i <= 12; ++i) {
        if (m == 0 || m == i) summe += json["Monat"][static_cast<std::size_t>(i - 1)].at(name).get<double>();
    }
    return summe;
}

/// Numbers between + - * /, worked out from left to right.
double formel(const Json& json, int m, const std::string& text) {
    static const std::regex glied(R"(([-+*/]?)(\w+))");
    double wert = 0;
    for (std::sregex_iterator i(text.begin(), text.end(), glied), ende; i != ende; ++i) {
        const double rechts = zahl(json, m, i->str(2));
        const char zeichen = i->length(1) == 0 ? '+' : i->str(1).front();
        wert = zeichen == '*'   ? wert * rechts
               : zeichen == '/' ? wert / rechts
               : zeichen == '-' ? wert - rechts
                                : wert + rechts;
    }
    return wert;
}

class Werte : public testing::Test {
  protected:
    Werte() {
        haupt.p.Tueber = 21;
        haupt.wetter_laden();
        haupt.a_klima.Ausfuellen(haupt.p);
        json = als_json(haupt);
        dezimalzeichen_setzen(',');
    }
    ~Werte() override { dezimalzeichen_setzen('.'); }

    /// Compares a copied table, from the column on, with the formulas of its cells, row by row.
    void vergleiche(
        const Wertetafel& tafel, const std::string& kopf, std::size_t spalte,
        const std::function<std::pair<int, std::string>(std::size_t zeile, std::size_t spalte)>& soll) {
        const Zellen zeilen = zerlegt(tabulatortext(tafel), '\n');
        EXPECT_EQ(zeilen.front(), kopf);
        for (std::size_t i = 1; i < zeilen.size(); ++i) {
            const Zellen zellen = zerlegt(zeilen[i], '\t');
            EXPECT_EQ(std::ranges::count(zeilen[i], '\t'), std::ranges::count(kopf, '\t')) << zeilen[i];
            for (std::size_t j = spalte; j < zellen.size(); ++j) {
                const auto [monat, text] = soll(i - 1, j - spalte);
                if (text.empty()) continue;
                std::string punkt = zellen[j];
                std::ranges::replace(punkt, ',', '.');
                const double wert = formel(json, monat, text);
                EXPECT_NEAR(std::stod(punkt), wert, 2e-6 * std::max(1.0, std::fabs(wert)))
                    << tafel.titel << ", " << zeilen[i] << ": " << text;
            }
        }
        zeilen_gesehen += zeilen.size() - 1;
    }

    test::Testprogramm programm{"d"};
    Haupt& haupt = *programm.haupt;
    Json json;
    std::size_t zeilen_gesehen = 0;
};

/// A table with the formulas of its columns, or, of quantities one below the other, of its rows.
struct Fall {
    const Bildfeld& bild;
    const char* kopf;
    const char* formeln;
};

TEST_F(Werte, KopierteTafelnDerMonateUndDesJahresGleichenDerAusgabe) {
    const A_Uebersicht& u = haupt.a_uebersicht;
    const A_Heizen& h = haupt.a_heizen;
    const A_Kuehlen& k = haupt.a_kuehlen;
    for (const Fall& fall : std::initializer_list<Fall>{
             {u.Monatsbilanz, "Monat\tHeizwärmebedarf [#]\tKühlbedarf [#]", "Qh/f_nutz|Kuehlbedarf/f_nutz"},
             {u.JahrBilanz, "Heizwärmebedarf [@]\tKühlbedarf [@]", "qhs_sum|Kuehlbedarf/f_nutz"},
             {u.UeberGrafik, "Monat\tHeizstunden [h]\tNullenergiestunden [h]\tKühlstunden [h]",
              "Stunden_kalt|Stunden_komfort|Stunden_heiss"},
             {u.UeberJahr, "Heizstunden [h]\tNullenergiestunden [h]\tKühlstunden [h]",
              "Stunden_kalt|Stunden_komfort|Stunden_heiss"},
             {h.Heizbilanz,
              "Monat\tTransmissionsverluste [#]\tLüftungsverluste [#]\tHeizwärmebedarf [#]\t"
              "nutzbare interne Gewinne [#]\tnutzbare solare Gewinne [#]",
              "Qt/f_nutz|Qv/f_nutz|Qh/f_nutz|Qi_genutzt/f_nutz|Qs_genutzt/f_nutz"},
             {h.JahrBilanz,
              "Transmissionsverluste [@]\tLüftungsverluste [@]\tHeizwärmebedarf [@]\t"
              "nutzbare interne Gewinne [@]\tnutzbare solare Gewinne [@]",
              "qtrs|qinfs|qhs_sum|qis|qsols"},
             {h.NutzungsgradMonat,
              "Monat\tNutzbare solare Gewinne [#]\tNicht nutzbare solare Gewinne [#]\t"
              "Nutzbare interne Gewinne [#]\tNicht nutzbare interne Gewinne [#]",
              "Qs_genutzt/f_nutz|Qs_brutto-Qs_genutzt/f_nutz|Qi_genutzt/f_nutz|Qi_brutto-Qi_genutzt/f_nutz"},
             {h.NutzungsgradJahr,
              "Nutzbare solare Gewinne [@]\tNicht nutzbare solare Gewinne [@]\t"
              "Nutzbare interne Gewinne [@]\tNicht nutzbare interne Gewinne [@]",
              "Qs_genutzt/f_nutz|Qs_brutto-Qs_genutzt/f_nutz|Qi_genutzt/f_nutz|Qi_brutto-Qi_genutzt/f_nutz"},
             {k.StundenProTagMonat, "Monat\tDurchschnittliche Überwärmung [Std. / Tag]",
              "Stunden_heiss/Tage"},
             {k.StundenProTagJahr, "Durchschnittliche Überwärmung [Std. / Tag]", "Stunden_heiss/365"},
             {k.KuehlbedarfMonat, "Monat\tKühlbedarf [#]", "Kuehlbedarf/f_nutz"},
             {k.KuehlbedarfJahr, "Kühlbedarf [@]", "Kuehlbedarf/f_nutz"},
             {k.KuehlGradStundenMonat, "Monat\tKühlgradstunden [Kh]", "Kuehlgradstunden"},
             {k.KuehlGradStundenJahr, "Kühlgradstunden [Kh]", "Kuehlgradstunden"},
             {haupt.e_energie.Monatsübersicht_Energieträger,
              "Monat\tEndenergie (Heizöl) [#]\tPrimärenergie (Heizöl) [#]\tEndenergie (Strom) [#]\t"
              "Primärenergie (Strom) [#]",
              "Qh/qh*q_HE_Energietraeger|Qh/qh*q_PE_Energietraeger|Qh/qh*q_HE_Strom|Qh/qh*q_PE_Strom"}}) {
        std::string kopf = std::regex_replace(fall.kopf, std::regex("#"), "kWh/(m² Monat)");
        kopf = std::regex_replace(kopf, std::regex("@"), "kWh/(m²a)");
        const bool monate = kopf.starts_with("Monat\t");
        const Zellen formeln = zerlegt(fall.formeln, '|');
        vergleiche(fall.bild.werte(), kopf, monate ? 1 : 0, [&](std::size_t zeile, std::size_t spalte) {
            return std::pair(monate ? static_cast<int>(zeile) + 1 : 0, formeln.at(spalte));
        });
    }
    EXPECT_EQ(zeilen_gesehen, 8 * 12 + 7);
    const Wertetafel tafel = h.Heizbilanz.werte();
    EXPECT_EQ(tafel.titel, "Wärmebilanz pro Monat");
    EXPECT_EQ(tafel.zeilen[2].namen, Zellen{"März"});
    EXPECT_EQ(h.JahrBilanz.werte().titel, "Wärmebilanz im Jahr");
}

TEST_F(Werte, KopierteTafelnDerGroessenGleichenDerAusgabe) {
    const E_Energie& e = haupt.e_energie;
    const auto vergleiche_zeilen = [this](const Wertetafel& tafel, const std::string& kopf,
                                          const std::string& formeln) {
        const Zellen soll = zerlegt(formeln, '|');
        EXPECT_EQ(tafel.zeilen.size(), soll.size()) << tafel.titel;
        vergleiche(tafel, kopf, 1, [&](std::size_t zeile, std::size_t spalte) {
            return std::pair(0, spalte == 0 ? soll.at(zeile) : "");
        });
    };
    const std::string groessen = "Größe\tWert [kWh/(m²a)]", mit_einheiten = "Größe\tWert\tEinheit";
    vergleiche_zeilen(haupt.a_sankey.Sankey.werte(), groessen,
                      "q_PE_Strom+q_PE_Energietraeger|"
                      "q_PE_Strom+q_PE_Energietraeger-q_HE_Energietraeger-q_HE_Strom|"
                      "q_HE_Strom+q_HE_Energietraeger-qhs_sum|qhs_sum|qsols|qis|qinfs|qtrs|qtr_Boden/f_nutz|"
                      "qtr_Tuer/f_nutz|qtr_Waende/f_nutz|qtr_Fenster/f_nutz|qtr_Dach/f_nutz");
    vergleiche_zeilen(haupt.a_sankey.Sankey_Kühlen.werte(), groessen,
                      "Kuehlbedarf/f_nutz/Klimaeffizienz*3|Kuehlbedarf/f_nutz/Klimaeffizienz*2|"
                      "Kuehlbedarf/f_nutz/Klimaeffizienz|Kuehlbedarf/f_nutz|"
                      "Kuehlbedarf/f_nutz/Klimaeffizienz|Kuehl_trans/f_nutz|Kuehl_lueft/f_nutz|"
                      "Kuehl_solar/f_nutz|Kuehl_intern/f_nutz");
    vergleiche_zeilen(e.Picture2.werte(), mit_einheiten, "q_HE_Energietraeger*f_nutz/10080*1000");
    vergleiche_zeilen(e.Picture3.werte(), mit_einheiten, "q_HE_Strom*f_nutz");
    vergleiche_zeilen(
        e.endenergiewerte(), mit_einheiten,
        "qhs_sum|q_ce+q_d+q_s|e_g|q_HE_Energietraeger|q_HE_Strom|q_PE_Energietraeger|q_PE_Strom");
    vergleiche_zeilen(e.faktorwerte(), "Größe\tWert", "f_p|3");
    EXPECT_EQ(zeilen_gesehen, 13 + 9 + 1 + 1 + 7 + 2);
    EXPECT_NE(tabulatortext(e.endenergiewerte()).find("\nVerluste Verteilung & Speicherung\t"),
              std::string::npos);
}

/// What the labels of the climate plane show, rounded from the table's numbers.
TEST_F(Werte, FigurenSindDieDerAnzeigenUngerundet) {
    struct Figur {
        const char* anzeige;
        int stellen;
    };
    const auto vergleiche_texte = [this](const Wertetafel& tafel, const std::vector<Figur>& figuren) {
        ASSERT_EQ(tafel.zeilen.size(), figuren.size());
        for (std::size_t i = 0; i < figuren.size(); ++i) {
            const Wertezeile& zeile = tafel.zeilen[i];
            const std::string text =
                zeile.werte.empty() ? zeile.text : muster(zeile.werte.at(0), figuren[i].stellen);
            std::string soll = json.at(std::string("anz_") + figuren[i].anzeige);
            std::ranges::replace(soll, '.', ',');
            EXPECT_EQ(text, soll) << zeile.namen.at(0);
        }
    };
    vergleiche_texte(A_Klima::klimawerte(haupt.p), {{"MaxJahrTemp", 1},
                                                    {"MaxMonatTemp", 1},
                                                    {"MaxMonatName", 0},
                                                    {"MittelJahrTemp", 1},
                                                    {"MinMonatTemp", 1},
                                                    {"MinMonatName", 0},
                                                    {"MinJahrTemp", 1},
                                                    {"Heizgradtage", 0}});
    vergleiche_texte(A_Klima::gebaeudewerte(haupt.p), {{"Umittel", 2},
                                                       {"Tspez", 1},
                                                       {"Vspez", 1},
                                                       {"TVspez", 1},
                                                       {"tau", 1},
                                                       {"Heizlast", 1},
                                                       {"heizlast_spez", 1},
                                                       {"kuehllast", 1},
                                                       {"kuehllast_spez", 1},
                                                       {"Heizgrenztemp", 1},
                                                       {"Heiztage", 0}});
    vergleiche_texte(haupt.e_klima.klimawerte(),
                     {{"MittelJahrTemp", 1}, {"MinMonatTemp", 1}, {"MaxMonatTemp", 1}});
    const auto av = haupt.e_geometrie.AV_Picture.werte().zeilen;
    EXPECT_FLOAT_EQ(f32(av.at(0).werte.at(0)), json["AV"].get<float>());
    EXPECT_NEAR(av.at(2).werte.at(0), 6 / std::cbrt(json["v_geb"].get<double>()), 1e-9) << "cube";
    EXPECT_EQ(av.at(2).namen.at(0), "Würfel");
    const auto fenster = haupt.a_heizen.Verluste_O.werte().zeilen;
    EXPECT_EQ(fenster.at(2).namen.at(0), "Ost");
    EXPECT_EQ(fenster.at(2).werte, (std::vector<double>{json["Fenstergewinn_O"], json["Fensterverlust_O"]}));
    const auto bilanz = haupt.a_heizen.jahreswerte();
    EXPECT_EQ(bilanz.zeilen.at(4).werte, (std::vector<double>{json["qhs_sum"], json["qh"]}));
    EXPECT_EQ(bilanz.spalten.at(1).einheit, "kWh/a");
}

TEST_F(Werte, TemperaturenStehenStundeFuerStunde) {
    haupt.monatswahl.Monatsbutton_Click(2);
    for (const Bildfeld* bild : {&haupt.a_uebersicht.Temperaturen, &haupt.a_zoom.Temperaturen}) {
        const Wertetafel tafel = bild->werte();
        EXPECT_EQ(tafel.titel, "Temperaturen im Februar");
        ASSERT_EQ(tafel.zeilen.size(), 28U * 24);
        const Wertezeile& zeile = tafel.zeilen[14 * 24 + 12];
        EXPECT_EQ(zeile.namen, (Zellen{"15", "13"}));
        EXPECT_EQ(zeile.werte,
                  (std::vector<double>{haupt.p.Wetter(2, 15, 13).Ta, haupt.p.T_frei(2, 15, 13)}));
        EXPECT_TRUE(tabulatortext(tafel).starts_with(
            "Tag\tStunde\tAußenlufttemperatur [°C]\tRaumlufttemperatur [°C]\n1\t1\t"));
    }
}

}  // namespace
}  // namespace velmaris
