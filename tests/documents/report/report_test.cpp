#include "documents/report/report.h"

#include "climate/regionen.h"
#include "documents/print/Ausdrucken.h"
#include "energy/energiebilanz.h"
#include "planes/dokumentquelle.h"
#include "tests/documents/report/reporthilfen.h"
#include "tests/testdrucker.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris {
namespace {

using test::dokumentprogramm;
using test::reportzeilen;
using test::Testdrucker;
using test::wertzeilen;
using test::zahlentabelle;
using test::zellen;
using testing::Contains;
using testing::ElementsAre;

using Zeilen = std::vector<std::string>;

/// Rounding error of a number with one decimal, and a little.
constexpr double rundung = 0.051;

std::string rtf(const test::Testprogramm& programm, int seite) {
    return report_in_sprache(dokumentquelle(*programm.haupt), seite);
}

/// Title and section heads of a page: rows without a tab that end in ": ", and the title in front.
Zeilen ueberschriften(const Zeilen& zeilen) {
    Zeilen koepfe{zeilen.at(4)};
    for (const std::string& zeile : zeilen) {
        if (zeile.ends_with(": ") && zeile.find('\t') == std::string::npos)
            koepfe.push_back(zeile.substr(0, zeile.size() - 2));
    }
    return koepfe;
}

std::size_t anzahl(const std::string& text, const std::string& gesucht) {
    std::size_t n = 0;
    for (auto ort = text.find(gesucht); ort != std::string::npos; ort = text.find(gesucht, ort + 1))
        ++n;
    return n;
}

Zeilen namen(const Zeilen& zeilen) {
    Zeilen alle;
    for (const auto& zeile : wertzeilen(zeilen))
        alle.push_back(zeile.name);
    return alle;
}

std::string wert(const Zeilen& zeilen, const std::string& name, std::size_t nummer = 0) {
    for (const auto& zeile : wertzeilen(zeilen)) {
        if (zeile.name == name && nummer-- == 0) return zeile.wert;
    }
    return "no row " + name;
}

TEST(Report, SeitenUndAbschnitte) {
    struct Fall {
        int seite;
        Zeilen de;
        Zeilen en;
    };
    const std::array<Fall, 7> faelle{{
        {1,
         {"Datenblatt", "Geometrie", "Dämmung", "Gebäude", "Klima", "Fenster", "Energie"},
         {"Data sheet", "Geometry", "Insulation", "Building", "Climate", "Windows", "Energy"}},
        {2,
         {"Ausgabe: Übersicht", "Heizwärme- und Kühlbedarf", "Heiz- und Kühlstunden"},
         {"Output: Overview", "Heat energy and cooling demand", "Heating and cooling hours"}},
        {3,
         {"Ausgabe: Klima- und Gebäudedaten", "Klimadaten", "Gebäudedaten"},
         {"Output: Climate and building data", "Climate data", "Building data"}},
        {4,
         {"Ausgabe: Wärmebilanz", "Spezifisch (pro m² Nutzfläche)", "Absolut (gesamtes Gebäude)"},
         {"Output: Heat balance", "Specific (per m² useful area)", "Absolute (total building)"}},
        {5,
         {"Ausgabe: Kühlbilanz", "Kühlbedarf und Überwärmung"},
         {"Output: Cooling balance", "Cooling demand and overheating"}},
        {6,
         {"Ausgabe: Primär- und Endenergiebedarf Heizung", "Energiebedarf der Heizungsanlage"},
         {"Output: Primary and end energy demand for heating", "Energy demand of the heating system"}},
        {7,
         {"Ausgabe: Primär- und Endenergiebedarf Kühlung", "Energiebedarf der Kühlanlage"},
         {"Output: Primary and end energy demand for cooling", "Energy demand of the cooling system"}},
    }};
    const auto deutsch = dokumentprogramm("d");
    const auto englisch = dokumentprogramm("e");
    for (const Fall& fall : faelle) {
        EXPECT_EQ(ueberschriften(reportzeilen(*deutsch, fall.seite)), fall.de);
        EXPECT_EQ(ueberschriften(reportzeilen(*englisch, fall.seite)), fall.en);
    }
}

TEST(Report, AlleSeitenZusammen) {
    const auto programm = dokumentprogramm("d");
    const std::string alle = rtf(*programm, 0);
    EXPECT_EQ(anzahl(alle, R"(\page)"), 6U);
    EXPECT_EQ(anzahl(alle, R"({\rtf1\ansi)"), 1U);
    EXPECT_EQ(anzahl(alle, "VELM"), 7U);
    EXPECT_EQ(alle.find('\n'), std::string::npos);
    EXPECT_EQ(anzahl(rtf(*programm, 3), R"(\page)"), 0U);
}

TEST(Report, KlammernGehenAuf) {
    for (const char* sprache : {"d", "e"}) {
        const std::string text = rtf(*dokumentprogramm(sprache), 0);
        int tiefe = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '{') ++tiefe;
            if (text[i] == '}') --tiefe;
            if (tiefe == 0) {
                EXPECT_EQ(i, text.size() - 1);
            }
        }
        EXPECT_EQ(tiefe, 0);
    }
}

TEST(Report, ZeichenDesFormatsImStationsnamenBleibenText) {
    const auto programm = dokumentprogramm("d");
    programm->p().Klimadatei = "fern.met";
    programm->p().Stationsname = R"(A{b}\c)";
    EXPECT_EQ(wert(reportzeilen(*programm, 1), "Klimastation:"), R"(A{b}\c)");
    EXPECT_EQ(ueberschriften(reportzeilen(*programm, 1)).back(), "Energie");
}

TEST(Report, DatenblattNenntMasseMitEinheit) {
    const auto programm = dokumentprogramm("d");
    programm->p().awo = 0;
    programm->p().awn = 0;
    programm->haupt->alles_berechnen();
    const auto zeilen = reportzeilen(*programm, 1);
    EXPECT_EQ(wert(zeilen, "Länge der Nord- und Südfassade:"), "10.0 m");
    EXPECT_EQ(wert(zeilen, "Anzahl Geschosse:"), "2");
    EXPECT_EQ(wert(zeilen, "Südabweichung (gegen Westen positiv):"), "0.0 °");
    EXPECT_EQ(wert(zeilen, "Gebäudevolumen:"), "520.0 m³");
    EXPECT_EQ(wert(zeilen, "Fassadenfläche Nord bzw. Süd:"), "52.0 m²");
    EXPECT_EQ(wert(zeilen, "A/V - Verhältnis:").substr(3), " 1/m");
    EXPECT_EQ(wert(zeilen, "Gegen:"), "Außen oder nicht gedämmtes Dach");
    EXPECT_EQ(wert(zeilen, "Gegen:", 1), "Unbeheizter Keller (mit Perimeterdämmung)");
    EXPECT_EQ(wert(zeilen, "Wärmebrücken:"), "U-Werte aller Umfassungsflächen um 0,10 W/(m²");
    EXPECT_EQ(wert(zeilen, "Überwärmung ab einer Raumlufttemperatur über:"), "22.0 °C");
    EXPECT_EQ(wert(zeilen, "Art der Außenwände:"), "Mittelschwere Bauweise");
    EXPECT_EQ(wert(zeilen, "Wände, die an eine beheizte Zone grenzen:"), "Nord, Ost");
    EXPECT_EQ(wert(zeilen, "Klimaregion:"), "Nördliche und westliche Mittel-");
    EXPECT_EQ(wert(zeilen, "Fensterfläche:", 1), "31.2 m²");
    EXPECT_EQ(wert(zeilen, "Verschattung:", 3), "20.0 %");
    EXPECT_EQ(wert(zeilen, "Energieträger:"), "Heizöl EL");
    EXPECT_THAT(namen(zeilen), testing::Not(Contains("Dachfirst:")));
}

TEST(Report, BeheiztesDachgeschoss) {
    const auto programm = dokumentprogramm("d");
    programm->haupt->e_geometrie.Check_Dachgeschoss.setze(1);
    auto zeilen = reportzeilen(*programm, 1);
    EXPECT_THAT(zeilen, Contains("     Dach:"));
    EXPECT_THAT(zeilen, testing::Not(Contains("     Obere Geschoßdecke:")));
    EXPECT_EQ(wert(zeilen, "Gegen:"), "Außenluft");
    EXPECT_EQ(wert(zeilen, "Dachhöhe:"), "1.0 m");
    EXPECT_EQ(wert(zeilen, "Dachfirst:"), "in Nord-Süd-Richtung");
    programm->haupt->e_geometrie.Option_Dachfirst.setze(2);
    EXPECT_EQ(wert(reportzeilen(*programm, 1), "Dachfirst:"), "in Ost-West-Richtung");
}

TEST(Report, KlimaregionenStehenInZweiZeilen) {
    const std::array<std::array<const char*, 2>, klimaregionen> texte{{
        {"Nord- und Ostseeküste,", "nördliches Schleswig-Holstein"},
        {"Nord- und", "Westdeutsches Tiefland"},
        {"Ruhrgebiet und weitere Ballungs-", "gebiete des Flachlandes"},
        {"Nördliche und westliche Mittel-", "gebirge ohne Hochlagen"},
        {"Franken und nördliches", "Baden-Würtemberg"},
        {"Nördlicher", "Oberrheingraben"},
        {"Südlicher", "Oberrheingraben"},
        {"Donaubecken und Alpenvorland", "bis ca. 600m Höhe"},
        {"Alpenvorland (ca. 600-1000m Höhe),", "nordwestl. Schwarzwald"},
        {"Schwarzwald, Schwäbische", "und Fränkische Alb"},
        {"Hochlagen der nördlichen", "und westlichen Mittelgebirge"},
        {"Bodensee", "mit Umgebung"},
    }};
    for (const char* sprache : {"d", "e"}) {
        const auto programm = dokumentprogramm(sprache);
        Projekt& p = programm->p();
        const std::string name = p.Sprache == "e" ? "Climatic region:" : "Klimaregion:";
        for (int i = 1; i <= klimaregionen; ++i) {
            p.Klimaauswahl = i16(i % 3 + 1, "Klimaauswahl");
            p.Klimadatei = p.Regionsdatei(i);
            const auto zeilen = reportzeilen(*programm, 1);
            const auto ort = std::find_if(zeilen.begin(), zeilen.end(), [&name](const std::string& zeile) {
                return zellen(zeile).front() == name;
            });
            ASSERT_NE(ort, zeilen.end()) << i;
            const auto& text = texte.at(static_cast<std::size_t>(i - 1));
            EXPECT_EQ(zellen(*ort), (Zeilen{name, text[0]}));
            EXPECT_EQ(zellen(*(ort + 1)), (Zeilen{"", text[1]}));
            Testdrucker drucker;
            Ausdrucken(drucker, dokumentquelle(*programm->haupt), {true}, "");
            Zeilen gedruckt;
            for (const auto& z : drucker.auf_seite(1, test::Druckzeichen::Art::text))
                gedruckt.push_back(z.text);
            EXPECT_THAT(gedruckt, testing::IsSupersetOf({text[0], text[1]}));
        }
        p.Klimadatei = "fern.met";
        p.Klimaauswahl = 1;
        EXPECT_EQ(wert(reportzeilen(*programm, 1),
                       sprache == std::string("e") ? "Climate station:" : "Klimastation:"),
                  "Trier (Deutschland)");
    }
}

TEST(Report, EigenheitenDerEnglischenFassung) {
    const auto programm = dokumentprogramm("e");
    const auto blatt = reportzeilen(*programm, 1);
    const auto alle = namen(blatt);
    const auto stelle = [&](const std::string& name) {
        return std::find(alle.begin(), alle.end(), name) - alle.begin();
    };
    EXPECT_EQ(stelle("Kind of indoor walls:") + 1, stelle("Kind of outdoor walls:"));
    EXPECT_THAT(alle, Contains("Wärmebrücken:"));
    EXPECT_EQ(wert(blatt, "efficiency factor of air conditioning:"), "2.5 kWhcool / kWhelectr");
    EXPECT_EQ(std::count(alle.begin(), alle.end(), "Windows area:"), 1);
    EXPECT_EQ(std::count(alle.begin(), alle.end(), "Window area:"), 3);
    EXPECT_TRUE(wert(reportzeilen(*programm, 3), "Effective heating days:").ends_with(" Tage"));
    EXPECT_THAT(namen(reportzeilen(*programm, 6)), Contains("Looses at the transmission to the rooms:"));
}

TEST(Report, LinienStehenNurInDenTabellenDieSieHaben) {
    // by page, for each table: whether a rule stands between the months and the year
    const std::array<std::vector<bool>, 6> linien{
        {{true, false}, {true}, {true, false}, {false}, {false}, {true}}};
    for (const int heizsystem : {1, 8}) {
        const auto programm = dokumentprogramm("d");
        programm->p().Heizsystem = i16(heizsystem, "Heizsystem");
        programm->haupt->alles_berechnen();
        for (std::size_t i = 0; i < linien.size(); ++i) {
            std::vector<bool> gefunden;
            bool hinter_dezember = false;
            for (const std::string& zeile : reportzeilen(*programm, static_cast<int>(i) + 2)) {
                if (hinter_dezember) gefunden.push_back(zeile == "     " + std::string(78, '_'));
                hinter_dezember = zellen(zeile).front() == "Dezember";
            }
            EXPECT_EQ(gefunden, linien[i]) << "page " << i + 2;
        }
    }
}

TEST(Report, TramsmisStehtInBeidenTabellen) {
    EXPECT_EQ(anzahl(rtf(*dokumentprogramm("d"), 4), "Tramsmis- "), 2U);
}

TEST(Report, UebersichtSummiertSich) {
    const auto programm = dokumentprogramm("e");
    const auto zeilen = reportzeilen(*programm, 2);
    const auto bedarf = zahlentabelle(zeilen, 0, programm->p());
    const auto stunden_der_art = zahlentabelle(zeilen, 1, programm->p());
    for (std::size_t spalte = 0; spalte < 2; ++spalte) {
        double summe = 0;
        for (std::size_t m = 0; m < 12; ++m)
            summe += bedarf[m].at(spalte);
        EXPECT_NEAR(bedarf[12].at(spalte), summe, 13 * rundung);
        EXPECT_GT(summe, 1);
    }
    std::array<double, 3> summen{};
    for (std::size_t m = 0; m < 12; ++m) {
        const auto& monat = stunden_der_art[m];
        EXPECT_EQ(monat[0] + monat[1] + monat[2], 24 * tage_im_monat.at(m + 1));
        for (std::size_t i = 0; i < 3; ++i)
            summen[i] += monat[i];
    }
    EXPECT_THAT(stunden_der_art[12], ElementsAre(summen[0], summen[1], summen[2]));
    EXPECT_GT(summen[2], 0);
    const auto anteile = zellen(zeilen.back());
    EXPECT_EQ(anteile[0], "Sum (in %)");
    double prozente = 0;
    for (std::size_t i = 1; i < anteile.size(); ++i)
        prozente += std::stod(anteile[i]);
    EXPECT_NEAR(prozente, 100, 3 * rundung);
}

TEST(Report, KlimatabelleZeigtMittelUndGrenzen) {
    const auto programm = dokumentprogramm("d");
    const auto tabelle = zahlentabelle(reportzeilen(*programm, 3), 0, programm->p());
    double mittel = 0;
    for (std::size_t m = 0; m < 12; ++m) {
        EXPECT_LT(tabelle[m][2], tabelle[m][0]);
        EXPECT_LT(tabelle[m][0], tabelle[m][1]);
        mittel += tabelle[m][0] * tage_im_monat.at(m + 1) / 365;
    }
    ASSERT_EQ(tabelle[12].size(), 1U);
    EXPECT_NEAR(tabelle[12][0], mittel, 2 * rundung);
}

TEST(Report, WaermebilanzGehtInJedemMonatAuf) {
    const auto programm = dokumentprogramm("d");
    const auto zeilen = reportzeilen(*programm, 4);
    for (std::size_t nummer : {0U, 1U}) {
        const auto tabelle = zahlentabelle(zeilen, nummer, programm->p());
        const double genau = nummer == 0 ? rundung : 0.51;
        for (const auto& zeile : tabelle)
            EXPECT_NEAR(zeile.at(0) + zeile.at(1), zeile.at(2) + zeile.at(3) + zeile.at(5), 5 * genau);
        EXPECT_TRUE(std::isnan(tabelle[12].at(4)));
        EXPECT_LE(tabelle[6].at(4), 1);
    }
}

TEST(Report, KuehlbilanzRechnetAufFlaecheUndTageUm) {
    const auto programm = dokumentprogramm("d");
    const Projekt& p = programm->p();
    const auto tabelle = zahlentabelle(reportzeilen(*programm, 5), 0, p);
    for (int m = 1; m <= monate; ++m) {
        const auto& zeile = tabelle[static_cast<std::size_t>(m - 1)];
        EXPECT_NEAR(zeile[0] * p.f_nutz, zeile[1], rundung * p.f_nutz + 0.5);
        EXPECT_NEAR(zeile[2] * p.Monat(m).Tage, p.Monat(m).Stunden_heiss, rundung * 31);
    }
    EXPECT_GT(tabelle[6][2], 1);
    EXPECT_TRUE(std::isnan(tabelle[12][2]));
}

TEST(Report, HeizenergieVerteiltSichAufDieMonate) {
    const auto programm = dokumentprogramm("d");
    const auto zeilen = reportzeilen(*programm, 6);
    const auto tabelle = zahlentabelle(zeilen, 0, programm->p());
    double ende = 0;
    for (std::size_t m = 0; m < 13; ++m) {
        const auto& zeile = tabelle[m];
        ASSERT_EQ(zeile.size(), 6U);
        EXPECT_NEAR(zeile[0] + zeile[1], zeile[2], 3 * rundung);
        EXPECT_NEAR(zeile[3] + zeile[4], zeile[5], 3 * rundung);
        if (m < 12) ende += zeile[2];
    }
    EXPECT_NEAR(tabelle[12][2], ende, 13 * rundung);
    EXPECT_EQ(wert(zeilen, "Endenergiebedarf Heizöl:").substr(0, 4), zellen(zeilen.back())[1]);
    EXPECT_EQ(wert(zeilen, "Primärenergiefaktor Heizöl:"), "1.1");
}

TEST(Report, ElektrischeHeizungHatZweiSpalten) {
    const auto programm = dokumentprogramm("e");
    programm->p().Heizsystem = 8;
    programm->haupt->alles_berechnen();
    const auto zeilen = reportzeilen(*programm, 6);
    const auto tabelle = zahlentabelle(zeilen, 0, programm->p());
    EXPECT_EQ(tabelle[0].size(), 2U);
    EXPECT_NEAR(tabelle[12][1], 3 * tabelle[12][0], 4 * rundung);
    EXPECT_EQ(wert(zeilen, "Primary energy factor electricity:"), "3.0");
    EXPECT_EQ(wert(zeilen, "Primary energy demand electricity:"), zellen(zeilen.back())[2] + " kWh/(m² a)");
    EXPECT_THAT(zeilen, Contains(" \telectricity \telectricity"));
}

TEST(Report, OhneHeizwaermebedarfStehtNull) {
    const auto programm = dokumentprogramm("d");
    Projekt& p = programm->p();
    // what rounding can leave of the year's balance, before it is raised to stay a divisor
    p.qhs_sum = -1E-6F;
    energ_refresh(p);
    ASSERT_LT(p.q_HE_Energietraeger, 0);
    for (const auto& zeile : zahlentabelle(reportzeilen(*programm, 6), 0, p))
        EXPECT_THAT(zeile, testing::Each(0.0));
    Testdrucker drucker;
    Ausdrucken(drucker, dokumentquelle(*programm->haupt), {false, false, false, false, false, true}, "");
    std::size_t monatszahlen = 0;
    for (const auto& z : drucker.auf_seite(1, test::Druckzeichen::Art::text)) {
        if (z.y1 < 124 || z.y2 > 208 || !zahl_pruefen(z.text)) continue;
        EXPECT_EQ(z.text, "0.0");
        ++monatszahlen;
    }
    EXPECT_EQ(monatszahlen, 6U * 13);
}

TEST(Report, KuehlenergieHatFestenPrimaerfaktor) {
    const auto programm = dokumentprogramm("e");
    const auto zeilen = reportzeilen(*programm, 7);
    for (const auto& zeile : zahlentabelle(zeilen, 0, programm->p())) {
        EXPECT_NEAR(zeile[1] * 2.5, zeile[0], 4 * rundung);
        EXPECT_NEAR(zeile[2], zeile[1] * 3, 4 * rundung);
    }
    EXPECT_EQ(wert(zeilen, "Efficiency factor of the air conditioning:"), "2.5 kWh cooling/ kWh electricity");
}

}  // namespace
}  // namespace velmaris
