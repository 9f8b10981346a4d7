#include "project/projektdatei.h"

#include "project/feldtabelle.h"
#include "tests/testprogramm.h"
#include "toolkit/fehler.h"

#include <gtest/gtest.h>
#include <map>
#include <random>
#include <sstream>

namespace velmaris {
namespace {

using test::projekttext;
using test::projektzeilen;

// Lines 2 to 69 of a project file; name and member come from one word.
#define ZEILEN(X)                                                                                            \
    X(l), X(b), X(h), X(ag), X(lw), X(WRG), X(orient), X(intg), X(Troom), X(Tueber), X(awn), X(aww), X(aws), \
        X(awo), X(fenstern_typ), X(fensters_typ), X(fenstero_typ), X(fensterw_typ), X(kwn), X(kws), X(kwo),  \
        X(kww), X(kd), X(kk), X(ft), X(kt), X(Dachraum_typ), X(ugd_typ), X(absfaktor), X(cbk_hDach), X(fn),  \
        X(fs), X(fo), X(fw), X(verschn), X(verschs), X(verscho), X(verschw), X(ran), X(ras), X(rao), X(raw), \
        X(kfgn), X(kfgs), X(kfgo), X(kfgw), X(kfrn), X(kfrs), X(kfro), X(kfrw), X(gfn), X(gfs), X(gfo),      \
        X(gfw), X(Klimadatei), X(Innenwandart), X(Aussenwandart), X(Check_Dachgeschoss),                     \
        X(Option_Dachfirst), X(hd), X(Option1), X(Klimaeffizienz), X(Klimaauswahl), X(Heizsystem),           \
        X(Uebergabe), X(Energietraeger), X(infiltration), X(Waermebruecken)
#define FELD(name) \
    { #name, &Projekt::name }

const std::vector<std::pair<std::string, Feldzeiger>> dateizeilen{ZEILEN(FELD)};

/// Reads lines into a record that has no controls; `angeboten` takes what might go to one.
class Leser {
  public:
    bool lies(const std::string& bytes) {
        return projekt_lesen(*p, bytes, "haus.vel", [this](std::string_view feld, int wert) {
            angeboten[std::string(feld)] = wert;
            return false;
        });
    }

    /// The message of the fault that the lines are.
    std::string fehler(const std::vector<std::string>& zeilen) {
        try {
            lies(projekttext(zeilen));
        } catch (const Dateifehler& fehler) {
            return fehler.text("e");
        }
        return "none";
    }

    std::unique_ptr<Projekt> p = std::make_unique<Projekt>();
    std::map<std::string, int> angeboten;
};

/// 69 lines whose numbers tell their own line, those of the fields that take it with a half.
std::vector<std::string> nummerierte_zeilen() {
    std::vector<std::string> zeilen{"Velmaris Version 3.2"};
    for (const auto& [name, zeiger] : dateizeilen) {
        const bool gleitzahl = std::holds_alternative<float Projekt::*>(zeiger);
        zeilen.push_back(" " + std::to_string(zeilen.size() + 1) + (gleitzahl ? ".5" : ""));
    }
    zeilen[55] = "ulm.met";
    return zeilen;
}

TEST(Projektdatei, JedeZeileKommtInIhrFeldUndStehtWiederDa) {
    auto zeilen = nummerierte_zeilen();
    Leser leser;
    ASSERT_TRUE(leser.lies(projekttext(zeilen) + "mehr\r\n"));
    std::map<std::string, int> ganzzahlen;
    for (int zeile = 2; zeile <= 69; ++zeile) {
        const auto& [name, zeiger] = dateizeilen[static_cast<std::size_t>(zeile - 2)];
        EXPECT_EQ(feld_der_zeile(zeile).name, name);
        EXPECT_EQ(feld_suchen(name)->zeiger, zeiger) << name;
        if (const auto* gleitzahl = std::get_if<float Projekt::*>(&zeiger)) {
            EXPECT_EQ((*leser.p).*(*gleitzahl), static_cast<float>(zeile) + 0.5F) << name;
        } else if (const auto* ganzzahl = std::get_if<std::int16_t Projekt::*>(&zeiger)) {
            EXPECT_EQ((*leser.p).*(*ganzzahl), zeile) << name;
            ganzzahlen[name] = zeile;
        }
    }
    EXPECT_EQ(leser.p->Klimadatei, "ulm.met");
    EXPECT_EQ(leser.angeboten, ganzzahlen);
    zeilen[59] = "2";
    zeilen[61] = "1";
    EXPECT_EQ(projekt_schreiben(*leser.p), projekttext(zeilen));
    leser.p->Option_Dachfirst = 1;
    leser.p->Option1 = 0;
    zeilen[59] = "1";
    zeilen[61] = "0";
    EXPECT_EQ(projekt_schreiben(*leser.p), projekttext(zeilen));
}

TEST(Projektdatei, AeltereVersionHatZweiZeilenWenigerUndEineUnbekannteAendertNichts) {
    auto zeilen = nummerierte_zeilen();
    zeilen.resize(67);
    Leser leser;
    leser.p->infiltration = 5;
    for (const char* version :
         {"Velmaris Version 3.1", "velmaris version 3.0", "Velmaris Version 3.0x", "", "\x1f\x8b"}) {
        zeilen[0] = version;
        EXPECT_FALSE(leser.lies(projekttext(zeilen))) << version;
        EXPECT_EQ(leser.p->l, 0);
    }
    zeilen[0] = "Velmaris Version 3.0";
    ASSERT_TRUE(leser.lies(projekttext(zeilen)));
    EXPECT_EQ(leser.p->infiltration, 0);
    EXPECT_EQ(leser.p->Waermebruecken, 0.1F);
    EXPECT_EQ(projektzeilen(*leser.p).size(), 69U);
    EXPECT_EQ(projektzeilen(*leser.p).front(), "Velmaris Version 3.2");
}

TEST(Projektdatei, DasKommaBeginntDenNaechstenPosten) {
    auto zeilen = nummerierte_zeilen();
    zeilen[1] = "  10.5 ,7";
    zeilen[55] = "\xFChlingen.met, 1";
    zeilen.erase(zeilen.begin() + 56);
    zeilen.erase(zeilen.begin() + 2);
    Leser leser;
    ASSERT_TRUE(leser.lies(projekttext(zeilen)));
    EXPECT_EQ(leser.p->l, 10.5F);
    EXPECT_EQ(leser.p->b, 7);
    EXPECT_EQ(leser.p->h, 4.5F);
    EXPECT_EQ(leser.p->Klimadatei, "ühlingen.met");
    EXPECT_EQ(leser.p->Innenwandart, 1);
    EXPECT_EQ(projektzeilen(*leser.p)[55], "\xFChlingen.met");
}

TEST(Projektdatei, FehlerNennenZeileUndFeld) {
    struct Fall {
        int zeile;
        std::string inhalt, meldung;
    };
    for (const Fall& fall :
         {Fall{2, "zehn", "(l): not a number: \"zehn\""},
          {4, "5.2m", "(h): not a number"},
          {5, std::string("a\0b", 3) + std::string(50, 'c'),
           "(ag): not a number: \"a?b" + std::string(37, 'c') + "\""},
          {8, "40000", "(orient): overflow, the value 40000 does not fit a 16-bit number"},
          {20, "", "(kwn): not a number: \"\""},
          {24, "1E+39", "(kd): number too large: 1E+39"},
          {25, "-1E+39", "(kk): number too large"},
          {69, "nan", "(Waermebruecken): not a number"},
          {56, "", "(Klimadatei): the file name is empty"},
          {56, "/dev/zero", "(Klimadatei): \"/dev/zero\" is no plain file name but a path"},
          {56, "..\\trier.met", "(Klimadatei): \"..\\trier.met\" is no plain"},
          {56, "C:trier.met", "(Klimadatei): \"C:trier.met\" is no plain"},
          {56, "typ.dat", "(Klimadatei): \"typ.dat\" is no climate file"},
          {56, "trier\x1F.met", "(Klimadatei): the file name contains control characters"},
          {56, "trier\x7F.met", "(Klimadatei): the file name contains control characters"},
          {56, std::string(81, 'u'), "(Klimadatei): \"" + std::string(80, 'u') + "\" is no cli"}}) {
        auto zeilen = nummerierte_zeilen();
        zeilen[static_cast<std::size_t>(fall.zeile - 1)] = fall.inhalt;
        const std::string anfang = "haus.vel, line " + std::to_string(fall.zeile) + " " + fall.meldung;
        EXPECT_EQ(Leser().fehler(zeilen).substr(0, anfang.size()), anfang);
    }
    auto zeilen = nummerierte_zeilen();
    zeilen.resize(30);
    Leser leser;
    EXPECT_EQ(leser.fehler(zeilen), "haus.vel, line 31 (cbk_hDach): the file ends too early");
    EXPECT_EQ(leser.p->absfaktor, 30.5F) << "what was read before stays";
    zeilen = nummerierte_zeilen();
    zeilen[23] = "3.4028234E38";
    zeilen[55] = "Tri er.MET";
    EXPECT_EQ(leser.fehler(zeilen), "none");
}

TEST(Projektdatei, NeuesProjektInDerGenauenForm) {
    std::istringstream werte(
        "10 10 5.2 2 0 0 0 25 20 27 1 1 1 1 3 3 3 3 .2 .2 .2 .2 .2 .2 0 1.5 0 0 .5 1 5 40 5 5 .2 .2 .2 .2 .2 "
        ".2 "
        ".2 .2 1.4 1.4 1.4 1.4 1.5 1.5 1.5 1.5 .58 .58 .58 .58 trier.met 1 1 0 1 2 0 2.5 2 1 1 1 .6 .1");
    std::vector<std::string> erwartet{"Velmaris Version 3.2"};
    for (std::string wert; werte >> wert;) {
        const std::size_t zeile = erwartet.size() + 1;
        erwartet.push_back((zeile == 56 || zeile == 60 || zeile == 62 ? "" : " ") + wert);
    }
    EXPECT_EQ(projekt_schreiben(test::Testprogramm().p()), projekttext(erwartet));
}

TEST(Projektdatei, UeberstehtVerdorbeneBytes) {
    const std::string gut = projekttext(nummerierte_zeilen());
    std::mt19937 zufall(20261121);
    const auto wurf = [&zufall](std::size_t grenze) { return zufall() % grenze; };
    int gelesen = 0;
    for (int lauf = 0; lauf < 2000; ++lauf) {
        std::string bytes = gut;
        for (std::size_t i = wurf(5); i > 0; --i)
            bytes.replace(wurf(bytes.size()), wurf(20), wurf(5), static_cast<char>(wurf(256)));
        if (wurf(4) == 0) bytes.resize(wurf(bytes.size()));
        Leser leser;
        try {
            gelesen += leser.lies(bytes) ? 1 : 0;
        } catch (const Dateifehler&) {
            continue;
        }
    }
    EXPECT_GT(gelesen, 0);
    EXPECT_LT(gelesen, 2000);
}

}  // namespace
}  // namespace velmaris
