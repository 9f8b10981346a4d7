#include "console/auftrag.h"

#include "console/ausgabe_json.h"
#include "project/feldtabelle.h"
#include "tests/testprogramm.h"
#include "toolkit/konsolenplattform.h"
#include "toolkit/text.h"

#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <sstream>
#include <stdexcept>

namespace velmaris {
namespace {

using test::inhalt;
using test::projekttext;
using test::projektzeilen;
using test::Testprogramm;

class Konsole : public testing::Test {
  protected:
    Konsole() {
        auftrag.programmordner = programm.ordner.pfad();
        auftrag.sprache = "e";
        auto zeilen = projektzeilen(programm.p());
        haus = pfadtext(programm.ordner.schreibe("haus.vel", projekttext(zeilen)));
        zeilen[55] = "kurz.met";
        programm.ordner.schreibe("klima/kurz.met", test::stationsbytes("Kurz (Land)").substr(0, 5000));
        kurz = pfadtext(programm.ordner.schreibe("kurz.vel", projekttext(zeilen)));
    }

    int laufen() { return ausfuehren(auftrag, aus, fehler); }

    Testprogramm programm;
    Auftrag auftrag;
    std::string haus;
    std::string kurz;
    std::ostringstream aus;
    std::ostringstream fehler;
};

TEST_F(Konsole, JsonGibtJedesFeldGenauZurueck) {
    auftrag.projekte = {haus};
    auftrag.json = true;
    ASSERT_EQ(laufen(), alles_gut) << fehler.str();
    const Json objekt = Json::parse(aus.str());
    const Projekt& p = programm.p();
    for (const Feldzeile& zeile : felder()) {
        const auto& wert = objekt.at(std::string(zeile.name));
        if (const auto* zeiger = std::get_if<float Projekt::*>(&zeile.zeiger)) {
            EXPECT_EQ(wert.get<float>(), p.*(*zeiger)) << zeile.name;
        }
    }
    ASSERT_EQ(objekt.at("Monat").size(), 12U);
    EXPECT_EQ(objekt["Monat"][0]["Qh"].get<float>(), p.Monat(1).Qh);
    EXPECT_EQ(objekt["Monat"][2]["Kurz"].get<std::string>(), "Mar.");
    for (const char* name :
         {"q_ce", "q_d", "q_s", "e_g", "q_d_he", "q_s_he", "q_g_he", "f_p", "Traegername", "anz_klimaregion",
          "anz_tau", "anz_Heiztage", "anz_heizlast_spez", "Breite", "tau"}) {
        EXPECT_TRUE(objekt.contains(name)) << name;
    }
}

TEST(Konsolenplattform, MeldungenStehenInEinerZeile) {
    EXPECT_EQ(in_einer_zeile("eins\rzwei\r\ndrei\nvier"), "eins zwei drei vier");
    EXPECT_EQ(in_einer_zeile("\n"), " ");
    EXPECT_EQ(in_einer_zeile("h\xE4user/\x1B[m\x07.vel"), "h\uFFFDuser/\uFFFD[m\uFFFD.vel");
}

TEST(Konsolenplattform, JederFehlerNenntSeineDatei) {
    struct Fall {
        std::function<void()> stueck;
        const char* zeile;
    };
    for (const Fall& fall : {Fall{[] {}, ""},
                             Fall{[] {
                                      throw Dateifehler("a.met", {"schlecht", "bad"});
                                  },
                                  "a.met: bad\n"},
                             Fall{[] {
                                      throw Laufzeitfehler({"schlecht", "bad"}, "f_gd");
                                  },
                                  "haus.vel: f_gd: bad\n"},
                             Fall{[] { throw std::bad_alloc(); }, "haus.vel: not enough memory\n"},
                             Fall{[] { throw std::length_error("too\nlong"); }, "haus.vel: too long\n"}}) {
        std::ostringstream fehler;
        EXPECT_EQ(versuchen(fehler, "e", "haus.vel", fall.stueck), *fall.zeile == '\0');
        EXPECT_EQ(fehler.str(), fall.zeile);
    }
}

TEST_F(Konsole, DateinamenOhneUtf8SchadenDerAusgabeNicht) {
    const auto eigen = programm.ordner / "h\xFC\xFFus.vel";
    std::filesystem::copy_file(pfad(haus), eigen);
    auftrag.projekte = {pfadtext(eigen), haus, pfadtext(programm.ordner / "fehlt\xFF.vel")};
    auftrag.json = true;
    EXPECT_EQ(laufen(), projekt_fehlerhaft);
    const Json ergebnisse = Json::parse(aus.str());
    ASSERT_EQ(ergebnisse.size(), 2U);
    EXPECT_TRUE(ergebnisse[0]["Datei"].get<std::string>().ends_with("h\uFFFD\uFFFDus.vel"));
    EXPECT_TRUE(fehler.str().ends_with("fehlt\uFFFD.vel: file not found\n")) << fehler.str();
    aus.str({});
    auftrag.json = false;
    laufen();
    EXPECT_TRUE(ist_utf8(aus.str()));
}

TEST_F(Konsole, EinFehlerHaeltDieAnderenNichtAuf) {
    auftrag.projekte = {kurz, haus, pfadtext(programm.ordner / "fehlt.vel")};
    auftrag.json = true;
    EXPECT_EQ(laufen(), projekt_fehlerhaft);
    EXPECT_EQ(Json::parse(aus.str()).size(), 1U);
    const std::string zeilen = fehler.str();
    EXPECT_NE(zeilen.find("kurz.met: "), std::string::npos);
    EXPECT_NE(zeilen.find("fehlt.vel: file not found"), std::string::npos);
    EXPECT_EQ(std::count(zeilen.begin(), zeilen.end(), '\n'), 2);
}

TEST_F(Konsole, WarntVorUnmoeglichenWertenUndRechnetDochDamit) {
    std::string station = inhalt(programm.ordner / "klima/trier.met");
    station.replace(station.find("49.75"), 5, "97.25");
    programm.ordner.schreibe("klima/trier.met", station);
    auftrag.projekte = {haus};
    testing::internal::CaptureStderr();
    EXPECT_EQ(laufen(), alles_gut) << fehler.str();
    const std::string warnung = testing::internal::GetCapturedStderr();
    EXPECT_NE(warnung.find("trier.met, line 2: latitude 97.25 °. One line"), std::string::npos) << warnung;
    EXPECT_EQ(std::count(warnung.begin(), warnung.end(), '\n'), 1);
}

TEST_F(Konsole, BeiFehlernWirdNichtsGeschrieben) {
    auftrag.projekte = {kurz};
    auftrag.speichern = pfadtext(programm.ordner / "neu.vel");
    auftrag.temperaturen = pfadtext(programm.ordner / "jahr.txt");
    EXPECT_EQ(laufen(), projekt_fehlerhaft);
    EXPECT_FALSE(std::filesystem::exists(programm.ordner / "neu.vel"));
    EXPECT_FALSE(std::filesystem::exists(programm.ordner / "jahr.txt"));
    auftrag.projekte = {haus};
    auftrag.speichern = pfadtext(programm.ordner / "kein/ordner/neu.vel");
    EXPECT_EQ(laufen(), projekt_fehlerhaft);
    EXPECT_NE(fehler.str().find("neu.vel: file cannot be written"), std::string::npos);
}

}  // namespace
}  // namespace velmaris
