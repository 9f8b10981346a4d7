#include "project/projektdatei.h"

#include "tests/testprogramm.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <random>

namespace velmaris {
namespace {

using test::projekttext;
using test::projektzeilen;
using test::Testprogramm;

/// Hooks that only note what the reader set.
struct Haken {
    int innen = -9, aussen = -9, dach = -9, first = -9, modus = -9;

    Ebenenhaken ebenen() {
        return {[this](int wert) { innen = wert; }, [this](int wert) { aussen = wert; },
                [this](int wert) { dach = wert; }, [this](int wert) { first = wert; },
                [this](int wert) { modus = wert; }};
    }
};

/// 69 lines whose numbers tell their own line, so that a line read into the wrong field shows.
std::vector<std::string> nummerierte_zeilen() {
    std::vector<std::string> zeilen{std::string(version_jetzt)};
    for (int zeile = 2; zeile <= 69; ++zeile)
        zeilen.push_back(" " + std::to_string(zeile));
    zeilen[55] = "trier.met";
    return zeilen;
}

TEST(Projekt, DerDatensatzBleibtUnterZweiMegabyte) {
    EXPECT_LT(sizeof(Projekt), 2'000'000U);
}

TEST(Projektdatei, JedeZeileKommtInIhrFeld) {
    auto p = std::make_unique<Projekt>();
    Haken haken;
    ASSERT_TRUE(projekt_lesen(*p, projekttext(nummerierte_zeilen()), "x.vel", haken.ebenen()));
    EXPECT_EQ(p->l, 2);
    EXPECT_EQ(p->ag, 5);
    EXPECT_EQ(p->WRG, 7);
    EXPECT_EQ(p->orient, 8);
    EXPECT_EQ(p->Tueber, 11);
    EXPECT_EQ(p->awn, 12);
    EXPECT_EQ(p->aww, 13);
    EXPECT_EQ(p->aws, 14);
    EXPECT_EQ(p->awo, 15);
    EXPECT_EQ(p->fenstero_typ, 18);
    EXPECT_EQ(p->kww, 23);
    EXPECT_EQ(p->kk, 25);
    EXPECT_EQ(p->Dachraum_typ, 28);
    EXPECT_EQ(p->ugd_typ, 29);
    EXPECT_EQ(p->fw, 35);
    EXPECT_EQ(p->verschw, 39);
    EXPECT_EQ(p->raw, 43);
    EXPECT_EQ(p->kfgw, 47);
    EXPECT_EQ(p->kfrn, 48);
    EXPECT_EQ(p->gfo, 54);
    EXPECT_EQ(p->Klimadatei, "trier.met");
    EXPECT_EQ(haken.innen, 57);
    EXPECT_EQ(haken.aussen, 58);
    EXPECT_EQ(haken.dach, 59);
    EXPECT_EQ(haken.first, 60);
    EXPECT_EQ(p->hd, 61);
    EXPECT_EQ(haken.modus, 62);
    EXPECT_EQ(p->Klimaeffizienz, 63);
    EXPECT_EQ(p->Energietraeger, 67);
    EXPECT_EQ(p->infiltration, 68);
    EXPECT_EQ(p->Waermebruecken, 69);
}

TEST(Projektdatei, AeltereVersionHatZweiZeilenWeniger) {
    auto zeilen = nummerierte_zeilen();
    zeilen.resize(67);
    zeilen[0] = version_frueher;
    auto p = std::make_unique<Projekt>();
    p->infiltration = 5;
    Haken haken;
    ASSERT_TRUE(projekt_lesen(*p, projekttext(zeilen), "x.vel", haken.ebenen()));
    EXPECT_EQ(p->infiltration, 0);
    EXPECT_EQ(p->Waermebruecken, 0.1F);
    EXPECT_EQ(projektzeilen(*p).size(), 69U);
    EXPECT_EQ(projektzeilen(*p).front(), version_jetzt);
}

TEST(Projektdatei, UnbekannteVersionAendertNichts) {
    for (const char* erste :
         {"Velmaris Version 3.1", "velmaris version 3.2", "Velmaris Version 3.2x", "", "\x1f\x8b"}) {
        auto zeilen = nummerierte_zeilen();
        zeilen[0] = erste;
        auto p = std::make_unique<Projekt>();
        Haken haken;
        EXPECT_FALSE(projekt_lesen(*p, projekttext(zeilen), "x.vel", haken.ebenen())) << erste;
        EXPECT_EQ(p->l, 0);
        EXPECT_EQ(haken.modus, -9);
    }
}

TEST(Projektdatei, DasKommaBeginntDenNaechstenPosten) {
    auto zeilen = nummerierte_zeilen();
    zeilen[0] += ", weiter";
    auto p = std::make_unique<Projekt>();
    Haken haken;
    EXPECT_THROW(projekt_lesen(*p, projekttext(zeilen), "x.vel", haken.ebenen()), Dateifehler);
    zeilen = nummerierte_zeilen();
    zeilen[1] = "  10.5 ,7";
    zeilen.erase(zeilen.begin() + 2);
    zeilen[54] = "ort, land.met";
    zeilen.erase(zeilen.begin() + 55);
    zeilen.insert(zeilen.begin() + 54 + 1, "1");
    zeilen[54] = "ort.met";
    ASSERT_TRUE(projekt_lesen(*p, projekttext(zeilen), "x.vel", haken.ebenen()));
    EXPECT_EQ(p->l, 10.5F);
    EXPECT_EQ(p->b, 7);
    EXPECT_EQ(p->Klimadatei, "ort.met");
    EXPECT_EQ(haken.innen, 1);
}

TEST(Projektdatei, FehlerNennenZeileUndFeld) {
    struct Fall {
        int zeile;
        std::string inhalt;
        std::string feld;
        std::string grund;
    };
    const std::vector<Fall> faelle{
        {2, "zehn", "l", "not a number: \"zehn\""},
        {4, "5.2m", "h", "not a number"},
        {8, "40000", "orient", "overflow, the value 40000 does not fit a 16-bit number"},
        {20, "", "kwn", "not a number: \"\""},
        {24, "1E+39", "kd", "number too large"},
        {69, "nan", "Waermebruecken", "not a number"},
        {56, "", "Klimadatei", "the file name is empty"},
        {56, "/dev/zero", "Klimadatei", "\"/dev/zero\" is no plain file name but a path"},
        {56, "../../../etc/passwd", "Klimadatei", "\"../../../etc/passwd\" is no plain"},
        {56, "..\\trier.met", "Klimadatei", "\"..\\trier.met\" is no plain"},
        {56, "C:trier.met", "Klimadatei", "\"C:trier.met\" is no plain"},
        {56, "..", "Klimadatei", "\"..\" is no climate file"},
        {56, "typ.dat", "Klimadatei", "\"typ.dat\" is no climate file"},
        {56, "trier\t.met", "Klimadatei", "the file name contains control characters"},
        {56, std::string(5000, '\xFC') + "x", "Klimadatei", "\"ü"},
    };
    for (const Fall& fall : faelle) {
        auto zeilen = nummerierte_zeilen();
        zeilen[static_cast<std::size_t>(fall.zeile - 1)] = fall.inhalt;
        auto p = std::make_unique<Projekt>();
        Haken haken;
        try {
            projekt_lesen(*p, projekttext(zeilen), "haus.vel", haken.ebenen());
            FAIL() << fall.feld;
        } catch (const Dateifehler& fehler) {
            EXPECT_EQ(fehler.zeile(), fall.zeile);
            EXPECT_EQ(fehler.feld(), fall.feld);
            const std::string anfang =
                "haus.vel, line " + std::to_string(fall.zeile) + " (" + fall.feld + "): " + fall.grund;
            EXPECT_EQ(fehler.text("e").substr(0, anfang.size()), anfang);
        }
    }
}

TEST(Projektdatei, AbgeschnitteneDateiNenntDieFehlendeZeile) {
    auto zeilen = nummerierte_zeilen();
    zeilen.resize(30);
    auto p = std::make_unique<Projekt>();
    Haken haken;
    try {
        projekt_lesen(*p, projekttext(zeilen), "haus.vel", haken.ebenen());
        FAIL();
    } catch (const Dateifehler& fehler) {
        EXPECT_EQ(fehler.text("d"), "haus.vel, Zeile 31 (cbk_hDach): die Datei endet zu früh");
    }
    EXPECT_EQ(p->absfaktor, 30);
}

TEST(Projektdatei, NeuesProjektInDerGenauenForm) {
    const Testprogramm programm;
    const auto zeilen = projektzeilen(programm.p());
    ASSERT_EQ(zeilen.size(), 69U);
    const std::vector<std::pair<int, std::string>> erwartet{
        {1, "Velmaris Version 3.2"},
        {2, " 10"},
        {4, " 5.2"},
        {6, " 0"},
        {20, " .2"},
        {27, " 1.5"},
        {31, " 1"},
        {33, " 40"},
        {44, " 1.4"},
        {52, " .58"},
        {56, "trier.met"},
        {57, " 1"},
        {59, " 0"},
        {60, "1"},
        {61, " 2"},
        {62, "0"},
        {63, " 2.5"},
        {64, " 2"},
        {68, " .6"},
        {69, " .1"},
    };
    for (const auto& [zeile, text] : erwartet)
        EXPECT_EQ(zeilen[static_cast<std::size_t>(zeile - 1)], text) << zeile;
    EXPECT_NE(projekt_schreiben(programm.p()).find("trier.met\r\n 1\r\n"), std::string::npos);
}

TEST(Projektdatei, UeberstehtVerdorbeneBytes) {
    const Testprogramm programm;
    const std::string gut = projekt_schreiben(programm.p());
    std::mt19937 zufall(20261121);
    const auto wurf = [&zufall](std::size_t grenze) { return zufall() % grenze; };
    auto p = std::make_unique<Projekt>();
    int gelesen = 0;
    for (int lauf = 0; lauf < 4000; ++lauf) {
        std::string bytes = gut;
        for (std::size_t aenderung = 0; aenderung <= wurf(4); ++aenderung) {
            const std::size_t ort = wurf(bytes.size());
            switch (wurf(4)) {
                case 0:
                    bytes[ort] = static_cast<char>(wurf(256));
                    break;
                case 1:
                    bytes.erase(ort, wurf(20));
                    break;
                case 2:
                    bytes.insert(ort, wurf(5), static_cast<char>(wurf(256)));
                    break;
                default:
                    bytes.resize(ort);
                    break;
            }
            if (bytes.empty()) bytes = "V";
        }
        Haken haken;
        try {
            gelesen += projekt_lesen(*p, bytes, "x.vel", haken.ebenen()) ? 1 : 0;
        } catch (const Dateifehler&) {
            continue;
        }
    }
    EXPECT_GT(gelesen, 0);
    EXPECT_LT(gelesen, 4000);
}

}  // namespace
}  // namespace velmaris
