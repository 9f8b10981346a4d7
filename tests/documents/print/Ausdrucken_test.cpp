#include "documents/print/Ausdrucken.h"

#include "documents/print/blatt.h"
#include "documents/print/drucktabelle.h"
#include "documents/print/zeichnung_haus.h"
#include "planes/dokumentquelle.h"
#include "tests/documents/report/reporthilfen.h"
#include "tests/testdrucker.h"
#include "toolkit/zahlen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace velmaris {
namespace {

using test::Druckzeichen;
using test::Testdrucker;
using testing::Contains;
using Art = Druckzeichen::Art;

constexpr double genau = 1E-6;
constexpr double kopfende = 30;  ///< below the logo
constexpr double fusszeile = 260;

/// A project and how it differs from that of `dokumentprogramm`.
struct Fall {
    const char* name;
    void (*einrichten)(Haupt&);
};

void nur_rechnen(Haupt&) {}

void dach(Haupt& h) {
    h.e_geometrie.Check_Dachgeschoss.setze(1);
    h.e_geometrie.Option_Dachfirst.setze(2);
    h.p.orient = 37;
    h.p.awn = 0;
    h.p.awo = 0;
}

void riese(Haupt& h) {
    h.p.l = 50;
    h.p.b = 50;
    h.p.h = 50;
    h.p.ag = 20;
    h.p.kwn = h.p.kws = h.p.kwo = h.p.kww = 1.5F;
    h.p.infiltration = 10;
    h.p.orient = -45;
    h.e_geometrie.Check_Dachgeschoss.setze(1);
    h.p.hd = 5;
}

void fernwaerme(Haupt& h) {
    h.p.Heizsystem = 6;
    h.p.Energietraeger = 4;
    for (Fensterseite* seite : {&h.e_fenster.nord, &h.e_fenster.sued, &h.e_fenster.ost, &h.e_fenster.west})
        seite->typ.setze(6);
}

void strom(Haupt& h) {
    h.p.Heizsystem = 8;
}

void lange_namen(Haupt& h) {
    h.p.Klimadatei = "fern.met";
    h.p.Stationsname =
        "Llanfairpwllgwyngyllgogerychwyrndrobwllllantysiliogogogoch (Wales, Vereinigtes Königreich)";
    h.p.Datei = "Ein recht langer Name für ein Projekt über ein Haus mit Überlänge, dritte Fassung.vel";
}

void region(Haupt& h) {
    h.p.Klimaauswahl = 3;
    h.p.Klimadatei = h.p.Regionsdatei(9);
}

constexpr std::array<Fall, 7> faelle{{{"neues Haus", nur_rechnen},
                                      {"Dach", dach},
                                      {"Riese", riese},
                                      {"Fernwärme", fernwaerme},
                                      {"Strom", strom},
                                      {"lange Namen", lange_namen},
                                      {"Region", region}}};

/// All pages of a project.
struct Ausdruck {
    Ausdruck(const Fall& fall, const std::string& sprache) : programm(test::dokumentprogramm(sprache)) {
        fall.einrichten(*programm->haupt);
        programm->haupt->alles_berechnen();
        Ausdrucken(drucker, dokumentquelle(*programm->haupt), alles_drucken, "1.2.2003");
    }

    [[nodiscard]] std::vector<std::string> texte(int seite) const {
        std::vector<std::string> alle;
        for (const auto& z : drucker.auf_seite(seite, Art::text))
            alle.push_back(z.text);
        return alle;
    }

    std::unique_ptr<test::Testprogramm> programm;
    Testdrucker drucker;
};

template <class Pruefung>
void fuer_jeden_ausdruck(Pruefung pruefung) {
    for (const Fall& fall : faelle) {
        for (const char* sprache : {"d", "e"}) {
            SCOPED_TRACE(std::string(fall.name) + " " + sprache);
            pruefung(Ausdruck(fall, sprache));
        }
    }
}

bool im_rahmen(const Druckzeichen& z) {
    return std::min(z.x1, z.x2) >= 25 - genau && std::max(z.x1, z.x2) <= 175 + genau &&
           std::min(z.y1, z.y2) >= 35 - genau && std::max(z.y1, z.y2) <= 260 + genau;
}

/// True if the letters of two texts touch or nearly do, unless they are one text; the space above and below
/// the letters of a line may be shared.
bool ueberlappen(const Druckzeichen& a, const Druckzeichen& b) {
    constexpr double durchschuss = 0.12;
    constexpr double mindestabstand = 0.8;  ///< between words, millimetres
    const double rand_a = durchschuss * (a.y2 - a.y1);
    const double rand_b = durchschuss * (b.y2 - b.y1);
    const bool nebeneinander =
        a.seite == b.seite && a.y1 + rand_a < b.y2 - rand_b && b.y1 + rand_b < a.y2 - rand_a;
    const double luecke = std::max(a.x1, b.x1) - std::min(a.x2, b.x2);
    const bool ein_text = std::abs(luecke) < genau;
    return nebeneinander && !ein_text && luecke < mindestabstand;
}

/// The numbers of a page between two heights, by row.
std::map<double, std::vector<Druckzeichen>> zahlenzeilen(const Testdrucker& drucker, int seite, double von,
                                                         double bis) {
    std::map<double, std::vector<Druckzeichen>> zeilen;
    for (const auto& z : drucker.auf_seite(seite, Art::text)) {
        const bool hochgestellt = z.schrift.groesse < 6;
        if (z.y1 > von && z.y2 < bis && !hochgestellt && zahl_pruefen(z.text)) zeilen[z.y1].push_back(z);
    }
    return zeilen;
}

TEST(Ausdrucken, NichtsVerlaesstDenRahmen) {
    fuer_jeden_ausdruck([](const Ausdruck& ausdruck) {
        for (const Druckzeichen& z : ausdruck.drucker.zeichen) {
            if (z.art == Art::text && z.y2 < kopfende) continue;
            if (z.art == Art::text && z.y1 > fusszeile) {
                EXPECT_GE(z.x1, 25 - genau);
                EXPECT_LE(z.x2, 175 + genau);
                continue;
            }
            EXPECT_TRUE(im_rahmen(z))
                << z.seite << ": " << z.text << " " << z.x1 << "," << z.y1 << " " << z.x2 << "," << z.y2;
        }
    });
}

TEST(Ausdrucken, TexteUeberlappenNicht) {
    fuer_jeden_ausdruck([](const Ausdruck& ausdruck) {
        std::vector<Druckzeichen> texte;
        for (const Druckzeichen& z : ausdruck.drucker.zeichen) {
            if (z.art == Art::text) texte.push_back(z);
        }
        for (std::size_t i = 0; i < texte.size(); ++i) {
            for (std::size_t j = i + 1; j < texte.size(); ++j) {
                EXPECT_FALSE(ueberlappen(texte[i], texte[j]))
                    << texte[i].seite << ": " << texte[i].text << " / " << texte[j].text;
            }
        }
    });
}

TEST(Ausdrucken, NurUeberlangesWirdGekuerzt) {
    fuer_jeden_ausdruck([](const Ausdruck& ausdruck) {
        const bool ueberlang = ausdruck.programm->p().Datei != unbenannt;
        bool gekuerzt = false;
        for (const Druckzeichen& z : ausdruck.drucker.zeichen)
            gekuerzt |= z.text.ends_with("…");
        EXPECT_EQ(gekuerzt, ueberlang);
    });
}

TEST(Ausdrucken, ZahlenspaltenStehenBuendig) {
    struct Tabelle {
        int seite;
        double bis;
        std::size_t spalten;
    };
    constexpr std::array<Tabelle, 6> tabellen{
        {{2, 110, 4}, {3, 137, 7}, {4, 136, 7}, {5, 160, 7}, {6, 134, 4}, {8, 200, 8}}};
    fuer_jeden_ausdruck([&](const Ausdruck& ausdruck) {
        for (const Tabelle& tabelle : tabellen) {
            std::set<long> anker;
            for (const auto& [y, zeile] : zahlenzeilen(ausdruck.drucker, tabelle.seite, 48, tabelle.bis)) {
                for (const Druckzeichen& z : zeile)
                    anker.insert(std::lround(z.x2 * 1000));
            }
            EXPECT_LE(anker.size(), tabelle.spalten) << tabelle.seite;
        }
    });
}

TEST(Ausdrucken, JedeSeiteHatKopfUndFuss) {
    const Ausdruck ausdruck(faelle[0], "e");
    EXPECT_EQ(ausdruck.drucker.seiten, 8);
    EXPECT_EQ(ausdruck.drucker.dokumente, 1);
    const std::array<const char*, 8> titel{"Data sheet (1):",
                                           "Data sheet (2):",
                                           "Output: Heating and cooling hours",
                                           "Output: Heat balance",
                                           "Output: Cooling balance",
                                           "Output: Balance of windows",
                                           "Output: Primary and end energy demand for heating",
                                           "Output: Primary and end energy demand for cooling"};
    for (int seite = 1; seite <= 8; ++seite) {
        const auto texte = ausdruck.texte(seite);
        EXPECT_EQ(texte.at(0), "VELM");
        EXPECT_EQ(texte.at(1), "aris");
        EXPECT_THAT(texte, Contains(titel.at(static_cast<std::size_t>(seite - 1))));
        EXPECT_THAT(texte, Contains("- Page " + std::to_string(seite) + " / 8 -"));
        EXPECT_THAT(texte, Contains("File: default.vel "));
        EXPECT_THAT(texte, Contains("1.2.2003"));
    }
}

TEST(Ausdrucken, DruckeNurWasGewaehltIst) {
    const auto programm = test::dokumentprogramm("d");
    struct Wahl {
        Druckauswahl auswahl;
        int seiten;
        int dokumente;
    };
    const std::array<Wahl, 4> wahlen{{{{}, 0, 0},
                                      {{true}, 2, 1},
                                      {{false, true, false, false, false, false, true}, 2, 1},
                                      {alles_drucken, 8, 1}}};
    for (const Wahl& wahl : wahlen) {
        Testdrucker drucker;
        EXPECT_EQ(druckseitenzahl(wahl.auswahl), wahl.seiten);
        Ausdrucken(drucker, dokumentquelle(*programm->haupt), wahl.auswahl, "");
        EXPECT_EQ(drucker.seiten, std::max(wahl.seiten, 1));
        EXPECT_EQ(drucker.dokumente, wahl.dokumente);
        EXPECT_EQ(drucker.zeichen.empty(), wahl.seiten == 0);
    }
}

TEST(Ausdrucken, StundenStimmenMitDemReportUeberein) {
    const Ausdruck ausdruck(faelle[0], "d");
    const auto report =
        test::zahlentabelle(test::reportzeilen(*ausdruck.programm, 2), 1, ausdruck.programm->p());
    std::vector<std::vector<Druckzeichen>> zeilen;
    for (const auto& [y, zeile] : zahlenzeilen(ausdruck.drucker, 3, 48, 137))
        zeilen.push_back(zeile);
    ASSERT_EQ(zeilen.size(), 12U);
    for (std::size_t art = 0; art < 3; ++art) {
        for (std::size_t m = 0; m < 13; ++m) {
            const auto& zeile = zeilen[2 * art + (m < 6 ? 0 : 6)];
            EXPECT_EQ(zahl_lesen(zeile.at(m < 6 ? m : m - 6).text), report[m][art]);
        }
    }
    for (std::size_t spalte = 0; spalte < 7; ++spalte) {
        double summe = 0;
        for (const std::size_t zeile : {7U, 9U, 11U})
            summe += zahl_lesen(zeilen[zeile].at(spalte).text);
        EXPECT_NEAR(summe, 100, 0.16);
    }
}

TEST(Ausdrucken, WaermebilanzHatMonateUndZweiSummen) {
    const Ausdruck ausdruck(faelle[0], "d");
    const auto report =
        test::zahlentabelle(test::reportzeilen(*ausdruck.programm, 4), 1, ausdruck.programm->p());
    std::vector<std::vector<Druckzeichen>> zeilen;
    for (const auto& [y, zeile] : zahlenzeilen(ausdruck.drucker, 4, 48, 137))
        zeilen.push_back(zeile);
    ASSERT_EQ(zeilen.size(), 14U);
    for (std::size_t m = 0; m < 13; ++m) {
        EXPECT_EQ(zahl_lesen(zeilen[m].front().text), report[m][0]);
        EXPECT_EQ(zahl_lesen(zeilen[m].back().text), report[m][5]);
        EXPECT_NEAR(zahl_lesen(zeilen[m][2].text), report[m][0] + report[m][1], 1);
    }
    EXPECT_EQ(zeilen[12].size(), 6U);
    EXPECT_THAT(ausdruck.texte(4), testing::IsSupersetOf({"Summe absolut", "Summe spezifisch"}));
}

TEST(Ausdrucken, FensterbilanzIstGewinnWenigerVerlust) {
    const Ausdruck ausdruck(faelle[0], "d");
    std::vector<std::vector<Druckzeichen>> zeilen;
    for (const auto& [y, zeile] : zahlenzeilen(ausdruck.drucker, 6, 95, 134))
        zeilen.push_back(zeile);
    ASSERT_EQ(zeilen.size(), 3U);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(zahl_lesen(zeilen[0][i].text) - zahl_lesen(zeilen[1][i].text),
                    zahl_lesen(zeilen[2][i].text), 1);
    EXPECT_EQ(zahl_lesen(zeilen[0][1].text), std::round(ausdruck.programm->p().Fenstergewinn_S));
}

TEST(Ausdrucken, BalkenReichenBisZuIhremWert) {
    const Ausdruck ausdruck(faelle[0], "d");
    const Projekt& p = ausdruck.programm->p();
    double stunden_der_art = 0;
    for (const auto& z : ausdruck.drucker.auf_seite(3, Art::flaeche)) {
        if (z.x1 == 155 && z.farbe == farben::rot) stunden_der_art = (205 - z.y2) / 60 * 8800;
    }
    double kalt = 0;
    for (const Monatswerte& monat : p.Monat)
        kalt += monat.Stunden_kalt;
    EXPECT_NEAR(stunden_der_art, kalt, 1E-6 * kalt);

    // Both bars of the year end at the same height: what is lost is supplied.
    double verluste = 205;
    double deckung = 205;
    for (const auto& z : ausdruck.drucker.auf_seite(4, Art::flaeche)) {
        if (z.x1 == 151) verluste = std::min(verluste, z.y2);
        if (z.x1 == 162) deckung = std::min(deckung, z.y2);
    }
    EXPECT_LT(verluste, 200);
    EXPECT_NEAR(verluste, deckung, 1E-3);
}

TEST(Ausdrucken, MonatsnamenStehenUnterIhrenBalken) {
    Testdrucker drucker;
    drucker.schrift({.groesse = 8});
    for (const std::string_view zeile : {monate_der_diagramme.de, monate_der_diagramme.en}) {
        const auto namen = worte(zeile);
        ASSERT_EQ(namen.size(), 12U);
        for (std::size_t i = 0; i < namen.size(); ++i) {
            const auto anfang = static_cast<std::size_t>(namen[i].data() - zeile.data());
            const double mitte =
                35 + drucker.textbreite(zeile.substr(0, anfang)) + drucker.textbreite(namen[i]) / 2;
            EXPECT_NEAR(mitte, 39 + 8.0 * static_cast<double>(i), 0.5) << namen[i];
        }
    }
}

TEST(Blatt, HochgestelltesSchliesstAmAnkerAb) {
    Testdrucker drucker;
    Blatt blatt(drucker, "d");
    blatt.schrift({});
    blatt.DruckeText("in kWh/m^2", 100, 50);
    ASSERT_EQ(drucker.zeichen.size(), 2U);
    const Druckzeichen& hoch = drucker.zeichen[0];
    const Druckzeichen& grund = drucker.zeichen[1];
    EXPECT_EQ(hoch.text, "2");
    EXPECT_NEAR(hoch.x2, 100, genau);
    EXPECT_LT(hoch.schrift.groesse, grund.schrift.groesse);
    EXPECT_EQ(grund.text, "in kWh/m");
    EXPECT_NEAR(grund.x2, hoch.x1, genau);
    EXPECT_EQ(grund.y1, 50);
    blatt.DruckeWert(-0.04, 100, 1, 60);
    EXPECT_EQ(drucker.zeichen[2].text, "0.0");
}

TEST(ZeichnungHaus, DachFolgtDemProjekt) {
    Projekt p;
    p.Sprache = "d";
    p.l = p.b = 10;
    p.h = 5.2F;
    const auto striche = [&p] {
        Testdrucker drucker;
        Blatt blatt(drucker, "d");
        Zeichnung_Haus(blatt, p);
        std::set<std::array<long, 4>> alle;
        for (const auto& z : drucker.auf_seite(1, Art::linie))
            alle.insert({std::lround((z.x1 - 143.8) * 10), std::lround((z.y1 - 57) * 10),
                         std::lround((z.x2 - 143.8) * 10), std::lround((z.y2 - 57) * 10)});
        return alle;
    };
    const std::array<long, 4> first_nord_sued{104, 78, 216, 142};
    const std::array<long, 4> first_ost_west{66, 114, 258, 114};
    const std::array<long, 4> linke_kante{8, 174, 8, 286};
    EXPECT_THAT(striche(), Contains(linke_kante));
    EXPECT_THAT(striche(), testing::Not(Contains(first_nord_sued)));
    p.Check_Dachgeschoss = 1;
    p.hd = 2;
    EXPECT_THAT(striche(), Contains(first_ost_west));
    p.Option_Dachfirst = 1;
    EXPECT_THAT(striche(), Contains(first_nord_sued));
    EXPECT_THAT(striche(), testing::Not(Contains(first_ost_west)));
}

TEST(ZeichnungHaus, FlaechenBleibenInIhrerWand) {
    constexpr double links = 143.8;  // of the sketch
    constexpr double oben = 57;
    struct Wand {
        double x1;
        double x2;
        double (*unterkante)(double x);
    };
    const Wand west{0.8, 12, [](double x) { return 28.6 + (x - 0.8) * 6.4 / 11.2; }};
    const Wand sued{12, 31.2, [](double) { return 35.0; }};
    for (const float laenge : {2.0F, 50.0F}) {
        for (const float breite : {2.0F, 50.0F}) {
            for (const float hoehe : {2.0F, 50.0F}) {
                for (const char* sprache : {"d", "e"}) {
                    Projekt p;
                    p.l = laenge;
                    p.b = breite;
                    p.h = hoehe;
                    Testdrucker drucker;
                    Blatt blatt(drucker, sprache);
                    Zeichnung_Haus(blatt, p);
                    std::vector<Druckzeichen> flaechen;
                    for (const auto& z : drucker.auf_seite(1, Art::text)) {
                        if (z.text.ends_with("m²")) flaechen.push_back(z);
                    }
                    ASSERT_EQ(flaechen.size(), 2U);
                    for (const auto& [z, wand] : {std::pair{flaechen[0], sued}, {flaechen[1], west}}) {
                        EXPECT_GE(z.x1 - links, wand.x1) << z.text;
                        EXPECT_LE(z.x2 - links, wand.x2) << z.text;
                        const double grundlinie = z.y1 + 0.8 * (z.y2 - z.y1) - oben;
                        EXPECT_LE(grundlinie, wand.unterkante(z.x1 - links)) << z.text;
                    }
                }
            }
        }
    }
}

TEST(DiagrammOrientierung, DrehtSichNachWesten) {
    for (const int orient : {0, 45, -45}) {
        Projekt p;
        p.orient = i16(orient, "orient");
        Testdrucker drucker;
        Blatt blatt(drucker, "e");
        Diagramm_Orientierung(blatt, p);
        std::map<std::string, std::pair<double, double>> orte;
        for (const auto& z : drucker.auf_seite(1, Art::text))
            orte[z.text] = {(z.x1 + z.x2) / 2 - 115, (z.y1 + z.y2) / 2 - 75};
        ASSERT_EQ(orte.size(), 4U);
        // South is down the page; a deviation to the west turns it to the left.
        EXPECT_NEAR(orte["S"].first, orient == 0 ? 0 : (orient > 0 ? -10.25 : 10.25), 0.05);
        EXPECT_GT(orte["S"].second, 10);
        EXPECT_NEAR(orte["N"].first, -orte["S"].first, 0.01);
        EXPECT_NEAR(orte["E"].first, orte["S"].second, 0.01);
        for (const auto& z : drucker.auf_seite(1, Art::linie))
            EXPECT_LE(std::hypot(z.x1 - 115, z.y1 - 75), 9 * std::sqrt(2.0) + 0.01);
    }
}

}  // namespace
}  // namespace velmaris
