#include "project/projektdatei.h"

#include "project/feldtabelle.h"
#include "tests/testprogramm.h"
#include "tests/verderber.h"
#include "toolkit/fehler.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <tuple>

namespace velmaris {
namespace {

using test::projekttext;

// Lines 2 to 69 of a project file; what stands in none; what a month has. Name and member come from one word.
#define ZEILEN(X)                                                                                            \
    X(l), X(b), X(h), X(ag), X(lw), X(WRG), X(orient), X(intg), X(Troom), X(Tueber), X(awn), X(aww), X(aws), \
        X(awo), X(fenstern_typ), X(fensters_typ), X(fenstero_typ), X(fensterw_typ), X(kwn), X(kws), X(kwo),  \
        X(kww), X(kd), X(kk), X(ft), X(kt), X(Dachraum_typ), X(ugd_typ), X(absfaktor), X(cbk_hDach), X(fn),  \
        X(fs), X(fo), X(fw), X(verschn), X(verschs), X(verscho), X(verschw), X(ran), X(ras), X(rao), X(raw), \
        X(kfgn), X(kfgs), X(kfgo), X(kfgw), X(kfrn), X(kfrs), X(kfro), X(kfrw), X(gfn), X(gfs), X(gfo),      \
        X(gfw), X(Klimadatei), X(Innenwandart), X(Aussenwandart), X(Check_Dachgeschoss),                     \
        X(Option_Dachfirst), X(hd), X(Option1), X(Klimaeffizienz), X(Klimaauswahl), X(Heizsystem),           \
        X(Uebergabe), X(Energietraeger), X(infiltration), X(Waermebruecken)
#define GROESSEN(X)                                                                                          \
    X(kfn), X(kfs), X(kfo), X(kfw), X(Dachneigung), X(f_sfa), X(f_wfa), X(f_nfa), X(f_ofa), X(f_dach_s),     \
        X(f_dach_w), X(f_dach_n), X(f_dach_o), X(f_dach_flach), X(f_giebel_s), X(f_giebel_w), X(f_giebel_n), \
        X(f_giebel_o), X(v_geb), X(v_luft), X(f_gd), X(f_nutz), X(AV), X(Fx_ugd), X(f_nf), X(f_wf), X(f_sf), \
        X(f_of), X(f_nw), X(f_ww), X(f_sw), X(f_ow), X(f_wand), X(f_gf), X(Cwirk), X(tau), X(Breite),        \
        X(Laengenkorrektur), X(qh), X(qhs_sum), X(qsol), X(qsols), X(qi), X(qis), X(qtr), X(qtrs), X(qinf),  \
        X(qinfs), X(qverl_s), X(Fensterverlust_N), X(Fensterverlust_W), X(Fensterverlust_S),                 \
        X(Fensterverlust_O), X(Fenstergewinn_N), X(Fenstergewinn_W), X(Fenstergewinn_S), X(Fenstergewinn_O), \
        X(qtr_Waende), X(qtr_Dach), X(qtr_Boden), X(qtr_Fenster), X(qtr_Tuer), X(q_HE_Energietraeger),       \
        X(q_HE_Strom), X(q_PE_Energietraeger), X(q_PE_Strom), X(Heizlast_max), X(Kuehllast_max)
#define MONATSGROESSEN(X)                                                                                  \
    X(Name), X(Kurz), X(Tage), X(Strahlung_N), X(Strahlung_S), X(Strahlung_O), X(Strahlung_W), X(Tmittel), \
        X(Nutzgrad), X(Qt), X(Qv), X(Qs_genutzt), X(Qi_genutzt), X(Qs_brutto), X(Qi_brutto), X(Qh),        \
        X(Kuehlbedarf), X(Kuehlgradstunden), X(Stunden_kalt), X(Stunden_heiss), X(Stunden_komfort),        \
        X(Kuehl_solar), X(Kuehl_intern), X(Kuehl_trans), X(Kuehl_lueft)
#define FELD(name) \
    { #name, &Projekt::name }
#define MONATSFELD(name) \
    { #name, &Monatswerte::name }

TEST(Feldtabelle, JedeGroesseStehtUnterIhremNamenUndInIhrerZeile) {
    const std::vector<std::pair<std::string_view, Feldzeiger>> erwartet{ZEILEN(FELD), GROESSEN(FELD)};
    ASSERT_EQ(felder().size(), erwartet.size());
    for (std::size_t i = 0; i < erwartet.size(); ++i) {
        const Feldzeile* feld = feld_suchen(erwartet[i].first);
        ASSERT_NE(feld, nullptr) << erwartet[i].first;
        EXPECT_EQ(feld->zeiger, erwartet[i].second) << feld->name;
        EXPECT_EQ(feld->zeile, i < 68 ? i + 2 : 0) << feld->name;
    }
    EXPECT_EQ(feld_suchen("k"), nullptr);
    const std::vector<Monatszeile> monat{MONATSGROESSEN(MONATSFELD)};
    const auto gleich = [](const auto& a, const auto& b) { return a.name == b.name && a.zeiger == b.zeiger; };
    EXPECT_TRUE(std::ranges::equal(monatsfelder(), monat, gleich));
}

/// A record that has no controls; `angeboten` takes what might go to one.
struct Leser {
    /// "read", "unknown version" or the message of the fault.
    std::string lies(const std::string& bytes) {
        const auto stellen = [this](std::string_view feld, int wert) {
            angeboten[std::string(feld)] = wert;
            return false;
        };
        try {
            return projekt_lesen(*p, bytes, "haus.vel", stellen) ? "read" : "unknown version";
        } catch (const Dateifehler& fehler) {
            return fehler.text("e");
        }
    }

    std::unique_ptr<Projekt> p = std::make_unique<Projekt>();
    std::map<std::string, int> angeboten;
};

/// 69 lines whose numbers tell their own line, those of the fields that take it with a half.
std::vector<std::string> nummerierte_zeilen() {
    std::vector<std::string> zeilen{"Velmaris Version 3.2"};
    for (int zeile = 2; zeile <= 69; ++zeile) {
        const bool gleitzahl = std::holds_alternative<float Projekt::*>(feld_der_zeile(zeile).zeiger);
        zeilen.push_back(" " + std::to_string(zeile) + (gleitzahl ? ".5" : ""));
    }
    zeilen[55] = "ulm.met";
    return zeilen;
}

TEST(Projektdatei, JedeZeileWirdGelesenUndStehtWiederDa) {
    auto zeilen = nummerierte_zeilen();
    Leser leser;
    EXPECT_EQ(leser.lies(projekttext(zeilen) + "mehr\r\n"), "read");
    EXPECT_EQ(leser.angeboten.size(), 25U) << "the whole numbers";
    for (const auto& [name, wert] : leser.angeboten)
        EXPECT_EQ(feld_suchen(name)->zeile, wert);
    for (const std::int16_t option : {std::int16_t{2}, std::int16_t{1}}) {
        leser.p->Option_Dachfirst = option;
        leser.p->Option1 = static_cast<std::int16_t>(option - 1);
        zeilen[59] = std::to_string(option);
        zeilen[61] = std::to_string(option - 1);
        EXPECT_EQ(projekt_schreiben(*leser.p), projekttext(zeilen));
    }
}

TEST(Projektdatei, AeltereVersionHatZweiZeilenWenigerUndEineUnbekannteAendertNichts) {
    auto zeilen = nummerierte_zeilen();
    zeilen.resize(67);
    Leser leser;
    leser.p->infiltration = 5;
    for (const char* version :
         {"Velmaris Version 3.1", "velmaris version 3.0", "Velmaris Version 3.0x", ""}) {
        zeilen[0] = version;
        EXPECT_EQ(leser.lies(projekttext(zeilen)), "unknown version");
        EXPECT_EQ(leser.p->l, 0);
    }
    zeilen[0] = "Velmaris Version 3.0";
    EXPECT_EQ(leser.lies(projekttext(zeilen)), "read");
    EXPECT_EQ(leser.p->infiltration, 0);
    EXPECT_EQ(leser.p->Waermebruecken, 0.1F);
}

TEST(Projektdatei, DasKommaBeginntDenNaechstenPosten) {
    auto zeilen = nummerierte_zeilen();
    zeilen[1] = "  10.5 ,7";
    zeilen[55] = "\xFChlingen.met, 57";
    zeilen.erase(zeilen.begin() + 56);
    zeilen.erase(zeilen.begin() + 2);
    Leser leser;
    EXPECT_EQ(leser.lies(projekttext(zeilen)), "read");
    EXPECT_EQ(test::projektzeilen(*leser.p)[55], "\xFChlingen.met");
    EXPECT_EQ(leser.p->l, 10.5F);
    EXPECT_EQ(leser.p->h, 4.5F);
    EXPECT_EQ(leser.p->Klimadatei, "ühlingen.met");
    EXPECT_EQ(leser.p->Innenwandart, 57);
}

TEST(Projektdatei, FehlerNennenZeileUndFeld) {
    for (const auto& [zeile, inhalt, meldung] :
         std::initializer_list<std::tuple<int, std::string, std::string>>{
             {2, "zehn", "(l): not a number: \"zehn\""},
             {4, "5.2m", "(h): not a number"},
             {5, std::string("a\0b", 3) + std::string(50, 'c'),
              "(ag): not a number: \"a?b" + std::string(37, 'c') + "\""},
             {8, "40000", "(orient): overflow, the value 40000 does not fit a 16-bit number"},
             {24, "1E+39", "(kd): number too large: 1E+39"},
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
        zeilen[static_cast<std::size_t>(zeile - 1)] = inhalt;
        const std::string anfang = "haus.vel, line " + std::to_string(zeile) + " " + meldung;
        EXPECT_EQ(Leser().lies(projekttext(zeilen)).substr(0, anfang.size()), anfang);
    }
    auto zeilen = nummerierte_zeilen();
    zeilen.resize(30);
    Leser leser;
    EXPECT_EQ(leser.lies(projekttext(zeilen)), "haus.vel, line 31 (cbk_hDach): the file ends too early");
    EXPECT_EQ(leser.p->absfaktor, 30.5F) << "what was read before stays";
    zeilen = nummerierte_zeilen();
    zeilen[23] = "3.4028234E38";
    zeilen[55] = "Tri er.MET";
    EXPECT_EQ(leser.lies(projekttext(zeilen)), "read");
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
    test::Verderber verderber(20261121);
    std::map<std::string, int> ausgaenge;
    for (int lauf = 0; lauf < 2000; ++lauf) {
        const std::string ausgang = Leser().lies(verderber.verderbe(projekttext(nummerierte_zeilen())));
        ++ausgaenge[ausgang.starts_with("haus.vel, line ") ? "fault" : ausgang];
    }
    EXPECT_EQ(ausgaenge.size(), 3U) << "read, an unknown version, or a fault of a line";
}

}  // namespace
}  // namespace velmaris
