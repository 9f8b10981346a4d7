#include "planes/Start.h"

#include "project/projektdatei.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>

namespace velmaris {
namespace {

TEST(Befehlszeile, KenntSpracheOrdnerUndProjekt) {
    struct Fall {
        std::string text;
        std::optional<std::string> sprache;
        std::optional<std::string> ordner;
        std::optional<std::string> projekt;
    };
    const std::vector<Fall> faelle{
        {"", {}, {}, {}},
        {"d", "d", {}, {}},
        {"e", "e", {}, {}},
        {"D", {}, {}, {}},
        {"de", {}, "de", {}},
        {"C:\\Bauten\\Haus Süd.VEL", {}, "C:/Bauten/Haus Süd.VEL", "c:\\bauten\\haus süd.vel"},
        {"\"C:\\Haus.vel\"", {}, "\"C:/Haus.vel\"", "c:\\haus.vel"},
        {".vel", {}, ".vel", {}},
        {"x|D:\\Ordner", {}, "D:/Ordner", {}},
        {"a|b|c", {}, "c", {}},
    };
    for (const Fall& fall : faelle) {
        const Befehlszeile zeile(fall.text);
        EXPECT_EQ(zeile.sprache(), fall.sprache) << fall.text;
        const auto ordner = zeile.ordner();
        EXPECT_EQ(ordner ? std::optional(pfadtext(*ordner)) : std::nullopt, fall.ordner) << fall.text;
        EXPECT_EQ(zeile.projekt(), fall.projekt) << fall.text;
    }
}

TEST(Befehlszeile, NimmtDieEigeneSchreibweiseWoNurSieVorhandenIst) {
    const test::Testordner ordner;
    const auto haus = pfadtext(ordner.schreibe("Haus.VEL", "x"));
    EXPECT_EQ(Befehlszeile(haus).projekt(), haus);
    EXPECT_EQ(Befehlszeile("\"" + haus + "\"").projekt(), haus);
}

/// A program that has not built up its project yet.
class Programmstart : public testing::Test {
  protected:
    Programmstart() {
        ordner.schreibe("klima/trier.met", test::stationsbytes("Trier (Deutschland)"));
        haupt = std::make_unique<Haupt>(plattform, ordner.pfad(), "d");
    }

    std::unique_ptr<Start> start(const std::string& befehlszeile) {
        auto neu = std::make_unique<Start>(*haupt, Befehlszeile(befehlszeile), [this] { ++gezeigt; });
        neu->laden();
        return neu;
    }

    test::Testordner ordner;
    test::Testplattform plattform;
    std::unique_ptr<Haupt> haupt;
    int gezeigt = 0;
};

TEST_F(Programmstart, EinSprachbuchstabeStartetSofort) {
    const auto fenster = start("d");
    EXPECT_EQ(haupt->p.Gestartet, 1);
    EXPECT_EQ(gezeigt, 1);
    EXPECT_FALSE(fenster->fenster.sichtbar());
    EXPECT_TRUE(plattform.zeitgeber.empty());
    EXPECT_GT(haupt->p.qh, 0);
}

TEST_F(Programmstart, SonstWartetDasStartfensterZehnSekundenOderAufDenKnopf) {
    const auto fenster = start("");
    EXPECT_TRUE(fenster->fenster.sichtbar());
    EXPECT_EQ(plattform.zeitgeber.at("Start.Timer1").millisekunden, 10000);
    EXPECT_EQ(haupt->p.Gestartet, 0);
    fenster->OK_Button.druecke();
    EXPECT_EQ(haupt->p.Gestartet, 1);
    EXPECT_EQ(gezeigt, 1);
    EXPECT_TRUE(plattform.zeitgeber.empty());
    EXPECT_FALSE(plattform.sanduhren.back());
    fenster->laden();
    EXPECT_TRUE(fenster->fenster.sichtbar());
    fenster->OK_Button.druecke();
    EXPECT_FALSE(fenster->fenster.sichtbar());
    EXPECT_EQ(gezeigt, 1);
}

TEST_F(Programmstart, OeffnetDasProjektDerBefehlszeile) {
    haupt->datei.projekt_vorbereiten();
    auto zeilen = test::projektzeilen(haupt->p);
    zeilen[1] = " 14";
    const auto haus = pfadtext(ordner.schreibe("mein haus.vel", test::projekttext(zeilen)));
    const auto fenster = start("\"" + haus + "\"");
    plattform.lasse_ablaufen("Start.Timer1");
    EXPECT_EQ(haupt->p.l, 14);
    EXPECT_EQ(plattform.titel, "Velmaris - MEIN HAUS.VEL");
    EXPECT_EQ(gezeigt, 1);
}

TEST(SpracheBestimmen, BefehlszeileVorDateiVorFenster) {
    const test::Testordner ordner;
    int gefragt = 0;
    const auto frage = [&gefragt]() -> std::optional<std::string> {
        ++gefragt;
        return "e";
    };
    std::filesystem::create_directories(ordner / "klima");
    EXPECT_EQ(sprache_bestimmen(Befehlszeile("d"), ordner.pfad(), frage), "d");
    EXPECT_EQ(gefragt, 0);
    EXPECT_EQ(sprache_bestimmen(Befehlszeile(""), ordner.pfad(), frage), "e");
    EXPECT_EQ(sprache_bestimmen(Befehlszeile(""), ordner.pfad(), frage), "e");
    EXPECT_EQ(gefragt, 1);
}

}  // namespace
}  // namespace velmaris
