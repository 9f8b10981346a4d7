#include "planes/Start.h"

#include "documents/print/Ausdrucken.h"
#include "documents/report/report.h"
#include "planes/dokumentquelle.h"
#include "project/projektdatei.h"
#include "tests/testdrucker.h"
#include "tests/testprogramm.h"
#include "toolkit/text.h"

#include <algorithm>
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
    const auto& sanduhren = plattform.sanduhren;
    EXPECT_EQ(std::count(sanduhren.begin(), sanduhren.end(), true),
              std::count(sanduhren.begin(), sanduhren.end(), false));
    for (const bool knopf : {true, false}) {
        fenster->laden();
        EXPECT_TRUE(fenster->fenster.sichtbar());
        EXPECT_TRUE(plattform.zeitgeber.empty());
        knopf ? fenster->OK_Button.druecke() : fenster->schliessen();
        EXPECT_FALSE(fenster->fenster.sichtbar());
    }
    EXPECT_FALSE(plattform.beendet);
    EXPECT_EQ(gezeigt, 1);
}

TEST_F(Programmstart, DasGeschlosseneStartfensterBeendetDasProgramm) {
    start("")->schliessen();
    EXPECT_TRUE(plattform.beendet);
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

TEST(Startfehler, OhneVorgabestationKommtDasProgrammMitEinerAnderenHoch) {
    struct Fall {
        std::string befehlszeile;
        bool projekt;
        bool andere;  // there is another station
    };
    for (const Fall& fall : {Fall{"d", false, true},
                             {"", false, true},
                             {"", true, true},
                             {"d", false, false},
                             {"", false, false},
                             {"", true, false}}) {
        const test::Testordner ordner;
        test::Testplattform plattform;
        ordner.schreibe("klima/trier.met", test::stationsbytes("Trier").substr(0, 9000));
        if (fall.andere) ordner.schreibe("klima/fern.met", test::stationsbytes("Fern (Ausland)"));
        const auto haupt = std::make_unique<Haupt>(plattform, ordner.pfad(), "d");
        haupt->datei.projekt_vorbereiten();
        auto zeilen = test::projektzeilen(haupt->p);
        zeilen[1] = " 14";
        zeilen[55] = "fern.met";
        const auto haus = pfadtext(ordner.schreibe("haus.vel", test::projekttext(zeilen)));
        int gezeigt = 0;
        Start start(*haupt, Befehlszeile(fall.projekt ? haus : fall.befehlszeile), [&gezeigt] { ++gezeigt; });
        start.laden();
        if (fall.befehlszeile.empty()) start.OK_Button.druecke();
        const Projekt& p = haupt->p;
        EXPECT_EQ(gezeigt, 1);
        EXPECT_EQ(p.Gestartet, 1);
        EXPECT_FALSE(start.fenster.sichtbar());
        ASSERT_EQ(plattform.meldungen.size(), !fall.andere && fall.projekt ? 2U : 1U);
        EXPECT_NE(plattform.meldungen[0].hinweis.find("trier.met: die Klimadatei endet"), std::string::npos);
        EXPECT_EQ(p.FormLoadGuard, 0);
        EXPECT_EQ(p.Geaendert, 0);
        EXPECT_EQ(p.l, fall.projekt ? 14 : 10);
        EXPECT_EQ(p.qh > 0, fall.andere);
        haupt->laden();
        for (const Ebenenleiste* leiste : {&haupt->e_menue, &haupt->a_menue}) {
            for (const auto& eintrag : leiste->eintraege())
                eintrag.knopf->druecke();
        }
        for (int seite = 1; seite <= reportseiten; ++seite)
            EXPECT_FALSE(report_in_sprache(dokumentquelle(*haupt), seite).empty());
        test::Testdrucker drucker;
        Ausdrucken(drucker, dokumentquelle(*haupt), alles_drucken, {});
        EXPECT_EQ(drucker.seiten, 8);
        for (const test::Druckzeichen& z : drucker.zeichen)
            EXPECT_EQ(z.text.find("NaN"), std::string::npos) << z.text;
        haupt->e_geometrie.l_sb.setze(120);
        EXPECT_EQ(p.qh > 0, fall.andere);
        EXPECT_EQ(haupt->e_klima.klima_fehlt(), !fall.andere);
        ordner.schreibe("klima/trier.met", test::stationsbytes("Trier"));
        haupt->e_klima.Option.setze(nummer(Klimabereich::deutschland));
        haupt->e_klima.Klimaregionwahl.setze(3);
        EXPECT_EQ(p.Klimadatei, "trier.met");
        EXPECT_GT(p.qh, 0);
    }
}

TEST(SpracheBestimmen, BefehlszeileVorDateiVorFenster) {
    const test::Testordner ordner;
    int gefragt = 0;
    const auto frage = [&gefragt]() -> std::optional<std::string> {
        ++gefragt;
        return "e";
    };
    std::filesystem::create_directories(ordner / "klima");
    EXPECT_EQ(sprache_bestimmen(Befehlszeile("d"), ordner.pfad(), {}, frage), "d");
    EXPECT_EQ(gefragt, 0);
    EXPECT_EQ(sprache_bestimmen(Befehlszeile(""), ordner.pfad(), {}, frage), "e");
    EXPECT_EQ(sprache_bestimmen(Befehlszeile(""), ordner.pfad(), {}, frage), "e");
    EXPECT_EQ(gefragt, 1);
}

}  // namespace
}  // namespace velmaris
